// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tables/Report.h"

namespace lumerin {

// What is above the data rows of a worksheet: its head with the columns and the title row, the headings of
// substructures and limit classes, and the column heads.

// From the opening of the worksheet to the end of its title rows. `rows` is the announced count.
std::string WorksheetHead(const CDataSet& data, TableId table, long long rows);
std::string PileHeadWorksheetHead(const CDataSet& data, int pier,
                                  long long rows);  // a worksheet for each substructure, from 0

// Tables 1, 2, 5, 6 and 7; pier counts from 0.
std::string SubstructureHeading(const CDataSet& data, TableId table, int pier);

// The slots that have a block in tables 1 to 7, and the heading of a slot's block, whole; empty without
// combinations and in a design family without headings.
std::vector<LimitClass> BlockSlots(const Report& report, TableId table);
std::string SectionRows(const CDataSet& data, TableId table, LimitClass slot);

// The term for one case, above and below: LOAD COMB, TIME STEP or LOAD CASE.
struct StepWords {
    std::string_view upper, lower;
};
StepWords StepWordsOf(const CDataSet& data);

// The two heading rows of tables 1 to 7.
std::string ColumnHeadRows(const CDataSet& data, TableId table);

}  // namespace lumerin
