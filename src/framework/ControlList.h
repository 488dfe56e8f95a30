// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace lumerin {

// A dialog's controls are written once, in a list of lines such as
//     PUSH_BUTTON(IDC_APPLY, "Apply to All", 204, 78, 170, 14)
// (session/dialogs/*.inc). The Windows resource script and the tables of the headless backend both include
// the same list, each with its own meaning of the macros; this is the table's meaning.

enum class ControlKind { group, radio, check, button, text, edit, combo, spin, grid, graph };

struct ControlSpec {
    ControlKind kind;
    int id;  // kNoId: the control has no identifier
    const char* text;
    int x, y, width, height;  // dialog units
    unsigned flags;
};

inline constexpr int kNoId = -1;

enum ControlFlags : unsigned {
    kStartsDisabled = 1,
    kHidden = 2,
    kDefaultButton = 4,
    kFirstOfGroup = 8,  // the first radio button of its group
    kNotify = 16,       // a static text that reports clicks
    kAlignRight = 32,
    kAlignCenter = 64,
    kNumbersOnly = 128,
};

struct DialogTemplate {
    int id;
    const char* title;
    int width, height;  // dialog units, "Segoe UI" 9
    bool systemMenu;
    std::span<const ControlSpec> controls;
};

}  // namespace lumerin
