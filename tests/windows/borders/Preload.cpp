// SPDX-License-Identifier: MIT
// A host that has loaded the compiler's run-time library before the module; the module has a copy of its own.
#include "Stage.h"

namespace lumerin {

void TestPreload(const Words& words) {
    Check(LoadLibraryExA(words.at(1).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH) != nullptr,
          words.at(1) + " is loaded");
    Check(GetModuleHandleA("libgcc_s_dw2-1.dll") != nullptr, "the run-time library is in the process");
    const Module module = LoadModule();
    Visits visits([](HWND dialog) { Press(dialog, 1); });
    // A second round: what the first one registered is still there.
    for (int call = 0; call < 2; ++call) {
        Check(module.launch(2, words.at(0).c_str(), "4.17", "", "", "") == 1, "the call ends by Close");
    }
    Check(visits.BoxesWith(words.at(2)) == 2, "the fault of the project is reported in both calls");
    FreeLibrary(module.handle);
}

}  // namespace lumerin
