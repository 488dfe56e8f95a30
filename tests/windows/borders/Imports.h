// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostWindows.h"

namespace lumerin {

// Puts another function in the place of one that a loaded module imports. False: it imports none of that
// name.
bool ReplaceImport(HMODULE module, const char* name, void* function);

template <class Function>
bool ReplaceImport(HMODULE module, const char* name, Function* function) {
    return ReplaceImport(module, name, reinterpret_cast<void*>(function));
}

}  // namespace lumerin
