// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <ctime>

#include "WellFormed.h"
#include "Worksheets.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::HasSubstr;
using testing::Not;

class SheetEachCase : public SheetTest {
  protected:
    static std::string Body8(const std::string& sheet) {
        return Body(sheet, "Internal Forces at Pile Heads");
    }
};

std::string Cell(const std::string& text) {
    return "\t\t<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">" + text + "</Data></Cell>\n";
}
std::string Head(const std::string& upper, const std::string& lower, const std::string& force,
                 const std::string& moment) {
    return "\t<Row></Row>\n\t<Row>\n" + Cell("") + Cell("PILE") + Cell("ELEM") + Cell("NODE") + Cell(upper) +
           Cell("LIMIT") + Cell("FAX") + Cell("F22") + Cell("F33") + Cell("M22") + Cell("M33") +
           Cell("TORQUE") + Cell("D/C") + "\t</Row>\n\t<Row>\n" + Cell("") + Cell("NO.") + Cell("NO.") +
           Cell("NO.") + Cell(lower) + Cell("STATE") + Cell(force) + Cell(force) + Cell(force) +
           Cell(moment) + Cell(moment) + Cell(moment) + Cell("(ratio)") + "\t</Row>\n\t<Row></Row>\n";
}

// A third is 0.3333333432674407958984375 as a 32-bit number; the node column repeats the pile's number.
TEST_F(SheetEachCase, PlainTableWhole) {
    MakePiers({{.piles = 2, .cases = 1}});
    Pier().Element(1).m_nElementNumber = 70;
    SetForces(Pier(), 0, 1, kEndJ, {1.0F / 3.0F, -2.5F, 0.0F, 1000000.0F, -0.0F, 0.125F, 2.0F});
    const std::string zero =
        "    <Cell ss:StyleID=\"s61\"><Data ss:Type=\"Number\">0.000000000000</Data></Cell>\n";
    const std::string first =
        R"(    <Row><Cell></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
)" + zero +
        zero + zero + zero + zero + zero +
        R"(    <Cell ss:StyleID="s62"><Data ss:Type="Number">0.000000000000</Data></Cell>
  </Row>
)";
    const std::string second =
        R"(    <Row><Cell></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="Number">70</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">0.333333343267</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">-2.500000000000</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">0.000000000000</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">1000000.000000000000</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">-0.000000000000</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">0.125000000000</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">2.000000000000</Data></Cell>
  </Row>
)";
    const std::string sheet = Written(kTablePileHeads);
    EXPECT_EQ(Body8(sheet), Head("LOAD", "CASE", "(kips)", "(kip-ft)") + first + second);
    EXPECT_EQ(xml::Fault(sheet), "");
}

TEST_F(SheetEachCase, UnselectedCasesAreLeftOut) {
    MakePiers({{.piles = 1, .cases = 3, .family = kFamilyLrfd}});
    Pier().m_LoadCases[2].m_sLimitState = "FATIGUE-I";
    selection.SetCaseSelected(0, false);
    selection.SetCaseSelected(1, false);
    const std::string sheet = Written(kTablePileHeads);
    EXPECT_THAT(sheet, HasSubstr(Head("LOAD", "COMB", "(kips)", "(kip-ft)")));
    EXPECT_THAT(sheet, HasSubstr("    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">3</Data></Cell>\n"
                                 "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">      FATIGUE-I"
                                 "</Data></Cell>\n"));
    EXPECT_EQ(AnnouncedRows(sheet), 6);
    EXPECT_EQ(CountedRows(sheet), 6);
}

TEST_F(SheetEachCase, EachSubstructureHasItsWorksheet) {
    MakePiers({{.piles = 2, .cases = 2}, {.cases = 2}, {.piles = 1, .cases = 2}});
    const auto sheets = Worksheets(Written(kTablePileHeads, false));
    ASSERT_EQ(sheets.size(), 3U);
    const int rows[] = {9, 5, 7};  // piles times cases, and five
    for (std::size_t p = 0; p < sheets.size(); ++p) {
        EXPECT_EQ(Attribute(sheets[p], "ss:Name"), "Substructure " + std::to_string(p + 1));
        EXPECT_EQ(AnnouncedRows(sheets[p]), rows[p]);
        EXPECT_EQ(CountedRows(sheets[p]), rows[p]);
    }
}

// A pile of one node has no element and thus no head.
TEST_F(SheetEachCase, PileWithoutElementHasNoRow) {
    MakePiers({{.piles = 1}});
    Pier().m_Piles[0].m_nElements = 0;
    EXPECT_EQ(CountedRows(Written(kTablePileHeads)), 5);
}

long PeakKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
    }
    return 0;
}

// A hundred thousand rows, some 95 MB: memory must not grow with them, and a loaded machine still writes at
// least a million cells a second.
TEST_F(SheetEachCase, ManyRowsTakeNoMemory) {
    constexpr int kPiles = 100, kCases = 1000;
    MakePiers({{.piles = kPiles, .cases = kCases}});
    for (int c = 0; c < kCases; ++c) {
        for (int p = 0; p < kPiles; ++p) {
            const float v = static_cast<float>(c * 100 + p) / 7.0F;
            SetForces(Pier(), c, p, kEndJ, {v, -v, v / 3.0F, v * 11.0F, -v * 13.0F, v / 17.0F, 0.9F});
        }
    }
    const long before = PeakKilobytes();
    const std::clock_t start = std::clock();
    std::int64_t bytes = 0;
    {
        StoredStream out(Path());
        EXPECT_EQ(WriteTableSheet(MakeReport(), kTablePileHeads, out, true), 1);
        bytes = out.Position();
        out.Close();
        EXPECT_FALSE(out.Failed());
    }
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_GT(bytes, 80'000'000);
    EXPECT_LT(PeakKilobytes() - before, 4096);
#if !defined(LUMERIN_SANITIZED) && defined(__OPTIMIZE__)
    EXPECT_GT(13.0 * kPiles * kCases / seconds, 1.0e6);
#else
    RecordProperty("seconds", std::to_string(seconds));
#endif
}

}  // namespace

}  // namespace lumerin
