// SPDX-License-Identifier: MIT
#include "web/PrintedColumns.h"

#include <array>

#include "framework/Index.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

struct ForceColumn {
    const char* words;
    Quantity quantity;
};
// By component.
constexpr std::array<ForceColumn, kComponents> kForceColumns{{{"FAX", Quantity::force},
                                                              {"F22", Quantity::force},
                                                              {"F33", Quantity::force},
                                                              {"M22", Quantity::moment},
                                                              {"M33", Quantity::moment},
                                                              {"TORQUE", Quantity::moment},
                                                              {"D/C", Quantity::ratio}}};

class Columns {
  public:
    Columns(const CDataSet& data, const TableLayout& layout) : m_data(data), m_layout(layout) {}

    std::vector<HtmlColumn> PileHeads() {
        Add("SUBSTRUCTURE", "");
        Add("PILE", "");
        for (const char* words : {"MAX TENSION", "MAX COMP"}) {
            AddCase();
            Add(words, Unit(Quantity::force));
            Add("D/C", Unit(Quantity::ratio));
        }
        return m_columns;
    }

    std::vector<HtmlColumn> Members() {
        for (const char* words : {"PROP", MemberWord(), "ELEM", "NODE"}) Add(words, "NO.");
        AddCase();
        Add("I/J", "", false);
        if (m_layout.member.forces) Add("MAX/MIN", "FORCE", false);
        for (int component = kAxial; component < kComponents; ++component) AddForce(component);
        return m_columns;
    }

    std::vector<HtmlColumn> Cap() {
        Add("LOCATION", "& SIDE", false);
        for (const char* words : {"ELEM", "PROP", "NODE"}) Add(words, "NO.");
        AddCase();
        Add("I/J", "", false);
        for (std::size_t i = 0; i < m_layout.cap.values; ++i) AddForce(m_layout.cap.valueOrder.at(i));
        return m_columns;
    }

  private:
    void Add(std::string words, std::string lower, bool isNumber = true) {
        m_columns.push_back({std::move(words), std::move(lower), isNumber});
    }

    void AddForce(int component) {
        const ForceColumn& column = kForceColumns.at(Index(component));
        Add(column.words, Unit(column.quantity));
    }

    void AddCase() {
        const bool combinations = m_data.HasCombinations();
        const StepLines words = StepLinesOf(m_layout.head, combinations, m_data.m_nAnalysisMode);
        Add(words.upper == nullptr ? "CASE" : words.upper, words.lower == nullptr ? "" : words.lower);
        if (!combinations) return;
        const std::string_view family = FamilyName(m_data.FirstPier().m_nCodeFamily);
        Add(family.empty() ? "LIMIT STATE" : std::string(family), "", false);
    }

    const char* MemberWord() const {
        if (m_layout.member.family == kXMemberFamily) return "XMEMBR";
        if (m_layout.member.family == kColumnFamily) return "COLUMN";
        return m_data.FirstPier().m_nStructureType == kTypeNoPileTables ? "COLMN" : "PILE";
    }

    std::string Unit(Quantity quantity) const {
        if (quantity == Quantity::ratio) return "(ratio)";
        return "(" + std::string(UnitName(quantity, UnitSystemOf(m_data.m_nUnits))) + ")";
    }

    const CDataSet& m_data;
    const TableLayout& m_layout;
    std::vector<HtmlColumn> m_columns;
};

}  // namespace

std::vector<HtmlColumn> PrintedColumns(const CDataSet& data, const TableLayout& layout) {
    Columns columns(data, layout);
    switch (layout.table) {
        case kTableMaxAxial:
            return columns.PileHeads();
        case kTableCapShear:
        case kTableCapMoment:
            return columns.Cap();
        default:
            return columns.Members();
    }
}

}  // namespace lumerin
