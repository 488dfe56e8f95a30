// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "session/ReportControls.h"
#include "support/ReportDialogFixture.h"

namespace lumerin {

namespace {

using headless::HeadlessDialog;

constexpr int kFooterParts[] = {IDC_FOOTER_DATE, IDC_FOOTER_TIME, IDC_FOOTER_VERSION, IDC_FOOTER_FILE_NAME};
constexpr const char* kNoProject = "There is currently no input file selected.";

TEST_F(ReportDialogTest, HasThirtyOneControlsWithTheFourBoxTitlesUnnamed) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        EXPECT_EQ(dialog.Title(), "Lumerin Generator");
        EXPECT_EQ(dialog.Controls().size(), 31U);
        int unnamed = 0;
        for (const auto& control : dialog.Controls()) unnamed += control->spec->id == kNoId ? 1 : 0;
        EXPECT_EQ(unnamed, 4);
        EXPECT_FALSE(Enabled(dialog, IDC_CHOOSE_CASES));
        EXPECT_FALSE(Visible(dialog, 2));
        EXPECT_EQ(Text(dialog, 1), "Close");
    });
}

TEST_F(ReportDialogTest, StartsOnTheFormatOfTheCallWithAllFooterPartsAndAllCases) {
    for (const int format : {0, 1, 2}) {
        ShowOverModel(format, [format](HeadlessDialog& dialog) {
            EXPECT_EQ(Checked(dialog, IDC_FORMAT_EXCEL), format == 0);
            EXPECT_EQ(Checked(dialog, IDC_FORMAT_PDF), format == 1);
            EXPECT_EQ(Checked(dialog, IDC_FORMAT_TEXT), format == 2);
            EXPECT_TRUE(Checked(dialog, IDC_FOOTER));
            EXPECT_TRUE(Enabled(dialog, IDC_FOOTER));
            for (const int id : kFooterParts) EXPECT_TRUE(Checked(dialog, id) && Visible(dialog, id)) << id;
            EXPECT_TRUE(Checked(dialog, IDC_ALL_CASES));
            EXPECT_FALSE(Checked(dialog, IDC_CUSTOM_CASES));
        });
    }
}

TEST_F(ReportDialogTest, WithoutAProjectEveryRunIsRefusedBeforeAnyWaitCursor) {
    Launch("", 2, [this](HeadlessDialog& dialog) {
        // The load of no project has failed; the buttons are as the resource has them.
        EXPECT_FALSE(Report(dialog).IsProjectLoaded());
        sink.messages.clear();
        for (const int id : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_COLUMN_DC, IDC_CAP_SHEAR, IDC_CAP_MOMENT,
                             IDC_CAP_ENVELOPES, IDC_PILE_FORCES, IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS,
                             IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_PILE_HEADS, IDC_EMBEDMENT}) {
            ASSERT_TRUE(dialog.Click(id)) << id;
            ASSERT_EQ(sink.messages.size(), 1U) << id;
            EXPECT_EQ(sink.messages[0].text, kNoProject);
            EXPECT_EQ(sink.messages[0].icon, MessageIcon::exclamation);
            EXPECT_EQ(backend::WaitCursorDepth(), 0);
            sink.messages.clear();
        }
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_TRUE(sink.calls.empty());
    });
}

TEST_F(ReportDialogTest, CaptionsTakeTheProjectsWord) {
    BuildModel({kTypePier}, kFamilyLrfd, {kStrength});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, IDC_CASE_SELECTION), "Load Combination Selection");
        EXPECT_EQ(Text(dialog, IDC_ALL_CASES), "All Load Combinations");
        EXPECT_EQ(Text(dialog, IDC_CUSTOM_CASES), "Custom Set of Load Combinations");
        EXPECT_EQ(Text(dialog, IDC_CHOOSE_CASES), "Choose Load Combinations");
        g_DataSet.m_nAnalysisMode = 1;
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, IDC_CASE_SELECTION), "Time Step Selection");
        EXPECT_EQ(Text(dialog, IDC_CHOOSE_CASES), "Choose Time Steps");
    });
}

TEST_F(ReportDialogTest, APileGroupLosesColumnAndCapTables) {
    BuildModel({kTypePileGroup}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        for (const int id : {IDC_COLUMN_DC, IDC_CAP_SHEAR, IDC_CAP_MOMENT, IDC_CAP_ENVELOPES,
                             IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS})
            EXPECT_FALSE(Enabled(dialog, id)) << id;
        for (const int id :
             {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_PILE_FORCES, IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_PILE_HEADS})
            EXPECT_TRUE(Enabled(dialog, id)) << id;
        EXPECT_EQ(Text(dialog, IDC_CAP_SHEAR), "Pier Cap Shear Design");
        EXPECT_EQ(Text(dialog, IDC_CAP_ENVELOPES), "Pier Cap Envelopes");
    });
}

