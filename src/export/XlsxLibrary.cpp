// SPDX-License-Identifier: MIT
#include "export/XlsxLibrary.h"

#include <dlfcn.h>

#include <string>
#include <type_traits>

#include "export/TableWriter.h"

namespace lumerin {

namespace {

// Stays loaded: nothing is gained by its end before that of the program.
void* OpenLibrary() {
    void* handle = dlopen(LUMERIN_XLSX_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        throw ExportError("workbooks need the library " LUMERIN_XLSX_LIBRARY
                          ", which is not installed (in Debian: libxlsxwriter4)");
    }
    return handle;
}

XlsxLibrary Load() {
    void* handle = OpenLibrary();
    XlsxLibrary library;
    const auto find = [handle](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
        if (function == nullptr) {
            throw ExportError(std::string("the library " LUMERIN_XLSX_LIBRARY " has no function ") + name);
        }
    };
    find(library.format_set_bg_color, "format_set_bg_color");
    find(library.format_set_bold, "format_set_bold");
    find(library.format_set_bottom, "format_set_bottom");
    find(library.format_set_bottom_color, "format_set_bottom_color");
    find(library.format_set_font_color, "format_set_font_color");
    find(library.format_set_font_size, "format_set_font_size");
    find(library.format_set_indent, "format_set_indent");
    find(library.format_set_italic, "format_set_italic");
    find(library.format_set_num_format, "format_set_num_format");
    find(library.format_set_pattern, "format_set_pattern");
    find(library.lxw_strerror, "lxw_strerror");
    find(library.lxw_workbook_free, "lxw_workbook_free");
    find(library.workbook_add_format, "workbook_add_format");
    find(library.workbook_add_worksheet, "workbook_add_worksheet");
    find(library.workbook_close, "workbook_close");
    find(library.workbook_new_opt, "workbook_new_opt");
    find(library.workbook_set_properties, "workbook_set_properties");
    find(library.worksheet_autofilter, "worksheet_autofilter");
    find(library.worksheet_conditional_format_range, "worksheet_conditional_format_range");
    find(library.worksheet_fit_to_pages, "worksheet_fit_to_pages");
    find(library.worksheet_freeze_panes, "worksheet_freeze_panes");
    find(library.worksheet_gridlines, "worksheet_gridlines");
    find(library.worksheet_repeat_rows, "worksheet_repeat_rows");
    find(library.worksheet_set_column, "worksheet_set_column");
    find(library.worksheet_set_footer, "worksheet_set_footer");
    find(library.worksheet_set_landscape, "worksheet_set_landscape");
    find(library.worksheet_set_paper, "worksheet_set_paper");
    find(library.worksheet_write_boolean, "worksheet_write_boolean");
    find(library.worksheet_write_number, "worksheet_write_number");
    find(library.worksheet_write_string, "worksheet_write_string");
    return library;
}

}  // namespace

const XlsxLibrary& Xlsx() {
    static const XlsxLibrary library = Load();
    return library;
}

}  // namespace lumerin
