// SPDX-License-Identifier: MIT
#include "session/Session.h"

#include <cstddef>

#include "framework/Backend.h"
#include "session/Constants.h"
#include "session/ProgramFiles.h"
#include "text/Utf8.h"

namespace lumerin {

CDataSet g_DataSet;

std::string g_InputFilePath;
std::string g_ProjectBasePath;
std::string g_ProjectFolder;
std::string g_ProjectFileName;
std::string g_VersionText;
std::string g_VersionLabel;
std::string g_EnvelopePlotArgument;
std::string g_OutputFilePath;
std::string g_HostProgramPath;
std::string g_HostTextA;
std::string g_HostTextB;
int g_InitialReportFormat = 0;
bool g_DataLoaded = false;
int g_FooterOn = 0, g_FooterDate = 0, g_FooterTime = 0, g_FooterVersion = 0, g_FooterFileName = 0;
int g_ReportFormat = 0;
bool g_AllLoadCases = true;

namespace {
// The input file's extension ".in"; a path that ends otherwise loses its last three characters all the same.
constexpr std::size_t kExtensionLength = 3;
}  // namespace

void ResetSession() {
    g_FooterOn = g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 0;
    g_ReportFormat = kFormatSpreadsheet;
    g_AllLoadCases = true;
    g_DataLoaded = true;
}

void StripQuotes(std::string& text) {
    if (!text.empty() && text.front() == '"') text.erase(0, 1);
    if (!text.empty() && text.back() == '"') text.pop_back();
}

void DerivePaths() {
    const std::string& path = g_InputFilePath;
    g_ProjectBasePath = path.size() > kExtensionLength ? path.substr(0, path.size() - kExtensionLength) : "";
    std::size_t nameLength = 0;
    bool hasFolder = false;
    for (std::size_t at = path.size(); at > 0; --at) {
        if (services::IsFolderSeparator(path[at - 1])) {
            hasFolder = true;
            break;
        }
        ++nameLength;
    }
    if (hasFolder && nameLength > 0) g_ProjectFolder = path.substr(0, path.size() - nameLength);
    g_ProjectFileName = hasFolder ? path.substr(path.size() - nameLength) : "";
}

void TrimRightCharacters(std::string& text, const std::string& characters) {
    const std::size_t last = text.find_last_not_of(characters);
    text.resize(last == std::string::npos ? 0 : last + 1);
}

std::string HostProgramFolder() {
    std::string folder = HostProgramPath();
    TrimRightCharacters(folder, g_HostProgramName);
    return folder;
}

std::string ModuleFolder() {
    std::string folder = ModulePath();
    TrimRightCharacters(folder, g_ModuleFileName);
    return folder;
}

}  // namespace lumerin
