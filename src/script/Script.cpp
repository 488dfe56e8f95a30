// SPDX-License-Identifier: MIT
#include "script/Script.h"

#include <charconv>
#include <cmath>

#include "script/Border.h"
#include "text/OutOfRange.h"

namespace lumerin {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// The words of one line, taken from its start.
class LineReader {
  public:
    LineReader(std::string_view line, int number) : m_rest(line), m_line(number) {
        for (std::size_t i = 0; i < m_rest.size(); ++i) {
            if (m_rest[i] == '#' && (i == 0 || IsBlank(m_rest[i - 1]))) m_rest = m_rest.substr(0, i);
        }
        while (!m_rest.empty() && (IsBlank(m_rest.back()) || m_rest.back() == '\r')) m_rest.remove_suffix(1);
        SkipBlanks();
    }

    bool AtEnd() const { return m_rest.empty(); }
    std::string Word(const char* what) {
        std::size_t length = 0;
        while (length < m_rest.size() && !IsBlank(m_rest[length])) ++length;
        if (length == 0) Fail(std::string("expected ") + what);
        std::string word(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        SkipBlanks();
        return word;
    }
    int Integer(const char* what) { return IntegerOf(Word(what), what); }
    // The same of a word that was taken already.
    int IntegerOf(const std::string& word, const char* what) const {
        int value = 0;
        const char* end = word.data() + word.size();
        const auto [at, fault] = std::from_chars(word.data(), end, value);
        if (fault != std::errc() || at != end) Fail(word + " is not " + what);
        return value;
    }
    double Real(const char* what) {
        const std::string word = Word(what);
        double value = 0.0;
        const char* end = word.data() + word.size();
        const auto [at, fault] = std::from_chars(word.data(), end, value);
        if (fault != std::errc() || at != end || !std::isfinite(value)) Fail(word + " is not " + what);
        return value;
    }
    // The rest of the line, unchanged.
    std::string_view Ahead() const { return m_rest; }
    std::string Rest() {
        std::string rest(m_rest);
        m_rest = {};
        return rest;
    }
    // The rest as a text for a control.
    std::string Text() { return FromUser(Rest()); }
    [[noreturn]] void Fail(const std::string& fault) const { throw ScriptError(m_line, fault); }

  private:
    void SkipBlanks() {
        while (!m_rest.empty() && IsBlank(m_rest.front())) m_rest.remove_prefix(1);
    }
    std::string_view m_rest;
    int m_line;
};

constexpr const char* kControlWord = "a control's identifier";

struct KeyName {
    std::string_view name;
    unsigned code;
};

constexpr KeyName kKeys[] = {
    {"Esc", kKeyEscape},    {"Return", kKeyReturn},     {"Tab", kKeyTab},   {"Backspace", kKeyBackspace},
    {"Delete", kKeyDelete}, {"Insert", kKeyInsert},     {"Up", kKeyUp},     {"Down", kKeyDown},
    {"Left", kKeyLeft},     {"Right", kKeyRight},       {"Home", kKeyHome}, {"End", kKeyEnd},
    {"PageUp", kKeyPageUp}, {"PageDown", kKeyPageDown},
};
// Letters are keys with Ctrl alone; as texts they are typed.
constexpr std::string_view kCommandLetters = "ACVX";

bool TakeOff(std::string_view& name, std::string_view start) {
    if (name.substr(0, start.size()) != start) return false;
    name.remove_prefix(start.size());
    return true;
}

// False: no such key.
bool FindKey(std::string_view name, ScriptKey& key) {
    key.keys.control = TakeOff(name, "Ctrl+");
    key.keys.shift = TakeOff(name, "Shift+");
    if (name.size() == 1 && key.keys.control &&
        kCommandLetters.find(name.front()) != std::string_view::npos) {
        key.code = static_cast<unsigned char>(name.front());
        return true;
    }
    for (const KeyName& known : kKeys) {
        if (name != known.name) continue;
        key.code = known.code;
        return true;
    }
    return false;
}

void ReadKey(LineReader& line, ScriptAction& action) {
    action.text = line.Word("a key such as Esc, Down, Ctrl+C or F1");
    if (action.text == "F1") {
        action.verb = ScriptVerb::keyHelp;
        action.id = line.Integer(kControlWord);
        return;
    }
    action.verb = ScriptVerb::key;
    if (!FindKey(action.text, action.key)) line.Fail("unknown key " + action.text);
}

void ReadSpin(LineReader& line, ScriptAction& action) {
    action.id = line.Integer(kControlWord);
    const std::string direction = line.Word("up or down");
    if (direction != "up" && direction != "down") line.Fail("expected up or down, not " + direction);
    action.verb = direction == "up" ? ScriptVerb::spinUp : ScriptVerb::spinDown;
}

void ReadAnswer(LineReader& line, ScriptAction& action) {
    const std::string answer = line.Word("yes or no");
    if (answer != "yes" && answer != "no") line.Fail("expected yes or no, not " + answer);
    action.verb = answer == "yes" ? ScriptVerb::answerYes : ScriptVerb::answerNo;
}

// ---- the mouse

constexpr int kMostNotches = 200;  // of one turn of the wheel
constexpr int kMostScrolls = 1000;
constexpr const char* kRowWord = "a row's number";
constexpr const char* kColumnWord = "a column's number";

template <typename Value>
struct Named {
    std::string_view name;
    Value value;
};

// The value of a name; null: no such name.
template <typename Value, std::size_t count>
const Value* FindNamed(const Named<Value> (&table)[count], std::string_view name) {
    for (const Named<Value>& entry : table) {
        if (entry.name == name) return &entry.value;
    }
    return nullptr;
}

constexpr Named<MouseDeed> kDeeds[] = {
    {"move", MouseDeed::move},          {"press", MouseDeed::press},
    {"release", MouseDeed::release},    {"click", MouseDeed::click},
    {"double", MouseDeed::doubleClick}, {"shaky-double", MouseDeed::shakyDouble},
    {"right", MouseDeed::rightClick},   {"wheel", MouseDeed::wheel},
    {"scroll", MouseDeed::scroll},      {"lose", MouseDeed::lose},
    {"cancel", MouseDeed::cancel},
};

constexpr Named<KeyState> kHeldKeys[] = {
    {"Shift", {true, false}},
    {"Ctrl", {false, true}},
    {"Ctrl+Shift", {true, true}},
};

constexpr Named<MousePlace> kPlaces[] = {
    {"beside", MousePlace::beside}, {"frame", MousePlace::frame}, {"above", MousePlace::above},
    {"below", MousePlace::below},   {"left", MousePlace::left},   {"right", MousePlace::right},
    {"away", MousePlace::away},
};

constexpr Named<ScrollPart> kScrollParts[] = {
    {"up", ScrollPart::lineUp},          {"down", ScrollPart::lineDown}, {"page-up", ScrollPart::pageUp},
    {"page-down", ScrollPart::pageDown}, {"first", ScrollPart::first},   {"last", ScrollPart::last},
};

bool TakesHeldKeys(MouseDeed deed) {
    return deed == MouseDeed::press || deed == MouseDeed::click || deed == MouseDeed::doubleClick;
}

void ReadSpot(LineReader& line, MouseAction& mouse) {
    std::string word = line.Word("a place of the mouse");
    if (const KeyState* keys = TakesHeldKeys(mouse.deed) ? FindNamed(kHeldKeys, word) : nullptr) {
        mouse.keys = *keys;
        word = line.Word("a place of the mouse");
    }
    if (const MousePlace* place = FindNamed(kPlaces, word)) {
        mouse.spot.place = *place;
        return;
    }
    mouse.spot = {MousePlace::cell, line.IntegerOf(word, kRowWord), line.Integer(kColumnWord)};
    if (line.AtEnd()) return;
    const std::string edge = line.Word("an edge of the cell");
    if (edge != "right" && edge != "bottom") line.Fail("expected right or bottom, not " + edge);
    mouse.spot.place = edge == "right" ? MousePlace::cellRight : MousePlace::cellBottom;
}

int ReadCount(LineReader& line, int lowest, int highest) {
    const int count = line.Integer("a number of times");
    if (count < lowest || count > highest) line.Fail(OutOfRange("count", count, lowest, highest));
    return count;
}

void ReadMouse(LineReader& line, ScriptAction& action) {
    action.verb = ScriptVerb::mouse;
    action.text = "mouse " + std::string(line.Ahead());
    const std::string word = line.Word("what the mouse does");
    const MouseDeed* deed = FindNamed(kDeeds, word);
    if (deed == nullptr) line.Fail("the mouse cannot " + word);
    MouseAction& mouse = action.mouse;
    mouse.deed = *deed;
    switch (mouse.deed) {
        case MouseDeed::lose:
        case MouseDeed::cancel:
            break;
        case MouseDeed::wheel:
            mouse.count = ReadCount(line, -kMostNotches, kMostNotches);
            break;
        case MouseDeed::scroll: {
            const std::string part = line.Word("a part of the scroll bar");
            const ScrollPart* found = FindNamed(kScrollParts, part);
            if (found == nullptr) line.Fail(part + " is no part of the scroll bar");
            mouse.part = *found;
            if (!line.AtEnd()) mouse.count = ReadCount(line, 1, kMostScrolls);
            break;
        }
        case MouseDeed::release:
            if (!line.AtEnd()) ReadSpot(line, mouse);
            break;
        default:
            ReadSpot(line, mouse);
            break;
    }
}

void ReadHover(LineReader& line, ScriptAction& action) {
    action.verb = ScriptVerb::mouse;
    action.text = "hover " + std::string(line.Ahead());
    const int row = line.Integer(kRowWord);
    action.mouse.spot = {MousePlace::cell, row, line.Integer(kColumnWord)};
}

// What follows the verb, for each verb.
struct VerbReader {
    const char* word;
    void (*read)(LineReader& line, ScriptAction& action);
};

constexpr VerbReader kVerbs[] = {
    {"click",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::click;
         action.id = line.Integer(kControlWord);
     }},
    {"text",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::text;
         action.id = line.Integer(kControlWord);
         action.text = line.Text();
     }},
    {"focus",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::focus;
         action.id = line.Integer(kControlWord);
     }},
    {"select",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::select;
         action.id = line.Integer(kControlWord);
         action.number = line.Integer("an entry's number");
     }},
    {"spin", ReadSpin},
    {"cell",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::cell;
         action.id = line.Integer(kRowWord);
         action.number = line.Integer(kColumnWord);
         action.text = line.Text();
     }},
    {"graph-click",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::graphClick;
         action.x = line.Real("a place on the x axis");
     }},
    {"answer", ReadAnswer},
    {"dump", [](LineReader&, ScriptAction& action) { action.verb = ScriptVerb::dump; }},
    {"shot",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::shot;
         if (line.AtEnd()) line.Fail("expected the picture's file");
         action.text = line.Rest();
     }},
    {"key", ReadKey},
    {"type",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::type;
         if (line.AtEnd()) line.Fail("expected the text to type");
         action.text = line.Text();
     }},
    {"hover", ReadHover},
    {"mouse", ReadMouse},
    {"where", [](LineReader&, ScriptAction& action) { action.verb = ScriptVerb::where; }},
    {"again",
     [](LineReader& line, ScriptAction& action) {
         action.verb = ScriptVerb::again;
         action.text = line.Rest();
     }},
};

