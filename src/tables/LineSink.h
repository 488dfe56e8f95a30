// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tables/Report.h"
#include "tables/RowText.h"
#include "tables/TableLayout.h"

namespace lumerin {

// How an empty stretch of a table is shown; the text form has one way, the PDF form three.
enum class GapStyle { empty, lineFeed, blank };

// Places before which a page may end.
enum class BreakPoint { pierHeading, columnHead, key };

// What the rows between two heads have in common.
struct TableBlock {
    std::size_t pier = 0;  // the substructure, from 0
    LimitClass slot = kStrength;
    int extreme = 0;  // of the cap tables: 0 maximum, 1 minimum
};

// The output of a walk over a table. The walk passes lines, heads and gaps once; a sink for text writes them
// in order, a sink for PDF places them on pages. Both keep the running count of lines.
class CLineSink {
  public:
    CLineSink() = default;
    CLineSink(const CLineSink&) = delete;
    CLineSink& operator=(const CLineSink&) = delete;
    virtual ~CLineSink() = default;

    virtual const TitleMargins& MarginsOf(const TableLayout& layout) const = 0;
    // A line of a title or heading, without line feed.
    virtual void Line(std::string_view text) = 0;
    virtual void Gap(int lines, GapStyle style = GapStyle::empty) = 0;
    // The column head of the block that begins, which a page break among its rows repeats.
    virtual void Head(const ColumnHead& head) = 0;
    // Before the rows of a block. Lines have all of it in their headings.
    virtual void Block(const TableBlock&) {}
    virtual void Row(const RowText& row) = 0;
    // The last text of a table: several lines, each with its line feed.
    virtual void Key(std::string_view text) = 0;
    virtual void MayBreak(BreakPoint) {}
    virtual void EndTable() {}

    int Lines() const { return m_nLines; }

  protected:
    int m_nLines = 0;
};

// The table (0 to 7) that is written when `table` is asked for: another one where the first substructure's
// members are in the pile arrays. Empty: not enabled, or there is no project.
std::optional<TableId> WritableTable(const Report& report, TableId table);
// Runs the walk of a writable table into a sink.
void WalkTable(const Report& report, TableId table, CLineSink& sink);

}  // namespace lumerin
