// SPDX-License-Identifier: MIT
#include <array>
#include <vector>

#include "framework/Index.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"

namespace lumerin {

namespace {

constexpr Column kPileColumn{"pile", "number of the pile", ColumnType::integer, Quantity::none, true};
constexpr Column kRecordColumn{"record", "record of the element in a case's block of the force file, from 1",
                               ColumnType::integer, Quantity::none, true};
constexpr Column kKindColumn{"member_kind",
                             "pile, column, left_cantilever, span, right_cantilever, extra_member or other",
                             ColumnType::text};
constexpr Column kMemberColumn{"member", "number of the member of that kind; empty: of no member",
                               ColumnType::integer};
constexpr Column kCaseKeyColumn = AsKey(kCaseColumns[0]);

// ---- pile heads

constexpr auto kPileHeadColumns =
    JoinColumns(kPlaceColumns, kPileColumn, kElementColumn, kCaseKeyColumn, kForceColumns, kRatioColumn);

void PileHeadRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        const CPier& pier = evaluation.Data().m_Piers[p];
        evaluation.Rows().EachCase(p, [&](int loadCase, CaseForces forces) {
            if (!evaluation.Selection().IsCaseSelected(loadCase)) return;
            for (int pile = 0; pile < static_cast<int>(pier.m_Piles.size()); ++pile) {
                const int element = pier.FindElement(kPileFamily, pile, 0);
                if (element < 0) continue;
                row.Begin(p + 1).Integer(pile + 1LL).Integer(pier.Element(element).m_nElementNumber);
                row.Integer(loadCase + 1LL);
                for (int component = kAxial; component <= kDemandCapacity; ++component) {
                    row.Number(ForcesOf(forces, element)[kComponents + Index(component)]);
                }
                row.Hand();
            }
        });
    }
}

// ---- the greatest ratio of each element end

constexpr auto kElementDcColumns = JoinColumns(
    kPlaceColumns, kRecordColumn, kElementColumn, kKindColumn, kMemberColumn,
    Column{"index", "number of the element in its member, from 1", ColumnType::integer}, AsKey(kEndColumn),
    kNodeColumn, kSectionColumn, kClassColumn, kRatioColumn, kCaseColumns, kForceColumns);

void AddEnd(const Evaluation& evaluation, std::size_t p, const ElementIdentity& identity, int end,
            LimitClass slot, RowBuffer& row) {
    const EndExtreme& best = evaluation.Elements()[p].Ratio(slot, identity.element, end);
    row.Begin(p + 1).Integer(identity.record).Integer(identity.number).Text(MemberKindName(identity.kind));
    row.IntegerFrom(1, identity.member).IntegerFrom(1, identity.index).Text(EndName(end));
    row.Integer(identity.Node(end)).IntegerFrom(0, identity.section);
    row.Text(ClassNameIn(evaluation, slot));
    if (best.loadCase < 0) {
        row.Absent(1 + kCaseColumns.size() + kForceColumns.size());
        return;
    }
    row.Number(best.value).Integer(best.loadCase + 1LL);
    row.Text(LimitStateIn(evaluation.Data(), best.loadCase));
    row.Forces(evaluation.Rows().At(p, best.loadCase, identity.element), end, kDemandCapacity);
}

void ElementDcRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        for (const ElementIdentity& identity : evaluation.Identities(p)) {
            if (identity.masked) continue;
            for (const int end : {kEndI, kEndJ}) {
                for (const LimitClass slot : ClassesOf(evaluation)) {
                    if (slot >= evaluation.Elements()[p].classes) continue;
                    AddEnd(evaluation, p, identity, end, slot, row);
                    row.Hand();
                }
            }
        }
    }
}

// ---- all forces

constexpr auto kElementForceColumns =
    JoinColumns(kPlaceColumns, kRecordColumn, kElementColumn, kKindColumn, kMemberColumn, AsKey(kEndColumn),
                kNodeColumn, kCaseKeyColumn, kForceColumns, kRatioColumn);

// A record that the file does not have has no forces here; the printed tables repeat those of an earlier one.
void ElementForceRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        const ForceLayout layout = evaluation.Opened().project.forces[p]->Layout();
        evaluation.Rows().EachCase(p, [&](int loadCase, CaseForces forces) {
            if (!evaluation.Selection().IsCaseSelected(loadCase)) return;
            for (const ElementIdentity& identity : evaluation.Identities(p)) {
                if (identity.masked) continue;
                const bool isThere = layout.HasRecord(loadCase, identity.record);
                const ElementForces element = ForcesOf(forces, identity.element);
                for (const int end : {kEndI, kEndJ}) {
                    row.Begin(p + 1).Integer(identity.record).Integer(identity.number);
                    row.Text(MemberKindName(identity.kind)).IntegerFrom(1, identity.member);
                    row.Text(EndName(end)).Integer(identity.Node(end)).Integer(loadCase + 1LL);
                    for (int component = kAxial; component < kComponents; ++component) {
                        if (isThere) {
                            row.Number(element[Index(end) * kComponents + Index(component)]);
                        } else {
                            row.Absent();
                        }
                    }
                    row.Hand();
                }
            }
        });
    }
}

constexpr std::array<Table, 3> kTablesOfElement{{
    {"pile_heads", "a pile head and case", kPileHeadColumns, {}, PileHeadRows},
    {"element_dc", "an element end and limit class", kElementDcColumns, {0, true, false}, ElementDcRows},
    {"element_forces",
     "a record of the force file, element end and case",
     kElementForceColumns,
     {},
     ElementForceRows},
}};

}  // namespace

const std::span<const Table> kElementTables = kTablesOfElement;

}  // namespace lumerin
