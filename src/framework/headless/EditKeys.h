// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Keys.h"

namespace lumerin {

// The keyboard behaviour of the platform's edit window. The two ends of its selection differ: one is fixed,
// the other is the caret, which moves alone while Shift is held.
struct EditBox {
    std::string& text;
    int& anchor;
    int& caret;
    bool digitsOnly = false;
};

namespace headless {

// Handles a key without a character. Cut, copy and paste use the clipboard of the process.
void PressEditKey(EditBox edit, unsigned key, KeyState keys);
// Handles a character: Backspace deletes, the characters of Ctrl and a letter are the clipboard's commands, a
// printable one replaces the selection.
void TypeEditCharacter(EditBox edit, unsigned character);
// The character that the keyboard makes of a key without a text of its own; 0: none.
unsigned CharacterOfKey(unsigned key, KeyState keys);
// Puts the ends of a selection in order.
void OrderSelection(int& anchor, int& caret);

}  // namespace headless

}  // namespace lumerin
