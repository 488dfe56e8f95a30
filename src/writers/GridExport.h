// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "grid/GridCtrl.h"

namespace lumerin {

// Codes of a column in the grid's worksheet: how its texts become cells. 2 to 8 are decimals, shown with as
// many places as the code; any other code leaves the text as it is.
enum GridExportType {
    kExportText = 0,
    kExportInteger = 1,
    kExportReal2 = 2,
    kExportReal6 = 6,
    kExportReal8 = 8
};

// How a dialog's grid becomes a worksheet.
struct GridSheet {
    std::string title;   // the worksheet and, without its blanks, the file are named for it, too
    int headerRows = 0;  // the first rows, which stay texts
    std::span<const int> columnTypes;  // the code of each column from the left; further columns are texts
    double widthScale = 1.0;           // of a column in the worksheet to one in the grid, in pixels
};

// Writes a dialog's grid as it is into a workbook of one worksheet beside the project. Returns its path,
// whether the file system took it or not.
std::string ExportGrid(const std::string& inputFile, const GridSheet& sheet, const CGridCtrl& grid);

}  // namespace lumerin
