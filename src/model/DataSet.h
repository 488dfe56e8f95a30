// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "framework/Object.h"
#include "model/Pier.h"
#include "model/Types.h"

namespace lumerin {

class CaseSelection;

// The project being reported, as its files describe it. The load fills it, and it does not change afterwards.
// The fields from m_nExtraMembers on hold the values of the last substructure; they are used for projects
// with one substructure.
class CDataSet : public CObject {
  public:
    static const CRuntimeClass classCDataSet;
    const CRuntimeClass& GetRuntimeClass() const override { return classCDataSet; }

    // Start values for all fields; the substructures are freed.
    void Reset() { *this = CDataSet(); }
    void FreePiers() { m_Piers.clear(); }

    // The term for one case in a report: "Load Case", "Load Combination" ("Load Comb") or "Time Step".
    std::string GetLoadLabel(bool shortForm, bool plural) const;
    bool HasExtraMembers() const;
    bool HasStructureType(StructureType type) const;
    // Whether an extra member of that substructure (from 0) has an element of that section.
    bool IsExtraMemberSection(std::size_t pier, int section) const;
    // Whether the block of a further limit class follows that of the given one in a table.
    bool HasLaterSection(const CaseSelection& selection, LimitClass limitClass, bool includeFatigue) const;
    // True for AASHTO-LRFD when fatigue is the only class with a case.
    bool HasOnlyFatigue(const CaseSelection& selection) const;

    bool IsPierless() const { return m_Piers.empty(); }
    CPier& FirstPier() { return m_Piers.front(); }
    const CPier& FirstPier() const { return m_Piers.front(); }
    // Load cases that are combinations of the design code, with limit states.
    bool HasCombinations() const { return !m_Piers.empty() && FirstPier().m_bCombinations; }

    std::vector<CPier> m_Piers;
    int m_nAnalysisMode = 0;  // 0 load cases or combinations, 1 time steps
    double m_dNcvReal = 0.0;
    int m_nNcvInteger = 0;
    int m_nUnits = 0;  // 0 US, anything else SI
    int m_nPilesFromNodes = 0;
    int m_nExtraMembers = 0, m_nXMemberSections = 0;
    int m_nSpanNodes = 0, m_nCantileverNodes = 0, m_nColumnNodes = 0;
    int m_nColumnSections = 0;
    StructureType m_nStructureType = kTypePier;
    int m_nColumns = 0, m_nCantilevers = 0;
    int m_nElementGaps = 0;
    int m_nPlfExtraCount = 0;
    int m_nPileNodesTotal = 0, m_nPileElements = 0;
    int m_nElements = 0;  // rows of the element table
    int m_nPilTableSize = 0;
    int m_nSectionRecords = 0, m_nSectionBlocks = 0;
    int m_nPiers = 0;
    int m_nPiles = 0, m_nPileNodes = 0;
    int m_nLoadCases = 0;
    std::string m_sForceUnit, m_sMomentUnit;
    std::string m_sProjectN, m_sProjectT, m_sProjectC, m_sProjectD;
};

inline const CRuntimeClass CDataSet::classCDataSet{"CDataSet", &CObject::classCObject};

}  // namespace lumerin
