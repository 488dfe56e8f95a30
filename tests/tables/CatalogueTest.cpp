// SPDX-License-Identifier: MIT
#include "tables/Catalogue.h"

#include "support/ReportFixture.h"
#include "tables/Words.h"

namespace lumerin {

class Catalogue : public ReportTest {
  protected:
    // The line feeds that fill a page of 61 lines.
    std::int64_t LinesToPageEnd(int used) const {
        StoredStream out(Path());
        PadToPageEnd(61, used, out);
        out.Close();
        return out.Position() / 2;
    }
};

TEST_F(Catalogue, TitlesGoByTheFirstPiersType) {
    AddPiers(1, kTypeWallA);
    EXPECT_EQ(TableHeadTitle(kTableColumnDc, data),
              "Maximum Demand/Capacity Ratio For All Wall Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableExtraMembers, data), "Maximum Forces for All Extra Member Properties ");
}

TEST_F(Catalogue, ColumnTablesOfSeveralPiersTakeThePiersTitle) {
    AddPiers(2, kTypePileBent);
    EXPECT_EQ(TableHeadTitle(kTableColumnDc, data),
              "Maximum Demand/Capacity Ratio For All Column Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableColumnForces, data),
              "Maximum Forces for All Column Properties (Cross Sections)");
    EXPECT_EQ(TableHeadTitle(kTableCapShear, data), "Bent Cap Shear Design");
}

TEST_F(Catalogue, AProjectWithoutSubstructuresHasNoTitleAndNoSection) {
    std::string heading = "stale";
    EXPECT_EQ(TableHeadTitle(kTableMaxAxial, data), "");
    EXPECT_FALSE(SectionHeading(MakeReport(), kTableMaxAxial, LimitClass{0}, heading));
    EXPECT_EQ(heading, "");
}

TEST_F(Catalogue, LrfdSectionsNeedTheirClass) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLrfd, {0, 2, 3});
    std::string heading;
    EXPECT_TRUE(SectionHeading(MakeReport(), kTableColumnDc, LimitClass{0}, heading));
    EXPECT_EQ(heading, " MAXIMUM STRENGTH CASE DATA");
    EXPECT_FALSE(SectionHeading(MakeReport(), kTableColumnDc, LimitClass{1}, heading));
    EXPECT_TRUE(SectionHeading(MakeReport(), kTablePileForces, LimitClass{2}, heading));
    EXPECT_EQ(heading, " EXTREME CASE DATA");
}

TEST_F(Catalogue, FatigueHasASectionInTheCapMomentTableAlone) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLrfd, {3});
    std::string heading;
    for (int table = kTableMaxAxial; table <= kTableExtraMembers; ++table) {
        EXPECT_EQ(SectionHeading(MakeReport(), TableId{table}, LimitClass{3}, heading),
                  table == kTableCapMoment)
            << table;
    }
    EXPECT_TRUE(SectionHeading(MakeReport(), kTableCapMoment, LimitClass{3}, heading));
    EXPECT_EQ(heading, " FATIGUE CASE DATA");
}

TEST_F(Catalogue, LfdHasItsSectionWithoutAnyClass) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyLfd, {});
    std::string heading;
    EXPECT_TRUE(SectionHeading(MakeReport(), kTablePileDc, LimitClass{0}, heading));
    EXPECT_EQ(heading, " MAXIMUM LOAD FACTOR DESIGN DATA");
    EXPECT_TRUE(SectionHeading(MakeReport(), kTableCapShear, LimitClass{0}, heading));
    EXPECT_EQ(heading, " LOAD FACTOR DESIGN DATA");
}

TEST_F(Catalogue, AremaHasTwoSections) {
    AddPiers(1);
    MakeCombinations(Pier(), kFamilyArema, {0, 1});
    std::string heading;
    EXPECT_TRUE(SectionHeading(MakeReport(), kTableMaxAxial, LimitClass{1}, heading));
    EXPECT_EQ(heading, " MAXIMUM SERVICE LOAD DESIGN DATA");
    EXPECT_TRUE(SectionHeading(MakeReport(), kTableExtraMembers, LimitClass{0}, heading));
    EXPECT_EQ(heading, " LOAD FACTOR DESIGN DATA");
}

TEST_F(Catalogue, PlainCasesAndUnnamedFamiliesHaveABlockWithoutHeading) {
    AddPiers(1);
    std::string heading;
    EXPECT_TRUE(SectionHeading(MakeReport(), kTablePileDc, LimitClass{0}, heading));
    EXPECT_EQ(heading, "");
    MakeCombinations(Pier(), CodeFamily{5}, {});
    EXPECT_TRUE(SectionHeading(MakeReport(), kTablePileDc, LimitClass{0}, heading));
    EXPECT_EQ(heading, "");
}

TEST_F(Catalogue, ZeroWithTwoDecimalsBecomesABareZero) {
    EXPECT_EQ(FormatCellText("-0.00", 11, options.format), "          0");
    EXPECT_EQ(FormatCellText("0.00", 11, options.format), "          0");
    EXPECT_EQ(FormatCellText("-0.01", 11, options.format), "      -0.01");
    EXPECT_EQ(FormatCellText("123456789012", 11, options.format), "123456789012");
}

TEST_F(Catalogue, SpreadsheetCellsEndInATabUnlessTheyHoldALineFeed) {
    options.format = kFormatSpreadsheet;
    EXPECT_EQ(FormatCellText("-0.00", 11, options.format), "0\t");
    EXPECT_EQ(FormatCellText("Max f22", 11, options.format), "Max f22\t");
    EXPECT_EQ(FormatCellText("two\nlines", 11, options.format), "two\nlines");
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
    EXPECT_EQ(LinesPerPage(0), 61);
    EXPECT_EQ(CharsPerLine(0), 142);
    EXPECT_EQ(LinesPerPage(10), 48);
    EXPECT_EQ(CharsPerLine(10), 114);
    EXPECT_EQ(LinesPerPage(14), 34);
    EXPECT_EQ(LinesPerPage(13), 61);
}

TEST_F(Catalogue, AFullPageNeedsNoPaddingAndAnOverrunAsksForTheRestOfItsLastPage) {
    EXPECT_EQ(LinesToPageEnd(0), 61);
    EXPECT_EQ(LinesToPageEnd(61), 0);
    EXPECT_EQ(LinesToPageEnd(62), 60);
    // A whole number of pages above one needs a page of its own.
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

TEST_F(Catalogue, TheTitlePageIsInTheMiddleOfAPage) {
    StoredStream out(Path());
    WriteTitlePageText(options, out);
    out.Close();
    // 61 lines: 30.5 + 1 cut to 31, less 2; 142 characters.
    EXPECT_EQ(StoredText(), std::string(29, '\n') + Blanks(67) + "Lumerin\n" +     // 135 / 2
                                Blanks(71) + "\n" +                                //
                                Blanks(61) + "Results generated by\n" +            // 122 / 2
                                Blanks(60) + "Tarnsway Version 5.2.1\n" +          // 120 / 2
                                Blanks(56) + "on Saturday, November 14, 2026\n");  // 112 / 2
}

}  // namespace lumerin