TEST_F(ReportDialogTest, ABentHasItsCapWordAndNoColumnTables) {
    BuildModel({kTypePileBent}, kFamilyLfd, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, IDC_CAP_SHEAR), "Bent Cap Shear Design");
        EXPECT_EQ(Text(dialog, IDC_CAP_MOMENT), "Bent Cap Moment Design");
        EXPECT_EQ(Text(dialog, IDC_CAP_ENVELOPES), "Bent Cap Envelopes");
        for (const int id : {IDC_MAX_AXIAL, IDC_CAP_SHEAR, IDC_CAP_MOMENT, IDC_CAP_ENVELOPES})
            EXPECT_TRUE(Enabled(dialog, id)) << id;
        for (const int id : {IDC_COLUMN_DC, IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS})
            EXPECT_FALSE(Enabled(dialog, id)) << id;
    });
}

TEST_F(ReportDialogTest, ExtraMembersOfAnySubstructureEnableTheirTable) {
    BuildModel({kTypePier, kTypePier}, kFamilyLrfd, {kStrength});
    g_DataSet.m_Piers[1].m_nExtraMembers = 1;
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_TRUE(Enabled(dialog, IDC_EXTRA_MEMBERS));
    });
}

TEST_F(ReportDialogTest, FatigueAloneLeavesTheMomentTableAndWhatIsNoTable) {
    BuildModel({kTypePier}, kFamilyLrfd, {kFatigue});
    g_DataSet.FirstPier().m_nExtraMembers = 1;
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        for (const int id : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_COLUMN_DC, IDC_CAP_SHEAR, IDC_PILE_FORCES,
                             IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS})
            EXPECT_FALSE(Enabled(dialog, id)) << id;
        for (const int id :
             {IDC_CAP_MOMENT, IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_PILE_HEADS, IDC_CAP_ENVELOPES})
            EXPECT_TRUE(Enabled(dialog, id)) << id;
    });
}

TEST_F(ReportDialogTest, AMastAloneOffersNoTableThoughItsFlagsWouldAllowSome) {
    for (const StructureType type :
         {kTypeSinglePile, kTypeMast, kTypeWallA, kTypeWallB, kTypeOtherGroup, kTypeNoPileTables}) {
        BuildModel({type}, kFamilyNone, {});
        ShowOverModel(0, [&, type](HeadlessDialog& dialog) {
            Report(dialog).RefreshControls();
            for (const int id : {IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_FORMAT_TEXT})
                EXPECT_FALSE(Enabled(dialog, id)) << type << ' ' << id;
            for (int id = IDC_MAX_AXIAL; id <= IDC_FOOTER_FILE_NAME; ++id)
                EXPECT_FALSE(Enabled(dialog, id)) << type << ' ' << id;
            for (const int id : {IDC_FORMAT_PDF, IDC_FORMAT_EXCEL, IDC_ALL_CASES, IDC_CUSTOM_CASES})
                EXPECT_TRUE(Enabled(dialog, id)) << type << ' ' << id;
            // A disabled button takes precedence over the flag.
            EXPECT_EQ(model.enabled[kTableCapShear], type == kTypeMast);
        });
    }
}

TEST_F(ReportDialogTest, SeveralSubstructuresNameTheirCapsTogether) {
    struct Case {
        std::initializer_list<StructureType> types;
        const char* cap;
        bool columnTables;
    };
    const Case cases[] = {{{kTypePier, kTypePileBent}, "Pier Cap / Bent Cap", true},
                          {{kTypePier, kTypePileGroup}, "Pier Cap", true},
                          {{kTypePileBent, kTypePileBent}, "Bent Cap", false},
                          {{kTypePileGroup, kTypeWallA}, "", false}};
    for (const Case& entry : cases) {
        BuildModel(entry.types, kFamilyNone, {});
        ShowOverModel(0, [&entry](HeadlessDialog& dialog) {
            Report(dialog).RefreshControls();
            const std::string cap = entry.cap;
            // Without either word the captions keep their leading blank.
            EXPECT_EQ(Text(dialog, IDC_CAP_SHEAR), cap + " Shear Design");
            EXPECT_EQ(Text(dialog, IDC_CAP_MOMENT), cap + " Moment Design");
            EXPECT_EQ(Text(dialog, IDC_CAP_ENVELOPES), cap + " Envelopes");
            EXPECT_EQ(Enabled(dialog, IDC_COLUMN_DC), entry.columnTables);
            EXPECT_EQ(Enabled(dialog, IDC_COLUMN_FORCES), entry.columnTables);
            for (const int id : {IDC_MAX_AXIAL, IDC_CAP_SHEAR, IDC_CAP_MOMENT, IDC_CAP_ENVELOPES})
                EXPECT_TRUE(Enabled(dialog, id)) << id;
        });
    }
}

