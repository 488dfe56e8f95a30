// SPDX-License-Identifier: MIT
#include "export/Database.h"

#include <sqlite3.h>

#include "export/ByteSink.h"
#include "export/LibraryPaths.h"
#include "export/TableWriter.h"

namespace lumerin {

namespace {

// How long another program that writes to the file is waited for.
constexpr int kBusyMilliseconds = 5000;

}  // namespace

void CloseDatabase::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

void FinishStatement::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Database::Database(const std::string& path, Access access) : m_path(path) {
    const int flags =
        access == Access::read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(PathForSqlite(path).c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX,
                                     SqliteFileFunctions());
    m_database.reset(opened);
    // The library does not say why. What is read is to be written to.
    if (code == SQLITE_CANTOPEN) throw ExportError(WhyNotWritten(path));
    if (code != SQLITE_OK) Fail();
    sqlite3_busy_timeout(opened, kBusyMilliseconds);
    // Limits of the file system and of its rights are better reported than guessed.
    sqlite3_extended_result_codes(opened, 1);
}

void Database::Fail() const {
    throw ExportError(m_path + ": " + (m_database ? sqlite3_errmsg(m_database.get()) : "out of memory"));
}

void Database::Run(const std::string& sql) {
    if (sqlite3_exec(Handle(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

std::int64_t Database::Number(const std::string& sql) {
    Statement statement(*this, sql);
    return statement.Step() ? statement.Integer(0) : 0;
}

void Database::Rollback() noexcept {
    if (sqlite3_get_autocommit(Handle()) == 0) {
        sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

Statement::Statement(Database& database, const std::string& sql) : m_database(database) {
    sqlite3_stmt* compiled = nullptr;
    Check(sqlite3_prepare_v2(database.Handle(), sql.c_str(), -1, &compiled, nullptr));
    m_statement.reset(compiled);
}

void Statement::Check(int code) const {
    if (code != SQLITE_OK) m_database.Fail();
}

void Statement::Bind(int parameter, const Value& value) {
    sqlite3_stmt* statement = m_statement.get();
    if (const auto* single = std::get_if<float>(&value)) {
        Check(sqlite3_bind_double(statement, parameter, AsDouble(*single)));
    } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        Check(sqlite3_bind_int64(statement, parameter, *whole));
    } else if (const auto* text = std::get_if<std::string_view>(&value)) {
        // Without an address the library would store NULL for an empty text.
        const char* bytes = text->data() == nullptr ? "" : text->data();
        Check(sqlite3_bind_text64(statement, parameter, bytes, text->size(), SQLITE_STATIC, SQLITE_UTF8));
    } else if (const auto* real = std::get_if<double>(&value)) {
        Check(sqlite3_bind_double(statement, parameter, *real));
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        Check(sqlite3_bind_int(statement, parameter, *flag ? 1 : 0));
    } else {
        Check(sqlite3_bind_null(statement, parameter));
    }
}

bool Statement::Step() {
    const int code = sqlite3_step(m_statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) m_database.Fail();
    return code == SQLITE_ROW;
}

void Statement::Reset() {
    Check(sqlite3_reset(m_statement.get()));
}

std::int64_t Statement::Integer(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string Statement::Text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    const int count = sqlite3_column_bytes(m_statement.get(), column);
    return bytes == nullptr ? std::string() : std::string(bytes, static_cast<std::size_t>(count));
}

std::string QuotedName(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

}  // namespace lumerin
