// SPDX-License-Identifier: MIT
// The worksheet "Coords" that accompanies a cap table of its own workbook: the positions of its rows along
// the cap.

#include <string>
#include <string_view>
#include <vector>

#include "text/Format.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

constexpr std::string_view kHeadBeforeRows =
    "<Worksheet ss:Name=\"Coords\">\n"
    "<Table ss:ExpandedColumnCount=\"1\" ss:ExpandedRowCount=\"";
constexpr std::string_view kHeadAfterRows =
    "\" x:FullColumns=\"1\"\n"
    "x:FullRows=\"1\" DefaultColumnWidth=\"42\" ss:DefaultRowHeight=\"11.25\">\n"
    "<Column ss:AutoFitWidth=\"0\" ss:Width=\"113.25\"/>\n";
constexpr std::string_view kEnd =
    "</Table>\n"
    "<WorksheetOptions xmlns=\"urn:schemas-microsoft-com:office:excel\">\n"
    "<TopRowVisible>1</TopRowVisible>\n"
    "<Panes>\n"
    "<Pane>\n"
    "<Number>3</Number>\n"
    "<ActiveRow>3</ActiveRow>\n"
    "<ActiveCol>1</ActiveCol>\n"
    "</Pane>\n"
    "</Panes>\n"
    "<ProtectObjects>False</ProtectObjects>\n"
    "<ProtectScenarios>False</ProtectScenarios>\n"
    "</WorksheetOptions>\n"
    "</Worksheet>\n";

constexpr std::string_view kRow = "<Row>\n";
constexpr std::string_view kRowEnd = "</Row>\n";
constexpr std::string_view kText = "<Cell><Data ss:Type=\"String\">";
constexpr std::string_view kNumber = "<Cell  ss:StyleID=\"s62\"><Data ss:Type=\"Number\">";
constexpr std::string_view kCellEnd = "</Data></Cell>\n";

// Rows of a pier beside its values: title, unit, an empty row, all twice, and two empty rows between.
constexpr std::size_t kFixedRows = 8;
constexpr std::size_t kRowsBetweenPiers = 2;
constexpr double kInchesPerFoot = 12.0;

void AppendEmptyRows(std::string& out, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) out.append(kRow).append(kRowEnd);
}

// The words for the caps that have coordinates; null for another structure type.
const char* CapWords(StructureType structureType) {
    if (structureType == kTypePier) return "PierCap X Coordinates";
    if (structureType == kTypePileBent) return "BentCap X Coordinates";
    return nullptr;
}

// The cell of a pier's title rows. With several piers a pier without a cap shows the `text` of the pier
// before it; a single one has no cell.
std::string TitleCell(const CDataSet& data, std::size_t pier, std::string& text) {
    const bool several = data.m_Piers.size() > 1;
    const char* words = CapWords(data.m_Piers[pier].m_nStructureType);
    if (words == nullptr && !several) return {};
    if (words != nullptr) {
        text = words;
        if (several) text += ": Pier " + FormatInt(static_cast<long long>(pier) + 1);
    }
    return std::string(kText).append(text).append(kCellEnd);
}

void AppendBlock(std::string& out, const CPier& pier, const std::vector<double>& points,
                 std::string_view titleCell, bool metres) {
    out.append(kRow).append(titleCell).append(kRowEnd);
    out.append(kRow).append(kText).append(metres ? "(m)" : "(ft)").append(kCellEnd).append(kRowEnd);
    AppendEmptyRows(out, 1);
    for (const double x : points) {
        out.append(kRow).append(kNumber);
        // Feet count from the cap's start, metres are the model's own: readers of the sheet rely on it.
        AppendFixed(out, metres ? x : (x - pier.m_dLocationX) / kInchesPerFoot, 2);
        out.append(kCellEnd).append(kRowEnd);
    }
}

const std::vector<double>& PointsOf(const PierResults& results, TableId table) {
    return table == kTableCapShear ? results.shearPointX : results.momentPointX;
}

}  // namespace

std::string CoordsSheet(const Report& report, TableId table) {
    const CDataSet& data = report.data;
    std::size_t rows = 0;
    for (const PierResults& results : report.results.piers)
        rows += kFixedRows + 2 * PointsOf(results, table).size();
    if (!data.IsPierless()) rows += kRowsBetweenPiers * (data.m_Piers.size() - 1);

    std::string out(kHeadBeforeRows);
    AppendInt(out, static_cast<long long>(rows));
    out += kHeadAfterRows;
    std::string title;
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        const std::vector<double>& points = PointsOf(report.results.piers[p], table);
        const std::string cell = TitleCell(data, p, title);
        if (p > 0) AppendEmptyRows(out, kRowsBetweenPiers);
        AppendBlock(out, data.m_Piers[p], points, cell, data.m_nUnits != 0);
        AppendEmptyRows(out, 2);
        AppendBlock(out, data.m_Piers[p], points, cell, data.m_nUnits != 0);
    }
    return out.append(kEnd);
}

}  // namespace lumerin
