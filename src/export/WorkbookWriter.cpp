// SPDX-License-Identifier: MIT
#include "export/WorkbookWriter.h"

#include <algorithm>

namespace lumerin {

void WorkbookWriter::BeginTable(const Table& table, UnitSystem system) {
    m_cells.resize(table.columns.size());
    const auto found = std::find_if(m_sheets.begin(), m_sheets.end(),
                                    [&](const Sheet& sheet) { return sheet.table == &table; });
    if (found != m_sheets.end()) {
        if (found->system != system) throw ExportError("a sheet has one unit system; give --units");
        m_sheet = found->sheet.get();
        return;
    }
    std::vector<const Column*> columns;
    for (const Column& column : table.columns) columns.push_back(&column);
    const SheetLook look{std::string(table.name), "", m_limit, system};
    m_sheets.push_back({&table, system, std::make_unique<TableSheet>(m_workbook, look, columns)});
    m_sheet = m_sheets.back().sheet.get();
}

void WorkbookWriter::Row(std::span<const Value> row) {
    for (std::size_t i = 0; i < row.size(); ++i) m_cells[i] = &row[i];
    m_sheet->Row(m_cells);
}

void WorkbookWriter::Close() {
    for (const Sheet& sheet : m_sheets) sheet.sheet->Finish();
    m_workbook.Close();
}

}  // namespace lumerin
