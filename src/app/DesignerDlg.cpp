#include "app/DesignerDlg.h"

#include <algorithm>

#include "app/ChoseLoadCasesDlg.h"
#include "app/PlotWords.h"
#include "app/TableRun.h"
#include "embedment/EmbedmentDialog.h"
#include "model/DataSet.h"
#include "session/Constants.h"
#include "session/Session.h"

namespace {

constexpr ControlSpec kControls[] = {
#include "framework/ControlTable.h"

#include "app/dialogs/ReportDialog.inc"
};

constexpr int kFooterParts[] = {1017, 1016, 1014, 1018};
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
    return (id >= 1000 && id <= 1002) || (id >= 1004 && id <= 1012) || (id >= 1014 && id <= 1021);
}

// The structure types whose tables a project of one substructure offers.
bool OffersTables(int type) {
    return type == kTypePier || type == kTypePileGroup || type == kTypePileBent;
}

}  // namespace

const DialogSpec g_ReportDialogSpec = {1000, "Lumerin Generator", 388, 268, false, kControls};

CDesignerDlg::CDesignerDlg() : CDialog(g_ReportDialogSpec), m_nFormat(g_InitialReportFormat) {}

bool CDesignerDlg::OnCommand(int id, Notice notice) {
    static constexpr CommandEntry<CDesignerDlg> map[] = {
        {Notice::clicked, 1004, 1008, &CDesignerDlg::OnTable},
        {Notice::clicked, 1010, 1012, &CDesignerDlg::OnTable},
        {Notice::clicked, 1001, 1001, &CDesignerDlg::OnFullReport},
        {Notice::clicked, 1015, 1015, &CDesignerDlg::OnFooterCheck},
        {Notice::clicked, 1002, 1002, &CDesignerDlg::OnTitlePage},
        {Notice::clicked, 1019, 1019, &CDesignerDlg::OnFormatPdfOrExcel},
        {Notice::clicked, 1021, 1021, &CDesignerDlg::OnFormatPdfOrExcel},
        {Notice::clicked, 1020, 1020, &CDesignerDlg::OnFormatText},
        {Notice::clicked, 1009, 1009, &CDesignerDlg::OnCapEnvelopes},
        {Notice::clicked, 1013, 1013, &CDesignerDlg::OnPileHeadForces},
        {Notice::clicked, 1022, 1022, &CDesignerDlg::OnEmbedment},
        {Notice::clicked, 1037, 1037, &CDesignerDlg::OnAllLoadCases},
        {Notice::clicked, 1038, 1038, &CDesignerDlg::OnCustomLoadCases},
        {Notice::clicked, 1039, 1039, &CDesignerDlg::OnChooseLoadCases},
    };
    return Dispatch(*this, map, id, notice) || CDialog::OnCommand(id, notice);
}

void CDesignerDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Check(exchange, 1015, m_nFooterOn);
    DDX_Check(exchange, 1017, m_nFooterDate);
    DDX_Check(exchange, 1016, m_nFooterTime);
    DDX_Check(exchange, 1014, m_nFooterVersion);
    DDX_Check(exchange, 1018, m_nFooterFileName);
    DDX_Control(exchange, 1015, m_btnFooter);
    DDX_Radio(exchange, 1021, m_nFormat);
    DDX_Radio(exchange, 1037, m_nLoadCaseChoice);
}

bool CDesignerDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    if (g_DataLoaded) return true;
    const CWaitCursor wait;
    g_DataSet.Reset();
    DerivePaths();
    m_bProjectLoaded = LoadProject();
    if (m_bProjectLoaded) {
        g_DataSet.SetTableApplicability();
        RefreshControls();
    }
    return true;
}

