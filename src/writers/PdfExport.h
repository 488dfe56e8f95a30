// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "grid/GridCtrl.h"
#include "text/Messages.h"
#include "text/StoredStream.h"

namespace lumerin {

// One transfer of a dialog's grid to the table image builder, a program beside the host that reads a
// description file and makes the PDF. The grid must outlive the object.
class CPdfExport {
  public:
    CPdfExport(const CGridCtrl& grid, const std::string& descriptionPath, const std::string& pdfPath);

    // Writes the description file. False: the grid is empty, which was reported, and nothing was written.
    bool Write(Messages& messages);
    const std::string& DescriptionPath() const { return m_sDescriptionPath; }

    std::string m_sTitle = "Tarnsway Data";
    std::string m_sAuthor = "Tarnsway";
    std::string m_sSubject = "Data export from Tarnsway";
    std::string m_sKeywords = "Tarnsway, Data, Analysis, Export";
    bool m_bLandscape = false;
    bool m_bRepeatHeader = true;
    bool m_bLeftJustify = false;
    std::string m_sColumnWidth = "75";
    int m_nHeaderRows = 1;
    std::string m_sImagePath;
    std::string m_sImageCaption;
    bool m_bAllowImageRescale = true;
    std::vector<int> m_pColumnTypes;  // one a grid column, 2 unless set
    int m_nRowPadding = 3;
    int m_nColumnPadding = 10;
    int m_nTitleFontSize = 16;
    int m_nCaptionFontSize = 14;
    int m_nFooterFontSize = 7;
    int m_nTableHeaderFontSize = 7;
    int m_nTableDataFontSize = 7;
    int m_nPageMargin = 30;
    int m_nDataRows = 0;  // the grid's rows after the heading, counted when the file is written
    int m_nExtraLines = 0;
    std::string m_sChunkSize = "auto";
    std::vector<std::string> m_ExtraLines{""};  // the first m_nExtraLines of them are written
    std::vector<std::string> m_CellImages;      // row by row; empty: no cell has an image

  private:
    void WriteKeys(StoredStream& out) const;
    std::string RowText(int row) const;
    std::string ColumnTypes() const;

    const CGridCtrl& m_grid;
    int m_nRows, m_nColumns;
    std::string m_sDescriptionPath, m_sPdfPath;
};

}  // namespace lumerin
