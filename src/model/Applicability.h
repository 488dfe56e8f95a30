// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "framework/Index.h"
#include "model/CaseSelection.h"
#include "model/DataSet.h"
#include "model/Types.h"

namespace lumerin {

// One flag for each table.
struct TableFlags {
    std::array<bool, kTableCount> flags{};

    bool& operator[](TableId table) { return flags.at(Index(table)); }
    bool operator[](TableId table) const { return flags.at(Index(table)); }
    bool operator==(const TableFlags&) const = default;
};
inline constexpr TableFlags kAllTables{{true, true, true, true, true, true, true, true, true, true, true}};

// Which of the tables 0 to 8 a project has for a selection; the full report and the title page are not
// judged.
TableFlags ApplicableTables(const CDataSet& data, const CaseSelection& selection);

unsigned CountTables(const TableFlags& tables);

}  // namespace lumerin
