// SPDX-License-Identifier: MIT
#include "compare/ResultRows.h"

#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr char kBetween = '\x1f';  // in no text of a table

KeptCell Kept(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer;
    if (const auto* single = std::get_if<float>(&value)) return AsDouble(*single);
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* text = std::get_if<std::string_view>(&value)) return std::string(*text);
    return {};
}

bool IsAbsent(const KeptCell& cell) {
    return std::holds_alternative<std::monostate>(cell);
}

// An element that belongs to a member is named by its number in it.
bool IsNamedByMember(const TableColumns& columns, std::size_t column, std::span<const KeptCell> cells) {
    return columns.table->columns[column].name == "element" && columns.member != 0 &&
           !IsAbsent(cells[columns.member]);
}

// The word before the text of a column, with a blank; of texts that say it themselves it is empty.
std::string WordOf(const TableColumns& columns, std::size_t i, std::span<const KeptCell> cells) {
    const Column& column = columns.table->columns[i];
    if (IsNamedByMember(columns, i, cells)) return "ELEM ";
    if (column.name == "end" || column.name == "quantity") return std::string(column.name) + " ";
    if (column.type == ColumnType::text || column.name == "member") return {};
    return column.name == "index" ? "element " : ColumnWords(column.name) + " ";
}

}  // namespace

std::optional<double> NumberIn(const KeptCell& cell) {
    if (const auto* real = std::get_if<double>(&cell)) return *real;
    if (const auto* integer = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*integer);
    return std::nullopt;
}

std::string TextIn(const KeptCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) return *text;
    if (const auto* integer = std::get_if<std::int64_t>(&cell)) return std::to_string(*integer);
    if (const auto* flag = std::get_if<bool>(&cell)) return *flag ? "yes" : "no";
    std::string text;
    if (const auto* real = std::get_if<double>(&cell)) AppendNumber(text, *real);
    return text;
}

bool IsCaseOfRow(const TableColumns& columns, const ResultColumns& result, std::span<const KeptCell> cells) {
    if (result.loadCase == 0 || !columns.table->columns[result.loadCase].key) return false;
    return columns.view == 0 || TextIn(cells[columns.view]) == "case";
}

KeptRow RowKeys::Keep(std::span<const Value> row) {
    KeptRow kept;
    kept.number = ++m_rows;
    kept.cells.reserve(row.size());
    // The project has another name in each run.
    kept.cells.emplace_back();
    for (const Value& value : row.subspan(1)) kept.cells.push_back(Kept(value));
    kept.key = KeyOf(kept.cells);
    if (const int earlier = m_seen[kept.key]++; earlier > 0) kept.key += "x" + std::to_string(earlier);
    return kept;
}

std::string RowKeys::KeyOf(const std::vector<KeptCell>& cells) const {
    std::string key;
    for (const std::size_t i : m_columns.identity) {
        if (!IsNamedByMember(m_columns, i, cells)) key += TextIn(cells[i]);
        key += kBetween;
    }
    const ResultColumns& first = m_columns.results.front();
    if (IsCaseOfRow(m_columns, first, cells)) {
        const auto* number = std::get_if<std::int64_t>(&cells[first.loadCase]);
        if (number != nullptr && *number > 0 && Index(*number) < m_caseIds.size()) {
            key += std::to_string(m_caseIds[Index(*number)]);
        }
        key += kBetween;
    }
    return key;
}

std::string LabelOf(const TableColumns& columns, std::span<const KeptCell> cells) {
    std::string label;
    for (const std::size_t i : columns.identity) {
        const std::string_view name = columns.table->columns[i].name;
        // The label of a place names its side, and lists have the substructure in a column of its own.
        if (name == "substructure" || name == "side" || IsAbsent(cells[i])) continue;
        // "pile section 1" and "pile 3" are one thing.
        const bool continues = name == "section" || name == "member";
        if (!label.empty()) label += continues ? " " : ", ";
        label += WordOf(columns, i, cells) + ReplaceAll(TextIn(cells[i]), "_", " ");
    }
    return label;
}

std::string PlaceIn(const TableColumns& columns, const ResultColumns& result,
                    std::span<const KeptCell> cells) {
    std::string place;
    for (const std::size_t i : result.places) {
        const std::string_view name = columns.table->columns[i].name;
        std::string text = TextIn(cells[i]);
        if (text.empty() || name == "node" || name == "nodes") continue;
        // A place in words says it all.
        if (name == "place") return text;
        if (!place.empty()) place += name == "end" ? " " : ", ";
        place += name == "end" ? text : std::string(name) + " " + text;
    }
    return place;
}

int SubstructureIn(std::span<const KeptCell> cells) {
    const auto* number = std::get_if<std::int64_t>(&cells[1]);
    return number == nullptr ? 0 : static_cast<int>(*number);
}

}  // namespace lumerin
