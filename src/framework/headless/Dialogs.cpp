// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/headless/Headless.h"

namespace lumerin {

// Running a dialog without a screen, and its user's actions.

namespace {

bool TakesFocus(const NativeWindow& control) {
    switch (control.spec->kind) {
        case ControlKind::radio:
        case ControlKind::check:
        case ControlKind::button:
        case ControlKind::edit:
        case ControlKind::combo:
        case ControlKind::grid:
            return control.enabled && control.visible;
        default:
            return false;
    }
}

void MakeControls(NativeWindow& window, const DialogTemplate& spec) {
    window.text = spec.title;
    for (const ControlSpec& control : spec.controls) {
        auto child = std::make_unique<NativeWindow>();
        child->spec = &control;
        child->parent = &window;
        child->text = control.text;
        child->enabled = (control.flags & kStartsDisabled) == 0;
        child->visible = (control.flags & kHidden) == 0;
        window.controls.push_back(std::move(child));
    }
}

void FocusFirst(NativeWindow& window) {
    if (window.focus != nullptr) return;
    for (const auto& control : window.controls) {
        if (TakesFocus(*control)) {
            window.focus = control.get();
            return;
        }
    }
}

// The objects may outlive the windows, so their handles are cleared.
void Unbind(NativeWindow& window) {
    for (const auto& control : window.controls) {
        if (control->object != nullptr) control->object->m_hWnd = nullptr;
    }
    window.dialog->m_hWnd = nullptr;
}

// The owner of the next dialog.
NativeWindow*& Front() {
    static NativeWindow* front = nullptr;
    return front;
}

class InFront {
  public:
    explicit InFront(NativeWindow& window) : m_window(window) {
        window.owner = Front();
        Front() = &window;
    }
    InFront(const InFront&) = delete;
    InFront& operator=(const InFront&) = delete;
    ~InFront() { Front() = m_window.owner; }

