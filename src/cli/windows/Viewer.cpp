// SPDX-License-Identifier: MIT
#include "cli/Viewer.h"

#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"
// This header needs windows.h before it.
#include <shellapi.h>

namespace lumerin {

int StartViewer(const std::string& path) {
    const std::wstring file = windows::WidePath(path);
    const HINSTANCE code = ShellExecuteW(nullptr, nullptr, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return static_cast<int>(reinterpret_cast<INT_PTR>(code));
}

}  // namespace lumerin
