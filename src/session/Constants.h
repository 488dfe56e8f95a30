// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Words.h"

namespace lumerin {

inline constexpr const char* g_PdfTempName = "PdfTemp.txt";
inline constexpr const char* g_HostProgramName = "Tarnsway.exe";
inline constexpr const char* g_ModuleFileName = "Lumerin.dll";

}  // namespace lumerin
