// SPDX-License-Identifier: MIT
#include "writers/GridExport.h"

#include "framework/Index.h"
#include "grid/CellNumber.h"
#include "tables/Words.h"
#include "text/Clock.h"
#include "text/Format.h"
#include "text/StoredStream.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

constexpr std::size_t kLongestSheetName = 31;  // Excel refuses a longer one
constexpr int kValueDecimals = 10;             // the style decides how many of them are shown
// The margin column's cell of the title row holds this many blanks.
constexpr std::size_t kMarginBlanks = 44;

struct CellForm {
    const char* style;
    const char* type;
};

constexpr CellForm kHeadingForm{"s65", "String"};
constexpr CellForm kTextForm{"s74", "String"};
// By type code, from 1.
constexpr CellForm kNumberForms[] = {{"s60", "Number"}, {"s61", "Number"}, {"s68", "Number"},
                                     {"s69", "Number"}, {"s70", "Number"}, {"s71", "Number"},
                                     {"s72", "Number"}, {"s73", "Number"}};

bool IsNumberType(int type) {
    return type >= kExportInteger && type <= kExportReal8;
}

std::string CellMarkup(const CellForm& form, const std::string& value) {
    return std::string("<Cell ss:StyleID=\"") + form.style + "\"><Data ss:Type=\"" + form.type + "\">" +
           value + "</Data></Cell>\n";
}

std::string CellOf(const std::string& text, bool heading, int type) {
    if (heading) return CellMarkup(kHeadingForm, text);
    if (!IsNumberType(type)) return CellMarkup(kTextForm, text);
    const CellForm& form = kNumberForms[type - kExportInteger];
    if (type == kExportInteger) return CellMarkup(form, FormatInt(ReadCellInt(text)));
    return CellMarkup(form, FormatFixed(ReadCellDouble(text), kValueDecimals));
}

void WriteSheetHead(StoredStream& out, const std::string& name, const GridSheet& sheet,
                    const CGridCtrl& grid) {
    const int rows = grid.GetRowCount(), columns = grid.GetColumnCount();
    out << "<Worksheet ss:Name=\"" << name.substr(0, kLongestSheetName) << "\">\n";
    // One column more for the margin, two rows more for the title and the row below it.
    out << "<Table ss:ExpandedColumnCount=\"" << FormatInt(columns + 1) << "\" ss:ExpandedRowCount=\""
        << FormatInt(rows + 2) << "\" x:FullColumns=\"1\"\nx:FullRows=\"1\" ss:DefaultRowHeight=\"15\">\n";
    for (int i = 0; i < columns; ++i) {
        out << "  <Column ss:Index=\"" << FormatInt(i + 2) << "\"  ss:Width=\""
            << FormatFixed(grid.GetColumnWidth(i) * sheet.widthScale, 6) << "\"/>\n";
    }
    out << "  <Row ss:Height=\"41\">\n    <Cell><Data ss:Type=\"String\">" << Blanks(kMarginBlanks)
        << "</Data></Cell>\n    <Cell ss:MergeAcross=\"" << FormatInt(columns - 1)
        << "\"  ss:StyleID=\"s87\"><Data ss:Type=\"String\">" << sheet.title << "</Data></Cell>\n  </Row>\n";
    out << "<Row></Row>\n";
}

std::string WorkbookPath(const std::string& inputFile, const std::string& name) {
    std::string path = inputFile;
    const std::size_t dot = path.rfind('.');
    if (dot != std::string::npos) path.erase(dot);
    return path + g_NameSeparator + name + g_ExtensionSpreadsheet;
}

}  // namespace

std::string ExportGrid(const std::string& inputFile, const GridSheet& sheet, const CGridCtrl& grid) {
    const std::string cleaned = RemoveBlanks(sheet.title);
    std::string path = WorkbookPath(inputFile, cleaned);
    StoredStream out(path);
    out << WorkbookHead(true, DocumentTime());
    WriteSheetHead(out, cleaned, sheet, grid);
    for (int row = 0; row < grid.GetRowCount(); ++row) {
        out << "    <Row>"
            << "<Cell></Cell>";
        for (int column = 0; column < grid.GetColumnCount(); ++column) {
            const auto at = Index(column);
            const int type = at < sheet.columnTypes.size() ? sheet.columnTypes[at] : int{kExportText};
            out << CellOf(grid.GetCellText(row, column), row < sheet.headerRows, type);
        }
        out << "  </Row>\n";
    }
    // The words are at the place of a report's footer; a grid has none and they stay in the file.
    out << WorksheetEndWith(" Need Footer ") << kWorkbookEnd;
    out.Close();
    return path;
}

}  // namespace lumerin
