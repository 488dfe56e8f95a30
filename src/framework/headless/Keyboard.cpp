// SPDX-License-Identifier: MIT
// The keyboard of a dialog without a screen.
#include <algorithm>

#include "framework/headless/EditKeys.h"
#include "framework/headless/Headless.h"

namespace lumerin {

namespace {

EditBox BoxOf(NativeWindow& edit) {
    return {edit.text, edit.selectionStart, edit.selectionEnd, (edit.spec->flags & kNumbersOnly) != 0};
}

void NotifyChange(NativeWindow& edit, const std::string& before) {
    if (edit.text != before) edit.parent->dialog->OnCommand(edit.spec->id, Notice::textChanged);
}

// In a group of radio buttons Tab stops only at the checked one.
bool IsTabStop(const NativeWindow& control) {
    if (!control.enabled || !control.visible) return false;
    switch (control.spec->kind) {
        case ControlKind::radio:
            return control.checked;
        case ControlKind::check:
        case ControlKind::button:
        case ControlKind::edit:
        case ControlKind::combo:
        case ControlKind::grid:
            return true;
        default:
            return false;
    }
}

}  // namespace

namespace headless {

void MoveFocusByTab(WindowHandle window, bool backwards) {
    NativeWindow* dialog = window == nullptr ? nullptr : window->parent;
    if (dialog == nullptr) return;
    const auto& controls = dialog->controls;
    const std::size_t count = controls.size();
    std::size_t at = 0;
    while (at < count && controls[at].get() != window) ++at;
    for (std::size_t step = 1; step < count; ++step) {
        NativeWindow& next = *controls[(at + (backwards ? count - step : step)) % count];
        if (!IsTabStop(next)) continue;
        backend::SetFocus(&next);
        if (next.spec->kind == ControlKind::edit) backend::SelectEditText(&next, 0, -1);
        return;
    }
}

void HeadlessDialog::EndTips() {
    for (const auto& control : m_window.controls) {
        if (control->grid != nullptr) control->grid->EndTip();
    }
}

bool HeadlessDialog::PressKey(unsigned key, KeyState keys) {
    if (!IsOpen()) return false;
    EndTips();
    NativeWindow* focus = m_window.focus;
    if (focus != nullptr && focus->grid != nullptr) {
        bool used = false;
        Run([focus, key, keys, &used] { used = focus->grid->PressKey(key, keys); });
        if (used) return true;
    }
    if (key == kKeyEscape) return PressEscape();
    if (key == kKeyReturn) return PressReturn();
    if (focus == nullptr) return false;
    if (key == kKeyTab) {
        Run([focus, keys] { MoveFocusByTab(focus, keys.shift); });
        return true;
    }
    switch (focus->spec->kind) {
        case ControlKind::edit:
            return PressKeyInEdit(*focus, key, keys);
        case ControlKind::combo:
            return PressKeyInCombo(*focus, key);
        default:
            return false;
    }
}

bool HeadlessDialog::PressKeyInEdit(NativeWindow& edit, unsigned key, KeyState keys) {
    // The arrows belong to the spin button whose position the edit control shows.
    const auto& controls = m_window.controls;
    const auto at = std::find_if(controls.begin(), controls.end(),
                                 [&edit](const auto& control) { return control.get() == &edit; });
    const bool hasSpin = std::next(at) != controls.end() && (*std::next(at))->spec->kind == ControlKind::spin;
    if (hasSpin && (key == kKeyUp || key == kKeyDown)) {
        const bool done = Spin((*std::next(at))->spec->id, key == kKeyUp);
        // After a click of the mouse the new number is selected, after a key the caret is before it.
        backend::SelectEditText(&edit, 0, 0);
        return done;
    }
    Run([&edit, key, keys] {
        const std::string before = edit.text;
        PressEditKey(BoxOf(edit), key, keys);
        if (const unsigned character = CharacterOfKey(key, keys)) TypeEditCharacter(BoxOf(edit), character);
        NotifyChange(edit, before);
    });
    return true;
}

bool HeadlessDialog::PressKeyInCombo(NativeWindow& combo, unsigned key) {
    const int last = static_cast<int>(combo.entries.size()) - 1;
    int entry = combo.selection;
    if (key == kKeyUp) entry = std::max(entry - 1, 0);
    if (key == kKeyDown) entry = std::min(entry + 1, last);
    if (key == kKeyHome) entry = 0;
    if (key == kKeyEnd) entry = last;
    if (entry == combo.selection) return true;
    return SelectEntry(combo.spec->id, entry);
}

bool HeadlessDialog::TypeChar(unsigned character) {
    NativeWindow* focus = IsOpen() ? m_window.focus : nullptr;
    if (focus == nullptr) return false;
    EndTips();
    if (focus->grid != nullptr) {
        Run([focus, character] { focus->grid->TypeChar(character, {}); });
        return true;
    }
    if (focus->spec->kind != ControlKind::edit) return false;
    Run([focus, character] {
        const std::string before = focus->text;
        TypeEditCharacter(BoxOf(*focus), character);
        NotifyChange(*focus, before);
    });
    return true;
}

}  // namespace headless

}  // namespace lumerin
