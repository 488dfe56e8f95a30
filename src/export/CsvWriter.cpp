// SPDX-License-Identifier: MIT
#include "export/CsvWriter.h"

#include <algorithm>

#include "export/Cells.h"

namespace lumerin {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
// How formulas begin in worksheets.
constexpr std::string_view kFormulaStarts = "=+-@";

}  // namespace

CsvWriter::CsvWriter(std::unique_ptr<ByteSink> sink, char separator)
    : m_sink(std::move(sink)), m_separator(separator) {
    m_buffer.reserve(kFlushBytes + kRowBytes);
}

void CsvWriter::BeginTable(const Table& table, UnitSystem) {
    if (m_table == &table) return;
    if (m_table != nullptr) throw ExportError("a file of this form holds one table");
    m_table = &table;
    for (const Column& column : table.columns) {
        if (&column != table.columns.data()) m_buffer += m_separator;
        AppendText(column.name);
    }
    m_buffer += kLineEnd;
}

void CsvWriter::Row(std::span<const Value> row) {
    for (const Value& value : row) {
        if (&value != row.data()) m_buffer += m_separator;
        AppendValue(value);
    }
    m_buffer += kLineEnd;
    if (m_buffer.size() < kFlushBytes) return;
    m_sink->Write(m_buffer);
    m_buffer.clear();
}

void CsvWriter::Close() {
    m_sink->Write(m_buffer);
    m_buffer.clear();
    m_sink->Commit();
}

void CsvWriter::AppendValue(const Value& value) {
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        AppendText(*text);
    } else {
        AppendPlain(m_buffer, value);
    }
}

bool CsvWriter::MustQuote(std::string_view text) const {
    // An empty text is another thing than an absent one.
    if (text.empty() || kFormulaStarts.find(text.front()) != std::string_view::npos) return true;
    return std::any_of(text.begin(), text.end(),
                       [this](char c) { return c == m_separator || c == '"' || c == '\r' || c == '\n'; });
}

void CsvWriter::AppendText(std::string_view text) {
    if (!MustQuote(text)) {
        m_buffer += text;
        return;
    }
    m_buffer += '"';
    for (const char c : text) {
        if (c == '"') m_buffer += '"';
        m_buffer += c;
    }
    m_buffer += '"';
}

std::optional<char> ReadSeparator(std::string_view text) {
    if (text == "tab" || text == "\\t" || text == "\t") return '\t';
    constexpr std::string_view kAllowed = ",;:|!#$%&*/<>?^_`{}~ ";
    if (text.size() != 1 || kAllowed.find(text.front()) == std::string_view::npos) return std::nullopt;
    return text.front();
}

}  // namespace lumerin
