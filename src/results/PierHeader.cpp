#include <algorithm>
#include <climits>
#include <cstring>
#include <span>

#include "framework/Backend.h"
#include "results/CollectData.h"
#include "results/PileFile.h"
#include "results/ProjectFiles.h"

// The read of one substructure's model: the pile file, the pile model file and the convergence file. Every
// allocation of the load rests on what they say, so each count is held against its file before it is used.

namespace {

constexpr int kNodeBytes = 2 * 24;               // a node stands in the file twice
constexpr int kUnitsUsByOtherName = 3;           // the host writes 3 for US units in older projects
constexpr int kMaxPropertyNumbers = 1000;        // column or extra member sections; far above any model's
constexpr int kMaxElementNumber = 2000000;       // the mask has one byte for each element number
constexpr long long kMaxMaskBytes = 16LL << 20;  // of all substructures' masks
constexpr int kMaxInteriorNodes = 1000000;

struct PileModelCounts {
    int rowsA = 0, rowsB = 0;  // pile rows in each direction
};

// The words of the model header that are used.
enum HeaderWord : std::size_t {
    kColumnsWord = 0,
    kCantileversWord = 1,
    kCantileverNodesWord = 2,
    kExtraMembersWord = 3,
    kExtraSectionsWord = 4,
    kColumnNodesWord = 5,
    kSpanNodesWord = 6,
    kUnitsWord = 8,
    kColumnSectionsWord = 11,
    kHeaderWords = 13
};
using ModelHeader = std::array<int, kHeaderWords>;

struct WordLimit {
    HeaderWord word;
    int low, high;
    int none;  // what counts as nothing of it
    const char* what;
};
constexpr WordLimit kFrameLimits[] = {
    {kColumnsWord, 0, kMaxInteriorNodes, 0, "columns"},
    {kCantileverNodesWord, -1, kMaxInteriorNodes, -1, "cantilever nodes"},
    {kColumnNodesWord, -1, kMaxInteriorNodes, -1, "column nodes"},
    {kSpanNodesWord, -1, kMaxInteriorNodes, -1, "span nodes"},
    {kColumnSectionsWord, INT_MIN, kMaxPropertyNumbers, 1, "column sections"},
};
constexpr WordLimit kExtraLimits[] = {
    {kExtraMembersWord, INT_MIN, kMaxInteriorNodes, 0, "extra members"},
    {kExtraSectionsWord, INT_MIN, kMaxPropertyNumbers, 0, "extra member sections"},
};

bool IsWithin(const ModelHeader& words, const WordLimit& limit) {
    return words[limit.word] >= limit.low && words[limit.word] <= limit.high;
}

void RequireWithin(const CSeqFile& file, const ModelHeader& words, std::span<const WordLimit> limits) {
    for (const WordLimit& limit : limits) {
        if (IsWithin(words, limit)) continue;
        file.Fail(CFileException::badCount,
                  "says " + std::to_string(words[limit.word]) + " " + limit.what + ", which can't be");
    }
}

// In a project whose frames are not read the words on them may hold anything: what can't be counts as none.
// Of a substructure that has no frame of its own a table shows, at most, whether a first column has an
// element.
void ClearUnreadFrame(ModelHeader& words, bool hasFrame) {
    for (const WordLimit& limit : kFrameLimits) {
        if (!IsWithin(words, limit)) words[limit.word] = limit.none;
    }
    if (hasFrame) return;
    words[kColumnsWord] = std::min(words[kColumnsWord], 1);
    words[kColumnNodesWord] = std::min(words[kColumnNodesWord], 0);
    words[kCantileversWord] = 0;
}

void TakeModelHeader(const ModelHeader& words) {
    CDataSet& data = g_DataSet;
    data.m_nColumns = words[kColumnsWord];
    data.m_nCantilevers = words[kCantileversWord];
    data.m_nCantileverNodes = words[kCantileverNodesWord];
    data.m_nExtraMembers = std::max(words[kExtraMembersWord], 0);
    data.m_nXMemberSections = std::max(words[kExtraSectionsWord], 0);
    data.m_nColumnNodes = words[kColumnNodesWord];
    data.m_nSpanNodes = words[kSpanNodesWord];
    data.m_nUnits = words[kUnitsWord] == kUnitsUsByOtherName ? 0 : words[kUnitsWord];
    data.m_sForceUnit = data.m_nUnits == 0 ? "kips" : "kN";
    data.m_sMomentUnit = data.m_nUnits == 0 ? "kip-ft" : "kN-m";
    data.m_nColumnSections = words[kColumnSectionsWord];
}

// The substructure's type as its own file says it; a type that is derived is one without a frame.
void ReadModelHeader(CSeqFile& file, int k, int fileType) {
    ModelHeader words = file.ReadInts<kHeaderWords>("model header");
    const bool hasFrame = fileType != kTypeDerived && !HasNoFrame(fileType);
    const bool isFrameRead = k == 0 ? hasFrame : !HasNoFrame(g_DataSet.FirstPier().m_nStructureType);
    if (isFrameRead) {
        RequireWithin(file, words, kFrameLimits);
    } else {
        ClearUnreadFrame(words, hasFrame);
    }
    RequireWithin(file, words, kExtraLimits);
    TakeModelHeader(words);
}

// The pile model file up to its counts. False: nothing converged, the message was shown.
bool TakePileModelCounts(CSeqFile& file, PileModelCounts& counts) {
    CDataSet& data = g_DataSet;
    const std::array<int, 9> words = file.ReadInts<9>("pile model counts");
    if (words[1] < 1) {
        AfxMessageBox("No load cases converged.  There are no results to view.");
        return false;
    }
    data.m_nPileNodesTotal = words[0];
    data.m_nLoadCases = words[1];
    counts.rowsA = words[3];
    counts.rowsB = words[4];
    data.m_nPilTableSize = words[5];
    data.m_nPiles = words[6];
    data.m_nPileNodes = words[8];
    file.CheckCount(data.m_nPilTableSize, 8, "table entries");
    file.CheckCount(data.m_nPiles, 4, "piles");
    file.CheckCount(std::max(counts.rowsA, 0), 4, "pile rows");
    file.CheckCount(std::max(counts.rowsB, 0), 4, "pile rows");
    if (data.m_nPiles > 0) {
        if (data.m_nPileNodes < 2) {
            file.Fail(CFileException::badCount,
                      "says " + std::to_string(data.m_nPileNodes) + " nodes of one pile, which can't be");
        }
        file.CheckCount(static_cast<long long>(data.m_nPileNodes - 1) * data.m_nPiles, 4, "pile elements");
    }
    data.m_nPilesFromNodes = data.m_nPileNodes > 0 ? data.m_nPileNodesTotal / data.m_nPileNodes : 0;
    data.m_nPileElements = data.m_nPiles > 0 ? (data.m_nPileNodes - 1) * data.m_nPiles : 0;
    return true;
}

// The convergence file; each substructure reads the same one. False: the message was shown.
bool ReadConvergence() {
    CDataSet& data = g_DataSet;
    data.m_nAnalysisMode = 0;
    data.m_dNcvReal = 0.0;
    data.m_nNcvInteger = 0;
    CSeqFile file(ProjectFile(".ncv"));
    int cases = 0;
    if (file.Read(&cases, 4) == 0) {
        // Nothing but the mark: the count of the pile model file stands.
        constexpr int kEmptyFile = 2;
        if (file.Length() > kEmptyFile) file.Fail(CFileException::endOfFile, "ends before its case count");
        return true;
    }
    if (cases == 0) {
        AfxMessageBox("No load cases converged. Results cannot be viewed.");
        return false;
    }
    if (cases < 0) {
        file.Fail(CFileException::badCount, "says " + std::to_string(cases) + " load cases, which can't be");
    }
    data.m_nLoadCases = cases;
    // Nothing uses these three, so they may be absent.
    std::array<char, 16> unused{};
    for (const unsigned bytes : {16U, 4U, 4U}) file.Read(unused.data(), bytes);
    if (file.Read(&data.m_nAnalysisMode, 4) == 0) data.m_nAnalysisMode = 0;
    if (file.Read(&data.m_dNcvReal, 8) == 0) data.m_dNcvReal = 0.0;
    if (file.Read(&data.m_nNcvInteger, 4) == 0) data.m_nNcvInteger = 0;
    return true;
}

// Splits the node list into the substructure's own nodes and its foundation's; returns how many of the
// first nodes of the list are passed over.
int SplitNodes(CPier& pier) {
    const CDataSet& data = g_DataSet;
    const int m = data.m_nColumnNodes, s = data.m_nSpanNodes, c = data.m_nCantileverNodes;
    const long long n = data.m_nColumns;
    const auto narrow = [](long long count) {
        return static_cast<int>(std::clamp(count, -1000000000LL, 1000000000LL));
    };
    switch (data.m_nStructureType) {
        case kTypePier:
            pier.m_nPierNodes = narrow((n - 1) * s + (m + 2) * n + (c + 1) * 2LL);
            pier.m_nFoundationNodes = pier.m_nNodes - pier.m_nPierNodes;
            return pier.m_nFoundationNodes;
        case kTypePileBent:
            pier.m_nPierNodes = narrow((n - 1) * s + (data.m_nCantilevers < 1 ? 0 : 2LL * c + 2));
            return 0;
        case kTypeMast:
            pier.m_nFoundationNodes = 1;
            return 1;
        case kTypeWallA:
        case kTypeWallB:
            pier.m_nPierNodes = narrow((m + 2) * n);
            pier.m_nFoundationNodes = pier.m_nNodes - pier.m_nPierNodes;
            return pier.m_nFoundationNodes;
        case kTypePileGroup:
            return pier.m_nNodes;
        default:
            return 0;
    }
}

void ReadNodes(CSeqFile& file, CPier& pier, int skipped) {
    pier.m_dNodes.clear();
    pier.m_dNodes.reserve(static_cast<std::size_t>(pier.m_nNodes - std::clamp(skipped, 0, pier.m_nNodes)));
    std::array<double, 3> node{};
    for (int i = 0; i < pier.m_nNodes; ++i) {
        file.ReadRecord(node.data(), 24, "node");
        if (i >= skipped) pier.m_dNodes.push_back(node);
    }
    for (int i = 0; i < pier.m_nNodes; ++i) file.ReadRecord(node.data(), 24, "second node set");
}

void ReadElementTable(CSeqFile& file, std::vector<CElementRow>& table) {
    g_DataSet.m_nElements = file.ReadInts<2>("element count")[1];
    file.CheckCount(g_DataSet.m_nElements, 28, "elements");
    table.clear();
    table.reserve(static_cast<std::size_t>(g_DataSet.m_nElements));
    for (int i = 0; i < g_DataSet.m_nElements; ++i) {
        const std::array<int, 7> words = file.ReadInts<7>("element row");
        // A node number of the smallest int can't be counted from 0.
        const auto fromZero = [](int node) { return node > -kMaxElementNumber ? node - 1 : node; };
        table.push_back(
            {words[0], fromZero(words[2]), fromZero(words[3]), fromZero(words[4]), words[5], words[6]});
    }
}

// Marks the element numbers that have no row. Assumes, as the host writes them, that the first number is 1.
void BuildElementMask(const CSeqFile& file, CPier& pier, CPierReadState& state, int firstType) {
    long long gaps = 0;
    for (std::size_t i = 0; i + 1 < state.elementTable.size(); ++i) {
        gaps += static_cast<long long>(state.elementTable[i + 1].number) - state.elementTable[i].number - 1;
    }
    g_DataSet.m_nElementGaps = static_cast<int>(std::clamp(gaps, -1LL << 30, 1LL << 30));
    if (HasNoFrame(firstType)) {
        return;
    }
    const long long size = g_DataSet.m_nElements + gaps;
    long long masks = size;
    for (const CPier& read : g_DataSet.m_Piers) masks += static_cast<long long>(read.m_ElementMask.size());
    if (size < 0 || size > kMaxElementNumber || masks > kMaxMaskBytes) {
        file.Fail(CFileException::badCount,
                  "numbers its elements up to " + std::to_string(size) + ", which can't be");
    }
    state.elementMask.assign(static_cast<std::size_t>(size), 1);
    for (const CElementRow& row : state.elementTable) {
        if (row.number < 1 || row.number > size) {
            file.Fail(CFileException::badFormat, "has the element number " + std::to_string(row.number) +
                                                     " outside its table of " + std::to_string(size));
        }
        state.elementMask[static_cast<std::size_t>(row.number - 1)] = 0;
    }
    pier.m_ElementMask = state.elementMask;
}

// The rest of the pile model file: the section number of each pile element.
void ReadPileSections(CSeqFile& file, const PileModelCounts& counts, CPierReadState& state) {
    const CDataSet& data = g_DataSet;
    std::array<int, 2> pair{};
    for (int i = 0; i < data.m_nPilTableSize; ++i) file.ReadRecord(pair.data(), 8, "table entry");
    for (const int rows : {counts.rowsA, counts.rowsB}) {
        std::vector<int> spacing(static_cast<std::size_t>(std::max(rows, 1) - 1));
        file.ReadRecord(spacing.data(), static_cast<unsigned>(spacing.size() * 4), "pile row spacing");
    }
    state.pileSections.assign(static_cast<std::size_t>(data.m_nPiles), {});
    for (std::vector<int>& sections : state.pileSections) {
        sections.resize(static_cast<std::size_t>(data.m_nPileNodes - 1));
        file.ReadRecord(sections.data(), static_cast<unsigned>(sections.size() * 4), "pile sections");
    }
    state.pileFlags.assign(static_cast<std::size_t>(data.m_nPiles), 0);
    // Nothing uses the flags, so they may be absent.
    file.Read(state.pileFlags.data(), static_cast<unsigned>(state.pileFlags.size() * 4));
}

void CopyToPier(CPier& pier) {
    const CDataSet& data = g_DataSet;
    pier.m_nColumns = data.m_nColumns;
    pier.m_nColumnSections = std::max(data.m_nColumnSections, 1);
    pier.m_nColumnNodes = data.m_nColumnNodes;
    pier.m_nExtraMembers = data.m_nExtraMembers;
    pier.m_nXMemberSections = data.m_nXMemberSections;
    pier.m_nUnits = data.m_nUnits;
    pier.m_nCantilevers = data.m_nCantilevers;
    pier.m_nCantileverNodes = data.m_nCantileverNodes;
    pier.m_nSpanNodes = data.m_nSpanNodes;
    pier.m_nStructureType = data.m_nStructureType;
    pier.m_nPiles = data.m_nPiles;
}

int StructureTypeOf(const CSeqFile& file, int fileType, const PileModelCounts& counts) {
    if (fileType == kTypeDerived) {
        return counts.rowsA == 1 && counts.rowsB == 1 ? kTypeSinglePile : kTypePileGroup;
    }
    if (fileType < 0 || fileType >= kStructureTypes) {
        file.Fail(CFileException::badFormat,
                  "has the structure type " + std::to_string(fileType) + ", which is none");
    }
    return fileType;
}

}  // namespace

