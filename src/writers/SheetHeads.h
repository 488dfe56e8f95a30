#pragma once

#include <string>
#include <string_view>
#include <vector>

// What stands above the data rows of a worksheet: its head with the columns and the title row, the headings
// of substructures and limit classes, and the column heads.

// From the opening of the worksheet to the end of its title rows. `rows` is the announced count.
std::string WorksheetHead(int table, long long rows);
std::string PileHeadWorksheetHead(int pier, long long rows);  // a worksheet for each substructure, from 0

// Tables 1, 2, 5, 6 and 7; pier counts from 0.
std::string SubstructureHeading(int table, int pier);

// The slots that have a block in tables 1 to 7, and the heading of a slot's block, whole; empty without
// combinations and in a design family without headings.
std::vector<int> BlockSlots(int table);
std::string SectionRows(int table, int slot);

// "AASHTO-LRFD" and its like, by the first substructure's design family; empty in another family.
std::string_view FamilyWord();

// The two heading rows of tables 1 to 7. The step words are the upper and the lower one.
std::string ColumnHeadRows(int table, const std::string (&stepWords)[2]);
