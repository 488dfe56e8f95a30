// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "export/ByteSink.h"
#include "export/TableWriter.h"

namespace lumerin {

// JSON Lines: an object a row, ended by a line feed, with all columns in their order. An absent cell is null.
// JSON has no numbers that are not finite: they are the texts "nan", "inf" and "-inf", which pandas reads as
// numbers.
class JsonLinesWriter : public TableWriter {
  public:
    // `namesTable`: each object has the table's name first, under the key "table".
    JsonLinesWriter(std::unique_ptr<ByteSink> sink, bool namesTable);

    void BeginTable(const Table& table, UnitSystem system) override;
    void Row(std::span<const Value> row) override;
    void Close() override;

  private:
    std::unique_ptr<ByteSink> m_sink;
    bool m_namesTable;
    std::vector<std::string> m_heads;  // before each value, the brace with the first
    std::string m_buffer;
};

}  // namespace lumerin
