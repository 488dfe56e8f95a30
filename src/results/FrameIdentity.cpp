// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "results/Identity.h"

namespace lumerin {

namespace {

// The foundation's four elements a column come first in the element table, where there is a pile cap.
int FoundationElements(const CPier& pier) {
    switch (pier.m_nStructureType) {
        case kTypePier:
            return pier.m_nFoundationNodes >= 2 ? 4 * pier.m_nColumns : 0;
        case kTypeWallA:
        case kTypeWallB:
            return 4 * pier.m_nColumns;
        default:
            return 0;
    }
}

// The elements of a column that are numbered: a bent's supports are piles and have none of their own.
int ColumnElements(const CPier& pier) {
    return pier.m_nStructureType == kTypePileBent ? 0 : pier.ColumnElements();
}

// The running element and node numbers of a frame.
class FrameNumbering {
  public:
    explicit FrameNumbering(CPier& pier) : m_pier(pier) {
        const StructureType type = pier.m_nStructureType;
        m_element = FoundationElements(pier) + 1;
        if (type == kTypePier || type == kTypeMast || type == kTypeWallA || type == kTypeWallB) {
            m_node = pier.m_nFoundationNodes + 1;
        } else if (!pier.m_Piles.empty() && pier.m_Piles[0].m_nElements > 0) {
            m_node = pier.Element(pier.m_Piles[0].m_nFirstElement).m_nNodeI;
        }
    }

    void Number() {
        const bool isPier = m_pier.m_nStructureType == kTypePier;
        const bool hasCap = isPier || m_pier.m_nStructureType == kTypePileBent;
        for (int i = 0; i < m_pier.m_nColumns; ++i) {
            NumberColumn(i);
            if (i == 0) NumberLeftCantilever();
            if (!hasCap) continue;
            if (i == m_pier.m_nColumns - 1) {
                if (isPier && m_pier.m_nColumns >= 2) ++m_node;
                NumberRightCantilever(i);
            } else {
                if (isPier && i > 0) ++m_node;
                NumberSpan(i);
            }
        }
        CloseSpans();
    }

  private:
    CElement& Next(const CMember& member, int e) {
        CElement& element = m_pier.Element(member.m_nFirstElement + e);
        element.m_nElementNumber = m_element++;
        return element;
    }

    void NumberColumn(int i) {
        const CMember& column = m_pier.m_Frame.m_Columns[Index(i)];
        for (int e = 0; e < ColumnElements(m_pier); ++e) {
            CElement& element = Next(column, e);
            element.m_nNodeI = m_node;
            element.m_nNodeJ = ++m_node;
        }
        m_columnTops.push_back(m_node);
    }

    // The node at which a support meets the cap.
    int TopNode(int support) const {
        const std::size_t s = Index(support);
        if (m_pier.m_nStructureType != kTypePileBent) return m_columnTops.at(s);
        if (s >= m_pier.m_Piles.size() || m_pier.m_Piles[s].m_nElements < 1) return 0;
        return m_pier.Element(m_pier.m_Piles[s].m_nFirstElement).m_nNodeJ;
    }

    void NumberLeftCantilever() {
        const CMember& cantilever = m_pier.m_Frame.m_Cantilevers[0];
        if (m_pier.m_nStructureType == kTypePileBent) m_node = m_pier.m_nPiles;
        ++m_node;
        for (int e = 0; e < cantilever.m_nElements; ++e) {
            CElement& element = Next(cantilever, e);
            element.m_nNodeI = m_node;
            element.m_nNodeJ = e == cantilever.m_nElements - 1 ? TopNode(0) : m_node + 1;
            ++m_node;
        }
    }

    void NumberRightCantilever(int support) {
        const CMember& cantilever = m_pier.m_Frame.m_Cantilevers[1];
        for (int e = 0; e < cantilever.m_nElements; ++e) {
            CElement& element = Next(cantilever, e);
            if (e == 0) {
                element.m_nNodeI = TopNode(support);
                element.m_nNodeJ = m_node;
            } else {
                element.m_nNodeI = m_node;
                element.m_nNodeJ = ++m_node;
            }
        }
    }

    int SpanElements() const { return std::max(m_pier.m_nSpanNodes, -1) + 1; }

    void NumberSpan(int span) {
        const CMember& beam = m_pier.m_Frame.m_Beam;
        const int count = SpanElements();
        for (int e = 0; e < count && count * span + e < beam.m_nElements; ++e) {
            CElement& element = Next(beam, count * span + e);
            if (e == 0) {
                element.m_nNodeI = TopNode(span);
                element.m_nNodeJ = m_node;
            } else {
                element.m_nNodeI = m_node;
                element.m_nNodeJ = e == count - 1 ? 0 : m_node + 1;
                ++m_node;
            }
        }
    }

