// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Keys.h"

namespace lumerin {

// How the platform's edit window answers the keyboard. It keeps the two ends of its selection apart: the one
// that stays, and the caret, which the Shift key moves alone.
struct EditBox {
    std::string& text;
    int& anchor;
    int& caret;
    bool digitsOnly = false;
};

namespace headless {

// A key without a character. Cut, copy and paste go over the clipboard of the process.
void PressEditKey(EditBox edit, unsigned key, KeyState keys);
// A character: Backspace deletes, those of Ctrl and a letter are the commands of the clipboard, a printing
// one takes the place of the selection.
void TypeEditCharacter(EditBox edit, unsigned character);
// The character that the keyboard makes of a key without a text of its own; 0: none.
unsigned CharacterOfKey(unsigned key, KeyState keys);
// Puts the ends of a selection in order.
void OrderSelection(int& anchor, int& caret);

}  // namespace headless

}  // namespace lumerin
