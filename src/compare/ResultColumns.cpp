// SPDX-License-Identifier: MIT
#include "compare/ResultColumns.h"

#include <algorithm>
#include <array>

#include "text/Format.h"

namespace lumerin {

namespace {

constexpr std::string_view kCase = "case";
constexpr std::string_view kView = "view";

// Integers of a result that are no numbers of something.
constexpr std::array<std::string_view, 2> kCounts{"ends", "ends_over"};
constexpr std::array<std::string_view, 7> kPlaces{"place", "member", "element", "node",
                                                  "nodes", "end",    "pile"};
// A key that is a position among the rows, which another member or face moves, and the columns that say what
// is there.
struct Position {
    std::string_view key;
    std::array<std::string_view, 4> labels;
};
constexpr std::array<Position, 2> kPositions{
    {{"row", {"place", "side"}}, {"record", {"member_kind", "member", "index", "element"}}}};

constexpr std::array<std::string_view, 6> kUsual{"verdict",        "pile_axial", "section_dc",
                                                 "section_forces", "cap_shear",  "cap_moment"};

// The value that the rows of a table are the extremes of; of all other tables it is the ratio, or the first.
constexpr std::array<std::array<std::string_view, 2>, 2> kLeading{
    {{"cap_shear", "f22"}, {"cap_moment", "m33"}}};
constexpr std::string_view kRatio = "dc";
constexpr std::array<std::string_view, 6> kForces{"fax", "f22", "f33", "m22", "m33", "torque"};

template <class List>
bool Has(const List& list, std::string_view name) {
    return std::ranges::find(list, name) != list.end();
}

// Of "tension_case" "tension_"; of "case" nothing.
std::string_view PrefixOf(const Column& column) {
    return column.name.substr(0, column.name.size() - kCase.size());
}

bool IsCase(const Column& column) {
    return column.type == ColumnType::integer && (column.name == kCase || column.name.ends_with("_case"));
}

bool IsValue(const Column& column) {
    if (column.key) return false;
    return column.type == ColumnType::real || Has(kCounts, column.name);
}

// Of several results the one whose name begins the column's, else the first.
ResultColumns& ResultOf(std::vector<ResultColumns>& results, std::string_view column) {
    for (ResultColumns& result : results) {
        if (result.name.empty()) continue;
        if (column == result.name || column.starts_with(std::string(result.name) + "_")) return result;
    }
    return results.front();
}

// The position that is a key of the table; null: none is.
const Position* PositionOf(std::span<const Column> columns) {
    for (const Position& position : kPositions) {
        const auto same = [&](const Column& column) { return column.key && column.name == position.key; };
        if (std::ranges::any_of(columns, same)) return &position;
    }
    return nullptr;
}

std::size_t Find(std::span<const Column> columns, std::string_view name) {
    const auto found = std::ranges::find(columns, name, &Column::name);
    return found == columns.end() ? 0 : static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

TableColumns::TableColumns(const Table& from) : table(&from) {
    const std::span<const Column> columns = from.columns;
    const Position* position = PositionOf(columns);
    for (std::size_t i = 1; i < columns.size(); ++i) {
        if (!IsCase(columns[i])) continue;
        const std::string_view prefix = PrefixOf(columns[i]);
        results.push_back({prefix.substr(0, prefix.empty() ? 0 : prefix.size() - 1), i, {}, {}});
    }
    if (results.empty()) results.emplace_back();
    for (std::size_t i = 1; i < columns.size(); ++i) {
        const Column& column = columns[i];
        const bool isLabel = position != nullptr && Has(position->labels, column.name);
        const bool isPosition = position != nullptr && column.key && column.name == position->key;
        if (IsCase(column) || isLabel || isPosition) continue;
        if (column.key) {
            identity.push_back(i);
            // What is there comes first, after the substructure.
            if (i > 1 || position == nullptr) continue;
            for (const std::string_view label : position->labels) {
                if (const std::size_t at = Find(columns, label); at > 0) identity.push_back(at);
            }
        } else if (column.type == ColumnType::flag) {
            verdicts.push_back(i);
        } else if (IsValue(column)) {
            ResultOf(results, column.name).values.push_back(i);
        } else if (Has(kPlaces, column.name)) {
            ResultOf(results, column.name).places.push_back(i);
        }
    }
    extreme = Find(columns, "extreme");
    view = Find(columns, kView);
    if (position != nullptr) member = Find(columns, "member");
}

bool HasResults(const Table& table) {
    const auto isValue = [](const Column& column) {
        return column.type == ColumnType::real && column.quantity != Quantity::none &&
               column.quantity != Quantity::length;
    };
    // A table whose only key is the project describes the run, not a result.
    const auto isKey = [](const Column& column) { return column.key; };
    return std::ranges::any_of(table.columns, isValue) &&
           std::ranges::any_of(table.columns.subspan(1), isKey);
}

std::vector<const Table*> ComparableTables() {
    std::vector<const Table*> tables;
    for (const Table& table : AllTables()) {
        if (HasResults(table)) tables.push_back(&table);
    }
    return tables;
}

std::vector<const Table*> UsualTables() {
    std::vector<const Table*> tables(kUsual.size());
    std::ranges::transform(kUsual, tables.begin(), FindTable);
    return tables;
}

std::string_view LeadingColumn(std::string_view table, std::string_view extreme) {
    for (const auto& [name, column] : kLeading) {
        if (name == table) return column;
    }
    // The printed names of extremes: "Max f22", "Min Axial", "Max D/C".
    const std::size_t blank = extreme.find(' ');
    if (blank == std::string_view::npos) return kRatio;
    const std::string_view word = extreme.substr(blank + 1);
    if (word == "Axial") return kForces.front();
    if (word == "Torque") return kForces.back();
    const auto force = std::ranges::find(kForces, word);
    return force == kForces.end() ? kRatio : *force;
}

std::string ColumnWords(std::string_view column) {
    if (column == kRatio) return "D/C";
    if (column.ends_with("_dc")) return ReplaceAll(column.substr(0, column.size() - 3), "_", " ") + " D/C";
    if (!Has(kForces, column)) return ReplaceAll(column, "_", " ");
    std::string words;
    for (const char letter : column) {
        words += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return words;
}

}  // namespace lumerin
