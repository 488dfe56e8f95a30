// SPDX-License-Identifier: MIT
#include "embedment/dialog/MPTEDlg.h"

#include <array>

#include "grid/CellNumber.h"
#include "grid/GridCellNumeric.h"
#include "grid/GridHelpers.h"
#include "session/Constants.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"
#include "text/Format.h"
#include "text/Paths.h"
#include "writers/GridExport.h"
#include "writers/PdfExport.h"

namespace lumerin {

namespace {

const ControlSpec kControls[] = {
#include "framework/ControlTable.h"

#include "embedment/dialog/dialogs/EmbedmentDialog.inc"
};

constexpr int kHeadingRows = 2, kColumns = 5;
constexpr int kEmbedmentColumn = 3, kValueColumn = 4;
constexpr int kRowHeight = 30;
constexpr Colour kWhite = 0xffffff;
constexpr Colour kGridBackground = 0xd7d7d7;
constexpr int kCaptureMargin = 5;  // pixels right of the graph's window

// The quotes are those of the Western code page.
constexpr const char* kDisplacementNote =
    "2. The \x91Lateral Displacement\x92, \x91Lateral X-Displacement\x92, and \x91Lateral Y-Displacement\x92 "
    "plots display maximums of resultant Lateral Displacement, X-displacement, and Y-displacement across "
    "pile "
    "heads.";
constexpr const char* kForceNote =
    "3. The \x91Max Axial Force\x92 plot displays maximum axial force for all pile elements. The \x91Min "
    "Axial "
    "Force\x92 plot displays minimum axial force for all pile elements.";

}  // namespace

const DialogTemplate g_EmbedmentDialogTemplate{IDD_EMBEDMENT, "Minimum Pile Tip Embedment", 566, 316, true,
                                               kControls};

CMPTEDlg::CMPTEDlg(const EmbedmentInput& input)
    : CDialog(g_EmbedmentDialogTemplate), m_pResults(input.inputFile, m_messages), m_input(input) {
    m_Graph.m_onClick = [this] { RunGuarded(*this, [this] { OnGraphClick(); }); };
}

bool CMPTEDlg::OnCommand(int id, Notice notice) {
    static const CommandEntry<CMPTEDlg> kMap[] = {
        {Notice::selectionChanged, IDC_STUDY_QUANTITY, IDC_STUDY_QUANTITY, &CMPTEDlg::OnQuantityChanged},
        {Notice::selectionChanged, IDC_STUDY_ENVELOPE_MODE, IDC_STUDY_ENVELOPE_MODE,
         &CMPTEDlg::OnQuantityChanged},
        {Notice::focusLost, IDC_STUDY_CASE, IDC_STUDY_CASE, &CMPTEDlg::OnCaseFocusLost},
        {Notice::textChanged, IDC_STUDY_CASE, IDC_STUDY_CASE, &CMPTEDlg::OnCaseChanged},
        {Notice::clicked, IDC_STUDY_EXPORT, IDC_STUDY_EXPORT, &CMPTEDlg::OnExport},
        {Notice::clicked, IDC_STUDY_INDIVIDUAL, IDC_STUDY_INDIVIDUAL, &CMPTEDlg::OnIndividual},
        {Notice::clicked, IDC_STUDY_ENVELOPE, IDC_STUDY_ENVELOPE, &CMPTEDlg::OnEnvelope},
    };
    return Dispatch(*this, kMap, id, notice) || CDialog::OnCommand(id, notice);
}

void CMPTEDlg::DoDataExchange(CDataExchange& exchange) {
    // The text first: its change notice is ignored as long as there is no spin button.
    DDX_Text(exchange, IDC_STUDY_CASE, m_nCase);
    DDX_Control(exchange, IDC_STUDY_SPIN, m_spinCase);
    DDX_Control(exchange, IDC_STUDY_QUANTITY, m_cmbQuantity);
    DDX_Control(exchange, IDC_STUDY_ENVELOPE_MODE, m_cmbEnvelope);
    DDX_Control(exchange, IDC_STUDY_GRID, m_Grid);
    DDX_Control(exchange, IDC_STUDY_GRAPH, m_Graph);
    DDX_Radio(exchange, IDC_STUDY_INDIVIDUAL, m_nViewMode);
}

bool CMPTEDlg::OnInitDialog() {
    const bool focus = CDialog::OnInitDialog();
    EnableItem(IDC_STUDY_ENVELOPE_MODE, false);
    m_pResults.LoadTrials();
    m_spinCase.SetRange(1, m_pResults.GetCaseCount());
    m_nCase = 1;
    m_spinCase.SetPos(1);
    for (const char* name : kQuantityNames) m_cmbQuantity.AddString(name);
    m_cmbQuantity.SetCurSel(0);
    m_cmbEnvelope.AddString("Max Envelope");
    m_cmbEnvelope.AddString("Min Envelope");
    m_cmbEnvelope.SetCurSel(0);
    SetUpGrid();
    FillGrid();
    DrawPlot();
    SetCaptions();
    return focus;
}

void CMPTEDlg::SetUpGrid() {
    const int rows = m_pResults.GetTrialCount() + kHeadingRows;
    m_Grid.ClearGrid();
    m_Grid.SetRowCount(rows);
    m_Grid.SetColumnCount(kColumns);
    for (int row = 0; row < rows; ++row) m_Grid.SetRowHeight(row, kRowHeight);
    m_Grid.SetFixedRowCount(0);
    m_Grid.SetFixedColumnCount(0);
    m_Grid.DefaultCell(false, false).SetBackground(kWhite);
    m_Grid.SetBackground(kGridBackground);
    m_Grid.SetEditable(false);
    m_Grid.SetRowsResizable(false);
    m_Grid.SetColumnsResizable(false);
    m_Grid.SetFixedRowClickSelects(false);
    m_Grid.SetFixedColumnClickSelects(false);
    SetGridHeadings();
    for (int row = kHeadingRows; row < rows; ++row) {
        m_Grid.SetCellClass(row, kValueColumn, CGridCellFloat::classCGridCellFloat);
    }
    ShadeFixedCells(m_Grid, kHeadingRows, 1);
    const std::array<int, kColumns> weights{80, 110, 70, 125, 125};
    std::array<int, kColumns> widths{};
    FitColumns(m_Grid, weights, widths);
    SetGridAlignment(m_Grid, kHeadingRows, 1, kTextCenter, kTextCenter, kTextRight);
}

void CMPTEDlg::SetCaptions() {
    SetItemText(IDC_STUDY_CASE_LABEL, m_input.data.GetLoadLabel(true, false));
    SetItemText(IDC_STUDY_INDIVIDUAL, "Individual " + m_input.data.GetLoadLabel(false, false));
    SetItemText(IDC_STUDY_ENVELOPE, (m_input.allCases ? "Envelope (All " : "Envelope (Custom Set of ") +
                                        m_input.data.GetLoadLabel(true, true) + ")");
    SetItemText(IDC_STUDY_EXPORT, m_nFormat == kFormatPdf ? "PDF" : "Excel");
    SetWindowText(
        FormatNumbered("Minimum Pile Tip Embedment - Substructure %i", m_pResults.GetSubstructure()));
    const std::string notes[] = {
        m_input.data.HasCombinations()
            ? "1. Results are presented for each load combination and each embedment."
            : "1. Results are presented for each load case and each embedment.",
        kDisplacementNote, kForceNote};
    CStatic control;
    control.m_hWnd = backend::Control(m_hWnd, IDC_STUDY_NOTES);
    SetNotesText(control, notes);
}

void SetNotesText(CWnd& control, std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n\n";
    control.SetWindowText(text);
}

// ---- choice of the case, the mode and the quantity

void CMPTEDlg::OnCaseChanged(int) {
    if (m_spinCase.m_hWnd != nullptr && !m_bRestoring) TakeCase(false);
}

void CMPTEDlg::OnCaseFocusLost(int) {
    TakeCase(true);
}

void CMPTEDlg::TakeCase(bool emptyIsInvalid) {
    const std::string text = ItemText(IDC_STUDY_CASE);
    if (text.empty() && !emptyIsInvalid) return;
    const int number = ReadCellInt(text);
    if (number >= 1 && number <= m_pResults.GetCaseCount()) {
        UpdateData(true);
        m_nCase = number;
        m_spinCase.SetPos(m_nCase);
        FillGrid();
        DrawPlot();
        return;
    }
    RestoreCase();
    AfxMessageBox("Invalid load case.");
}

void CMPTEDlg::RestoreCase() {
    // Reset also after an exception: otherwise no case could be chosen after a failure.
    struct Restoring {
        bool& on;
        ~Restoring() { on = false; }
    };
    m_bRestoring = true;
    const Restoring restoring{m_bRestoring};
    CDataExchange exchange(*this, false);
    DDX_Text(exchange, IDC_STUDY_CASE, m_nCase);
}

void CMPTEDlg::OnIndividual(int) {
    UpdateData(true);
    EnableItem(IDC_STUDY_CASE_LABEL, true);
    EnableItem(IDC_STUDY_CASE, true);
    m_cmbEnvelope.EnableWindow(false);
    FillGrid();
    DrawPlot();
}

void CMPTEDlg::OnEnvelope(int) {
    UpdateData(true);
    EnableItem(IDC_STUDY_CASE_LABEL, false);
    EnableItem(IDC_STUDY_CASE, false);
    m_cmbEnvelope.EnableWindow(true);
    FillGrid();
    DrawPlot();
}

void CMPTEDlg::OnQuantityChanged(int) {
    SetGridHeadings();
    FillGrid();
    DrawPlot();
}

void CMPTEDlg::OnGraphClick() {
    const int row = GridRowForX(m_Graph.GetClickedX());
    if (row < kHeadingRows || row >= m_Grid.GetRowCount()) return;
    m_Grid.ScrollCellIntoView(row, kEmbedmentColumn);
    m_Grid.MoveFocusCell(row, kEmbedmentColumn);
    m_Grid.SelectRange(row, kEmbedmentColumn, row, kEmbedmentColumn, true, true);
}

// ---- export

void CMPTEDlg::CaptureGraphImage(const std::string& path) {
    const ScreenRect place = m_Graph.Place();
    m_Capture.Capture(1.0, path, true, place.left, place.top, place.right + kCaptureMargin, place.bottom);
}

void CMPTEDlg::ExportPdf() {
    const std::string folder = FolderOf(m_input.inputFile);
    const std::string image = folder + BuildPlotTitle(m_nCase, m_cmbQuantity.GetCurSel()) + ".bmp";
    CaptureGraphImage(image);
    CPdfExport pdf(m_Grid, folder + g_PdfTempName, folder + "MPTE.pdf");
    pdf.m_sTitle = "Minimum Pile Tip Embedment Analysis Results";
    pdf.m_sImagePath = image;
    pdf.m_nHeaderRows = kHeadingRows;
    pdf.m_sColumnWidth = "auto";
    // Width 0 leaves the choice to the builder.
    pdf.m_pColumnTypes.assign(pdf.m_pColumnTypes.size(), 0);
    StartTableBuilder(pdf);
}

void CMPTEDlg::OnExport(int) {
    if (m_nFormat == kFormatPdf) {
        ExportPdf();
        return;
    }
    const std::string title = BuildPlotTitle(m_nCase, m_cmbQuantity.GetCurSel());
    const std::array<int, 3> types{kExportInteger, kExportReal2, kExportReal6};
    OpenInSpreadsheet(ExportGrid(m_input.inputFile, {title, kHeadingRows, types, 2.0}, m_Grid));
}

}  // namespace lumerin
