// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Dialog.h"
#include "grid/GridCtrl.h"
#include "grid/Label.h"
#include "model/CaseSelection.h"

namespace lumerin {

// The choice of the cases that the tables consider: one row a case, 1 for included and 0 for excluded. The
// result is stored in the selection, which the caller owns.
class CChoseLoadCasesDlg : public CDialog {
  public:
    explicit CChoseLoadCasesDlg(CaseSelection& selection);

    // The report format of the calling dialog; it decides what the export button writes.
    void SetFormat(int format) { m_nFormat = format; }

    bool OnInitDialog() override;
    bool OnCommand(int id, Notice notice) override;
    void OnMouseMove() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange& exchange) override;

    CGridCtrl m_Grid;
    CLabel m_lblAll, m_lblNone;
    int m_nFormat = 0;

  private:
    void SetUpGrid();
    void FillAll(const char* include);
    void OnAll(int id);
    void OnNone(int id);
    void OnExport(int id);

    CaseSelection& m_selection;
};

// Opens the dialog over the loaded project and, after OK, finds the first case
// of each class again. True after OK: the caller refreshes its controls and the tables' applicability.
bool RunLoadCaseDialog(int format, CaseSelection& selection);

}  // namespace lumerin
