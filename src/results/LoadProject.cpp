// SPDX-License-Identifier: MIT
#include "results/LoadProject.h"

#include <algorithm>
#include <climits>

#include "framework/File.h"
#include "framework/Index.h"
#include "results/Bearings.h"
#include "results/Combinations.h"
#include "results/ForceFile.h"
#include "results/Identity.h"
#include "results/PierModel.h"
#include "results/ProjectFiles.h"
#include "results/ReadData.h"
#include "results/SeqFile.h"
#include "text/Format.h"

namespace lumerin {

// The load of a project, in a fixed order, because each read needs results of earlier ones.

namespace {

constexpr int kMaxSubstructures = 10000;

int ReadSubstructureCount(const std::string& basePath) {
    CSeqFile file(ProjectFile(basePath, ".TWR"));
    const int count = file.ReadInts<1>("substructure count")[0];
    file.RequireRange("substructure count", count, 1, kMaxSubstructures);
    return count;
}

long long SpanElements(const PierCounts& counts) {
    return std::max((counts.spanNodes + 1LL) * (counts.columns - 1LL), 0LL);
}

CMemberCounts MemberCountsOf(const PierCounts& counts) {
    CMemberCounts members;
    members.piles = counts.piles;
    members.pileNodes = counts.pileNodes;
    members.columns = counts.columns;
    members.columnNodes = counts.columnNodes;
    members.spanElements = static_cast<int>(std::min<long long>(SpanElements(counts), INT_MAX));
    members.cantileverElements = counts.cantilevers > 0 ? counts.cantileverNodes + 1 : 0;
    members.extraMembers = counts.extraMembers;
    return members;
}

// The memory that a project may take beyond the size of its force files, all substructures together.
constexpr long long kSlackBytes = 32LL << 20;
// A case with its names, the same on 32-bit and 64-bit platforms, so that all refuse the same projects.
constexpr long long kBytesOfACase = 144;
static_assert(2 * sizeof(CLoadCase) <= kBytesOfACase);

// About what the result tables of the widest code family take: a record of six words for each section, class
// and extreme, and an entry of a record and seven values for each cap section.
long long TableBytes(const PierCounts& counts) {
    constexpr long long kRecordBytes = 24, kCapEntryBytes = 96;
    constexpr long long kRecords = kLimitClasses * (13 + 1LL);
    constexpr int kCapKinds = 3 + 4;  // of a moment and of a shear section
    const long long sections = counts.sectionRecords + std::max(counts.columnSections, 1) +
                               static_cast<long long>(counts.extraSections);
    const long long piles = 2LL * kLimitClasses * counts.piles;
    const long long cap = 2LL * kLimitClasses * kCapKinds * counts.columns;
    return sections * kRecords * kRecordBytes + piles * static_cast<long long>(sizeof(int)) +
           cap * kCapEntryBytes;
}

// The memory of a model, by the counts in its files.
struct ModelNeed {
    long long elements, cases;
    long long fixedBytes, bytesPerCase;

