// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "support/StudyDialogFixture.h"

namespace lumerin {

// Three trials of three cases. Each line: the case, then value and pile for the five quantities.
inline constexpr const char* kBase =
    " 2 3 0 3 10.0\n"
    "1 0.50 1 0.30 1 0.40 1 100 1 -50 1\n"
    "2 0.70 2 0.20 2 0.60 2 300 2 -90 2\n"
    "3 0.70 3 0.10 3 0.50 3 200 3 -10 3\n"
    "EOF\n";
inline constexpr const char* kSecond =
    " 2 3 0 3 12.5\n"
    "1 0.40 1 0.20 1 0.30 1 110 1 -60 1\n"
    "2 0.60 2 0.10 2 0.50 2 310 2 -80 2\n"
    "3 0.65 3 0.05 3 0.45 3 210 3 -20 3\n"
    "EOF\n";
inline constexpr const char* kThird =
    " 2 3 0 3 15.0\n"
    "1 0.20 4 0.10 4 0.15 4 120 4 -70 4\n"
    "2 0.30 5 0.08 5 0.25 5 320 5 -75 5\n"
    "3 0.25 6 0.02 6 0.20 6 220 6 -30 6\n"
    "EOF\n";

class EmbedmentDialogTest : public StudyTest {
  protected:
    void WriteStudy() const {
        WriteBase(kBase);
        WriteTrial(2, kSecond);
        WriteTrial(3, kThird);
    }
    static std::vector<double> DrawnRanges(const CMPTEDlg& dialog) {
        std::vector<double> numbers;
        for (const GraphValue& value : Drawn(dialog, kGraphSetRanges))
            numbers.push_back(std::get<double>(value));
        return numbers;
    }
    static int FocusRow(const CMPTEDlg& dialog) { return dialog.m_Grid.FocusCell().row; }
};

}  // namespace lumerin
