// SPDX-License-Identifier: MIT
#include "writers/PdfSink.h"

#include "text/Format.h"

namespace lumerin {

namespace {

// Lines that a page must have left before a row, a column head or the key, and a heading.
constexpr int kRowMargin = 2;
constexpr int kBlockMargin = 6;
constexpr int kHeadingMargin = 15;
// The line count of a page after the continuation words and the head.
constexpr int kContinuedLines = 5;

constexpr std::size_t kContinuedBlanks = 71 + 66;
constexpr std::size_t kContinuedBlanksNarrow = 57 + 52;

}  // namespace

CPdfSink::CPdfSink(StoredStream& out, CPdfWriter& pdf, std::string_view footer, bool narrow)
    : m_out(out),
      m_pdf(pdf),
      m_nLinesPerPage(pdf.LinesPerPage()),
      m_continued(narrow ? kContinuedBlanksNarrow : kContinuedBlanks, ' ') {
    m_pdf.BeginPage(m_out, "");
    m_continued += "cont...";
    // A path in the footer shows its backslashes; a single one would be an escape.
    m_footer = ReplaceAll(footer, "\\", "\\\\");
}

void CPdfSink::Show(std::string_view text) {
    m_operator = '(';
    m_operator.append(text) += ")'";
    m_out.Write(m_operator);
}

void CPdfSink::Line(std::string_view text) {
    Show(text);
    ++m_nLines;
}

void CPdfSink::Gap(int lines, GapStyle style) {
    // Between the blocks of table 0 the line has a line feed, and after its substructures a blank.
    const char* text = style == GapStyle::lineFeed ? "\n" : style == GapStyle::blank ? " " : "";
    for (int i = 0; i < lines; ++i) Show(text);
    m_nLines += lines;
}

void CPdfSink::ShowHead(int linesAfter) {
    for (const std::string& line : m_head.lines) Show(line);
    for (int i = 0; i < linesAfter; ++i) Show("");
}

void CPdfSink::Head(const ColumnHead& head) {
    m_head = head;
    ShowHead(head.linesAfter + head.linesAfterFirst);
    m_nLines += head.counted;
}

void CPdfSink::Row(const RowText& row) {
    if (IsFull(kRowMargin)) ContinueOnNextPage();
    Show(row.line);
    ++m_nLines;
}

void CPdfSink::Key(std::string_view text) {
    Show(ReplaceAll(text, "\n", ")'("));
    for (const char c : text) m_nLines += c == '\n' ? 1 : 0;
}

void CPdfSink::MayBreak(BreakPoint point) {
    if (IsFull(point == BreakPoint::pierHeading ? kHeadingMargin : kBlockMargin)) BreakPage();
}

void CPdfSink::BreakPage() {
    m_pdf.EndPage(m_out, m_footer);
    m_pdf.BeginPage(m_out, "");
    m_nLines = 0;
}

void CPdfSink::ContinueOnNextPage() {
    Show("");
    Show(m_continued);
    BreakPage();
    Show("cont...");
    Show("");
    ShowHead(m_head.linesAfter);
    m_nLines = kContinuedLines;
}

void CPdfSink::EndTable() {
    m_pdf.EndPage(m_out, m_footer);
}

}  // namespace lumerin
