// SPDX-License-Identifier: MIT
// Replaces a viewer: it records under which name and with which document it was started.
//     recorder.exe  registered for the types of documents
//     Excel.exe     registered as the spreadsheet program
//     Jarlimex.exe  beside the host
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/HostWindows.h"
#include "host/RecordFormat.h"

using namespace lumerin;

namespace {

std::string OwnFileName() {
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::string text = path.data();
    return text.substr(text.rfind('\\') + 1);
}

// The name under which the program was started.
std::string AskedFor(const std::string& fileName) {
    if (lstrcmpiA(fileName.c_str(), "recorder.exe") == 0) return "";
    if (lstrcmpiA(fileName.c_str(), "Excel.exe") == 0) return "Excel";
    return fileName;
}

}  // namespace

int main(int argc, char** argv) {
    const char* path = std::getenv(kRecordVariable);
    if (path == nullptr || argc < 1) return 1;
    std::string line = kRecordOpen;
    line += kRecordFieldEnd + AskedFor(OwnFileName()) + kRecordFieldEnd;
    for (int i = 1; i < argc; ++i) line += (i > 1 ? " " : "") + std::string(argv[i]);
    line += '\n';
    std::FILE* file = std::fopen(path, "ab");
    if (file == nullptr) return 1;
    const bool written = std::fwrite(line.data(), 1, line.size(), file) == line.size();
    return std::fclose(file) == 0 && written ? 0 : 1;
}
