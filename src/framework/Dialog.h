// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/ControlList.h"
#include "framework/Window.h"

namespace lumerin {

class CDialog;

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

enum class Notice { clicked, textChanged, focusLost, selectionChanged };

// Moves values between a dialog's members and its controls; m_bSave is the direction.
class CDataExchange {
  public:
    CDataExchange(CDialog& dialog, bool saveAndValidate) : m_dialog(dialog), m_bSave(saveAndValidate) {}
    CDialog& m_dialog;
    bool m_bSave;  // true: from the controls into the members
};

void DDX_Control(CDataExchange& exchange, int id, CWnd& control);
void DDX_Check(CDataExchange& exchange, int id, int& value);
// `firstId` is the first radio button of its group in the dialog's control list. The value is the position
// of the checked button in the group, -1 when none is checked.
void DDX_Radio(CDataExchange& exchange, int firstId, int& value);
void DDX_Text(CDataExchange& exchange, int id, int& value);

// The radio buttons of the group that `id` belongs to, in resource order; empty when `id` is no radio button.
// A group begins at a button marked so and ends before the next such one or before another kind of control.
std::vector<int> RadioGroupOf(const DialogTemplate& spec, int id);

// One line of a dialog's message map: identifiers first to last send the notice to the handler.
template <class Dialog>
struct CommandEntry {
    Notice notice;
    int firstId, lastId;
    void (Dialog::*handler)(int id);
};

// A modal dialog. Handlers run on the caller's thread inside DoModal.
class CDialog : public CWnd {
  public:
    static const CRuntimeClass classCDialog;

    explicit CDialog(const DialogTemplate& spec) : m_spec(spec) {}
    const CRuntimeClass& GetRuntimeClass() const override { return classCDialog; }

    // Returns the result of EndDialog; -1 when the dialog could not be made.
    int DoModal() { return backend::RunDialog(*this); }
    bool UpdateData(bool saveAndValidate = true);

    void SetItemText(int id, const std::string& text);
    std::string ItemText(int id) const;
    void EnableItem(int id, bool enabled);
    void ShowItem(int id, bool visible);

    const DialogTemplate& Spec() const { return m_spec; }

    // Called by the backend.
    virtual bool OnInitDialog();
    virtual bool OnCommand(int id, Notice notice);  // true: handled
    virtual bool OnHelpInfo(int controlId) { return controlId == kNoId; }
    virtual void OnMouseMove() {}
    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    virtual void DoDataExchange(CDataExchange&) {}
    // A failure that a handler threw: it is reported in a message box, and the dialog stays open.
    virtual void OnFileException(const std::string& text);

    void EndDialog(int result) { backend::EndDialog(m_hWnd, result); }

  protected:
    // Runs the first entry that matches. False: there is none.
    template <class Dialog, std::size_t N>
    static bool Dispatch(Dialog& dialog, const CommandEntry<Dialog> (&map)[N], int id, Notice notice) {
        for (const CommandEntry<Dialog>& entry : map) {
            if (entry.notice == notice && entry.firstId <= id && id <= entry.lastId) {
                (dialog.*entry.handler)(id);
                return true;
            }
        }
        return false;
    }

  private:
    const DialogTemplate& m_spec;
};

inline const CRuntimeClass CDialog::classCDialog{"CDialog", &CWnd::classCWnd};

// Reports the exception that is being handled by the dialog's OnFileException; to be called from a catch
// clause. When there is no memory even for the text, nothing is reported.
void ReportFailure(CDialog& dialog) noexcept;

// Runs one step of a dialog's message dispatch: no exception leaves it. A failure that the step throws is
// reported, the dialog stays open, and the result is false. This function allocates no memory, so that it
// works when none is left.
template <class Step>
bool RunGuarded(CDialog& dialog, Step&& step) noexcept {
    try {
        step();
        return true;
    } catch (...) {
        ReportFailure(dialog);
        return false;
    }
}

}  // namespace lumerin
