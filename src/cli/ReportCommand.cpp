// SPDX-License-Identifier: MIT
#include "cli/ReportCommand.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "cli/CommonArguments.h"
#include "cli/EvaluationArguments.h"
#include "cli/ProjectArguments.h"
#include "cli/ReportDriver.h"
#include "cli/RunStamps.h"
#include "cli/Suggest.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

struct ReportArguments {
    ReportRequest request;
    ProjectArguments projects;
    std::vector<std::string> tables, formats;
    std::string footer;
    bool resume = false;
};

constexpr const char* kReportFooter =
    "Examples:\n"
    "  lumerin report bridge.in\n"
    "  lumerin report bridge --table axial,pile-dc --format pdf -o reports\n"
    "  lumerin report pier --table cap-moment --class strength -o - | more\n"
    "  lumerin report bridge --format html --limit 0.95\n"
    "  lumerin report --files-from projects.txt --name \"{project}-{table}\" --json\n"
    "\n"
    "Prints the path of each file that was written; messages and findings go to standard error. No status "
    "keeps the other formats and projects from being done. Of several statuses the first of 2, 3, 4, 1, 0 is "
    "that of the program.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  a table does not apply, has nothing to show or could not be written\n"
    "     whole, or a project was loaded with a message\n"
    "  2  wrong usage\n"
    "  3  a project could not be loaded, or its force file changed meanwhile\n"
    "  4  the data of a project have errors (its files are written all the\n"
    "     same, unless --strict is given)";

// The options that say where documents go.
void AddOutputOptions(CommandParser& command, ReportRequest& request) {
    command
        .Add("-o,--output", request.output.folder,
             "Write the files to this folder, which is made if it is missing; - writes one document "
             "to standard output")
        .Takes("DIR");
    command
        .Add("--name", request.output.name,
             "Name the files after this pattern of {project} and {table}; the extension is added")
        .Takes("PATTERN");
    command.AddFlag("--json", request.json,
                    "Print one record a project: status, files, findings, messages, milliseconds");
    command.AddFlag("--open", request.open, "Open each file that was written");
}

std::vector<std::string> PartsOf(const std::vector<std::string>& lists) {
    std::vector<std::string> parts;
    for (const std::string& list : lists) {
        for (const std::string_view part : SplitList(list)) parts.emplace_back(part);
    }
    return parts;
}

template <class Value>
void AddOnce(std::vector<Value>& values, Value value) {
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(std::move(value));
}

void RequireFormat(const std::string& word) {
    const std::vector<std::string> formats = ReportFormats();
    if (std::find(formats.begin(), formats.end(), LowerCase(word)) != formats.end()) return;
    throw std::invalid_argument(UnknownWord(word, "format", formats));
}

// Documents beside their projects would be in as many folders, so the stamps have theirs in that of -o.
void Resume(const CommandParser& command, ReportRequest& request) {
    if (request.output.folder.empty() || request.output.ToStandardOutput()) {
        throw std::invalid_argument("--resume needs -o DIR");
    }
    request.stamps = request.output.folder + "/lumerin-report.stamps";
    request.resumeOptions = GivenOptions(command);
}

ExitStatus RunReport(const CommandParser& command, ReportArguments& arguments, std::ostream& out,
                     std::ostream& err) {
    ReportRequest& request = arguments.request;
    for (const std::string& word : PartsOf(arguments.formats)) {
        if (const OwnDocument* document = FindOwnDocument(LowerCase(word))) {
            AddOnce(request.documents, document);
        } else {
            RequireFormat(word);
            AddOnce(request.formats, ReadFormat(word));
        }
    }
    const bool ownAlone = !request.documents.empty() && request.formats.empty();
    if (ownAlone && !arguments.tables.empty()) {
        throw std::invalid_argument("the document of --format " +
                                    std::string(request.documents.front()->format) +
                                    " has all tables; for some of them use: lumerin export --table");
    }
    for (const std::string& word : PartsOf(arguments.tables)) {
        AddOnce(request.tables, std::string(ReadTable(word).name));
    }
    if (request.formats.empty() && !ownAlone) request.formats.push_back(ReadFormat("text"));
    if (request.tables.empty()) request.tables.emplace_back("full");
    if (!arguments.footer.empty()) request.footer = ReadFooter(arguments.footer);
    if (request.json && request.output.ToStandardOutput()) {
        throw std::invalid_argument("--json and -o - both write to standard output");
    }
    if (arguments.resume) Resume(command, request);
    for (const ProjectName& project : ReadProjects(arguments.projects)) {
        request.projects.push_back(project.inputFile);
    }
    ApplyOptions(request.common);
    return RunReports(request, out, err);
}

}  // namespace

ProgramCommand AddReportCommand(CommandParser& program) {
    const auto arguments = std::make_shared<ReportArguments>();
    ReportRequest& request = arguments->request;
    CommandParser command = program.AddCommand("report", "Write tables of one or more projects");
    AddProjectArguments(command, arguments->projects);
    command
        .Add("--table", arguments->tables,
             "Tables, separated by commas or with the option repeated: " + TableNames() + " (default full)")
        .OneValueEach()
        .Takes("LIST");
    command
        .Add("--format", arguments->formats,
             "Formats, likewise: text, pdf, excel, and with all tables in one file xlsx, html (default text)")
        .OneValueEach()
        .Takes("LIST");
    AddCaseOptions(command, request.cases);
    AddLimitOptions(command, request.limits);
    command.Add("--footer", arguments->footer, "none, or a list of date,time,version,filename (default all)")
        .Takes("LIST");
    AddOutputOptions(command, request);
    AddResumeOption(command, arguments->resume, "-o DIR");
    command.AddFlag("--findings", request.findings,
                    "Look for faults in the forces, although no table needs them");
    command.AddFlag("--strict", request.strict, "Write nothing for a project whose data have errors");
    AddCommonOptions(command, request.common);
    command.SetFooter(kReportFooter);
    return {command, [arguments, command](std::ostream& out, std::ostream& err) {
                return RunReport(command, *arguments, out, err);
            }};
}

}  // namespace lumerin
