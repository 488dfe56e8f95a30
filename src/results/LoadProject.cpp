#include <algorithm>
#include <climits>
#include <new>

#include "framework/File.h"
#include "results/CollectData.h"
#include "results/ForcePlan.h"
#include "results/Identity.h"
#include "results/ProjectFiles.h"
#include "results/ReadData.h"
#include "results/SeqFile.h"
#include "text/Format.h"

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

long long SpanElements() {
    return std::max((g_DataSet.m_nSpanNodes + 1LL) * (g_DataSet.m_nColumns - 1LL), 0LL);
}

CMemberCounts MemberCounts() {
    const CDataSet& data = g_DataSet;
    CMemberCounts counts;
    counts.piles = data.m_nPiles;
    counts.pileNodes = data.m_nPileNodes;
    counts.columns = data.m_nColumns;
    counts.columnNodes = data.m_nColumnNodes;
    counts.spanElements = static_cast<int>(std::min<long long>(SpanElements(), INT_MAX));
    counts.cantileverElements = data.m_nCantilevers > 0 ? data.m_nCantileverNodes + 1 : 0;
    counts.extraMembers = data.m_nExtraMembers;
    return counts;
}

// What a project may take beyond its force files, all substructures together.
constexpr long long kSlackBytes = 32LL << 20;
// A case with its names, the same on platforms of all widths, so that all refuse the same projects.
constexpr long long kBytesOfACase = 144;
static_assert(2 * sizeof(CLoadCase) <= kBytesOfACase);

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

// What a model takes, by the counts that its files name.
struct ModelNeed {
    long long elements, cases;
    long long fixedBytes, bytesPerCase;

    bool FitsInto(long long limit) const {
        return fixedBytes <= limit && bytesPerCase <= limit && cases <= (limit - fixedBytes) / bytesPerCase;
    }
    long long Bytes() const { return fixedBytes + bytesPerCase * cases; }  // of one that fits
};

ModelNeed NeedOf(const CMemberCounts& counts) {
    const long long elements = static_cast<long long>(g_DataSet.m_nPileElements) +
                               counts.columns * (counts.columnNodes + 1LL) + SpanElements() +
                               2LL * counts.cantileverElements + counts.extraMembers;
    ModelNeed need{};
    need.elements = elements;
    need.cases = g_DataSet.m_nLoadCases;
    need.fixedBytes =
        2 * static_cast<long long>(sizeof(CElement) + sizeof(CSectionData)) * elements + TableBytes();
    need.bytesPerCase = elements * static_cast<long long>(kForcesPerElement * sizeof(float)) + kBytesOfACase;
    return need;
}

// The frame of a substructure whose project has no use for it.
void LeaveOutFrame(CPier& pier) {
    pier.m_nColumns = g_DataSet.m_nColumns = 0;
    pier.m_nCantilevers = g_DataSet.m_nCantilevers = 0;
}

// Counts that lie can ask for more bytes than an integer holds.
std::string TooShort(long long fileBytes, const ModelNeed& need) {
    const double records =
        static_cast<double>(need.elements) * static_cast<double>(need.cases) * kForceRecordBytes;
    const std::string cases = std::to_string(need.cases) + " load cases";
    return "holds " + std::to_string(fileBytes) + " bytes, too few for " +
           (need.elements == 0 ? cases
                               : std::to_string(need.elements) + " elements in " + cases +
                                     ", whose records take " + FormatFixed(records, 0));
}

// Takes the members and the forces of all cases, once the counts agree with the size of the force file: a
// model may be a little larger than its file, which can be cut short, but never by orders of magnitude.
// `slack` is what the substructures before this one have left for that.
void AllocateModel(int k, CPier& pier, CDirFile& file, long long& slack) {
    const std::string path = SubstructureFile(".vmd", k + 1);
    CFileException notOpened(CFileException::none, path, "");
    const bool opened = file.Open(path, kForceRecordBytes, &notOpened);
    const long long fileBytes = file.Length();
    const long long limit = 3 * fileBytes + slack;
    ModelNeed need = NeedOf(MemberCounts());
    if (!need.FitsInto(limit) && HasNoFrame(g_DataSet.FirstPier().m_nStructureType)) {
        LeaveOutFrame(pier);
        need = NeedOf(MemberCounts());
    }
    // A file that can't be opened is told as what it is, however much was asked of it.
    if (!need.FitsInto(limit)) {
        if (!opened) throw notOpened;
        throw CFileException(CFileException::badCount, path, TooShort(fileBytes, need));
    }
    slack -= std::max(need.Bytes() - 3 * fileBytes, 0LL);
    try {
        pier.AllocateMembers(MemberCounts(), g_DataSet.m_nLoadCases);
    } catch (const std::bad_alloc&) {
        pier = CPier();
        if (!opened) throw notOpened;
        throw CFileException(CFileException::generic, path,
                             "needs " + std::to_string(need.Bytes() >> 20) +
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
