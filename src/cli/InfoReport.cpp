// SPDX-License-Identifier: MIT
#include "cli/InfoReport.h"

#include <algorithm>

#include "embedment/EmbedmentFiles.h"
#include "embedment/EmbedmentResults.h"
#include "framework/File.h"
#include "framework/Index.h"
#include "model/CapChain.h"
#include "records/TableReason.h"
#include "tables/Words.h"
#include "text/Paths.h"
#include "text/SilentMessages.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

struct NamedTable {
    TableId table;
    const char* name;
};
constexpr NamedTable kTables[] = {
    {kTableMaxAxial, "axial"},
    {kTablePileDc, "pile-dc"},
    {kTableColumnDc, "column-dc"},
    {kTableCapShear, "cap-shear"},
    {kTableCapMoment, "cap-moment"},
    {kTablePileForces, "pile-forces"},
    {kTableColumnForces, "column-forces"},
    {kTableExtraMembers, "extra-members"},
    {kTablePileHeads, "pile-heads"},
};

std::string_view KindOfCases(const CDataSet& data) {
    if (data.m_nAnalysisMode == kModeTimeSteps) return "time steps";
    return data.HasCombinations() ? "load combinations" : "load cases";
}

SubstructureInfo DescribeSubstructure(const Evaluation& evaluation, std::size_t p) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    SubstructureInfo info;
    info.type = StructureTypeName(pier.m_nStructureType);
    info.piles = static_cast<int>(pier.m_Piles.size());
    const bool hasFrame = !HasNoFrame(pier.m_nStructureType);
    info.columns = hasFrame && pier.m_nStructureType != kTypePileBent ? std::max(pier.m_nColumns, 0) : 0;
    if (HasCapTables(pier)) {
        info.spans = std::max(CapSupportCount(pier) - 1, 0);
        info.cantilevers = HasCantilevers(pier);
    }
    info.extraMembers = std::max(pier.m_nExtraMembers, 0);
    for (const CBearingRow& row : pier.m_BearingRows)
        info.bearings += static_cast<int>(row.m_Bearings.size());
    for (const ElementIdentity& identity : evaluation.Identities(p)) {
        ++(identity.masked ? info.masked : info.elements);
    }
    info.nodes = pier.m_nNodes;
    const std::string path = evaluation.Opened().project.forces[p]->Name();
    info.forceFile = ToUtf8(path.substr(FolderOf(path).size()));
    info.bytes = std::max<std::int64_t>(StampOf(path).length, 0);
    return info;
}

void CountClasses(const CDataSet& data, const CaseSelection& selection, ProjectInfo& info) {
    for (int c = 0; c < data.FirstPier().m_nLoadCases; ++c) {
        if (!selection.IsCaseSelected(c)) continue;
        const std::string name(ClassNameOf(data, c));
        const auto found = std::ranges::find(info.classes, name, &ClassCount::name);
        if (found != info.classes.end()) {
            ++found->cases;
        } else {
            info.classes.push_back({name, 1});
        }
    }
}

void DescribeStudy(const std::string& inputFile, ProjectInfo& info) {
    info.hasStudy = HasEmbedmentStudy(inputFile);
    if (!info.hasStudy) return;
    SilentMessages messages;
    try {
        info.trials = CEmbedmentResults(inputFile, messages).GetTrialCount();
    } catch (const CFileException&) {
        info.trials = 0;  // the findings name the fault
    }
}

}  // namespace

void Describe(const Evaluation& evaluation, bool withCases, ProjectInfo& info) {
    const CDataSet& data = evaluation.Data();
    const CPier& first = data.FirstPier();
    info.title = ToUtf8(data.m_sProjectN);
    if (data.HasCombinations()) info.code = FamilyName(first.m_nCodeFamily);
    info.units = UnitSystemName(evaluation.Units());
    info.kindOfCases = KindOfCases(data);
    info.analysed = first.m_nAnalysedCases;
    info.converged = first.m_nLoadCases;
    CountClasses(data, evaluation.Selection(), info);
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        info.substructures.push_back(DescribeSubstructure(evaluation, p));
    }
    for (const NamedTable& named : kTables) {
        info.tables.push_back({named.name, WhyTableDoesNotApply(data, evaluation.Selection(), named.table)});
    }
    DescribeStudy(evaluation.Opened().name.inputFile, info);
    info.hasReadForces = evaluation.HasReadForces();
    info.findings = evaluation.Findings();
    if (!withCases) return;
    for (int c = 0; c < first.m_nLoadCases; ++c) {
        if (!evaluation.Selection().IsCaseSelected(c)) continue;
        const CLoadCase& loadCase = first.m_LoadCases[Index(c)];
        const bool named = data.HasCombinations();
        info.cases.push_back({c + 1, named ? ToUtf8(loadCase.m_sName) : "",
                              named ? ToUtf8(loadCase.m_sLimitState) : "",
                              std::string(ClassNameOf(data, c))});
    }
}

}  // namespace lumerin
