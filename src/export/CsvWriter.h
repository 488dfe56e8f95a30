// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "export/ByteSink.h"
#include "export/TableWriter.h"

namespace lumerin {

// Comma-separated values by RFC 4180: a line of the column names, then a line a row, each ended by carriage
// return and line feed. An absent cell is an empty field, a flag is true or false, a number has a point and
// as many digits as it needs to read back the same. A text in which the separator, a quotation mark or the
// end of a line occurs is quoted; so is one that begins as a formula or is empty. No text is changed. One
// table; that of several projects goes on without a second head line.
class CsvWriter : public TableWriter {
  public:
    CsvWriter(std::unique_ptr<ByteSink> sink, char separator);

    void BeginTable(const Table& table, UnitSystem system) override;
    void Row(std::span<const Value> row) override;
    void Close() override;

  private:
    void AppendText(std::string_view text);
    void AppendValue(const Value& value);
    bool MustQuote(std::string_view text) const;

    std::unique_ptr<ByteSink> m_sink;
    char m_separator;
    const Table* m_table = nullptr;
    std::string m_buffer;
};

// Reads the separator of an option: one character, "tab" or "\t". Empty where it could be taken for a part of
// a number, a word or a quotation.
std::optional<char> ReadSeparator(std::string_view text);

}  // namespace lumerin
