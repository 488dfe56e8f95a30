// SPDX-License-Identifier: MIT
#include "cli/CompareCommand.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>

#include "cli/CompareReport.h"
#include "cli/EvaluationArguments.h"
#include "cli/Suggest.h"
#include "cli/Terminal.h"
#include "compare/ResultColumns.h"
#include "export/TableWriter.h"
#include "framework/File.h"
#include "script/Border.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

constexpr std::size_t kUsualRows = 20;  // of a list of the text, so that it is a page
constexpr std::size_t kUsualRowsOfHtml = 200;

// The capacities of a run in its own units.
Limits LimitsIn(const Limits& given, UnitSystem from, UnitSystem to) {
    Limits limits = given;
    const double factor = ConversionFactor(Quantity::force, from, to);
    if (limits.pileCompression) *limits.pileCompression *= factor;
    if (limits.pileTension) *limits.pileTension *= factor;
    return limits;
}

// A run that cannot be compared, and why.
class RunFault : public std::runtime_error {
  public:
    RunFault(const ProjectName& run, const std::string& why, ExitStatus runStatus)
        : std::runtime_error(ForUser(run.inputFile) + ": " + why), status(runStatus) {}
    ExitStatus status;
};

std::unique_ptr<OpenProject> Load(const ProjectName& name) {
    try {
        return LoadByName(name);
    } catch (const std::exception& fault) {
        throw RunFault(name, ForUser(fault.what()), kExitNotLoaded);
    }
}

std::unique_ptr<Evaluation> Evaluate(const OpenProject& opened, const CompareRequest& request,
                                     const Limits& limits, const TableNeeds& needs) {
    try {
        return std::make_unique<Evaluation>(opened, request.cases, limits, needs);
    } catch (const std::invalid_argument& fault) {
        throw RunFault(opened.name, fault.what(), kExitUsage);
    } catch (const CFileException& fault) {
        throw RunFault(opened.name, ForUser(fault.what()), kExitNotLoaded);
    }
}

void CompareRuns(const CompareRequest& request, PairResult& result) {
    const std::unique_ptr<OpenProject> before = Load(*result.pair.before), after = Load(*result.pair.after);
    const UnitSystem unitsBefore = UnitSystemOf(before->project.data.m_nUnits);
    const UnitSystem unitsAfter = UnitSystemOf(after->project.data.m_nUnits);
    const CompareChoice choice{request.tables.empty() ? UsualTables() : request.tables, request.tolerances,
                               request.units.value_or(unitsAfter)};
    TableNeeds needs = NeedsOfComparison(choice);
    const bool draws = request.format == CompareFormat::html;
    if (draws) needs.Add(OverlayNeeds());
    const std::unique_ptr<Evaluation> old =
        Evaluate(*before, request, LimitsIn(request.limits, unitsAfter, unitsBefore), needs);
    const std::unique_ptr<Evaluation> now = Evaluate(*after, request, request.limits, needs);
    result.findingsBefore = old->Findings();
    result.findingsAfter = now->Findings();
    result.comparison = Compare(*old, *now, choice);
    if (draws) result.figures = DrawOverlays(*old, *now, choice.units);
    if (HasError(result.findingsBefore) || HasError(result.findingsAfter)) {
        result.status = kExitUnsound;
    } else if (result.comparison->Differs()) {
        result.status = kExitIncomplete;
    }
}

PairResult ComparePair(const CompareRequest& request, const ProjectPair& pair) {
    PairResult result;
    result.pair = pair;
    result.limit = request.limits.ratio;
    if (!pair.before || !pair.after) {
        result.status = kExitIncomplete;
        return result;
    }
    try {
        CompareRuns(request, result);
    } catch (const RunFault& fault) {
        result.fault = fault.what();
        result.status = fault.status;
    } catch (const std::exception& fault) {
        result.fault = ForUser(fault.what());
        result.status = kExitNotLoaded;
    }
    return result;
}

