// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "records/Table.h"

struct sqlite3;
struct sqlite3_stmt;

namespace lumerin {

// The part of SQLite that the export uses. All functions throw ExportError with the file's name and the
// library's text.

struct CloseDatabase {
    void operator()(sqlite3* database) const;
};
struct FinishStatement {
    void operator()(sqlite3_stmt* statement) const;
};

class Database;

// A compiled statement; its parameters count from 1, its columns from 0. Not after its database.
class Statement {
  public:
    Statement(Database& database, const std::string& sql);

    // Texts must live until the step. Flags are 0 and 1; what is not a number is NULL, as absent cells are.
    void Bind(int parameter, const Value& value);
    // True: there is a row.
    bool Step();
    void Reset();
    std::int64_t Integer(int column) const;
    std::string Text(int column) const;

  private:
    void Check(int code) const;
    Database& m_database;
    std::unique_ptr<sqlite3_stmt, FinishStatement> m_statement;
};

// An open database file.
class Database {
  public:
    enum class Access { create, read };
    Database(const std::string& path, Access access);

    void Run(const std::string& sql);
    // The first column of the first row of a query.
    std::int64_t Number(const std::string& sql);
    // Undoes the open transaction, if there is one. Never throws.
    void Rollback() noexcept;
    // Nothing may be asked of it afterwards, and no statement of it exist.
    void Close() noexcept { m_database.reset(); }

    sqlite3* Handle() const { return m_database.get(); }
    [[noreturn]] void Fail() const;

  private:
    std::string m_path;
    std::unique_ptr<sqlite3, CloseDatabase> m_database;
};

// A name as SQL takes it, also one of the language's words: "case".
std::string QuotedName(std::string_view name);

}  // namespace lumerin
