// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "SheetHeads.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::HasSubstr;

std::string Cells(const std::vector<std::string>& texts) {
    std::string out;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        out += i == 0 ? "\t\t<Cell ss:Index=\"2\" ss:StyleID=\"s65\">" : "\t\t<Cell ss:StyleID=\"s65\">";
        out += "<Data ss:Type=\"String\">" + texts[i] + "</Data></Cell>\n";
    }
    return out;
}

struct ColumnCase {
    int table;
    const char* opening;
    std::vector<std::string> upper, lower;
    const char* closing;
};

TEST_F(SheetHeads, ColumnHeadsWithoutCombinations) {
    Make(kFamilyNone);
    data.m_nAnalysisMode = 1;
    const std::string k = "(kips)", m = "(kip-ft)";
    const ColumnCase cases[] = {
        {1,
         "  <Row></Row>\n<Row>",
         {"PROP", "PILE ", "ELEM ", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row ss"},
        {2,
         "  <Row></Row>\n\t<Row>",
         {"PROP", "COLUMN ", "ELEM ", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row><Row ss"},
        {3,
         "\n\t<Row>",
         {"LOCATION", "ELEM", "PROP", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"&amp; SIDE", "NO. ", "NO. ", "NO. ", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n<Row></Row>"},
        {4,
         "\n\t<Row>",
         {"LOCATION", "ELEM", "PROP", "NODE ", "TIME ", "I/J", "FAX", "M22", "M33", "D/C"},
         {"&amp; SIDE", "NO. ", "NO. ", "NO. ", "STEP ", "", k, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n<Row></Row>\n"},
        {5,
         "  <Row></Row>\n<Row>\n ",
         {"PROP", "PILE ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
        {6,
         "  <Row></Row>\n<Row>",
         {"PROP", "COLUMN ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
        {7,
         "  <Row></Row>\n<Row>",
         {"PROP", "XMEMBR ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
    };
    for (const ColumnCase& head : cases) {
        EXPECT_THAT(Written(head.table), HasSubstr(head.opening + Cells(head.upper) + "  </Row>\n  <Row>\n" +
                                                   Cells(head.lower) + head.closing))
            << head.table;
    }
}

// With combinations the family's word is above an empty cell; a family without a word keeps the empty cell.
TEST_F(SheetHeads, ColumnHeadsNameTheDesignFamily) {
    const std::pair<CodeFamily, const char*> families[] = {{kFamilyLrfd, "AASHTO-LRFD"},
                                                           {kFamilyLfd, "AASHTO-LFD"},
                                                           {kFamilyArema, "AREMA"},
                                                           {CodeFamily{3}, nullptr}};
    data.m_sForceUnit = "kN";
    data.m_sMomentUnit = "kN-m";
    for (const auto& [family, word] : families) {
        Make(family);
        std::vector<std::string> upper = {"LOCATION", "ELEM", "PROP", "NODE ", "LOAD "};
        if (word != nullptr) upper.emplace_back(word);
        for (const char* text : {"I/J", "FAX", "M22", "M33", "D/C"}) upper.emplace_back(text);
        EXPECT_THAT(Written(kTableCapMoment),
                    HasSubstr("\n\t<Row>" + Cells(upper) + "  </Row>\n  <Row>\n" +
                              Cells({"&amp; SIDE", "NO. ", "NO. ", "NO. ", "COMB ", "", "", "(kN)", "(kN-m)",
                                     "(kN-m)", "(Ratio)"}) +
                              "  </Row>\n<Row></Row>\n"));
        upper = {"PROP", "PILE ", "ELEM ", "NODE ", "LOAD "};
        if (word != nullptr) upper.emplace_back(word);
        for (const char* text : {"I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33", "TORQUE", "D/C"}) {
            upper.emplace_back(text);
        }
        EXPECT_THAT(Written(kTablePileForces),
                    HasSubstr(Cells(upper) + "  </Row>\n  <Row>\n" +
                              Cells({"NO.", "NO.", "NO.", "NO.", "COMB ", "", "", "Force", "(kN)", "(kN)",
                                     "(kN)", "(kN-m)", "(kN-m)", "(kN-m)", "(Ratio)"}) +
                              "  </Row>\n<Row></Row>\n"));
    }
}

}  // namespace

}  // namespace lumerin
