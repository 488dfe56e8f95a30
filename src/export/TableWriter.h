// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "records/Table.h"

namespace lumerin {

// A fault of an output: the text names it and the cause, for the user.
class ExportError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Takes tables row by row and stores them in one form. The calls come in this order: for each project
// BeginProject, for each table of it BeginTable, Row as often as it has rows, EndTable; then EndProject, or
// AbandonProject where the project failed; Close at the end of all. No writer holds a table. Each call throws
// ExportError when the output cannot be stored; only AbandonProject may follow then. What was not closed
// replaces no file.
class TableWriter {
  public:
    TableWriter() = default;
    TableWriter(const TableWriter&) = delete;
    TableWriter& operator=(const TableWriter&) = delete;
    virtual ~TableWriter() = default;

    // `project` is the value of the column of that name.
    virtual void BeginProject(std::string_view project) { static_cast<void>(project); }
    // `system` is that of the values in the rows that follow. `table` is valid until Close.
    virtual void BeginTable(const Table& table, UnitSystem system) = 0;
    virtual void Row(std::span<const Value> row) = 0;
    virtual void EndTable() {}
    virtual void EndProject() {}
    // Drops the rows of the project. False: the form cannot drop them, and the whole output is lost.
    virtual bool AbandonProject() { return false; }
    virtual void Close() = 0;
};

}  // namespace lumerin
