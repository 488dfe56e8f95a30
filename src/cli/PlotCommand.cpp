// SPDX-License-Identifier: MIT
#include "cli/PlotCommand.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "cli/EvaluationArguments.h"
#include "cli/StudyArguments.h"
#include "cli/Suggest.h"
#include "export/CsvWriter.h"
#include "figures/CaseScan.h"
#include "records/TableRows.h"
#include "script/Border.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

std::string FigureNames() {
    std::string names;
    for (const FigureKind& figure : AllFigures())
        names += (names.empty() ? "" : ", ") + std::string(figure.name);
    return names;
}

const FigureKind& RequireFigure(const std::string& name) {
    const FigureKind* figure = FindFigure(name);
    if (figure == nullptr) {
        std::vector<std::string> names;
        for (const FigureKind& known : AllFigures()) names.emplace_back(known.name);
        throw std::invalid_argument(UnknownWord(name, "figure", names));
    }
    return *figure;
}

// The substructure that is meant; where there are several, it must be named.
int RequireSubstructure(const CDataSet& data, int asked) {
    const int count = static_cast<int>(data.m_Piers.size());
    if (asked == 0 && count > 1) {
        throw std::invalid_argument("the project has " + std::to_string(count) +
                                    " substructures; --substructure names the one to draw");
    }
    if (asked < 0 || asked > count) {
        throw std::invalid_argument("there is no substructure " + std::to_string(asked) +
                                    ", the project has " + std::to_string(count));
    }
    return asked == 0 ? 1 : asked;
}

std::unique_ptr<ByteSink> OpenOutput(const PlotRequest& request, std::ostream& out) {
    if (request.output == "-") return std::make_unique<StreamSink>(out);
    return std::make_unique<FileSink>(request.output);
}

// The columns that tell which rows of a table are in a figure, with the values that they have there.
struct RowFilter {
    std::size_t column;
    Value value;
};

std::vector<RowFilter> FilterOf(const FigureKind& figure, const Table& table, const Evaluation& evaluation,
                                const FigureRequest& drawing) {
    const auto column = [&table](std::string_view name) {
        return static_cast<std::size_t>(std::ranges::find(table.columns, name, &Column::name) -
                                        table.columns.begin());
    };
    std::vector<RowFilter> filter;
    if (figure.scope == FigureScope::project) return filter;
    filter.push_back({column("substructure"), std::int64_t{drawing.substructure}});
    if (figure.scope != FigureScope::element) return filter;
    const ScannedEnd end = EndOf(evaluation, drawing);
    filter.push_back({column("record"), std::int64_t{end.identity == nullptr ? 0 : end.identity->record}});
    filter.push_back({column("end"), EndName(end.end)});
    return filter;
}

void WriteData(const FigureKind& figure, const Evaluation& evaluation, const FigureRequest& drawing,
               std::unique_ptr<ByteSink> sink) {
    const Table& table = *FindTable(figure.dataTable);
    const std::vector<RowFilter> filter = FilterOf(figure, table, evaluation, drawing);
    CsvWriter writer(std::move(sink), ',');
    writer.BeginProject(evaluation.Opened().name.name);
    writer.BeginTable(table, evaluation.Units());
    table.rows(evaluation, [&](std::span<const Value> row) {
        const auto fits = [&row](const RowFilter& part) { return row[part.column] == part.value; };
        if (std::ranges::all_of(filter, fits)) writer.Row(row);
    });
    writer.EndTable();
    writer.EndProject();
    writer.Close();
}

