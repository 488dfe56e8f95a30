// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "export/TableWriter.h"

namespace lumerin {

// A file for each project and table. The files of a project get their names together, after its last table,
// so that a project that fails leaves none.
class FilePerTable : public TableWriter {
  public:
    // Makes the writer of one file.
    using Opener = std::function<std::unique_ptr<TableWriter>(const Table& table)>;
    explicit FilePerTable(Opener open) : m_open(std::move(open)) {}

    void BeginTable(const Table& table, UnitSystem system) override;
    void Row(std::span<const Value> row) override { m_files.back()->Row(row); }
    void EndTable() override { m_files.back()->EndTable(); }
    void EndProject() override;
    bool AbandonProject() override;
    void Close() override {}

  private:
    Opener m_open;
    std::vector<std::unique_ptr<TableWriter>> m_files;  // of the project, one a table
};

}  // namespace lumerin
