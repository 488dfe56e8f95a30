// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"

namespace lumerin {

// Tables 3 and 4, on result tables filled by hand.
namespace {

const std::string kShearHead =
    "    LOCATION  ELEM  PROP       NODE  LOAD  I/J         FAX         F22         F33         M22         "
    "M33"
    "      TORQUE      D/C\n"
    "      & SIDE   NO.   NO.        NO.  CASE           (Kips)      (Kips)      (Kips)    (Kip-ft)    "
    "(Kip-ft)"
    "    (Kip-ft)  (Ratio)\n\n";
const std::string kMomentHead =
    "    LOCATION  ELEM  PROP       NODE  LOAD  I/J         FAX         M22         M33      D/C\n"
    "      & SIDE   NO.   NO.        NO.  CASE           (Kips)    (Kip-ft)    (Kip-ft)  (Ratio)\n\n";
const std::string kShearKeyTail =
    "    LF  = Left Face of Column                  L   = Left Side of Bearing\n"
    "    RF  = Right Face of Column                 R   = Right Side of Bearing\n"
    "    LCL = Left Centerline of Column            LR  = Bearing Is In The Left Row\n"
    "    RCL = Right Centerline of Column           RR  = Bearing Is In The Right Row\n";
const std::string kColumnWord = "    Col = Column                               Brg = Bearing\n";

}  // namespace

class CapTables : public ReportTest {
  protected:
    // Each of these adds to the first substructure.
    void AddShearSection(double x, int support, int kind) {
        Results().shearSupportX.push_back(x);
        Results().shearSupportList.push_back({support, kind});
        Pier().m_nCapShearSupports = static_cast<int>(Results().shearSupportX.size());
        CountRows();
    }
    void AddMomentSection(double x, int support, int kind) {
        Results().momentSupportX.push_back(x);
        Results().momentSupportList.push_back({support, kind});
        Pier().m_nCapMomentSupports = static_cast<int>(Results().momentSupportX.size());
        CountRows();
    }
    void AddBearing(double x, const CBearingLocation& location) {
        Pier().m_BearingX.push_back(x);
        Pier().m_BearingList.push_back(location);
        Pier().m_nCapBearings = static_cast<int>(Pier().m_BearingX.size());
        CountRows();
    }
    void CountRows() {
        CPier& pier = Pier();
        pier.m_nCapShearPoints = pier.m_nCapShearSupports + 2 * pier.m_nCapBearings;
        pier.m_nCapMomentPoints = pier.m_nCapMomentSupports + pier.m_nCapBearings;
    }
    void AllocateCap(int slots) {
        Results().shearSupports.Allocate(4, slots, 4);
        Results().momentSupports.Allocate(4, slots, 3);
        Results().shearBearings.Allocate(4, slots, 4);
        Results().momentBearings.Allocate(4, slots, 2);
    }
    static void Set(CCapEntry& entry, int loadCase, int element, int section, int end, int node,
                    int second = 0) {
        entry.record = CCapRecord{};
        entry.record.m_nLoadCase = loadCase;
        entry.record.m_nElementNumber = element;
        entry.record.m_nSection = section;
        entry.record.m_nEnd = end;
        entry.record.m_nNode = node;
        entry.record.m_nSecondNode = second;
        entry.values = {1.0, -2.5, 3.0, 4.0, -1234.5, 6.0, 0.75};
    }
    static void SetMissing(CCapEntry& entry) { entry.record.m_nMissing = 1; }
    // The lines of the block that begins with `heading`, up to the next empty line.
    static std::string RowsAfter(const std::string& text, const std::string& heading) {
        const std::size_t at = text.find(heading);
        if (at == std::string::npos) return "no such heading";
        const std::size_t first = at + heading.size();
        return text.substr(first, text.find("\n\n", first) + 1 - first);
    }
};

TEST_F(CapTables, ShearOfAPierInFull) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 2);
    AllocateCap(1);
    AddShearSection(1.0, 0, 0);
    AddShearSection(3.0, 0, 3);
    AddBearing(1.0, {0, 2, true, true});  // on the left face: the face comes first
    Set(Results().shearSupports.At(0, 0, 0, 0), 0, 7, 2, kInsideElement, 11, 12);
    Set(Results().shearSupports.At(0, 0, 3, 0), 1, 8, 2, kEndI, 13);
    Set(Results().shearBearings.At(0, 0, 0, 0), 1, 9, 3, kEndJ, 14);
    Set(Results().shearBearings.At(0, 0, 1, 0), 0, 10, 3, kEndI, 14);
    Set(Results().shearSupports.At(0, 0, 0, 1), -1, 7, 2, kEndI, 11);
    SetMissing(Results().shearSupports.At(0, 0, 3, 1));
    Set(Results().shearBearings.At(0, 0, 0, 1), 1, 9, 3, kEndJ, 14);
    Set(Results().shearBearings.At(0, 0, 1, 1), 0, 10, 3, kEndI, 14);
    const std::string values =
        "        1.00       -2.50        3.00        4.00    -1234.50        6.00     0.75\n";
    EXPECT_EQ(
        Text(kTableCapShear),
        "\t                                        Pier Cap Shear F22 Design\n\n\n"
        "Pier Cap Shear F22 Design, Substructure  1:\n"
        "Maximum (+) Shear Forces at the Left and Right of the Bearings and at the Left Face, Right Face and"
        " Centerline of Supports\n\n\n" +
            kShearHead +  //
            "    Col 1 LF     7     2      11,12     1  I,J" + values +
            "     Brg 1 L     9     3         14     2    J" + values +
            "     Brg 1 R    10     3         14     1    I" + values +
            "    Col 1 RF     8     2         13     2    I" + values +
            "\n\n\n"
            "Pier Cap Shear F22 Design, Substructure  1:\n"
            "Minimum (-) Shear Forces at the Left and Right of the Bearings and at the Left Face, Right Face "
            "and"
            " Centerline of Supports\n\n\n" +
            kShearHead +
            // The filler has the limit state's width even in a table without that column.
            "    Col 1 LF     7     2         11  none            ***  ***         ***         ***         "
            "***"
            "         ***         ***         ***      ***\n"
            "     Brg 1 L     9     3         14     2    J" +
            values + "     Brg 1 R    10     3         14     1    I" + values +
            "    Col 1 RF  miss   ***        ***   ***  ***         ***         ***         ***         ***"
            "         ***         ***      ***\n"
            "\n\n \"Location & Side\" Key:\n\n" +
            kColumnWord + kShearKeyTail);
    EXPECT_EQ(m_lines, 3 + (4 + 3 + 4) + 3 + (4 + 3 + 4) + 4 + 5);
}