std::unique_ptr<ComparePrinter> MakePrinter(const CompareRequest& request, std::ostream& out) {
    std::unique_ptr<ByteSink> sink;
    if (request.output == "-") {
        sink = std::make_unique<StreamSink>(out);
    } else {
        sink = std::make_unique<FileSink>(request.output);
    }
    const std::size_t top = request.top.value_or(0);
    if (request.format == CompareFormat::json) return MakeJsonPrinter(std::move(sink), top);
    if (request.format == CompareFormat::csv) return MakeCsvPrinter(std::move(sink), top);
    if (request.format == CompareFormat::html) {
        return MakeHtmlPrinter(std::move(sink), ForUser(request.before) + " and " + ForUser(request.after),
                               request.top.value_or(kUsualRowsOfHtml));
    }
    return MakeTextPrinter(std::move(sink), request.top.value_or(kUsualRows), request.colour);
}

void PrintFindings(const ProjectName& run, const std::vector<Finding>& findings, std::ostream& err) {
    for (const Finding& finding : findings) {
        if (finding.severity != Severity::note) PrintLine(err, run.name + ".in: " + LineOf(finding));
    }
}

ExitStatus ComparePairs(const CompareRequest& request, std::ostream& out, std::ostream& err) {
    const std::vector<ProjectPair> pairs = FindPairs(request.before, request.after);
    BatchSummary summary("the same", "different");
    const std::unique_ptr<ComparePrinter> printer = MakePrinter(request, out);
    for (const ProjectPair& pair : pairs) {
        const PairResult result = ComparePair(request, pair);
        summary.Add(result.status);
        printer->Print(result);
        // The other forms have it on standard output.
        const bool isSilent = request.format == CompareFormat::csv || request.output != "-";
        if (!result.fault.empty() && isSilent) PrintLine(err, "lumerin: " + result.fault);
        if (pair.before) PrintFindings(*pair.before, result.findingsBefore, err);
        if (pair.after) PrintFindings(*pair.after, result.findingsAfter, err);
    }
    printer->Close();
    if (request.output != "-") out << request.output << std::endl;
    summary.Print(err);
    return summary.Worst();
}

CompareFormat ReadCompareFormat(const std::string& text) {
    const std::string format = LowerCase(text);
    if (format == "text") return CompareFormat::text;
    if (format == "json") return CompareFormat::json;
    if (format == "csv") return CompareFormat::csv;
    if (format == "html") return CompareFormat::html;
    throw std::invalid_argument(UnknownWord(text, "format", {"text", "json", "csv", "html"}));
}

std::vector<std::string> NamesOfTables() {
    std::vector<std::string> names;
    for (const Table* table : ComparableTables()) names.emplace_back(table->name);
    return names;
}

// Each table once, in the order that is given.
void ReadComparedTables(const std::string& text, std::vector<const Table*>& tables) {
    const auto add = [&](const Table* table) {
        if (std::ranges::find(tables, table) == tables.end()) tables.push_back(table);
    };
    for (const std::string_view part : SplitList(text)) {
        const std::string name = LowerCase(part);
        const Table* table = FindTable(name);
        if (name == "all") {
            for (const Table* known : ComparableTables()) add(known);
        } else if (table != nullptr && HasResults(*table)) {
            add(table);
        } else {
            throw std::invalid_argument(UnknownWord(part, "table of results", NamesOfTables()));
        }
    }
}

void AddTolerance(CommandParser& command, const std::string& option, double& tolerance,
                  const std::string& help) {
    command
        .OnNumber(
            option,
            [option, &tolerance](double value) {
                if (!std::isfinite(value) || value < 0.0) {
                    throw std::invalid_argument(option + " takes a number that is not negative");
                }
                tolerance = value;
            },
            help)
        .Takes("NUMBER");
}

