// SPDX-License-Identifier: MIT
#include "cli/CheckCommand.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "cli/CheckReport.h"
#include "cli/EvaluationArguments.h"
#include "cli/InOrder.h"
#include "cli/ProjectArguments.h"
#include "cli/RunStamps.h"
#include "cli/Suggest.h"
#include "cli/Terminal.h"
#include "export/ByteSink.h"
#include "export/CsvWriter.h"
#include "script/Border.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

constexpr std::string_view kStandardOutput = "-";

// The table `verdict` of one project, with its head line.
std::string VerdictCsv(const Evaluation& evaluation, UnitSystem system) {
    const Table& table = *FindTable("verdict");
    std::ostringstream text;
    CsvWriter writer(std::make_unique<StreamSink>(text), ',');
    writer.BeginProject(evaluation.Opened().name.name);
    writer.BeginTable(table, system);
    EachRow(table, evaluation, system, [&writer](std::span<const Value> row) { writer.Row(row); });
    writer.EndTable();
    writer.EndProject();
    writer.Close();
    return text.str();
}

// What the check of a project prints.
struct CheckText {
    ExitStatus status = kExitDone;
    std::string out, err;
};

// The check of one project. Nothing is shared between two checks.
class ProjectCheck {
  public:
    ProjectCheck(const CheckRequest& request, const ProjectName& project)
        : m_request(request),
          m_result{project, kExitDone, {}, UnitSystem::us, m_request.limits.ratio, 0, 0, {}, {}, {}, 0} {}

    CheckText Run() {
        const auto started = std::chrono::steady_clock::now();
        try {
            const std::unique_ptr<OpenProject> opened = LoadByName(m_result.name);
            Judge(*opened);
        } catch (const std::invalid_argument& fault) {
            m_result.fault = fault.what();
            m_result.status = kExitUsage;
        } catch (const std::exception& fault) {
            m_result.fault = ForUser(fault.what());
            m_result.status = kExitNotLoaded;
        }
        const auto took = std::chrono::steady_clock::now() - started;
        m_result.milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(took).count();
        return Text();
    }

  private:
    void Judge(const OpenProject& opened) {
        const Evaluation evaluation(opened, m_request.cases, m_request.limits, FindTable("verdict")->needs);
        m_result.units = evaluation.Units();
        m_result.verdict = lumerin::Judge(evaluation);
        m_result.top = GreatestRatios(evaluation, m_request.top);
        m_result.findings = evaluation.Findings();
        m_result.cases = opened.project.data.FirstPier().m_nLoadCases;
        m_result.chosen = evaluation.Selection().SelectedCount(m_result.cases);
        const UnitSystem system = m_request.units.value_or(m_result.units);
        if (m_request.format == CheckFormat::csv) m_csv = VerdictCsv(evaluation, system);
        if (m_request.units) ConvertForces(m_result, *m_request.units);
        const bool judged = !m_result.verdict.families.empty();
        if (HasError(m_result.findings) || !judged) {
            m_result.status = kExitUnsound;
        } else if (!m_result.verdict.passes) {
            m_result.status = kExitIncomplete;
        }
    }

    CheckText Text() const {
        std::ostringstream out, err;
        if (m_request.format == CheckFormat::json) {
            PrintCheckJson(m_result, out);
            return {m_result.status, out.str(), {}};
        }
        const std::string head = m_result.name.name + ".in: ";
        if (m_request.format == CheckFormat::text) {
            PrintCheck(m_result, !m_request.brief, m_request.colour, out);
        } else if (!m_result.fault.empty()) {
            err << head << m_result.fault << '\n';
        }
        for (const Finding& finding : m_result.findings) {
            if (finding.severity == Severity::note && m_request.brief) continue;
            err << head << LineOf(finding) << '\n';
        }
        return {m_result.status, out.str() + m_csv, err.str()};
    }

    const CheckRequest& m_request;
    CheckResult m_result;
    std::string m_csv;
};

class Checker {
  public:
    Checker(const CheckRequest& request, std::ostream& out, std::ostream& err)
        : m_request(request), m_out(out), m_err(err) {
        if (!request.stamps.empty()) m_stamps.emplace(request.stamps, request.options);
    }

    ExitStatus Run() {
        const bool toFile = m_request.output != kStandardOutput;
        try {
            if (toFile) {
                m_sink = std::make_unique<FileSink>(m_request.output);
            } else {
                m_sink = std::make_unique<StreamSink>(m_out);
            }
            const std::vector<ProjectName>& projects = m_request.projects;
            InOrder<Answer> checks(projects.size(), [&](std::size_t i) { return Check(projects[i]); });
            checks.Run(m_request.jobs, [&](std::size_t i, Answer&& answer) { Take(projects[i], answer); });
            m_sink->Commit();
        } catch (const ExportError& fault) {
            PrintLine(m_err, std::string("lumerin: ") + fault.what());
            return kExitIncomplete;
        }
        if (toFile) m_out << m_request.output << std::endl;
        const std::string fault = m_stamps ? m_stamps->Close() : std::string();
        if (!fault.empty()) PrintLine(m_err, "lumerin: " + fault);
        m_summary.Print(m_err);
        return m_summary.Worst();
    }