TEST_F(CapTables, MomentOfAPierInFull) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    AllocateCap(1);
    AddMomentSection(2.0, 0, 1);
    AddBearing(1.0, {0, 0, false, false});  // this table does not use the flags
    AddBearing(3.0, {2, 1, false, false});
    for (int extreme = 0; extreme < 2; ++extreme) {
        Set(Results().momentSupports.At(0, 0, 1, extreme), 0, 7, 2, kEndI, 11);
        Set(Results().momentBearings.At(0, 0, 0, extreme), 0, 9, 3, kEndJ, 14);
        Set(Results().momentBearings.At(2, 0, 1, extreme), 0, 10, 3, -1, 15);
    }
    const std::string values = "        1.00        4.00    -1234.50     0.75\n";
    const std::string rows = kMomentHead +  //
                             "    Brg 1 LR     9     3         14     1    J" + values +
                             "    Col 1 CL     7     2         11     1    I" + values +
                             "    Brg 3 RR    10     3         15     1  ***" + values;
    EXPECT_EQ(
        Text(kTableCapMoment),
        Blanks(32) +
            "Pier Cap M33 Moment Design\n\n\n"
            "Pier Cap M33 Moment Design, Substructure  1:\n"
            "Maximum (+) Moment Forces at the Bearings and at the Left Face, Right Face and Centerline of"
            " Supports\n"
            "(+M33 = Tension at Bottom)\n\n\n" +
            rows +
            "\n\n\n"
            "Pier Cap M33 Moment Design, Substructure  1:\n"
            "Minimum (-) Moment Forces at the Bearings and at the Left Face, Right Face and Centerline of"
            " Supports\n\n\n" +
            rows + "\n\n \"Location & Side\" Key:\n\n" + kColumnWord +
            "    LF  = Left Face of Column                  LR  = Bearing Is In The Left Row\n"
            "    RF  = Right Face of Column                 RR  = Bearing Is In The Right Row\n"
            "    CL  = Centerline of Column\n");
    EXPECT_EQ(m_lines, 3 + (5 + 3 + 3) + 3 + (4 + 3 + 3) + 4 + 4);
}

