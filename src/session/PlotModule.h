// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The call of the plot module's export, with its eight arguments in their order.
struct PlotModuleCall {
    int format = 0;  // 0 spreadsheet, 1 otherwise
    std::string dataFile, plot, family, version, zeroA, zeroB, argument;
};

enum class PlotModuleResult { called, moduleMissing, exportMissing };

// Loads the plot module from the host's folder, the system's folders or the machine's PATH, never from the
// current folder or that of the data file, and calls its export. A missing export leaves the system's text
// for the error in `systemText`.
PlotModuleResult CallPlotModule(const PlotModuleCall& call, std::string& systemText);

inline constexpr const char* kPlotModuleName = "Sorvane.dll";
inline constexpr const char* kPlotExportName = "LaunchSorvane";

}  // namespace lumerin
