// SPDX-License-Identifier: MIT
#include "export/JsonLinesWriter.h"

#include "export/Cells.h"

namespace lumerin {

namespace {

void AppendString(std::string& out, std::string_view text) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    constexpr unsigned char kFirstPrintable = 0x20;
    out += '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < kFirstPrintable) {
            out += "\\u00";
            out += kHexDigits[code >> 4U];
            out += kHexDigits[code & 0xFU];
            continue;
        }
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    out += '"';
}

void AppendValue(std::string& out, const Value& value) {
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        AppendString(out, *text);
    } else if (std::holds_alternative<std::monostate>(value)) {
        out += "null";
    } else if (IsNotFinite(value)) {
        out += '"';
        AppendPlain(out, value);
        out += '"';
    } else {
        AppendPlain(out, value);
    }
}

}  // namespace

JsonLinesWriter::JsonLinesWriter(std::unique_ptr<ByteSink> sink, bool namesTable)
    : m_sink(std::move(sink)), m_namesTable(namesTable) {
    m_buffer.reserve(kFlushBytes + kRowBytes);
}

void JsonLinesWriter::BeginTable(const Table& table, UnitSystem) {
    m_heads.clear();
    for (const Column& column : table.columns) {
        std::string head = m_heads.empty() ? "{" : ",";
        if (m_heads.empty() && m_namesTable) {
            head += "\"table\":";
            AppendString(head, table.name);
            head += ',';
        }
        AppendString(head, column.name);
        head += ':';
        m_heads.push_back(std::move(head));
    }
}

void JsonLinesWriter::Row(std::span<const Value> row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        m_buffer += m_heads[i];
        AppendValue(m_buffer, row[i]);
    }
    m_buffer += "}\n";
    if (m_buffer.size() < kFlushBytes) return;
    m_sink->Write(m_buffer);
    m_buffer.clear();
}

void JsonLinesWriter::Close() {
    m_sink->Write(m_buffer);
    m_buffer.clear();
    m_sink->Commit();
}

}  // namespace lumerin