TEST_F(CapTables, ABearingSideWithoutItsFlagNamesItsElementAndNothingElse) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    AllocateCap(1);
    AddBearing(1.0, {0, 0, false, true});
    AddBearing(2.0, {0, 1, true, false});
    for (int kind = 0; kind < 4; ++kind) Set(Results().shearBearings.At(0, 0, kind, 0), 0, 9, 3, kEndJ, 14);
    const std::string fillers =
        "         ***         ***         ***         ***         ***         ***      ***\n";
    const std::string values =
        "        1.00       -2.50        3.00        4.00    -1234.50        6.00     0.75\n";
    EXPECT_EQ(RowsAfter(Text(kTableCapShear), kShearHead),
              "  Brg 1 L LR     9     3         14   *** none" + fillers +  //
                  "  Brg 1 R LR     9     3         14     1    J" + values +
                  "  Brg 1 L RR     9     3         14     1    J" + values +
                  "  Brg 1 R RR     9     3         14   *** none" + fillers);
}

TEST_F(CapTables, FillersOfCombinationsHaveTheLimitStateGap) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    MakeCombinations(Pier(), kFamilyLfd, {});
    Pier().m_LoadCases[0].m_sLimitState = "GROUP-IA";
    AllocateCap(1);
    AddShearSection(1.0, 0, 1);
    AddShearSection(1.0, 0, 2);
    AddShearSection(2.0, 1, 9);  // no such kind
    AddBearing(3.0, {0, 3, false, true});
    SetMissing(Results().shearSupports.At(0, 0, 1, 0));
    Set(Results().shearSupports.At(0, 0, 2, 0), 0, 7, 2, kEndI, 11);
    Set(Results().shearBearings.At(0, 0, 0, 0), 0, 9, 3, kEndJ, 14);
    Set(Results().shearBearings.At(0, 0, 1, 0), -1, 10, 3, kEndI, 14);
    const std::string text = Text(kTableCapShear);
    const std::string fillers =
        "         ***         ***         ***         ***         ***         ***      ***\n";
    EXPECT_NE(text.find("   Col 1 LCL  miss   ***        ***   ***            ***  ***" + fillers),
              std::string::npos);
    EXPECT_NE(
        text.find("   Col 1 RCL     7     2         11     1       GROUP-IA    I        1.00       -2.50"),
        std::string::npos);
    EXPECT_NE(text.find("     Brg 1 L     9     3         14   ***            *** none" + fillers),
              std::string::npos);
    EXPECT_NE(text.find("     Brg 1 R    10     3         14  none            ***  ***" + fillers),
              std::string::npos);
    EXPECT_EQ(text.substr(0, text.find('\n')), Blanks(53) + "Pier Cap Shear F22 Design");
    EXPECT_NE(text.find(" LOAD FACTOR DESIGN DATA\n\n    LOCATION"), std::string::npos);
}

TEST_F(CapTables, FatigueAloneHasItsBlockInTheMomentTable) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    MakeCombinations(Pier(), kFamilyLrfd, {3});
    AllocateCap(4);
    AddMomentSection(1.0, 0, 0);
    SetMissing(Results().momentSupports.At(0, 3, 0, 0));
    SetMissing(Results().momentSupports.At(0, 3, 0, 1));
    const std::string text = Text(kTableCapMoment);
    const std::string row =
        "    Col 1 LF  miss   ***        ***   ***            ***  ***         ***         ***         ***"
        "      ***\n";
    EXPECT_EQ(text.find("STRENGTH"), std::string::npos);
    // Slot 3 is the last one, so no empty lines separate it from what follows.
    EXPECT_NE(text.find(row + "\n\n\nPier Cap M33 Moment Design, Substructure  1:\nMinimum"),
              std::string::npos);
    EXPECT_EQ(m_lines, 3 + (5 + 2 + 3 + 1) + 3 + (4 + 2 + 3 + 1) + 4 + 4);
    // The shear table has headings and no block at all.
    Text(kTableCapShear);
    EXPECT_EQ(m_lines, 3 + 4 + 3 + 4 + 4 + 5);
}

