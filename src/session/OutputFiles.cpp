// SPDX-License-Identifier: MIT
#include "session/OutputFiles.h"

#include <charconv>
#include <utility>

#include "framework/Backend.h"
#include "session/Constants.h"
#include "session/ReportState.h"
#include "session/Session.h"
#include "writers/PdfExport.h"

namespace lumerin {

namespace {

struct ViewerFailure {
    int code;
    const char* text;
};

// The shell's codes up to 32; \xAE is the registered sign of the Western code page.
constexpr ViewerFailure kViewerFailures[] = {
    {2, "The application specified to open the file was not found on this machine."},
    {3, "The specified path was not found."},
    {5, "The operating system denied access to the specified file."},
    {8, "There was not enough memory to complete the operation."},
    {11, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
    {26, "A sharing violation occurred."},
    {27, "The file name association is incomplete or invalid."},
    {28, "The DDE transaction could not be completed because the request timed out."},
    {29, "The DDE transaction failed."},
    {30, "The DDE transaction could not be completed because other DDE transactions were being processed."},
    {31, "There is no application associated with the given file name extension."},
    {32, "The specified dynamic-link library was not found."},
};

// The table image builder, a program beside the host.
constexpr const char* kBuilderName = "Jarlimex.exe";

const OutputNaming::Namer* g_namer = nullptr;

constexpr int kLastFailureCode = 32;
constexpr unsigned kTextCapacity = 4;  // the size that the read of the number before it left

}  // namespace

OutputNaming::OutputNaming(Namer namer) : m_namer(std::move(namer)) {
    g_namer = &m_namer;
}

OutputNaming::~OutputNaming() {
    g_namer = nullptr;
}

std::string TableFileName(unsigned table, unsigned kind) {
    const char* name = kind == kFormatEnvelopes ? g_EnvelopesName : g_TableFileNames[table];
    const char* extension = g_ExtensionText;
    if (kind == kFormatSpreadsheet) extension = g_ExtensionSpreadsheet;
    if (kind == kFormatPdf) extension = g_ExtensionPdf;
    return std::string(name) + extension;
}

void BuildOutputFilePath(unsigned table, unsigned kind) {
    if (table >= static_cast<unsigned>(kTableCount)) {
        AfxMessageBox("Invalid table type.  Table cannot be generated.");
        return;
    }
    if (kind > kFormatEnvelopes) {
        AfxMessageBox("Invalid file type selected.  Table cannot be generated.");
        return;
    }
    g_OutputFilePath = g_ProjectBasePath + g_NameSeparator + TableFileName(table, kind);
    if (g_namer != nullptr) g_OutputFilePath = (*g_namer)(g_OutputFilePath);
}

void ShowOutputFile(int format) {
    const std::string quoted = "\"" + g_OutputFilePath + "\"";
    ReportViewerResult(format == kFormatSpreadsheet ? services::StartProgram("Excel", quoted)
                                                    : services::ShellOpen("", quoted, ""));
}

void OpenInSpreadsheet(const std::string& path) {
    ReportViewerResult(services::StartProgram("Excel", '"' + path + '"'));
}

void StartTableBuilder(CPdfExport& table) {
    BoxMessages messages;
    if (!table.Write(messages)) return;
    services::ShellOpen("", HostProgramFolder() + kBuilderName, '"' + table.DescriptionPath() + '"');
}

void ReportViewerResult(int code) {
    if (code > kLastFailureCode) return;
    for (const ViewerFailure& failure : kViewerFailures) {
        if (failure.code == code) {
            AfxMessageBox(failure.text);
            return;
        }
    }
    AfxMessageBox("");
}

void ReadViewerSettings(ViewerSettings& settings) {
    services::ReadUserText(kTextViewerKey, "szHeader", kTextCapacity, settings.m_sHeader);
    services::ReadUserText(kTextViewerKey, "szTrailer", kTextCapacity, settings.m_sTrailer);
    services::ReadUserNumber(kTextViewerKey, "iMarginLeft", settings.m_nMarginLeft);
    services::ReadUserNumber(kTextViewerKey, "iMarginRight", settings.m_nMarginRight);
    services::ReadUserNumber(kTextViewerKey, "iMarginTop", settings.m_nMarginTop);
    services::ReadUserNumber(kTextViewerKey, "iMarginBottom", settings.m_nMarginBottom);
    services::ReadUserNumber(kTextViewerKey, "iPointSize", settings.m_nPointSize);
}

std::string ReadViewerValue(const char* name) {
    int value = 0;
    return services::ReadUserNumber(kTextViewerKey, name, value) ? std::to_string(value) : "";
}

int ViewerFontSize() {
    const std::string tenths = ReadViewerValue("iPointSize");
    int value = 0;
    std::from_chars(tenths.data(), tenths.data() + tenths.size(), value);
    return value / 10;
}

void SetDefaultPrinterOrientation(int mode) {
    if (mode == 0 || mode == 1) services::SetPrinterLandscape(mode == 1);
}

}  // namespace lumerin
