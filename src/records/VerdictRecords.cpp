// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <set>

#include "framework/File.h"
#include "framework/Index.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"
#include "records/Verdict.h"
#include "tables/Words.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// ---- findings

constexpr auto kFindingColumns =
    JoinColumns(kProjectColumn,
                Column{"substructure", "number of the substructure, from 1; empty: the whole project",
                       ColumnType::integer},
                Column{"finding", "number of the finding, from 1", ColumnType::integer, Quantity::none, true},
                Column{"code", "kind of the finding, the same word in every release", ColumnType::text},
                Column{"severity", "error, warning or note", ColumnType::text},
                Column{"file", "file that it is about, without its folder", ColumnType::text},
                Column{"text", "one sentence", ColumnType::text},
                Column{"count", "how many of what the sentence says", ColumnType::integer},
                Column{"first_place", "the first of them", ColumnType::text});

void FindingRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    long long number = 0;
    for (const Finding& finding : evaluation.Findings()) {
        row.Begin(Index(finding.substructure))
            .Integer(++number)
            .Text(finding.code)
            .Text(SeverityName(finding.severity));
        row.Text(finding.file).Text(finding.text).Integer(finding.count).Text(finding.firstPlace).Hand();
    }
}

// ---- verdict

constexpr auto kVerdictColumns = JoinColumns(
    kPlaceColumns,
    Column{"family",
           "pile, column, cap, extra_member or other; pile_head_compression and pile_head_tension where a "
           "capacity was given",
           ColumnType::text, Quantity::none, true},
    Column{"dc", "greatest ratio; of a pile head its force over the capacity", ColumnType::real,
           Quantity::ratio},
    Column{"place", "where: Col 1 CL, pile 5 head, element 18 end I", ColumnType::text}, kElementColumn,
    kNodeColumn, kEndColumn, kCaseColumns,
    Column{"limit", "greatest ratio that passes", ColumnType::real, Quantity::ratio},
    Column{"ends", "element ends that were looked at; of pile heads empty", ColumnType::integer},
    Column{"ends_over", "element ends, or pile heads, over the limit", ColumnType::integer},
    Column{"passes", "whether none is over the limit", ColumnType::flag});

void AddFamily(const FamilyVerdict& family, RowBuffer& row) {
    const EndRatio& worst = family.worst;
    row.Begin(Index(worst.substructure)).Text(worst.family).Number(worst.ratio).Text(worst.place);
    row.Integer(worst.element).Integer(worst.node).Text(EndName(worst.end)).Integer(worst.loadCase);
    row.Text(worst.limitState).Number(family.limit).Integer(family.ends).Integer(family.endsOver);
    row.Flag(family.passes).Hand();
}

// The heads of one substructure and sign, the worst first.
void AddHeads(std::span<const HeadVerdict> heads, RowBuffer& row) {
    const HeadVerdict& worst = heads.front();
    const double force = worst.force;
    const double demand = std::max(worst.tension ? force : -force, 0.0);
    row.Begin(Index(worst.substructure));
    row.Text(worst.tension ? "pile_head_tension" : "pile_head_compression");
    row.Number(demand / worst.capacity);
    row.OwnText("pile " + std::to_string(worst.pile) + " head").Absent(2).Text("J").Integer(worst.loadCase);
    row.Text(worst.limitState).Number(1.0).Absent();
    row.Integer(std::ranges::count(heads, false, &HeadVerdict::passes)).Flag(worst.passes).Hand();
}

void VerdictRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    const Verdict verdict = Judge(evaluation);
    for (const FamilyVerdict& family : verdict.families) AddFamily(family, row);
    std::span<const HeadVerdict> heads(verdict.heads);
    while (!heads.empty()) {
        const HeadVerdict& first = heads.front();
        const auto end = std::ranges::find_if(heads, [&](const HeadVerdict& head) {
            return head.substructure != first.substructure || head.tension != first.tension;
        });
        const auto count = static_cast<std::size_t>(end - heads.begin());
        AddHeads(heads.first(count), row);
        heads = heads.subspan(count);
    }
}

// ---- projects

