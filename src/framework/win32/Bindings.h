// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Window.h"
#include "framework/win32/Windows32.h"

namespace lumerin {

// Which object belongs to which control. The objects may outlive the windows, so their handles are cleared
// before.
namespace win32 {

void Bind(HWND control, CWnd& object);
// Takes the handles out of the objects of a dialog's controls. Called while the controls still exist.
void UnbindControls(HWND dialog);

}  // namespace win32

}  // namespace lumerin
