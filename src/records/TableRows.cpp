// SPDX-License-Identifier: MIT
#include "records/TableRows.h"

#include "framework/Index.h"
#include "tables/TableLayout.h"

namespace lumerin {

std::span<const Table> AllTables() {
    static const std::vector<Table> all = [] {
        std::vector<Table> tables;
        for (const std::span<const Table> part :
             {kModelTables, kSectionTables, kCapTables, kElementTables, kStudyTables, kVerdictTables}) {
            tables.insert(tables.end(), part.begin(), part.end());
        }
        return tables;
    }();
    return all;
}

std::vector<LimitClass> ClassesOf(const Evaluation& evaluation) {
    const CDataSet& data = evaluation.Data();
    if (data.IsPierless()) return {};
    const CPier& first = data.FirstPier();
    const bool hasClasses =
        first.m_bCombinations && (first.m_nCodeFamily == kFamilyLrfd || first.m_nCodeFamily == kFamilyArema);
    if (!hasClasses) return {kStrength};
    std::vector<LimitClass> classes;
    for (const LimitClass slot : first.Slots()) {
        if (evaluation.Selection().IsClassPresent(slot)) classes.push_back(slot);
    }
    return classes;
}

std::string_view ClassNameIn(const Evaluation& evaluation, LimitClass limitClass) {
    const CDataSet& data = evaluation.Data();
    return data.HasCombinations() ? ClassName(data.FirstPier().m_nCodeFamily, limitClass)
                                  : std::string_view{};
}

std::string_view LimitStateIn(const CDataSet& data, int loadCase) {
    return data.HasCombinations() ? std::string_view(LimitStateOf(data, loadCase)) : std::string_view{};
}

}  // namespace lumerin
