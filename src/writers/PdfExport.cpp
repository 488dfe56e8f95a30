// SPDX-License-Identifier: MIT
#include "writers/PdfExport.h"

#include "framework/Index.h"
#include "text/Format.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

constexpr const char* kEmptyGrid = "Error: Empty Grid - Either the number of rows or columns is 0.";

const char* Word(bool value) {
    return value ? "true" : "false";
}

}  // namespace

CPdfExport::CPdfExport(const CGridCtrl& grid, const std::string& descriptionPath, const std::string& pdfPath)
    : m_pColumnTypes(Index(grid.GetColumnCount()), 2),
      m_grid(grid),
      m_nRows(grid.GetRowCount()),
      m_nColumns(grid.GetColumnCount()),
      m_sDescriptionPath(descriptionPath),
      m_sPdfPath(pdfPath) {}

std::string CPdfExport::ColumnTypes() const {
    std::string types;
    for (const int type : m_pColumnTypes) {
        if (!types.empty()) types += ',';
        types += FormatInt(type);
    }
    return types;
}

// Texts are written without quotes: a text with a comma is read as two cells.
std::string CPdfExport::RowText(int row) const {
    std::string text;
    for (int column = 0; column < m_nColumns; ++column) {
        if (column > 0) text += ',';
        text += m_grid.GetCellText(row, column);
        const std::size_t cell = Index(row) * Index(m_nColumns) + Index(column);
        if (cell < m_CellImages.size() && !m_CellImages[cell].empty())
            text += "{#" + PathAsText(m_CellImages[cell]) + "}";
    }
    return text;
}

void CPdfExport::WriteKeys(StoredStream& out) const {
    const std::pair<const char*, std::string> keys[] = {
        {"[title]", m_sTitle},
        {"[author]", m_sAuthor},
        {"[subject]", m_sSubject},
        {"[keywords]", m_sKeywords},
        {"[landscape]", Word(m_bLandscape)},
        {"[repeatHeader]", Word(m_bRepeatHeader)},
        {"[leftJustify]", Word(m_bLeftJustify)},
        {"[columnWidth]", m_sColumnWidth},
        {"[numberOfHeaderRow]", FormatInt(m_nHeaderRows)},
        {"[imagePath]", PathAsText(m_sImagePath)},
        {"[imageCaption]", m_sImageCaption},
        {"[allowImageRescale]", Word(m_bAllowImageRescale)},
        {"[pdfSavePath]", PathAsText(m_sPdfPath)},
        {"[nDataTypesForColumns]", ColumnTypes()},
        {"[rowPadding]", FormatInt(m_nRowPadding)},
        {"[columnPadding]", FormatInt(m_nColumnPadding)},
        {"[titleFontSize]", FormatInt(m_nTitleFontSize)},
        {"[captionFontSize]", FormatInt(m_nCaptionFontSize)},
        {"[footerFontSize]", FormatInt(m_nFooterFontSize)},
        {"[tableHeaderFontSize]", FormatInt(m_nTableHeaderFontSize)},
        {"[tableDataFontSize]", FormatInt(m_nTableDataFontSize)},
        {"[pageMargin]", FormatInt(m_nPageMargin)},
        {"[numberOfDataRows]", FormatInt(m_nDataRows)},
        {"[iChunkSize]", m_sChunkSize},
    };
    for (const auto& [key, value] : keys) out << key << value << "\n";
}

bool CPdfExport::Write(Messages& messages) {
    // Each of the two counts is reported, so a grid with neither is reported twice.
    if (m_nRows == 0) messages.Show(kEmptyGrid);
    if (m_nColumns == 0) messages.Show(kEmptyGrid);
    if (m_nRows == 0 || m_nColumns == 0) return false;
    m_nDataRows = m_nRows - m_nHeaderRows;
    StoredStream out(m_sDescriptionPath);
    WriteKeys(out);
    for (int row = 0; row < m_nRows; ++row) {
        if (row > 0) out << "\n";
        out << RowText(row);
    }
    for (int i = 0; i < m_nExtraLines && i < static_cast<int>(m_ExtraLines.size()); ++i) {
        out << m_ExtraLines[Index(i)] << "\n";
    }
    out.Close();
    m_ExtraLines.clear();
    m_CellImages.clear();
    return true;
}

}  // namespace lumerin
