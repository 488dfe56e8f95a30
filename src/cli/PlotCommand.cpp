// SPDX-License-Identifier: MIT
#include "cli/PlotCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <stdexcept>

#include "cli/EvaluationArguments.h"
#include "cli/Suggest.h"
#include "export/CsvWriter.h"
#include "script/Border.h"

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

// The rows of the figure's substructure.
void WriteData(const FigureKind& figure, const Evaluation& evaluation, int substructure,
               std::unique_ptr<ByteSink> sink) {
    const Table& table = *FindTable(figure.dataTable);
    CsvWriter writer(std::move(sink), ',');
    writer.BeginProject(evaluation.Opened().name.name);
    writer.BeginTable(table, evaluation.Units());
    table.rows(evaluation, [&](std::span<const Value> row) {
        const auto* number = std::get_if<std::int64_t>(&row[1]);
        if (number != nullptr && *number == substructure) writer.Row(row);
    });
    writer.EndTable();
    writer.EndProject();
    writer.Close();
}

ExitStatus Draw(const PlotRequest& request, const OpenProject& opened, std::ostream& out, std::ostream& err) {
    const FigureKind& figure = RequireFigure(request.figure);
    const int substructure = RequireSubstructure(opened.project.data, request.substructure);
    const Evaluation evaluation(opened, request.cases, request.limits, figure.needs);
    for (const Finding& finding : evaluation.Findings()) {
        if (finding.severity != Severity::note) {
            PrintLine(err, opened.name.inputFile + ": " + LineOf(finding));
        }
    }
    std::unique_ptr<ByteSink> sink = OpenOutput(request, out);
    if (request.data) {
        WriteData(figure, evaluation, substructure, std::move(sink));
    } else {
        FigureRequest drawing;
        drawing.substructure = substructure;
        sink->Write(figure.draw(evaluation, drawing));
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

ProgramCommand AddPlotCommand(CLI::App& program) {
    const auto request = std::make_shared<PlotRequest>();
    CLI::App& command = *program.add_subcommand("plot", "Draw a figure of a substructure");
    command.add_option("PROJECT", request->project, "A project: its input file, with or without .in")
        ->required()
        ->type_name("");
    command.add_option("FIGURE", request->figure, FigureNames())->required()->type_name("");
    command
        .add_option("--substructure", request->substructure,
                    "The substructure, from 1; needed where the project has several")
        ->type_name("N");
    AddCaseOptions(command, request->cases);
    AddLimitOptions(command, request->limits);
    command.add_option("-o,--output", request->output, "The file to write; - for standard output (default)")
        ->type_name("FILE");
    command.add_flag("--data", request->data, "Print the numbers of the figure as CSV");
    command.footer(PlotFooter());
    return {&command,
            [request](std::ostream& out, std::ostream& err) { return RunPlot(*request, out, err); }};
}

}  // namespace lumerin