constexpr const char* kCompareFooter =
    "OLD and NEW are two projects, or two folders whose projects are matched by name. A value differs when "
    "its\n"
    "change is above the relative tolerance, a part of the greater of both values, and above the absolute "
    "one\n"
    "of its kind, in the units of the output: those of NEW, or those of --units. Cases are matched by\n"
    "title, or by limit state where a run has no titles, and several with one title in their order. The\n"
    "number of a case does not count. Capacities are in units of NEW.\n\n"
    "Examples:\n"
    "  lumerin compare before/bridge.in after/bridge.in\n"
    "  lumerin compare --rel 0.05 --class strength --top 10 before/bridge after/bridge\n"
    "  lumerin compare --table element_dc,pile_heads before/bridge after/bridge\n"
    "  lumerin compare --format csv -o changes.csv before after\n"
    "  lumerin compare --format html -o changes.html before after\n\n"
    "Exit status: 0 nothing differs but governing cases, 1 a verdict, a value, a row, a case, a project or "
    "the\n"
    "geometry differs, 2 wrong usage, 3 not loaded, 4 the data are not sound (the comparison is printed all "
    "the\n"
    "same). Of several pairs: the first of 2, 3, 4, 1, 0 that occurred.";

struct CompareArguments {
    EvaluationArguments evaluation;
    CompareRequest request;
};

void AddCompareOptions(CommandParser& command, CompareArguments& arguments) {
    CompareRequest& request = arguments.request;
    command.Add("OLD", request.before, "The earlier run: a project or a folder").Required();
    command.Add("NEW", request.after, "The later run: a project or a folder").Required();
    AddTolerance(command, "--rel", request.tolerances.relative,
                 "Smaller relative changes are ignored (default 0.01, a part of the greater value)");
    AddTolerance(command, "--abs-force", request.tolerances.force,
                 "Changes of a force up to this are ignored (default 0.5)");
    AddTolerance(command, "--abs-moment", request.tolerances.moment,
                 "Changes of a moment up to this are ignored (default 1.0)");
    AddTolerance(command, "--abs-dc", request.tolerances.ratio,
                 "Changes of a D/C ratio up to this are ignored (default 0.01)");
    command
        .OnTexts(
            "--table",
            [&request](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) ReadComparedTables(text, request.tables);
            },
            "The tables of results to compare, such as verdict,cap_moment; all for every one (default: "
            "verdict, "
            "pile_axial, section_dc, section_forces, cap_shear, cap_moment)")
        .OneValueEach()
        .Takes("LIST");
    AddEvaluationArguments(command, arguments.evaluation);
    command
        .Add("--top", request.top,
             "List this many rows at most, the worst ones; 0 for all (default: 20 in text, 200 in "
             "html, else all)")
        .Takes("N");
    command
        .OnText(
            "--format", [&request](const std::string& text) { request.format = ReadCompareFormat(text); },
            "text (default), json, csv or html")
        .Takes("FORMAT");
    command.Add("-o,--output", request.output, "The file to write; - for standard output (default)")
        .Takes("FILE");
}

}  // namespace

ExitStatus RunCompare(const CompareRequest& request, std::ostream& out, std::ostream& err) {
    try {
        return ComparePairs(request, out, err);
    } catch (const ExportError& fault) {
        PrintLine(err, std::string("lumerin: ") + fault.what());
        return kExitIncomplete;
    }
}

ProgramCommand AddCompareCommand(CommandParser& program) {
    const auto arguments = std::make_shared<CompareArguments>();
    CommandParser command =
        program.AddCommand("compare", "Report what changed from one run of a project to the next");
    AddCompareOptions(command, *arguments);
    command.SetFooter(kCompareFooter);
    return {command, [arguments](std::ostream& out, std::ostream& err) {
                CompareRequest& request = arguments->request;
                request.cases = arguments->evaluation.cases;
                request.limits = arguments->evaluation.limits;
                request.units = arguments->evaluation.units;
                request.colour = request.output == "-" && UsesColour(out);
                return RunCompare(request, out, err);
            }};
}

}  // namespace lumerin
