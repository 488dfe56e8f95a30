// SPDX-License-Identifier: MIT
#include "compare/Comparison.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "compare/ResultRows.h"
#include "compare/Structure.h"
#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

// The cases of both runs under one number each: that of the earlier run, or one of its own.
struct CaseIds {
    explicit CaseIds(const CaseMatch& cases) : before(cases.Before().size() + 1), after(1) {
        for (std::size_t i = 0; i < before.size(); ++i) before[i] = static_cast<int>(i);
        for (const CaseName& name : cases.After()) {
            const int earlier = cases.BeforeOf(name.number);
            after.push_back(earlier > 0 ? earlier : static_cast<int>(cases.Before().size()) + name.number);
        }
    }
    std::vector<int> before, after;  // by number; entry 0 is no case
};

CaseName NameIn(const std::vector<CaseName>& names, const KeptCell& cell) {
    const auto* number = std::get_if<std::int64_t>(&cell);
    if (number == nullptr || *number < 1 || Index(*number) > names.size()) return {};
    return names[Index(*number) - 1];
}

ValueChange CompareValues(const Column& column, const KeptCell& before, const KeptCell& after,
                          const Tolerances& tolerances) {
    ValueChange value{column.name, column.quantity, NumberIn(before), NumberIn(after), {}};
    if (value.before && value.after) {
        value.change = ChangeOf(*value.before, *value.after, column.quantity, tolerances);
    } else if (value.before || value.after) {
        // As far as from 0 in the order of the list, but always a difference, whatever the tolerance.
        constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
        const Change change =
            ChangeOf(value.before.value_or(0.0), value.after.value_or(0.0), column.quantity, tolerances);
        value.change = {kNoNumber, kNoNumber, change.times, true};
    }
    return value;
}

// Of equal changes those without a part of a number are the greatest.
double Magnitude(double relative) {
    return std::isnan(relative) ? std::numeric_limits<double>::infinity() : std::abs(relative);
}

bool IsWorse(const ValueChange& a, const ValueChange& b) {
    return std::make_pair(a.change.times, Magnitude(a.change.relative)) >
           std::make_pair(b.change.times, Magnitude(b.change.relative));
}

// Compares the rows of one table.
class TableComparer {
  public:
    TableComparer(const Table& table, const CompareChoice& choice, const CaseMatch& cases, const CaseIds& ids,
                  Comparison& out)
        : m_columns(table), m_choice(choice), m_cases(cases), m_ids(ids), m_out(out) {}

