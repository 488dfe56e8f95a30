// SPDX-License-Identifier: MIT
#include "model/CaseSelection.h"

#include <algorithm>

#include "framework/Index.h"
#include "model/DataSet.h"

namespace lumerin {

CaseSelection::CaseSelection(const CDataSet& data) {
    std::size_t cases = 0;
    for (const CPier& pier : data.m_Piers) cases = std::max(cases, pier.m_LoadCases.size());
    m_selected.assign(cases, 1);
    FindFirstCases(data);
}

bool CaseSelection::IsFirstPierCaseSelected(const CDataSet& data, int index) const {
    return !data.IsPierless() && index < static_cast<int>(data.FirstPier().m_LoadCases.size()) &&
           IsCaseSelected(index);
}

int CaseSelection::SelectedCount(int cases) const {
    const auto first = m_selected.begin();
    return static_cast<int>(std::count(first, first + std::clamp(cases, 0, CaseCount()), 1));
}

void CaseSelection::SetCaseSelected(int index, bool selected) {
    if (index >= 0 && index < CaseCount()) m_selected[Index(index)] = selected ? 1 : 0;
}

void CaseSelection::FindFirstCases(const CDataSet& data) {
    m_firstOfClass.fill(-1);
    if (data.IsPierless()) return;
    const CPier& first = data.FirstPier();
    if (first.m_nCodeFamily != kFamilyLrfd && first.m_nCodeFamily != kFamilyArema) return;
    const int classes = first.SlotCount();
    for (int c = static_cast<int>(first.m_LoadCases.size()) - 1; c >= 0; --c) {
        const int limitClass = first.m_LoadCases[Index(c)].m_nLimitClass;
        if (IsCaseSelected(c) && limitClass >= 0 && limitClass < classes) {
            m_firstOfClass[Index(limitClass)] = c;
        }
    }
}

int CaseSelection::FirstOfClass(LimitClass limitClass) const {
    return limitClass >= 0 && limitClass < kLimitClasses ? m_firstOfClass[Index(limitClass)] : -1;
}

}  // namespace lumerin
