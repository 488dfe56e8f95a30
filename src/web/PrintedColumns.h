// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "records/Units.h"
#include "tables/TableLayout.h"
#include "web/HtmlTable.h"

namespace lumerin {

// The columns of a printed table (0 to 7) with the words of its head; the units are those of the project.
// One for each cell of a row (RowText).
std::vector<HtmlColumn> PrintedColumns(const CDataSet& data, const TableLayout& layout);

}  // namespace lumerin
