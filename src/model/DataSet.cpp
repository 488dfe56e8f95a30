// SPDX-License-Identifier: MIT
#include "model/DataSet.h"

#include <algorithm>

#include "model/CaseSelection.h"

namespace lumerin {

std::string CDataSet::GetLoadLabel(bool shortForm, bool plural) const {
    std::string label = "Load Case";
    if (m_nAnalysisMode == 1) {
        label = "Time Step";
    } else if (m_nAnalysisMode == 0 && !m_Piers.empty() && FirstPier().m_bCombinations) {
        label = shortForm ? "Load Comb" : "Load Combination";
    }
    return plural ? label + "s" : label;
}

bool CDataSet::HasExtraMembers() const {
    return std::any_of(m_Piers.begin(), m_Piers.end(),
                       [](const CPier& pier) { return pier.m_nExtraMembers > 0; });
}

bool CDataSet::HasStructureType(StructureType type) const {
    return std::any_of(m_Piers.begin(), m_Piers.end(),
                       [type](const CPier& pier) { return pier.m_nStructureType == type; });
}

bool CDataSet::IsExtraMemberSection(std::size_t pier, int section) const {
    if (pier >= m_Piers.size()) return false;
    const CPier& owner = m_Piers[pier];
    return std::any_of(
        owner.m_Frame.m_XMembers.begin(), owner.m_Frame.m_XMembers.end(), [&](const CXMember& member) {
            return member.m_nElements > 0 && owner.Element(member.m_nFirstElement).m_nSection == section;
        });
}

bool CDataSet::HasLaterSection(const CaseSelection& selection, LimitClass limitClass,
                               bool includeFatigue) const {
    if (m_Piers.empty()) return false;
    const CodeFamily family = FirstPier().m_nCodeFamily;
    if (family == kFamilyArema) return limitClass == kStrength && selection.IsClassPresent(kService);
    if (family != kFamilyLrfd || limitClass < kStrength || limitClass > kExtreme) return false;
    if (includeFatigue && selection.IsClassPresent(kFatigue)) return true;
    if (limitClass == kStrength)
        return selection.IsClassPresent(kService) || selection.IsClassPresent(kExtreme);
    return limitClass == kService && selection.IsClassPresent(kExtreme);
}

bool CDataSet::HasOnlyFatigue(const CaseSelection& selection) const {
    return !m_Piers.empty() && FirstPier().m_nCodeFamily == kFamilyLrfd &&
           FirstPier().HasOnlyLimitClasses(selection, -1, -1, -1, kFatigue);
}

}  // namespace lumerin
