#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "app/DesignerDlg.h"
#include "app/Launch.h"
#include "framework/headless/Headless.h"
#include "model/DataSet.h"
#include "samples/SampleFolder.h"
#include "session/Session.h"

// Runs the report dialog without a screen; what it tells and starts lies in the sink.
class ReportDialogTest : public testing::Test {
  protected:
    using Press = std::function<void(headless::HeadlessDialog&)>;

    ReportDialogTest() {
        headless::ResetState();
        headless::SetSink(&sink);
        g_DataSet.FreePiers();
        g_DataSet.Reset();
        g_InputFilePath = g_ProjectBasePath = g_OutputFilePath = "";
    }
    ~ReportDialogTest() override {
        headless::ResetState();
        g_DataSet.FreePiers();
    }

    // A whole call on a project; the presses go to the first dialog alone.
    unsigned Launch(const std::string& inputFile, int format, Press press) {
        Install(std::move(press));
        return LaunchLumerin(format, inputFile.c_str(), "5.2.1", "", "", "");
    }
    // The dialog over a model that the test has built; nothing is loaded.
    int ShowOverModel(int format, Press press) {
        Install(std::move(press));
        g_InitialReportFormat = format;
        g_DataLoaded = true;
        CDesignerDlg dialog;
        return dialog.DoModal();
    }

    static CDesignerDlg& Report(headless::HeadlessDialog& dialog) {
        return dynamic_cast<CDesignerDlg&>(dialog.Dialog());
    }
    static bool Enabled(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->enabled; }
    static bool Visible(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->visible; }
    static bool Checked(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->checked; }
    static std::string Text(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->text; }

    // A model of `types` in one design family, with the given classes present in the first substructure.
    static void BuildModel(std::initializer_list<int> types, int family, std::initializer_list<int> classes) {
        g_DataSet.m_Piers.resize(types.size());
        g_DataSet.m_nPiers = static_cast<int>(types.size());
        std::size_t k = 0;
        for (const int type : types) {
            g_DataSet.m_Piers[k++].m_nStructureType = type;
            g_DataSet.m_nStructureType = type;  // that of the last one
        }
        CPier& first = g_DataSet.FirstPier();
        first.m_nCodeFamily = family;
        first.m_bCombinations = family >= 0;
        for (const int limitClass : classes) first.m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = 0;
        g_DataSet.SetTableApplicability();
    }

    headless::RecordingSink sink;

  private:
    void Install(Press press) {
        headless::SetModalDriver([press = std::move(press)](headless::HeadlessDialog& dialog) {
            if (press && dialog.ResourceId() == 1000) press(dialog);
        });
    }
};
