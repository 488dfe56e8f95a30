// SPDX-License-Identifier: MIT
#include "cli/WorkbookReport.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>

#include "export/NoteSheet.h"
#include "export/TableSheet.h"
#include "framework/Backend.h"
#include "records/Verdict.h"
#include "tables/Words.h"
#include "text/Clock.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// A printed table, and the rows that it is made of.
struct ReportSheet {
    TableId title;
    const char* sheet;
    std::string_view table;
    std::string_view family;  // of its rows; empty: all
};

// In the order of the full report.
constexpr std::array<ReportSheet, 8> kSheets{{
    {kTableMaxAxial, "Pile axial", "pile_axial", ""},
    {kTablePileDc, "Pile DC", "section_dc", "pile"},
    {kTableColumnDc, "Column DC", "section_dc", "column"},
    {kTableCapShear, "Cap shear", "cap_shear", ""},
    {kTableCapMoment, "Cap moment", "cap_moment", ""},
    {kTablePileForces, "Pile forces", "section_forces", "pile"},
    {kTableColumnForces, "Column forces", "section_forces", "column"},
    {kTableExtraMembers, "Extra members", "section_forces", "extra_member"},
}};

constexpr std::uint8_t kLetter = 1, kA4 = 9;

NoteCell Text(std::string text, CellStyle style = CellStyle::text) {
    return {std::move(text), style};
}

NoteCell Whole(long long number) {
    return {static_cast<double>(number), CellStyle::integer};
}

// The words of a name: "extra_member" as "extra member".
std::string Spaced(std::string name) {
    std::replace(name.begin(), name.end(), '_', ' ');
    return name;
}

class Cover {
  public:
    Cover(Workbook& workbook, const Evaluation& evaluation)
        : m_evaluation(evaluation),
          m_sheet(workbook, "Cover", evaluation.Units() == UnitSystem::us ? kLetter : kA4) {}

    void Write() {
        WriteProject();
        WriteVerdict();
        WriteFindings();
        m_sheet.Finish();
    }

  private:
    void WriteProject();
    void WriteVerdict();
    void WriteFamily(const FamilyVerdict& family);
    void WriteFindings();

    const Evaluation& m_evaluation;
    NoteSheet m_sheet;
};

void Cover::WriteProject() {
    const CDataSet& data = m_evaluation.Data();
    const CPier& first = data.FirstPier();
    m_sheet.Line({Text(ToUtf8(data.m_sProjectN), CellStyle::title)});
    for (const std::string& text : {data.m_sProjectD, data.m_sProjectT, data.m_sProjectC}) {
        if (!text.empty()) m_sheet.Line({Text(ToUtf8(text))});
    }
    m_sheet.Gap();
    const auto line = [this](const char* label, const std::string& text) {
        if (!text.empty()) m_sheet.Line({Text(label, CellStyle::label), Text(text)});
    };
    line("Project", m_evaluation.Opened().name.name);
    line("Code", data.HasCombinations() ? std::string(FamilyName(first.m_nCodeFamily)) : std::string());
    line("Units", m_evaluation.Units() == UnitSystem::us ? "kips, feet, inches" : "kilonewtons, metres");
    const int chosen = m_evaluation.Selection().SelectedCount(first.m_nLoadCases);
    line("Cases", std::to_string(chosen) + " of " + std::to_string(first.m_nLoadCases) + " converged ones");
    line("Made by", "lumerin " + std::string(ProgramVersion()));
    m_sheet.Gap();
}

void Cover::WriteVerdict() {
    const Verdict verdict = Judge(m_evaluation);
    m_sheet.Line({Text("Verdict", CellStyle::title)});
    if (const FamilyVerdict* worst = verdict.Worst()) {
        const EndRatio& end = worst->worst;
        m_sheet.Line(
            {Text(verdict.passes ? "PASSES" : "FAILS", verdict.passes ? CellStyle::good : CellStyle::bad),
             Text("D/C " + RatioText(AsDouble(end.ratio), worst->limit) + " at " + end.place + ", case " +
                      std::to_string(end.loadCase) + (end.limitState.empty() ? "" : " " + end.limitState),
                  CellStyle::label)});
    } else {
        m_sheet.Line({Text("NONE", CellStyle::bad),
                      Text("no element has a ratio in the chosen cases", CellStyle::label)});
    }
    m_sheet.Gap();
    std::vector<NoteCell> head;
    for (const char* name : {"Substructure", "Family", "D/C", "Limit", "Place", "Element", "End", "Case",
                             "Limit state", "Ends over", "Ends"}) {
        head.push_back(Text(name, CellStyle::head));
    }
    m_sheet.Line(head);
    for (const FamilyVerdict& family : verdict.families) WriteFamily(family);
    for (const HeadVerdict& pile : verdict.heads) {
        std::string force;
        AppendNumber(force, pile.force);
        m_sheet.Line({Whole(pile.substructure),
                      Text("pile head"),
                      {std::fabs(AsDouble(pile.force)) / pile.capacity,
                       pile.passes ? CellStyle::real : CellStyle::bad},
                      {1.0, CellStyle::real},
                      Text("pile " + std::to_string(pile.pile) + " head, " +
                           (pile.tension ? "tension " : "compression ") + force),
                      Text(""),
                      Text(""),
                      Whole(pile.loadCase),
                      Text(pile.limitState)});
    }
    m_sheet.Gap();
}

