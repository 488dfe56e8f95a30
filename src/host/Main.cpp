// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "host/HostWindows.h"
#include "host/Resources.h"
#include "host/Token.h"
#include "host/WindowDriver.h"
#include "script/CommandParser.h"
#include "text/Paths.h"
#include "text/Product.h"
#include "text/Utf8.h"

using namespace lumerin;

// Replaces the host program in tests: it loads the module beside it, calls the export, and can play a script
// on the module's real windows. It has the host's name, which the module cuts off its path.

namespace {

constexpr const char* kViewerKey = "SOFTWARE\\Microsoft\\Notepad";
constexpr UINT kTickMilliseconds = 10;
enum HostExit { kDone = 0, kRefused = 1, kUsage = 2, kBroken = 3 };

struct HostOptions {
    std::string project, script, version, clock;
    std::string textA, textB, plotArgument;  // arguments 4 to 6 of the export
    std::string format = "text";
    int fontSize = 0;
    int rounds = 0;
    bool waits = false;
    bool leaks = false;
};

using ModuleExport = unsigned(WINAPI*)(int, const char*, const char*, const char*, const char*, const char*);

std::string FullPath(const std::string& path) {
    std::array<char, MAX_PATH> full{};
    if (path.empty()) return path;
    const DWORD length =
        GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return length > 0 && length < full.size() ? std::string(full.data(), length) : path;
}

// When the dialogs are driven, the module answers this process.
ModuleExport LoadModule(bool drives) {
    std::array<char, MAX_PATH> program{};
    GetModuleFileNameA(nullptr, program.data(), static_cast<DWORD>(program.size()));
    const std::string path = FolderOf(program.data()) + "Lumerin.dll";
    if (drives) token::Publish();
    const HMODULE module = LoadLibraryA(path.c_str());
    token::Withdraw();
    if (module == nullptr) throw std::runtime_error(path + " could not be loaded");
    const FARPROC address = GetProcAddress(module, "LaunchLumerin");
    if (address == nullptr) throw std::runtime_error(path + " has no export LaunchLumerin");
    return reinterpret_cast<ModuleExport>(reinterpret_cast<void*>(address));
}

int FormatNumber(const std::string& format) {
    if (format == "text") return 2;
    if (format == "pdf") return 1;
    if (format == "excel") return 0;
    return std::stoi(format);  // any number, as a host might pass it
}

unsigned Call(ModuleExport launch, const HostOptions& options, const std::string& project) {
    return launch(FormatNumber(options.format), project.c_str(), options.version.c_str(),
                  options.textA.c_str(), options.textB.c_str(), options.plotArgument.c_str());
}

// The text viewer's font size in the registry, set for the run and restored after it.
class ViewerFont {
  public:
    explicit ViewerFont(int points) : m_set(points > 0) {
        if (!m_set) return;
        const auto tenths = static_cast<DWORD>(points) * 10;
        RegSetKeyValueA(HKEY_CURRENT_USER, kViewerKey, "iPointSize", REG_DWORD, &tenths, sizeof tenths);
    }
    ViewerFont(const ViewerFont&) = delete;
    ViewerFont& operator=(const ViewerFont&) = delete;
    ~ViewerFont() {
        if (m_set) RegDeleteKeyValueA(HKEY_CURRENT_USER, kViewerKey, "iPointSize");
    }

  private:
    bool m_set;
};

std::unique_ptr<WindowDriver>& Driver() {
    static std::unique_ptr<WindowDriver> driver;
    return driver;
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    try {
        Driver()->Tick();
    } catch (const std::exception& error) {
        // No exception may pass through the platform's stack frames.
        std::cerr << "Tarnsway: " << error.what() << std::endl;
        ExitProcess(kBroken);
    }
}

std::string ReadScript(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("the script " + path + " could not be read");
    return std::string(std::istreambuf_iterator<char>(file), {});
}

struct Played {
    int leftOver = 0;      // the first line of the script for which no dialog was open; 0: all were played
    bool refused = false;  // an action was refused
};

Played PlayScript(const HostOptions& options, ModuleExport launch, std::ostream& out) {
    Driver() = std::make_unique<WindowDriver>(ParseScript(ReadScript(options.script)), out);
    if (options.waits) Driver()->ReportWaits();
    // The mouse of the machine stays out of the dialogs.
    SetCursorPos(0, 0);
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMilliseconds, OnTimer);
    std::string project = FullPath(options.project);
    for (bool more = true; more;) {
        Driver()->BeginCall();
        const unsigned result = Call(launch, options, project);
        Driver()->EndCall(result);
        const ScriptAction* again = Driver()->TakeAgain();
        more = again != nullptr;
        // Names of files are in the code page here, and UTF-8 in a script.
        if (more && !again->text.empty()) project = FolderOf(project) + ToWestern(again->text);
    }
    KillTimer(nullptr, timer);
    const ScriptAction* left = Driver()->FirstLeftOver();
    const Played played{left == nullptr ? 0 : left->line, Driver()->HasRefused()};
    Driver().reset();
    return played;
}

