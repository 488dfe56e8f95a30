// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "framework/Backend.h"
#include "framework/TemporaryFolder.h"

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace lumerin {

// How a cell looks.
enum class CellStyle {
    text,
    integer,
    real,   // two decimals are shown, all are stored
    head,   // a column's name
    unit,   // below it
    title,  // of a sheet
    label,  // of a line of the cover
    good,   // what passes
    bad,    // what does not
};
inline constexpr std::size_t kCellStyles = 9;

// A workbook (.xlsx) while it is written, row by row and sheet by sheet. Its rows are kept in temporary
// files. The same calls make the same bytes; the clock's time alone is in the document's properties.
class Workbook {
  public:
    // Throws ExportError when nothing can be written under that name.
    Workbook(const std::string& path, const LocalTime& created);
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;
    ~Workbook();

    // Owned by the workbook. The name has at most 31 characters, and none of []:*?/\.
    lxw_worksheet* AddSheet(const std::string& name);
    lxw_format* Format(CellStyle style) const { return m_formats.at(static_cast<std::size_t>(style)); }
    // Of a ratio over the limit.
    lxw_format* OverLimit() const { return m_overLimit; }
    void SetTitle(const std::string& title);
    // Stores the workbook; an earlier file of the name is replaced. Throws ExportError.
    void Close();

  private:
    void MakeFormats();
    void CheckTemporaryFiles() const;

    std::string m_path;
    LocalTime m_created;
    std::optional<TemporaryFolder> m_folder;
    std::string m_folderName, m_libraryFolder;  // the same, the second as the library takes it
    lxw_workbook* m_workbook = nullptr;         // the library frees it with its close
    std::array<lxw_format*, kCellStyles> m_formats{};
    lxw_format* m_overLimit = nullptr;
};

}  // namespace lumerin
