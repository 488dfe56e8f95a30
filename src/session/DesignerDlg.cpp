// SPDX-License-Identifier: MIT
#include "session/DesignerDlg.h"

#include <algorithm>

#include "embedment/dialog/EmbedmentDialog.h"
#include "session/ChoseLoadCasesDlg.h"
#include "session/Constants.h"
#include "session/PlotModule.h"
#include "session/PlotWords.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "session/TableRun.h"

namespace lumerin {

namespace {

constexpr ControlSpec kControls[] = {
#include "framework/ControlTable.h"

#include "session/dialogs/ReportDialog.inc"
};

constexpr int kFooterParts[] = {IDC_FOOTER_DATE, IDC_FOOTER_TIME, IDC_FOOTER_VERSION, IDC_FOOTER_FILE_NAME};
constexpr const char* kNoProjectText = "There is currently no input file selected.";
constexpr const char* kPileHeadQuestion =
    "This table is currently available only in EXCEL format. Do you wish to change the format to EXCEL?";
constexpr const char* kNoHelpText =
    "No Help Manual topic exists for this control.\n"
    "To open the Help Manual, either choose another\n"
    "control, or open the Help Manual using the\n"
    "'Help' menu item on the menu bar.";
constexpr const char* kNoPlotModuleText =
    "Pier Cap Envelopes could not be displayed.  Please contact Ovrelle.";

bool HasHelpTopic(int id) {
    return (id >= IDD_REPORT && id <= IDC_TITLE_PAGE) || (id >= IDC_MAX_AXIAL && id <= IDC_EXTRA_MEMBERS) ||
           (id >= IDC_FOOTER_VERSION && id <= IDC_FORMAT_EXCEL);
}

// The structure types whose tables a project of one substructure offers.
bool OffersTables(StructureType type) {
    return type == kTypePier || type == kTypePileGroup || type == kTypePileBent;
}

}  // namespace

const DialogTemplate g_ReportDialogTemplate = {IDD_REPORT, "Lumerin Generator", 388, 268, false, kControls};

CDesignerDlg::CDesignerDlg() : CDialog(g_ReportDialogTemplate), m_nFormat(g_InitialReportFormat) {}

bool CDesignerDlg::OnCommand(int id, Notice notice) {
    static constexpr CommandEntry<CDesignerDlg> map[] = {
        {Notice::clicked, IDC_MAX_AXIAL, IDC_CAP_MOMENT, &CDesignerDlg::OnTable},
        {Notice::clicked, IDC_PILE_FORCES, IDC_EXTRA_MEMBERS, &CDesignerDlg::OnTable},
        {Notice::clicked, IDC_FULL_REPORT, IDC_FULL_REPORT, &CDesignerDlg::OnFullReport},
        {Notice::clicked, IDC_FOOTER, IDC_FOOTER, &CDesignerDlg::OnFooterCheck},
        {Notice::clicked, IDC_TITLE_PAGE, IDC_TITLE_PAGE, &CDesignerDlg::OnTitlePage},
        {Notice::clicked, IDC_FORMAT_PDF, IDC_FORMAT_PDF, &CDesignerDlg::OnFormatPdfOrExcel},
        {Notice::clicked, IDC_FORMAT_EXCEL, IDC_FORMAT_EXCEL, &CDesignerDlg::OnFormatPdfOrExcel},
        {Notice::clicked, IDC_FORMAT_TEXT, IDC_FORMAT_TEXT, &CDesignerDlg::OnFormatText},
        {Notice::clicked, IDC_CAP_ENVELOPES, IDC_CAP_ENVELOPES, &CDesignerDlg::OnCapEnvelopes},
        {Notice::clicked, IDC_PILE_HEADS, IDC_PILE_HEADS, &CDesignerDlg::OnPileHeadForces},
        {Notice::clicked, IDC_EMBEDMENT, IDC_EMBEDMENT, &CDesignerDlg::OnEmbedment},
        {Notice::clicked, IDC_ALL_CASES, IDC_ALL_CASES, &CDesignerDlg::OnAllLoadCases},
        {Notice::clicked, IDC_CUSTOM_CASES, IDC_CUSTOM_CASES, &CDesignerDlg::OnCustomLoadCases},
        {Notice::clicked, IDC_CHOOSE_CASES, IDC_CHOOSE_CASES, &CDesignerDlg::OnChooseLoadCases},
    };
    return Dispatch(*this, map, id, notice) || CDialog::OnCommand(id, notice);
}

void CDesignerDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Check(exchange, IDC_FOOTER, m_nFooterOn);
    DDX_Check(exchange, IDC_FOOTER_DATE, m_nFooterDate);
    DDX_Check(exchange, IDC_FOOTER_TIME, m_nFooterTime);
    DDX_Check(exchange, IDC_FOOTER_VERSION, m_nFooterVersion);
    DDX_Check(exchange, IDC_FOOTER_FILE_NAME, m_nFooterFileName);
    DDX_Control(exchange, IDC_FOOTER, m_btnFooter);
    DDX_Radio(exchange, IDC_FORMAT_EXCEL, m_nFormat);
    DDX_Radio(exchange, IDC_ALL_CASES, m_nLoadCaseChoice);
}

bool CDesignerDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    if (g_DataLoaded) return true;
    const CWaitCursor wait;
    ResetSession();
    DerivePaths();
    // A load that fails leaves the buttons as they are; they work on an empty model then, not on half of one.
    m_bProjectLoaded = LoadSessionProject(m_state);
    if (m_bProjectLoaded) RefreshControls();
    return true;
}

bool CDesignerDlg::RefuseWithoutProject() const {
    if (!g_ProjectBasePath.empty()) return false;
    AfxMessageBox(kNoProjectText);
    return true;
}

