// SPDX-License-Identifier: MIT
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <ctime>

#include "framework/Clock.h"
#include "framework/Index.h"
#include "framework/headless/Headless.h"

namespace lumerin {

// Message boxes, wait cursor and the services of the platform, from the settings and the sink.

namespace {

headless::Sink& CurrentSink() {
    static headless::Sink silent;
    headless::Sink* sink = headless::State().sink;
    return sink == nullptr ? silent : *sink;
}

// With its trailing separator.
std::string ProgramFolder() {
    std::array<char, 4096> path{};
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    const std::string program(path.data(), length > 0 ? Index(length) : 0);
    return program.substr(0, program.rfind('/') + 1);
}

}  // namespace

namespace backend {

void EnterCall() noexcept {
    headless::State().waitCursorDepth = 0;
}

void LeaveCall() noexcept {}

MessageAnswer ShowMessage(const std::string& text, const std::string& title, MessageIcon icon,
                          MessageButtons buttons) {
    return CurrentSink().OnMessage({text, title, icon, buttons});
}

void BeginWaitCursor() {
    ++headless::State().waitCursorDepth;
}

void EndWaitCursor() {
    int& depth = headless::State().waitCursorDepth;
    if (depth > 0) --depth;
}

int WaitCursorDepth() {
    return headless::State().waitCursorDepth;
}

}  // namespace backend

namespace services {

int ShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) {
    return CurrentSink().OnShellOpen(verb, file, parameters);
}

int StartProgram(const std::string& program, const std::string& document) {
    return CurrentSink().OnShellOpen("open", program, document);
}

// The native program is its own host and contains the module's code. Files beside host or module are looked
// for beside the program; host and module have the file names from which the product cuts the last letters.
std::string HostProgramPath() {
    const std::string& path = headless::State().programPath;
    return path.empty() ? ProgramFolder() + "Tarnsway.exe" : path;
}

std::string ModulePath() {
    const std::string& path = headless::State().modulePath;
    return path.empty() ? ProgramFolder() + "Lumerin.dll" : path;
}

bool ReadViewerNumber(const char* name, int& value) {
    const auto& numbers = headless::State().viewerNumbers;
    const auto found = numbers.find(name);
    if (found == numbers.end()) return false;
    value = found->second;
    return true;
}

bool ReadViewerText(const char* name, unsigned capacity, std::string& value) {
    const auto& texts = headless::State().viewerTexts;
    const auto found = texts.find(name);
    if (found == texts.end() || found->second.size() + 1 > capacity) return false;
    value = found->second;
    return true;
}

LocalTime Now() {
    if (headless::State().clock) return *headless::State().clock;
    LocalTime now;
    if (ReadClockFromEnvironment(now)) return now;
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr) return now;
    now.year = local.tm_year + 1900;
    now.month = local.tm_mon + 1;
    now.day = local.tm_mday;
    now.weekday = local.tm_wday;
    now.hour = local.tm_hour;
    now.minute = local.tm_min;
    now.second = local.tm_sec;
    return now;
}

void TellOutputFailed(const std::string& path) {
    CurrentSink().OnOutputFailed(path);
}

void SetPrinterLandscape(bool landscape) {
    CurrentSink().OnPrinterOrientation(landscape);
}

PlotModuleResult CallPlotModule(const char* module, const char* /*exportName*/, const PlotModuleCall& call,
                                std::string& systemText) {
    return CurrentSink().OnPlotModule(module, call, systemText);
}

bool PathsAreUtf8() {
    return true;
}

bool IsFolderSeparator(char c) {
    return c == '/' || c == '\\';
}

char FolderSeparator() {
    return '/';
}

}  // namespace services

}  // namespace lumerin