void Cover::WriteFamily(const FamilyVerdict& family) {
    const EndRatio& worst = family.worst;
    m_sheet.Line({Whole(worst.substructure),
                  Text(Spaced(worst.family)),
                  {AsDouble(worst.ratio), family.passes ? CellStyle::real : CellStyle::bad},
                  {family.limit, CellStyle::real},
                  Text(worst.place),
                  Whole(worst.element),
                  Text(worst.end == 0 ? "I" : "J"),
                  Whole(worst.loadCase),
                  Text(worst.limitState),
                  Whole(family.endsOver),
                  Whole(family.ends)});
}

void Cover::WriteFindings() {
    m_sheet.Line({Text("Findings about the data", CellStyle::title)});
    if (m_evaluation.Findings().empty()) m_sheet.Line({Text("none")});
    for (const Finding& finding : m_evaluation.Findings()) {
        const bool isError = finding.severity == Severity::error;
        m_sheet.Line(
            {Text(std::string(SeverityName(finding.severity)), isError ? CellStyle::bad : CellStyle::label),
             Text(finding.file),
             Text(finding.text +
                  (finding.firstPlace.empty() ? "" : " (first: " + finding.firstPlace + ")"))});
    }
}

// A sheet is made with its first row, so that no table is there without one.
class SheetOfRows {
  public:
    SheetOfRows(Workbook& workbook, const Evaluation& evaluation, const ReportSheet& sheet)
        : m_workbook(workbook), m_evaluation(evaluation), m_sheet(sheet), m_table(*FindTable(sheet.table)) {
        // What is the same in every row of the sheet says nothing.
        for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
            const std::string_view name = m_table.columns[i].name;
            if (name == "family") m_family = i;
            if (name == "project" || (name == "family" && !sheet.family.empty())) continue;
            m_shown.push_back(i);
        }
    }

    void Write() {
        EachRow(m_table, m_evaluation, m_evaluation.Units(),
                [this](std::span<const Value> row) { TakeRow(row); });
        if (m_rows) m_rows->Finish();
    }

  private:
    void TakeRow(std::span<const Value> row) {
        if (!m_sheet.family.empty() && std::get<std::string_view>(row[m_family]) != m_sheet.family) return;
        if (!m_rows) Begin();
        m_cells.clear();
        for (const std::size_t column : m_shown) m_cells.push_back(&row[column]);
        m_rows->Row(m_cells);
    }

    void Begin() {
        std::vector<const Column*> columns;
        for (const std::size_t column : m_shown) columns.push_back(&m_table.columns[column]);
        const StructureType type = m_evaluation.Data().FirstPier().m_nStructureType;
        std::string title = TableTitle(m_sheet.title, type);
        // A table that the first substructure's type has no title for still has rows of the others.
        if (title.empty()) title = m_sheet.sheet;
        m_rows.emplace(m_workbook,
                       SheetLook{m_sheet.sheet, title, m_evaluation.Bounds().ratio, m_evaluation.Units()},
                       columns);
    }

    Workbook& m_workbook;
    const Evaluation& m_evaluation;
    const ReportSheet& m_sheet;
    const Table& m_table;
    std::size_t m_family = 0;
    std::vector<std::size_t> m_shown;
    std::vector<const Value*> m_cells;
    std::optional<TableSheet> m_rows;
};

}  // namespace

TableNeeds WorkbookReportNeeds() {
    std::vector<const Table*> tables{FindTable("verdict")};
    for (const ReportSheet& sheet : kSheets) tables.push_back(FindTable(sheet.table));
    return NeedsOf(tables);
}

void WriteWorkbookReport(const Evaluation& evaluation, const std::string& path) {
    Workbook workbook(path, DocumentTime());
    workbook.SetTitle(ToUtf8(evaluation.Data().m_sProjectN));
    Cover(workbook, evaluation).Write();
    for (const ReportSheet& sheet : kSheets) SheetOfRows(workbook, evaluation, sheet).Write();
    workbook.Close();
}

}  // namespace lumerin