void CDesignerDlg::CopyOptions() {
    UpdateData(true);
    g_FooterOn = m_nFooterOn;
    g_FooterDate = m_nFooterDate;
    g_FooterTime = m_nFooterTime;
    g_FooterVersion = m_nFooterVersion;
    g_FooterFileName = m_nFooterFileName;
    g_ReportFormat = m_nFormat;
}

// ---- format, footer and load case choice

void CDesignerDlg::ShowFooterParts(bool visible) {
    for (const int id : kFooterParts) ShowItem(id, visible);
}

void CDesignerDlg::OnFooterCheck(int) {
    m_nFooterOn = m_btnFooter.GetCheck() ? 1 : 0;
    ShowFooterParts(m_nFooterOn != 0);
}

// The footer's own state stays: after "Text" it remains off until it is checked again.
void CDesignerDlg::OnFormatPdfOrExcel(int) {
    UpdateData(true);
    m_btnFooter.EnableWindow(OffersTables(g_DataSet.m_nStructureType));
}

void CDesignerDlg::OnFormatText(int) {
    UpdateData(true);
    ShowFooterParts(false);
    m_nFooterOn = m_nFooterDate = m_nFooterTime = m_nFooterVersion = m_nFooterFileName = 0;
    UpdateData(false);
    m_btnFooter.EnableWindow(false);
}

// Neither choice touches the selection itself: a custom set stays in force after "All".
void CDesignerDlg::OnAllLoadCases(int) {
    g_AllLoadCases = true;
    EnableItem(IDC_CHOOSE_CASES, false);
}

void CDesignerDlg::OnCustomLoadCases(int) {
    g_AllLoadCases = false;
    EnableItem(IDC_CHOOSE_CASES, true);
}

void CDesignerDlg::OnChooseLoadCases(int) {
    if (!RunLoadCaseDialog(m_nFormat, m_state.selection)) return;
    RefreshControls();
    m_state.enabled = ApplicableTables(g_DataSet, m_state.selection);
}

// ---- tables

void CDesignerDlg::OnTable(int id) {
    if (RefuseWithoutProject()) return;
    const CWaitCursor wait;
    CopyOptions();
    if (const TableRun* run = FindTableRun(id)) RunTable(*run, m_nFormat, m_state, m_viewer);
}

void CDesignerDlg::OnFullReport(int) {
    if (RefuseWithoutProject()) return;
    const CWaitCursor wait;
    CopyOptions();
    RunFullReport(m_nFormat, m_state, m_viewer);
}

void CDesignerDlg::OnPileHeadForces(int) {
    if (RefuseWithoutProject()) return;
    if (m_nFormat == kFormatPdf || m_nFormat == kFormatText) {
        if (AfxMessageBox(kPileHeadQuestion, MessageIcon::question, MessageButtons::yesNo) !=
            MessageAnswer::yes) {
            return;
        }
        // Only the radio button changes; the footer boxes keep their state.
        m_nFormat = kFormatSpreadsheet;
        CDataExchange exchange(*this, false);
        DDX_Radio(exchange, IDC_FORMAT_EXCEL, m_nFormat);
    }
    const CWaitCursor wait;
    CopyOptions();
    RunPileHeadForces(m_nFormat, m_state, m_viewer);
}

void CDesignerDlg::OnTitlePage(int) {
    if (RefuseWithoutProject()) return;
    backend::BeginWaitCursor();
    CopyOptions();
    if (m_nFormat == kFormatSpreadsheet) {
        // The wait cursor remains after this message.
        AfxMessageBox(
            "The Title Page can only be created in the Text and PDF formats.  \n"
            "Please unselect the Excel option, and re-click this button.");
        return;
    }
    RunTitlePage(m_nFormat);
    backend::EndWaitCursor();
}

void CDesignerDlg::OnCapEnvelopes(int) {
    if (RefuseWithoutProject()) return;
    CopyOptions();
    if (RunEnvelopeFile(m_state)) LaunchPlotModule();
}

void CDesignerDlg::OnEmbedment(int) {
    if (RefuseWithoutProject()) return;
    RunEmbedmentDialog({g_InputFilePath, g_DataSet, m_state.selection, g_AllLoadCases}, m_nFormat);
}

void CDesignerDlg::LaunchPlotModule() {
    PlotModuleCall call;
    call.format = std::min(m_nFormat, 1);
    call.dataFile = g_OutputFilePath;
    call.plot = FirstPlotWord(g_DataSet, m_state.selection);
    call.family = LimitFamilyWord(g_DataSet, m_state.selection);
    call.version = g_VersionText;
    call.zeroA = std::string(1, '0');
    call.zeroB = call.zeroA;
    call.argument = g_EnvelopePlotArgument;
    std::string systemText;
    switch (CallPlotModule(call, systemText)) {
        case PlotModuleResult::moduleMissing:
            AfxMessageBox(kNoPlotModuleText);
            break;
        case PlotModuleResult::exportMissing:
            AfxMessageBox(systemText);
            break;
        case PlotModuleResult::called:
            break;
    }
}

bool CDesignerDlg::OnHelpInfo(int controlId) {
    if (m_nHelpContext != 0 || !HasHelpTopic(controlId)) {
        AfxMessageBox(kNoHelpText);
        return true;
    }
    std::string folder = ModuleFolder();
    folder.erase(0, std::min(folder.find_first_not_of(' '), folder.size()));
    std::string page = "\"file:///";
    page.append(folder).append("HelpFiles\\Default.htm\"");
    services::ShellOpen("open", page, "");
    return true;
}

}  // namespace lumerin