ScriptAction ReadAction(LineReader& line, int number) {
    const std::string word = line.Word("an action");
    for (const VerbReader& verb : kVerbs) {
        if (word != verb.word) continue;
        ScriptAction action;
        action.line = number;
        verb.read(line, action);
        if (!line.AtEnd()) line.Fail("unexpected text after the action: " + line.Rest());
        return action;
    }
    line.Fail("unknown action " + word);
}

}  // namespace

std::string RefusedName(const ScriptAction& action) {
    switch (action.verb) {
        case ScriptVerb::cell:
            return "cell " + std::to_string(action.id) + " " + std::to_string(action.number);
        case ScriptVerb::graphClick:
            return "graph-click";
        case ScriptVerb::shot:
            return "shot";
        case ScriptVerb::mouse:
            return action.text;
        case ScriptVerb::key:
            return "key " + action.text;
        case ScriptVerb::type:
            return "type";
        default:
            return std::to_string(action.id);
    }
}

bool TakesKey(ControlKind focused, const ScriptKey& key) {
    const bool isDialogs = key.code == kKeyEscape || key.code == kKeyReturn || key.code == kKeyTab;
    if (isDialogs && !key.keys.control) return true;
    if (focused == ControlKind::grid || focused == ControlKind::edit) return true;
    const bool moves =
        key.code == kKeyUp || key.code == kKeyDown || key.code == kKeyHome || key.code == kKeyEnd;
    return focused == ControlKind::combo && moves && !key.keys.control && !key.keys.shift;
}

bool TakesText(ControlKind focused) {
    return focused == ControlKind::grid || focused == ControlKind::edit;
}

std::vector<ScriptAction> ParseScript(std::string_view script) {
    std::vector<ScriptAction> actions;
    int number = 0;
    while (!script.empty()) {
        ++number;
        const std::size_t end = script.find('\n');
        LineReader line(script.substr(0, end), number);
        if (!line.AtEnd()) actions.push_back(ReadAction(line, number));
        script.remove_prefix(end == std::string_view::npos ? script.size() : end + 1);
    }
    return actions;
}

}  // namespace lumerin
