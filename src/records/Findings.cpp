// SPDX-License-Identifier: MIT
#include "records/Findings.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "embedment/EmbedmentFiles.h"
#include "embedment/EmbedmentResults.h"
#include "framework/File.h"
#include "framework/Index.h"
#include "model/CapChain.h"
#include "model/LimitStates.h"
#include "records/ElementIdentity.h"
#include "results/ProjectFiles.h"
#include "text/Paths.h"
#include "text/SilentMessages.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// An input file that is saved again right after the analysis started is no sign of old results.
constexpr std::chrono::minutes kGrace{2};
constexpr const char* kNoLimitState = "none";  // the name of a case that no row of the list gave one

std::string NameOf(const std::string& path) {
    return ToUtf8(path.substr(FolderOf(path).size()));
}

std::string Count(long long count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string CaseText(int loadCase) {
    return "case " + std::to_string(loadCase + 1);
}

// The files beside the project.
class FileFindings {
  public:
    FileFindings(const std::string& basePath, const CDataSet& data, const ForceSources& forces)
        : m_basePath(basePath), m_data(data), m_forces(forces) {}

    std::vector<Finding> Take() {
        FindMissingRecords();
        if (m_data.HasCombinations()) FindLimitStates();
        FindUnconverged();
        FindWidths();
        CompareTimes();
        return std::move(m_findings);
    }

  private:
    std::string Path(const char* suffix) const { return FindFileAnyCase(ProjectFile(m_basePath, suffix)); }

    void FindMissingRecords() {
        for (std::size_t p = 0; p < m_forces.size(); ++p) {
            const ForceLayout layout = m_forces[p]->Layout();
            const CPier& pier = m_data.m_Piers[p];
            const long long missing = layout.block * pier.m_nLoadCases - layout.whole;
            if (missing <= 0 || layout.block <= 0) continue;
            const int loadCase = static_cast<int>(layout.whole / layout.block);
            const long long record = layout.whole % layout.block + 1;
            std::string place = CaseText(loadCase);
            for (const ElementIdentity& identity : IdentifyElements(pier, layout)) {
                if (identity.record == record) place += ", element " + std::to_string(identity.number);
            }
            Add({"missing-records", Severity::error, static_cast<int>(p) + 1, NameOf(m_forces[p]->Name()),
                 Count(missing, "force record is", "force records are") +
                     " missing at the end of the file; tables show the forces of earlier records",
                 missing, place});
        }
    }

    void FindLimitStates() {
        if (Path(".CMB").empty()) {
            Add({"no-titles",
                 Severity::warning,
                 0,
                 NameOf(ProjectFile(m_basePath, ".CMB")),
                 "the file of the combinations' titles is missing",
                 1,
                 {}});
        }
        if (Path(".LIM").empty()) {
            Add({"no-limit-states",
                 Severity::error,
                 0,
                 NameOf(ProjectFile(m_basePath, ".LIM")),
                 "the file of the limit states is missing; all cases count as one class",
                 1,
                 {}});
            return;
        }
        CountCases("case-without-limit-state", "has no limit state", "have no limit state",
                   [](const CLoadCase& loadCase) { return loadCase.m_sLimitState == kNoLimitState; });
        CountCases("unknown-limit-state", "has a limit state that the design code does not have",
                   "have limit states that the design code does not have", [this](const CLoadCase& loadCase) {
                       return loadCase.m_sLimitState != kNoLimitState && !IsKnown(loadCase.m_sLimitState);
                   });
    }

    // Whether the design code has a limit state of that name.
    bool IsKnown(const std::string& name) const {
        const CodeFamily family = m_data.FirstPier().m_nCodeFamily;
        if (family < kFamilyLrfd || family > kFamilyArema) return true;
        return std::ranges::any_of(g_LimitStateNames,
                                   [&](const auto& names) { return name == names.at(Index(family)); });
    }

    template <class Test>
    void CountCases(const char* code, const char* one, const char* many, Test test) {
        long long count = 0;
        int first = -1, index = 0;
        for (const CLoadCase& loadCase : m_data.FirstPier().m_LoadCases) {
            if (test(loadCase) && ++count == 1) first = index;
            ++index;
        }
        if (count == 0) return;
        const std::string cases = Count(count, "case ", "cases ") + (count == 1 ? one : many);
        Add({code, Severity::error, 0, NameOf(Path(".LIM")), cases, count, CaseText(first)});
    }

    void FindUnconverged() {
        const CPier& first = m_data.FirstPier();
        const int lost = first.m_nAnalysedCases - first.m_nLoadCases;
        if (lost <= 0) return;
        Add({"unconverged-cases",
             Severity::warning,
             0,
             NameOf(ProjectFile(m_basePath, ".ncv")),
             std::to_string(first.m_nLoadCases) + " of " + std::to_string(first.m_nAnalysedCases) +
                 " cases converged; the others are in no table",
             lost,
             {}});
    }

    void FindWidths() {
        for (std::size_t p = 0; p < m_data.m_Piers.size(); ++p) {
            const CPier& pier = m_data.m_Piers[p];
            if (!HasCapTables(pier)) continue;
            long long count = 0;
            int first = 0;
            for (int support = 0; support < CapSupportCount(pier); ++support) {
                if (!(pier.GetSupportWidth(support) > 0.0) && ++count == 1) first = support;
            }
            if (count == 0) continue;
            Add({"no-width", Severity::warning, static_cast<int>(p) + 1,
                 NameOf(ProjectFile(m_basePath, ".MIS")),
                 Count(count, "support of the cap has", "supports of the cap have") +
                     " no width; its faces are at its centreline",
                 count, "support " + std::to_string(first + 1)});
        }
    }

    void CompareTimes() {
        const std::string input = Path(".in");
        if (input.empty()) {
            Add({"no-input",
                 Severity::warning,
                 0,
                 NameOf(m_basePath) + ".in",
                 "the project has no input file",
                 1,
                 {}});
            return;
        }
        const auto changed = LastChange(input);
        for (std::size_t p = 0; p < m_forces.size() && changed; ++p) {
            const auto written = LastChange(m_forces[p]->Name());
            if (!written) return;
            if (*changed - *written <= kGrace) continue;
            Add({"old-results",
                 Severity::note,
                 static_cast<int>(p) + 1,
                 NameOf(m_forces[p]->Name()),
                 "the results are older than the input file",
                 1,
                 {}});
        }
    }

    void Add(Finding finding) { m_findings.push_back(std::move(finding)); }

    const std::string& m_basePath;
    const CDataSet& m_data;
    const ForceSources& m_forces;
    std::vector<Finding> m_findings;
};

constexpr std::array<const char*, kComponents> kComponentNames{"FAX", "F22",    "F33", "M22",
                                                               "M33", "TORQUE", "D/C"};

std::string PlaceOfFault(const CPier& pier, const ForceLayout& layout, const ForceFault& fault) {
    std::string place = CaseText(fault.loadCase);
    for (const ElementIdentity& identity : IdentifyElements(pier, layout)) {
        if (identity.element == fault.element) place += ", element " + std::to_string(identity.number);
    }
    return place + (fault.end == kEndI ? ", end I, " : ", end J, ") +
           kComponentNames.at(Index(fault.component));
}

}  // namespace

