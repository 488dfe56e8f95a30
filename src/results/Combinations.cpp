// SPDX-License-Identifier: MIT
#include "results/Combinations.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "framework/File.h"
#include "framework/Index.h"
#include "model/LimitStates.h"
#include "results/ProjectFiles.h"
#include "results/SeqFile.h"
#include "text/KeyedLine.h"

namespace lumerin {

namespace {

constexpr int kTitleLineLength = 512;
constexpr int kLimitLineLength = 128;
constexpr int kLinesToTitle = 4;
constexpr std::string_view kTitleMark = "[Comb.";
constexpr std::string_view kListEnd = ":";

// The limit class of a combination; empty for a code that the family does not have. Families without classes
// have one.
std::optional<LimitClass> LimitClassOf(CodeFamily family, int code) {
    if (family != kFamilyLrfd && family != kFamilyArema) return kStrength;
    LimitClass limitClass = kStrength;
    return FindLimitClass(family, code, limitClass) ? std::optional(limitClass) : std::nullopt;
}
constexpr LimitClass kClassOfUnknownCodes = kService;

// The code family; false when the project says that it has no combinations, which ends the read.
bool ReadCodeFamily(const std::string& basePath, int k, CPier& pier) {
    const std::string path = SubstructureFile(basePath, ".ash", k + 1);
    if (FindFileAnyCase(path).empty()) return true;
    CSeqFile file(path);
    pier.m_nCodeFamily = static_cast<CodeFamily>(file.ReadInts<1>("code family")[0]);
    if (pier.m_nCodeFamily == kFamilyNone) return false;
    pier.m_bCombinations = true;
    file.ReadRecord(pier.m_AshBlockA.data(), static_cast<unsigned>(pier.m_AshBlockA.size()),
                    "first code block");
    file.ReadRecord(pier.m_AshBlockB.data(), static_cast<unsigned>(pier.m_AshBlockB.size()),
                    "second code block");
    return true;
}

// The title of each combination; without the file the titles become empty.
void ReadTitles(const std::string& basePath, std::vector<CLoadCase>& cases) {
    ifstreamex file(ProjectFile(basePath, ".CMB"));
    std::string line;
    for (CLoadCase& loadCase : cases) {
        for (int i = 0; i < kLinesToTitle; ++i) {
            file.GetLineEx(line, kTitleLineLength);
            if (line.starts_with(kTitleMark)) break;
        }
        file.GetLineEx(line, kTitleLineLength);
        loadCase.m_sName = line;
    }
}

// What the rows of the limit state list give for a run of cases.
struct CaseRun {
    int end = 0;  // the case after the last one
    int code = 0;
    unsigned numberOfFirst = 0;  // the combination number that case 0 would have
};

// Runs of cases that do not overlap; a new one takes its cases from those before it. Each adds two at most,
// and those that it covers are removed, so that many rows over the same cases need no more memory than the
// rows.
class CaseRuns {
  public:
    void Overlay(int begin, const CaseRun& run) {
        Split(begin);
        Split(run.end);
        m_runs.erase(m_runs.lower_bound(begin), m_runs.lower_bound(run.end));
        m_runs.emplace(begin, run);
    }
    const std::map<int, CaseRun>& ByFirstCase() const { return m_runs; }

  private:
    // Splits a run at this case: it ends before the case, and another begins with it.
    void Split(int at) {
        const auto next = m_runs.lower_bound(at);
        if (next == m_runs.begin()) return;
        CaseRun& before = std::prev(next)->second;
        if (before.end <= at) return;
        m_runs.emplace_hint(next, at, before);
        before.end = at;
    }

    std::map<int, CaseRun> m_runs;
};

// The rows of the limit state list: code, first combination number and count of a run of cases. A row can
// move back, so that the next one covers the same cases again. So rows are only stored while they are read.
class LimitStateList {
  public:
    LimitStateList(ifstreamex& file, int cases, CodeFamily family)
        : m_file(file), m_cases(cases), m_family(family) {}

    void Read(std::string line) {
        do {
            std::array<int, 3> row{};
            if (ReadKeyedInts(line, "", row) == 3 && !Note(row[0], row[1], row[2])) return;
        } while (m_file.GetLineEx(line, kLimitLineLength) && line != kListEnd);
    }

    // Each case gets the values of the last row for it.
    void Assign(std::vector<CLoadCase>& named, std::vector<CLoadCase>& classed) const {
        for (const auto& [begin, run] : m_rows.ByFirstCase()) {
            const std::string name = LimitStateName(run.code);
            const LimitClass limitClass = LimitClassOf(m_family, run.code).value_or(kClassOfUnknownCodes);
            for (int j = begin; j < run.end; ++j) {
                const auto at = Index(j);
                // Names and numbers are stored in the first substructure, from which all tables take them.
                named[at].m_sLimitState = name;
                named[at].m_nNumber = static_cast<int>(run.numberOfFirst + static_cast<unsigned>(j));
                if (at < classed.size()) classed[at].m_nLimitClass = limitClass;
            }
        }
    }

    // Once for each case that any row gave a code that the family does not have.
    void ReportUnknownCodes(std::size_t cases, Messages& messages) const {
        for (const auto& [begin, run] : m_unknown.ByFirstCase()) {
            for (int j = begin; j < run.end && Index(j) < cases; ++j) {
                messages.Show("Invalid limit state");
            }
        }
    }

  private:
    // False: the list names more combinations than there are cases, which ends it.
    bool Note(int code, int first, int count) {
        // A count below 0 moves back; cases before the first are skipped.
        const long long begin = m_done, end = begin + count;
        const CaseRun run{Inside(end), code, static_cast<unsigned>(first) - static_cast<unsigned>(begin)};
        if (Inside(begin) < run.end) {
            m_rows.Overlay(Inside(begin), run);
            if (!LimitClassOf(m_family, code)) m_unknown.Overlay(Inside(begin), run);
        }
        m_done = end;
        return count < 1 || end <= m_cases;
    }
    int Inside(long long j) const {
        return static_cast<int>(std::clamp(j, 0LL, static_cast<long long>(m_cases)));
    }

    ifstreamex& m_file;
    int m_cases;
    CodeFamily m_family;
    long long m_done = 0;  // cases that earlier rows took
    CaseRuns m_rows, m_unknown;
};

void ReadLimitStates(const std::string& basePath, std::vector<CLoadCase>& named, CPier& pier,
                     Messages& messages) {
    ifstreamex file(ProjectFile(basePath, ".LIM"));
    std::string line;
    file.GetLineEx(line, kLimitLineLength);
    file.GetLineEx(line, kLimitLineLength);
    int inUse = 0;
    if (!ReadKeyedInt(line, "A", inUse) || inUse != 1) return;
    file.GetLineEx(line, kLimitLineLength);
    file.GetLineEx(line, kLimitLineLength);
    LimitStateList list(file, static_cast<int>(named.size()), pier.m_nCodeFamily);
    list.Read(std::move(line));
    list.Assign(named, pier.m_LoadCases);
    list.ReportUnknownCodes(pier.m_LoadCases.size(), messages);
}

}  // namespace

void ReadCombinationData(const std::string& basePath, int k, CDataSet& data, Messages& messages) {
    CPier& pier = data.m_Piers[Index(k)];
    if (!ReadCodeFamily(basePath, k, pier)) return;
    std::vector<CLoadCase>& named = data.FirstPier().m_LoadCases;
    ReadTitles(basePath, named);
    ReadLimitStates(basePath, named, pier, messages);
}

}  // namespace lumerin
