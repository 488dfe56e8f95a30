// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "export/Database.h"
#include "export/TableWriter.h"

namespace lumerin {

// A database of SQLite with the tables of all its projects, and four of its own:
//   versions  name, value: the program and the version of the tables that wrote last, the unit system
//   tables    name, row: the tables that exports made, and what a row of them is
//   units     table_name, column_name, unit, unit_system: of each column with a quantity
//   imports   project, tables: the projects of the file, and which tables were exported of them
// A project is one transaction. It replaces everything that the file has of the project of that name, so that
// no table is of an older run than another. A database has one unit system, or a sum over its projects would
// add kips to kilonewtons.
class SqliteWriter : public TableWriter {
  public:
    // Throws ExportError for a file that is no database, not one of these, or of other versions of the
    // tables.
    SqliteWriter(const std::string& path, const std::string& programVersion);
    ~SqliteWriter() override;

    void BeginProject(std::string_view project) override;
    void BeginTable(const Table& table, UnitSystem system) override;
    void Row(std::span<const Value> row) override;
    void EndTable() override;
    void EndProject() override;
    bool AbandonProject() override;
    void Close() override {}

  private:
    void CheckFile();
    void CreateOwnTables();
    void KeepUnits(const Table& table, UnitSystem system);
    void CreateTable(const Table& table);
    void CreateIndices(const Table& table);
    void DropProject();

    std::string m_path, m_version;
    Database m_database;
    bool m_isNew = false;  // the file had nothing, and no project is stored yet
    std::string m_project, m_tables;
    const Table* m_table = nullptr;  // that is being written
    std::optional<Statement> m_insert;
};

// The unit system of an existing database; none where there is no such file yet, or it is empty. Throws
// ExportError.
std::optional<UnitSystem> UnitsOfDatabase(const std::string& path);

}  // namespace lumerin
