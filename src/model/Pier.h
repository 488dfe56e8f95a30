#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

#include "model/Element.h"
#include "model/Members.h"
#include "model/Records.h"

// One substructure of the bridge: its members, the forces of every load case, its geometry and bearings, and
// the result tables that the searches fill. Everything is sized once by the load and never grows; forces
// never change after it. Indices count from 0.
class CPier {
  public:
    // ---- members and forces (model/)

    // Lays the members out in the element list, in the order piles, columns, left cantilever, spans, right
    // cantilever, extra members, and takes zeroed forces for all cases. Counts below 0 count as 0. Throws
    // std::bad_alloc when the forces do not fit into memory.
    void AllocateMembers(const struct CMemberCounts& counts, int loadCases);

    int ElementCount() const { return static_cast<int>(m_Elements.size()); }
    CElement& Element(int element) { return m_Elements.at(static_cast<std::size_t>(element)); }
    const CElement& Element(int element) const { return m_Elements.at(static_cast<std::size_t>(element)); }

    // The fourteen floats of an element in a load case. Both indices are trusted: they come from the walk
    // over this substructure's own members.
    ElementForces Forces(int loadCase, int element) const {
        return ElementForces(CaseForces(loadCase) + static_cast<std::size_t>(element) * kForcesPerElement,
                             kForcesPerElement);
    }
    // The forces of all elements of a load case, in the order of the element list.
    std::span<float> MutableCase(int loadCase) {
        return {CaseForces(loadCase), m_Elements.size() * kForcesPerElement};
    }
    std::span<float, kForcesPerElement> MutableForces(int loadCase, int element) {
        return std::span<float, kForcesPerElement>(
            CaseForces(loadCase) + static_cast<std::size_t>(element) * kForcesPerElement, kForcesPerElement);
    }
    // The widths of the columns and the cap; element is an index of the element list behind the piles.
    CSectionData& SectionData(int element) {
        return m_SectionData.at(static_cast<std::size_t>(element - m_nFirstFrameElement));
    }
    const CSectionData& SectionData(int element) const {
        return m_SectionData.at(static_cast<std::size_t>(element - m_nFirstFrameElement));
    }
    bool IsMasked(int element) const {
        const int i = element - m_nFirstFrameElement;
        return i >= 0 && i < static_cast<int>(m_Masked.size()) && m_Masked[static_cast<std::size_t>(i)] != 0;
    }
    void SetMasked(int element, bool masked) {
        m_Masked.at(static_cast<std::size_t>(element - m_nFirstFrameElement)) = masked ? 1 : 0;
    }

    int PileElement(int pile, int element) const {
        return m_Piles[static_cast<std::size_t>(pile)].m_nFirstElement + element;
    }
    // Elements that each column has room for: one without interior nodes has one, with -1 of them none.
    int ColumnElements() const { return std::max(m_nColumnNodes, -1) + 1; }
    int ColumnElement(int column, int element) const {
        return m_Frame.m_Columns[static_cast<std::size_t>(column)].m_nFirstElement + element;
    }
    // The distinct section numbers of a run of elements, in order of first appearance.
    std::vector<int> CollectSections(const CMember& member) const;

    // The element of a record of tables 1, 2, 5, 6 or 7 by the member family; -1 when the record points at no
    // existing member or element.
    enum MemberFamily { kPileFamily, kColumnFamily, kXMemberFamily };
    int FindElement(MemberFamily family, int member, int element) const;

    // ---- selection and limit classes (model/)

    void AllocateCaseSelection(int cases);
    void SelectAllCases();
    bool IsCaseSelected(int index) const;
    void SetCaseSelected(int index, bool selected);
    // Whether the project's limit classes are exactly the chosen set; each argument is its own class number
    // (0, 1, 2, 3) to ask for the class, anything else (by habit -1) to demand that it is absent.
    bool HasOnlyLimitClasses(int a, int b, int c, int d) const;
    // Slots of the result tables: 4 for LRFD, 2 for AREMA, otherwise 1.
    int SlotCount() const;
    // Whether load case `index` takes part in the searches of a slot.
    bool TakesPart(int index, int slot) const {
        return m_CaseSelected[static_cast<std::size_t>(index)] != 0 &&
               (!m_bCombinations || m_LoadCases[static_cast<std::size_t>(index)].m_nLimitClass == slot);
    }
    bool IsClassPresent(int limitClass) const {
        return limitClass >= 0 && limitClass < 4 &&
               m_nFirstOfClass[static_cast<std::size_t>(limitClass)] >= 0;
    }

    // ---- result tables (model/, cap geometry in envelopes/)

    // Once, at the end of the load.
    void AllocateResultTables();

    // ---- pile heads and section maxima (envelopes/)

    void ComputeMaxAxialForces();
    void ComputePileDemandCapacity();
    void ComputeColumnDemandCapacity();
    void ComputePileForces();
    void ComputeColumnForces();
    void ComputeExtraMemberForces();
    // False when a number that the table depends on is not finite; steers the spreadsheet format alone.
    bool CheckMaxAxialData() const;
    bool CheckPileDemandCapacityData() const;
    bool CheckColumnDemandCapacityData() const;
    bool CheckPileForceData() const;
    bool CheckColumnForceData() const;
    bool CheckExtraMemberForceData() const;

    // ---- cap sections and lookups (envelopes/)

