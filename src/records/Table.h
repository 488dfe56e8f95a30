// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "records/Units.h"

namespace lumerin {

// Results as typed tables. A table is described once: its columns, and the function that yields its rows in
// order. Every export reads this description.

// A cell. Absent cells hold std::monostate. Forces are the 32-bit floats of the force file; a double is a
// value that was computed (inside a cap element, or in other units). Texts are UTF-8 and valid during the
// call.
using Value = std::variant<std::monostate, std::int64_t, float, double, bool, std::string_view>;

enum class ColumnType { text, integer, real, flag };

struct Column {
    std::string_view name;
    std::string_view meaning;
    ColumnType type = ColumnType::text;
    Quantity quantity = Quantity::none;
    bool key = false;  // the key columns together are different in every row of a project
};

// Receives the rows of a table; as many values as the table has columns, valid during the call only.
using RowTaker = std::function<void(std::span<const Value> row)>;

class Evaluation;

// What a table needs to be computed by the pass over the forces before its rows can be asked for.
struct TableNeeds {
    unsigned searches = 0;   // bits 1 << TableId: the searches of the printed tables
    bool elements = false;   // the search over all element ends
    bool soundness = false;  // every force is looked at, which any pass does

    void Add(const TableNeeds& others) {
        searches |= others.searches;
        elements = elements || others.elements;
        soundness = soundness || others.soundness;
    }
};

struct Table {
    std::string_view name;
    std::string_view row;             // what one row is: "a case", "a pile and class"
    std::span<const Column> columns;  // the first two are project and substructure
    TableNeeds needs;
    // Yields the rows of one project in order, in the project's own units. Holds one row at a time. Throws
    // CFileException when a file cannot be read.
    void (*rows)(const Evaluation& evaluation, const RowTaker& take);
};

// The version of the program, as its option --version prints it.
std::string_view ProgramVersion();

// The version of the tables: raised when a column is added. Columns are never moved or renamed.
inline constexpr int kTablesVersion = 1;

// All tables, in the order of the documentation.
std::span<const Table> AllTables();
// Null: there is no such table.
const Table* FindTable(std::string_view name);

// The rows of a table in a unit system: what is in the project's own units is converted. Converted values are
// doubles.
void EachRow(const Table& table, const Evaluation& evaluation, UnitSystem system, const RowTaker& take);

// The shortest text that reads back as the same number; "inf", "-inf" and "nan" for the others. A float's
// text is that of the float ("0.1"), not of its double.
void AppendNumber(std::string& out, float value);
void AppendNumber(std::string& out, double value);
// The double that is nearest to the shortest text of a float, for formats that know doubles alone: they then
// show 0.1 and not 0.10000000149.
double AsDouble(float value);

}  // namespace lumerin
