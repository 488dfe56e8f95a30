// SPDX-License-Identifier: MIT
#include <array>
#include <string>

#include "framework/Index.h"
#include "model/CapChain.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"
#include "tables/CapRows.h"

namespace lumerin {

namespace {

// ---- the design places of the cap

constexpr auto kCapColumns = JoinColumns(
    kPlaceColumns,
    Column{"place", "design place as the printed table labels it: Col 1 LF, Brg 2 L LR", ColumnType::text},
    Column{"side", "left or right of a bearing, in the shear table", ColumnType::text}, kClassColumn,
    Column{"extreme", "max or min", ColumnType::text, Quantity::none, true},
    Column{"row", "number of the row in its block, from 1", ColumnType::integer, Quantity::none, true},
    Column{"x", "location along the cap", ColumnType::real, Quantity::length},
    Column{
        "status",
        "ok; missing: no element there, or a masked one; none: no element on that side, or no chosen case; "
        "unused: the row repeats a section that the cap does not have, as the printed table does",
        ColumnType::text},
    kElementColumn, kSectionColumn,
    Column{"nodes", "NODE number; both nodes of an element that contains the place: 20,24", ColumnType::text},
    Column{"end", "end of the element, I or J; I,J inside it", ColumnType::text}, kCaseColumns, kForceColumns,
    kRatioColumn);

constexpr std::array<std::string_view, 2> kExtremeWords{"max", "min"};

std::string_view EndOf(const CCapRecord& record) {
    if (record.m_nEnd == kInsideElement) return "I,J";
    return record.m_nEnd == kEndI || record.m_nEnd == kEndJ ? EndName(record.m_nEnd) : "";
}

// The tests go in the order of the printed tables.
std::string_view StatusOf(const CCapRow& row) {
    const CCapRecord& record = row.pEntry->record;
    if (row.bUnused) return "unused";
    if (record.m_nMissing == 1) return "missing";
    return !row.bSideHasResult || record.m_nLoadCase < 0 ? "none" : "ok";
}

// A value at an element end is a float of the force file; one inside an element was interpolated.
void AddValue(double value, RowBuffer& row) {
    const auto single = static_cast<float>(value);
    if (static_cast<double>(single) == value) {
        row.Number(single);
    } else {
        row.Number(value);
    }
}

void AddEntry(const CDataSet& data, const CCapRow& from, RowBuffer& row) {
    const CCapRecord& record = from.pEntry->record;
    if (record.m_nMissing == 1) {
        row.Absent(6 + kForceColumns.size() + 1);
        return;
    }
    row.Integer(record.m_nElementNumber).IntegerFrom(0, record.m_nSection);
    const bool inside = !from.bBearing && record.m_nEnd == kInsideElement;
    const std::string node = std::to_string(record.m_nNode);
    row.OwnText(inside ? node + "," + std::to_string(record.m_nSecondNode) : node);
    if (!from.bSideHasResult || record.m_nLoadCase < 0) {
        row.Absent(3 + kForceColumns.size() + 1);
        return;
    }
    row.Text(EndOf(record)).Integer(record.m_nLoadCase + 1LL);
    row.Text(LimitStateIn(data, record.m_nLoadCase));
    for (const double value : from.pEntry->values) AddValue(value, row);
}

void CapRows(const Evaluation& evaluation, TableId table, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    const CDataSet& data = evaluation.Data();
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        const PierResults& results = evaluation.Results().piers[p];
        const std::vector<double>& points =
            table == kTableCapShear ? results.shearPointX : results.momentPointX;
        for (int extreme = 0; extreme < 2; ++extreme) {
            for (const LimitClass slot : ClassesOf(evaluation)) {
                int number = 0;
                WalkCap({table, data.m_Piers[p], results, slot, extreme}, [&](const CCapRow& from) {
                    row.Begin(p + 1).OwnText(from.sLabel);
                    const bool sided = from.bBearing && table == kTableCapShear;
                    row.Text(!sided ? "" : from.nSide == 0 ? "left" : "right");
                    row.Text(ClassNameIn(evaluation, slot)).Text(kExtremeWords[Index(extreme)]);
                    row.Integer(++number);
                    const auto at = Index(from.nPoint);
                    if (at < points.size() && !from.bUnused) {
                        row.Number(CapLocation(data.m_Piers[p], points[at]));
                    } else {
                        row.Absent();
                    }
                    row.Text(StatusOf(from));
                    AddEntry(data, from, row);
                    row.Hand();
                });
            }
        }
    }
}

// ---- the envelopes of the cap's element ends

constexpr auto kEnvelopeColumns =
    JoinColumns(kPlaceColumns,
                Column{"record", "record of the element in a case's block of the force file, from 1",
                       ColumnType::integer, Quantity::none, true},
                kElementColumn, AsKey(kEndColumn), kNodeColumn,
                Column{"x", "location along the cap", ColumnType::real, Quantity::length}, kClassColumn,
                Column{"max_shear", "greatest F22", ColumnType::real, Quantity::force},
                Column{"max_shear_case", "its case", ColumnType::integer},
                Column{"min_shear", "least F22", ColumnType::real, Quantity::force},
                Column{"min_shear_case", "its case", ColumnType::integer},
                Column{"max_moment", "greatest M33", ColumnType::real, Quantity::moment},
                Column{"max_moment_case", "its case", ColumnType::integer},
                Column{"min_moment", "least M33", ColumnType::real, Quantity::moment},
                Column{"min_moment_case", "its case", ColumnType::integer});

void AddExtreme(const EndExtreme& extreme, RowBuffer& row) {
    if (extreme.loadCase < 0) {
        row.Absent(2);
    } else {
        row.Number(extreme.value).Integer(extreme.loadCase + 1LL);
    }
}

void EnvelopeRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    const CDataSet& data = evaluation.Data();
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        const CPier& pier = data.m_Piers[p];
        if (!HasCapTables(pier)) continue;
        const ElementResults& results = evaluation.Elements()[p];
        for (const ElementIdentity& identity : evaluation.Identities(p)) {
            if (!IsCap(identity.kind) || identity.masked) continue;
            for (const int end : {kEndI, kEndJ}) {
                for (const LimitClass slot : ClassesOf(evaluation)) {
                    if (slot >= results.classes) continue;
                    const CapEnvelopeEnd& ends =
                        results.Cap(slot, identity.element - results.firstCapElement, end);
                    row.Begin(p + 1).Integer(identity.record).Integer(identity.number).Text(EndName(end));
                    row.Integer(identity.Node(end));
                    row.Number(CapLocation(pier, pier.NodeCoordinate(identity.Node(end), 0)));
                    row.Text(ClassNameIn(evaluation, slot));
                    AddExtreme(ends.greatestShear, row);
                    AddExtreme(ends.leastShear, row);
                    AddExtreme(ends.greatestMoment, row);
                    AddExtreme(ends.leastMoment, row);
                    row.Hand();
                }
            }
        }
    }
}

constexpr std::array<Table, 3> kTablesOfCap{{
    {"cap_shear",
     "a design place of the cap, side, limit class and extreme of the shear F22",
     kCapColumns,
     {SearchBit(kTableCapShear), false, false},
     [](const Evaluation& evaluation, const RowTaker& take) { CapRows(evaluation, kTableCapShear, take); }},
    {"cap_moment",
     "a design place of the cap, limit class and extreme of the moment M33",
     kCapColumns,
     {SearchBit(kTableCapMoment), false, false},
     [](const Evaluation& evaluation, const RowTaker& take) { CapRows(evaluation, kTableCapMoment, take); }},
    {"cap_envelope",
     "an element end of the cap and limit class",
     kEnvelopeColumns,
     {0, true, false},
     EnvelopeRows},
}};

}  // namespace

const std::span<const Table> kCapTables = kTablesOfCap;

}  // namespace lumerin
