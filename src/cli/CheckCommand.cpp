// SPDX-License-Identifier: MIT
#include "cli/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <memory>
#include <stdexcept>

#include "cli/CheckReport.h"
#include "cli/EvaluationArguments.h"
#include "cli/ProjectArguments.h"
#include "cli/Suggest.h"
#include "cli/Terminal.h"
#include "export/CsvWriter.h"
#include "script/Border.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

// One line of the table `verdict` for each family of members; the head line comes with the first project.
class VerdictCsv {
  public:
    explicit VerdictCsv(std::ostream& out) : m_writer(std::make_unique<StreamSink>(out), ',') {}

    void Add(const Evaluation& evaluation, UnitSystem system) {
        m_writer.BeginProject(evaluation.Opened().name.name);
        m_writer.BeginTable(m_table, system);
        EachRow(m_table, evaluation, system, [this](std::span<const Value> row) { m_writer.Row(row); });
        m_writer.EndTable();
        m_writer.EndProject();
    }
    void Close() { m_writer.Close(); }

  private:
    const Table& m_table = *FindTable("verdict");
    CsvWriter m_writer;
};

class Checker {
  public:
    Checker(const CheckRequest& request, std::ostream& out, std::ostream& err)
        : m_request(request), m_out(out), m_err(err) {
        if (request.format == CheckFormat::csv) m_csv.emplace(out);
    }

    ExitStatus Run() {
        BatchSummary summary("pass", "fail");
        for (const ProjectName& project : m_request.projects) {
            const CheckResult result = Check(project);
            summary.Add(result.status);
            Print(result);
        }
        if (m_csv) m_csv->Close();
        m_out.flush();
        summary.Print(m_err);
        return summary.Worst();
    }

  private:
    CheckResult Check(const ProjectName& project) {
        const auto started = std::chrono::steady_clock::now();
        CheckResult result{project, kExitDone, {}, UnitSystem::us, m_request.limits.ratio, 0, 0, {},
                           {},      {},        0};
        try {
            const std::unique_ptr<OpenProject> opened = LoadByName(project);
            Judge(*opened, result);
        } catch (const std::invalid_argument& fault) {
            result.fault = fault.what();
            result.status = kExitUsage;
        } catch (const std::exception& fault) {
            result.fault = ForUser(fault.what());
            result.status = kExitNotLoaded;
        }
        result.milliseconds =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started)
                .count();
        return result;
    }

    void Judge(const OpenProject& opened, CheckResult& result) {
        const Evaluation evaluation(opened, m_request.cases, m_request.limits, FindTable("verdict")->needs);
        result.units = evaluation.Units();
        result.verdict = lumerin::Judge(evaluation);
        result.top = GreatestRatios(evaluation, m_request.top);
        result.findings = evaluation.Findings();
        result.cases = opened.project.data.FirstPier().m_nLoadCases;
        result.chosen = evaluation.Selection().SelectedCount(result.cases);
        if (m_csv) m_csv->Add(evaluation, m_request.units.value_or(result.units));
        if (m_request.units) ConvertForces(result, *m_request.units);
        const bool judged = !result.verdict.families.empty();
        if (HasError(result.findings) || !judged) {
            result.status = kExitUnsound;
        } else if (!result.verdict.passes) {
            result.status = kExitIncomplete;
        }
    }

    void Print(const CheckResult& result) {
        if (m_request.format == CheckFormat::json) {
            PrintCheckJson(result, m_out);
            return;
        }
        if (m_request.format == CheckFormat::text) {
            PrintCheck(result, !m_request.brief, m_request.colour, m_out);
        } else if (!result.fault.empty()) {
            m_err << result.name.name << ".in: " << result.fault << '\n';
        }
        for (const Finding& finding : result.findings) {
            if (finding.severity == Severity::note && m_request.brief) continue;
            m_err << result.name.name << ".in: " << LineOf(finding) << '\n';
        }
    }

    const CheckRequest& m_request;
    std::ostream& m_out;
    std::ostream& m_err;
    std::optional<VerdictCsv> m_csv;
};

CheckFormat ReadCheckFormat(const std::string& text) {
    const std::string format = LowerCase(text);
    if (format == "text") return CheckFormat::text;
    if (format == "json") return CheckFormat::json;
    if (format == "csv") return CheckFormat::csv;
    throw std::invalid_argument(UnknownWord(text, "format", {"text", "json", "csv"}));
}

constexpr const char* kCheckFooter =
    "The first line of a project is its verdict: the greatest D/C ratio of all element ends, foundation\n"
    "included, in the chosen cases, against the limit. A line for each family of members follows, with all\n"
    "forces of that end in that case. Findings about the data go to standard error.\n\n"
    "json: one object a line for each project. csv: the table \"verdict\" of docs/data.md.\n\n"
    "Examples:\n"
    "  lumerin check bridge.in\n"
    "  lumerin check --limit 0.95 --class strength,service --top 10 bridge\n"
    "  lumerin check --brief --files-from projects.txt\n\n"
    "Exit status: 0 passes, 1 over the limit, 2 wrong usage, 3 not loaded, 4 the data are not sound (the\n"
    "verdict is printed all the same). Of several projects: the first of 2, 3, 4, 1, 0 that occurred.";

struct CheckArguments {
    ProjectArguments projects;
    EvaluationArguments evaluation;
    CheckRequest request;
};

}  // namespace

ExitStatus RunCheck(const CheckRequest& request, std::ostream& out, std::ostream& err) {
    return Checker(request, out, err).Run();
}

ProgramCommand AddCheckCommand(CLI::App& program) {
    const auto arguments = std::make_shared<CheckArguments>();
    CLI::App& command =
        *program.add_subcommand("check", "Report whether projects pass: their greatest D/C ratios");
    AddProjectArguments(command, arguments->projects);
    AddEvaluationArguments(command, arguments->evaluation);
    command.add_option("--top", arguments->request.top, "List this many of the greatest ratios")
        ->type_name("N");
    command
        .add_option_function<std::string>(
            "--format",
            [arguments](const std::string& text) { arguments->request.format = ReadCheckFormat(text); },
            "text, json or csv (default text)")
        ->type_name("FORMAT");
    command.add_flag("--brief", arguments->request.brief, "Print one line for each project");
    command.footer(kCheckFooter);
    return {&command, [arguments](std::ostream& out, std::ostream& err) {
                CheckRequest& request = arguments->request;
                request.projects = ReadProjects(arguments->projects);
                request.cases = arguments->evaluation.cases;
                request.limits = arguments->evaluation.limits;
                request.units = arguments->evaluation.units;
                request.colour = UsesColour(out);
                return RunCheck(request, out, err);
            }};
}

}  // namespace lumerin
