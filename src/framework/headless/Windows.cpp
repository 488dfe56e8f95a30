// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "framework/headless/Headless.h"

namespace lumerin {

// The controls as plain state.

namespace {

bool IsKind(WindowHandle window, ControlKind kind) {
    return window != nullptr && window->spec != nullptr && window->spec->kind == kind;
}

NativeWindow* DialogOf(WindowHandle window) {
    if (window == nullptr) return nullptr;
    return window->parent == nullptr ? window : window->parent;
}

void Notify(WindowHandle window, Notice notice) {
    NativeWindow* dialog = DialogOf(window);
    if (dialog == nullptr || dialog->dialog == nullptr || window->spec == nullptr) return;
    dialog->dialog->OnCommand(window->spec->id, notice);
}

// The edit control that shows a spin button's position is the control before it in the resource.
NativeWindow* BuddyOf(WindowHandle spin) {
    const auto& controls = spin->parent->controls;
    const auto at = std::find_if(controls.begin(), controls.end(),
                                 [spin](const auto& control) { return control.get() == spin; });
    if (at == controls.begin() || at == controls.end()) return nullptr;
    NativeWindow* before = std::prev(at)->get();
    return IsKind(before, ControlKind::edit) ? before : nullptr;
}

}  // namespace

namespace backend {

void SetText(WindowHandle window, const std::string& text) {
    if (window == nullptr) return;
    window->text = text;
    if (!IsKind(window, ControlKind::edit)) return;
    window->selectionStart = window->selectionEnd = 0;
    Notify(window, Notice::textChanged);
}

std::string Text(WindowHandle window) {
    return window == nullptr ? std::string() : window->text;
}

void Enable(WindowHandle window, bool enabled) {
    if (window != nullptr) window->enabled = enabled;
}

bool IsEnabled(WindowHandle window) {
    return window != nullptr && window->enabled;
}

void Show(WindowHandle window, bool visible) {
    if (window != nullptr) window->visible = visible;
}

bool IsVisible(WindowHandle window) {
    return window != nullptr && window->visible;
}

void SetChecked(WindowHandle window, bool checked) {
    if (window != nullptr) window->checked = checked;
}

bool IsChecked(WindowHandle window) {
    return window != nullptr && window->checked;
}

void SetFocus(WindowHandle window) {
    NativeWindow* dialog = DialogOf(window);
    if (dialog == nullptr || window == dialog || dialog->focus == window) return;
    NativeWindow* before = dialog->focus;
    dialog->focus = window;
    if (IsKind(before, ControlKind::edit)) Notify(before, Notice::focusLost);
    if (before != nullptr && before->grid != nullptr) before->grid->LoseFocus();
    if (window->grid != nullptr) window->grid->GainFocus();
}

void SelectEditText(WindowHandle window, int start, int end) {
    if (window == nullptr) return;
    window->selectionStart = start;
    window->selectionEnd = end < 0 ? static_cast<int>(window->text.size()) : end;
}

void ComboAdd(WindowHandle window, const std::string& entry) {
    if (window != nullptr) window->entries.push_back(entry);
}

void ComboSelect(WindowHandle window, int index) {
    if (window == nullptr) return;
    const bool known = index >= 0 && index < static_cast<int>(window->entries.size());
    window->selection = known ? index : -1;
    window->text = known ? window->entries[Index(index)] : std::string();
}

int ComboSelection(WindowHandle window) {
    return window == nullptr ? -1 : window->selection;
}

void SpinSetRange(WindowHandle window, int low, int high) {
    if (window == nullptr) return;
    window->spinLow = low;
    window->spinHigh = high;
}

void SpinSetPosition(WindowHandle window, int position) {
    if (window == nullptr || window->parent == nullptr) return;
    const int low = std::min(window->spinLow, window->spinHigh);
    const int high = std::max(window->spinLow, window->spinHigh);
    window->spinPosition = std::clamp(position, low, high);
    // The edit control sends a change notice only when its text changes. Otherwise a handler that sets the
    // position that it has just read would call itself for ever.
    NativeWindow* buddy = BuddyOf(window);
    const std::string text = std::to_string(window->spinPosition);
    if (buddy != nullptr && buddy->text != text) SetText(buddy, text);
}

int SpinPosition(WindowHandle window) {
    return window == nullptr ? 0 : window->spinPosition;
}

WindowHandle Control(WindowHandle dialog, int id) {
    if (dialog == nullptr || id == kNoId) return nullptr;
    for (const auto& control : dialog->controls) {
        if (control->spec->id == id) return control.get();
    }
    return nullptr;
}

void AttachObject(WindowHandle window, CWnd& object) {
    if (window != nullptr) window->object = &object;
}

}  // namespace backend

namespace headless {

void AttachGrid(WindowHandle window, GridPeer& peer) {
    if (window != nullptr) window->grid = &peer;
}

void AttachGraph(WindowHandle window, GraphPeer& peer) {
    if (window != nullptr) window->graph = &peer;
}

const ControlSpec& SpecOf(WindowHandle window) {
    static constexpr ControlSpec none{ControlKind::text, kNoId, "", 0, 0, 0, 0, 0};
    return window == nullptr || window->spec == nullptr ? none : *window->spec;
}

}  // namespace headless

}  // namespace lumerin
