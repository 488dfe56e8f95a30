#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <string>
#include <utility>

#include "framework/Backend.h"
#include "results/CollectData.h"
#include "results/ProjectFiles.h"
#include "results/SeqFile.h"
#include "text/KeyedLine.h"

namespace {

constexpr int kTitleLineLength = 512;
constexpr int kLimitLineLength = 128;
constexpr int kLinesToTitle = 4;
constexpr std::string_view kTitleMark = "[Comb.";
constexpr std::string_view kListEnd = ":";

// Limit state codes run from these; the names stand in three columns of g_LimitStateNames.
struct CodeBlock {
    int first, count;
    std::size_t column;
};
constexpr CodeBlock kCodeBlocks[] = {{101, 13, 0}, {201, 11, 1}, {301, 18, 2}};
// The host's list gives this code the name of 307; reports name it as the host does.
constexpr int kMisnamedCode = 305, kNamedAsCode = 307;

struct ClassRange {
    int family, first, last, limitClass;
};
constexpr ClassRange kClassRanges[] = {
    {kFamilyLrfd, 101, 105, 0}, {kFamilyLrfd, 106, 107, 2},  {kFamilyLrfd, 108, 111, 1},
    {kFamilyLrfd, 112, 113, 3}, {kFamilyArema, 301, 310, 0}, {kFamilyArema, 311, 318, 1},
};

constexpr int kNoClass = -1, kClassOfUnknownCodes = 1;

// The limit class of a combination; kNoClass for a code that the family doesn't have.
int LimitClassOf(int family, int code) {
    if (family != kFamilyLrfd && family != kFamilyArema) return 0;
    for (const ClassRange& range : kClassRanges) {
        if (range.family == family && range.first <= code && code <= range.last) return range.limitClass;
    }
    return kNoClass;
}

// The code family; false when the project says that it has no combinations, which ends the read.
bool ReadCodeFamily(int k, CPier& pier) {
    const std::string path = SubstructureFile(".ash", k + 1);
    if (FindFileAnyCase(path).empty()) return true;
    CSeqFile file(path);
    pier.m_nCodeFamily = file.ReadInts<1>("code family")[0];
    if (pier.m_nCodeFamily == kFamilyNone) return false;
    pier.m_bCombinations = true;
    file.ReadRecord(pier.m_AshBlockA.data(), static_cast<unsigned>(pier.m_AshBlockA.size()),
                    "first code block");
    file.ReadRecord(pier.m_AshBlockB.data(), static_cast<unsigned>(pier.m_AshBlockB.size()),
                    "second code block");
    return true;
}

// The title of each combination; without the file the titles become empty.
void ReadTitles(std::vector<CLoadCase>& cases) {
    ifstreamex file(ProjectFile(".CMB"));
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

// What the rows of the limit state list say of a run of cases.
struct CaseRun {
    int end = 0;  // the case behind the last one
    int code = 0;
    unsigned numberOfFirst = 0;  // the combination number that case 0 would have
};

// Runs of cases that do not overlap; a new one takes its cases from those before it. Each adds two at most,
// and those that it covers go, so many rows over the same cases cost no more than the rows.
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
    // A run that goes on over this case ends before it, and another begins with it.
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

// The rows of the limit state list: code, first combination number and count of a run of cases. A row can go
// back, and the next one takes the same cases again, so rows are only noted while they are read.
class LimitStateList {
  public:
    LimitStateList(ifstreamex& file, int cases, int family)
        : m_file(file), m_nCases(cases), m_nFamily(family) {}

    void Read(std::string line) {
        do {
            std::array<int, 3> row{};
            if (ReadKeyedInts(line, "", row) == 3 && !Note(row[0], row[1], row[2])) return;
        } while (m_file.GetLineEx(line, kLimitLineLength) && line != kListEnd);
    }

    // Each case gets what the last row says of it.
    void Assign(std::vector<CLoadCase>& named, std::vector<CLoadCase>& classed) const {
        for (const auto& [begin, run] : m_rows.ByFirstCase()) {
            const std::string name = CCollectData::LimitStateName(run.code);
            const int limitClass = LimitClassOf(m_nFamily, run.code);
            for (int j = begin; j < run.end; ++j) {
                const auto at = static_cast<std::size_t>(j);
                // Names and numbers go to the first substructure, from which all tables take them.
                named[at].m_sLimitState = name;
                named[at].m_nNumber = static_cast<int>(run.numberOfFirst + static_cast<unsigned>(j));
                if (at < classed.size()) {
                    classed[at].m_nLimitClass = limitClass == kNoClass ? kClassOfUnknownCodes : limitClass;
                }
            }
        }
    }

    // Once for each case that any row gave a code that the family doesn't have.
    void TellUnknownCodes(std::size_t cases) const {
        for (const auto& [begin, run] : m_unknown.ByFirstCase()) {
            for (int j = begin; j < run.end && static_cast<std::size_t>(j) < cases; ++j) {
                AfxMessageBox("Invalid limit state");
            }
        }
    }

  private:
    // False: the list names more combinations than there are cases, which ends it.
    bool Note(int code, int first, int count) {
        // A count below 0 moves back; cases before the first are passed over.
        const long long begin = m_nDone, end = begin + count;
        const CaseRun run{Inside(end), code, static_cast<unsigned>(first) - static_cast<unsigned>(begin)};
        if (Inside(begin) < run.end) {
            m_rows.Overlay(Inside(begin), run);
            if (LimitClassOf(m_nFamily, code) == kNoClass) m_unknown.Overlay(Inside(begin), run);
        }
        m_nDone = end;
        return count < 1 || end <= m_nCases;
    }
    int Inside(long long j) const {
        return static_cast<int>(std::clamp(j, 0LL, static_cast<long long>(m_nCases)));
    }

    ifstreamex& m_file;
    int m_nCases;
    int m_nFamily;
    long long m_nDone = 0;  // cases that earlier rows took
    CaseRuns m_rows, m_unknown;
};

void ReadLimitStates(std::vector<CLoadCase>& named, CPier& pier) {
    ifstreamex file(ProjectFile(".LIM"));
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
    list.TellUnknownCodes(pier.m_LoadCases.size());
}

}  // namespace

std::string CCollectData::LimitStateName(int code) {
    const int named = code == kMisnamedCode ? kNamedAsCode : code;
    for (const CodeBlock& block : kCodeBlocks) {
        if (named >= block.first && named < block.first + block.count) {
            return g_LimitStateNames[static_cast<std::size_t>(named - block.first)][block.column];
        }
    }
    return "ERROR 1";
}

void CCollectData::ReadCombinationData(int k) {
    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(k)];
    if (!ReadCodeFamily(k, pier)) return;
    std::vector<CLoadCase>& named = g_DataSet.FirstPier().m_LoadCases;
    ReadTitles(named);
    ReadLimitStates(named, pier);
    FindFirstCases();
}

void CCollectData::FindFirstCases() {
    CPier& first = g_DataSet.FirstPier();
    first.m_nFirstOfClass.fill(-1);
    const int family = first.m_nCodeFamily;
    if (family != kFamilyLrfd && family != kFamilyArema) return;
    const int classes = family == kFamilyLrfd ? 4 : 2;
    for (int c = static_cast<int>(first.m_LoadCases.size()) - 1; c >= 0; --c) {
        const int limitClass = first.m_LoadCases[static_cast<std::size_t>(c)].m_nLimitClass;
        if (first.IsCaseSelected(c) && limitClass >= 0 && limitClass < classes) {
            first.m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = c;
        }
    }
}
