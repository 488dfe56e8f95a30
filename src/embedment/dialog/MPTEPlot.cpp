// SPDX-License-Identifier: MIT
#include <algorithm>

#include "embedment/ScaleAxis.h"
#include "embedment/dialog/MPTEDlg.h"
#include "framework/Index.h"
#include "grid/CellNumber.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr int kHeadingRows = 2;
constexpr int kFewestDecimals = 4, kMostDecimals = 6;
constexpr int kPlotColour = 0xdcdcdc;

// The number that the table shows, so that a click on a point meets its row.
double AsShown(double value) {
    return ReadCellDouble(FormatFixed(value, 2));
}

}  // namespace

bool CMPTEDlg::TakesPart(int loadCase) const {
    return m_input.allCases || m_input.selection.IsFirstPierCaseSelected(m_input.data, loadCase);
}

int CMPTEDlg::FirstCase() const {
    if (m_input.allCases) return 0;
    for (int i = 0; i < m_input.data.m_nLoadCases; ++i) {
        if (TakesPart(i)) return i;
    }
    return -1;
}

const char* CMPTEDlg::LengthUnit() const {
    return m_nUnits == 0 ? "(ft)" : "(m)";
}

const char* CMPTEDlg::QuantityUnit(int quantity) const {
    const StudyWords& words = StudyWordsOf(quantity);
    return m_nUnits == 0 ? words.unitUs : words.unitSi;
}

StudyCases CMPTEDlg::Cases() const {
    return {FirstCase(), [this](int loadCase) { return TakesPart(loadCase); }};
}

CEnvelopePoint CMPTEDlg::GetEnvelopePoint(int trial, int quantity, int mode) const {
    if (quantity == -1) quantity = m_cmbQuantity.GetCurSel();
    if (mode == -1) mode = m_cmbEnvelope.GetCurSel();
    return FindEnvelopePoint(m_pResults, Cases(), trial, quantity, mode);
}

CEnvelopePoint CMPTEDlg::PointOf(int trial) const {
    if (IsEnvelope()) return GetEnvelopePoint(trial, -1, -1);
    CEnvelopePoint point;
    point.nQuantity = m_cmbQuantity.GetCurSel();
    point.nTrial = trial;
    point.nCase = m_spinCase.GetPos() - 1;
    point.dPile = m_pResults.GetLocation(trial, point.nCase, point.nQuantity);
    point.dEmbedment = m_pResults.GetEmbedment(trial);
    point.dValue = m_pResults.GetValue(trial, point.nCase, point.nQuantity);
    return point;
}

// ---- table

void CMPTEDlg::SetGridHeadings() {
    const int quantity = m_cmbQuantity.GetCurSel();
    const char* const first[] = {"Trial", m_input.data.HasCombinations() ? "Load Comb" : "Load Case", "Pile",
                                 "Embedment", StudyWordsOf(quantity).heading};
    const char* const second[] = {"", "", "", LengthUnit(), QuantityUnit(quantity)};
    for (int column = 0; column < static_cast<int>(std::size(first)); ++column) {
        m_Grid.SetCellText(0, column, first[column]);
        m_Grid.SetCellText(1, column, second[column]);
    }
}

void CMPTEDlg::FillGrid() {
    for (int trial = 0; trial < m_pResults.GetTrialCount(); ++trial) FillTrialRow(trial);
}

void CMPTEDlg::FillTrialRow(int trial) {
    const int row = trial + kHeadingRows;
    m_Grid.SetCellText(row, 0, FormatInt(trial + 1));
    if (m_pResults.IsTrialIncomplete(trial)) {
        for (int column = 1; column < m_Grid.GetColumnCount(); ++column) {
            m_Grid.SetCellText(row, column, "NA");
        }
        return;
    }
    const CEnvelopePoint point = PointOf(trial);
    m_Grid.SetCellText(row, 1, FormatInt(point.nCase + 1));
    m_Grid.SetCellText(row, 2, FormatInt(static_cast<long long>(point.dPile)));
    m_Grid.SetCellText(row, 3, FormatFixed(point.dEmbedment, 2));
    m_Grid.SetCellText(row, 4, FormatFixed(point.dValue, 6));
}

// ---- plot

std::string CMPTEDlg::BuildPlotTitle(int number, int quantity) const {
    return StudyTitle(m_input.data.HasCombinations(), number, quantity);
}

std::string CMPTEDlg::BuildYLabel(int quantity) const {
    return StudyAxisLabel(quantity, m_nUnits);
}

std::string CMPTEDlg::BuildFormat(int decimals) {
    return "%." + FormatInt(decimals) + "f";
}