    void Run(const Evaluation& before, const Evaluation& after) {
        RowKeys keysBefore(m_columns, m_ids.before);
        EachRow(*m_columns.table, before, m_choice.units, [&](std::span<const Value> row) {
            m_rows.push_back(keysBefore.Keep(row));
            m_places.emplace(m_rows.back().key, m_rows.size() - 1);
        });
        std::vector<bool> found(m_rows.size());
        RowKeys keysAfter(m_columns, m_ids.after);
        EachRow(*m_columns.table, after, m_choice.units, [&](std::span<const Value> row) {
            const KeptRow now = keysAfter.Keep(row);
            const auto place = m_places.find(now.key);
            if (place == m_places.end()) {
                AddRow(Presence::added, now, m_cases.After());
                return;
            }
            found[place->second] = true;
            CompareRows(m_rows[place->second], now);
        });
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (!found[i]) AddRow(Presence::removed, m_rows[i], m_cases.Before());
        }
    }

  private:
    void AddRow(Presence presence, const KeptRow& row, const std::vector<CaseName>& names) {
        const ResultColumns& first = m_columns.results.front();
        CaseName loadCase;
        if (IsCaseOfRow(m_columns, first, row.cells)) loadCase = NameIn(names, row.cells[first.loadCase]);
        m_out.rows.push_back({m_columns.table, presence, SubstructureIn(row.cells),
                              LabelOf(m_columns, row.cells), std::move(loadCase)});
    }

    void CompareRows(const KeptRow& before, const KeptRow& after) {
        for (const ResultColumns& result : m_columns.results) CompareResult(result, before, after);
    }

    int IdOf(const std::vector<int>& ids, const CaseName& name) const { return ids.at(Index(name.number)); }

    void CompareResult(const ResultColumns& columns, const KeptRow& before, const KeptRow& after) {
        ResultChange result;
        std::vector<ValueChange> all;
        for (const std::size_t i : columns.values) {
            const Column& column = m_columns.table->columns[i];
            all.push_back(CompareValues(column, before.cells[i], after.cells[i], m_choice.tolerances));
            if (all.back().before && all.back().after) ++m_out.compared;
        }
        if (columns.loadCase != 0) {
            result.caseBefore = NameIn(m_cases.Before(), before.cells[columns.loadCase]);
            result.caseAfter = NameIn(m_cases.After(), after.cells[columns.loadCase]);
        }
        result.otherCase = IdOf(m_ids.before, result.caseBefore) != IdOf(m_ids.after, result.caseAfter);
        result.placeBefore = PlaceIn(m_columns, columns, before.cells);
        result.placeAfter = PlaceIn(m_columns, columns, after.cells);
        result.otherPlace = result.placeBefore != result.placeAfter;
        ChooseValues(columns, after, all, result);
        if (!result.Exceeds() && !result.otherCase && !result.otherPlace) return;
        result.table = m_columns.table;
        result.rowBefore = before.number;
        result.rowAfter = after.number;
        result.substructure = SubstructureIn(after.cells);
        result.label = LabelOf(m_columns, after.cells);
        (result.Exceeds() ? m_out.results : m_out.governing).push_back(std::move(result));
    }

    // Those that exceed, the leading one first; without any the leading one.
    void ChooseValues(const ResultColumns& columns, const KeptRow& row, const std::vector<ValueChange>& all,
                      ResultChange& result) const {
        const std::string_view leading = LeadingOf(columns, row);
        for (const ValueChange& value : all) {
            if (value.change.exceeds) result.values.push_back(value);
        }
        std::ranges::stable_sort(result.values, [&](const ValueChange& a, const ValueChange& b) {
            const bool leadsA = a.column == leading, leadsB = b.column == leading;
            return leadsA != leadsB ? leadsA : IsWorse(a, b);
        });
        result.leads = leading.empty() || (!result.values.empty() && result.values.front().column == leading);
        if (!result.values.empty() || all.empty()) return;
        const auto first = std::ranges::find(all, leading, &ValueChange::column);
        result.values.push_back(first == all.end() ? all.front() : *first);
    }

    // Empty: the row is the forces of one case, and none of them leads.
    std::string_view LeadingOf(const ResultColumns& columns, const KeptRow& row) const {
        if (!columns.name.empty()) return columns.name;
        if (IsCaseOfRow(m_columns, columns, row.cells)) return {};
        return LeadingColumn(m_columns.table->name,
                             m_columns.extreme == 0 ? "" : TextIn(row.cells[m_columns.extreme]));
    }

    const TableColumns m_columns;
    const CompareChoice& m_choice;
    const CaseMatch& m_cases;
    const CaseIds& m_ids;
    Comparison& m_out;
    std::vector<KeptRow> m_rows;  // of the earlier run
    std::unordered_map<std::string, std::size_t> m_places;
};

RunVerdict AnswerOf(const Evaluation& evaluation, const Verdict& verdict,
                    const std::vector<CaseName>& cases) {
    RunVerdict run;
    const FamilyVerdict* family = verdict.Worst();
    if (family == nullptr) return run;
    const EndRatio& worst = family->worst;
    run.answer = verdict.passes ? RunVerdict::Answer::passes : RunVerdict::Answer::fails;
    run.ratio = AsDouble(worst.ratio);
    run.place = worst.place + " (" + ReplaceAll(worst.family, "_", " ");
    if (evaluation.Data().m_Piers.size() > 1) {
        run.place += ", substructure " + std::to_string(worst.substructure);
    }
    run.place += ")";
    run.loadCase = cases.at(Index(worst.loadCase - 1));
    return run;
}

