// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "WellFormed.h"
#include "Worksheets.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SheetMaxAxial : public SheetTest {
  protected:
    static std::string TableBody(const std::string& text) {
        return Body(text, "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES");
    }
    void Make(std::size_t piers, CodeFamily family, int cases = 1) {
        MakePiers(std::vector<PierShape>(piers, {.piles = 1, .cases = cases, .family = family}));
        AllocateResults();
    }
};

std::string Cell(const std::string& text) {
    return "\t\t<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">" + text + "</Data></Cell>\n";
}

std::string CombinationHead(const std::string& family) {
    return "\t<Row></Row>\n\t<Row >\t\t<Cell ss:Index=\"2\" ss:StyleID=\"s65\"><Data ss:Type=\"String\">"
           "SUBSTRUCTURE</Data></Cell>\n" +
           Cell("PILE") + Cell("LOAD") + family + Cell("MAX TENSION") + Cell("D/C") + "\t\t<Cell></Cell>" +
           Cell("LOAD") + family + Cell("MAX COMP") + Cell("D/C") +
           "\t</Row>\n\t<Row>\n"
           "    <Cell ss:StyleID=\"s65\" ss:Index=\"4\"><Data ss:Type=\"String\">COMB </Data></Cell>\n"
           "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"6\"><Data ss:Type=\"String\">(Kips)</Data></Cell>\n"
           "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"7\"><Data ss:Type=\"String\">(Ratio)</Data></Cell>\n"
           "    <Cell ss:StyleID=\"s65\" ss:Index=\"9\"><Data ss:Type=\"String\">COMB </Data></Cell>\n"
           "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"11\"><Data ss:Type=\"String\">(Kips)</Data></Cell>\n"
           "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"12\"><Data ss:Type=\"String\">(Ratio)</Data></Cell>\n"
           "\t</Row>\n<Row></Row>\n";
}

// A row of one pile without any result.
std::string EmptyCombinationRow(int pier) {
    const std::string missing = "\t\t<Cell ss:StyleID=\"s60\"><Data ss:Type=\"String\">***</Data></Cell>\n";
    const std::string group = missing + missing +
                              "\t\t<Cell ss:StyleID=\"s60\"><Data ss:Type=\"String\">none</Data></Cell>\n" +
                              missing;
    return "    <Row>\n\t<Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">" +
           std::to_string(pier) +
           "</Data></Cell>\n    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">1</Data></Cell>" + group +
           "<Cell></Cell>\n" + group + "</Row>\n";
}

// Pile 1 is pulled with 12.345 (ratio 0.5) in case 2 and never pushed; pile 2 is pushed with 7.5 (ratio
// 1.25) in case 1 and never pulled.
TEST_F(SheetMaxAxial, PlainTableWhole) {
    MakePiers({{.piles = 2, .cases = 2}});
    CPier& pier = Pier();
    AllocateResults();
    Results().maxTension = {{1, -1}};
    Results().maxCompression = {{-1, 0}};
    SetForces(pier, 1, 0, kEndJ, {12.345F, 0, 0, 0, 0, 0, 0.5F});
    SetForces(pier, 0, 1, kEndJ, {-7.5F, 0, 0, 0, 0, 0, 1.25F});
    const std::string expected =
        "\t<Row></Row>\n\t<Row>\n" + Cell("") + Cell("SUBSTRUCTURE") + Cell("PILE") + Cell("LOAD") +
        Cell("MAX TENSION") + Cell("D/C") + Cell("") + Cell("LOAD") + Cell("MAX COMP") + Cell("D/C") +
        "\t</Row>\n\t<Row>\n" + Cell("") + Cell("") + Cell("") + Cell("CASE") + Cell("(kips)") +
        Cell("(ratio)") + Cell("") + Cell("CASE") + Cell("(kips)") + Cell("(ratio)") +
        "\t</Row>\n\t<Row></Row>\n" +
        R"(    <Row><Cell ss:Index="2" ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">12.35</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">0.50</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String"></Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">none</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
  </Row>
    <Row><Cell ss:Index="2" ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>    <Cell ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">none</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">***</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String"></Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">-7.50</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="Number">1.25</Data></Cell>
  </Row>
)";
    const std::string sheet = Written(kTableMaxAxial);
    EXPECT_EQ(TableBody(sheet), expected);
    // 3 rows of titles, 4 of the head, 2 piles.
    EXPECT_EQ(AnnouncedRows(sheet), 9);
    EXPECT_EQ(CountedRows(sheet), 9);
}