void CMPTEDlg::ComputeRanges() {
    int start = m_pResults.FirstTrial();
    if (IsEnvelope()) start = m_pResults.FindAdjacentTrial(m_pResults.GetTrialCount(), true);
    if (start < 0) return;
    const CEnvelopePoint first = PointOf(start);
    m_dMinX = m_dMaxX = first.dEmbedment;
    m_dMinY = m_dMaxY = first.dValue;
    const int quantity = m_cmbQuantity.GetCurSel();
    for (int i = m_pResults.FirstTrial(); i >= 0; i = m_pResults.FindAdjacentTrial(i, false)) {
        const double x = m_pResults.GetEmbedment(i);
        // The single case's values also in envelope mode: its curves are compared on the same axes, and a
        // point of an envelope can fall outside the plot.
        const double y = m_pResults.GetValue(i, m_spinCase.GetPos() - 1, quantity);
        m_dMinX = std::min(m_dMinX, x);
        m_dMaxX = std::max(m_dMaxX, x);
        m_dMinY = std::min(m_dMinY, y);
        m_dMaxY = std::max(m_dMaxY, y);
    }
}

void CMPTEDlg::SetPlotTexts() {
    const int quantity = m_cmbQuantity.GetCurSel();
    m_Graph.SetProperty(kGraphCaption, BuildPlotTitle(m_spinCase.GetPos(), quantity));
    m_Graph.SetProperty(kGraphLabelX, std::string("Embedment Length ") + LengthUnit());
    m_Graph.SetProperty(kGraphLabelY, BuildYLabel(quantity));
    m_Graph.SetProperty(kGraphColour, kPlotColour);
    m_Graph.SetProperty(kGraphShowGrid, true);
}

void CMPTEDlg::SetPlotAxes() {
    ComputeRanges();
    const AxisScale x = ScaleAxis(m_dMinX, m_dMaxX), y = ScaleAxis(m_dMinY, m_dMaxY);
    m_Graph.InvokeHelper(kGraphSetRanges, {x.min, x.max, y.min, y.max});
    m_Graph.SetProperty(kGraphTicksX, x.ticks);
    m_Graph.SetProperty(kGraphTicksY, y.ticks);
    m_Graph.SetProperty(kGraphFormatX, BuildFormat(2));
    m_Graph.SetProperty(kGraphFormatY, BuildFormat(std::clamp(y.decimals, kFewestDecimals, kMostDecimals)));
}

void CMPTEDlg::DrawPlot() {
    m_Graph.BeginDrawing();
    SetPlotTexts();
    m_Graph.InvokeHelper(kGraphClearElements);
    m_Graph.InvokeHelper(kGraphAddElement);
    m_Graph.SetProperty(kGraphElement, m_Graph.GetElementCount() - 1);
    m_Graph.SetProperty(kGraphElementA, 0);
    m_Graph.SetProperty(kGraphElementB, 5);
    m_Graph.SetProperty(kGraphElementC, 5);
    m_Graph.SetProperty(kGraphElementD, 1);
    SetPlotAxes();
    int before = -1;
    for (int i = m_pResults.FirstTrial(); i >= 0; i = m_pResults.FindAdjacentTrial(i, false)) {
        // No line is drawn across a missing trial.
        if (i > before + 1) m_Graph.LeaveGap();
        before = i;
        const CEnvelopePoint point = PointOf(i);
        m_Graph.InvokeHelper(kGraphPlotPoint, {point.dEmbedment, point.dValue, 1});
    }
    m_Graph.EndDrawing();
}

int CMPTEDlg::GridRowForX(double clicked) const {
    const CEmbedmentResults::Order order = m_pResults.GetTrialOrder();
    if (order == CEmbedmentResults::kNoOrder) return -1;
    // Descending embedments mirror all comparisons.
    const double sign = order == CEmbedmentResults::kAscending ? 1.0 : -1.0;
    const double x = sign * AsShown(clicked);
    const int first = m_pResults.FirstTrial();
    for (int i = first; i >= 0; i = m_pResults.FindAdjacentTrial(i, false)) {
        const double here = sign * AsShown(m_pResults.GetEmbedment(i));
        const int next = m_pResults.FindAdjacentTrial(i, false);
        if (x == here || (i == first && x < here) || (next < 0 && x > here)) return i + kHeadingRows;
        if (next < 0) break;
        const double there = sign * AsShown(m_pResults.GetEmbedment(next));
        if (x <= here || x >= there) continue;
        // Half-way counts as the earlier trial, in either direction.
        const bool nearNext =
            sign > 0.0 ? (x - here) / (there - here) > 0.5 : (there - x) / (there - here) < 0.5;
        return (nearNext ? next : i) + kHeadingRows;
    }
    return -1;
}

}  // namespace lumerin
