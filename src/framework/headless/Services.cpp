// SPDX-License-Identifier: MIT
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>

#include "framework/Clock.h"
#include "framework/Platform.h"
#include "framework/headless/Headless.h"

namespace lumerin {

// Message boxes, wait cursor and the services of the platform, from the settings and the sink.

namespace {

// False: there is no such value.
template <class Value>
bool ReadUserValue(const std::map<std::string, std::map<std::string, Value>>& settings, const char* key,
                   const char* name, Value& value) {
    const auto values = settings.find(key);
    if (values == settings.end()) return false;
    const auto found = values->second.find(name);
    if (found == values->second.end()) return false;
    value = found->second;
    return true;
}

}  // namespace

namespace backend {

void EnterCall() noexcept {
    headless::State().waitCursorDepth = 0;
}

void LeaveCall() noexcept {}

MessageAnswer ShowMessage(const std::string& text, const std::string& title, MessageIcon icon,
                          MessageButtons buttons) {
    return headless::CurrentSink().OnMessage({text, title, icon, buttons});
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
    return headless::CurrentSink().OnShellOpen(verb, file, parameters);
}

int StartProgram(const std::string& program, const std::string& document) {
    return headless::CurrentSink().OnShellOpen("open", program, document);
}

std::string ProgramPath() {
    const std::string& path = headless::State().programPath;
    return path.empty() ? platform::RunningProgram() : path;
}

std::string ModulePath() {
    const std::string& path = headless::State().modulePath;
    return path.empty() ? platform::RunningProgram() : path;
}

bool ReadUserNumber(const char* key, const char* name, int& value) {
    return ReadUserValue(headless::State().userNumbers, key, name, value);
}

bool ReadUserText(const char* key, const char* name, unsigned capacity, std::string& value) {
    std::string text;
    if (!ReadUserValue(headless::State().userTexts, key, name, text) || text.size() + 1 > capacity)
        return false;
    value = std::move(text);
    return true;
}

LocalTime Now(const char* fixedTimeVariable) {
    if (headless::State().clock) return *headless::State().clock;
    LocalTime fixed;
    return ReadClockFromEnvironment(fixedTimeVariable, fixed) ? fixed : platform::LocalNow();
}

void ReportOutputFailed(const std::string& path) {
    headless::CurrentSink().OnOutputFailed(path);
}

void SetPrinterLandscape(bool landscape) {
    headless::CurrentSink().OnPrinterOrientation(landscape);
}

bool PathsAreUtf8() {
    return true;
}

// A path that was written on the other platform is understood as well. "C:name" is in the current folder of a
// drive.
bool IsFolderSeparator(char c) {
    return c == '/' || c == '\\' || (c == ':' && FolderSeparator() == '\\');
}

char FolderSeparator() {
    return static_cast<char>(std::filesystem::path::preferred_separator);
}

}  // namespace services

}  // namespace lumerin
