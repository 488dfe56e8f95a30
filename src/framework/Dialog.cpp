// SPDX-License-Identifier: MIT
#include "framework/Dialog.h"

#include <charconv>
#include <new>
#include <string_view>

#include "framework/File.h"

namespace lumerin {

namespace {

constinit const char* g_applicationName = "";

std::size_t ControlIndex(const DialogTemplate& spec, int id) {
    std::size_t index = 0;
    while (index < spec.controls.size() && spec.controls[index].id != id) ++index;
    return index;
}

}  // namespace

std::vector<int> RadioGroupOf(const DialogTemplate& spec, int id) {
    std::vector<int> group;
    const std::size_t count = spec.controls.size();
    const std::size_t index = ControlIndex(spec, id);
    if (index >= count || spec.controls[index].kind != ControlKind::radio) return group;
    std::size_t first = index;
    while (first > 0 && (spec.controls[first].flags & kFirstOfGroup) == 0 &&
           spec.controls[first - 1].kind == ControlKind::radio) {
        --first;
    }
    group.push_back(spec.controls[first].id);
    for (std::size_t at = first + 1; at < count; ++at) {
        const ControlSpec& control = spec.controls[at];
        if (control.kind != ControlKind::radio || (control.flags & kFirstOfGroup) != 0) break;
        group.push_back(control.id);
    }
    return group;
}

void DDX_Control(CDataExchange& exchange, int id, CWnd& control) {
    control.m_hWnd = backend::Control(exchange.m_dialog.m_hWnd, id);
    if (control.m_hWnd == nullptr) return;
    backend::AttachObject(control.m_hWnd, control);
    control.OnAttach();
}

void DDX_Check(CDataExchange& exchange, int id, int& value) {
    const WindowHandle window = backend::Control(exchange.m_dialog.m_hWnd, id);
    if (exchange.m_bSave) {
        value = backend::IsChecked(window) ? 1 : 0;
    } else {
        backend::SetChecked(window, value != 0);
    }
}

void DDX_Radio(CDataExchange& exchange, int firstId, int& value) {
    const WindowHandle dialog = exchange.m_dialog.m_hWnd;
    const std::vector<int> group = RadioGroupOf(exchange.m_dialog.Spec(), firstId);
    if (exchange.m_bSave) value = -1;
    for (std::size_t i = 0; i < group.size(); ++i) {
        const WindowHandle button = backend::Control(dialog, group[i]);
        const int position = static_cast<int>(i);
        if (!exchange.m_bSave) {
            backend::SetChecked(button, position == value);
        } else if (value < 0 && backend::IsChecked(button)) {
            value = position;
        }
    }
}

void DDX_Text(CDataExchange& exchange, int id, int& value) {
    const WindowHandle window = backend::Control(exchange.m_dialog.m_hWnd, id);
    const std::string text = backend::Text(window);
    if (exchange.m_bSave) {
        int number = 0;
        if (std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc()) value = number;
        return;
    }
    // Setting the text that is already there sends no change notice.
    const std::string wanted = std::to_string(value);
    if (text != wanted) backend::SetText(window, wanted);
}

void SetApplicationName(const char* name) {
    g_applicationName = name;
}

MessageAnswer AfxMessageBox(const std::string& text, MessageIcon icon, MessageButtons buttons) {
    return backend::ShowMessage(text, g_applicationName, icon, buttons);
}

bool CDialog::UpdateData(bool saveAndValidate) {
    CDataExchange exchange(*this, saveAndValidate);
    DoDataExchange(exchange);
    return true;
}

void CDialog::SetItemText(int id, const std::string& text) {
    backend::SetText(backend::Control(m_hWnd, id), text);
}

std::string CDialog::ItemText(int id) const {
    return backend::Text(backend::Control(m_hWnd, id));
}

void CDialog::EnableItem(int id, bool enabled) {
    backend::Enable(backend::Control(m_hWnd, id), enabled);
}

void CDialog::ShowItem(int id, bool visible) {
    backend::Show(backend::Control(m_hWnd, id), visible);
}

bool CDialog::OnInitDialog() {
    return UpdateData(false);
}

bool CDialog::OnCommand(int id, Notice notice) {
    if (notice != Notice::clicked) return false;
    if (id == IDOK) {
        OnOK();
        return true;
    }
    if (id == IDCANCEL) {
        OnCancel();
        return true;
    }
    return false;
}

void CDialog::OnFileException(const std::string& text) {
    AfxMessageBox(text);
}

namespace {

// Made when the program starts, so that reporting a lack of memory needs no memory.
const std::string kNoMemoryText = "There is not enough memory for this operation.";

void ReportThrown(CDialog& dialog) {
    try {
        throw;
    } catch (const CFileException& failure) {
        dialog.OnFileException(failure.what());
    } catch (const std::bad_alloc&) {
        dialog.OnFileException(kNoMemoryText);
    } catch (const std::exception& failure) {
        dialog.OnFileException(std::string("The operation failed: ") + failure.what());
    } catch (...) {
        dialog.OnFileException("The operation failed.");
    }
}

}  // namespace

void ReportFailure(CDialog& dialog) noexcept {
    try {
        ReportThrown(dialog);
    } catch (...) {
        return;  // no memory for the words
    }
}

}  // namespace lumerin
