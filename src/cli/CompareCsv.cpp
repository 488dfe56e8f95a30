// SPDX-License-Identifier: MIT
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "cli/CompareReport.h"
#include "compare/ComparisonText.h"
#include "export/CsvWriter.h"

namespace lumerin {

namespace {

// One line for each difference. It is written as a table of records is, so that both are read alike.
constexpr std::array<Column, 23> kColumns{{
    {"project", "name of the pair", ColumnType::text, Quantity::none, true},
    {"substructure", "from 1; empty: the whole project", ColumnType::integer},
    {"kind", "project, error, verdict, structure, row, value or governing", ColumnType::text},
    {"change", "changed, new or gone", ColumnType::text},
    {"table", "table of results", ColumnType::text},
    {"row", "what it is of, in words", ColumnType::text},
    {"column", "column of the table", ColumnType::text},
    {"unit", "of the values", ColumnType::text},
    {"old", "earlier value", ColumnType::real},
    {"new", "later value", ColumnType::real},
    {"difference", "new less old", ColumnType::real},
    {"relative", "of the greater magnitude", ColumnType::real},
    {"exceeds", "whether it is over the tolerances", ColumnType::flag},
    {"old_case", "governing case of the earlier run", ColumnType::integer},
    {"old_limit_state", "its limit state", ColumnType::text},
    {"old_title", "its title", ColumnType::text},
    {"new_case", "governing case of the later run", ColumnType::integer},
    {"new_limit_state", "its limit state", ColumnType::text},
    {"new_title", "its title", ColumnType::text},
    {"old_place", "where it governs in the earlier run", ColumnType::text},
    {"new_place", "where it governs in the later run", ColumnType::text},
    {"old_text", "what it was, in words", ColumnType::text},
    {"new_text", "what it is, in words", ColumnType::text},
}};
constexpr Table kTable{"changes", "a difference", kColumns, {}, nullptr};

// A line, whose cells are named and else absent. The texts must outlive it.
class Line {
  public:
    Line(std::string_view project, int substructure, std::string_view kind) : m_row(kColumns.size()) {
        Text("project", project);
        Text("kind", kind);
        if (substructure > 0) Set("substructure", std::int64_t{substructure});
    }
    void Text(std::string_view column, std::string_view text) {
        if (!text.empty()) Set(column, text);
    }
    void Number(std::string_view column, const std::optional<double>& number) {
        if (number) Set(column, *number);
    }
    void Flag(std::string_view column, bool flag) { Set(column, flag); }
    void Case(const std::string& side, const CaseName& name) {
        if (name.number == 0) return;
        Set(side + "_case", std::int64_t{name.number});
        Text(side + "_limit_state", name.limitState);
        Text(side + "_title", name.title);
    }
    std::span<const Value> Row() const { return m_row; }

  private:
    void Set(std::string_view column, Value value) {
        for (std::size_t i = 0; i < kColumns.size(); ++i) {
            if (kColumns[i].name == column) m_row[i] = value;
        }
    }

    std::vector<Value> m_row;
};

class CsvPrinter : public ComparePrinter {
  public:
    CsvPrinter(std::unique_ptr<ByteSink> sink, std::size_t top) : m_writer(std::move(sink), ','), m_top(top) {
        // The unit of a value is in its line.
        m_writer.BeginTable(kTable, UnitSystem::us);
    }

    void Print(const PairResult& result) override {
        if (!result.fault.empty()) {
            Line line(result.pair.name, 0, "error");
            line.Text("new_text", result.fault);
            m_writer.Row(line.Row());
        } else if (!result.comparison) {
            Line line(result.pair.name, 0, "project");
            line.Text("change", PresenceName(result.pair.before ? Presence::removed : Presence::added));
            m_writer.Row(line.Row());
        } else {
            PrintStructure(result.pair.name, *result.comparison);
            PrintResults(result.pair.name, *result.comparison);
        }
    }
    void Close() override {
        m_writer.EndTable();
        m_writer.Close();
    }

  private:
    bool IsBeyond(std::size_t number) const { return m_top > 0 && number >= m_top; }

    void Verdict(const std::string& project, int substructure, std::string_view label,
                 std::string_view before, std::string_view after) {
        Line line(project, substructure, "verdict");
        line.Text("change", PresenceName(Presence::changed));
        line.Text("row", label);
        line.Text("old_text", before);
        line.Text("new_text", after);
        m_writer.Row(line.Row());
    }

    void PrintStructure(const std::string& project, const Comparison& comparison) {
        if (comparison.before.answer != comparison.after.answer) {
            Verdict(project, 0, "project", AnswerWord(comparison.before.answer),
                    AnswerWord(comparison.after.answer));
        }
        for (const Flip& flip : comparison.flips) {
            const auto word = [](bool passes) { return passes ? "PASS" : "FAIL"; };
            Verdict(project, flip.substructure, flip.label, word(flip.before), word(flip.after));
        }
        for (std::size_t i = 0; i < comparison.structure.size() && !IsBeyond(i); ++i) {
            const StructureChange& change = comparison.structure[i];
            const std::string what =
                change.what + (change.count > 1 ? " and " + std::to_string(change.count - 1) + " more" : "");
            Line line(project, change.substructure, "structure");
            line.Text("change", PresenceName(change.presence));
            line.Text("table", change.kind);
            line.Text("row", what);
            line.Text("old_text", change.before);
            line.Text("new_text", change.after);
            m_writer.Row(line.Row());
        }
        for (std::size_t i = 0; i < comparison.rows.size() && !IsBeyond(i); ++i) {
            const RowChange& row = comparison.rows[i];
            Line line(project, row.substructure, "row");
            line.Text("change", PresenceName(row.presence));
            line.Text("table", row.table->name);
            line.Text("row", row.label);
            line.Case(row.presence == Presence::added ? "new" : "old", row.loadCase);
            m_writer.Row(line.Row());
        }
    }

    void PrintResults(const std::string& project, const Comparison& comparison) {
        for (std::size_t i = 0; i < comparison.results.size() && !IsBeyond(i); ++i) {
            PrintResult(project, comparison.results[i], "value", comparison.units);
        }
        for (std::size_t i = 0; i < comparison.governing.size() && !IsBeyond(i); ++i) {
            PrintResult(project, comparison.governing[i], "governing", comparison.units);
        }
    }

    void PrintResult(const std::string& project, const ResultChange& result, std::string_view kind,
                     UnitSystem units) {
        for (const ValueChange& value : result.values) {
            Line line(project, result.substructure, kind);
            line.Text("change", PresenceName(Presence::changed));
            line.Text("table", result.table->name);
            line.Text("row", result.label);
            line.Text("column", value.column);
            line.Text("unit", UnitName(value.quantity, units));
            line.Number("old", value.before);
            line.Number("new", value.after);
            if (value.before && value.after) line.Number("difference", value.change.difference);
            if (!std::isnan(value.change.relative)) line.Number("relative", value.change.relative);
            line.Flag("exceeds", value.change.exceeds);
            line.Case("old", result.caseBefore);
            line.Case("new", result.caseAfter);
            line.Text("old_place", result.placeBefore);
            line.Text("new_place", result.placeAfter);
            m_writer.Row(line.Row());
        }
    }

    CsvWriter m_writer;
    std::size_t m_top;
};

}  // namespace

std::unique_ptr<ComparePrinter> MakeCsvPrinter(std::unique_ptr<ByteSink> sink, std::size_t top) {
    return std::make_unique<CsvPrinter>(std::move(sink), top);
}

}  // namespace lumerin
