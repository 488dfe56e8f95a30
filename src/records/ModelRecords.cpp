// SPDX-License-Identifier: MIT
#include <array>

#include "framework/Index.h"
#include "model/CapChain.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// ---- cases

constexpr auto kCaseTableColumns = JoinColumns(
    kProjectColumn, Column{"substructure", "empty: the cases are those of the project", ColumnType::integer},
    Column{"case", "number of the case, from 1, as the printed tables count", ColumnType::integer,
           Quantity::none, true},
    Column{"title", "title of the combination; empty where there is none", ColumnType::text},
    Column{"kind", "load case, combination or time step", ColumnType::text},
    Column{"number", "number of the combination in the host's list", ColumnType::integer},
    Column{"limit_state", "limit state; empty where the cases are no combinations", ColumnType::text},
    Column{"class", "limit class; empty where the design code has none", ColumnType::text},
    Column{"chosen", "whether the case takes part in this run", ColumnType::flag});

std::string_view KindOfCases(const CDataSet& data) {
    if (data.m_nAnalysisMode == kModeTimeSteps) return "time step";
    return data.HasCombinations() ? "combination" : "load case";
}

void CaseRows(const Evaluation& evaluation, const RowTaker& take) {
    const CDataSet& data = evaluation.Data();
    if (data.IsPierless()) return;
    RowBuffer row(evaluation.Opened().name.name, take);
    const bool combinations = data.HasCombinations();
    int index = 0;
    for (const CLoadCase& loadCase : data.FirstPier().m_LoadCases) {
        row.Begin(0).Integer(index + 1LL);
        row.OwnText(combinations ? ToUtf8(loadCase.m_sName) : std::string());
        row.Text(KindOfCases(data)).IntegerFrom(1, loadCase.m_nNumber);
        row.Text(LimitStateIn(data, index)).Text(ClassNameOf(data, index));
        row.Flag(evaluation.Selection().IsCaseSelected(index)).Hand();
        ++index;
    }
}

// ---- elements

constexpr auto kElementTableColumns = JoinColumns(
    kPlaceColumns,
    Column{"position", "number of the row in the substructure, from 1", ColumnType::integer, Quantity::none,
           true},
    Column{"record", "record of the element in a case's block of the force file, from 1; empty: masked",
           ColumnType::integer},
    kElementColumn,
    Column{"member_kind", "pile, column, left_cantilever, span, right_cantilever, extra_member or other",
           ColumnType::text},
    Column{"member", "number of the member of that kind; empty: of no member", ColumnType::integer},
    Column{"index", "number of the element in its member, from 1", ColumnType::integer},
    Column{"node_i", "NODE at I", ColumnType::integer}, Column{"node_j", "NODE at J", ColumnType::integer},
    kSectionColumn,
    Column{"x_i", "location of I along the cap, for cap elements", ColumnType::real, Quantity::length},
    Column{"x_j", "location of J along the cap, for cap elements", ColumnType::real, Quantity::length},
    Column{"masked", "whether the model has no such element: it has no forces", ColumnType::flag});

void ElementRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        const CPier& pier = evaluation.Data().m_Piers[p];
        long long position = 0;
        for (const ElementIdentity& identity : evaluation.Identities(p)) {
            row.Begin(p + 1).Integer(++position).IntegerFrom(1, identity.record);
            row.Integer(identity.number).Text(MemberKindName(identity.kind));
            row.IntegerFrom(1, identity.member).IntegerFrom(1, identity.index);
            row.Integer(identity.nodeI).Integer(identity.nodeJ).IntegerFrom(0, identity.section);
            for (const int end : {kEndI, kEndJ}) {
                if (IsCap(identity.kind) && HasCapTables(pier)) {
                    row.Number(CapLocation(pier, pier.NodeCoordinate(identity.Node(end), 0)));
                } else {
                    row.Absent();
                }
            }
            row.Flag(identity.masked).Hand();
        }
    }
}

constexpr std::array<Table, 2> kTablesOfModel{{
    {"cases", "a case", kCaseTableColumns, {}, CaseRows},
    {"elements",
     "an element with forces, or a masked element of the cap",
     kElementTableColumns,
     {},
     ElementRows},
}};

}  // namespace

const std::span<const Table> kModelTables = kTablesOfModel;

}  // namespace lumerin
