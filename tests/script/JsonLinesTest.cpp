// SPDX-License-Identifier: MIT
#include "script/JsonLines.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lumerin {

namespace {

class JsonLinesTest : public testing::Test {
  protected:
    std::ostringstream out;
    JsonLines lines{out};
};

TEST_F(JsonLinesTest, KeysAreInTheirFixedOrder) {
    lines.Dialog("Lumerin Generator");
    lines.Message("a\n\"b\"", "Lumerin", MessageIcon::exclamation);
    lines.Row(0, {"Load Case", "Include"});
    lines.Result(1);
    EXPECT_EQ(out.str(),
              "{\"dialog\":\"Lumerin Generator\"}\n"
              "{\"message\":\"a\\n\\\"b\\\"\",\"title\":\"Lumerin\",\"icon\":\"exclamation\"}\n"
              "{\"row\":0,\"cells\":[\"Load Case\",\"Include\"]}\n"
              "{\"result\":1}\n");
}

TEST_F(JsonLinesTest, CheckedIsForRadioAndCheckAndSelectionForACombo) {
    ControlState state;
    state.id = 1004;
    state.text = "Go";
    lines.Control(state);
    state.kind = ControlKind::radio;
    state.checked = true;
    lines.Control(state);
    state.kind = ControlKind::check;
    state.checked = false;
    state.enabled = false;
    lines.Control(state);
    state.kind = ControlKind::combo;
    state.visible = false;
    state.selection = 2;
    lines.Control(state);
    EXPECT_EQ(out.str(),
              "{\"id\":1004,\"kind\":\"button\",\"text\":\"Go\",\"enabled\":true,\"visible\":true}\n"
              "{\"id\":1004,\"kind\":\"radio\",\"text\":\"Go\",\"enabled\":true,\"visible\":true,\"checked\":"
              "true}\n"
              "{\"id\":1004,\"kind\":\"check\",\"text\":\"Go\",\"enabled\":false,\"visible\":true,"
              "\"checked\":false}\n"
              "{\"id\":1004,\"kind\":\"combo\",\"text\":\"Go\",\"enabled\":false,\"visible\":false,"
              "\"selection\":2}\n");
}

TEST_F(JsonLinesTest, EveryKindHasItsName) {
    const char* names[] = {"group", "radio", "check", "button", "text",
                           "edit",  "combo", "spin",  "grid",   "graph"};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        out.str("");
        ControlState state;
        state.kind = static_cast<ControlKind>(i);
        lines.Control(state);
        EXPECT_NE(out.str().find("\"kind\":\"" + std::string(names[i]) + "\""), std::string::npos)
            << names[i];
    }
}

TEST_F(JsonLinesTest, ADocumentLosesItsQuotesAndAProgramItsFolder) {
    lines.Open("\"C:\\p\\a b.txt\"", "");
    lines.Open("Excel", "\"/p/a.xml\"");
    lines.Open("C:\\Host\\Jarlimex.exe", "\"/p/PdfTemp.txt\"");
    EXPECT_EQ(out.str(),
              "{\"open\":\"C:\\\\p\\\\a b.txt\",\"program\":\"\"}\n"
              "{\"open\":\"/p/a.xml\",\"program\":\"Excel\"}\n"
              "{\"open\":\"/p/PdfTemp.txt\",\"program\":\"Jarlimex.exe\"}\n");
}

TEST_F(JsonLinesTest, APlotModuleCallListsItsEightArguments) {
    lines.Module("Sorvane.dll", 1, {"p_Envelopes.txt", "Shear", "STRENGTH", "5.2.1", "0", "0", "x"});
    EXPECT_EQ(
        out.str(),
        "{\"module\":\"Sorvane.dll\",\"arguments\":[1,\"p_Envelopes.txt\",\"Shear\",\"STRENGTH\",\"5.2.1\","
        "\"0\",\"0\",\"x\"]}\n");
}

TEST_F(JsonLinesTest, PlotNumbersAreShortAndWholeOnesCarryNoDecimals) {
    lines.Plot({{false, -518, {std::string("TITLE")}},
                {false, 7, {true}},
                {true, 59, {}},
                {true, 53, {0.0, 75.0, -1.0, 1.0}},
                {true, 60, {12.5, 0.590075, 1}}});
    EXPECT_EQ(
        out.str(),
        "{\"plot\":[[\"set\",-518,\"TITLE\"],[\"set\",7,true],[\"call\",59,[]],[\"call\",53,[0,75,-1,1]],"
        "[\"call\",60,[12.5,0.590075,1]]]}\n");
}

TEST_F(JsonLinesTest, TextsAreOfTheCodePageAndPathsAsGiven) {
    lines.Row(1, {"Gr\xF6\xDF"
                  "e \x80"});
    lines.Message(
        "/p/Gr\xC3\xB6\xC3\x9F"
        "e.vmd: 5 \x96 7",
        "Lumerin", MessageIcon::none);
    lines.Open("\"/p/\xE6\xA9\x8B.txt\"", "");
    EXPECT_EQ(out.str(),
              "{\"row\":1,\"cells\":[\"Gr\xC3\xB6\xC3\x9F"
              "e \xE2\x82\xAC\"]}\n"
              "{\"message\":\"/p/Gr\xC3\xB6\xC3\x9F"
              "e.vmd: 5 \xE2\x80\x93 7\",\"title\":\"Lumerin\",\"icon\":\"none\"}\n"
              "{\"open\":\"/p/\xE6\xA9\x8B.txt\",\"program\":\"\"}\n");
}

}  // namespace

}  // namespace lumerin
