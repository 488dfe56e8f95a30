#include <algorithm>
#include <new>

#include "framework/File.h"
#include "results/CollectData.h"
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

// Takes the members and the forces of all cases, once the counts agree with the size of the force file: a
// model may be a little larger than its file, which can be cut short, but never by orders of magnitude.
void AllocateModel(int k, CPier& pier) {
    constexpr long long kSlackBytes = 32LL << 20;
    CMemberCounts counts = MemberCounts();
    const long long spans = (g_DataSet.m_nSpanNodes + 1LL) * (g_DataSet.m_nColumns - 1LL);
    const long long frame = counts.columns * (std::max(counts.columnNodes, 0) + 1LL) + std::max(spans, 0LL) +
                            2LL * counts.cantileverElements + counts.extraMembers;
    const long long elements = g_DataSet.m_nPileElements + frame;
    const std::string path = SubstructureFile(".vmd", k + 1);
    CFile file;
    const long long fileBytes = file.Open(path) ? file.Length() : 0;
    const long long cases = g_DataSet.m_nLoadCases;
    const long long identity = 2 * static_cast<long long>(sizeof(CElement) + sizeof(CSectionData)) * elements;
    const long long perCase = elements * static_cast<long long>(kForcesPerElement * sizeof(float)) +
                              2 * static_cast<long long>(sizeof(CLoadCase));
    const long long limit = 3 * fileBytes + kSlackBytes;
    if (identity > limit || perCase > limit || cases > (limit - identity) / perCase) {
        throw CFileException(CFileException::badCount, path,
                             "holds " + std::to_string(fileBytes) + " bytes, too few for the " +
                                 std::to_string(elements) + " elements in " + std::to_string(cases) +
                                 " load cases of which the model files tell");
    }
    counts.spanElements = static_cast<int>(std::max(spans, 0LL));
    try {
        pier.AllocateMembers(counts, g_DataSet.m_nLoadCases);
    } catch (const std::bad_alloc&) {
        pier = CPier();
        throw CFileException(CFileException::generic, path,
                             "needs " + std::to_string((perCase * cases + identity) >> 20) +
                                 " MB of memory for its forces, more than this process can have");
    }
    pier.AllocateCaseSelection(g_DataSet.m_nLoadCases);
    pier.SelectAllCases();
}

bool ReadSubstructure(CCollectData& collect, int k) {
    CPierReadState state;
    if (!collect.ReadPierHeader(k, state)) return false;
    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(k)];
    AllocateModel(k, pier);
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
    for (int k = 0; k < m_nPiers; ++k) {
        if (!ReadSubstructure(collect, k)) return false;
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
