#include "tables/Catalogue.h"

#include "session/Constants.h"
#include "tables/ReportModel.h"

using Catalogue = ReportTest;

TEST_F(Catalogue, TitlesGoByTheFirstPiersType) {
    AddPiers(1, kTypeWallA);
    EXPECT_EQ(TableHeadTitle(kTableColumnDc),
              "Maximum Demand/Capacity Ratio For All Wall Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableExtraMembers), "Maximum Forces for All Extra Member Properties ");
}

TEST_F(Catalogue, ColumnTablesOfSeveralPiersTakeThePiersTitle) {
    AddPiers(2, kTypePileBent);
    EXPECT_EQ(TableHeadTitle(kTableColumnDc),
              "Maximum Demand/Capacity Ratio For All Column Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableColumnForces),
              "Maximum Forces for All Column Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableCapShear), "Bent Cap Shear Design");
}

TEST_F(Catalogue, AProjectWithoutSubstructuresHasNoTitleAndNoSection) {
    std::string heading = "stale";
    EXPECT_EQ(TableHeadTitle(kTableMaxAxial), "");
    EXPECT_FALSE(SectionHeading(kTableMaxAxial, 0, heading));
    EXPECT_EQ(heading, "");
}

TEST_F(Catalogue, LrfdSectionsNeedTheirClass) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLrfd, {0, 2, 3});
    std::string heading;
    EXPECT_TRUE(SectionHeading(kTableColumnDc, 0, heading));
    EXPECT_EQ(heading, " MAXIMUM STRENGTH CASE DATA");
    EXPECT_FALSE(SectionHeading(kTableColumnDc, 1, heading));
    EXPECT_TRUE(SectionHeading(kTablePileForces, 2, heading));
    EXPECT_EQ(heading, " EXTREME CASE DATA");
}

TEST_F(Catalogue, FatigueHasASectionInTheCapMomentTableAlone) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLrfd, {3});
    std::string heading;
    for (int table = kTableMaxAxial; table <= kTableExtraMembers; ++table) {
        EXPECT_EQ(SectionHeading(table, 3, heading), table == kTableCapMoment) << table;
    }
    EXPECT_TRUE(SectionHeading(kTableCapMoment, 3, heading));
    EXPECT_EQ(heading, " FATIGUE CASE DATA");
}

TEST_F(Catalogue, LfdHasItsSectionWithoutAnyClass) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLfd, {});
    std::string heading;
    EXPECT_TRUE(SectionHeading(kTablePileDc, 0, heading));
    EXPECT_EQ(heading, " MAXIMUM LOAD FACTOR DESIGN DATA");
    EXPECT_TRUE(SectionHeading(kTableCapShear, 0, heading));
    EXPECT_EQ(heading, " LOAD FACTOR DESIGN DATA");
}

TEST_F(Catalogue, AremaHasTwoSections) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyArema, {0, 1});
    std::string heading;
    EXPECT_TRUE(SectionHeading(kTableMaxAxial, 1, heading));
    EXPECT_EQ(heading, " MAXIMUM SERVICE LOAD DESIGN DATA");
    EXPECT_TRUE(SectionHeading(kTableExtraMembers, 0, heading));
    EXPECT_EQ(heading, " LOAD FACTOR DESIGN DATA");
}

TEST_F(Catalogue, PlainCasesAndUnnamedFamiliesHaveABlockWithoutHeading) {
    AddPiers(1);
    std::string heading;
    EXPECT_TRUE(SectionHeading(kTablePileDc, 0, heading));
    EXPECT_EQ(heading, "");
    MakeCombinations(Pier(), 5, {});
    EXPECT_TRUE(SectionHeading(kTablePileDc, 0, heading));
    EXPECT_EQ(heading, "");
}

TEST_F(Catalogue, ZeroWithTwoDecimalsBecomesABareZero) {
    EXPECT_EQ(FormatCellText("-0.00", 11), "          0");
    EXPECT_EQ(FormatCellText("0.00", 11), "          0");
    EXPECT_EQ(FormatCellText("-0.01", 11), "      -0.01");
    EXPECT_EQ(FormatCellText("123456789012", 11), "123456789012");
}

