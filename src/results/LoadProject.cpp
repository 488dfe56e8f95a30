#include <algorithm>
#include <new>

#include "framework/File.h"
#include "results/CollectData.h"
#include "results/ForcePlan.h"
#include "results/Identity.h"
#include "results/ProjectFiles.h"
#include "results/ReadData.h"
#include "results/SeqFile.h"

// The load of a project, in the fixed order in which each read finds what it needs from those before it.

namespace {

constexpr int kMaxSubstructures = 10000;

int ReadSubstructureCount() {
    CSeqFile file(ProjectFile(".TWR"));
    const int count = file.ReadInts<1>("substructure count")[0];
    if (count < 1 || count > kMaxSubstructures) {
        file.Fail(CFileException::badCount,
                  "says " + std::to_string(count) + " substructures, which can't be");
    }
    return count;
}

CMemberCounts MemberCounts() {
    const CDataSet& data = g_DataSet;
    CMemberCounts counts;
    counts.piles = data.m_nPiles;
    counts.pileNodes = data.m_nPileNodes;
    counts.columns = data.m_nColumns;
    counts.columnNodes = data.m_nColumnNodes;
    counts.cantileverElements = data.m_nCantilevers > 0 ? data.m_nCantileverNodes + 1 : 0;
    counts.extraMembers = data.m_nExtraMembers;
    return counts;
}

// What a project may take beyond its force files, all substructures together.
constexpr long long kSlackBytes = 32LL << 20;

// Bytes of the result tables for the widest code family, before any of them is taken.
long long TableBytes() {
    const CDataSet& data = g_DataSet;
    constexpr long long kRecords = kMaxSlots * (kExtremes + 1LL);
    constexpr int kCapKinds = 3 + 4;  // of a moment and of a shear section
    const long long sections = data.m_nSectionRecords + std::max(data.m_nColumnSections, 1) +
                               static_cast<long long>(data.m_nXMemberSections);
    const long long piles = 2LL * kMaxSlots * data.m_nPiles;
    const long long cap = 2LL * kMaxSlots * kCapKinds * data.m_nColumns;
    return sections * kRecords * static_cast<long long>(sizeof(CMaxRecord)) +
           piles * static_cast<long long>(sizeof(int)) + cap * static_cast<long long>(sizeof(CCapEntry));
}

// Takes the members and the forces of all cases, once the counts agree with the size of the force file: a
// model may be a little larger than its file, which can be cut short, but never by orders of magnitude.
// `slack` is what the substructures before this one have left for that.
void AllocateModel(int k, CPier& pier, CDirFile& file, long long& slack) {
    CMemberCounts counts = MemberCounts();
    const long long spans = (g_DataSet.m_nSpanNodes + 1LL) * (g_DataSet.m_nColumns - 1LL);
    const long long frame = counts.columns * (std::max(counts.columnNodes, 0) + 1LL) + std::max(spans, 0LL) +
                            2LL * counts.cantileverElements + counts.extraMembers;
    const long long elements = g_DataSet.m_nPileElements + frame;
    const std::string path = SubstructureFile(".vmd", k + 1);
    const long long fileBytes = file.Open(path, kForceRecordBytes) ? file.Length() : 0;
    const long long cases = g_DataSet.m_nLoadCases;
    const long long fixed =
        2 * static_cast<long long>(sizeof(CElement) + sizeof(CSectionData)) * elements + TableBytes();
    const long long perCase = elements * static_cast<long long>(kForcesPerElement * sizeof(float)) +
                              2 * static_cast<long long>(sizeof(CLoadCase));
    const long long limit = 3 * fileBytes + slack;
    if (fixed > limit || perCase > limit || cases > (limit - fixed) / perCase) {
        throw CFileException(CFileException::badCount, path,
                             "holds " + std::to_string(fileBytes) + " bytes, too few for the " +
                                 std::to_string(elements) + " elements in " + std::to_string(cases) +
                                 " load cases of which the model files tell");
    }
    slack -= std::max(fixed + perCase * cases - 3 * fileBytes, 0LL);
    counts.spanElements = static_cast<int>(std::max(spans, 0LL));
    try {
        pier.AllocateMembers(counts, g_DataSet.m_nLoadCases);
    } catch (const std::bad_alloc&) {
        pier = CPier();
        throw CFileException(CFileException::generic, path,
                             "needs " + std::to_string((perCase * cases + fixed) >> 20) +
                                 " MB of memory for its forces, more than this process can have");
    }
    pier.AllocateCaseSelection(g_DataSet.m_nLoadCases);
    pier.SelectAllCases();
}

bool ReadSubstructure(CCollectData& collect, int k, long long& slack) {
    CPierReadState state;
    if (!collect.ReadPierHeader(k, state)) return false;
    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(k)];
    AllocateModel(k, pier, state.forceFile, slack);
    IdentifyPiles(pier, state);
    collect.ReadMemberForces(k, state);
    if (pier.m_nColumns > 0) NumberElements(pier);
    AssignExtraMemberNumbers(pier, state);
    AssignExtraMemberSections(pier, state);
    AssignMemberSections(pier, state);
    return true;
}

void ReadKeyedText() {
    CReadData reader;
    ifstreamex sections(ProjectFile(".MIS"));
    reader.ReadPierSections(sections);
    ifstreamex texts(ProjectFile(".MIS"));
    reader.ReadProjectData(texts);
    ifstreamex locations(ProjectFile(".MIS"));
    reader.ReadPierData(locations);
}

}  // namespace

bool CDataSet::LoadProject() {
    CCollectData collect;
    m_nPiers = ReadSubstructureCount();
    m_Piers.clear();
    m_Piers.resize(static_cast<std::size_t>(m_nPiers));
    long long slack = kSlackBytes;
    for (int k = 0; k < m_nPiers; ++k) {
        if (!ReadSubstructure(collect, k, slack)) return false;
    }
    for (int k = 0; k < m_nPiers; ++k) collect.ReadCombinationData(k);
    ReadKeyedText();
    for (int k = 0; k < m_nPiers; ++k) collect.ReadPileDimensions(k + 1);
    for (int k = 0; k < m_nPiers; ++k) {
        collect.ReadBearings(k);
        ApplyElementMask(m_Piers[static_cast<std::size_t>(k)], FirstPier().m_nStructureType);
    }
    const int firstType = FirstPier().m_nStructureType;
    if (firstType != kTypePier && firstType != kTypePileBent) m_bTableValid[kTableCapShear] = false;
    for (CPier& pier : m_Piers) pier.AllocateResultTables();
    return true;
}
