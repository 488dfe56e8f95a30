// SPDX-License-Identifier: MIT
// haru_lines LINES FILE: writes LINES prepared lines as pages with libharu, without compression: the same
// text, font and lines per page as bench-stages pdf.
#include <hpdf.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "../ReadyLines.h"

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const long lines = std::strtol(argv[1], nullptr, 10);
    const std::vector<std::string> ready = MakeReadyLines();
    const auto begin = std::chrono::steady_clock::now();
    HPDF_Doc pdf = HPDF_New(nullptr, nullptr);
    HPDF_SetCompressionMode(pdf, HPDF_COMP_NONE);
    const HPDF_Font font = HPDF_GetFont(pdf, "Courier", "WinAnsiEncoding");
    HPDF_Page page = nullptr;
    for (long line = 0; line < lines; ++line) {
        if (line % kReadyLinesPerPage == 0) {
            if (page != nullptr) HPDF_Page_EndText(page);
            page = HPDF_AddPage(pdf);
            HPDF_Page_SetWidth(page, 792);
            HPDF_Page_SetHeight(page, 612);
            HPDF_Page_BeginText(page);
            HPDF_Page_SetFontAndSize(page, font, 9);
            HPDF_Page_SetTextLeading(page, 10);
            HPDF_Page_MoveTextPos(page, 30, 582);
        }
        HPDF_Page_ShowTextNextLine(page, ready[static_cast<std::size_t>(line) % ready.size()].c_str());
    }
    if (page != nullptr) HPDF_Page_EndText(page);
    if (HPDF_SaveToFile(pdf, argv[2]) != HPDF_OK) return 1;
    HPDF_Free(pdf);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("seconds %.6f\nlines %ld\n", took.count(), lines);
    return 0;
}