    bool FitsInto(long long limit) const {
        return fixedBytes <= limit && bytesPerCase <= limit && cases <= (limit - fixedBytes) / bytesPerCase;
    }
    long long Bytes() const { return fixedBytes + bytesPerCase * cases; }  // of one that fits
};

ModelNeed NeedOf(const PierCounts& counts) {
    const CMemberCounts members = MemberCountsOf(counts);
    ModelNeed need{};
    need.elements = static_cast<long long>(counts.pileElements) +
                    members.columns * (members.columnNodes + 1LL) + SpanElements(counts) +
                    2LL * members.cantileverElements + members.extraMembers;
    need.cases = counts.loadCases;
    need.fixedBytes = 2 * static_cast<long long>(sizeof(CElement) + sizeof(CSectionData)) * need.elements +
                      TableBytes(counts);
    need.bytesPerCase =
        need.elements * static_cast<long long>(kForcesPerElement * sizeof(float)) + kBytesOfACase;
    return need;
}

// Wrong counts can require more bytes than an integer can express.
std::string TooShort(long long fileBytes, const ModelNeed& need) {
    const double records =
        static_cast<double>(need.elements) * static_cast<double>(need.cases) * kForceRecordBytes;
    const std::string cases = std::to_string(need.cases) + " load cases";
    return "holds " + std::to_string(fileBytes) + " bytes, too few for " +
           (need.elements == 0 ? cases
                               : std::to_string(need.elements) + " elements in " + cases +
                                     ", whose records take " + FormatFixed(records, 0));
}

// Compares the counts with the size of the force file: a model may be a little larger than its file, which
// can be cut short, but never by orders of magnitude. `slack` is the memory that the earlier substructures
// have left for that. A frame that the project does not use is left out when it needs too much.
void RequireSize(const CDirFile& file, const CFileException& notOpened, StructureType firstType,
                 PierCounts& counts, long long& slack) {
    const long long fileBytes = file.Length();
    const long long limit = 3 * fileBytes + slack;
    ModelNeed need = NeedOf(counts);
    if (!need.FitsInto(limit) && HasNoFrame(firstType)) {
        counts.columns = counts.cantilevers = 0;
        need = NeedOf(counts);
    }
    // A file that cannot be opened is reported as such, whatever size was expected.
    if (!need.FitsInto(limit)) {
        if (!file.IsOpen()) throw notOpened;
        throw CFileException(CFileException::badCount, notOpened.m_strFileName, TooShort(fileBytes, need));
    }
    slack -= std::max(need.Bytes() - 3 * fileBytes, 0LL);
}

// Copies what the model files contain into the substructure.
void StoreModel(PierModel& model, CPier& pier) {
    const PierCounts& counts = model.counts;
    pier.m_nColumns = counts.columns;
    pier.m_nColumnSections = std::max(counts.columnSections, 1);
    pier.m_nColumnNodes = counts.columnNodes;
    pier.m_nExtraMembers = counts.extraMembers;
    pier.m_nXMemberSections = counts.extraSections;
    pier.m_nUnits = counts.units;
    pier.m_nCantilevers = counts.cantilevers;
    pier.m_nCantileverNodes = counts.cantileverNodes;
    pier.m_nSpanNodes = counts.spanNodes;
    pier.m_nStructureType = counts.type;
    pier.m_nPiles = counts.piles;
    pier.m_nPileSections = counts.sectionRecords;
    pier.m_nNodes = counts.nodes;
    pier.m_nPierNodes = model.pierNodes;
    pier.m_nFoundationNodes = model.foundationNodes;
    pier.m_dNodes = std::move(model.nodes);
    pier.m_nAnalysedCases = counts.analysedCases;
    pier.m_ElementMask = model.elementMask;
    pier.AllocateMembers(MemberCountsOf(counts), counts.loadCases);
}

// What all tables take from the substructure that was read last.
void StoreCounts(const PierCounts& counts, CDataSet& data) {
    data.m_nAnalysisMode = counts.analysisMode;
    data.m_dNcvReal = counts.convergenceReal;
    data.m_nNcvInteger = counts.convergenceInteger;
    data.m_nUnits = counts.units;
    data.m_sForceUnit = counts.units == 0 ? "kips" : "kN";
    data.m_sMomentUnit = counts.units == 0 ? "kip-ft" : "kN-m";
    data.m_nPilesFromNodes = counts.pilesFromNodes;
    data.m_nExtraMembers = counts.extraMembers;
    data.m_nXMemberSections = counts.extraSections;
    data.m_nSpanNodes = counts.spanNodes;
    data.m_nCantileverNodes = counts.cantileverNodes;
    data.m_nColumnNodes = counts.columnNodes;
    data.m_nColumnSections = counts.columnSections;
    data.m_nStructureType = counts.type;
    data.m_nColumns = counts.columns;
    data.m_nCantilevers = counts.cantilevers;
    data.m_nElementGaps = counts.elementGaps;
    data.m_nPlfExtraCount = counts.closingCount;
    data.m_nPileNodesTotal = counts.pileNodesTotal;
    data.m_nPileElements = counts.pileElements;
    data.m_nElements = counts.elements;
    data.m_nPilTableSize = counts.pileTableSize;
    data.m_nSectionRecords = counts.sectionRecords;
    data.m_nSectionBlocks = counts.sectionBlocks;
    data.m_nPiles = counts.piles;
    data.m_nPileNodes = counts.pileNodes;
    data.m_nLoadCases = counts.loadCases;
}

// One load, from the count of the substructures to the geometry of their caps.
class Loader {
  public:
    Loader(const std::string& basePath, Messages& messages) : m_basePath(basePath), m_messages(messages) {}

