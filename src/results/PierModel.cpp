// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstring>
#include <span>

#include "framework/Index.h"
#include "results/PierModel.h"
#include "results/PileFile.h"
#include "results/ProjectFiles.h"
#include "text/OutOfRange.h"

namespace lumerin {

// The read of one substructure's model: the pile file, the pile model file and the convergence file. Every
// allocation of the load depends on them, so each count is compared with its file before it is used.

namespace {

constexpr int kNodeBytes = 2 * 24;               // a node is in the file twice
constexpr int kUnitsUsByOtherName = 3;           // the host writes 3 for US units in older projects
constexpr int kMaxPropertyNumbers = 1000;        // column or extra member sections; far above any model's
constexpr int kMaxElementNumber = 2000000;       // the mask has one byte for each element number
constexpr long long kMaxMaskBytes = 16LL << 20;  // of all substructures' masks
constexpr int kMaxInteriorNodes = 1000000;

// Pile rows in each direction.
struct PileRows {
    int a = 0, b = 0;
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
    long long low, high;
    int none;  // the value that means none
    const char* what;
};
constexpr WordLimit kFrameLimits[] = {
    {kColumnsWord, 0, kMaxInteriorNodes, 0, "column count"},
    {kCantileverNodesWord, -1, kMaxInteriorNodes, -1, "cantilever node count"},
    {kColumnNodesWord, -1, kMaxInteriorNodes, -1, "column node count"},
    {kSpanNodesWord, -1, kMaxInteriorNodes, -1, "span node count"},
    {kColumnSectionsWord, kNoLowest, kMaxPropertyNumbers, 1, "column section count"},
};
constexpr WordLimit kExtraLimits[] = {
    {kExtraMembersWord, kNoLowest, kMaxInteriorNodes, 0, "extra member count"},
    {kExtraSectionsWord, kNoLowest, kMaxPropertyNumbers, 0, "extra member section count"},
};

bool IsWithin(const ModelHeader& words, const WordLimit& limit) {
    return words[limit.word] >= limit.low && words[limit.word] <= limit.high;
}

void RequireWithin(const CSeqFile& file, const ModelHeader& words, std::span<const WordLimit> limits) {
    for (const WordLimit& limit : limits) {
        file.RequireRange(limit.what, words[limit.word], limit.low, limit.high);
    }
}

// In a project whose frames are not read, their words may have any value; an impossible value counts as none.
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

void TakeModelHeader(const ModelHeader& words, PierCounts& counts) {
    counts.columns = words[kColumnsWord];
    counts.cantilevers = words[kCantileversWord];
    counts.cantileverNodes = words[kCantileverNodesWord];
    counts.extraMembers = std::max(words[kExtraMembersWord], 0);
    counts.extraSections = std::max(words[kExtraSectionsWord], 0);
    counts.columnNodes = words[kColumnNodesWord];
    counts.spanNodes = words[kSpanNodesWord];
    counts.units = words[kUnitsWord] == kUnitsUsByOtherName ? 0 : words[kUnitsWord];
    counts.columnSections = words[kColumnSectionsWord];
}

// `fileType` is the substructure's type as its own file says it; a derived type has no frame.
void ReadModelHeader(CSeqFile& file, const PierRead& read, StructureType fileType, PierCounts& counts) {
    ModelHeader words = file.ReadInts<kHeaderWords>("model header");
    const bool hasFrame = fileType != kTypeDerived && !HasNoFrame(fileType);
    const bool isFrameRead = read.firstType ? !HasNoFrame(*read.firstType) : hasFrame;
    if (isFrameRead) {
        RequireWithin(file, words, kFrameLimits);
    } else {
        ClearUnreadFrame(words, hasFrame);
    }
    RequireWithin(file, words, kExtraLimits);
    TakeModelHeader(words, counts);
}

// The pile model file up to its counts. False: nothing converged, which was reported.
bool ReadPileModelCounts(CSeqFile& file, Messages& messages, PierCounts& counts, PileRows& rows) {
    const std::array<int, 9> words = file.ReadInts<9>("pile model counts");
    if (words[1] < 1) {
        messages.Show("No load cases converged.  There are no results to view.");
        return false;
    }
    counts.pileNodesTotal = words[0];
    counts.loadCases = counts.analysedCases = words[1];
    rows = {words[3], words[4]};
    counts.pileTableSize = words[5];
    counts.piles = words[6];
    counts.pileNodes = words[8];
    file.CheckCount("pile table size", counts.pileTableSize, 8);
    file.CheckCount("pile count", counts.piles, 4);
    file.CheckCount("pile row count", std::max(rows.a, 0), 4);
    file.CheckCount("pile column count", std::max(rows.b, 0), 4);
    if (counts.piles > 0) {
        file.RequireRange("node count of a pile", counts.pileNodes, 2, kNoHighest);
        file.CheckCount("pile element count", static_cast<long long>(counts.pileNodes - 1) * counts.piles, 4);
    }
    counts.pilesFromNodes = counts.pileNodes > 0 ? counts.pileNodesTotal / counts.pileNodes : 0;
    counts.pileElements = counts.piles > 0 ? (counts.pileNodes - 1) * counts.piles : 0;
    return true;
}

// The convergence file; each substructure reads the same one. False: nothing converged, which was reported.
bool ReadConvergence(const std::string& basePath, Messages& messages, PierCounts& counts) {
    CSeqFile file(ProjectFile(basePath, ".ncv"));
    int cases = 0;
    if (file.Read(&cases, 4) == 0) {
        // The file has only its mark: the count of the pile model file is kept.
        constexpr int kEmptyFile = 2;
        if (file.Length() > kEmptyFile)
            file.Fail(CFileException::endOfFile, "ends before its load case count");
        return true;
    }
    if (cases == 0) {
        messages.Show("No load cases converged. Results cannot be viewed.");
        return false;
    }
    file.RequireRange("load case count", cases, 0, kNoHighest);
    counts.loadCases = cases;
    // Nothing uses these three, so they may be absent.
    std::array<char, 16> unused{};
    for (const unsigned bytes : {16U, 4U, 4U}) file.Read(unused.data(), bytes);
    if (file.Read(&counts.analysisMode, 4) == 0) counts.analysisMode = 0;
    if (file.Read(&counts.convergenceReal, 8) == 0) counts.convergenceReal = 0.0;
    if (file.Read(&counts.convergenceInteger, 4) == 0) counts.convergenceInteger = 0;
    return true;
}

// Splits the node list into the substructure's own nodes and its foundation's; returns how many of the first
// nodes of the list are skipped.
int SplitNodes(PierModel& model) {
    const PierCounts& counts = model.counts;
    const int m = counts.columnNodes, s = counts.spanNodes, c = counts.cantileverNodes;
    const long long n = counts.columns;
    const auto narrow = [](long long count) {
        return static_cast<int>(std::clamp(count, -1000000000LL, 1000000000LL));
    };
    switch (counts.type) {
        case kTypePier:
            model.pierNodes = narrow((n - 1) * s + (m + 2) * n + (c + 1) * 2LL);
            model.foundationNodes = counts.nodes - model.pierNodes;
            return model.foundationNodes;
        case kTypePileBent:
            model.pierNodes = narrow((n - 1) * s + (counts.cantilevers < 1 ? 0 : 2LL * c + 2));
            return 0;
        case kTypeMast:
            model.foundationNodes = 1;
            return 1;
        case kTypeWallA:
        case kTypeWallB:
            model.pierNodes = narrow((m + 2) * n);
            model.foundationNodes = counts.nodes - model.pierNodes;
            return model.foundationNodes;
        case kTypePileGroup:
            return counts.nodes;
        default:
            return 0;
    }
}

void ReadNodes(CSeqFile& file, int skipped, PierModel& model) {
    const int nodes = model.counts.nodes;
    model.allNodes.reserve(Index(nodes));
    std::array<double, 3> node{};
    for (int i = 0; i < nodes; ++i) {
        file.ReadRecord(node.data(), 24, "node");
        model.allNodes.push_back(node);
    }
    model.nodes.assign(model.allNodes.begin() + std::clamp(skipped, 0, nodes), model.allNodes.end());
    for (int i = 0; i < nodes; ++i) file.ReadRecord(node.data(), 24, "second node set");
}

std::vector<CElementRow> ReadElementTable(CSeqFile& file) {
    const int elements = file.ReadInts<2>("element count")[1];
    file.CheckCount("element count", elements, 28);
    std::vector<CElementRow> table;
    table.reserve(Index(elements));
    for (int i = 0; i < elements; ++i) {
        const std::array<int, 7> words = file.ReadInts<7>("element row");
        // The smallest int minus one is not an int.
        const auto fromZero = [](int node) { return node > -kMaxElementNumber ? node - 1 : node; };
        table.push_back(
            {words[0], fromZero(words[2]), fromZero(words[3]), fromZero(words[4]), words[5], words[6]});
    }
    return table;
}

long long CountGaps(const std::vector<CElementRow>& table) {
    long long gaps = 0;
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        gaps += static_cast<long long>(table[i + 1].number) - table[i].number - 1;
    }
    return gaps;
}

// Marks the element numbers that have no row. Assumes, as the host writes them, that the first number is 1.
std::vector<std::uint8_t> BuildElementMask(const CSeqFile& file, const std::vector<CElementRow>& table,
                                           long long maskBytes) {
    const long long size = static_cast<long long>(table.size()) + CountGaps(table);
    file.RequireRange("highest element number", size, 0,
                      std::min<long long>(kMaxElementNumber, kMaxMaskBytes - maskBytes));
    std::vector<std::uint8_t> mask(Index(size), 1);
    for (const CElementRow& row : table) {
        file.RequireRange("element number", row.number, 1, size);
        mask[Index(row.number - 1)] = 0;
    }
    return mask;
}

// The rest of the pile model file: the section number of each pile element.
std::vector<std::vector<int>> ReadPileSections(CSeqFile& file, const PierCounts& counts,
                                               const PileRows& rows) {
    std::array<int, 2> pair{};
    for (int i = 0; i < counts.pileTableSize; ++i) file.ReadRecord(pair.data(), 8, "table entry");
    for (const int count : {rows.a, rows.b}) {
        std::vector<int> spacing(Index(std::max(count, 1) - 1));
        file.ReadRecord(spacing.data(), static_cast<unsigned>(spacing.size() * 4), "pile row spacing");
    }
    // The flags of the piles come last. Nothing uses them, so they may be absent and are not read.
    std::vector<std::vector<int>> piles(Index(counts.piles));
    for (std::vector<int>& sections : piles) {
        sections.resize(Index(counts.pileNodes - 1));
        file.ReadRecord(sections.data(), static_cast<unsigned>(sections.size() * 4), "pile sections");
    }
    return piles;
}

StructureType StructureTypeOf(const CSeqFile& file, StructureType fileType, const PileRows& rows) {
    if (fileType == kTypeDerived) return rows.a == 1 && rows.b == 1 ? kTypeSinglePile : kTypePileGroup;
    file.RequireRange("structure type", fileType, kTypeDerived, kStructureTypes - 1);
    return fileType;
}

}  // namespace

