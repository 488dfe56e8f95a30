// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumerin {

// The arguments of the program's commands, and how their texts are read. The readers throw
// std::invalid_argument with a text for the user.

struct CommonOptions {
    std::string version;  // the host's version, for the title page and the footers; in the code page
    int fontSize = 0;     // of the text viewer in points; 0: it has no such setting
    std::string clock;    // empty: the machine's
};
// Sets font size and clock of the services.
void ApplyOptions(const CommonOptions& options);

// Numbers of cases from 1, as ranges of first and last.
using CaseRanges = std::vector<std::pair<int, int>>;
CaseRanges ReadCases(std::string_view text);  // "1,3,5-9"
bool HoldsCase(const CaseRanges& cases, int number);
int LastCase(const CaseRanges& cases);

struct FooterChoice {
    bool date = true, time = true, version = true, fileName = true;
};
FooterChoice ReadFooter(std::string_view text);  // "none", or a list of date, time, version, filename

int ReadFormat(std::string_view text);  // text, pdf, excel: the number of the format
// The same, or any number, as a host might pass it.
int ReadStartFormat(std::string_view text);

// With lower case letters in place of A to Z.
std::string LowerCase(std::string_view text);

// The report dialog's button of a table's short name; 0 when there is no such table.
int TableButton(std::string_view name);
std::string TableNames();  // for the help text

}  // namespace lumerin
