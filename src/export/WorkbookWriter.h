// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "export/TableSheet.h"
#include "export/TableWriter.h"
#include "export/Workbook.h"

namespace lumerin {

// A workbook with a sheet a table, named as the table; the rows of several projects follow one another on
// one sheet. Throws ExportError at Close when a table has more rows than a sheet holds.
class WorkbookWriter : public TableWriter {
  public:
    // Ratios over `limit` are red.
    WorkbookWriter(const std::string& path, const LocalTime& created, double limit)
        : m_workbook(path, created), m_limit(limit) {}

    void BeginTable(const Table& table, UnitSystem system) override;
    void Row(std::span<const Value> row) override;
    void Close() override;

  private:
    struct Sheet {
        const Table* table;
        UnitSystem system;
        std::unique_ptr<TableSheet> sheet;
    };

    Workbook m_workbook;
    double m_limit;
    std::vector<Sheet> m_sheets;
    TableSheet* m_sheet = nullptr;  // of the table that is being written
    std::vector<const Value*> m_cells;
};

}  // namespace lumerin