TEST_F(ReportDialogTest, TheFooterBoxShowsAndHidesItsPartsAndLeavesTheirState) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_FOOTER_TIME);
        dialog.Click(IDC_FOOTER);
        EXPECT_EQ(Report(dialog).m_nFooterOn, 0);
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id)) << id;
        dialog.Click(IDC_FOOTER);
        EXPECT_EQ(Report(dialog).m_nFooterOn, 1);
        for (const int id : kFooterParts) EXPECT_TRUE(Visible(dialog, id)) << id;
        EXPECT_FALSE(Checked(dialog, IDC_FOOTER_TIME));
        EXPECT_TRUE(Checked(dialog, IDC_FOOTER_DATE));
    });
}

TEST_F(ReportDialogTest, TextTakesTheFooterAwayAndPdfDoesNotBringItBack) {
    BuildModel({kTypePier}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_FORMAT_TEXT);
        EXPECT_FALSE(Enabled(dialog, IDC_FOOTER));
        EXPECT_FALSE(Checked(dialog, IDC_FOOTER));
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id) || Checked(dialog, id)) << id;
        dialog.Click(IDC_FORMAT_PDF);
        EXPECT_TRUE(Enabled(dialog, IDC_FOOTER));
        EXPECT_FALSE(Checked(dialog, IDC_FOOTER));
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id)) << id;
        dialog.Click(IDC_FOOTER);
        for (const int id : kFooterParts) {
            EXPECT_TRUE(Visible(dialog, id)) << id;
            EXPECT_FALSE(Checked(dialog, id)) << id;
        }
    });
}

TEST_F(ReportDialogTest, TheFooterBoxGoesByTheLastSubstructuresType) {
    BuildModel({kTypePier, kTypeWallA}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_FORMAT_PDF);
        EXPECT_FALSE(Enabled(dialog, IDC_FOOTER));
    });
}

TEST_F(ReportDialogTest, TheLoadCaseChoiceEnablesItsButtonAndLeavesTheSelection) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_CUSTOM_CASES);
        EXPECT_FALSE(g_AllLoadCases);
        EXPECT_TRUE(Enabled(dialog, IDC_CHOOSE_CASES));
        dialog.Click(IDC_ALL_CASES);
        EXPECT_TRUE(g_AllLoadCases);
        EXPECT_FALSE(Enabled(dialog, IDC_CHOOSE_CASES));
    });
}

// The host may analyse the bridge again while the dialog is open.
TEST_F(ReportDialogTest, AForceFileThatWasReplacedStopsThePressAndChangesNothingElse) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier"), forces = base + ".vmd";
    const std::string document = base + "_Max_Axial_Forces_Pile_Heads.txt";
    std::ofstream(document) << "earlier";
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        const auto time = std::filesystem::last_write_time(forces);
        const auto size = std::filesystem::file_size(forces);
        const TableFlags valid = Report(dialog).State().results.valid;
        sink.messages.clear();
        // A shorter file is noticed before it is read to its early end.
        for (const auto changed : {size - 68, size + 68}) {
            std::filesystem::resize_file(forces, changed);
            for (const int id : {IDC_CAP_ENVELOPES, IDC_MAX_AXIAL, IDC_PILE_DC, IDC_FULL_REPORT}) {
                sink.messages.clear();
                ASSERT_TRUE(dialog.Click(id));
                ASSERT_EQ(sink.messages.size(), 1U) << id;
                EXPECT_EQ(sink.messages[0].text, forces +
                                                     ": the file has changed since the project was opened. "
                                                     "Open the project again.");
            }
        }
        EXPECT_TRUE(sink.starts.empty() && sink.calls.empty());
        EXPECT_EQ(std::filesystem::file_size(document), 7U);
        EXPECT_EQ(g_DataSet.m_nPiers, 1);
        EXPECT_EQ(Report(dialog).State().results.valid, valid);
        // With the loaded file back in its place the press works.
        std::filesystem::resize_file(forces, size);
        std::filesystem::last_write_time(forces, time);
        sink.messages.clear();
        ASSERT_TRUE(dialog.Click(IDC_MAX_AXIAL));
        EXPECT_TRUE(sink.messages.empty());
        EXPECT_GT(std::filesystem::file_size(document), 1000U);
    });
}

}  // namespace

}  // namespace lumerin
