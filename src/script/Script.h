// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "framework/ControlList.h"
#include "framework/Keys.h"
#include "framework/MouseAction.h"

namespace lumerin {

// The script that drives the dialogs, the same for both backends: one action a line; "#" at a line's start or
// after a blank begins a comment. It is read whole before the first action runs. A script is UTF-8; texts for
// controls are returned in the code page, names of files as they are.

enum class ScriptVerb {
    click,       // id
    text,        // id, text
    focus,       // id
    select,      // id, number
    spinUp,      // id
    spinDown,    // id
    cell,        // row in id, column in number, text
    graphClick,  // x
    answerYes,
    answerNo,
    dump,
    shot,     // text: the picture's file
    key,      // key; text: its name as written
    keyHelp,  // id
    type,     // text
    where,
    mouse,  // mouse; text: the line as written
    again,  // text: the project's file beside the last one, empty for the same project
};

struct ScriptKey {
    unsigned code = 0;  // of KeyCode, or a letter
    KeyState keys;
};

struct ScriptAction {
    ScriptVerb verb = ScriptVerb::dump;
    int line = 0;  // in the script, from 1
    int id = 0;
    int number = 0;
    double x = 0.0;
    std::string text;
    ScriptKey key;
    MouseAction mouse;
};

// Whether a control of that kind uses the key, or accepts typed texts, when it has the focus. Esc, Return and
// Tab are the dialog's where the control leaves them.
bool TakesKey(ControlKind focused, const ScriptKey& key);
bool TakesText(ControlKind focused);

// How the line "refused" names an action that a user could not have done.
std::string RefusedName(const ScriptAction& action);

// A line that is no action.
class ScriptError : public std::runtime_error {
  public:
    ScriptError(int line, const std::string& fault)
        : std::runtime_error("script line " + std::to_string(line) + ": " + fault) {}
};

// Throws ScriptError for the first line that is no action.
std::vector<ScriptAction> ParseScript(std::string_view script);

}  // namespace lumerin
