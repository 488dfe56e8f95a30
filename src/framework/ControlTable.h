// SPDX-License-Identifier: MIT
// The meaning of the control list macros as rows of ControlSpec. Included before a list in a .cpp file:
//     const ControlSpec kControls[] = {
//     #include "framework/ControlTable.h"
//     #include "session/dialogs/ReportDialog.inc"
//     };
// No include guard: the macros are defined again for each list.
#define NO_ID kNoId
#define GROUP_BOX(id, text, x, y, w, h) {ControlKind::group, id, text, x, y, w, h, 0},
#define RADIO_FIRST(id, text, x, y, w, h) {ControlKind::radio, id, text, x, y, w, h, kFirstOfGroup},
#define RADIO(id, text, x, y, w, h) {ControlKind::radio, id, text, x, y, w, h, 0},
#define CHECK_BOX(id, text, x, y, w, h) {ControlKind::check, id, text, x, y, w, h, 0},
#define PUSH_BUTTON(id, text, x, y, w, h) {ControlKind::button, id, text, x, y, w, h, 0},
#define PUSH_BUTTON_DISABLED(id, text, x, y, w, h) \
    {ControlKind::button, id, text, x, y, w, h, kStartsDisabled},
#define PUSH_BUTTON_HIDDEN(id, text, x, y, w, h) {ControlKind::button, id, text, x, y, w, h, kHidden},
#define DEFAULT_BUTTON(id, text, x, y, w, h) {ControlKind::button, id, text, x, y, w, h, kDefaultButton},
#define DEFAULT_BUTTON_HIDDEN(id, text, x, y, w, h) \
    {ControlKind::button, id, text, x, y, w, h, kDefaultButton | kHidden},
#define LEFT_TEXT(id, caption, x, y, w, h) {ControlKind::text, id, caption, x, y, w, h, 0},
#define RIGHT_TEXT(id, caption, x, y, w, h) {ControlKind::text, id, caption, x, y, w, h, kAlignRight},
#define CENTER_TEXT(id, caption, x, y, w, h) {ControlKind::text, id, caption, x, y, w, h, kAlignCenter},
#define LINK_TEXT(id, caption, x, y, w, h) {ControlKind::text, id, caption, x, y, w, h, kNotify},
#define LINK_TEXT_RIGHT(id, caption, x, y, w, h) \
    {ControlKind::text, id, caption, x, y, w, h, kNotify | kAlignRight},
#define NUMBER_EDIT(id, x, y, w, h) {ControlKind::edit, id, "", x, y, w, h, kNumbersOnly},
#define SPIN_BUTTON(id, x, y, w, h) {ControlKind::spin, id, "", x, y, w, h, kAlignRight},
#define DROP_LIST(id, x, y, w, h) {ControlKind::combo, id, "", x, y, w, h, 0},
#define GRID_CONTROL(id, x, y, w, h) {ControlKind::grid, id, "", x, y, w, h, 0},
#define GRAPH_CONTROL(id, x, y, w, h) {ControlKind::graph, id, "", x, y, w, h, 0},
