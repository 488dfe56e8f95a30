// SPDX-License-Identifier: MIT
#include "cli/CompareReport.h"

#include <array>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <tuple>
#include <utility>

#include "cli/TextTable.h"
#include "compare/ResultColumns.h"
#include "framework/Index.h"
#include "script/Border.h"
#include "text/Format.h"

namespace lumerin {

namespace {

using Align = TextTable::Align;
using Answer = RunVerdict::Answer;

constexpr std::string_view kIndent = "  ";
constexpr int kForceDecimals = 2, kRatioDecimals = 3, kPercentDecimals = 1;
constexpr double kPercent = 100.0;

std::string_view WordOf(Answer answer) {
    if (answer == Answer::none) return "NONE";
    return answer == Answer::passes ? "PASS" : "FAIL";
}

std::string Coloured(std::string_view word, bool good, bool colour) {
    if (!colour) return std::string(word);
    return std::string(good ? "\033[32m" : "\033[1;31m") + std::string(word) + "\033[0m";
}

int DecimalsOf(Quantity quantity) {
    if (quantity == Quantity::none) return 0;
    return quantity == Quantity::force || quantity == Quantity::moment ? kForceDecimals : kRatioDecimals;
}

std::string NumberText(double value, int decimals) {
    if (std::isfinite(value)) return FormatFixed(value, decimals);
    std::string text;
    AppendNumber(text, value);
    return text;
}

// As many decimals as it takes to see that two values are not the same.
int DecimalsOf(const ValueChange& value) {
    constexpr int kMost = 9;
    int decimals = DecimalsOf(value.quantity);
    if (!value.before || !value.after || !std::isfinite(value.change.difference)) return decimals;
    while (decimals < kMost && value.change.difference != 0.0 &&
           FormatFixed(*value.before, decimals) == FormatFixed(*value.after, decimals)) {
        ++decimals;
    }
    return decimals;
}

std::string Side(const std::optional<double>& value, int decimals) {
    return value ? NumberText(*value, decimals) : "none";
}

std::string Signed(double value, int decimals) {
    return (value > 0.0 ? "+" : "") + NumberText(value, decimals);
}

std::string CaseText(const CaseName& name) {
    if (name.number == 0) return "none";
    return std::to_string(name.number) + (name.limitState.empty() ? "" : " " + name.limitState);
}

// "case 7 STRENGTH-IV", or both: "7 STRENGTH-IV -> 9 STRENGTH-V".
std::string CasesText(const ResultChange& result) {
    if (result.caseBefore.number == 0 && result.caseAfter.number == 0) return {};
    const std::string before = CaseText(result.caseBefore), after = CaseText(result.caseAfter);
    return before == after && !result.otherCase ? after : before + " -> " + after;
}

std::string PlacesText(const ResultChange& result) {
    if (!result.otherPlace) return result.placeAfter;
    const auto side = [](const std::string& place) { return place.empty() ? "none" : place; };
    return side(result.placeBefore) + " -> " + side(result.placeAfter);
}

std::string WithUnit(const ValueChange& value, UnitSystem units) {
    const std::string_view unit = UnitName(value.quantity, units);
    return ColumnWords(value.column) + (unit.empty() ? "" : " " + std::string(unit));
}

// "1 row", "12 rows".
std::string Counted(long long count, std::string_view one, std::string_view several) {
    return std::to_string(count) + " " + std::string(count == 1 ? one : several);
}

// The page of one pair.
class Page {
  public:
    Page(const PairResult& result, std::size_t top, bool colour)
        : m_result(result), m_comparison(*result.comparison), m_top(top), m_colour(colour) {}

    std::string Text() {
        AddHead();
        AddVerdicts();
        AddStructure();
        AddRows();
        AddResults(m_comparison.results, true);
        AddResults(m_comparison.governing, false);
        AddCases();
        return m_out.str();
    }

  private:
    void AddHead() {
        m_out << m_result.pair.name << ".in  "
              << Coloured(m_comparison.Differs() ? "DIFFERS" : "SAME", !m_comparison.Differs(), m_colour);
        m_out << "  " << Counted(std::ssize(m_comparison.results), "result is", "results are")
              << " over the tolerances";
        if (!m_comparison.governing.empty()) {
            m_out << ", " << Counted(std::ssize(m_comparison.governing), "other governs", "others govern")
                  << " in another case or place alone";
        }
        m_out << "; " << m_comparison.compared << " values compared\n";
        AddRun("old", *m_result.pair.before, m_comparison.before, m_comparison.unitsBefore,
               m_result.findingsBefore);
        AddRun("new", *m_result.pair.after, m_comparison.after, m_comparison.unitsAfter,
               m_result.findingsAfter);
        if (m_comparison.renumbered > 0) {
            m_out << kIndent << Counted(m_comparison.renumbered, "case has", "cases have")
                  << " another number now and " << (m_comparison.renumbered == 1 ? "is" : "are")
                  << " compared by title\n";
        }
    }

