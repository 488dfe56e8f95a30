// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The text of an editor with its selection, as far as typing needs it. Positions count characters from 0;
// without a selection both ends are the caret.
struct EditText {
    std::string text;
    int start = 0, end = 0;

    void Set(const std::string& newText) {
        text = newText;
        MoveToEnd();
    }
    void MoveToEnd() { start = end = Length(); }
    void SelectAll() {
        start = 0;
        end = Length();
    }
    bool HasSelection() const { return start != end; }
    int Length() const { return static_cast<int>(text.size()); }
};

// What the keys of a number editor may type. The numbers are those of the cell classes.
enum NumberMode {
    kDigits = 0,
    kSignedDigits = 1,
    kReal = 2,
    kPositiveReal = 3,
    kZeroOrOne = 4,
};

enum class FilterResult {
    refused,   // the character is dropped
    passed,    // the edit window takes it
    replaced,  // the text was changed here; the character itself is dropped
};

// Decides on one typed character, given the text. The rules depend on each other's order.
FilterResult FilterNumber(EditText& edit, int mode, unsigned character);

}  // namespace lumerin
