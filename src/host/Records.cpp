// SPDX-License-Identifier: MIT
#include "host/Records.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include "host/HostWindows.h"
#include "host/RecordFormat.h"
// This header needs windows.h before it.
#include <tlhelp32.h>

namespace lumerin {

namespace {

constexpr DWORD kLongestStart = 20000;  // milliseconds that a started program may take

bool IsRecorder(const char* program) {
    for (const char* name : {"recorder.exe", "Excel.exe", "Jarlimex.exe"}) {
        if (lstrcmpiA(program, name) == 0) return true;
    }
    return false;
}

// Waits for the recorders that this process has started. False: one of them does not end.
bool WaitForRecorders() {
    const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (list == INVALID_HANDLE_VALUE) return true;
    bool ended = true;
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32First(list, &entry); more; more = Process32Next(list, &entry)) {
        if (entry.th32ParentProcessID != GetCurrentProcessId() || !IsRecorder(entry.szExeFile)) continue;
        const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, entry.th32ProcessID);
        if (process == nullptr) continue;  // it has ended meanwhile
        ended = WaitForSingleObject(process, kLongestStart) == WAIT_OBJECT_0 && ended;
        CloseHandle(process);
    }
    CloseHandle(list);
    return ended;
}

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields;
    for (std::size_t from = 0; from <= line.size();) {
        const std::size_t end = std::min(line.find(kRecordFieldEnd, from), line.size());
        fields.push_back(line.substr(from, end - from));
        from = end + 1;
    }
    return fields;
}

}  // namespace

Records::Records(JsonLines& lines) : m_lines(lines) {
    char folder[MAX_PATH] = "", path[MAX_PATH] = "";
    GetTempPathA(MAX_PATH, folder);
    GetTempFileNameA(folder, "rec", 0, path);
    m_path = path;
    // The run-time library sets it in the process's environment, which started programs inherit.
    _putenv_s(kRecordVariable, path);
}

Records::~Records() {
    DeleteFileA(m_path.c_str());
}

bool Records::Print() {
    const bool ended = WaitForRecorders();
    std::ifstream file(m_path, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    for (std::size_t end; (end = text.find('\n', m_read)) != std::string::npos; m_read = end + 1) {
        PrintLine(text.substr(m_read, end - m_read));
    }
    return ended;
}

void Records::PrintLine(const std::string& line) {
    const std::vector<std::string> fields = Fields(line);
    if (fields.size() == 3 && fields[0] == kRecordOpen) {
        m_lines.Open(fields[1].empty() ? fields[2] : fields[1], fields[1].empty() ? "" : fields[2]);
    }
    if (fields.size() == 10 && fields[0] == kRecordModule) {
        m_lines.Module(fields[1], std::atoi(fields[2].c_str()), {fields.begin() + 3, fields.end()});
    }
}

}  // namespace lumerin