std::string_view SeverityName(Severity severity) {
    switch (severity) {
        case Severity::error:
            return "error";
        case Severity::warning:
            return "warning";
        default:
            return "note";
    }
}

std::vector<Finding> FindInFiles(const std::string& basePath, const CDataSet& data,
                                 const ForceSources& forces) {
    if (data.IsPierless()) return {};
    return FileFindings(basePath, data, forces).Take();
}

std::vector<Finding> FindInForces(const CDataSet& data, const ForceSources& forces,
                                  std::span<const FiniteForces> checks) {
    std::vector<Finding> findings;
    for (std::size_t p = 0; p < checks.size(); ++p) {
        const FiniteForces& check = checks[p];
        const CPier& pier = data.m_Piers[p];
        const int number = static_cast<int>(p) + 1;
        const std::string file = NameOf(forces[p]->Name());
        if (check.notFinite.count > 0) {
            findings.push_back({"not-finite", Severity::error, number, file,
                                Count(check.notFinite.count, "force is", "forces are") + " not finite",
                                check.notFinite.count,
                                PlaceOfFault(pier, forces[p]->Layout(), check.notFinite)});
        }
        if (check.replacedRatios.count > 0) {
            findings.push_back({"replaced-ratios", Severity::error, number, file,
                                Count(check.replacedRatios.count, "D/C ratio is", "D/C ratios are") +
                                    " not a finite number; tables show 0",
                                check.replacedRatios.count,
                                PlaceOfFault(pier, forces[p]->Layout(), check.replacedRatios)});
        }
        if (!check.hasRatio && pier.m_nLoadCases > 0) {
            findings.push_back({"all-ratios-zero",
                                Severity::warning,
                                number,
                                file,
                                "all D/C ratios are 0; the analysis gave no capacities",
                                1,
                                {}});
        }
    }
    return findings;
}

std::vector<Finding> FindInStudy(const std::string& inputFile) {
    if (!HasEmbedmentStudy(inputFile)) return {};
    SilentMessages messages;
    const std::string file = NameOf(EmbedmentBaseFile(inputFile));
    try {
        CEmbedmentResults study(inputFile, messages);
        study.LoadTrials();
        long long count = 0;
        int first = -1;
        for (int trial = 0; trial < study.GetTrialCount(); ++trial) {
            if (study.IsTrialIncomplete(trial) && ++count == 1) first = trial;
        }
        if (count == 0) return {};
        return {{"incomplete-trials", Severity::warning, study.GetSubstructure(), file,
                 std::to_string(count) + " of " +
                     Count(study.GetTrialCount(), "trial of the embedment study is",
                           "trials of the embedment study are") +
                     " incomplete",
                 count, "trial " + std::to_string(first + 1)}};
    } catch (const CFileException& fault) {
        return {{"incomplete-trials", Severity::warning, 0, file, ToUtf8(fault.m_strText), 1, {}}};
    }
}

bool HasError(std::span<const Finding> findings) {
    return std::ranges::any_of(findings,
                               [](const Finding& finding) { return finding.severity == Severity::error; });
}

std::string LineOf(const Finding& finding) {
    std::string line(SeverityName(finding.severity));
    line += ": " + finding.code + ": ";
    if (!finding.file.empty()) line += finding.file + ": ";
    line += finding.text;
    if (!finding.firstPlace.empty()) line += " (first: " + finding.firstPlace + ")";
    return line;
}

}  // namespace lumerin