  private:
    NativeWindow& m_window;
};

}  // namespace

namespace backend {

int RunDialog(CDialog& dialog) {
    NativeWindow window;
    const InFront front(window);
    window.dialog = &dialog;
    MakeControls(window, dialog.Spec());
    dialog.m_hWnd = &window;
    RunGuarded(dialog, [&dialog] { dialog.OnInitDialog(); });
    FocusFirst(window);
    headless::HeadlessDialog opened(window);
    if (!window.ended) {
        if (headless::Sink* sink = headless::State().sink) sink->OnDialogOpened(opened);
        if (const headless::ModalDriver driver = headless::State().driver) driver(opened);
    }
    opened.Close();
    Unbind(window);
    return window.result;
}

void EndDialog(WindowHandle dialog, int result) {
    if (dialog == nullptr) return;
    dialog->ended = true;
    dialog->result = result;
}

}  // namespace backend

namespace headless {

NativeWindow* HeadlessDialog::Find(int id) const {
    return backend::Control(&m_window, id);
}

NativeWindow* HeadlessDialog::FindKind(ControlKind kind) const {
    for (const auto& control : m_window.controls) {
        if (control->spec->kind == kind) return control.get();
    }
    return nullptr;
}

NativeWindow* HeadlessDialog::FindUsable(int id) const {
    NativeWindow* control = IsOpen() ? Find(id) : nullptr;
    return control != nullptr && control->enabled && control->visible ? control : nullptr;
}

void HeadlessDialog::Run(const std::function<void()>& step) {
    RunGuarded(Dialog(), step);
}

bool HeadlessDialog::Click(int id) {
    NativeWindow* control = FindUsable(id);
    if (control == nullptr) return false;
    const ControlKind kind = control->spec->kind;
    const bool isButton =
        kind == ControlKind::radio || kind == ControlKind::check || kind == ControlKind::button;
    const bool isLink = kind == ControlKind::text && (control->spec->flags & kNotify) != 0;
    if (isButton || kind == ControlKind::edit || kind == ControlKind::combo) {
        Run([control] { backend::SetFocus(control); });
    }
    if (!isButton && !isLink) return true;
    if (kind == ControlKind::check) control->checked = !control->checked;
    if (kind == ControlKind::radio) {
        for (const int other : RadioGroupOf(Dialog().Spec(), id)) {
            backend::SetChecked(Find(other), other == id);
        }
    }
    Run([this, id] { Dialog().OnCommand(id, Notice::clicked); });
    return true;
}

bool HeadlessDialog::TypeText(int id, const std::string& text) {
    NativeWindow* control = FindUsable(id);
    if (control == nullptr || control->spec->kind != ControlKind::edit) return false;
    Run([control, &text] { backend::SetText(control, text); });
    return true;
}

bool HeadlessDialog::Focus(int id) {
    NativeWindow* control = FindUsable(id);
    if (control == nullptr || !TakesFocus(*control)) return false;
    Run([control] {
        backend::SetFocus(control);
        if (control->spec->kind == ControlKind::edit) backend::SelectEditText(control, 0, -1);
    });
    return true;
}

bool HeadlessDialog::SelectEntry(int id, int entry) {
    NativeWindow* control = FindUsable(id);
    if (control == nullptr || control->spec->kind != ControlKind::combo) return false;
    if (entry < 0 || entry >= static_cast<int>(control->entries.size())) return false;
    Run([this, control, id, entry] {
        backend::SetFocus(control);
        backend::ComboSelect(control, entry);
        Dialog().OnCommand(id, Notice::selectionChanged);
    });
    return true;
}

bool HeadlessDialog::Spin(int id, bool up) {
    NativeWindow* control = FindUsable(id);
    if (control == nullptr || control->spec->kind != ControlKind::spin) return false;
    // The platform's spin button does nothing while the edit control that shows its position is disabled.
    NativeWindow* before = nullptr;
    for (const auto& other : m_window.controls) {
        if (other.get() == control) break;
        before = other.get();
    }
    const bool hasEdit = before != nullptr && before->spec->kind == ControlKind::edit;
    if (hasEdit && !before->enabled) return true;
    const bool ascending = control->spinLow <= control->spinHigh;
    const int step = up == ascending ? 1 : -1;
    Run([control, step, before, hasEdit] {
        if (hasEdit) backend::SetFocus(before);
        backend::SpinSetPosition(control, control->spinPosition + step);
        if (hasEdit) backend::SelectEditText(before, 0, -1);
    });
    return true;
}

bool HeadlessDialog::TypeCell(int row, int column, const std::string& text) {
    NativeWindow* control = IsOpen() ? FindKind(ControlKind::grid) : nullptr;
    if (control == nullptr || control->grid == nullptr || !control->enabled || !control->visible)
        return false;
    bool typed = false;
    Run([control, row, column, &text, &typed] {
        backend::SetFocus(control);
        typed = control->grid->TypeCell(row, column, text);
    });
    return typed;
}

bool HeadlessDialog::Mouse(const MouseAction& action) {
    NativeWindow* control = IsOpen() ? FindKind(ControlKind::grid) : nullptr;
    if (control == nullptr || control->grid == nullptr || !control->enabled || !control->visible)
        return false;
    bool done = false;
    Run([control, &action, &done] { done = control->grid->Mouse(action); });
    return done;
}

bool HeadlessDialog::ClickGraph(double x) {
    NativeWindow* control = IsOpen() ? FindKind(ControlKind::graph) : nullptr;
    if (control == nullptr || control->graph == nullptr || !control->enabled || !control->visible)
        return false;
    Run([control, x] { control->graph->Click(x); });
    return true;
}

bool HeadlessDialog::PressEscape() {
    if (!IsOpen()) return false;
    // A hidden Cancel button still receives the Esc key, a disabled one does not.
    const NativeWindow* cancel = Find(IDCANCEL);
    if (cancel != nullptr && !cancel->enabled) return false;
    Run([this] { Dialog().OnCommand(IDCANCEL, Notice::clicked); });
    return true;
}

bool HeadlessDialog::PressReturn() {
    if (!IsOpen()) return false;
    int id = IDOK;
    for (const auto& control : m_window.controls) {
        if ((control->spec->flags & kDefaultButton) != 0) id = control->spec->id;
    }
    // The button under the focus is the default one as long as it has the focus.
    const NativeWindow* focus = m_window.focus;
    if (focus != nullptr && focus->spec->kind == ControlKind::button) id = focus->spec->id;
    const NativeWindow* button = Find(id);
    if (button != nullptr && !button->enabled) return false;
    Run([this, id] { Dialog().OnCommand(id, Notice::clicked); });
    return true;
}

bool HeadlessDialog::PressHelp(int id) {
    if (!IsOpen() || Find(id) == nullptr) return false;
    EndTips();
    // As on Windows, a key that a dialog does not handle goes to the dialog that opened it.
    bool handled = false;
    for (NativeWindow* window = &m_window; window != nullptr && !handled; window = window->owner) {
        CDialog& dialog = *window->dialog;
        RunGuarded(dialog, [&] { handled = dialog.OnHelpInfo(id); });
    }
    return true;
}

void HeadlessDialog::Close() {
    if (IsOpen()) {
        int id = IDCANCEL;
        for (const auto& control : m_window.controls) {
            if (control->spec->kind == ControlKind::button && control->visible && control->text == "Close") {
                id = control->spec->id;
            }
        }
        if (!Click(id)) PressEscape();
    }
    if (IsOpen()) backend::EndDialog(&m_window, IDCANCEL);
}

}  // namespace headless

}  // namespace lumerin