// The tension ratio of the extreme class has two decimals, every other ratio six.
TEST_F(SheetMaxAxial, RatiosOfCombinations) {
    MakePiers({{.piles = 1, .cases = 1, .family = kFamilyLrfd}});
    CPier& pier = Pier();
    AllocateResults();
    PresentClasses({kStrength, kService, kExtreme});
    pier.m_LoadCases[0].m_sLimitState = "STRENGTH-III";
    SetForces(pier, 0, 0, kEndJ, {100.0F, 0, 0, 0, 0, 0, 0.123456F});
    const std::string sheet = Written(kTableMaxAxial);
    const auto group = [](const std::string& ratio) {
        return "    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">1</Data></Cell>\n"
               "    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"String\">   STRENGTH-III</Data></Cell>\n"
               "    <Cell ss:StyleID=\"s61\"><Data ss:Type=\"Number\">100.00</Data></Cell>\n"
               "    <Cell ss:StyleID=\"s62\"><Data ss:Type=\"Number\">" +
               ratio + "</Data></Cell>\n";
    };
    const auto row = [&](const std::string& tension, const std::string& compression) {
        return "    <Row>\n\t<Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data "
               "ss:Type=\"Number\">1</Data></Cell>\n"
               "    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">1</Data></Cell>" +
               group(tension) + "<Cell></Cell>\n" + group(compression) + "</Row>\n";
    };
    const std::string head = CombinationHead(Cell("AASHTO-LRFD"));
    EXPECT_EQ(
        TableBody(sheet),
        "    <Row ss:Index=\"5\">\t<Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"
        "MAXIMUM STRENGTH CASE DATA</Data></Cell>\n  </Row>\n" +
            head + row("0.123456", "0.123456") +
            "  <Row></Row>\n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"
            "MAXIMUM SERVICE CASE DATA</Data></Cell>\n  </Row>\n" +
            head + row("0.123456", "0.123456") +
            "  <Row></Row>\n\t<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"
            "MAXIMUM EXTREME CASE DATA</Data></Cell>\n  </Row>\n" +
            head + row("0.12", "0.123456"));
    EXPECT_EQ(AnnouncedRows(sheet), 24);  // 3 + 3 classes of 1 pile and 6 rows
    EXPECT_EQ(CountedRows(sheet), 24);
    EXPECT_EQ(xml::Fault(sheet), "");
}

TEST_F(SheetMaxAxial, CombinationsAreHeadedInKipsInMetricProjectsToo) {
    MakePiers({{.piles = 1, .cases = 1, .family = kFamilyLrfd}});
    data.m_nUnits = 1;
    data.m_sForceUnit = "kN";
    AllocateResults();
    PresentClasses({kStrength});
    const std::string sheet = Written(kTableMaxAxial);
    EXPECT_NE(sheet.find(CombinationHead(Cell("AASHTO-LRFD"))), std::string::npos);
    EXPECT_EQ(sheet.find("(kN)"), std::string::npos);
}

