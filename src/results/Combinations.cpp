#include <algorithm>
#include <array>
#include <climits>
#include <string>

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

int LimitClassOf(int family, int code) {
    if (family != kFamilyLrfd && family != kFamilyArema) return 0;
    for (const ClassRange& range : kClassRanges) {
        if (range.family == family && range.first <= code && code <= range.last) return range.limitClass;
    }
    AfxMessageBox("Invalid limit state");
    return 1;
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

// The rows of the limit state list: code, first combination number and count of a run of cases.
class LimitStateList {
  public:
    LimitStateList(ifstreamex& file, std::vector<CLoadCase>& named, CPier& pier)
        : m_file(file), m_named(named), m_pier(pier) {}

    void Read(std::string line) {
        do {
            std::array<int, 3> row{};
            if (ReadKeyedInts(line, "", row) == 3 && !Assign(row[0], row[1], row[2])) return;
        } while (m_file.GetLineEx(line, kLimitLineLength) && line != kListEnd);
    }

  private:
    // False: the list names more combinations than there are cases, which ends it.
    bool Assign(int code, int first, int count) {
        // A count below 0 moves back; cases before the first are passed over at once.
        const int begin = static_cast<int>(std::clamp(-m_nDone, 0LL, static_cast<long long>(INT_MAX)));
        for (int i = begin; i < count; ++i) {
            const long long j = m_nDone + i;
            if (j >= static_cast<long long>(m_named.size())) return false;
            // Names and numbers go to the first substructure, from which all tables take them.
            CLoadCase& named = m_named[static_cast<std::size_t>(j)];
            named.m_sLimitState = CCollectData::LimitStateName(code);
            named.m_nNumber = static_cast<int>(static_cast<unsigned>(first) + static_cast<unsigned>(i));
            if (j < static_cast<long long>(m_pier.m_LoadCases.size())) {
                m_pier.m_LoadCases[static_cast<std::size_t>(j)].m_nLimitClass =
                    LimitClassOf(m_pier.m_nCodeFamily, code);
            }
        }
        m_nDone += count;
        return true;
    }

    ifstreamex& m_file;
    std::vector<CLoadCase>& m_named;
    CPier& m_pier;
    long long m_nDone = 0;  // cases that earlier rows took
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
    LimitStateList(file, named, pier).Read(line);
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
