// SPDX-License-Identifier: MIT
#include "export/FilePerTable.h"

namespace lumerin {

void FilePerTable::BeginTable(const Table& table, UnitSystem system) {
    m_files.push_back(m_open(table));
    m_files.back()->BeginTable(table, system);
}

void FilePerTable::EndProject() {
    for (const std::unique_ptr<TableWriter>& file : m_files) file->Close();
    m_files.clear();
}

bool FilePerTable::AbandonProject() {
    m_files.clear();
    return true;
}

}  // namespace lumerin