class SheetMaxAxialHeadings : public SheetMaxAxial {
  protected:
    // Body of three substructures without results.
    std::string ThreePiers(CodeFamily family, std::initializer_list<int> classes) {
        Make(3, family);
        if (family != kFamilyLfd) PresentClasses(classes);
        for (PierResults& pier : results.piers) {
            for (auto* table : {&pier.maxTension, &pier.maxCompression}) {
                for (auto& slot : *table) slot.assign(1, -1);
            }
        }
        const std::string sheet = Written(kTableMaxAxial);
        EXPECT_EQ(xml::Fault(sheet), "");
        EXPECT_LE(CountedRows(sheet), AnnouncedRows(sheet));
        return TableBody(sheet);
    }
    static std::string Heading(const std::string& words, bool indexed) {
        return std::string(indexed ? "    <Row ss:Index=\"5\">" : "    <Row>") +
               "\t<Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">" + words +
               "</Data></Cell>\n  </Row>\n";
    }
};

TEST_F(SheetMaxAxialHeadings, LrfdBlankRowsOfLaterSubstructures) {
    const std::string head = CombinationHead(Cell("AASHTO-LRFD"));
    EXPECT_EQ(ThreePiers(kFamilyLrfd, {kStrength}),
              Heading("MAXIMUM STRENGTH CASE DATA", true) + head + EmptyCombinationRow(1) +
                  "\t<Row> </Row>\n" + Heading("MAXIMUM STRENGTH CASE DATA", false) + head +
                  EmptyCombinationRow(2) + " <Row> </Row>\n" + Heading("MAXIMUM STRENGTH CASE DATA", false) +
                  head + EmptyCombinationRow(3));
}

// CASES on the first substructure, DATA on the others.
TEST_F(SheetMaxAxialHeadings, AremaWordsChangeBySubstructure) {
    const std::string head = CombinationHead(Cell("AREMA"));
    const std::string service =
        "  <Row></Row>\n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"
        "MAXIMUM SERVICE LOAD DESIGN DATA</Data></Cell>\n  </Row>\n" +
        head;
    EXPECT_EQ(ThreePiers(kFamilyArema, {kStrength, kService}),
              Heading("MAXIMUM LOAD FACTOR DESIGN CASES", true) + head + EmptyCombinationRow(1) + service +
                  EmptyCombinationRow(1) + "\t<Row> </Row>\n" +
                  Heading("MAXIMUM LOAD FACTOR DESIGN DATA", false) + head + EmptyCombinationRow(2) +
                  service + EmptyCombinationRow(2) + " <Row> </Row>\n" +
                  Heading("MAXIMUM LOAD FACTOR DESIGN DATA", false) + head + EmptyCombinationRow(3) +
                  service + EmptyCombinationRow(3));
}

// The blank row is written once only.
TEST_F(SheetMaxAxialHeadings, LfdKeepsItsWordsAndHasOneBlankRow) {
    const std::string head = CombinationHead(Cell("AASHTO-LFD"));
    EXPECT_EQ(ThreePiers(kFamilyLfd, {}),
              Heading("MAXIMUM LOAD FACTOR DESIGN CASES", true) + head + EmptyCombinationRow(1) +
                  "\t<Row> </Row>\n" + Heading("MAXIMUM LOAD FACTOR DESIGN CASES", false) + head +
                  EmptyCombinationRow(2) + Heading("MAXIMUM LOAD FACTOR DESIGN CASES", false) + head +
                  EmptyCombinationRow(3));
}

TEST_F(SheetMaxAxialHeadings, AbsentStrengthLeavesNoIndexedHeading) {
    const std::string body = ThreePiers(kFamilyLrfd, {kService});
    EXPECT_THAT(body, StartsWith("  <Row></Row>\n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\">"
                                 "<Data ss:Type=\"String\">MAXIMUM SERVICE CASE DATA"));
    EXPECT_THAT(body, Not(HasSubstr("ss:Index=\"5\"")));
}

TEST_F(SheetMaxAxialHeadings, UnknownFamilyHasOneBlockWithoutHeading) {
    const std::string head = CombinationHead("");
    EXPECT_EQ(ThreePiers(CodeFamily{3}, {}),
              head + EmptyCombinationRow(1) + head + EmptyCombinationRow(2) + head + EmptyCombinationRow(3));
}

}  // namespace

}  // namespace lumerin
