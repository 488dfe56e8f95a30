#pragma once

#include <span>
#include <string>

#include "grid/GridCtrl.h"

// Codes of a column in the grid's worksheet: how its texts become cells. 2 to 8 are decimals of which as many
// show as the code says; any other code leaves the text as it is.
enum GridExportType {
    kExportText = 0,
    kExportInteger = 1,
    kExportReal2 = 2,
    kExportReal6 = 6,
    kExportReal8 = 8
};

// Writes a dialog's grid as it stands into a workbook of one worksheet beside the project and opens it. The
// file and the worksheet are called by `name` without its blanks. The first `headerRows` rows stay texts;
// `columnTypes` has the code of each column from the left, further columns are texts. A grid column's width
// in pixels times `widthScale` is its width in the worksheet.
void ExportGrid(const std::string& name, const std::string& title, int headerRows, int reserved,
                std::span<const int> columnTypes, const CGridCtrl& grid, double widthScale);