    // The last element of each span ends at the next support.
    void CloseSpans() {
        const CMember& beam = m_pier.m_Frame.m_Beam;
        const int count = SpanElements();
        for (int span = 0; span < m_pier.m_nColumns - 1; ++span) {
            const int last = count * (span + 1) - 1;
            if (last < 0 || last >= beam.m_nElements) return;
            m_pier.Element(beam.m_nFirstElement + last).m_nNodeJ = TopNode(span + 1);
        }
    }

    CPier& m_pier;
    int m_element = 1;
    int m_node = 0;
    std::vector<int> m_columnTops;
};

// Goes through the element table and the mask together and gives each element its row's section.
class SectionCursor {
  public:
    SectionCursor(CPier& pier, const PierModel& model, bool useMask)
        : m_pier(pier), m_model(model), m_useMask(useMask) {
        m_row = m_mask = Index(FoundationElements(pier));
    }

    void Assign(int firstElement, int count) {
        for (int e = 0; e < count; ++e) {
            CElement& element = m_pier.Element(firstElement + e);
            const bool masked =
                m_useMask && m_mask < m_model.elementMask.size() && m_model.elementMask[m_mask] != 0;
            ++m_mask;
            if (masked) {
                element.m_nSection = -1;
            } else if (m_row < m_model.elementTable.size()) {
                element.m_nSection = m_model.elementTable[m_row++].section;
            }
        }
    }

  private:
    CPier& m_pier;
    const PierModel& m_model;
    bool m_useMask;
    std::size_t m_row = 0, m_mask = 0;
};

// Runs `column` and `cap` over the members of a frame in the order of the element table: for a pier each
// column followed by the part of the cap on its right, for a bent the cap alone.
template <class ColumnStep, class CapStep>
void WalkFrame(const CPier& pier, ColumnStep column, CapStep cap) {
    const CFrame& frame = pier.m_Frame;
    const bool isBent = pier.m_nStructureType == kTypePileBent;
    const int spanElements = std::max(pier.m_nSpanNodes, -1) + 1;
    const auto capStep = [&cap](const CMember& member, int from, int count) {
        const int inside = std::clamp(member.m_nElements - from, 0, count);
        cap(member.m_nFirstElement + from, inside);
    };
    if (isBent) {
        for (const CMember* member : {static_cast<const CMember*>(&frame.m_Cantilevers[0]),
                                      static_cast<const CMember*>(&frame.m_Beam),
                                      static_cast<const CMember*>(&frame.m_Cantilevers[1])}) {
            capStep(*member, 0, member->m_nElements);
        }
        return;
    }
    for (int i = 0; i < pier.m_nColumns; ++i) {
        column(i);
        if (i == 0) capStep(frame.m_Cantilevers[0], 0, frame.m_Cantilevers[0].m_nElements);
        if (i < pier.m_nColumns - 1) capStep(frame.m_Beam, spanElements * i, spanElements);
    }
    capStep(frame.m_Cantilevers[1], 0, frame.m_Cantilevers[1].m_nElements);
}

}  // namespace

void NumberElements(CPier& pier) {
    FrameNumbering(pier).Number();
}

void AssignMemberSections(CPier& pier, const PierModel& model) {
    const StructureType type = pier.m_nStructureType;
    const bool hasCap = type == kTypePier || type == kTypePileBent;
    if (!hasCap && type != kTypeMast && type != kTypeWallA && type != kTypeWallB) return;
    SectionCursor cursor(pier, model, hasCap);
    const auto column = [&](int i) { cursor.Assign(pier.ColumnElement(i, 0), pier.ColumnElements()); };
    const auto cap = [&](int first, int count) { cursor.Assign(first, count); };
    if (hasCap) {
        WalkFrame(pier, column, cap);
        return;
    }
    // Masts and walls have one column with sections.
    if (pier.m_nColumns > 0) column(0);
    const CMember& left = pier.m_Frame.m_Cantilevers[0];
    if (type == kTypeMast) cap(left.m_nFirstElement, left.m_nElements);
}

void ApplyElementMask(CPier& pier, StructureType firstType) {
    const StructureType type = pier.m_nStructureType;
    if ((firstType != kTypePier && firstType != kTypePileBent) ||
        (type != kTypePier && type != kTypePileBent))
        return;
    std::size_t cursor = Index(FoundationElements(pier));
    WalkFrame(
        pier, [&](int) { cursor += Index(pier.ColumnElements()); },
        [&](int first, int count) {
            for (int e = 0; e < count; ++e, ++cursor) {
                pier.SetMasked(first + e,
                               cursor < pier.m_ElementMask.size() && pier.m_ElementMask[cursor] != 0);
            }
        });
}

}  // namespace lumerin
