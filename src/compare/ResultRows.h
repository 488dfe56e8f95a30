// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "compare/ResultColumns.h"
#include "records/Evaluation.h"

namespace lumerin {

// A cell that outlives its row. A force is the double that is nearest to its shortest text.
using KeptCell = std::variant<std::monostate, std::int64_t, double, bool, std::string>;

std::optional<double> NumberIn(const KeptCell& cell);
// Of a count, a number or a text; empty of an absent cell.
std::string TextIn(const KeptCell& cell);

struct KeptRow {
    std::string key;  // what the row is, the same text in both runs
    std::vector<KeptCell> cells;
    long long number = 0;  // in its table, from 1
};

// Reads the rows of one table of one run, with keys under which both runs have the same rows. Rows that are
// the same by all their words are counted, and the first is the first of the other run.
class RowKeys {
  public:
    // `caseIds`: by the number of a case what it is called in both runs.
    RowKeys(const TableColumns& columns, std::span<const int> caseIds)
        : m_columns(columns), m_caseIds(caseIds) {}

    KeptRow Keep(std::span<const Value> row);

  private:
    std::string KeyOf(const std::vector<KeptCell>& cells) const;

    const TableColumns& m_columns;
    std::span<const int> m_caseIds;
    std::unordered_map<std::string, int> m_seen;
    long long m_rows = 0;
};

// Whether the case of a row is part of what the row is: a table of cases has a row for each.
bool IsCaseOfRow(const TableColumns& columns, const ResultColumns& result, std::span<const KeptCell> cells);

// What a row is, in words: "pile section 1, strength, Max f22". The substructure and the case are not in it.
std::string LabelOf(const TableColumns& columns, std::span<const KeptCell> cells);
// Where a result governs: "pile 2 head", "pile 4, element 63 J"; empty where the table does not say.
std::string PlaceIn(const TableColumns& columns, const ResultColumns& result,
                    std::span<const KeptCell> cells);
// 0: of the whole project.
int SubstructureIn(std::span<const KeptCell> cells);

}  // namespace lumerin
