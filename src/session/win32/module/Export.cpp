// SPDX-License-Identifier: MIT
#include "session/Launch.h"
#include "session/win32/module/Runtime.h"

using namespace lumerin;

// The module's one export. The definition file gives it its plain name.
extern "C" unsigned __stdcall LaunchLumerinExport(int reportFormat, const char* inputFile,
                                                  const char* version, const char* textA, const char* textB,
                                                  const char* envelopeArgument) noexcept {
    if (!PrepareRuntime()) return 0u;
    return LaunchLumerin(reportFormat, inputFile, version, textA, textB, envelopeArgument);
}
