// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <shellapi.h>

#include <array>
#include <cstring>

#include "framework/Clock.h"
#include "framework/win32/InstalledFiles.h"

namespace lumerin {

// Services of the platform other than windows: the shell, paths, the text viewer's settings, the clock.

namespace {

constexpr int kProgramMissing = 2;  // the shell's code
constexpr const char* kViewerKey = "SOFTWARE\\Microsoft\\Notepad";

// The text viewer's settings of the current user. The product only reads them.
class ViewerKey {
  public:
    ViewerKey() { RegOpenKeyExA(HKEY_CURRENT_USER, kViewerKey, 0, KEY_READ, &m_key); }
    ViewerKey(const ViewerKey&) = delete;
    ViewerKey& operator=(const ViewerKey&) = delete;
    ~ViewerKey() {
        if (m_key != nullptr) RegCloseKey(m_key);
    }
    // False: there is no such value, or it has more bytes than `size`.
    bool Read(const char* name, void* buffer, DWORD size) const {
        return m_key != nullptr && RegQueryValueExA(m_key, name, nullptr, nullptr, static_cast<BYTE*>(buffer),
                                                    &size) == ERROR_SUCCESS;
    }

  private:
    HKEY m_key = nullptr;
};

std::string PathOf(HMODULE module) {
    std::array<char, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameA(module, path.data(), static_cast<DWORD>(path.size()));
    return std::string(path.data(), strnlen(path.data(), length));
}

const char* OrNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

namespace services {

int ShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) {
    const HINSTANCE code =
        ShellExecuteA(nullptr, OrNull(verb), file.c_str(), OrNull(parameters), nullptr, SW_SHOWNORMAL);
    return static_cast<int>(reinterpret_cast<INT_PTR>(code));
}

int StartProgram(const std::string& program, const std::string& document) {
    const std::string path = win32::FindRegisteredProgram(program + ".exe");
    return path.empty() ? kProgramMissing : ShellOpen("open", path, document);
}

std::string HostProgramPath() {
    return PathOf(nullptr);
}

std::string ModulePath() {
    return PathOf(win32::ModuleInstance());
}

bool ReadViewerNumber(const char* name, int& value) {
    DWORD number = 0;
    if (!ViewerKey().Read(name, &number, sizeof number)) return false;
    value = static_cast<int>(number);
    return true;
}

bool ReadViewerText(const char* name, unsigned capacity, std::string& value) {
    std::array<char, 260> text{};
    if (capacity >= text.size() || !ViewerKey().Read(name, text.data(), capacity)) return false;
    value = text.data();
    return true;
}

// The module shows no message here; engineers do not expect one.
void TellOutputFailed(const std::string& /*path*/) {}

LocalTime Now() {
    LocalTime now;
    if (ReadClockFromEnvironment(now)) return now;
    SYSTEMTIME time{};
    GetLocalTime(&time);
    now.year = time.wYear;
    now.month = time.wMonth;
    now.day = time.wDay;
    now.weekday = time.wDayOfWeek;
    now.hour = time.wHour;
    now.minute = time.wMinute;
    now.second = time.wSecond;
    return now;
}

bool PathsAreUtf8() {
    return false;
}

bool IsFolderSeparator(char c) {
    return c == '\\';
}

char FolderSeparator() {
    return '\\';
}

}  // namespace services

}  // namespace lumerin