  private:
    // What came of a project, now or in an earlier run.
    struct Answer {
        std::string inputs;
        std::optional<ProjectOutcome> earlier;
        CheckText text;
    };

    Answer Check(const ProjectName& project) {
        Answer answer;
        if (m_stamps) {
            answer.inputs = InputStamp(project);
            answer.earlier = m_stamps->Earlier(project, answer.inputs);
        }
        if (!answer.earlier) answer.text = ProjectCheck(m_request, project).Run();
        return answer;
    }

    void Take(const ProjectName& project, const Answer& answer) {
        if (answer.earlier) {
            m_summary.AddUnchanged(answer.earlier->status);
            Store(answer.earlier->output);
            return;
        }
        const CheckText& text = answer.text;
        m_summary.Add(text.status);
        m_err << text.err;
        Store(text.out);
        if (m_stamps) m_stamps->Add(project, answer.inputs, {text.status, text.out, {}});
    }

    // Of several projects with a head line each, the first alone is stored.
    void Store(std::string_view text) {
        if (m_request.format == CheckFormat::csv && !text.empty()) {
            if (m_hasHead) text.remove_prefix(text.find('\n') + 1);
            m_hasHead = true;
        }
        m_sink->Write(text);
    }

    const CheckRequest& m_request;
    std::ostream& m_out;
    std::ostream& m_err;
    BatchSummary m_summary{"pass", "fail"};
    std::unique_ptr<ByteSink> m_sink;
    std::optional<RunStamps> m_stamps;
    bool m_hasHead = false;
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
    "json: one object a line for each project. csv: the table \"verdict\" of lumerin export.\n\n"
    "Examples:\n"
    "  lumerin check bridge.in\n"
    "  lumerin check --limit 0.95 --class strength,service --top 10 pier\n"
    "  lumerin check --brief --files-from projects.txt\n\n"
    "Exit status: 0 passes, 1 over the limit, 2 wrong usage, 3 not loaded, 4 the data are not sound (the\n"
    "verdict is printed all the same). Of several projects: the first of 2, 3, 4, 1, 0 that occurred.";

struct CheckArguments {
    ProjectArguments projects;
    EvaluationArguments evaluation;
    CheckRequest request;
    bool resume = false;
};

}  // namespace

ExitStatus RunCheck(const CheckRequest& request, std::ostream& out, std::ostream& err) {
    return Checker(request, out, err).Run();
}

ProgramCommand AddCheckCommand(CommandParser& program) {
    const auto arguments = std::make_shared<CheckArguments>();
    CommandParser command =
        program.AddCommand("check", "Report whether projects pass: their greatest D/C ratios");
    AddProjectArguments(command, arguments->projects);
    AddEvaluationArguments(command, arguments->evaluation);
    command.Add("--top", arguments->request.top, "List this many of the greatest ratios").Takes("N");
    command
        .OnText(
            "--format",
            [arguments](const std::string& text) { arguments->request.format = ReadCheckFormat(text); },
            "text, json or csv (default text)")
        .Takes("FORMAT");
    command.AddFlag("--brief", arguments->request.brief, "Print one line for each project");
    command
        .Add("-o,--output", arguments->request.output,
             "A file, which is replaced when all projects are done, or - for standard output (default)")
        .Takes("FILE|-");
    AddResumeOption(command, arguments->resume, "-o FILE");
    command
        .Add("--jobs", arguments->request.jobs,
             "Check this many projects at once (default 1); the output is the same")
        .InRange(1, 256)
        .Takes("N");
    command.SetFooter(kCheckFooter);
    return {command, [arguments, command](std::ostream& out, std::ostream& err) {
                CheckRequest& request = arguments->request;
                RequireOtherThanList(arguments->projects, request.output);
                request.projects = ReadProjects(arguments->projects);
                request.cases = arguments->evaluation.cases;
                request.limits = arguments->evaluation.limits;
                request.units = arguments->evaluation.units;
                const bool toFile = request.output != kStandardOutput;
                request.colour = !toFile && UsesColour(out);
                if (arguments->resume) {
                    if (!toFile) throw std::invalid_argument("--resume needs -o FILE");
                    request.stamps = request.output + ".stamps";
                    request.options = GivenOptions(command);
                }
                return RunCheck(request, out, err);
            }};
}

}  // namespace lumerin
