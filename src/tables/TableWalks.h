// SPDX-License-Identifier: MIT
#pragma once

#include "tables/LineSink.h"

namespace lumerin {

// The three walks; they need a project with a substructure.
void WalkPileHeads(const Report& report, const TableLayout& layout, CLineSink& sink);  // table 0
void WalkMembers(const Report& report, const TableLayout& layout, CLineSink& sink);    // tables 1, 2, 5, 6, 7
void WalkCapTable(const Report& report, const TableLayout& layout, CLineSink& sink);   // tables 3, 4

// The title's first line, with its margin.
void WriteTitleLine(const Report& report, const TableLayout& layout, CLineSink& sink);
// The heading of a slot's block, if it has one. False: the slot has no block in this table.
bool WriteSectionHeading(const Report& report, const TableLayout& layout, LimitClass slot, CLineSink& sink);

}  // namespace lumerin
