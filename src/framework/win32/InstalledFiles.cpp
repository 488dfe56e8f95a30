// SPDX-License-Identifier: MIT
#include "framework/win32/InstalledFiles.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace lumerin {

namespace {

constexpr const char* kProgramPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
constexpr DWORD kAllShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// The libraries that a library needs come from its own folder or the system's, never from the current one.
constexpr DWORD kOwnFoldersAlone = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

// A relative path would be taken from the current folder, and one without a drive from the current drive.
bool IsFullPath(const std::string& path) {
    const bool drive = path.size() > 2 && std::isalpha(static_cast<unsigned char>(path[0])) != 0 &&
                       path[1] == ':' && IsSeparator(path[2]);
    const bool server = path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]);
    return drive || server;
}

std::string WithoutQuotes(std::string text) {
    std::erase(text, '"');
    return text;
}

bool IsFile(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The identity of a folder, which can have many names.
class FolderIdentity {
  public:
    explicit FolderIdentity(const std::string& folder) {
        const HANDLE handle = CreateFileA(folder.c_str(), FILE_READ_ATTRIBUTES, kAllShared, nullptr,
                                          OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (handle == INVALID_HANDLE_VALUE) return;
        m_known = GetFileInformationByHandle(handle, &m_info) != FALSE;
        CloseHandle(handle);
    }
    bool IsKnown() const { return m_known; }
    bool IsSame(const FolderIdentity& other) const {
        return m_known && other.m_known && m_info.dwVolumeSerialNumber == other.m_info.dwVolumeSerialNumber &&
               m_info.nFileIndexHigh == other.m_info.nFileIndexHigh &&
               m_info.nFileIndexLow == other.m_info.nFileIndexLow;
    }

  private:
    BY_HANDLE_FILE_INFORMATION m_info{};
    bool m_known = false;
};

std::string SystemFolder() {
    std::array<char, MAX_PATH> folder{};
    const UINT length = GetSystemDirectoryA(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? std::string(folder.data(), length) : std::string();
}

std::string WindowsFolder() {
    std::array<char, MAX_PATH> folder{};
    const UINT length = GetSystemWindowsDirectoryA(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? std::string(folder.data(), length) : std::string();
}

std::vector<std::string> SearchPath() {
    std::vector<char> text(GetEnvironmentVariableA("PATH", nullptr, 0) + 1);
    const DWORD length = GetEnvironmentVariableA("PATH", text.data(), static_cast<DWORD>(text.size()));
    std::vector<std::string> folders;
    const std::string path(text.data(), length < text.size() ? length : 0);
    for (std::size_t from = 0; from < path.size();) {
        const std::size_t end = std::min(path.find(';', from), path.size());
        const std::string folder = WithoutQuotes(path.substr(from, end - from));
        if (IsFullPath(folder)) folders.push_back(folder);
        from = end + 1;
    }
    return folders;
}

std::string FileIn(const std::string& folder, const std::string& name) {
    if (folder.empty()) return {};
    std::string path = IsSeparator(folder.back()) ? folder + name : folder + '\\' + name;
    std::replace(path.begin(), path.end(), '/', '\\');  // the loader accepts no others
    return IsFile(path) ? path : std::string();
}

// The default value of a key, with the names of the environment in it replaced. Empty: there is none.
std::string DefaultText(HKEY root, const std::string& name, REGSAM view) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, name.c_str(), 0, KEY_QUERY_VALUE | view, &key) != ERROR_SUCCESS) return {};
    std::array<char, 4 * MAX_PATH> text{}, expanded{};
    auto size = static_cast<DWORD>(text.size() - 1);  // the value may have no terminating zero
    DWORD type = REG_NONE;
    const LSTATUS read =
        RegQueryValueExA(key, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
    RegCloseKey(key);
    if (read != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) return {};
    if (type == REG_SZ) return text.data();
    const DWORD length =
        ExpandEnvironmentStringsA(text.data(), expanded.data(), static_cast<DWORD>(expanded.size()));
    return length > 0 && length <= expanded.size() ? std::string(expanded.data()) : std::string();
}

}  // namespace

namespace win32 {

std::string FindLibrary(const std::string& name, const std::string& excluded) {
    const std::string host = services::ProgramPath();
    for (const std::string& folder :
         {host.substr(0, host.rfind('\\') + 1), SystemFolder(), WindowsFolder()}) {
        std::string path = FileIn(folder, name);
        if (!path.empty()) return path;
    }
    const FolderIdentity current("."), other(excluded);
    for (const std::string& folder : SearchPath()) {
        std::string path = FileIn(folder, name);
        if (path.empty()) continue;
        const FolderIdentity identity(folder);
        if (identity.IsKnown() && !identity.IsSame(current) && !identity.IsSame(other)) return path;
    }
    return {};
}

std::string FindRegisteredProgram(const std::string& name) {
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        for (const REGSAM view : {REGSAM{0}, REGSAM{KEY_WOW64_64KEY}}) {
            std::string path = WithoutQuotes(DefaultText(root, kProgramPaths + name, view));
            if (IsFullPath(path) && IsFile(path)) return path;
        }
    }
    return {};
}

HMODULE LoadFullPath(const std::string& path) {
    return path.empty() ? nullptr : LoadLibraryExA(path.c_str(), nullptr, kOwnFoldersAlone);
}

HMODULE LoadSystemLibrary(const std::string& name) {
    return LoadFullPath(FileIn(SystemFolder(), name));
}

}  // namespace win32

}  // namespace lumerin
