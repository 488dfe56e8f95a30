// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "cli/DriveCommand.h"
#include "cli/EmbedmentCommand.h"
#include "cli/ReportDriver.h"
#include "script/Border.h"
#include "session/Launch.h"

using namespace lumerin;

// The program lumerin: report tables of a project without a screen.

namespace {

struct ReportTexts {
    std::vector<std::string> formats;
    std::string cases, footer;
};

// An option whose text the product shows or passes on.
void AddText(CLI::App& command, const char* name, std::string& text, const char* help) {
    command.add_option(name, text, help)->transform([](const std::string& given) { return FromUser(given); });
}

void AddCommonOptions(CLI::App& command, CommonOptions& options) {
    AddText(command, "--version-text", options.version, "The host's version, for title page and footers");
    command.add_option("--font-size", options.fontSize, "Font size of the text viewer in points")
        ->check(CLI::Range(1, 100));
    command.add_option("--clock", options.clock, "Date and time to print, YYYY-MM-DDTHH:MM:SS");
}

void AddReport(CLI::App& program, ReportRequest& options, ReportTexts& texts) {
    CLI::App& command = *program.add_subcommand("report", "Write tables of one or more projects");
    command.add_option("PROJECT", options.projects, "Input file of a project (.in)")->required();
    command.add_option("--table", options.tables, "A table: " + TableNames() + " (default full)")
        ->allow_extra_args(false);
    command.add_option("--format", texts.formats, "text, pdf or excel (default text)")
        ->allow_extra_args(false);
    command.add_option("--cases", texts.cases, "Consider these cases alone, such as 1,3,5-9");
    command.add_option("--footer", texts.footer,
                       "none, or a list of date,time,version,filename (default all)");
    command.add_flag("--open", options.open, "Open each file that was written");
    AddCommonOptions(command, options.common);
    command.footer(
        "Prints the path of each file that was written. Exit status: 0 done, 1 a table does not apply, has\n"
        "nothing to show or could not be written whole, or a project was loaded with a message, 2 wrong\n"
        "usage, 3 a project could not be loaded or its force file changed during the run (the others are\n"
        "done all the same).");
}

void AddDrive(CLI::App& program, DriveOptions& options, std::string& format) {
    CLI::App& command = *program.add_subcommand("drive", "Play a script on the dialogs of a project");
    command.add_option("PROJECT", options.project, "Input file of a project (.in)")->required();
    command.add_option("SCRIPT", options.script, "File of actions, one a line; - for standard input")
        ->required();
    command.add_option("--format", format,
                       "Format that the dialog starts on: text, pdf, excel or a number (default text)");
    command.add_flag("!--without-plot-module", options.hasPlotModule,
                     "Behave as on a machine without the plot module");
    AddText(command, "--text-a", options.textA, "The fourth argument of the export; nothing shows it");
    AddText(command, "--text-b", options.textB, "The fifth argument; nothing shows it");
    AddText(command, "--plot-argument", options.plotArgument, "The sixth argument, for the plot module");
    AddCommonOptions(command, options.common);
    command.footer(
        "Actions: click ID, text ID TEXT, focus ID, select ID N, spin ID up|down, cell ROW COL TEXT,\n"
        "mouse WHAT PLACE, hover ROW COL, graph-click X, answer yes|no, key NAME, key F1 ID, type TEXT,\n"
        "where, dump, shot FILE (a picture, in the host with a screen only), again [FILE.in]; # begins a\n"
        "comment. Keys: Esc, Return, Tab, Backspace, Delete, Insert, Up, Down, Left, Right, Home, End,\n"
        "PageUp, PageDown, with Ctrl+ and Shift+ before them, Ctrl+A, Ctrl+C, Ctrl+V, Ctrl+X. Keys and\n"
        "texts go to the control that has the focus; where prints it. The mouse can move, press, release,\n"
        "click, double, right (click), wheel N and scroll PART on the grid: mouse click Shift 3 1.\n\n"
        "Prints what happens as JSON, one object a line. Exit status: 0 done, 2 wrong usage or a line that "
        "is\n"
        "no action, 3 the project could not be loaded (the script is played all the same).");
}

void AddEmbedment(CLI::App& program, EmbedmentOptions& options, std::string& envelope) {
    CLI::App& command = *program.add_subcommand("embedment", "Show the embedment study of a project");
    command.add_option("PROJECT", options.project, "Input file of a project (.in)")->required();
    CLI::Option* loadCase =
        command.add_option("--case", options.loadCase, "Number of the load case (default 1)");
    command.add_option("--envelope", envelope, "max or min over all cases in place of one case")
        ->excludes(loadCase);
    command
        .add_option("--quantity", options.quantity,
                    "0 lateral displacement (default), 1 along x, 2 along y, 3 greatest, 4 least axial force")
        ->check(CLI::Range(0, 4));
    command.add_option("--svg", options.picture, "Write the curve to this file");
    command.add_flag("--excel", options.workbook, "Write the table as a workbook beside the project");
    AddCommonOptions(command, options.common);
    command.footer(
        "Prints the table and the path of each file that was written. Exit status: 0 done, 1 the project "
        "has\n"
        "no study or a part of it could not be read or written, 2 wrong usage or no such case, 3 the "
        "project\n"
        "could not be loaded.");
}

void FinishReport(ReportRequest& options, const ReportTexts& texts) {
    for (const std::string& format : texts.formats) options.formats.push_back(ReadFormat(format));
    if (options.formats.empty()) options.formats.push_back(ReadFormat("text"));
    if (options.tables.empty()) options.tables.emplace_back("full");
    for (const std::string& table : options.tables) {
        if (TableButton(table) == 0) {
            throw std::invalid_argument("\"" + table + "\" is no table (" + TableNames() + ")");
        }
    }
    if (!texts.cases.empty()) options.cases = ReadCases(texts.cases);
    if (!texts.footer.empty()) options.footer = ReadFooter(texts.footer);
    ApplyOptions(options.common);
}

int Run(int argc, char** argv) {
    CLI::App program("Report tables of bridge substructure results");
    program.set_version_flag("--version", "lumerin " LUMERIN_VERSION);
    program.require_subcommand(1);
    ReportRequest report;
    ReportTexts texts;
    DriveOptions drive;
    std::string driveFormat = "text";
    AddReport(program, report, texts);
    AddDrive(program, drive, driveFormat);
    EmbedmentOptions embedment;
    std::string envelope;
    AddEmbedment(program, embedment, envelope);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::ostringstream out, err;
        const int status = program.exit(error, out, err);
        std::cout << ForUser(out.str()) << std::flush;
        std::cerr << ForUser(err.str());
        return status == 0 ? kExitDone : kExitUsage;
    }
    if (program.got_subcommand("report")) {
        FinishReport(report, texts);
        return RunReports(report, std::cout, std::cerr);
    }
    if (program.got_subcommand("embedment")) {
        if (!envelope.empty()) embedment.envelope = ReadEnvelope(envelope);
        ApplyOptions(embedment.common);
        return RunEmbedment(embedment, std::cout, std::cerr);
    }
    drive.format = ReadStartFormat(driveFormat);
    ApplyOptions(drive.common);
    return RunDrive(drive, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        PrintLine(std::cerr, std::string("lumerin: ") + error.what());
        return kExitUsage;
    }
}