HostExit Drive(const HostOptions& options, ModuleExport launch) {
    const Played played = PlayScript(options, launch, std::cout);
    if (played.leftOver != 0)
        std::cerr << "Tarnsway: script line " << played.leftOver << ": the last dialog is closed"
                  << std::endl;
    std::cout.flush();
    return played.refused ? kRefused : kDone;
}

// The first line in which two rounds differ, as each has it.
std::string Difference(const std::string& first, const std::string& round) {
    std::istringstream firstLines(first), roundLines(round);
    std::string wanted, got;
    do {
        wanted = got = "nothing";
        std::getline(firstLines, wanted);
        std::getline(roundLines, got);
    } while (wanted == got && (firstLines || roundLines));
    return got + " in the place of " + wanted;
}

// Plays the script many times in one process and reports after each round what the process holds. The output
// of the dialogs must be the same in every round; otherwise an action was not played.
HostExit DriveRounds(const HostOptions& options, ModuleExport launch) {
    std::string first;
    bool refused = false;
    for (int round = 1; round <= options.rounds; ++round) {
        {
            std::ostringstream lines;
            const Played played = PlayScript(options, launch, lines);
            refused = refused || played.refused;
            if (played.leftOver != 0) {
                std::cerr << "Tarnsway: round " << round << ", script line " << played.leftOver
                          << ": the last dialog is closed" << std::endl;
                return kBroken;
            }
            if (round == 1) std::cout << (first = lines.str());
            if (lines.str() != first) {
                std::cerr << "Tarnsway: round " << round << ": " << Difference(first, lines.str())
                          << std::endl;
                return kBroken;
            }
        }
        if (options.leaks) LeakOneOfEach();
        PrintRound(std::cout, round, CountResources());
    }
    return refused ? kRefused : kDone;
}

HostExit Run(const HostOptions& options) {
    if (!options.clock.empty()) _putenv_s(kClockVariable, options.clock.c_str());
    const ViewerFont font(options.fontSize);
    const ModuleExport launch = LoadModule(!options.script.empty());
    if (!options.script.empty() && options.rounds > 0) return DriveRounds(options, launch);
    if (!options.script.empty()) return Drive(options, launch);
    const std::string project = FullPath(options.project);
    const unsigned result = Call(launch, options, project);
    JsonLines(std::cout).Result(result);
    std::cout.flush();
    return kDone;
}

// The exit status.
int RunCommandLine(int argc, char** argv) {
    HostOptions options;
    ProgramParser program("", "Stand-in for the host program of Lumerin.dll");
    program.Add("PROJECT", options.project, "Input file of a project (.in), or \"\" for none").Required();
    const CommandOption script =
        program.Add("SCRIPT", options.script, "File of actions for the dialogs, one a line");
    program.Add("--format", options.format, "Format to start on: text, pdf, excel, or a number");
    program.Add("--version-text", options.version, "The host's version");
    program.Add("--text-a", options.textA, "The fourth argument of the export; nothing shows it");
    program.Add("--text-b", options.textB, "The fifth argument; nothing shows it");
    program.Add("--plot-argument", options.plotArgument, "The sixth argument, for the plot module");
    program.AddFlag("--waits", options.waits,
                    "Report the time to each dialog and the longest wait after each action");
    program
        .Add("--rounds", options.rounds,
             "Play the script this many times and report what the process holds after each")
        .Positive()
        .Needs(script);
    program.AddFlag("--leak", options.leaks, "Leak one of each with every round, to try the counts");
    program.Add("--font-size", options.fontSize, "Font size of the text viewer in points");
    program.Add("--clock", options.clock, "Date and time to print, YYYY-MM-DDTHH:MM:SS");
    const ParseResult result = program.Parse(argc, argv);
    switch (result.outcome) {
        case ParseOutcome::parsed:
            return Run(options);
        case ParseOutcome::help:
        case ParseOutcome::text:
            std::cout << result.text;
            return kDone;
        case ParseOutcome::extra:
        case ParseOutcome::wrong:
            break;
    }
    std::cerr << result.text;
    return kUsage;
}

}  // namespace

int main(int argc, char** argv) {
    // Line feeds only, as on every platform.
    _setmode(_fileno(stdout), _O_BINARY);
    try {
        return RunCommandLine(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "Tarnsway: " << error.what() << std::endl;
        return kUsage;
    }
}
