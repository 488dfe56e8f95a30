// SPDX-License-Identifier: MIT
// Printing: one line of text a row, the heading rows on every page, the rest of the rows page by page.
#include <algorithm>

#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

// The alphabet that gives the mean width of a character. Its first 52 letters are measured; the spare "A" in
// the upper case pushes the "Z" out of them.
constexpr const char* kPrintAlphabet = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSATUVWXYZ";
constexpr std::size_t kPrintLetters = 52;
constexpr int kPrintFontHeight = -10;
constexpr int kLineGap = 2;

}  // namespace

void CGridCtrl::SetPrintTexts(const std::string& header, const std::string& heading,
                              const std::string& footer) {
    m_sPrintHeader = header;
    m_sPrintHeading = heading;
    m_sPrintFooter = footer;
}

void CGridCtrl::PrintBegin(CDC& dc, GridSize page) {
    m_PrintFont = FontRecord{"Arial", kPrintFontHeight, false};
    const GridSize letters = dc.TextSize(std::string_view(kPrintAlphabet, kPrintLetters), m_PrintFont);
    m_nPrintCharWidth = letters.width / static_cast<int>(kPrintLetters);
    m_nPrintRowHeight = letters.height + kLineGap;
    m_PrintPage = page;
}

int CGridCtrl::PrintRowsPerPage() const {
    if (m_nPrintRowHeight <= 0) return 1;
    // Header, heading and footer take a line each, and each heading row takes one.
    return std::max(m_PrintPage.height / m_nPrintRowHeight - 3 - m_nFixedRows, 1);
}

int CGridCtrl::PrintPageCount() const {
    const int rows = m_nRows - m_nFixedRows, perPage = PrintRowsPerPage();
    return (rows + perPage - 1) / perPage;
}

void CGridCtrl::PrintPage(CDC& dc, int page) {
    const int perPage = PrintRowsPerPage();
    const int first = m_nFixedRows + (page - 1) * perPage;
    if (page < 1 || first >= m_nRows) return;
    const int last = std::min(first + perPage, m_nRows) - 1;
    PrintHeader(dc, page);
    PrintColumnHeadings(dc);
    PrintRowHeadings(dc, first, last);
    PrintCells(dc, first, last);
    PrintFooter(dc, page);
}

void CGridCtrl::PrintEnd() {
    m_PrintFont = {};
    m_nPrintCharWidth = m_nPrintRowHeight = 0;
}

void CGridCtrl::PrintHeader(CDC& dc, int) {
    const int height = m_nPrintRowHeight;
    dc.DrawText(m_sPrintHeader, {0, 0, m_PrintPage.width, height}, kTextCenter, m_PrintFont, m_crWindowText);
    dc.DrawText(m_sPrintHeading, {0, height, m_PrintPage.width, 2 * height}, kTextLeft, m_PrintFont,
                m_crWindowText);
}

void CGridCtrl::PrintColumnHeadings(CDC& dc) {
    for (int row = 0; row < m_nFixedRows; ++row) {
        PrintRow(dc, row, 0, m_nCols - 1, (2 + row) * m_nPrintRowHeight);
    }
}

void CGridCtrl::PrintRowHeadings(CDC& dc, int firstRow, int lastRow) {
    for (int row = firstRow; row <= lastRow; ++row) {
        PrintRow(dc, row, 0, m_nFixedCols - 1, (2 + m_nFixedRows + row - firstRow) * m_nPrintRowHeight);
    }
}

void CGridCtrl::PrintCells(CDC& dc, int firstRow, int lastRow) {
    for (int row = firstRow; row <= lastRow; ++row) {
        PrintRow(dc, row, m_nFixedCols, m_nCols - 1, (2 + m_nFixedRows + row - firstRow) * m_nPrintRowHeight);
    }
}

void CGridCtrl::PrintFooter(CDC& dc, int) {
    const GridRect line{0, m_PrintPage.height - m_nPrintRowHeight, m_PrintPage.width, m_PrintPage.height};
    dc.DrawText(m_sPrintFooter, line, kTextCenter, m_PrintFont, m_crWindowText);
}

void CGridCtrl::PrintRow(CDC& dc, int row, int firstColumn, int lastColumn, int top) {
    // A column is as wide on paper, in characters, as it is on the screen.
    const GridSize screen =
        gridplatform::MeasureText(std::string(kPrintAlphabet, kPrintLetters), FontRecord{});
    const int screenWidth = std::max(screen.width / static_cast<int>(kPrintLetters), 1);
    int left = 0;
    for (int column = 0; column <= lastColumn; ++column) {
        const int width = GetColumnWidth(column) * m_nPrintCharWidth / screenWidth;
        if (column >= firstColumn && width > 0) {
            dc.DrawText(GetCellText(row, column), {left, top, left + width, top + m_nPrintRowHeight},
                        GetCell(row, column)->GetFormat() | kTextSingleLine, m_PrintFont, m_crWindowText);
        }
        left += width;
    }
}

}  // namespace lumerin
