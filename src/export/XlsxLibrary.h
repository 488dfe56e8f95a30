// SPDX-License-Identifier: MIT
#pragma once

#include <xlsxwriter.h>

namespace lumerin {

// The functions of libxlsxwriter that workbooks are written with.
#define LUMERIN_XLSX_FUNCTIONS(FUNCTION)         \
    FUNCTION(format_set_bg_color)                \
    FUNCTION(format_set_bold)                    \
    FUNCTION(format_set_bottom)                  \
    FUNCTION(format_set_bottom_color)            \
    FUNCTION(format_set_font_color)              \
    FUNCTION(format_set_font_size)               \
    FUNCTION(format_set_indent)                  \
    FUNCTION(format_set_italic)                  \
    FUNCTION(format_set_num_format)              \
    FUNCTION(format_set_pattern)                 \
    FUNCTION(lxw_strerror)                       \
    FUNCTION(lxw_workbook_free)                  \
    FUNCTION(workbook_add_format)                \
    FUNCTION(workbook_add_worksheet)             \
    FUNCTION(workbook_close)                     \
    FUNCTION(workbook_new_opt)                   \
    FUNCTION(workbook_set_properties)            \
    FUNCTION(worksheet_autofilter)               \
    FUNCTION(worksheet_conditional_format_range) \
    FUNCTION(worksheet_fit_to_pages)             \
    FUNCTION(worksheet_freeze_panes)             \
    FUNCTION(worksheet_gridlines)                \
    FUNCTION(worksheet_repeat_rows)              \
    FUNCTION(worksheet_set_column)               \
    FUNCTION(worksheet_set_footer)               \
    FUNCTION(worksheet_set_landscape)            \
    FUNCTION(worksheet_set_paper)                \
    FUNCTION(worksheet_write_boolean)            \
    FUNCTION(worksheet_write_number)             \
    FUNCTION(worksheet_write_string)

// They are reached by their names. On Linux the library and the three that it needs are loaded when the first
// workbook is: that takes longer than a short run of the program, and a machine without them can do all the
// rest.
struct XlsxLibrary {
#define LUMERIN_XLSX_POINTER(name) decltype(&::name) name = nullptr;
    LUMERIN_XLSX_FUNCTIONS(LUMERIN_XLSX_POINTER)
#undef LUMERIN_XLSX_POINTER
};

// Throws ExportError where the library is not installed.
const XlsxLibrary& Xlsx();

}  // namespace lumerin