// A load that fails leaves the buttons as they are; they must find an empty model then, not half of one.
bool CDesignerDlg::LoadProject() {
    const auto empty = [] {
        g_DataSet.FreePiers();
        g_DataSet.Reset();
    };
    try {
        if (g_DataSet.LoadProject()) return true;
    } catch (...) {
        empty();
        throw;
    }
    empty();
    return false;
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

// The footer's own state stays: behind "Text" it remains off until it is checked again.
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

// Neither choice touches the selection itself: a custom set stays in force behind "All".
void CDesignerDlg::OnAllLoadCases(int) {
    g_AllLoadCases = true;
    EnableItem(1039, false);
}

void CDesignerDlg::OnCustomLoadCases(int) {
    g_AllLoadCases = false;
    EnableItem(1039, true);
}

void CDesignerDlg::OnChooseLoadCases(int) {
    if (!RunLoadCaseDialog(m_nFormat)) return;
    RefreshControls();
    g_DataSet.SetTableApplicability();
}

// ---- tables

void CDesignerDlg::OnTable(int id) {
    if (RefuseWithoutProject()) return;
    const CWaitCursor wait;
    CopyOptions();
    if (const TableRun* run = FindTableRun(id)) m_bOutputFailed = !RunTable(*run, m_nFormat, m_viewer);
}

void CDesignerDlg::OnFullReport(int) {
    if (RefuseWithoutProject()) return;
    const CWaitCursor wait;
    CopyOptions();
    m_bOutputFailed = !RunFullReport(m_nFormat, m_viewer);
}

void CDesignerDlg::OnPileHeadForces(int) {
    if (RefuseWithoutProject()) return;
    if (m_nFormat == kFormatPdf || m_nFormat == kFormatText) {
        if (AfxMessageBox(kPileHeadQuestion, MessageIcon::question, MessageButtons::yesNo) !=
            MessageAnswer::yes) {
            return;
        }
        // The radio button alone moves; the footer boxes keep what they show.
        m_nFormat = kFormatSpreadsheet;
        CDataExchange exchange(*this, false);
        DDX_Radio(exchange, 1021, m_nFormat);
    }
    const CWaitCursor wait;
    CopyOptions();
    m_bOutputFailed = !RunPileHeadForces(m_nFormat, m_viewer);
}

void CDesignerDlg::OnTitlePage(int) {
    if (RefuseWithoutProject()) return;
    backend::BeginWaitCursor();
    CopyOptions();
    if (m_nFormat == kFormatSpreadsheet) {
        // The wait cursor stays up behind this message.
        AfxMessageBox(
            "The Title Page can only be created in the Text and PDF formats.  \n"
            "Please unselect the Excel option, and re-click this button.");
        return;
    }
    m_bOutputFailed = !RunTitlePage(m_nFormat);
    backend::EndWaitCursor();
}

void CDesignerDlg::OnCapEnvelopes(int) {
    if (RefuseWithoutProject()) return;
    CopyOptions();
    RunEnvelopeFile();
    LaunchPlotModule();
}

void CDesignerDlg::OnEmbedment(int) {
    if (RefuseWithoutProject()) return;
    RunEmbedmentDialog(g_DataSet.m_nUnits, m_nFormat);
}

void CDesignerDlg::LaunchPlotModule() {
    services::PlotModuleCall call;
    call.format = std::min(m_nFormat, 1);
    call.dataFile = g_OutputFilePath;
    call.plot = FirstPlotWord(g_DataSet);
    call.family = LimitFamilyWord(g_DataSet);
    call.version = g_VersionText;
    call.zeroA = std::string(1, '0');
    call.zeroB = call.zeroA;
    call.argument = g_EnvelopePlotArgument;
    std::string systemText;
    switch (services::CallPlotModule("Sorvane.dll", "LaunchSorvane", call, systemText)) {
        case services::PlotModuleResult::moduleMissing:
            AfxMessageBox(kNoPlotModuleText);
            break;
        case services::PlotModuleResult::exportMissing:
            AfxMessageBox(systemText);
            break;
        case services::PlotModuleResult::called:
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