// Families that both runs judged, by the rows of the table of verdicts.
std::vector<Flip> CompareVerdicts(const Evaluation& before, const Evaluation& after) {
    const TableColumns columns(*FindTable("verdict"));
    const std::size_t passes = columns.verdicts.front();
    std::unordered_map<std::string, bool> earlier;
    RowKeys keysBefore(columns, {});
    EachRow(*columns.table, before, before.Units(), [&](std::span<const Value> row) {
        const KeptRow kept = keysBefore.Keep(row);
        earlier.emplace(kept.key, std::get<bool>(kept.cells[passes]));
    });
    std::vector<Flip> flips;
    RowKeys keysAfter(columns, {});
    EachRow(*columns.table, after, after.Units(), [&](std::span<const Value> row) {
        const KeptRow kept = keysAfter.Keep(row);
        const auto same = earlier.find(kept.key);
        const bool now = std::get<bool>(kept.cells[passes]);
        if (same == earlier.end() || same->second == now) return;
        flips.push_back({SubstructureIn(kept.cells), LabelOf(columns, kept.cells), same->second, now});
    });
    return flips;
}

// Where a result is in its table, whichever run is the earlier one.
auto PlaceInTable(const ResultChange& result) {
    const auto [first, last] = std::minmax(result.rowBefore, result.rowAfter);
    const std::string_view column = result.values.empty() ? std::string_view() : result.values.front().column;
    return std::make_tuple(result.table, first, last, column);
}

// The worst first; of equal ones the order does not depend on which run is the earlier one.
bool ComesFirst(const ResultChange& a, const ResultChange& b) {
    if (a.leads != b.leads) return a.leads;
    if (!a.values.empty() && !b.values.empty()) {
        if (IsWorse(a.values.front(), b.values.front())) return true;
        if (IsWorse(b.values.front(), a.values.front())) return false;
    }
    return PlaceInTable(a) < PlaceInTable(b);
}

}  // namespace

std::string_view PresenceName(Presence presence) {
    if (presence == Presence::changed) return "changed";
    return presence == Presence::added ? "new" : "gone";
}

bool ResultChange::Exceeds() const {
    return !values.empty() && values.front().change.exceeds;
}

bool Comparison::Differs() const {
    return before.answer != after.answer || !flips.empty() || !structure.empty() || !rows.empty() ||
           !results.empty();
}

TableNeeds NeedsOfComparison(const CompareChoice& choice) {
    std::vector<const Table*> tables = choice.tables;
    tables.push_back(FindTable("verdict"));
    return NeedsOf(tables);
}

Comparison Compare(const Evaluation& before, const Evaluation& after, const CompareChoice& choice) {
    const CaseMatch cases(before, after);
    const CaseIds ids(cases);
    Comparison result;
    result.unitsBefore = before.Units();
    result.unitsAfter = after.Units();
    result.units = choice.units;
    result.before = AnswerOf(before, Judge(before), cases.Before());
    result.after = AnswerOf(after, Judge(after), cases.After());
    result.flips = CompareVerdicts(before, after);
    result.structure = CompareCases(cases);
    for (StructureChange& change : CompareModels(before, after, choice.units)) {
        result.structure.push_back(std::move(change));
    }
    for (const CaseName& name : cases.Before()) {
        const int now = cases.AfterOf(name.number);
        if (now != 0 && now != name.number) ++result.renumbered;
    }
    for (const Table* table : choice.tables)
        TableComparer(*table, choice, cases, ids, result).Run(before, after);
    std::ranges::stable_sort(result.results, ComesFirst);
    std::ranges::stable_sort(result.governing, ComesFirst);
    return result;
}

}  // namespace lumerin
