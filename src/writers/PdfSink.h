// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "tables/LineSink.h"
#include "writers/PdfWriter.h"

namespace lumerin {

// A table set on pages: a line becomes an operator that moves to the next line and shows it, and a page that
// is full ends, with the column head once more on the next one. Text is written unescaped, because the
// parentheses in the tables are balanced.
class CPdfSink : public CLineSink {
  public:
    // Begins the table's first page. `footer` is that of every page, not yet escaped. The words of a page
    // break in the middle of a block are further left in the narrow table 0.
    CPdfSink(StoredStream& out, CPdfWriter& pdf, std::string_view footer, bool narrow);

    const TitleMargins& MarginsOf(const TableLayout& layout) const override { return layout.pdf; }
    void Line(std::string_view text) override;
    void Gap(int lines, GapStyle style) override;
    void Head(const ColumnHead& head) override;
    void Row(const RowText& row) override;
    void Key(std::string_view text) override;
    void MayBreak(BreakPoint point) override;
    void EndTable() override;

  private:
    bool IsFull(int margin) const { return m_nLinesPerPage <= m_nLines + margin; }
    void Show(std::string_view text);
    void ShowHead(int linesAfter);
    void BreakPage();
    void ContinueOnNextPage();

    StoredStream& m_out;
    CPdfWriter& m_pdf;
    int m_nLinesPerPage;
    std::string m_continued;
    std::string m_footer;
    ColumnHead m_head;
    std::string m_operator;  // reused, so that a line allocates no memory
};

}  // namespace lumerin
