// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "embedment/EmbedmentResults.h"
#include "embedment/StudyCurves.h"
#include "embedment/dialog/CaptureEx.h"
#include "embedment/dialog/EmbedmentDialog.h"
#include "embedment/dialog/NTGraphTarnsway.h"
#include "framework/Dialog.h"
#include "grid/GridCtrl.h"
#include "session/ReportState.h"

namespace lumerin {

extern const DialogTemplate g_EmbedmentDialogTemplate;  // IDD_EMBEDMENT

// The results of the embedment study: one quantity against the embedment length as a curve, and the same
// points as a table, for one load case or as an envelope over the cases.
class CMPTEDlg : public CDialog {
  public:
    explicit CMPTEDlg(const EmbedmentInput& input);

    // The caller sets both before DoModal: the unit system (0 US, anything else SI) and the report format.
    void SetUnits(int units) { m_nUnits = units; }
    void SetFormat(int format) { m_nFormat = format; }

    bool OnInitDialog() override;
    bool OnCommand(int id, Notice notice) override;
    void DoDataExchange(CDataExchange& exchange) override;

    bool HasCombinations() const { return m_input.data.HasCombinations(); }
    // The cases of the envelopes.
    StudyCases Cases() const;
    // FindEnvelopePoint; quantity and mode of -1 are those of the combo boxes.
    CEnvelopePoint GetEnvelopePoint(int trial, int quantity, int mode) const;

    // ---- table and plot (MPTEPlot.cpp)
    void SetGridHeadings();
    void FillGrid();
    void ComputeRanges();
    void DrawPlot();
    // The row of the trial that an x of the plot belongs to; -1: none.
    int GridRowForX(double x) const;
    std::string BuildPlotTitle(int number, int quantity) const;
    std::string BuildYLabel(int quantity) const;
    static std::string BuildFormat(int decimals);

    void CaptureGraphImage(const std::string& path);

    CSpinButtonCtrl m_spinCase;
    CComboBox m_cmbQuantity, m_cmbEnvelope;
    CGridCtrl m_Grid;
    CNTGraphTarnsway m_Graph;
    int m_nViewMode = 0;  // 0 individual, 1 envelope
    int m_nCase = 1;
    CaptureEx m_Capture;
    BoxMessages m_messages;
    CEmbedmentResults m_pResults;
    int m_nUnits = 0, m_nFormat = 0;
    double m_dMinX = 0.0, m_dMaxX = 0.0, m_dMinY = 0.0, m_dMaxY = 0.0;  // data of the current view

  private:
    void SetUpGrid();
    void SetCaptions();
    void TakeCase(bool emptyIsInvalid);
    void RestoreCase();
    void OnQuantityChanged(int id);
    void OnCaseFocusLost(int id);
    void OnCaseChanged(int id);
    void OnExport(int id);
    void OnIndividual(int id);
    void OnEnvelope(int id);
    void OnGraphClick();
    void ExportPdf();

    CEnvelopePoint PointOf(int trial) const;  // of the current view
    void FillTrialRow(int trial);
    void SetPlotTexts();
    void SetPlotAxes();
    bool IsEnvelope() const { return m_nViewMode == 1; }
    const char* LengthUnit() const;
    const char* QuantityUnit(int quantity) const;

    // A case that the project has no selection for is not selected.
    bool TakesPart(int loadCase) const;
    int FirstCase() const;  // -1: none is selected

    EmbedmentInput m_input;
    bool m_bRestoring = false;  // the case's text is being put back; its change notice is no choice
};

// Writes the lines into a text control, each followed by an empty line.
void SetNotesText(CWnd& control, std::span<const std::string> lines);

}  // namespace lumerin
