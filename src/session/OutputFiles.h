// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace lumerin {

class CPdfExport;

// How report files are named, opened in viewers, and how a failed start is worded. All output is written
// beside the project and shares its base name; a run replaces the earlier file of the same table and format.

// While an object exists, the file of each press gets the path that a function makes of the one beside the
// project. One object at a time; the module, whose files are found by their names, has none.
class OutputNaming {
  public:
    using Namer = std::function<std::string(const std::string& path)>;
    explicit OutputNaming(Namer namer);
    OutputNaming(const OutputNaming&) = delete;
    OutputNaming& operator=(const OutputNaming&) = delete;
    ~OutputNaming();

  private:
    Namer m_namer;
};

// The file name of a table (TableId) in a kind (ReportFormat or kFormatEnvelopes), without the project's part
// of it.
std::string TableFileName(unsigned table, unsigned kind);

// Sets g_OutputFilePath for a table (TableId) and a kind (ReportFormat or kFormatEnvelopes). An invalid
// table or kind shows its message and leaves the earlier path.
void BuildOutputFilePath(unsigned table, unsigned kind);

// Starts the viewer on g_OutputFilePath: the spreadsheet program for the spreadsheet format, otherwise
// whatever the machine associates with the file's type. A failed start is reported in a message box.
void ShowOutputFile(int format);

// Starts the spreadsheet program on a workbook and reports a failed start.
void OpenInSpreadsheet(const std::string& path);

// Writes the description file of a grid and starts the table image builder on it, without waiting for it. An
// empty grid is refused with a message; a builder that cannot be started is not noticed.
void StartTableBuilder(CPdfExport& table);

// One message box for a shell code of 32 or less.
void ReportViewerResult(int code);

// The key of the text viewer's settings, which the product only reads.
inline constexpr const char* kTextViewerKey = "SOFTWARE\\Microsoft\\Notepad";

// The text viewer's page settings, as the report dialog keeps them. Values that cannot be read are unchanged.
struct ViewerSettings {
    int m_nMarginLeft = 0, m_nMarginRight = 0, m_nMarginTop = 0, m_nMarginBottom = 0, m_nPointSize = 0;
    std::string m_sTrailer, m_sHeader;
};
void ReadViewerSettings(ViewerSettings& settings);

// A viewer setting as decimal text; empty when there is no such value.
std::string ReadViewerValue(const char* name);

// The text viewer's font size in points; 0 when there is no such setting.
int ViewerFontSize();

// 0 portrait, 1 landscape, anything else leaves it.
void SetDefaultPrinterOrientation(int mode);

}  // namespace lumerin
