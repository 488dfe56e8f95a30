// SPDX-License-Identifier: MIT
#include "tables/TableText.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/LineSink.h"

namespace lumerin {

namespace {

// Lines in order, each ended by a line feed. Some counts differ from the line feeds: an empty head counts its
// lines all the same, and the padding of the full report goes by the count.
class CTextSink : public CLineSink {
  public:
    explicit CTextSink(StoredStream& out) : m_out(out) {}

    const TitleMargins& MarginsOf(const TableLayout& layout) const override { return layout.text; }

    void Row(const RowText& row) override { Line(row.line); }

    void Line(std::string_view text) override {
        m_line.assign(text);
        m_line += '\n';
        m_out.Write(m_line);
        ++m_nLines;
    }

    void Gap(int lines, GapStyle) override {
        m_out.Write(std::string(Index(lines), '\n'));
        m_nLines += lines;
    }

    void Head(const ColumnHead& head) override {
        for (const std::string& line : head.lines) m_out << line << "\n";
        for (int i = 0; i < head.linesAfter + head.linesAfterFirst; ++i) m_out << "\n";
        m_nLines += head.counted;
    }

    void Key(std::string_view text) override {
        m_out.Write(text);
        m_nLines += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    }

  private:
    StoredStream& m_out;
    std::string m_line;
};

}  // namespace

int WriteTableText(const Report& report, TableId table, StoredStream& out) {
    const std::optional<TableId> writable = WritableTable(report, table);
    if (!writable) return 0;
    CTextSink sink(out);
    WalkTable(report, *writable, sink);
    return sink.Lines();
}

void WriteTitlePageText(const ReportOptions& options, StoredStream& out) {
    out.Write(std::string(Index(TitlePageBlankLines(options)), '\n'));
    for (const std::string& line : TitlePageLines(options))
        out << CenterText(options.viewerFontSize, line) << "\n";
}

}  // namespace lumerin
