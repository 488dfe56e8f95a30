// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Backend.h"
#include "framework/Object.h"

namespace lumerin {

// A window of the platform. The object does not own the window: the dialog that made it does.
class CWnd : public CObject {
  public:
    static const CRuntimeClass classCWnd;

    const CRuntimeClass& GetRuntimeClass() const override { return classCWnd; }

    void SetWindowText(const std::string& text) { backend::SetText(m_hWnd, text); }
    std::string GetWindowText() const { return backend::Text(m_hWnd); }
    void EnableWindow(bool enabled = true) { backend::Enable(m_hWnd, enabled); }
    bool IsWindowEnabled() const { return backend::IsEnabled(m_hWnd); }
    void ShowWindow(bool visible) { backend::Show(m_hWnd, visible); }
    bool IsWindowVisible() const { return backend::IsVisible(m_hWnd); }
    void SetFocus() { backend::SetFocus(m_hWnd); }

    // Called when a dialog binds this object to one of its controls; a control with its own behaviour (the
    // grid, a link label) attaches itself to the window here. May be called again for the same window.
    virtual void OnAttach() {}

    WindowHandle m_hWnd = nullptr;
};

inline const CRuntimeClass CWnd::classCWnd{"CWnd", &CObject::classCObject};

class CButton : public CWnd {
  public:
    bool GetCheck() const { return backend::IsChecked(m_hWnd); }
};

class CEdit : public CWnd {};

class CStatic : public CWnd {};

class CComboBox : public CWnd {
  public:
    void AddString(const std::string& entry) { backend::ComboAdd(m_hWnd, entry); }
    void SetCurSel(int index) { backend::ComboSelect(m_hWnd, index); }
    int GetCurSel() const { return backend::ComboSelection(m_hWnd); }
};

class CSpinButtonCtrl : public CWnd {
  public:
    void SetRange(int low, int high) { backend::SpinSetRange(m_hWnd, low, high); }
    void SetPos(int position) { backend::SpinSetPosition(m_hWnd, position); }
    int GetPos() const { return backend::SpinPosition(m_hWnd); }
};

}  // namespace lumerin
