#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "framework/Object.h"
#include "model/Pier.h"
#include "session/Constants.h"

// A row of the element table of the pile file.
struct CElementRow {
    int number = 0;                       // element number, from 1
    int nodeI = 0, nodeJ = 0, nodeK = 0;  // from 0
    int section = 0;                      // 1: neither column nor cap
    int last = 0;                         // not used
};

// Everything that the system knows of the project being reported; g_DataSet is the one instance. The fields
// from m_nExtraMembers on are rewritten by the read of each substructure and hold the last one's values.
class CDataSet : public CObject {
  public:
    static const CRuntimeClass classCDataSet;
    const CRuntimeClass& GetRuntimeClass() const override { return classCDataSet; }

    // Start values for all fields and for the session values that go with them. g_DataLoaded becomes true,
    // so that a second show of the dialog in the same call skips the load.
    void Reset();

    // Reads the project at g_ProjectBasePath (results/). False: the message was shown and the data must not
    // be used. Throws CFileException for a missing or broken file.
    bool LoadProject();

    // Which tables exist for this project and selection.
    void SetTableApplicability();
    // The word for one row of a report: "Load Case", "Load Combination" ("Load Comb") or "Time Step".
    std::string GetLoadLabel(bool shortForm, bool plural) const;
    unsigned ChosenTableCount() const;
    bool HasExtraMembers() const;
    bool HasStructureType(int type) const;
    // Whether an extra member of that substructure has an element of that section.
    bool IsExtraMemberSection(unsigned pier, int section) const;
    bool UsesExtraSection(unsigned pier, int section) const { return IsExtraMemberSection(pier, section); }
    // Whether the section of a further limit class follows the given one in a table.
    bool HasLaterSection(int limitClass, bool includeFatigue) const;
    // Nothing but fatigue combinations: true for LRFD when class 3 alone has a case.
    bool HasOnlyFatigue() const;
    void FreePiers() { m_Piers.clear(); }

    bool IsPierless() const { return m_Piers.empty(); }
    CPier& FirstPier() { return m_Piers.front(); }
    const CPier& FirstPier() const { return m_Piers.front(); }

    std::vector<CPier> m_Piers;
    int m_nAnalysisMode = 0;  // 0 load cases or combinations, 1 time steps
    double m_dNcvReal = 0.0;
    int m_nNcvInteger = 0;
    int m_nUnits = 0;  // 0 US, anything else SI
    int m_nPilesFromNodes = 0;
    int m_nExtraMembers = 0, m_nXMemberSections = 0;
    int m_nSpanNodes = 0, m_nCantileverNodes = 0, m_nColumnNodes = 0;
    int m_nColumnSections = 0;
    int m_nStructureType = 0;
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
    bool m_bForceFileShort = false;  // a force file ended early; the user was told, the program reports it
    std::array<bool, kTableCount> m_bTableValid{};
    std::array<bool, kTableCount> m_bTableEnabled{};
};

inline const CRuntimeClass CDataSet::classCDataSet{"CDataSet", &CObject::classCObject};

extern CDataSet g_DataSet;
