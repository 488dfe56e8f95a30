// SPDX-License-Identifier: MIT
#include "writers/WorkbookFrame.h"

#include "tables/Catalogue.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr std::string_view kHeadOpening =
    "<?xml version=\"1.0\"?>\n"
    "<?mso-application progid=\"Excel.Sheet\"?>\n"
    "<Workbook xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
    " xmlns:o=\"urn:schemas-microsoft-com:office:office\"\n"
    " xmlns:x=\"urn:schemas-microsoft-com:office:excel\"\n"
    " xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
    " xmlns:html=\"http://www.w3.org/TR/REC-html40\">\n"
    " <DocumentProperties xmlns=\"urn:schemas-microsoft-com:office:office\">\n"
    "  <LastAuthor>ovrelle</LastAuthor>\n";

// The time of the last save is that of the workbook which the style sheet was made with.
constexpr std::string_view kHeadRest =
    "  <LastSaved>2008-10-02T13:20:01Z</LastSaved>\n"
    "  <Version>12.00</Version>\n"
    " </DocumentProperties>\n"
    " <ExcelWorkbook xmlns=\"urn:schemas-microsoft-com:office:excel\">\n"
    "  <WindowHeight>9405</WindowHeight>\n"
    "  <WindowWidth>17055</WindowWidth>\n"
    "  <WindowTopX>120</WindowTopX>\n"
    "  <WindowTopY>90</WindowTopY>\n"
    "  <ProtectStructure>False</ProtectStructure>\n"
    "  <ProtectWindows>False</ProtectWindows>\n"
    " </ExcelWorkbook>\n"
    " <Styles>\n";

constexpr std::string_view kEndBeforeFooter =
    "</Table>\n"
    "<WorksheetOptions xmlns=\"urn:schemas-microsoft-com:office:excel\">\n"
    "<PageSetup>\n"
    "<Layout x:Orientation=\"Landscape\"/><Header x:Margin=\"0.3\"/>\n"
    "<Footer x:Margin=\"0.3\" x:Data=\"&amp;L";

constexpr std::string_view kEndAfterFooter =
    "&amp;RPage &amp;P of &amp;N\"/>\n"
    "<PageMargins x:Bottom=\"0.75\" x:Left=\"0.7\" x:Right=\"0.7\" x:Top=\"0.75\"/>\n"
    "</PageSetup>\n"
    "<Print>\n"
    "<ValidPrinterInfo/>\n"
    "<HorizontalResolution>600</HorizontalResolution>\n"
    "<VerticalResolution>600</VerticalResolution>\n"
    "</Print>\n"
    "<Selected/>\n"
    "<Panes>\n"
    "<Pane>\n"
    "<Number>3</Number>\n"
    "<ActiveRow>0</ActiveRow>\n"
    "<ActiveCol>1</ActiveCol>\n"
    "</Pane>\n"
    "</Panes>\n"
    "<ProtectObjects>False</ProtectObjects>\n"
    "<ProtectScenarios>False</ProtectScenarios>\n"
    "</WorksheetOptions>\n"
    "</Worksheet>\n";

// A style with Calibri of the Swiss family. An empty horizontal and vertical text means no alignment, size 0
// no font, a null format no number format.
struct Style {
    const char* id;
    const char* horizontal;
    const char* vertical;
    int size;
    const char* color;
    bool bold;
    const char* format;
    bool gridOnly;  // for a dialog's grid alone
};
constexpr const char* kBlack = "#000000";
constexpr const char* kBlue = "#3333FF";
constexpr Style kStyles[] = {
    {"s57", "", "", 8, kBlue, false, nullptr, false},
    {"s58", "", "", 11, kBlack, true, "@", false},  // headings inside a worksheet
    {"s59", "", "", 9, kBlack, false, "@", false},
    {"s60", "Right", "Bottom", 0, "", false, "0", false},     // whole numbers and texts in rows
    {"s61", "Right", "Bottom", 0, "", false, "0.00", false},  // decimals
    {"s62", "Right", "Bottom", 0, "", false, "0.00", false},  // decimals
    {"s63", "Right", "Bottom", 0, "", false, "Fixed", false},
    {"s64", "Right", "Bottom", 0, "", false, nullptr, false},
    {"s65", "Right", "Bottom", 9, kBlue, false, "@", false},     // column headings
    {"s66", "Center", "Bottom", 14, kBlack, false, "@", false},  // subtitles of the pile head table
    {"s67", "Right", "Bottom", 8, kBlack, false, "0.0000E+00", false},
    {"s68", "Right", "Bottom", 0, "", false, "0.000", true},
    {"s69", "Right", "Bottom", 0, "", false, "0.0000", true},
    {"s70", "Right", "Bottom", 0, "", false, "0.00000", true},
    {"s71", "Right", "Bottom", 0, "", false, "0.000000", true},
    {"s72", "Right", "Bottom", 0, "", false, "0.0000000", true},
    {"s73", "Right", "Bottom", 0, "", false, "0.00000000", true},
    {"s74", "Right", "Bottom", 9, kBlack, false, "@", true},
    {"s75", "Right", "Bottom", 0, "", false, "0.0", true},
    {"s86", "", "", 14, kBlack, true, nullptr, false},          // substructure headings
    {"s87", "Center", "Center", 19, kBlack, true, "@", false},  // worksheet titles
};

