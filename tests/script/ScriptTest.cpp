// SPDX-License-Identifier: MIT
#include "script/Script.h"

#include <gmock/gmock.h>

namespace lumerin {

namespace {

std::string FaultOf(const std::string& script) {
    try {
        ParseScript(script);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "";
}

TEST(Script, ReadsEveryAction) {
    const std::vector<ScriptAction> actions = ParseScript(
        "click 1004\ntext 1025 12 b\nfocus 1025\nselect 1027 3\nspin 1026 up\nspin 1026 down\n"
        "cell 2 1 0\ngraph-click -1.5\nanswer yes\nanswer no\ndump\nshot a b.png\nkey Esc\nkey Return\nkey "
        "F1 1001\ntype a b\nwhere\nkey Ctrl+Shift+End\nkey Ctrl+V\n");
    const ScriptVerb verbs[] = {
        ScriptVerb::click,     ScriptVerb::text,     ScriptVerb::focus,   ScriptVerb::select,
        ScriptVerb::spinUp,    ScriptVerb::spinDown, ScriptVerb::cell,    ScriptVerb::graphClick,
        ScriptVerb::answerYes, ScriptVerb::answerNo, ScriptVerb::dump,    ScriptVerb::shot,
        ScriptVerb::key,       ScriptVerb::key,      ScriptVerb::keyHelp, ScriptVerb::type,
        ScriptVerb::where,     ScriptVerb::key,      ScriptVerb::key};
    ASSERT_EQ(actions.size(), std::size(verbs));
    for (std::size_t i = 0; i < actions.size(); ++i) {
        EXPECT_EQ(actions[i].verb, verbs[i]) << i;
        EXPECT_EQ(actions[i].line, static_cast<int>(i) + 1);
    }
    EXPECT_EQ(actions[0].id, 1004);
    EXPECT_EQ(actions[1].text, "12 b");
    EXPECT_EQ(actions[3].number, 3);
    EXPECT_EQ(actions[6].id, 2);
    EXPECT_EQ(actions[6].number, 1);
    EXPECT_EQ(actions[6].text, "0");
    EXPECT_EQ(actions[7].x, -1.5);
    EXPECT_EQ(actions[11].text, "a b.png");
    EXPECT_EQ(actions[12].key.code, 27U);
    EXPECT_EQ(actions[13].text, "Return");
    EXPECT_EQ(actions[14].id, 1001);
    EXPECT_EQ(actions[15].text, "a b");
    EXPECT_EQ(actions[17].key.code, 35U);
    EXPECT_TRUE(actions[17].key.keys.control && actions[17].key.keys.shift);
    EXPECT_EQ(actions[18].key.code, 86U);  // the letter V
    EXPECT_TRUE(actions[18].key.keys.control && !actions[18].key.keys.shift);
}

MouseAction MouseOf(const std::string& line) {
    const ScriptAction action = ParseScript(line).front();
    EXPECT_EQ(action.verb, ScriptVerb::mouse) << line;
    EXPECT_EQ(RefusedName(action), line);
    return action.mouse;
}

TEST(Script, ReadsWhatTheMouseDoes) {
    const std::pair<const char*, MouseDeed> deeds[] = {
        {"hover 3 1", MouseDeed::move},
        {"mouse move 3 1", MouseDeed::move},
        {"mouse press 3 1", MouseDeed::press},
        {"mouse release 3 1", MouseDeed::release},
        {"mouse click 3 1", MouseDeed::click},
        {"mouse double 3 1", MouseDeed::doubleClick},
        {"mouse right 3 1", MouseDeed::rightClick},
        {"mouse shaky-double 3 1", MouseDeed::shakyDouble},
    };
    for (const auto& [line, deed] : deeds) {
        const MouseAction mouse = MouseOf(line);
        EXPECT_EQ(mouse.deed, deed) << line;
        EXPECT_EQ(mouse.spot.place, MousePlace::cell) << line;
        EXPECT_EQ(mouse.spot.row, 3) << line;
        EXPECT_EQ(mouse.spot.column, 1) << line;
        EXPECT_FALSE(mouse.keys.shift || mouse.keys.control) << line;
    }
    EXPECT_EQ(MouseOf("mouse release").spot.place, MousePlace::here);
    EXPECT_EQ(MouseOf("mouse lose").deed, MouseDeed::lose);
    EXPECT_EQ(MouseOf("mouse cancel").deed, MouseDeed::cancel);
    EXPECT_EQ(MouseOf("mouse wheel -12").deed, MouseDeed::wheel);
    EXPECT_EQ(MouseOf("mouse wheel -12").count, -12);
}

TEST(Script, ReadsPlacesAndHeldKeysOfTheMouse) {
    const std::pair<const char*, MousePlace> places[] = {
        {"mouse move 0 0 right", MousePlace::cellRight}, {"mouse move 0 0 bottom", MousePlace::cellBottom},
        {"mouse move beside", MousePlace::beside},       {"mouse move frame", MousePlace::frame},
        {"mouse move above", MousePlace::above},         {"mouse move below", MousePlace::below},
        {"mouse move left", MousePlace::left},           {"mouse move right", MousePlace::right},
        {"mouse move away", MousePlace::away},
    };
    for (const auto& [line, place] : places) EXPECT_EQ(MouseOf(line).spot.place, place) << line;
    EXPECT_TRUE(MouseOf("mouse press Shift 1 1").keys.shift);
    EXPECT_FALSE(MouseOf("mouse press Shift 1 1").keys.control);
    EXPECT_TRUE(MouseOf("mouse click Ctrl 1 1").keys.control);
    const KeyState both = MouseOf("mouse double Ctrl+Shift 1 1").keys;
    EXPECT_TRUE(both.shift && both.control);
}

TEST(Script, ReadsThePartsOfTheScrollBar) {
    const std::pair<const char*, ScrollPart> parts[] = {
        {"up", ScrollPart::lineUp},          {"down", ScrollPart::lineDown}, {"page-up", ScrollPart::pageUp},
        {"page-down", ScrollPart::pageDown}, {"first", ScrollPart::first},   {"last", ScrollPart::last},
    };
    for (const auto& [name, part] : parts) {
        const MouseAction mouse = MouseOf(std::string("mouse scroll ") + name);
        EXPECT_EQ(mouse.deed, MouseDeed::scroll);
        EXPECT_EQ(mouse.part, part) << name;
        EXPECT_EQ(mouse.count, 1);
    }
    EXPECT_EQ(MouseOf("mouse scroll down 35").count, 35);
}

TEST(Script, NamesAFaultOfTheMouse) {
    EXPECT_EQ(FaultOf("mouse"), "script line 1: expected what the mouse does");
    EXPECT_EQ(FaultOf("mouse squeak"), "script line 1: the mouse cannot squeak");
    EXPECT_EQ(FaultOf("mouse click"), "script line 1: expected a place of the mouse");
    EXPECT_EQ(FaultOf("mouse move Shift 1 1"), "script line 1: Shift is not a row's number");
    EXPECT_EQ(FaultOf("mouse click 1"), "script line 1: expected a column's number");
    EXPECT_EQ(FaultOf("mouse click 1 1 left"), "script line 1: expected right or bottom, not left");
    EXPECT_EQ(FaultOf("mouse click beside 1"), "script line 1: unexpected text after the action: 1");
    EXPECT_EQ(FaultOf("mouse wheel"), "script line 1: expected a number of times");
    EXPECT_EQ(FaultOf("mouse wheel 201"), "script line 1: count 201 is out of range (-200 to 200)");
    EXPECT_EQ(FaultOf("mouse scroll"), "script line 1: expected a part of the scroll bar");
    EXPECT_EQ(FaultOf("mouse scroll sideways"), "script line 1: sideways is no part of the scroll bar");
    EXPECT_EQ(FaultOf("mouse scroll down 0"), "script line 1: count 0 is out of range (1 to 1000)");
}

TEST(Script, EachControlHasItsKeys) {
    const auto key = [](const char* name) { return ParseScript(std::string("key ") + name).front().key; };
    for (const char* name : {"Esc", "Return", "Tab", "Shift+Tab"}) {
        EXPECT_TRUE(TakesKey(ControlKind::button, key(name))) << name;
    }
    for (const char* name : {"Up", "Ctrl+C", "Home", "Delete"}) {
        EXPECT_FALSE(TakesKey(ControlKind::button, key(name))) << name;
        EXPECT_TRUE(TakesKey(ControlKind::grid, key(name))) << name;
        EXPECT_TRUE(TakesKey(ControlKind::edit, key(name))) << name;
    }
    EXPECT_TRUE(TakesKey(ControlKind::combo, key("Down")));
    EXPECT_FALSE(TakesKey(ControlKind::combo, key("Left")));
    EXPECT_FALSE(TakesKey(ControlKind::combo, key("Shift+Down")));
    EXPECT_TRUE(TakesText(ControlKind::edit) && TakesText(ControlKind::grid));
    EXPECT_FALSE(TakesText(ControlKind::combo) || TakesText(ControlKind::button));
}

TEST(Script, PassesOverCommentsEmptyLinesAndCarriageReturns) {
    const auto actions = ParseScript("# a comment\n\n  \t\nclick 1 # and one after\r\n  dump\r\n#\ntext 5");
    ASSERT_EQ(actions.size(), 3U);
    EXPECT_EQ(actions[0].line, 4);
    EXPECT_EQ(actions[1].line, 5);
    EXPECT_EQ(actions[2].line, 7);
    EXPECT_EQ(actions[2].text, "");
}

TEST(Script, AnEmptyTextIsAText) {
    EXPECT_EQ(ParseScript("text 5").front().text, "");
    EXPECT_EQ(ParseScript("cell 1 1").front().text, "");
    EXPECT_EQ(ParseScript("text 5 a#b").front().text, "a#b");
}

TEST(Script, TextsForControlsComeInTheCodePageAndNamesOfFilesAsTheyAre) {
    const std::vector<ScriptAction> actions = ParseScript(
        "text 1025 5 \xC2\xB1 1\ncell 2 1 \xC3\xA9\ntype \xC3\xA9\xE6\xA9\x8B\xE9\nagain Gr\xC3\xB6\xC3\x9F"
        "e.in\nshot Gr\xC3\xB6\xC3\x9F"
        "e.png\n");
    ASSERT_EQ(actions.size(), 5U);
    EXPECT_EQ(actions[0].text, "5 \xB1 1");
    EXPECT_EQ(actions[1].text, "\xE9");
    EXPECT_EQ(actions[2].text, "\xE9?\xE9");  // known, unknown, and no UTF-8
    EXPECT_EQ(actions[3].text,
              "Gr\xC3\xB6\xC3\x9F"
              "e.in");
    EXPECT_EQ(actions[4].text,
              "Gr\xC3\xB6\xC3\x9F"
              "e.png");
}

TEST(Script, NamesTheLineOfAFault) {
    EXPECT_EQ(FaultOf("dump\n\npress 1004\n"), "script line 3: unknown action press");
    EXPECT_EQ(FaultOf("click"), "script line 1: expected a control's identifier");
    EXPECT_EQ(FaultOf("click x1"), "script line 1: x1 is not a control's identifier");
    EXPECT_EQ(FaultOf("click 99999999999"), "script line 1: 99999999999 is not a control's identifier");
    EXPECT_EQ(FaultOf("click 1 2"), "script line 1: unexpected text after the action: 2");
    EXPECT_EQ(FaultOf("spin 5 left"), "script line 1: expected up or down, not left");
    EXPECT_EQ(FaultOf("answer maybe"), "script line 1: expected yes or no, not maybe");
    EXPECT_EQ(FaultOf("key Enter"), "script line 1: unknown key Enter");
    EXPECT_EQ(FaultOf("key A"), "script line 1: unknown key A");
    EXPECT_EQ(FaultOf("key Ctrl+Z"), "script line 1: unknown key Ctrl+Z");
    EXPECT_EQ(FaultOf("key Shift+A"), "script line 1: unknown key Shift+A");
    EXPECT_EQ(FaultOf("type"), "script line 1: expected the text to type");
    EXPECT_EQ(FaultOf("key F1"), "script line 1: expected a control's identifier");
    EXPECT_EQ(FaultOf("graph-click here"), "script line 1: here is not a place on the x axis");
    EXPECT_EQ(FaultOf("graph-click nan"), "script line 1: nan is not a place on the x axis");
    EXPECT_EQ(FaultOf("shot"), "script line 1: expected the picture's file");
    EXPECT_EQ(FaultOf("cell 1"), "script line 1: expected a column's number");
    EXPECT_EQ(FaultOf("DUMP"), "script line 1: unknown action DUMP");
}

}  // namespace

}  // namespace lumerin