TEST_F(Catalogue, SpreadsheetCellsEndInATabUnlessTheyHoldALineFeed) {
    g_ReportFormat = kFormatSpreadsheet;
    EXPECT_EQ(FormatCellText("-0.00", 11), "0\t");
    EXPECT_EQ(FormatCellText("Max f22", 11), "Max f22\t");
    EXPECT_EQ(FormatCellText("two\nlines", 11), "two\nlines");
}

TEST_F(Catalogue, MissingColumnsSayNoneUnderTheForceConcerned) {
    EXPECT_EQ(MissingForceColumns(0),
              "       none        ***        ***        ***        ***        ***       ***");
    EXPECT_EQ(MissingForceColumns(7),
              "        ***        ***        ***       none        ***        ***       ***");
    EXPECT_EQ(MissingForceColumns(11),
              "        ***        ***        ***        ***        ***       none       ***");
    EXPECT_EQ(MissingForceColumns(12), "");
    EXPECT_EQ(MissingForceColumns(-1), "");
}

TEST_F(Catalogue, LimitStateNamesTakeFifteenCharacters) {
    EXPECT_EQ(PadName15("STRENGTH-I"), "     STRENGTH-I");
    EXPECT_EQ(PadName15("SIXTEEN-LETTERS-"), "SIXTEEN-LETTERS-");
}

TEST_F(Catalogue, PagesGoByTheViewersFontSize) {
    EXPECT_EQ(LinesPerPage(), 61);
    EXPECT_EQ(CharsPerLine(ViewerFontSize()), 142);
    headless::State().viewerNumbers["iPointSize"] = 109;
    EXPECT_EQ(ViewerFontSize(), 10);
    EXPECT_EQ(LinesPerPage(), 48);
    EXPECT_EQ(CharsPerLine(10), 114);
    headless::State().viewerNumbers["iPointSize"] = 140;
    EXPECT_EQ(LinesPerPage(), 34);
    headless::State().viewerNumbers["iPointSize"] = 130;
    EXPECT_EQ(LinesPerPage(), 61);
}

TEST_F(Catalogue, AFullPageNeedsNoPaddingAndAnOverrunAsksForTheRestOfItsLastPage) {
    EXPECT_EQ(LinesToPageEnd(0), 61);
    EXPECT_EQ(LinesToPageEnd(61), 0);
    EXPECT_EQ(LinesToPageEnd(62), 60);
    // A whole number of pages above one asks for a page of its own.
    EXPECT_EQ(LinesToPageEnd(122), 61);
}

TEST_F(Catalogue, PaddingIsLineFeeds) {
    StoredStream out(Path());
    PadToPageEnd(61, 61, out);
    EXPECT_EQ(out.Position(), 0);
    PadToPageEnd(48, 50, out);
    out.Close();
    EXPECT_EQ(StoredBytes(), ReplaceAll(std::string(46, '\n'), "\n", "\r\n"));
}

TEST_F(Catalogue, CentredTextHasHalfTheRestBeforeIt) {
    EXPECT_EQ(CenterText(14, "Lumerin"), Blanks(37) + "Lumerin");    // 81 - 7 = 74
    EXPECT_EQ(CenterText(14, "Lumerins"), Blanks(36) + "Lumerins");  // 73 / 2
    EXPECT_EQ(CenterText(14, std::string(81, 'x')), std::string(81, 'x'));
    EXPECT_EQ(CenterText(14, std::string(90, 'x')), std::string(90, 'x'));
}

TEST_F(Catalogue, TheTitlePageStandsInTheMiddleOfAPage) {
    CWriteData writer;
    StoredStream out(Path());
    writer.WriteTitlePageText(out);
    out.Close();
    // 61 lines: 30.5 + 1 cut to 31, less 2; 142 characters.
    EXPECT_EQ(ReplaceAll(StoredBytes(), "\r\n", "\n"),
              std::string(29, '\n') + Blanks(67) + "Lumerin\n" +     // 135 / 2
                  Blanks(71) + "\n" +                                //
                  Blanks(61) + "Results generated by\n" +            // 122 / 2
                  Blanks(60) + "Tarnsway Version 5.2.1\n" +          // 120 / 2
                  Blanks(56) + "on Saturday, November 14, 2026\n");  // 112 / 2
}
