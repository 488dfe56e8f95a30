// SPDX-License-Identifier: MIT
#include "cli/CompareReport.h"

#include <sstream>
#include <utility>

#include "cli/TextTable.h"
#include "compare/ComparisonText.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

using Align = TextTable::Align;

constexpr std::string_view kIndent = "  ";

std::string Coloured(std::string_view word, bool good, bool colour) {
    if (!colour) return std::string(word);
    return std::string(good ? "\033[32m" : "\033[1;31m") + std::string(word) + "\033[0m";
}

// The page of one pair.
class Page {
  public:
    Page(const PairResult& result, std::size_t top, bool colour)
        : m_result(result), m_comparison(*result.comparison), m_top(top), m_colour(colour) {}

    std::string Text() {
        AddHead();
        AddLines({}, VerdictLines(m_comparison));
        AddLines("cases and model", StructureLines(m_comparison));
        AddLines("rows of results", RowLines(m_comparison));
        AddResults(m_comparison.results, true);
        AddResults(m_comparison.governing, false);
        AddTitles();
        return m_out.str();
    }

  private:
    void AddHead() {
        m_out << m_result.pair.name << ".in  "
              << Coloured(m_comparison.Differs() ? "DIFFERS" : "SAME", !m_comparison.Differs(), m_colour);
        m_out << "  " << Summary(m_comparison) << '\n';
        AddRun("old", *m_result.pair.before, m_comparison.before, m_comparison.unitsBefore,
               m_result.findingsBefore);
        AddRun("new", *m_result.pair.after, m_comparison.after, m_comparison.unitsAfter,
               m_result.findingsAfter);
        if (m_comparison.renumbered > 0) {
            m_out << kIndent
                  << "cases with another number now, compared by title: " << m_comparison.renumbered << '\n';
        }
    }

    void AddRun(std::string_view side, const ProjectName& name, const RunVerdict& run, UnitSystem own,
                const std::vector<Finding>& findings) {
        m_out << kIndent << side << "  " << name.name << ".in  "
              << Coloured(AnswerWord(run.answer), run.answer == RunVerdict::Answer::passes, m_colour);
        if (run.answer != RunVerdict::Answer::none) {
            m_out << "  D/C " << RatioText(run.ratio, m_result.limit) << "  " << run.place << "  case "
                  << ShortText(run.loadCase);
        }
        if (own != m_comparison.units) {
            m_out << "  (" << UnitSystemName(own) << ", shown in " << UnitSystemName(m_comparison.units)
                  << ")";
        }
        if (HasError(findings)) m_out << "  NOT SOUND";
        m_out << '\n';
    }

    // A list below a word; without a word it is never shortened.
    void AddLines(std::string_view head, const std::vector<std::string>& lines) {
        if (lines.empty()) return;
        if (!head.empty()) m_out << '\n' << kIndent << head << '\n';
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (head.empty() || !IsBeyond(i)) m_out << kIndent << lines[i] << '\n';
        }
        if (!head.empty()) AddRest(lines.size());
    }

    void AddResults(const std::vector<ResultChange>& results, bool exceeds) {
        if (results.empty()) return;
        m_out << '\n'
              << kIndent
              << (exceeds ? "results over the tolerances, the worst first"
                          : "another case or place governs, the values are within the tolerances")
              << '\n';
        TextTable table({{"sub", Align::right},
                         {"table", Align::left},
                         {"result", Align::left},
                         {"", Align::left},
                         {"old", Align::right},
                         {"new", Align::right},
                         {"change", Align::right},
                         {"%", Align::right},
                         {"case", Align::left},
                         {"place", Align::left},
                         {"", Align::left}});
        std::size_t number = 0;
        for (const ResultChange& result : results) {
            if (IsBeyond(number++)) continue;
            table.Add(ResultTexts(result, m_comparison.units));
        }
        table.Print(m_out, kIndent);
        AddRest(number);
    }

    void AddTitles() {
        const std::vector<std::string> lines = TitleLines(m_comparison, m_top);
        if (lines.empty()) return;
        m_out << '\n' << kIndent << "titles of these cases\n";
        for (const std::string& line : lines) m_out << kIndent << WithoutControls(line) << '\n';
    }

    bool IsBeyond(std::size_t number) const { return m_top > 0 && number >= m_top; }
    void AddRest(std::size_t count) {
        if (m_top > 0 && count > m_top) {
            m_out << kIndent << "and " << count - m_top << " more (--top 0 lists all)\n";
        }
    }

    const PairResult& m_result;
    const Comparison& m_comparison;
    std::size_t m_top;
    bool m_colour;
    std::ostringstream m_out;
};

class TextPrinter : public ComparePrinter {
  public:
    TextPrinter(std::unique_ptr<ByteSink> sink, std::size_t top, bool colour)
        : m_sink(std::move(sink)), m_top(top), m_colour(colour) {}

    void Print(const PairResult& result) override {
        const std::string& name = result.pair.name;
        if (!result.fault.empty()) {
            m_sink->Write(name + ".in  " + Coloured("ERROR", false, m_colour) + "  " + result.fault + "\n");
        } else if (!result.comparison) {
            const std::string_view side = result.pair.before ? "old" : "new";
            m_sink->Write(name + ".in  " + Coloured("DIFFERS", false, m_colour) + "  is in the " +
                          std::string(side) + " folder alone\n");
        } else {
            m_sink->Write(Page(result, m_top, m_colour).Text());
        }
    }
    void Close() override { m_sink->Commit(); }

  private:
    std::unique_ptr<ByteSink> m_sink;
    std::size_t m_top;
    bool m_colour;
};

}  // namespace

std::unique_ptr<ComparePrinter> MakeTextPrinter(std::unique_ptr<ByteSink> sink, std::size_t top,
                                                bool colour) {
    return std::make_unique<TextPrinter>(std::move(sink), top, colour);
}

}  // namespace lumerin