constexpr auto kProjectColumns = JoinColumns(
    kProjectColumn, Column{"substructure", "always empty", ColumnType::integer},
    Column{"title", "title of the project, as the host has it", ColumnType::text},
    Column{"substructures", "how many", ColumnType::integer},
    Column{"structure_types", "types of the substructures, each once: pier, pile bent, pile group",
           ColumnType::text},
    Column{"code", "design code of the combinations; empty without combinations", ColumnType::text},
    Column{"units", "us or si: the project's own", ColumnType::text},
    Column{"cases", "cases of the analysis", ColumnType::integer},
    Column{"converged", "cases that converged, which all tables are made of", ColumnType::integer},
    Column{"chosen", "cases that take part in this run", ColumnType::integer},
    Column{"limit", "greatest ratio that passes", ColumnType::real, Quantity::ratio},
    Column{"dc", "greatest ratio of all element ends", ColumnType::real, Quantity::ratio},
    Column{"passes", "the verdict; empty: no element has a ratio", ColumnType::flag},
    Column{"errors", "findings that are errors", ColumnType::integer},
    Column{"warnings", "findings that are warnings", ColumnType::integer},
    Column{"results_time", "time of the first force file, UTC", ColumnType::text},
    Column{"program_version", "version of the program", ColumnType::text},
    Column{"tables_version", "version of these tables", ColumnType::integer});

std::string TypesOf(const CDataSet& data) {
    std::set<std::string_view> seen;
    std::string types;
    for (const CPier& pier : data.m_Piers) {
        const std::string_view name = StructureTypeName(pier.m_nStructureType);
        if (!seen.insert(name).second) continue;
        if (!types.empty()) types += ", ";
        types += name;
    }
    return types;
}

// The time of a file as "2026-11-22T03:44:21Z"; empty where there is none.
std::string TimeOf(const std::string& path) {
    const auto written = LastChange(path);
    if (!written) return {};
    const auto second = std::chrono::floor<std::chrono::seconds>(*written);
    const auto day = std::chrono::floor<std::chrono::days>(second);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(second - day);
    std::array<char, 64> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                      static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                      static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                      static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return {text.data(), Index(length)};
}

void ProjectRows(const Evaluation& evaluation, const RowTaker& take) {
    const CDataSet& data = evaluation.Data();
    if (data.IsPierless()) return;
    const CPier& first = data.FirstPier();
    RowBuffer row(evaluation.Opened().name.name, take);
    row.Begin(0).OwnText(ToUtf8(data.m_sProjectN)).Integer(std::ssize(data.m_Piers));
    row.OwnText(TypesOf(data));
    row.Text(data.HasCombinations() ? FamilyName(first.m_nCodeFamily) : std::string_view{});
    row.Text(UnitSystemName(evaluation.Units())).Integer(first.m_nAnalysedCases);
    row.Integer(first.m_nLoadCases)
        .Integer(evaluation.Selection().SelectedCount(first.m_nLoadCases))
        .Number(evaluation.Bounds().ratio);
    const Verdict verdict = Judge(evaluation);
    if (const FamilyVerdict* worst = verdict.Worst()) {
        row.Number(worst->worst.ratio).Flag(verdict.passes);
    } else {
        row.Absent(2);  // what nobody could judge does not pass
    }
    for (const Severity severity : {Severity::error, Severity::warning}) {
        row.Integer(std::ranges::count(evaluation.Findings(), severity, &Finding::severity));
    }
    row.OwnText(TimeOf(evaluation.Opened().project.forces.front()->Name()));
    row.Text(ProgramVersion()).Integer(kTablesVersion).Hand();
}

constexpr std::array<Table, 3> kTablesOfVerdict{{
    {"findings", "a finding about the data", kFindingColumns, {0, false, true}, FindingRows},
    {"verdict", "a family of members of a substructure", kVerdictColumns, {0, true, true}, VerdictRows},
    {"projects", "a project", kProjectColumns, {0, true, true}, ProjectRows},
}};

}  // namespace

const std::span<const Table> kVerdictTables = kTablesOfVerdict;

}  // namespace lumerin
