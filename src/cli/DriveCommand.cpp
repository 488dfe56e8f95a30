// SPDX-License-Identifier: MIT
#include "cli/DriveCommand.h"

#include <fstream>
#include <iostream>
#include <iterator>

#include "cli/ScriptDriver.h"
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
    std::ifstream file(path, std::ios::binary);
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
    return driver.FailedOutputs().empty() ? kExitDone : kExitIncomplete;
}

}  // namespace lumerin
