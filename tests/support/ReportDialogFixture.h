// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "framework/headless/Headless.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "support/ProductSink.h"
#include "support/SampleFolder.h"

namespace lumerin {

// Runs the report dialog without a screen; its messages and starts are in the sink.
class ReportDialogTest : public testing::Test {
  protected:
    using Press = std::function<void(headless::HeadlessDialog&)>;

    ReportDialogTest() {
        headless::ResetState();
        headless::SetSink(&sink);
        ResetSession();
        g_DataLoaded = false;
        g_InputFilePath = g_ProjectBasePath = g_OutputFilePath = "";
    }
    ~ReportDialogTest() override {
        headless::ResetState();
        g_DataSet.Reset();
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
        dialog.State() = std::move(model);
        return dialog.DoModal();
    }

    static CDesignerDlg& Report(headless::HeadlessDialog& dialog) {
        return dynamic_cast<CDesignerDlg&>(dialog.Dialog());
    }
    static bool Enabled(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->enabled; }
    static bool Visible(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->visible; }
    static bool Checked(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->checked; }
    static std::string Text(headless::HeadlessDialog& dialog, int id) { return dialog.Find(id)->text; }

    // A model of `types` in one design family, with a case of each of the given classes in the first
    // substructure.
    void BuildModel(std::initializer_list<StructureType> types, CodeFamily family,
                    std::initializer_list<LimitClass> classes) {
        g_DataSet.m_Piers = std::vector<CPier>(types.size());
        g_DataSet.m_nPiers = static_cast<int>(types.size());
        std::size_t k = 0;
        for (const StructureType type : types) {
            g_DataSet.m_Piers[k++].m_nStructureType = type;
            g_DataSet.m_nStructureType = type;  // that of the last one
        }
        CPier& first = g_DataSet.FirstPier();
        first.m_nCodeFamily = family;
        first.m_bCombinations = family >= 0;
        for (const LimitClass limitClass : classes)
            first.m_LoadCases.emplace_back().m_nLimitClass = limitClass;
        model.selection = CaseSelection(g_DataSet);
        model.enabled = ApplicableTables(g_DataSet, model.selection);
    }

    ReportState model;  // of the dialog over it
    ProductSink sink;

  private:
    void Install(Press press) {
        headless::SetModalDriver([press = std::move(press)](headless::HeadlessDialog& dialog) {
            if (press && dialog.ResourceId() == IDD_REPORT) press(dialog);
        });
    }
};

}  // namespace lumerin
