// SPDX-License-Identifier: MIT
#include "framework/headless/EditKeys.h"

#include <algorithm>
#include <utility>

#include "framework/Index.h"
#include "framework/headless/Headless.h"

namespace lumerin {

namespace {

// The characters that the keyboard makes of Ctrl and C, V and X.
constexpr unsigned kCopy = 3, kPaste = 22, kCut = 24;

int Length(const EditBox& edit) {
    return static_cast<int>(edit.text.size());
}

void MoveCaret(EditBox& edit, int to, bool extend) {
    edit.caret = std::clamp(to, 0, Length(edit));
    if (!extend) edit.anchor = edit.caret;
}

void Replace(EditBox& edit, const std::string& text) {
    headless::OrderSelection(edit.anchor, edit.caret);
    edit.text.replace(Index(edit.anchor), Index(edit.caret - edit.anchor), text);
    edit.anchor = edit.caret = edit.anchor + static_cast<int>(text.size());
}

void Copy(EditBox edit) {
    headless::OrderSelection(edit.anchor, edit.caret);
    if (edit.anchor == edit.caret) return;
    headless::State().clipboard = edit.text.substr(Index(edit.anchor), Index(edit.caret - edit.anchor));
}

// An edit window of one line takes the first line of the text alone.
void Paste(EditBox& edit) {
    std::string text = headless::State().clipboard;
    if (text.empty()) return;
    text = text.substr(0, text.find('\n'));
    if (!text.empty() && text.back() == '\r') text.pop_back();
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!edit.digitsOnly || std::all_of(text.begin(), text.end(), isDigit)) Replace(edit, text);
}

void Cut(EditBox& edit) {
    Copy(edit);
    if (edit.anchor != edit.caret) Replace(edit, "");
}

void DeleteForward(EditBox& edit) {
    if (edit.anchor == edit.caret) edit.caret = std::min(edit.caret + 1, Length(edit));
    Replace(edit, "");
}

void DeleteBackward(EditBox& edit) {
    if (edit.anchor == edit.caret) edit.anchor = std::max(edit.anchor - 1, 0);
    Replace(edit, "");
}

}  // namespace

namespace headless {

void OrderSelection(int& anchor, int& caret) {
    if (anchor > caret) std::swap(anchor, caret);
}

unsigned CharacterOfKey(unsigned key, KeyState keys) {
    if (key == kKeyBackspace) return key;
    return keys.control && key >= 'A' && key <= 'Z' ? key - 'A' + 1 : 0;
}

void PressEditKey(EditBox edit, unsigned key, KeyState keys) {
    switch (key) {
        case kKeyLeft:
            MoveCaret(edit, edit.caret - 1, keys.shift);
            break;
        case kKeyRight:
            MoveCaret(edit, edit.caret + 1, keys.shift);
            break;
        case kKeyHome:
            MoveCaret(edit, 0, keys.shift);
            break;
        case kKeyEnd:
            MoveCaret(edit, Length(edit), keys.shift);
            break;
        case kKeyDelete:
            if (keys.shift) {
                Cut(edit);
            } else {
                DeleteForward(edit);
            }
            break;
        case kKeyInsert:
            if (keys.shift) {
                Paste(edit);
            } else if (keys.control) {
                Copy(edit);
            }
            break;
        default:
            break;
    }
}

void TypeEditCharacter(EditBox edit, unsigned character) {
    switch (character) {
        case kKeyBackspace:
            DeleteBackward(edit);
            return;
        case kCopy:
            Copy(edit);
            return;
        case kPaste:
            Paste(edit);
            return;
        case kCut:
            Cut(edit);
            return;
        default:
            break;
    }
    const bool isDigit = character >= '0' && character <= '9';
    if (character < kKeyBlank || character > 255 || (edit.digitsOnly && !isDigit)) return;
    Replace(edit, std::string(1, static_cast<char>(character)));
}

}  // namespace headless

}  // namespace lumerin
