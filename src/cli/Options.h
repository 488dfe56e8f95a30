// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Types.h"

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

struct FooterChoice {
    bool date = true, time = true, version = true, fileName = true;
};
FooterChoice ReadFooter(std::string_view text);  // "none", or a list of date, time, version, filename

// text, pdf, excel, in letters of either case: the number of the format.
int ReadFormat(std::string_view text);
// The same, or any number, as a host might pass it.
int ReadStartFormat(std::string_view text);

// A table of the report dialog by its short name.
struct TableName {
    const char* name = "";
    int button = 0;
    TableId table = kTableMaxAxial;
    // Of its file where every format makes the same one (ReportFormat); -1: that of the format.
    int kind = -1;
};
// Null: there is no such table.
const TableName* FindTableName(std::string_view name);
// The table of a word of the user. Throws std::invalid_argument with the nearest name.
const TableName& ReadTable(std::string_view text);
// The report dialog's button of a table's short name; 0 when there is no such table.
int TableButton(std::string_view name);
std::string TableNames();  // for the help text

// The quantities of the embedment study, in the order of its dialog.
std::vector<std::string> QuantityWords();
// A quantity by its word or number. Throws std::invalid_argument with the nearest word.
int ReadQuantity(std::string_view text);

}  // namespace lumerin
