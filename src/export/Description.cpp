// SPDX-License-Identifier: MIT
#include "export/Description.h"

namespace lumerin {

namespace {

std::string_view TypeName(ColumnType type) {
    switch (type) {
        case ColumnType::text:
            return "text";
        case ColumnType::integer:
            return "integer";
        case ColumnType::real:
            return "real";
        case ColumnType::flag:
            return "flag";
    }
    return "";
}

std::string UnitsOf(Quantity quantity) {
    const std::string_view us = UnitName(quantity, UnitSystem::us);
    if (us.empty()) return "";
    return std::string(us) + " or " + std::string(UnitName(quantity, UnitSystem::si));
}

void AppendTable(const Table& table, std::string& text) {
    text.append("\n### ")
        .append(table.name)
        .append("\n\nOne row for each: ")
        .append(table.row)
        .append(".\n\n");
    text += "| column | type | unit | meaning |\n|---|---|---|---|\n";
    for (const Column& column : table.columns) {
        text.append("| `").append(column.name).append(column.key ? "`, key | " : "` | ");
        text.append(TypeName(column.type)).append(" | ").append(UnitsOf(column.quantity)).append(" | ");
        text.append(column.meaning).append(" |\n");
    }
}

}  // namespace

std::string DescribeTables(std::span<const Table> tables) {
    std::string text = "Version " + std::to_string(kTablesVersion) + " of the tables.\n";
    for (const Table& table : tables) AppendTable(table, text);
    return text;
}

}  // namespace lumerin
