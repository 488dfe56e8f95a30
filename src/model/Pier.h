// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "framework/Index.h"
#include "model/CapTypes.h"
#include "model/Element.h"
#include "model/Members.h"
#include "model/Types.h"
#include "text/Messages.h"

namespace lumerin {

class CaseSelection;

// One substructure of the bridge: its members, geometry and bearings. Its forces are in their file.
// Everything is sized once by the load and never changes after it. Indices count from 0; lengths and
// positions are in inches for US units and in metres for SI.
class CPier {
  public:
    // ---- members

    // Lays the members out in the element list, in the order piles, columns, left cantilever, spans, right
    // cantilever, extra members. Counts below 0 count as 0.
    void AllocateMembers(const struct CMemberCounts& counts, int loadCases);

    int ElementCount() const { return static_cast<int>(m_Elements.size()); }
    CElement& Element(int element) { return m_Elements.at(Index(element)); }
    const CElement& Element(int element) const { return m_Elements.at(Index(element)); }

    // The widths of the columns and the cap; element is an index of the element list, counted from the end of
    // the piles.
    CSectionData& SectionData(int element) { return m_SectionData.at(Index(element - m_nFirstFrameElement)); }
    const CSectionData& SectionData(int element) const {
        return m_SectionData.at(Index(element - m_nFirstFrameElement));
    }
    bool IsMasked(int element) const {
        const int i = element - m_nFirstFrameElement;
        return i >= 0 && i < static_cast<int>(m_Masked.size()) && m_Masked[Index(i)] != 0;
    }
    void SetMasked(int element, bool masked) {
        m_Masked.at(Index(element - m_nFirstFrameElement)) = masked ? 1 : 0;
    }

    int PileElement(int pile, int element) const { return m_Piles[Index(pile)].m_nFirstElement + element; }
    // Allocated elements of each column: one when the column has no interior nodes, none when their count is
    // -1.
    int ColumnElements() const { return std::max(m_nColumnNodes, -1) + 1; }
    int ColumnElement(int column, int element) const {
        return m_Frame.m_Columns[Index(column)].m_nFirstElement + element;
    }
    // The element of a record of tables 1, 2, 5, 6 or 7 by the member family; -1 when the record points at no
    // existing member or element.
    int FindElement(MemberFamily family, int member, int element) const;

    // ---- limit classes

    // Whether the selection's limit classes are exactly the chosen set; each argument is its own class number
    // (0, 1, 2, 3) to ask for the class, anything else (callers pass -1) to require that it is absent.
    bool HasOnlyLimitClasses(const CaseSelection& selection, int a, int b, int c, int d) const;
    // Slots of the result tables, one a limit class: 4 for AASHTO-LRFD, 2 for AREMA, otherwise 1.
    int SlotCount() const;
    std::span<const LimitClass> Slots() const;
    // The slot in which a case (from 0) is searched: its limit class, or slot 0 when the cases are not
    // combinations.
    int SlotOf(int loadCase) const {
        return m_bCombinations ? m_LoadCases[Index(loadCase)].m_nLimitClass : 0;
    }

    // ---- cap geometry and lookups

    void BuildCapGeometry();  // types 0 and 7: cap points, bearing list, counts of the cap's sections
    int GetSupportNode(int support) const;  // -1 for a type without a cap
    double GetSupportX(int support) const;
    double GetSupportWidth(int support) const;
    double GetCantileverEndX(int side) const;  // -999999.0 without cantilevers
    bool IsMomentSection(int support, int kind) const;
    bool IsShearSection(int support, int kind) const;
    // `support` counts from 1; mode 1 shear, 4 moment. False: x is outside the searched range.
    bool LocateOnCap(int support, int kind, double x, int mode, CCapPlace& place) const;
    bool FindElementAtNode(int node, CCapPlace& place, int end) const;
    // The element of the list that has `node` at `end`; -1 after the message.
    int GetElementFromNode(int node, int end, Messages& messages) const;
    // The element of the list at a place; -1 where the cap has none, for a kind that is neither after the
    // message.
    int GetElement(int kind, int index, int element, Messages& messages) const;
    void StepAlongCap(int direction, CCapPlace& place) const;  // 1 backwards, 0 forwards
    double NodeCoordinate(int node, int axis) const;
    bool IsCapElementEnd(int node, int end) const;

    // ---- data

    std::vector<CLoadCase> m_LoadCases;
    std::vector<CPile> m_Piles;
    CFrame m_Frame;
    std::vector<std::array<double, 3>> m_dNodes;  // the substructure's own nodes, foundation nodes left out
    CModelLists m_Lists;
    std::vector<CBearingRow> m_BearingRows;   // none, 1 or 2
    std::vector<std::uint8_t> m_ElementMask;  // 1: no row (index: number - 1)

    std::vector<CBearingLocation> m_BearingList;
    std::vector<double> m_BearingX;
    std::vector<double> m_CapPointX;  // x of each cap node, left to right
    std::vector<int> m_CapPointNode;  // its node number

    int m_nUnits = 0;  // 0 US, anything else SI
    int m_nNodes = 0;  // nodes in the pile file's node list
    int m_nBearingRows = 0;
    StructureType m_nStructureType = kTypePier;
    int m_nCantilevers = 0;                                            // above 0: the cap has cantilevers
    int m_nCantileverNodes = 0, m_nSpanNodes = 0, m_nColumnNodes = 0;  // interior nodes
    int m_nPierNodes = 0, m_nFoundationNodes = 0;
    double m_dLocationX = 0.0;
    int m_nPileSections = 0, m_nColumnSections = 0, m_nXMemberSections = 0;
    int m_nColumns = 0, m_nPiles = 0, m_nExtraMembers = 0;
    int m_nXMemberElements = 1;
    int m_nXMemberFirstSection = 0;
    int m_nCapMomentPoints = 0, m_nCapShearPoints = 0;
    int m_nCapMomentSupports = 0, m_nCapShearSupports = 0;
    int m_nCapBearings = 0;
    int m_nMaxRowBearings = 0;
    int m_nLoadCases = 0;
    int m_nAnalysedCases = 0;  // those that did not converge included
    CodeFamily m_nCodeFamily = kFamilyNone;
    bool m_bCombinations = false;
    std::array<std::uint8_t, 72> m_AshBlockA{};   // of the code family file; carried, not interpreted
    std::array<std::uint8_t, 216> m_AshBlockB{};  // the same

  private:
    std::vector<CElement> m_Elements;
    int m_nFirstFrameElement = 0;  // piles come first in the list; the frame's elements follow
    std::vector<CSectionData> m_SectionData;
    std::vector<std::uint8_t> m_Masked;
};

// The sizes that CPier::AllocateMembers lays out.
struct CMemberCounts {
    int piles = 0, pileNodes = 0;
    int columns = 0, columnNodes = 0;  // a column gets columnNodes + 1 elements
    int spanElements = 0;
    int cantileverElements = 0;  // of each side
    int extraMembers = 0;
};

}  // namespace lumerin
