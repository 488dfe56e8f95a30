#include "model/DataSet.h"

#include <algorithm>

#include "session/Session.h"

CDataSet g_DataSet;

void CDataSet::Reset() {
    m_Piers.clear();
    m_nAnalysisMode = 0;
    m_dNcvReal = 0.0;
    m_bForceFileShort = false;
    m_nNcvInteger = 0;
    for (int* count :
         {&m_nUnits,           &m_nPilesFromNodes, &m_nExtraMembers,   &m_nXMemberSections, &m_nSpanNodes,
          &m_nCantileverNodes, &m_nColumnNodes,    &m_nColumnSections, &m_nStructureType,   &m_nColumns,
          &m_nCantilevers,     &m_nElementGaps,    &m_nPlfExtraCount,  &m_nPileNodesTotal,  &m_nPileElements,
          &m_nElements,        &m_nPilTableSize,   &m_nSectionRecords, &m_nSectionBlocks,   &m_nPiers,
          &m_nPiles,           &m_nPileNodes,      &m_nLoadCases}) {
        *count = 0;
    }
    for (std::string* text :
         {&m_sForceUnit, &m_sMomentUnit, &m_sProjectN, &m_sProjectT, &m_sProjectC, &m_sProjectD}) {
        text->clear();
    }
    g_FooterOn = g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 0;
    g_ReportFormat = 0;
    g_AllLoadCases = true;
    m_bTableValid.fill(true);
    m_bTableEnabled.fill(false);
    g_DataLoaded = true;
}

std::string CDataSet::GetLoadLabel(bool shortForm, bool plural) const {
    std::string label = "Load Case";
    if (m_nAnalysisMode == 1) {
        label = "Time Step";
    } else if (m_nAnalysisMode == 0 && !m_Piers.empty() && FirstPier().m_bCombinations) {
        label = shortForm ? "Load Comb" : "Load Combination";
    }
    return plural ? label + "s" : label;
}

unsigned CDataSet::ChosenTableCount() const {
    return static_cast<unsigned>(std::count(m_bTableEnabled.begin(), m_bTableEnabled.end(), true));
}

bool CDataSet::HasExtraMembers() const {
    return std::any_of(m_Piers.begin(), m_Piers.end(),
                       [](const CPier& pier) { return pier.m_nExtraMembers > 0; });
}

bool CDataSet::HasStructureType(int type) const {
    return std::any_of(m_Piers.begin(), m_Piers.end(),
                       [type](const CPier& pier) { return pier.m_nStructureType == type; });
}

bool CDataSet::IsExtraMemberSection(unsigned pier, int section) const {
    if (pier >= m_Piers.size()) return false;
    const CPier& owner = m_Piers[pier];
    return std::any_of(
        owner.m_Frame.m_XMembers.begin(), owner.m_Frame.m_XMembers.end(), [&](const CXMember& member) {
            return member.m_nElements > 0 && owner.Element(member.m_nFirstElement).m_nSection == section;
        });
}

bool CDataSet::HasLaterSection(int limitClass, bool includeFatigue) const {
    if (m_Piers.empty()) return false;
    const CPier& first = FirstPier();
    if (first.m_nCodeFamily == kFamilyArema) return limitClass == 0 && first.IsClassPresent(1);
    if (first.m_nCodeFamily != kFamilyLrfd || limitClass < 0 || limitClass > 2) return false;
    if (includeFatigue && first.IsClassPresent(3)) return true;
    if (limitClass == 0) return first.IsClassPresent(1) || first.IsClassPresent(2);
    return limitClass == 1 && first.IsClassPresent(2);
}

bool CDataSet::HasOnlyFatigue() const {
    return !m_Piers.empty() && FirstPier().m_nCodeFamily == kFamilyLrfd &&
           FirstPier().HasOnlyLimitClasses(-1, -1, -1, 3);
}

void CDataSet::SetTableApplicability() {
    const int type = m_nStructureType;
    const bool several = m_nPiers >= 2;
    const bool onlyFatigue = HasOnlyFatigue();
    const bool pileTables = several || type != kTypeNoPileTables;
    const bool columnTables = several ? HasStructureType(kTypePier)
                                      : type != kTypePileGroup && type != kTypeSinglePile &&
                                            type != kTypeOtherGroup && type != kTypePileBent;
    // Several substructures keep the cap tables whatever their types: bents beside piers share one report.
    const bool capTables = several || type == kTypePier || type == kTypeMast || type == kTypePileBent;

    for (const int table : {kTableMaxAxial, kTablePileDc, kTablePileForces, kTablePileHeads}) {
        m_bTableEnabled[static_cast<std::size_t>(table)] = pileTables && !onlyFatigue;
    }
    for (const int table : {kTableColumnDc, kTableColumnForces}) {
        m_bTableEnabled[static_cast<std::size_t>(table)] = columnTables && !onlyFatigue;
    }
    m_bTableEnabled[kTableCapShear] = capTables && !onlyFatigue;
    // Moments are designed for fatigue too.
    m_bTableEnabled[kTableCapMoment] = capTables;
    m_bTableEnabled[kTableExtraMembers] = HasExtraMembers() && !onlyFatigue;
}
