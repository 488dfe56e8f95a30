// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "embedment/dialog/MPTEDlg.h"
#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "support/StudyFolder.h"

namespace lumerin {

// A project folder with the files of a study, and a data set of one substructure with six cases.
class StudyTest : public testing::Test, public StudyFolder {
  protected:
    static constexpr int kCases = 6;

    void SetUp() override {
        headless::ResetState();
        headless::SetSink(&sink);
        data.m_Piers.emplace_back().m_LoadCases.resize(kCases);
        data.m_nLoadCases = kCases;
        selection = CaseSelection(data);
    }
    void TearDown() override { headless::ResetState(); }

    // Opens the dialog; `act` presses its controls, then it is closed.
    void Open(const std::function<void(CMPTEDlg&, headless::HeadlessDialog&)>& act, int units = 0,
              int format = kFormatSpreadsheet) {
        CMPTEDlg dialog({inputFile, data, selection, allCases});
        dialog.SetUnits(units);
        dialog.SetFormat(format);
        headless::SetModalDriver([&](headless::HeadlessDialog& front) { act(dialog, front); });
        dialog.DoModal();
        headless::SetModalDriver(nullptr);
    }
    static std::vector<std::string> Row(const CMPTEDlg& dialog, int row) {
        std::vector<std::string> cells;
        for (int column = 0; column < dialog.m_Grid.GetColumnCount(); ++column) {
            cells.push_back(dialog.m_Grid.GetCellText(row, column));
        }
        return cells;
    }
    // The value or the arguments of the last call of that id in the drawing.
    static std::vector<GraphValue> Drawn(const CMPTEDlg& dialog, int id) {
        std::vector<GraphValue> values;
        for (const GraphCall& call : dialog.m_Graph.LastDrawing()) {
            if (call.dispatchId == id) values = call.values;
        }
        return values;
    }
    static std::string DrawnText(const CMPTEDlg& dialog, int id) {
        const std::vector<GraphValue> values = Drawn(dialog, id);
        return values.empty() ? std::string() : std::string(std::get<GraphText>(values.front()));
    }
    static std::vector<PlotPoint> DrawnPoints(const CMPTEDlg& dialog) {
        std::vector<PlotPoint> points;
        for (const GraphCall& call : dialog.m_Graph.LastDrawing()) {
            if (call.dispatchId != kGraphPlotPoint) continue;
            points.push_back({std::get<double>(call.values.at(0)), std::get<double>(call.values.at(1))});
        }
        return points;
    }
    std::vector<std::string> Messages() const {
        std::vector<std::string> texts;
        for (const headless::Message& message : sink.messages) texts.push_back(message.text);
        return texts;
    }

    headless::RecordingSink sink;
    CDataSet data;
    CaseSelection selection;
    bool allCases = true;
};

}  // namespace lumerin