    void BuildCapGeometry();  // types 0 and 7: cap points, bearing list, sizes and tables of the cap
    int GetSupportNode(int support) const;  // -1 for a type without a cap
    double GetSupportX(int support) const;
    double GetSupportWidth(int support) const;
    double GetCantileverEndX(int side) const;  // -999999.0 without cantilevers
    bool IsMomentSection(int support, int kind) const;
    bool IsShearSection(int support, int kind) const;
    // `support` counts from 1; mode 1 shear, 4 moment. False: x lies outside the searched stretch.
    bool LocateOnCap(int support, int kind, double x, int mode, CCapPlace& place) const;
    bool FindElementAtNode(int node, CCapPlace& place, int end) const;
    // The element of the list that has `node` at `end`; -1 after the message.
    int GetElementFromNode(int node, int end) const;
    // The element of the list at a place; -1 after the message for a kind that is neither.
    int GetElement(int kind, int index, int element) const;
    void StepAlongCap(int direction, CCapPlace& place) const;  // 1 backwards, 0 forwards
    int NodeFromCapX(double x) const;
    double NodeCoordinate(int node, int axis) const;
    bool IsCapElementEnd(int node, int end) const;

    // ---- cap searches (envelopes/)

    void ComputeCapShearAtSupports();
    void ComputeCapShearAtBearings();
    void MergeShearPoints();
    bool CheckCapShearData() const;
    void ComputeCapMomentAtSupports();
    void ComputeCapMomentAtBearings();
    void MergeMomentPoints();
    bool CheckCapMomentData() const;
    // What comes next along the cap: 0 the support section, 1 the bearing, -1 nothing.
    int NextShearPoint(int supportCursor, int bearingCursor) const;
    int NextMomentPoint(int supportCursor, int bearingCursor) const;

    // ---- data

    std::vector<CLoadCase> m_LoadCases;
    std::vector<CPile> m_Piles;
    CFrame m_Frame;
    std::vector<std::array<double, 3>> m_dNodes;  // the substructure's own nodes, foundation nodes left out
    std::vector<CBearingRow> m_BearingRows;       // none, 1 or 2
    std::vector<std::uint8_t> m_ElementMask;      // 1: that element number (less one) has no row in the table

    std::vector<std::vector<int>> m_ppMaxTension;                // [slot][pile], load case or -1
    std::vector<std::vector<int>> m_ppMaxCompression;            // [slot][pile], load case or -1
    CRecordTable m_PileDc, m_ColumnDc;                           // [section][slot]
    CRecordTable m_PileForces, m_ColumnForces, m_XMemberForces;  // [section][slot][13]

    CCapTable m_MomentSupports;  // [support][slot][kind 0..2][extreme]
    CCapTable m_ShearSupports;   // [support][slot][kind 0..3][extreme]
    CCapTable m_MomentBearings;  // [bearing][slot][row][extreme]
    CCapTable m_ShearBearings;   // [bearing][slot][row * 2 + side][extreme]
    // Lists of fixed length; entries past the last appended keep zeros.
    std::vector<double> m_MomentSupportX, m_ShearSupportX;
    std::vector<CSupportLocation> m_MomentSupportList, m_ShearSupportList;
    std::vector<CBearingLocation> m_BearingList;
    std::vector<double> m_BearingX;
    std::vector<double> m_MomentPointX, m_ShearPointX;  // merged in order of position
    std::vector<double> m_CapPointX;                    // x of each cap node, left to right
    std::vector<int> m_CapPointNode;                    // its node number

    int m_nUnits = 0;  // 0 US, anything else SI
    int m_nNodes = 0;  // nodes in the pile file's node list
    int m_nBearingRows = 0;
    int m_nStructureType = 0;
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
    std::array<int, 4> m_nFirstOfClass{-1, -1, -1, -1};
    int m_nLoadCases = 0;
    int m_nCodeFamily = -1;
    bool m_bCombinations = false;
    std::array<std::uint8_t, 72> m_AshBlockA{};   // of the code family file; carried, not interpreted
    std::array<std::uint8_t, 216> m_AshBlockB{};  // the same
    std::vector<std::uint8_t> m_CaseSelected;     // 1: the case takes part in the tables

    // Whether every force of the family, in every case, is a finite number; found while the forces are read.
    bool m_bPileForcesFinite = true, m_bColumnForcesFinite = true, m_bXMemberForcesFinite = true;
    bool m_bPileHeadsFinite = true;  // D/C and FAX at the head ends

  private:
    struct FreeForces {
        void operator()(float* forces) const { std::free(forces); }  // NOLINT(cppcoreguidelines-no-malloc)
    };
    float* CaseForces(int loadCase) const {
        const std::size_t c = static_cast<std::size_t>(loadCase);
        const std::size_t inBlock = c & ((std::size_t{1} << m_nBlockShift) - 1);
        return m_ForceBlocks[c >> m_nBlockShift].get() + inBlock * m_Elements.size() * kForcesPerElement;
    }
    void AllocateForces();

    std::vector<CElement> m_Elements;
    int m_nFirstFrameElement = 0;  // piles come first in the list; the frame's elements follow
    std::vector<CSectionData> m_SectionData;
    std::vector<std::uint8_t> m_Masked;
    // [load case][element][14], in blocks of whole cases: a 32-bit process finds room for many middling
    // pieces where it finds none for one of a gigabyte.
    std::vector<std::unique_ptr<float[], FreeForces>> m_ForceBlocks;
    unsigned m_nBlockShift = 0;  // a block has 1 << shift cases
};

// The sizes that CPier::AllocateMembers lays out.
struct CMemberCounts {
    int piles = 0, pileNodes = 0;
    int columns = 0, columnNodes = 0;  // a column gets columnNodes + 1 elements
    int spanElements = 0;
    int cantileverElements = 0;  // of each side
    int extraMembers = 0;
};
