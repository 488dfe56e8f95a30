// SPDX-License-Identifier: MIT
#include "export/Workbook.h"

#include <xlsxwriter.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "export/ByteSink.h"
#include "export/Cells.h"
#include "export/LibraryPaths.h"
#include "export/TableWriter.h"
#include "export/XlsxLibrary.h"
#include "framework/NativePath.h"

namespace lumerin {

namespace {

constexpr lxw_color_t kHeadFill = 0xDDE5EE, kUnitColor = 0x555555, kLine = 0x8899AA;
constexpr lxw_color_t kRed = 0x9C0006, kRedFill = 0xFFC7CE, kGreen = 0x006100, kGreenFill = 0xC6EFCE;
constexpr double kTitleSize = 14.0;

std::time_t SecondsOf(const LocalTime& time) {
    using std::chrono::sys_days, std::chrono::year, std::chrono::month, std::chrono::day;
    const sys_days date =
        year(time.year) / month(static_cast<unsigned>(time.month)) / day(static_cast<unsigned>(time.day));
    const std::chrono::seconds seconds = date.time_since_epoch() + std::chrono::hours(time.hour) +
                                         std::chrono::minutes(time.minute) +
                                         std::chrono::seconds(time.second);
    return seconds.count();
}

// The workbook as the library writes it.
std::string StoredIn(const std::string& folder) {
    return folder + services::FolderSeparator() + "workbook.xlsx";
}

void FillWith(lxw_format* format, lxw_color_t color) {
    Xlsx().format_set_pattern(format, LXW_PATTERN_SOLID);
    Xlsx().format_set_bg_color(format, color);
}

}  // namespace

Workbook::Workbook(const std::string& path, const LocalTime& created) : m_path(path), m_created(created) {
    // Whether the file can be written is known before any row is.
    FileSink probe(path);
    try {
        m_folderName = m_folder.emplace().Path();
    } catch (const std::runtime_error& fault) {
        throw ExportError(fault.what());
    }
    m_libraryFolder = FolderForFopen(m_folderName);
    if (m_libraryFolder.empty()) {
        throw ExportError(
            "workbooks need a folder for temporary files whose name has letters of the code page alone, "
            "not " +
            m_folderName + "; set TMP to one");
    }
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = m_libraryFolder.data();
    options.use_zip64 = LXW_FALSE;
    m_workbook = Xlsx().workbook_new_opt(StoredIn(m_libraryFolder).c_str(), &options);
    if (m_workbook == nullptr) throw ExportError("there is not enough memory for the workbook " + path);
    MakeFormats();
    SetTitle("");
}

Workbook::~Workbook() {
    if (m_workbook != nullptr) Xlsx().lxw_workbook_free(m_workbook);
}

void Workbook::MakeFormats() {
    for (lxw_format*& format : m_formats) {
        format = Xlsx().workbook_add_format(m_workbook);
        if (format == nullptr) throw ExportError("there is not enough memory for the workbook " + m_path);
    }
    Xlsx().format_set_num_format(Format(CellStyle::integer), "0");
    Xlsx().format_set_num_format(Format(CellStyle::real), "0.00");
    Xlsx().format_set_num_format(Format(CellStyle::bad), "0.00");
    // A text after a column of numbers would touch them.
    Xlsx().format_set_indent(Format(CellStyle::text), 1);
    for (const CellStyle style : {CellStyle::head, CellStyle::unit}) {
        FillWith(Format(style), kHeadFill);
    }
    Xlsx().format_set_bold(Format(CellStyle::head));
    Xlsx().format_set_italic(Format(CellStyle::unit));
    Xlsx().format_set_font_color(Format(CellStyle::unit), kUnitColor);
    Xlsx().format_set_bottom(Format(CellStyle::unit), LXW_BORDER_THIN);
    Xlsx().format_set_bottom_color(Format(CellStyle::unit), kLine);
    Xlsx().format_set_bold(Format(CellStyle::title));
    Xlsx().format_set_font_size(Format(CellStyle::title), kTitleSize);
    Xlsx().format_set_bold(Format(CellStyle::label));
    Xlsx().format_set_bold(Format(CellStyle::good));
    Xlsx().format_set_font_color(Format(CellStyle::good), kGreen);
    FillWith(Format(CellStyle::good), kGreenFill);
    Xlsx().format_set_bold(Format(CellStyle::bad));
    Xlsx().format_set_font_color(Format(CellStyle::bad), kRed);
    FillWith(Format(CellStyle::bad), kRedFill);
    m_overLimit = Xlsx().workbook_add_format(m_workbook);
    if (m_overLimit == nullptr) throw ExportError("there is not enough memory for the workbook " + m_path);
    Xlsx().format_set_bold(m_overLimit);
    Xlsx().format_set_font_color(m_overLimit, kRed);
    Xlsx().format_set_bg_color(m_overLimit, kRedFill);
}

lxw_worksheet* Workbook::AddSheet(const std::string& name) {
    lxw_worksheet* sheet = Xlsx().workbook_add_worksheet(m_workbook, name.c_str());
    if (sheet == nullptr) throw ExportError(m_path + ": no sheet can be made: " + name);
    return sheet;
}

void Workbook::SetTitle(const std::string& title) {
    std::string text = title, program = "Lumerin";
    lxw_doc_properties properties{};
    properties.title = text.data();
    properties.author = program.data();
    properties.company = program.data();
    properties.created = SecondsOf(m_created);
    Xlsx().workbook_set_properties(m_workbook, &properties);
}

void Workbook::CheckTemporaryFiles() const {
    // The library does not look whether its temporary files were stored, and would make a workbook of the
    // part that was.
    std::uintmax_t bytes = 0;
    lxw_sheet* sheet = nullptr;
    STAILQ_FOREACH(sheet, m_workbook->sheets, list_pointers) {
        std::FILE* rows = sheet->u.worksheet->optimize_tmpfile;
        if (rows == nullptr) continue;
        const long size = std::fflush(rows) == 0 && std::ferror(rows) == 0 ? std::ftell(rows) : -1;
        if (size < 0) throw ExportError("the temporary files in " + m_folderName + " could not be stored");
        bytes += static_cast<std::uintmax_t>(size);
    }
    std::error_code ignored;
    const auto space = std::filesystem::space(NativePath(m_folderName), ignored);
    // A second form of the largest sheet, and the workbook.
    if (!ignored && space.available < 2 * bytes) {
        throw ExportError("there is not enough space for temporary files in " + m_folderName);
    }
}

void Workbook::Close() {
    CheckTemporaryFiles();
    const lxw_error code = Xlsx().workbook_close(m_workbook);
    m_workbook = nullptr;
    if (code != LXW_NO_ERROR) throw ExportError(m_path + ": " + Xlsx().lxw_strerror(code));
    FileSink file(m_path);
    std::ifstream stored(NativePath(StoredIn(m_folderName)), std::ios::binary);
    std::vector<char> piece(kFlushBytes);
    while (stored.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stored.gcount() > 0) {
        file.Write({piece.data(), static_cast<std::size_t>(stored.gcount())});
    }
    if (!stored.eof()) throw ExportError("the temporary files in " + m_folderName + " cannot be read");
    file.Commit();
}

}  // namespace lumerin
