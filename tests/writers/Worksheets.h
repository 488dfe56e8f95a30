// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ReportFixture.h"
#include "writers/TableSheets.h"

namespace lumerin {

// The worksheets of a MakeReport(), and readers of what was written.
namespace sheets {

class SheetTest : public ReportTest {
  protected:
    SheetTest() {
        data.m_sForceUnit = "kips";
        data.m_sMomentUnit = "kip-ft";
        options.format = kFormatSpreadsheet;
    }

    // The worksheets of a table, or its workbook, with bare line feeds.
    std::string Written(int table, bool embedded = true) {
        {
            StoredStream out(Path());
            EXPECT_EQ(WriteTableSheet(MakeReport(), TableId{table}, out, embedded), 1);
            out.Close();
        }
        return StoredText();
    }
};

// The worksheets of a text, each from its opening to its closing tag.
inline std::vector<std::string> Worksheets(const std::string& text) {
    std::vector<std::string> sheets;
    static const std::string close = "</Worksheet>\n";
    for (std::size_t at = text.find("<Worksheet "); at != std::string::npos;
         at = text.find("<Worksheet ", at + 1)) {
        const std::size_t end = text.find(close, at);
        sheets.push_back(text.substr(at, end == std::string::npos ? end : end + close.size() - at));
    }
    return sheets;
}

// The value of the first attribute of that name.
inline std::string Attribute(const std::string& text, const std::string& name) {
    const std::string mark = name + "=\"";
    const std::size_t at = text.find(mark);
    if (at == std::string::npos) return "(none)";
    const std::size_t from = at + mark.size();
    return text.substr(from, text.find('"', from) - from);
}

inline int AnnouncedRows(const std::string& sheet) {
    return std::stoi(Attribute(sheet, "ss:ExpandedRowCount"));
}

// The number of the last row; a row with an index of its own jumps to it.
inline int CountedRows(const std::string& sheet) {
    int rows = 0;
    for (std::size_t at = sheet.find("<Row"); at != std::string::npos; at = sheet.find("<Row", at + 1)) {
        static const std::string index = "<Row ss:Index=\"";
        rows = sheet.compare(at, index.size(), index) == 0 ? std::stoi(sheet.substr(at + index.size()))
                                                           : rows + 1;
    }
    return rows;
}

// From the end of the title rows' last closing tag to the end of the table: heads, headings and rows.
inline std::string Body(const std::string& sheet, const std::string& lastTitleText) {
    const std::size_t title = sheet.find(lastTitleText);
    static const std::string rowEnd = "</Row>\n";
    const std::size_t from = sheet.find(rowEnd, title) + rowEnd.size();
    return sheet.substr(from, sheet.find("</Table>", from) - from);
}

}  // namespace sheets

}  // namespace lumerin
