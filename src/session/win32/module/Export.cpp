// SPDX-License-Identifier: MIT
#include "framework/win32/DriverToken.h"
#include "session/Launch.h"
#include "session/win32/module/Runtime.h"
#include "text/Product.h"

using namespace lumerin;

namespace {

// At the load of the module.
[[gnu::constructor]] void TakeDriverToken() {
    win32::ReadDriverToken(kDriverTokenVariable);
}

}  // namespace

// The module's one export. The definition file gives it its plain name.
extern "C" unsigned __stdcall LaunchLumerinExport(int reportFormat, const char* inputFile,
                                                  const char* version, const char* textA, const char* textB,
                                                  const char* envelopeArgument) noexcept {
    if (!PrepareRuntime()) return 0u;
    return LaunchLumerin(reportFormat, inputFile, version, textA, textB, envelopeArgument);
}
