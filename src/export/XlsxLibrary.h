// SPDX-License-Identifier: MIT
#pragma once

#include <xlsxwriter.h>

namespace lumerin {

// The functions of libxlsxwriter that workbooks are written with, by their names. The library and the three
// that it needs are loaded when the first workbook is: that takes longer than a short run of the program, and
// a machine without them can do all the rest.
struct XlsxLibrary {
    decltype(&::format_set_bg_color) format_set_bg_color = nullptr;
    decltype(&::format_set_bold) format_set_bold = nullptr;
    decltype(&::format_set_bottom) format_set_bottom = nullptr;
    decltype(&::format_set_bottom_color) format_set_bottom_color = nullptr;
    decltype(&::format_set_font_color) format_set_font_color = nullptr;
    decltype(&::format_set_font_size) format_set_font_size = nullptr;
    decltype(&::format_set_indent) format_set_indent = nullptr;
    decltype(&::format_set_italic) format_set_italic = nullptr;
    decltype(&::format_set_num_format) format_set_num_format = nullptr;
    decltype(&::format_set_pattern) format_set_pattern = nullptr;
    decltype(&::lxw_strerror) lxw_strerror = nullptr;
    decltype(&::lxw_workbook_free) lxw_workbook_free = nullptr;
    decltype(&::workbook_add_format) workbook_add_format = nullptr;
    decltype(&::workbook_add_worksheet) workbook_add_worksheet = nullptr;
    decltype(&::workbook_close) workbook_close = nullptr;
    decltype(&::workbook_new_opt) workbook_new_opt = nullptr;
    decltype(&::workbook_set_properties) workbook_set_properties = nullptr;
    decltype(&::worksheet_autofilter) worksheet_autofilter = nullptr;
    decltype(&::worksheet_conditional_format_range) worksheet_conditional_format_range = nullptr;
    decltype(&::worksheet_fit_to_pages) worksheet_fit_to_pages = nullptr;
    decltype(&::worksheet_freeze_panes) worksheet_freeze_panes = nullptr;
    decltype(&::worksheet_gridlines) worksheet_gridlines = nullptr;
    decltype(&::worksheet_repeat_rows) worksheet_repeat_rows = nullptr;
    decltype(&::worksheet_set_column) worksheet_set_column = nullptr;
    decltype(&::worksheet_set_footer) worksheet_set_footer = nullptr;
    decltype(&::worksheet_set_landscape) worksheet_set_landscape = nullptr;
    decltype(&::worksheet_set_paper) worksheet_set_paper = nullptr;
    decltype(&::worksheet_write_boolean) worksheet_write_boolean = nullptr;
    decltype(&::worksheet_write_number) worksheet_write_number = nullptr;
    decltype(&::worksheet_write_string) worksheet_write_string = nullptr;
};

// Loads it once. Throws ExportError where it is not installed.
const XlsxLibrary& Xlsx();

}  // namespace lumerin
