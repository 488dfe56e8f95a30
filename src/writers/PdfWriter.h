// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/StoredStream.h"

namespace lumerin {

// The producer of a PDF 1.4 file of pages of fixed-pitch lines. It numbers the objects and writes the
// document's skeleton, the footer line of a page and, at the end, the page number streams; between BeginPage
// and EndPage the caller writes its own text operators into the same stream. All positions are those of the
// stored file, where a line feed takes two bytes. The cross-reference table holds no offsets: viewers
// rebuild it.
//
// Page k, from 1, has the objects 4k - 2 (content), 4k - 1 (its length), 4k (page number), 4k + 1 (page).
class CPdfWriter {
  public:
    explicit CPdfWriter(bool landscape);

    void WriteHeader(StoredStream& out);
    int LinesPerPage() const;
    // Opens the content stream: F0 selected, leading set, the text position on the first line. White space
    // around the header is removed; an empty one writes no line.
    void BeginPage(StoredStream& out, std::string_view header);
    // Closes it and writes the page's objects; the footer is treated as the header is.
    void EndPage(StoredStream& out, std::string_view footer);
    // Everything from the fonts to the end of the file.
    void Finish(StoredStream& out);

    int PageCount() const { return m_nPageCount; }

  private:
    void WriteSmallLine(StoredStream& out, std::string_view text, float y) const;
    int WriteFont(StoredStream& out, std::string_view name);
    void WritePageNumber(StoredStream& out, int page) const;
    void WritePageTree(StoredStream& out, int bodyFont, int smallFont) const;
    void WriteXref(StoredStream& out);
    int PageObject(int page) const { return 4 * page + 1; }

    float m_fPageWidth, m_fPageHeight;  // in points, as all lengths
    float m_fMargin = 30.0F;
    float m_fLeading = 10.0F;
    float m_fFontSize = 9.0F;
    float m_fHorizScale = 90.0F;  // percent
    int m_nPageCount = 0;
    int m_nNextObject = 1;
    int m_nPagesObject = 0;
    std::int64_t m_nXrefPosition = 0;
    float m_fTextTop = 0.0F;  // baseline of the first body line
    int m_nContentObject = 0;
    int m_nLengthObject = 0;
    std::int64_t m_nStreamStart = 0;
};

}  // namespace lumerin
