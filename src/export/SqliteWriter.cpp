// SPDX-License-Identifier: MIT
#include "export/SqliteWriter.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "framework/File.h"
#include "framework/NativePath.h"

namespace lumerin {

namespace {

// "LUMR": what the tools of SQLite know the file by.
constexpr std::int64_t kApplicationId = 0x4C554D52;

std::string_view SqlType(ColumnType type) {
    switch (type) {
        case ColumnType::text:
            return "TEXT";
        case ColumnType::real:
            return "REAL";
        case ColumnType::integer:
        case ColumnType::flag:
            return "INTEGER";
    }
    return "";
}

constexpr std::string_view kCaseColumn = "case";

// The key columns with commas between them; empty for a table without a key. The case comes after project and
// substructure: the rows of such tables come case by case, and rows in the order of an index are stored in
// half the time.
std::string KeyOf(const Table& table) {
    std::vector<std::string_view> names;
    for (const Column& column : table.columns) {
        if (!column.key) continue;
        const bool early = column.name == kCaseColumn && names.size() > 2;
        names.insert(early ? names.begin() + 2 : names.end(), column.name);
    }
    std::string key;
    for (const std::string_view name : names) {
        if (!key.empty()) key += ", ";
        key += QuotedName(name);
    }
    return key;
}

bool HasARowForEachCase(const Table& table) {
    return std::any_of(table.columns.begin(), table.columns.end(),
                       [](const Column& column) { return column.key && column.name == kCaseColumn; });
}

bool IsDatabaseOfExports(Database& database) {
    return database.Number("PRAGMA application_id") == kApplicationId;
}

// Opens a database for a look. None: there is nothing yet.
std::optional<Database> OpenExisting(const std::string& path) {
    std::error_code ignored;
    if (StampOf(path).length <= 0) return {};
    return Database(path, Database::Access::read);
}

std::optional<UnitSystem> ReadUnits(Database& database) {
    Statement query(database, "SELECT value FROM versions WHERE name = 'units'");
    return query.Step() ? ReadUnitSystem(query.Text(0)) : std::nullopt;
}

}  // namespace

std::optional<UnitSystem> UnitsOfDatabase(const std::string& path) {
    std::optional<Database> database = OpenExisting(path);
    if (!database || !IsDatabaseOfExports(*database)) return std::nullopt;
    return ReadUnits(*database);
}

SqliteWriter::SqliteWriter(const std::string& path, const std::string& programVersion)
    : m_path(path), m_version(programVersion), m_database(path, Database::Access::create) {
    CheckFile();
    m_database.Run("PRAGMA cache_size = -16384");
}

SqliteWriter::~SqliteWriter() {
    m_insert.reset();
    m_database.Rollback();
    m_database.Close();
    std::error_code ignored;
    // A file without a project would look like a result. On Windows an open file stays.
    if (m_isNew) std::filesystem::remove(NativePath(m_path), ignored);
}

void SqliteWriter::CheckFile() {
    m_isNew = m_database.Number("SELECT count(*) FROM sqlite_master") == 0;
    if (m_isNew) return;
    if (!IsDatabaseOfExports(m_database)) {
        throw ExportError(m_path + ": it is a database, but not one of this program's exports");
    }
    const std::int64_t version = m_database.Number("PRAGMA user_version");
    if (version != kTablesVersion) {
        throw ExportError(m_path + ": its tables have version " + std::to_string(version) +
                          ", and this program writes version " + std::to_string(kTablesVersion) +
                          "; choose a new file");
    }
}

void SqliteWriter::CreateOwnTables() {
    if (m_isNew) {
        m_database.Run("PRAGMA application_id = " + std::to_string(kApplicationId) +
                       "; PRAGMA user_version = " + std::to_string(kTablesVersion));
    }
    m_database.Run(
        "CREATE TABLE IF NOT EXISTS versions (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;"
        "CREATE TABLE IF NOT EXISTS tables (name TEXT PRIMARY KEY, row TEXT NOT NULL) WITHOUT ROWID;"
        "CREATE TABLE IF NOT EXISTS imports (project TEXT PRIMARY KEY, tables TEXT NOT NULL) WITHOUT ROWID;"
        "CREATE TABLE IF NOT EXISTS units (table_name TEXT, column_name TEXT, unit TEXT NOT NULL,"
        " unit_system TEXT NOT NULL, PRIMARY KEY (table_name, column_name)) WITHOUT ROWID");
    Statement version(m_database, "INSERT OR REPLACE INTO versions VALUES (?, ?)");
    const std::string tablesVersion = std::to_string(kTablesVersion);
    for (const auto& [name, value] :
         {std::pair<std::string_view, std::string_view>{"lumerin", m_version}, {"tables", tablesVersion}}) {
        version.Bind(1, name);
        version.Bind(2, value);
        version.Step();
        version.Reset();
    }
}

void SqliteWriter::BeginProject(std::string_view project) {
    m_project = project;
    m_tables.clear();
    m_database.Run("BEGIN IMMEDIATE");
    CreateOwnTables();
    DropProject();
}

void SqliteWriter::DropProject() {
    Statement list(m_database, "SELECT name FROM tables");
    while (list.Step()) {
        Statement drop(m_database, "DELETE FROM " + QuotedName(list.Text(0)) + " WHERE project = ?");
        drop.Bind(1, std::string_view(m_project));
        drop.Step();
    }
}

void SqliteWriter::KeepUnits(const Table& table, UnitSystem system) {
    const std::optional<UnitSystem> kept = ReadUnits(m_database);
    if (kept && *kept != system) {
        throw ExportError(m_path + ": it holds units " + std::string(UnitSystemName(*kept)) + ", and " +
                          m_project + " would add " + std::string(UnitSystemName(system)) +
                          "; give --units " + std::string(UnitSystemName(*kept)));
    }
    Statement version(m_database, "INSERT OR REPLACE INTO versions VALUES ('units', ?)");
    version.Bind(1, UnitSystemName(system));
    version.Step();
    Statement unit(m_database, "INSERT OR REPLACE INTO units VALUES (?, ?, ?, ?)");
    for (const Column& column : table.columns) {
        if (column.quantity == Quantity::none) continue;
        unit.Bind(1, table.name);
        unit.Bind(2, column.name);
        unit.Bind(3, UnitName(column.quantity, system));
        unit.Bind(4, UnitSystemName(system));
        unit.Step();
        unit.Reset();
    }
}

void SqliteWriter::CreateTable(const Table& table) {
    std::string sql = "CREATE TABLE IF NOT EXISTS " + QuotedName(table.name) + " (";
    for (const Column& column : table.columns) {
        if (&column != table.columns.data()) sql += ", ";
        sql.append(QuotedName(column.name)).append(" ").append(SqlType(column.type));
    }
    m_database.Run(sql + ")");
}

// After the first project's rows, because sorting them once takes half the time of keeping an order; later
// projects find the indices.
void SqliteWriter::CreateIndices(const Table& table) {
    const auto add = [&](std::string_view what, std::string_view name, const std::string& columns) {
        m_database.Run("CREATE " + std::string(what) + "INDEX IF NOT EXISTS " +
                       QuotedName(std::string(table.name) + std::string(name)) + " ON " +
                       QuotedName(table.name) + " (" + columns + ")");
    };
    const std::string key = KeyOf(table);
    if (key.empty()) {
        add("", "_by_project", "project");
    } else {
        add("UNIQUE ", "_key", key);
    }
    // Tables of each case are long, and their ratios are looked for in the shorter ones.
    if (HasARowForEachCase(table)) return;
    for (const Column& column : table.columns) {
        if (!column.name.ends_with("dc")) continue;
        add("", "_by_" + std::string(column.name), QuotedName(column.name));
    }
}

void SqliteWriter::BeginTable(const Table& table, UnitSystem system) {
    m_table = &table;
    CreateTable(table);
    KeepUnits(table, system);
    Statement entry(m_database, "INSERT OR REPLACE INTO tables VALUES (?, ?)");
    entry.Bind(1, table.name);
    entry.Bind(2, table.row);
    entry.Step();
    m_tables += (m_tables.empty() ? "" : ",") + std::string(table.name);
    std::string marks;
    for (std::size_t i = 0; i < table.columns.size(); ++i) marks += i == 0 ? "?" : ", ?";
    m_insert.emplace(m_database, "INSERT INTO " + QuotedName(table.name) + " VALUES (" + marks + ")");
}

void SqliteWriter::Row(std::span<const Value> row) {
    for (std::size_t i = 0; i < row.size(); ++i) m_insert->Bind(static_cast<int>(i) + 1, row[i]);
    m_insert->Step();
    m_insert->Reset();
}

void SqliteWriter::EndTable() {
    m_insert.reset();
    CreateIndices(*m_table);
}

void SqliteWriter::EndProject() {
    Statement entry(m_database, "INSERT OR REPLACE INTO imports VALUES (?, ?)");
    entry.Bind(1, std::string_view(m_project));
    entry.Bind(2, std::string_view(m_tables));
    entry.Step();
    m_database.Run("COMMIT");
    m_isNew = false;
}

bool SqliteWriter::AbandonProject() {
    m_insert.reset();
    m_database.Rollback();
    return true;
}

}  // namespace lumerin
