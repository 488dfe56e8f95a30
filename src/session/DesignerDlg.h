// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Dialog.h"
#include "session/OutputFiles.h"
#include "session/ReportState.h"

namespace lumerin {

extern const DialogTemplate g_ReportDialogTemplate;  // IDD_REPORT

// The module's main window, "Lumerin Generator": it shows what the loaded project allows, holds the report
// options and turns each button into one run of a table.
class CDesignerDlg : public CDialog {
  public:
    CDesignerDlg();

    bool OnInitDialog() override;
    bool OnCommand(int id, Notice notice) override;
    bool OnHelpInfo(int controlId) override;
    void DoDataExchange(CDataExchange& exchange) override;

    ReportState& State() { return m_state; }

    // Sets captions and enabled states for the loaded project.
    void RefreshControls();

    // Whether the project was read to its end; false before that and after a failure.
    bool IsProjectLoaded() const { return m_bProjectLoaded; }

    ViewerSettings m_viewer;
    int m_nFooterOn = 1, m_nFooterDate = 1, m_nFooterTime = 1, m_nFooterVersion = 1, m_nFooterFileName = 1;
    CButton m_btnFooter;
    int m_nFormat;
    int m_nLoadCaseChoice = 0;
    int m_nHelpContext = 0;

  private:
    void OnTable(int id);
    void OnFullReport(int id);
    void OnTitlePage(int id);
    void OnPileHeadForces(int id);
    void OnCapEnvelopes(int id);
    void OnEmbedment(int id);
    void OnFooterCheck(int id);
    void OnFormatPdfOrExcel(int id);
    void OnFormatText(int id);
    void OnAllLoadCases(int id);
    void OnCustomLoadCases(int id);
    void OnChooseLoadCases(int id);

    bool RefuseWithoutProject() const;  // true: there is no project, the message was shown
    void CopyOptions();
    void ShowFooterParts(bool visible);
    void RefreshCaptions();
    void RefreshOnePier(StructureType type);
    void RefreshSeveralPiers();
    void RefreshMemberTables(bool columnTables);
    void RefreshCapTables(const std::string& cap);
    void EnableEmbedment();
    void LaunchPlotModule();

    ReportState m_state;
    bool m_bProjectLoaded = false;
};

}  // namespace lumerin