bool CCollectData::ReadPierHeader(int k, CPierReadState& state) {
    CDataSet& data = g_DataSet;
    CPier& pier = data.m_Piers[static_cast<std::size_t>(k)];
    CSeqFile pileFile(SubstructureFile(".PLF", k + 1));
    const CPileFileHead head = ReadPileFileHead(pileFile);
    data.m_nSectionBlocks = head.blocks;
    data.m_nSectionRecords = static_cast<int>(head.sections.size());
    pier.m_nPileSections = data.m_nSectionRecords;
    const std::array<int, 3> kind = pileFile.ReadInts<3>("node count and structure type");
    pier.m_nNodes = kind[0];
    const int fileType = kind[2];
    ReadModelHeader(pileFile, k, fileType);
    pileFile.ReadInts<10>("model data");

    CSeqFile modelFile(SubstructureFile(".PIL", k + 1));
    PileModelCounts counts;
    if (!TakePileModelCounts(modelFile, counts) || !ReadConvergence()) return false;
    data.m_nStructureType = StructureTypeOf(pileFile, fileType, counts);
    pileFile.CheckCount(pier.m_nNodes, kNodeBytes, "nodes");
    ReadNodes(pileFile, pier, SplitNodes(pier));
    ReadElementTable(pileFile, state.elementTable);
    BuildElementMask(pileFile, pier, state,
                     k == 0 ? data.m_nStructureType : data.FirstPier().m_nStructureType);
    // Nothing uses the closing count, so its record may be absent.
    std::array<int, 2> closing{};
    if (fileType != kTypePileBent && pileFile.Read(closing.data(), sizeof(closing)) == 0) closing.fill(0);
    data.m_nPlfExtraCount = closing[1];
    ReadPileSections(modelFile, counts, state);
    CopyToPier(pier);
    return true;
}

void CCollectData::ReadPileDimensions(int number) {
    CSeqFile file(SubstructureFile(".plf", number));
    const CPileFileHead head = ReadPileFileHead(file);
    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(number - 1)];
    for (CPile& pile : pier.m_Piles) {
        const int section = pile.m_nElements > 0 ? pier.Element(pile.m_nFirstElement).m_nSection : 0;
        const bool known = section >= 1 && section <= static_cast<int>(head.sections.size());
        pile.m_dDimension = known ? head.sections[static_cast<std::size_t>(section - 1)].Dimension() : 0.0;
    }
}