std::optional<PierModel> ReadPierModel(const PierRead& read, Messages& messages) {
    PierModel model;
    PierCounts& counts = model.counts;
    CSeqFile pileFile(SubstructureFile(read.basePath, ".PLF", read.index + 1));
    const CPileFileHead head = ReadPileFileHead(pileFile);
    counts.sectionBlocks = head.blocks;
    counts.sectionRecords = static_cast<int>(head.sections.size());
    const std::array<int, 3> kind = pileFile.ReadInts<3>("node count and structure type");
    counts.nodes = kind[0];
    const auto fileType = static_cast<StructureType>(kind[2]);
    ReadModelHeader(pileFile, read, fileType, counts);
    pileFile.ReadInts<10>("model data");

    CSeqFile modelFile(SubstructureFile(read.basePath, ".PIL", read.index + 1));
    PileRows rows;
    if (!ReadPileModelCounts(modelFile, messages, counts, rows)) return std::nullopt;
    if (!ReadConvergence(read.basePath, messages, counts)) return std::nullopt;
    counts.type = StructureTypeOf(pileFile, fileType, rows);
    pileFile.CheckCount("node count", counts.nodes, kNodeBytes);
    ReadNodes(pileFile, SplitNodes(model), model);
    model.elementTable = ReadElementTable(pileFile);
    counts.elements = static_cast<int>(model.elementTable.size());
    counts.elementGaps = static_cast<int>(std::clamp(CountGaps(model.elementTable), -1LL << 30, 1LL << 30));
    if (!HasNoFrame(read.firstType.value_or(counts.type))) {
        model.elementMask = BuildElementMask(pileFile, model.elementTable, read.maskBytes);
    }
    // Nothing uses the closing count, so its record may be absent.
    std::array<int, 2> closing{};
    if (fileType != kTypePileBent && pileFile.Read(closing.data(), sizeof(closing)) == 0) closing.fill(0);
    counts.closingCount = closing[1];
    model.pileSections = ReadPileSections(modelFile, counts, rows);
    return model;
}

void ReadPileDimensions(const std::string& basePath, int number, CPier& pier) {
    CSeqFile file(SubstructureFile(basePath, ".plf", number));
    const CPileFileHead head = ReadPileFileHead(file);
    for (CPile& pile : pier.m_Piles) {
        const int section = pile.m_nElements > 0 ? pier.Element(pile.m_nFirstElement).m_nSection : 0;
        const bool known = section >= 1 && section <= static_cast<int>(head.sections.size());
        pile.m_dDimension = known ? head.sections[Index(section - 1)].Dimension() : 0.0;
    }
}

}  // namespace lumerin