    // False: nothing converged, which was reported.
    bool Load() {
        m_data.m_nPiers = ReadSubstructureCount(m_basePath);
        m_data.m_Piers.resize(Index(m_data.m_nPiers));
        for (int k = 0; k < m_data.m_nPiers; ++k) {
            if (!ReadSubstructure(k)) return false;
        }
        for (int k = 0; k < m_data.m_nPiers; ++k) ReadCombinationData(m_basePath, k, m_data, m_messages);
        ReadKeyedText();
        int number = 0;
        for (CPier& pier : m_data.m_Piers) ReadPileDimensions(m_basePath, ++number, pier);
        ReadBearingsAndMasks();
        for (CPier& pier : m_data.m_Piers) pier.BuildCapGeometry();
        return true;
    }

    Project TakeProject() { return std::move(m_project); }

  private:
    bool ReadSubstructure(int k) {
        const std::optional<StructureType> firstType =
            k > 0 ? std::optional(m_data.FirstPier().m_nStructureType) : std::nullopt;
        std::optional<PierModel> model = ReadPierModel({m_basePath, k, firstType, m_maskBytes}, m_messages);
        if (!model) return false;
        m_maskBytes += static_cast<long long>(model->elementMask.size());
        CPier& pier = m_data.m_Piers[Index(k)];
        CDirFile file;
        CFileException notOpened(CFileException::none, SubstructureFile(m_basePath, ".vmd", k + 1), "");
        file.Open(notOpened.m_strFileName, kForceRecordBytes, &notOpened);
        RequireSize(file, notOpened, firstType.value_or(model->counts.type), model->counts, m_slack);
        StoreModel(*model, pier);
        StoreCounts(model->counts, m_data);
        IdentifyPiles(pier, *model);
        FindForces(*model, file, pier);
        if (pier.m_nColumns > 0) NumberElements(pier);
        AssignExtraMemberNumbers(pier, *model);
        AssignExtraMemberSections(pier, *model);
        AssignMemberSections(pier, *model);
        pier.m_Lists = {std::move(model->allNodes), std::move(model->elementTable)};
        return true;
    }

    void FindForces(const PierModel& model, CDirFile& file, const CPier& pier) {
        auto forces = std::make_unique<ForceFile>(
            pier, model.counts, PlanForceReads(pier, model, m_data.FirstPier().m_nStructureType), file);
        const long long missing = forces->MissingRecords();
        m_project.forces.push_back(std::move(forces));
        m_project.missingRecords += missing;
        if (missing == 0) return;
        m_messages.Show(
            file.Path() + ": " + std::to_string(missing) +
            " force records are missing at its end. Each takes the forces of the record before it.");
    }

    // Each reader looks for its section from the beginning of the file.
    void ReadKeyedText() {
        ifstreamex sections(ProjectFile(m_basePath, ".MIS"));
        ReadPierSections(sections, m_data);
        ifstreamex texts(ProjectFile(m_basePath, ".MIS"));
        ReadProjectData(texts, m_data);
        ifstreamex locations(ProjectFile(m_basePath, ".MIS"));
        ReadPierData(locations, m_data);
    }

    void ReadBearingsAndMasks() {
        const StructureType firstType = m_data.FirstPier().m_nStructureType;
        int number = 0;
        for (CPier& pier : m_data.m_Piers) {
            ++number;
            if (firstType == kTypePier || firstType == kTypePileBent) {
                pier.m_BearingRows = ReadBearings(m_basePath, number);
                pier.m_nBearingRows = static_cast<int>(pier.m_BearingRows.size());
            }
            ApplyElementMask(pier, firstType);
        }
    }

    const std::string& m_basePath;
    Messages& m_messages;
    Project m_project;
    CDataSet& m_data = m_project.data;
    long long m_slack = kSlackBytes;
    long long m_maskBytes = 0;  // of the substructures that were read
};

}  // namespace

std::optional<Project> LoadProject(const std::string& basePath, Messages& messages) {
    Loader loader(basePath, messages);
    if (!loader.Load()) return std::nullopt;
    return loader.TakeProject();
}

}  // namespace lumerin
