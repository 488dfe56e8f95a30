// SPDX-License-Identifier: MIT
#include "cli/InfoCommand.h"

#include <memory>
#include <stdexcept>

#include "cli/InfoReport.h"
#include "cli/ProjectArguments.h"
#include "cli/Suggest.h"
#include "script/Border.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

ProjectInfo Inspect(const InfoRequest& request, const ProjectName& project) {
    ProjectInfo info{project, kExitDone, {}, {}, {}, {}, {}, 0, 0, {}, {}, {}, false, 0, false, {}, {}};
    try {
        const std::unique_ptr<OpenProject> opened = LoadByName(project);
        TableNeeds needs;
        needs.soundness = request.findings;
        const Evaluation evaluation(*opened, {}, {}, needs);
        Describe(evaluation, request.listCases, info);
        if (HasError(info.findings)) info.status = kExitUnsound;
    } catch (const std::invalid_argument& fault) {
        info.fault = fault.what();
        info.status = kExitUsage;
    } catch (const std::exception& fault) {
        info.fault = ForUser(fault.what());
        info.status = kExitNotLoaded;
    }
    return info;
}

void ReadInfoFormat(const std::string& text, InfoRequest& request) {
    const std::string format = LowerCase(text);
    if (format != "text" && format != "json") {
        throw std::invalid_argument(UnknownWord(text, "format", {"text", "json"}));
    }
    request.json = format == "json";
}

constexpr const char* kInfoFooter =
    "Reads no forces unless --findings asks for it, so it is quick whatever the size of a project.\n\n"
    "Examples:\n"
    "  lumerin info bridge.in\n"
    "  lumerin info --cases bridge\n"
    "  lumerin info --findings --format json bridge\n\n"
    "Exit status: 0 done, 2 wrong usage, 3 not loaded, 4 the data are not sound. Of several projects: the\n"
    "first of 2, 3, 4, 0 that occurred.";

struct InfoArguments {
    ProjectArguments projects;
    InfoRequest request;
};

}  // namespace

ExitStatus RunInfo(const InfoRequest& request, std::ostream& out, std::ostream& err) {
    BatchSummary summary("done", "incomplete");
    bool first = true;
    for (const ProjectName& project : request.projects) {
        const ProjectInfo info = Inspect(request, project);
        summary.Add(info.status);
        if (request.json) {
            PrintInfoJson(info, out);
        } else {
            if (!first) out << '\n';
            PrintInfo(info, out);
        }
        first = false;
    }
    out.flush();
    summary.Print(err);
    return summary.Worst();
}

ProgramCommand AddInfoCommand(CommandParser& program) {
    const auto arguments = std::make_shared<InfoArguments>();
    CommandParser command = program.AddCommand("info", "Describe projects: members, cases, tables, findings");
    AddProjectArguments(command, arguments->projects);
    InfoRequest& request = arguments->request;
    command.AddFlag("--cases", request.listCases, "List the cases with titles and limit states");
    command.AddFlag("--findings", request.findings, "Read the forces too, for what is wrong with them");
    command
        .OnText(
            "--format", [arguments](const std::string& text) { ReadInfoFormat(text, arguments->request); },
            "text or json (default text)")
        .Takes("FORMAT");
    command.SetFooter(kInfoFooter);
    return {command, [arguments](std::ostream& out, std::ostream& err) {
                arguments->request.projects = ReadProjects(arguments->projects);
                return RunInfo(arguments->request, out, err);
            }};
}

}  // namespace lumerin
