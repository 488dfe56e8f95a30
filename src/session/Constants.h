#pragma once

#include "tables/Words.h"

inline constexpr const char* g_PdfTempName = "PdfTemp.txt";
inline constexpr const char* g_HostProgramName = "Tarnsway.exe";
inline constexpr const char* g_ModuleFileName = "Lumerin.dll";
