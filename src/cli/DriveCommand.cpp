// SPDX-License-Identifier: MIT
#include "cli/DriveCommand.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include "cli/CommonArguments.h"
#include "cli/ScriptDriver.h"
#include "framework/NativePath.h"
#include "records/OpenProject.h"
#include "script/Border.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"

namespace lumerin {

namespace {

bool ReadScript(const std::string& path, std::string& script) {
    if (path == "-") {
        script.assign(std::istreambuf_iterator<char>(std::cin), {});
        return true;
    }
    std::ifstream file(NativePath(path), std::ios::binary);
    if (!file) return false;
    script.assign(std::istreambuf_iterator<char>(file), {});
    return !file.bad();
}

// Another file in the folder of `path`.
std::string Beside(const std::string& path, const std::string& name) {
    const std::size_t separator = path.find_last_of("/\\");
    return path.substr(0, separator == std::string::npos ? 0 : separator + 1) + name;
}

}  // namespace

ExitStatus RunDrive(const DriveOptions& options, std::ostream& out, std::ostream& err) {
    std::string script;
    if (!ReadScript(options.script, script)) {
        PrintLine(err, "lumerin: the script " + options.script + " could not be read");
        return kExitUsage;
    }
    if (script.starts_with(kMarkOfUtf8)) script.erase(0, kMarkOfUtf8.size());
    return DriveScript(options, script, out, err);
}

ExitStatus DriveScript(const DriveOptions& options, const std::string& script, std::ostream& out,
                       std::ostream& err) {
    std::vector<ScriptAction> actions;
    try {
        actions = ParseScript(script);
    } catch (const ScriptError& error) {
        PrintLine(err, std::string("lumerin: ") + error.what());
        return kExitUsage;
    }
    ScriptDriver driver(std::move(actions), out);
    driver.SetHasPlotModule(options.hasPlotModule);
    bool loaded = false;
    headless::SetSink(&driver);
    headless::SetModalDriver([&](headless::HeadlessDialog& dialog) {
        if (const auto* report = dynamic_cast<CDesignerDlg*>(&dialog.Dialog())) {
            loaded = report->IsProjectLoaded();
        }
        driver.Drive(dialog);
    });
    std::string project = options.project;
    bool allLoaded = true;
    for (bool more = true; more;) {
        loaded = false;
        const unsigned result =
            LaunchLumerin(options.format, project.c_str(), options.common.version.c_str(),
                          options.textA.c_str(), options.textB.c_str(), options.plotArgument.c_str());
        JsonLines(out).Result(result);
        // Without a project only the dialog is driven; that is not a failure.
        allLoaded = allLoaded && (loaded || project.empty());
        const ScriptAction* again = driver.TakeAgain();
        more = again != nullptr;
        if (more && !again->text.empty()) project = Beside(project, again->text);
    }
    headless::SetModalDriver(nullptr);
    headless::SetSink(nullptr);
    out.flush();
    if (const ScriptAction* left = driver.FirstLeftOver()) {
        PrintLine(err, "lumerin: script line " + std::to_string(left->line) + ": the last dialog is closed");
    }
    for (const std::string& path : driver.FailedOutputs()) {
        PrintLine(err, "lumerin: " + path + " could not be written whole");
    }
    if (!allLoaded) return kExitNotLoaded;
    return driver.FailedOutputs().empty() && !driver.HasRefused() ? kExitDone : kExitIncomplete;
}

namespace {

constexpr const char* kDriveFooter =
    "Examples:\n"
    "  lumerin drive bridge.in press.script\n"
    "  echo click 1004 | lumerin drive bridge.in - --format pdf\n"
    "\n"
    "Actions, one a line; # begins a comment:\n"
    "  click ID, text ID TEXT, focus ID, select ID N, spin ID up|down,\n"
    "  cell ROW COL TEXT, mouse WHAT PLACE, hover ROW COL, graph-click X,\n"
    "  answer yes|no, key NAME, key F1 ID, type TEXT, where, dump,\n"
    "  shot FILE (a picture, in the host with a screen only),\n"
    "  again [FILE.in]\n"
    "\n"
    "Keys: Esc, Return, Tab, Backspace, Delete, Insert, Up, Down, Left, Right, Home, End, PageUp, PageDown, "
    "with Ctrl+ and Shift+ before them, Ctrl+A, Ctrl+C, Ctrl+V, Ctrl+X. Keys and texts go to the control "
    "that "
    "has the focus; where prints it. The mouse can move, press, release, click, double, right (click), "
    "wheel N and scroll PART on the grid: mouse click Shift 3 1.\n"
    "\n"
    "Prints what happens as JSON, one object a line; {\"refused\":...} is an action that a user could not "
    "have "
    "done.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  an action was refused, or a file could not be written whole\n"
    "  2  wrong usage, or a line that is no action\n"
    "  3  the project could not be loaded (the script is played all the same)";

}  // namespace

ProgramCommand AddDriveCommand(CommandParser& program) {
    struct Arguments {
        DriveOptions options;
        std::string format = "text";
    };
    const auto arguments = std::make_shared<Arguments>();
    DriveOptions& options = arguments->options;
    CommandParser command = program.AddCommand("drive", "Play a script on the dialogs of a project");
    command.Add("PROJECT", options.project, "Input file of a project (.in)").Required();
    command.Add("SCRIPT", options.script, "File of actions, one a line; - for standard input").Required();
    command.Add("--format", arguments->format,
                "Format that the dialog starts on: text, pdf, excel or a number (default text)");
    command.AddFlag("!--without-plot-module", options.hasPlotModule,
                    "Behave as on a machine without the plot module");
    AddText(command, "--text-a", options.textA, "The fourth argument of the export; nothing shows it");
    AddText(command, "--text-b", options.textB, "The fifth argument; nothing shows it");
    AddText(command, "--plot-argument", options.plotArgument, "The sixth argument, for the plot module");
    AddCommonOptions(command, options.common);
    command.SetFooter(kDriveFooter);
    return {command, [arguments](std::ostream& out, std::ostream& err) {
                arguments->options.format = ReadStartFormat(arguments->format);
                std::string& project = arguments->options.project;
                if (!project.empty()) project = ProjectName(project).inputFile;
                ApplyOptions(arguments->options.common);
                return RunDrive(arguments->options, out, err);
            }};
}

}  // namespace lumerin