TEST_F(CapTables, ASectionIsFollowedByItsGapThoughTheNextOneIsAbsent) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    MakeCombinations(Pier(), kFamilyLrfd, {0, 2});
    AllocateCap(4);
    AddShearSection(1.0, 0, 0);
    for (int slot = 0; slot < 4; ++slot) SetMissing(Results().shearSupports.At(0, slot, 0, 0));
    const std::string text = Text(kTableCapShear);
    EXPECT_NE(text.find("      ***\n\n\n EXTREME CASE DATA\n\n"), std::string::npos);
    // The extreme block has its two empty lines too, before the three that end the extreme.
    EXPECT_NE(text.find("      ***\n\n\n\n\n\nPier Cap Shear F22 Design, Substructure  1:\nMinimum"),
              std::string::npos);
    EXPECT_EQ(text.find("SERVICE"), std::string::npos);
}

TEST_F(CapTables, AMastHasItsWordInLabelsAndKey) {
    AddPiers(1, kTypeMast);
    Fill(Pier(), 0, 1, 0, 1);
    AllocateCap(1);
    AddShearSection(1.0, 0, 0);
    Set(Results().shearSupports.At(0, 0, 0, 0), 0, 7, 2, kEndI, 11);
    const std::string text = Text(kTableCapShear);
    EXPECT_NE(text.find("\n    Mst 1 LF     7     2         11     1    I"), std::string::npos);
    EXPECT_NE(text.find("\n    Mst = Mast                                 Brg = Bearing\n"
                        "    LF  = Left Face of Mast                    L   = Left Side of Bearing\n"),
              std::string::npos);
}

TEST_F(CapTables, TheKeyOfSeveralSubstructuresNamesPiersAndBents) {
    AddPiers(3);
    Pier(1).m_nStructureType = kTypePileBent;
    Pier(2).m_nStructureType = kTypePileGroup;
    for (CPier& pier : data.m_Piers) Fill(pier, 1, 0, 0, 1);
    const std::string tail =
        "    LF  = Left Face of Support                 LR  = Bearing Is In The Left Row\n"
        "    RF  = Right Face of Support                RR  = Bearing Is In The Right Row\n"
        "    CL  = Centerline of Support\n";
    std::string text = Text(kTableCapMoment);
    EXPECT_EQ(text.substr(text.find("Key:")),
              "Key:\n\n    Col = Column" + Blanks(31) +
                  "\n"
                  "    Pil = Pile                                 Brg = Bearing\n" +
                  tail);
    // Each substructure's blocks have its own title.
    EXPECT_NE(text.find("\n\n\nBent Cap Moment Design, Substructure  2:\n"), std::string::npos);
    EXPECT_NE(text.find("\n\n\n, Substructure  3:\n"), std::string::npos);
    Pier(1).m_nStructureType = kTypeWallA;
    text = Text(kTableCapMoment);
    EXPECT_EQ(text.substr(text.find("Key:")), "Key:\n\n" + kColumnWord + tail);
    Pier(0).m_nStructureType = kTypeMast;
    text = Text(kTableCapMoment);
    EXPECT_EQ(text.substr(text.find("Key:")), "Key:\n\n" + tail);
}

TEST_F(CapTables, AnEmptyHeadLeavesTwoEmptyLinesAndCountsThree) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    AllocateCap(1);
    AddShearSection(1.0, 0, 0);
    SetMissing(Results().shearSupports.At(0, 0, 0, 0));
    data.m_nAnalysisMode = 3;
    const std::string text = Text(kTableCapShear);
    EXPECT_NE(text.find("Supports\n\n\n\n\n    Col 1 LF  miss"), std::string::npos);
    EXPECT_EQ(m_lines, 3 + (4 + 3 + 1) + 3 + (4 + 3 + 1) + 4 + 5);
}

}  // namespace lumerin
