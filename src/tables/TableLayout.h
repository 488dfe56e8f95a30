// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/DataSet.h"

namespace lumerin {

// The layouts of tables 0 to 7 as data: one row of one description for each table. The walks over the result
// tables read margins, heads, fillers and column widths from here, so that the text and the PDF form of a
// table, and similar tables, cannot differ by mistake.

// The blanks to the left of a table's title.
struct TitleMargin {
    bool tab = false;
    std::size_t blanks = 0;
};

struct TitleMargins {
    TitleMargin wide = {};    // the rows carry the limit state column
    TitleMargin narrow = {};  // they do not
    // The column tables choose by the number of substructures in place of the limit state column: one is
    // wide.
    bool byPierCount = false;
    // Blanks before the second and third title line, which table 0 alone has.
    std::array<std::size_t, 2> furtherWide = {0, 0};
    std::array<std::size_t, 2> furtherNarrow = {0, 0};
};

// The two lines of a column head, up to the step column and after it.
struct HeadTexts {
    const char* opening = "";       // upper line up to the step column
    const char* openingType8 = "";  // the same where the first substructure calls its piles columns
    const char* lowerOpening = "";
    const char* columns = "";  // upper line after the limit state column
    const char* unitsUs = "";  // lower line after the limit state column
    const char* unitsSi = "";
    std::size_t aremaWidth = 15;  // of the limit state column's heading
    bool mode2IsTimeStep = false;
    int linesAfter = 1;       // empty lines that belong to the head on every page
    int linesAfterFirst = 0;  // further ones at a block's start
};

// A row of tables 1, 2, 5, 6 and 7.
struct MemberRowTexts {
    MemberFamily family = kPileFamily;
    bool forces = false;           // twelve rows a property, each headed by its extreme
    bool sectionByNumber = false;  // properties are named by section number; those in use are printed
    int firstProperty = 1;         // number of the first property
    bool blankBeforeMember = false;
    int memberWidth = 5;
    const char* valueGap = " ";  // before each value but the last
    const char* missing = "";    // after the property, where a force has no result
    // After property, member, element and node of a ratio without result, plain and with limit states.
    std::array<const char*, 2> missingRatio = {"", ""};
    bool missingIsSentence = false;  // in place of all further cells
    const char* pierHeading = "";
    const char* pierHeadingType8 = "";
    const char* pierHeadingBent = "";  // for a pile bent, which then has no blocks; empty: no such rule
    bool gapAfterPier = false;         // two further empty lines after a substructure
};

// The words of tables 3 and 4.
struct CapTexts {
    std::array<const char*, 2> blockHeading = {"",
                                               ""};  // by extreme, two lines, with the substructure's number
    const char* maximumRemark = "";                  // a third line of the maximum block
    std::size_t values = 0;                          // printed value columns
    std::array<int, kComponents> valueOrder = {};    // their components
    // Rows without a result, plain and with limit states.
    std::array<const char*, 2> missing = {"", ""};
    std::array<const char*, 2> sideMissing = {"", ""};
    const char* noLoadCase = "";
};

struct TableLayout {
    TableId table = kTableMaxAxial;
    TitleMargins text = {};
    TitleMargins pdf = {};
    HeadTexts head = {};
    MemberRowTexts member = {};  // tables 1, 2, 5, 6, 7
    CapTexts cap = {};           // tables 3, 4
    // The table that replaces this one when the first substructure's members are in the pile arrays.
    std::optional<TableId> handOverType8 = {};
};

const TableLayout& LayoutOf(TableId table);  // 0 to 7

// The column head of a table for the current project.
struct ColumnHead {
    std::vector<std::string> lines;
    int linesAfter = 0;       // empty lines after it on every page
    int linesAfterFirst = 0;  // further ones at a block's start
    int counted = 0;          // lines that the page arithmetic counts for it at a block's start
};
ColumnHead BuildColumnHead(const CDataSet& data, const TableLayout& layout);

// The two lines above the column of cases.
struct StepLines {
    const char* upper = nullptr;  // null: no head at all
    const char* lower = nullptr;
};
StepLines StepLinesOf(const HeadTexts& head, bool combinations, int mode);

// The limit state name of a case, as the first substructure has it.
const std::string& LimitStateOf(const CDataSet& data, int loadCase);

}  // namespace lumerin
