// SPDX-License-Identifier: MIT
#include "session/PlotModule.h"

#include "framework/win32/InstalledFiles.h"
#include "framework/win32/Windows32.h"

namespace lumerin {

namespace {

using PlotExport = int(WINAPI*)(int format, const char* dataFile, const char* plot, const char* family,
                                const char* version, const char* zeroA, const char* zeroB,
                                const char* argument);

// The system's text for an error, in the user's language.
std::string SystemText(DWORD error) {
    char* text = nullptr;
    FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        error, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<char*>(&text), 0, nullptr);
    if (text == nullptr) return {};
    std::string words(text);
    LocalFree(text);
    return words;
}

}  // namespace

PlotModuleResult CallPlotModule(const PlotModuleCall& call, std::string& systemText) {
    const std::string folder = call.dataFile.substr(0, call.dataFile.find_last_of("\\/:") + 1);
    const HMODULE library = win32::LoadFullPath(win32::FindLibrary(kPlotModuleName, folder));
    if (library == nullptr) return PlotModuleResult::moduleMissing;
    const FARPROC address = GetProcAddress(library, kPlotExportName);
    if (address == nullptr) {
        systemText = SystemText(GetLastError());
        FreeLibrary(library);
        return PlotModuleResult::exportMissing;
    }
    const auto launch = reinterpret_cast<PlotExport>(reinterpret_cast<void*>(address));
    launch(call.format, call.dataFile.c_str(), call.plot.c_str(), call.family.c_str(), call.version.c_str(),
           call.zeroA.c_str(), call.zeroB.c_str(), call.argument.c_str());
    // The module stays loaded: its windows stay open after the call.
    return PlotModuleResult::called;
}

}  // namespace lumerin
