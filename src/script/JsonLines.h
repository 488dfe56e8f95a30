// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "framework/Automation.h"
#include "framework/Backend.h"
#include "framework/ControlList.h"
#include "framework/GridView.h"

namespace lumerin {

// The events and states of driven dialogs as JSON, one object a line, in fixed key order. Both backends print
// the same lines, so that two outputs can be compared byte for byte.

// What a control shows.
struct ControlState {
    int id = 0;
    ControlKind kind = ControlKind::button;
    std::string text;
    bool enabled = true, visible = true, checked = false;  // checked: radio and check boxes alone
    int selection = -1;                                    // combo boxes alone
};

// The focus of the keyboard: the control that has it, and the part that the keys act on.
struct FocusState {
    int id = 0;
    ControlKind kind = ControlKind::button;
    std::string text;        // of an edit control
    int start = 0, end = 0;  // its selection, in characters
    GridView grid;           // of a grid
};

class JsonLines {
  public:
    explicit JsonLines(std::ostream& out) : m_out(out) {}

    void Dialog(std::string_view title);
    void Control(const ControlState& state);
    void Message(std::string_view text, std::string_view title, MessageIcon icon);
    // A viewer start as it is passed to the shell: a document, or a program with a document as its parameter.
    // Quotes around the document and the program's folder are left out.
    void Open(const std::string& file, const std::string& parameters);
    // A call of another module's export: its number, then its texts, in the order of the arguments.
    void Module(std::string_view module, int number, const std::vector<std::string>& texts);
    void Row(int row, const std::vector<std::string>& cells);
    void Focus(const FocusState& state);
    void Plot(const std::vector<GraphCall>& calls);
    void Result(unsigned result);
    // An action that a user could not have done.
    void Refused(std::string_view what);
    bool HasRefused() const { return m_refused; }

  private:
    std::ostream& m_out;
    bool m_refused = false;
};

}  // namespace lumerin
