#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "embedment/MPTEDlg.h"
#include "framework/headless/Headless.h"
#include "model/DataSet.h"
#include "session/Constants.h"
#include "session/Session.h"

// A project folder with the files of a study, and a data set of one substructure with six cases.
class StudyTest : public testing::Test {
  protected:
    static constexpr int kCases = 6;

    void SetUp() override {
        headless::ResetState();
        headless::SetSink(&sink);
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::temp_directory_path() /
                 ("lumerin-study-" + std::to_string(getpid()) + "-" + info->name());
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        g_InputFilePath = (folder / "a.in").string();
        g_DataSet.Reset();
        g_DataSet.m_Piers.clear();
        g_DataSet.m_Piers.resize(1);
        g_DataSet.m_nLoadCases = kCases;
        g_DataSet.FirstPier().AllocateCaseSelection(kCases);
        g_DataSet.FirstPier().SelectAllCases();
    }
    void TearDown() override {
        headless::ResetState();
        g_DataSet.FreePiers();
        g_DataSet.Reset();
        g_InputFilePath.clear();
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void Write(const std::string& name, const std::string& text) const {
        const std::filesystem::path path = folder / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    void WriteBase(const std::string& text) const { Write("a.PEL", text); }
    void WriteTrial(int number, const std::string& text) const {
        const std::string mark = "MPTE" + std::to_string(number);
        Write(mark + "/a_" + mark + ".PEL", text);
    }

    // Opens the dialog; `act` presses its controls, then it is closed.
    void Open(const std::function<void(CMPTEDlg&, headless::HeadlessDialog&)>& act, int units = 0,
              int format = kFormatSpreadsheet) {
        CMPTEDlg dialog;
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
        return values.empty() ? std::string() : std::get<std::string>(values.front());
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
    std::filesystem::path folder;
};
