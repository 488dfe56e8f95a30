// SPDX-License-Identifier: MIT
#include "cli/ReportCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <stdexcept>

#include "cli/CommonArguments.h"
#include "cli/ReportDriver.h"

namespace lumerin {

namespace {

struct ReportArguments {
    ReportRequest request;
    std::vector<std::string> formats;
    std::string cases, footer;
};

constexpr const char* kReportFooter =
    "Prints the path of each file that was written. Exit status: 0 done, 1 a table does not apply, has\n"
    "nothing to show or could not be written whole, or a project was loaded with a message, 2 wrong\n"
    "usage, 3 a project could not be loaded or its force file changed during the run (the others are\n"
    "done all the same).";

ExitStatus RunReport(ReportArguments& arguments, std::ostream& out, std::ostream& err) {
    ReportRequest& request = arguments.request;
    for (const std::string& format : arguments.formats) request.formats.push_back(ReadFormat(format));
    if (request.formats.empty()) request.formats.push_back(ReadFormat("text"));
    if (request.tables.empty()) request.tables.emplace_back("full");
    for (const std::string& table : request.tables) {
        if (TableButton(table) == 0) {
            throw std::invalid_argument("\"" + table + "\" is no table (" + TableNames() + ")");
        }
    }
    if (!arguments.cases.empty()) request.cases = ReadCases(arguments.cases);
    if (!arguments.footer.empty()) request.footer = ReadFooter(arguments.footer);
    ApplyOptions(request.common);
    return RunReports(request, out, err);
}

}  // namespace

ProgramCommand AddReportCommand(CLI::App& program) {
    const auto arguments = std::make_shared<ReportArguments>();
    CLI::App& command = *program.add_subcommand("report", "Write tables of one or more projects");
    command.add_option("PROJECT", arguments->request.projects, "Input file of a project (.in)")->required();
    command.add_option("--table", arguments->request.tables, "A table: " + TableNames() + " (default full)")
        ->allow_extra_args(false);
    command.add_option("--format", arguments->formats, "text, pdf or excel (default text)")
        ->allow_extra_args(false);
    command.add_option("--cases", arguments->cases, "Consider these cases alone, such as 1,3,5-9");
    command.add_option("--footer", arguments->footer,
                       "none, or a list of date,time,version,filename (default all)");
    command.add_flag("--open", arguments->request.open, "Open each file that was written");
    AddCommonOptions(command, arguments->request.common);
    command.footer(kReportFooter);
    return {&command,
            [arguments](std::ostream& out, std::ostream& err) { return RunReport(*arguments, out, err); }};
}

}  // namespace lumerin
