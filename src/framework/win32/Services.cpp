// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <shellapi.h>

#include <array>
#include <cstring>

#include "framework/Clock.h"
#include "framework/Platform.h"
#include "framework/win32/InstalledFiles.h"

namespace lumerin {

// Services of the platform other than windows: the shell, paths, settings of the user, the clock.

namespace {

constexpr int kProgramMissing = 2;  // the shell's code

// A key of the current user's settings, for reading alone.
class UserKey {
  public:
    explicit UserKey(const char* key) { RegOpenKeyExA(HKEY_CURRENT_USER, key, 0, KEY_READ, &m_key); }
    UserKey(const UserKey&) = delete;
    UserKey& operator=(const UserKey&) = delete;
    ~UserKey() {
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

std::string ProgramPath() {
    return PathOf(nullptr);
}

std::string ModulePath() {
    return PathOf(win32::ModuleInstance());
}

bool ReadUserNumber(const char* key, const char* name, int& value) {
    DWORD number = 0;
    if (!UserKey(key).Read(name, &number, sizeof number)) return false;
    value = static_cast<int>(number);
    return true;
}

bool ReadUserText(const char* key, const char* name, unsigned capacity, std::string& value) {
    std::array<char, 260> text{};
    if (capacity >= text.size() || !UserKey(key).Read(name, text.data(), capacity)) return false;
    value = text.data();
    return true;
}

// No message is shown: the user sees that no document opens.
void ReportOutputFailed(const std::string& /*path*/) {}

LocalTime Now(const char* fixedTimeVariable) {
    LocalTime fixed;
    return ReadClockFromEnvironment(fixedTimeVariable, fixed) ? fixed : platform::LocalNow();
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