    void AddRun(std::string_view side, const ProjectName& name, const RunVerdict& run, UnitSystem own,
                const std::vector<Finding>& findings) {
        m_out << kIndent << side << "  " << name.name << ".in  "
              << Coloured(WordOf(run.answer), run.answer == Answer::passes, m_colour);
        if (run.answer != Answer::none) {
            m_out << "  D/C " << RatioText(run.ratio, m_result.limit) << "  " << run.place << "  case "
                  << CaseText(run.loadCase);
            m_used.insert(run.loadCase);
        }
        if (own != m_comparison.units) {
            m_out << "  (" << UnitSystemName(own) << ", shown in " << UnitSystemName(m_comparison.units)
                  << ")";
        }
        if (HasError(findings)) m_out << "  NOT SOUND";
        m_out << '\n';
    }

    void AddVerdicts() {
        if (m_comparison.before.answer != m_comparison.after.answer) {
            m_out << kIndent << "verdict: " << WordOf(m_comparison.before.answer) << " before, "
                  << WordOf(m_comparison.after.answer) << " now\n";
        }
        for (const Flip& flip : m_comparison.flips) {
            m_out << kIndent << "verdict of " << flip.label << ", substructure " << flip.substructure << ": "
                  << (flip.before ? "PASS" : "FAIL") << " before, " << (flip.after ? "PASS" : "FAIL")
                  << " now\n";
        }
    }

    void AddStructure() {
        if (m_comparison.structure.empty()) return;
        m_out << '\n' << kIndent << "cases and model\n";
        std::size_t number = 0;
        for (const StructureChange& change : m_comparison.structure) {
            if (IsBeyond(number++)) continue;
            m_out << kIndent << PresenceName(change.presence) << ": ";
            if (change.substructure > 0 && change.kind != "substructure") {
                m_out << "substructure " << change.substructure << ", ";
            }
            if (change.count > 1) m_out << change.count << " " << change.kind << ", the first: ";
            m_out << change.what;
            if (change.presence == Presence::changed) {
                m_out << ": " << change.before << " before, " << change.after << " now";
            }
            m_out << '\n';
        }
        AddRest(number);
    }

    // Counted by table and substructure, because a new section or class has many rows.
    void AddRows() {
        if (m_comparison.rows.empty()) return;
        using Group = std::tuple<const Table*, int, Presence>;
        std::vector<std::pair<Group, const RowChange*>> groups;
        std::map<Group, long long> counts;
        for (const RowChange& row : m_comparison.rows) {
            const Group group{row.table, row.substructure, row.presence};
            if (counts[group]++ == 0) groups.emplace_back(group, &row);
        }
        m_out << '\n' << kIndent << "rows of results\n";
        std::size_t number = 0;
        for (const auto& [group, row] : groups) {
            if (IsBeyond(number++)) continue;
            const long long count = counts.at(group);
            m_out << kIndent << PresenceName(row->presence) << ": " << row->table->name << ", substructure "
                  << row->substructure << ", ";
            if (count > 1) m_out << count << " rows, the first: ";
            m_out << row->label;
            if (row->loadCase.number > 0) m_out << ", " << TextOf(row->loadCase);
            m_out << '\n';
        }
        AddRest(number);
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
            if (!IsBeyond(number++)) AddResult(result, table);
        }
        table.Print(m_out, kIndent);
        AddRest(number);
    }

    void AddResult(const ResultChange& result, TextTable& table) {
        std::vector<std::string> cells{std::to_string(result.substructure), std::string(result.table->name),
                                       result.label};
        if (result.values.empty()) {
            cells.resize(cells.size() + 5);
        } else {
            const ValueChange& value = result.values.front();
            const int decimals = DecimalsOf(value);
            cells.push_back(WithUnit(value, m_comparison.units));
            cells.push_back(Side(value.before, decimals));
            cells.push_back(Side(value.after, decimals));
            const bool isNumber = value.before && value.after;
            cells.push_back(isNumber ? Signed(value.change.difference, decimals) : "");
            cells.push_back(std::isnan(value.change.relative)
                                ? ""
                                : Signed(value.change.relative * kPercent, kPercentDecimals));
        }
        cells.push_back(CasesText(result));
        cells.push_back(PlacesText(result));
        std::string more;
        if (result.Exceeds() && !result.leads) more = "acts with it";
        if (result.values.size() > 1) {
            more += (more.empty() ? "and " : ", and ") +
                    Counted(std::ssize(result.values) - 1, "more value", "more values");
        }
        cells.push_back(more);
        table.Add(std::move(cells));
        for (const CaseName* name : {&result.caseBefore, &result.caseAfter}) {
            if (name->number > 0) m_used.insert(*name);
        }
    }

    // The titles of the cases above, once each.
    void AddCases() {
        std::vector<std::string> lines;
        for (const CaseName& name : m_used) {
            const std::string line = std::string(kIndent) + CaseText(name) + ": " + name.title;
            if (!name.title.empty() && (lines.empty() || lines.back() != line)) lines.push_back(line);
        }
        if (lines.empty() || !m_comparison.Differs()) return;
        m_out << '\n' << kIndent << "titles of these cases\n";
        for (const std::string& line : lines) m_out << line << '\n';
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
    struct ByNumber {
        bool operator()(const CaseName& a, const CaseName& b) const {
            return std::tie(a.number, a.limitState, a.title) < std::tie(b.number, b.limitState, b.title);
        }
    };
    std::set<CaseName, ByNumber> m_used;  // cases of the page
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