ExitStatus Draw(const PlotRequest& request, const OpenProject& opened, std::ostream& out, std::ostream& err) {
    const FigureKind& figure = RequireFigure(request.figure);
    FigureRequest drawing = request.drawing;
    drawing.substructure = figure.scope == FigureScope::project
                               ? 1
                               : RequireSubstructure(opened.project.data, drawing.substructure);
    const Evaluation evaluation(opened, request.cases, request.limits, figure.needs);
    for (const Finding& finding : evaluation.Findings()) {
        if (finding.severity != Severity::note) {
            PrintLine(err, opened.name.inputFile + ": " + LineOf(finding));
        }
    }
    if (request.data) {
        WriteData(figure, evaluation, drawing, OpenOutput(request, out));
    } else {
        const std::string picture = figure.draw(evaluation, drawing);
        const std::unique_ptr<ByteSink> sink = OpenOutput(request, out);
        sink->Write(picture);
        sink->Commit();
    }
    if (request.output != "-") out << request.output << std::endl;
    return HasError(evaluation.Findings()) ? kExitUnsound : kExitDone;
}

std::string PlotFooter() {
    std::string text = "Figures:\n";
    for (const FigureKind& figure : AllFigures()) {
        text += "  " + std::string(figure.name) + ": " + std::string(figure.content) + "\n";
    }
    return text +
           "\nThe picture is an SVG file, for browsers, documents and drawing programs.\n\n"
           "Examples:\n"
           "  lumerin plot pier.in cap-moment -o moment.svg\n"
           "  lumerin plot bridge.in dc --substructure 2 > ratios.svg\n"
           "  lumerin plot pier.in pile-heads --pile-compression 600 -o heads.svg\n"
           "  lumerin plot pier.in case-scan --element 18 --end J -o scan.svg\n"
           "  lumerin plot pier.in cap-shear --data > envelope.csv\n\n"
           "Exit status:\n"
           "  0  done\n"
           "  1  the file could not be written\n"
           "  2  wrong usage\n"
           "  3  the project could not be loaded\n"
           "  4  the data of the project have errors (the figure is written all the same)";
}

}  // namespace

ExitStatus RunPlot(const PlotRequest& request, std::ostream& out, std::ostream& err) {
    RequireFigure(request.figure);
    const ProjectName name(request.project);
    std::unique_ptr<OpenProject> opened;
    try {
        opened = LoadByName(name);
    } catch (const std::runtime_error& fault) {
        PrintLine(err, name.inputFile + ": " + fault.what());
        return kExitNotLoaded;
    }
    try {
        return Draw(request, *opened, out, err);
    } catch (const ExportError& fault) {
        PrintLine(err, std::string("lumerin: ") + fault.what());
        return kExitIncomplete;
    }
}

namespace {

int ReadEnd(const std::string& word) {
    const std::string lower = LowerCase(word);
    if (lower == "i") return kEndI;
    if (lower == "j") return kEndJ;
    throw std::invalid_argument("\"" + word + "\" is no end of an element (I, J)");
}

void AddElementOptions(CommandParser& command, FigureRequest& drawing) {
    command
        .Add("--element", drawing.element,
             "The element of case-scan by its number; default: that with the greatest D/C")
        .Takes("N")
        .Positive();
    command
        .OnText(
            "--end", [&drawing](const std::string& word) { drawing.end = ReadEnd(word); },
            "Its end, I or J; default: that with the greater D/C")
        .Takes("END");
}

}  // namespace

ProgramCommand AddPlotCommand(CommandParser& program) {
    const auto request = std::make_shared<PlotRequest>();
    CommandParser command = program.AddCommand("plot", "Draw a figure of a substructure");
    command.Add("PROJECT", request->project, "A project: its input file, with or without .in").Required();
    command.Add("FIGURE", request->figure, FigureNames()).Required();
    command
        .Add("--substructure", request->drawing.substructure,
             "The substructure, from 1; needed where the project has several")
        .Takes("N");
    AddElementOptions(command, request->drawing);
    AddStudyOptions(command, request->drawing.study);
    AddCaseOptions(command, request->cases);
    AddLimitOptions(command, request->limits);
    command.Add("-o,--output", request->output, "The file to write; - for standard output (default)")
        .Takes("FILE");
    command.AddFlag("--data", request->data, "Print the numbers of the figure as CSV");
    command.SetFooter(PlotFooter());
    return {command, [request](std::ostream& out, std::ostream& err) { return RunPlot(*request, out, err); }};
}

}  // namespace lumerin
