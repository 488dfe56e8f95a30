// SPDX-License-Identifier: MIT
#include "session/ChoseLoadCasesDlg.h"

#include <array>
#include <vector>

#include "grid/CellNumber.h"
#include "grid/GridCellNumeric.h"
#include "grid/GridHelpers.h"
#include "session/Constants.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "text/Format.h"
#include "text/Paths.h"
#include "writers/GridExport.h"
#include "writers/PdfExport.h"

namespace lumerin {

namespace {

const ControlSpec kControls[] = {
#include "framework/ControlTable.h"
#include "framework/Index.h"

#include "session/dialogs/LoadCaseDialog.inc"
};

constexpr int kRowHeight = 30;
constexpr int kIncludeColumn = 1;
constexpr Colour kWhite = 0xffffff;
constexpr Colour kGridBackground = 0xd7d7d7;

}  // namespace

const DialogTemplate g_LoadCaseDialogTemplate{IDD_LOAD_CASES, "Choose Load Cases", 176, 222, true, kControls};

CChoseLoadCasesDlg::CChoseLoadCasesDlg(CaseSelection& selection)
    : CDialog(g_LoadCaseDialogTemplate), m_selection(selection) {}

bool CChoseLoadCasesDlg::OnCommand(int id, Notice notice) {
    static const CommandEntry<CChoseLoadCasesDlg> kMap[] = {
        {Notice::clicked, IDC_CASE_EXPORT, IDC_CASE_EXPORT, &CChoseLoadCasesDlg::OnExport},
        {Notice::clicked, IDC_CASES_ALL, IDC_CASES_ALL, &CChoseLoadCasesDlg::OnAll},
        {Notice::clicked, IDC_CASES_NONE, IDC_CASES_NONE, &CChoseLoadCasesDlg::OnNone},
    };
    return Dispatch(*this, kMap, id, notice) || CDialog::OnCommand(id, notice);
}

void CChoseLoadCasesDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Control(exchange, IDC_CASE_GRID, m_Grid);
    DDX_Control(exchange, IDC_CASES_ALL, m_lblAll);
    DDX_Control(exchange, IDC_CASES_NONE, m_lblNone);
}

bool CChoseLoadCasesDlg::OnInitDialog() {
    const bool focus = CDialog::OnInitDialog();
    SetWindowText("Choose " + g_DataSet.GetLoadLabel(false, true));
    SetItemText(IDC_CASE_EXPORT, m_nFormat == kFormatPdf ? "PDF" : "Excel");
    SetUpGrid();
    for (int row = 1; row <= g_DataSet.m_nLoadCases; ++row) {
        const bool selected = m_selection.IsFirstPierCaseSelected(g_DataSet, row - 1);
        m_Grid.SetCellText(row, 0, FormatInt(row));
        m_Grid.SetCellText(row, kIncludeColumn, FormatInt(selected ? 1 : 0));
    }
    m_lblAll.SetScale(ScreenScale());
    m_lblNone.SetScale(ScreenScale());
    return focus;
}

void CChoseLoadCasesDlg::SetUpGrid() {
    const int rows = g_DataSet.m_nLoadCases + 1;
    m_Grid.ClearGrid();
    m_Grid.SetRowCount(rows);
    m_Grid.SetColumnCount(2);
    for (int row = 0; row < rows; ++row) m_Grid.SetRowHeight(row, kRowHeight);
    m_Grid.SetFixedRowCount(0);
    m_Grid.SetFixedColumnCount(0);
    m_Grid.DefaultCell(false, false).SetBackground(kWhite);
    m_Grid.SetBackground(kGridBackground);
    m_Grid.SetEditable(true);
    m_Grid.SetRowsResizable(false);
    m_Grid.SetColumnsResizable(false);
    m_Grid.SetFixedRowClickSelects(false);
    m_Grid.SetFixedColumnClickSelects(false);
    m_Grid.SetCellText(0, 0, g_DataSet.GetLoadLabel(true, false));
    m_Grid.SetCellText(0, kIncludeColumn, "Include");
    for (int row = 1; row < rows; ++row) {
        m_Grid.SetCellClass(row, kIncludeColumn, CGridCellBOOL::classCGridCellBOOL);
    }
    ShadeFixedCells(m_Grid, 1, 1);
    const std::array<int, 2> weights{100, 100};
    std::array<int, 2> widths{};
    FitColumns(m_Grid, weights, widths);
    SetGridAlignment(m_Grid, 1, 1, kTextCenter, kTextCenter, kTextRight);
}

void CChoseLoadCasesDlg::OnMouseMove() {
    // The pointer is over the dialog itself, so it is over neither link.
    for (CLabel* label : {&m_lblAll, &m_lblNone}) {
        if (label->IsHover()) label->SetHover(false);
    }
}

void CChoseLoadCasesDlg::FillAll(const char* include) {
    for (int row = 1; row <= g_DataSet.m_nLoadCases; ++row) m_Grid.SetCellText(row, kIncludeColumn, include);
}

void CChoseLoadCasesDlg::OnAll(int) {
    FillAll("1");
}

void CChoseLoadCasesDlg::OnNone(int) {
    FillAll("0");
}

void CChoseLoadCasesDlg::OnOK() {
    bool any = false;
    std::vector<bool> selected;
    for (int row = 1; row <= g_DataSet.m_nLoadCases; ++row) {
        selected.push_back(ReadCellInt(m_Grid.GetCellText(row, kIncludeColumn)) != 0);
        any = any || selected.back();
    }
    if (!any) {
        backend::ShowMessage("Please select at least one " + g_DataSet.GetLoadLabel(false, false),
                             "Attention", MessageIcon::none, MessageButtons::ok);
        return;
    }
    for (int i = 0; i < g_DataSet.m_nLoadCases; ++i) {
        m_selection.SetCaseSelected(i, selected[Index(i)]);
    }
    EndDialog(IDOK);
}

void CChoseLoadCasesDlg::OnExport(int) {
    const std::string title = "Included " + g_DataSet.GetLoadLabel(false, true);
    if (m_nFormat != kFormatPdf) {
        const std::array<int, 2> types{kExportInteger, kExportInteger};
        OpenInSpreadsheet(ExportGrid(g_InputFilePath, {title, 1, types, 2.0}, m_Grid));
        return;
    }
    const std::string folder = FolderOf(g_InputFilePath);
    CPdfExport pdf(m_Grid, folder + g_PdfTempName, folder + title + g_ExtensionPdf);
    pdf.m_nHeaderRows = 1;
    pdf.m_sColumnWidth = "auto";
    pdf.m_sTitle = title;
    // Width 0 leaves the choice to the builder.
    pdf.m_pColumnTypes.assign(pdf.m_pColumnTypes.size(), 0);
    StartTableBuilder(pdf);
}

bool RunLoadCaseDialog(int format, CaseSelection& selection) {
    CChoseLoadCasesDlg dialog(selection);
    dialog.SetFormat(format);
    if (dialog.DoModal() != IDOK) return false;
    selection.FindFirstCases(g_DataSet);
    return true;
}

}  // namespace lumerin
