// SPDX-License-Identifier: MIT
#include "records/ElementIdentity.h"

#include <algorithm>
#include <array>

#include "framework/Index.h"
#include "model/CapChain.h"
#include "tables/CapRows.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

struct KindWords {
    std::string_view name, family;
};
// By MemberKind.
constexpr std::array<KindWords, 7> kKinds{{
    {"pile", "pile"},
    {"column", "column"},
    {"left_cantilever", "cap"},
    {"span", "cap"},
    {"right_cantilever", "cap"},
    {"extra_member", "extra_member"},
    {"other", "other"},
}};

const KindWords& WordsOf(MemberKind kind) {
    return kKinds.at(Index(static_cast<int>(kind)));
}

constexpr double kInchesOfAFoot = 12.0;
constexpr int kCenterlineOfMoment = 1;  // the location kind in the moment table

// Builds the list of a substructure's elements.
class Identifier {
  public:
    Identifier(const CPier& pier, const ForceLayout& layout) : m_pier(pier), m_layout(layout) {}

    std::vector<ElementIdentity> Run() {
        AddMembers();
        AddOthers();
        std::ranges::stable_sort(m_found, {}, &ElementIdentity::record);
        const auto sameRecord = [](const ElementIdentity& a, const ElementIdentity& b) {
            return a.record == b.record;
        };
        m_found.erase(std::unique(m_found.begin(), m_found.end(), sameRecord), m_found.end());
        m_found.insert(m_found.end(), m_masked.begin(), m_masked.end());
        return std::move(m_found);
    }

  private:
    void AddMembers() {
        const CFrame& frame = m_pier.m_Frame;
        int number = 0;
        for (const CPile& pile : m_pier.m_Piles) Add(MemberKind::pile, ++number, pile, pile.m_nElements);
        number = 0;
        for (const CColumn& column : frame.m_Columns) {
            Add(MemberKind::column, ++number, column, m_pier.ColumnElements());
        }
        Add(MemberKind::leftCantilever, 1, frame.m_Cantilevers[0], frame.m_Cantilevers[0].m_nElements);
        AddSpans(frame.m_Beam);
        Add(MemberKind::rightCantilever, 1, frame.m_Cantilevers[1], frame.m_Cantilevers[1].m_nElements);
        number = 0;
        for (const CXMember& extra : frame.m_XMembers) Add(MemberKind::extraMember, ++number, extra, 1);
    }

    void AddSpans(const CBeam& beam) {
        const int perSpan = std::max(m_pier.m_nSpanNodes, 0) + 1;
        for (int e = 0; e < beam.m_nElements; ++e) {
            Add(MemberKind::span, e / perSpan + 1, beam.m_nFirstElement + e, e % perSpan + 1);
        }
    }

    void Add(MemberKind kind, int number, const CMember& member, int elements) {
        for (int e = 0; e < elements; ++e) Add(kind, number, member.m_nFirstElement + e, e + 1);
    }

    void Add(MemberKind kind, int member, int element, int index) {
        const CElement& from = m_pier.Element(element);
        const long long record = m_layout.recordOf.empty() ? 0 : m_layout.recordOf.at(Index(element));
        ElementIdentity identity{
            element,       record,          kind, member, index, from.m_nElementNumber, from.m_nNodeI,
            from.m_nNodeJ, from.m_nSection, false};
        if (record > 0) {
            m_found.push_back(identity);
        } else if (IsCap(kind) && m_pier.IsMasked(element)) {
            identity.masked = true;
            m_masked.push_back(identity);
        }
    }