// The one style with a name, with borders, interior and protection.
constexpr std::string_view kDefaultStyle =
    "  <Style ss:ID=\"Default\" ss:Name=\"Normal\">\n"
    "  <Alignment ss:Vertical=\"Bottom\"/>\n"
    "  <Borders/>\n"
    "  <Font ss:FontName=\"Calibri\" x:Family=\"Swiss\" ss:Size=\"8\" ss:Color=\"#000000\"/>\n"
    "  <Interior/>\n"
    "  <NumberFormat/>\n"
    "  <Protection/>\n"
    "  </Style>\n";

// The first styles are indented, the later ones are not; Excel does not mind.
struct Indent {
    const char* style;
    const char* child;
};
Indent IndentOf(std::string_view id) {
    if (id == "s57") return {"  ", "  "};
    if (id == "s58" || id == "s59") return {"  ", ""};
    return {"", ""};
}

void AppendFont(std::string& out, const Style& style) {
    out += "<Font ss:FontName=\"Calibri\" x:Family=\"Swiss\" ss:Size=\"";
    AppendInt(out, style.size);
    out.append("\" ss:Color=\"").append(style.color).append("\"");
    if (style.bold) out += " ss:Bold=\"1\"";
    out += "/>";
}

void AppendStyle(std::string& out, const Style& style) {
    const Indent indent = IndentOf(style.id);
    out.append(indent.style).append("<Style ss:ID=\"").append(style.id).append("\">\n");
    if (*style.vertical != '\0') {
        out.append(indent.child).append("<Alignment ss:Horizontal=\"").append(style.horizontal);
        out.append("\" ss:Vertical=\"").append(style.vertical).append("\"/>\n");
    }
    if (style.size > 0) {
        out += indent.child;
        AppendFont(out, style);
        // s86 ends on the line of its font.
        if (std::string_view(style.id) != "s86") out += "\n";
    }
    if (style.format != nullptr) {
        out.append(indent.child).append("<NumberFormat ss:Format=\"").append(style.format).append("\"/>\n");
    }
    out.append(indent.style).append("</Style>\n");
}

void AppendTwoDigits(std::string& out, int value) {
    if (value < 10) out += '0';
    AppendInt(out, value);
}

// Month, day and year of the century, then the time of day, as the runtime stamps them; not an ISO time.
void AppendStamp(std::string& out, const LocalTime& now) {
    AppendTwoDigits(out, now.month);
    out += '/';
    AppendTwoDigits(out, now.day);
    out += '/';
    AppendTwoDigits(out, now.year % 100);
    out += ' ';
    AppendTwoDigits(out, now.hour);
    out += ':';
    AppendTwoDigits(out, now.minute);
    out += ':';
    AppendTwoDigits(out, now.second);
}

}  // namespace

std::string WorkbookHead(bool gridStyles, const LocalTime& now) {
    std::string out(kHeadOpening);
    out += "  <Created>";
    AppendStamp(out, now);
    out += "</Created>\n";
    out.append(kHeadRest).append(kDefaultStyle);
    for (const Style& style : kStyles) {
        if (gridStyles || !style.gridOnly) AppendStyle(out, style);
    }
    return out += "</Styles>\n";
}

std::string WorksheetEndWith(std::string_view footerText) {
    std::string out(kEndBeforeFooter);
    return out.append(footerText).append(kEndAfterFooter);
}

std::string WorksheetEnd(const ReportOptions& options) {
    return WorksheetEndWith(FooterText(options));
}

int WriteWorkbook(const Report& report, TableId table, StoredStream& out, bool embedded,
                  const std::function<void()>& worksheets) {
    if (report.data.IsPierless() || !report.enabled[table]) return -1;
    if (!embedded) out << WorkbookHead(false, report.options.now());
    worksheets();
    if (!embedded) out << kWorkbookEnd;
    return 1;
}

}  // namespace lumerin