    // The rows of the element table are in the order of their records.
    void AddOthers() {
        int element = m_pier.ElementCount();
        for (const long long record : m_layout.others) {
            ElementIdentity identity;
            identity.element = element++;
            identity.record = record;
            const long long row = record - m_layout.firstFrameRecord;
            if (row >= 0 && row < std::ssize(m_pier.m_Lists.m_Rows)) {
                const CElementRow& from = m_pier.m_Lists.m_Rows[static_cast<std::size_t>(row)];
                identity.number = from.number;
                identity.nodeI = from.nodeI + 1;
                identity.nodeJ = from.nodeJ + 1;
                identity.section = from.section;
            }
            m_found.push_back(identity);
        }
    }

    const CPier& m_pier;
    const ForceLayout& m_layout;
    std::vector<ElementIdentity> m_found, m_masked;
};

std::string EndText(const ElementIdentity& identity, int end) {
    return "element " + std::to_string(identity.number) + (end == kEndI ? " end I" : " end J");
}

std::string PilePlace(const CPier& pier, const ElementIdentity& identity, int end) {
    const std::string pile = "pile " + std::to_string(identity.member);
    // The first element is at the head, which is its end J.
    if (identity.index == 1 && end == kEndJ) return pile + " head";
    const bool last = identity.index == pier.m_Piles.at(Index(identity.member - 1)).m_nElements;
    return last && end == kEndI ? pile + " tip" : pile + " " + EndText(identity, end);
}

std::string ColumnPlace(const CPier& pier, const ElementIdentity& identity, int end) {
    const std::string_view word = MemberShortName(pier.m_nStructureType);
    const std::string column =
        (word.empty() ? "column " : std::string(word) + " ") + std::to_string(identity.member);
    if (identity.index == 1 && end == kEndI) return column + " foot";
    if (identity.index == pier.ColumnElements() && end == kEndJ) return column + " top";
    return column + " " + EndText(identity, end);
}

// The design place at a node of the cap; empty where there is none.
std::string CapPlaceLabel(const CPier& pier, int node) {
    for (int support = 0; support < CapSupportCount(pier); ++support) {
        if (pier.GetSupportNode(support) == node) {
            return CapSupportLabel(kTableCapMoment, pier.m_nStructureType, support, kCenterlineOfMoment);
        }
    }
    for (const CBearingLocation& bearing : pier.m_BearingList) {
        const CBearingRow& row = pier.m_BearingRows.at(Index(bearing.Row()));
        if (row.m_Bearings.at(Index(bearing.m_nBearing)).m_nNode == node) {
            return CapBearingLabel(kTableCapMoment, bearing, 0);
        }
    }
    return {};
}

}  // namespace

std::string_view MemberKindName(MemberKind kind) {
    return WordsOf(kind).name;
}

std::string_view MemberFamilyName(MemberKind kind) {
    return WordsOf(kind).family;
}

bool IsCap(MemberKind kind) {
    return kind == MemberKind::leftCantilever || kind == MemberKind::span ||
           kind == MemberKind::rightCantilever;
}

std::vector<ElementIdentity> IdentifyElements(const CPier& pier, const ForceLayout& layout) {
    return Identifier(pier, layout).Run();
}

std::string PlaceOf(const CPier& pier, const ElementIdentity& identity, int end) {
    switch (identity.kind) {
        case MemberKind::pile:
            return PilePlace(pier, identity, end);
        case MemberKind::column:
            return ColumnPlace(pier, identity, end);
        case MemberKind::extraMember:
            return "extra member " + std::to_string(identity.member) + (end == kEndI ? " end I" : " end J");
        case MemberKind::other:
            return EndText(identity, end);
        default:
            break;
    }
    const std::string label = HasCapTables(pier) ? CapPlaceLabel(pier, identity.Node(end)) : std::string();
    return label.empty() ? EndText(identity, end) : label;
}

double PrintedLength(const CPier& pier, double length) {
    return pier.m_nUnits == 0 ? length / kInchesOfAFoot : length;
}

double CapLocation(const CPier& pier, double x) {
    return PrintedLength(pier, pier.m_nUnits == 0 ? x - pier.m_dLocationX : x);
}

}  // namespace lumerin
