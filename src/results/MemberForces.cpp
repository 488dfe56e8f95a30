#include <algorithm>
#include <array>
#include <cmath>

#include "framework/Backend.h"
#include "results/CollectData.h"
#include "results/ForcePlan.h"
#include "results/SeqFile.h"

// The member force file: for every converged case the end forces of every element, in records of 68 bytes.
// A case's records stand in one block; the file is read once, in large pieces, for all members of all cases.

namespace {

constexpr std::size_t kPieceRecords = std::size_t{1} << 14;  // 1.1 MB

// What the records of a stretch of cases told about the forces of each family.
struct CFiniteForces {
    bool piles = true, columns = true, extraMembers = true;
};

class ForceReader {
  public:
    ForceReader(CPier& pier, std::vector<CForceRead> reads, CDirFile& file)
        : m_pier(pier), m_reads(std::move(reads)), m_file(file) {
        m_block = static_cast<long long>(g_DataSet.m_nPileElements) + g_DataSet.m_nElements;
    }

    // Records that the file should hold and doesn't.
    long long Read() {
        m_file.Seek(0);  // a file that could not be opened says so here
        m_nWhole = m_file.Length() / kForceRecordBytes;
        int cases = 0;
        CFiniteForces finite;
        if (MapBlock()) {
            cases = static_cast<int>(std::min<long long>(m_nWhole / m_block, m_pier.m_nLoadCases));
            ReadBlocks(cases, finite);
        }
        TakeLastRecordOf(cases - 1);
        for (int c = cases; c < m_pier.m_nLoadCases; ++c) ReadCaseByRecord(c, finite);
        Note(finite);
        m_pier.m_bPileHeadsFinite = m_pier.m_bPileForcesFinite || HeadsFinite();
        return std::max(0LL, m_block * m_pier.m_nLoadCases - m_nWhole);
    }

  private:
    struct Target {
        int element = -1;
        ForceKind kind = ForceKind::pile;
    };

    // Inverts the plan: what each record of a block feeds. False when a record lies outside its block or
    // feeds two elements; such a file is read record by record, as its numbers say.
    bool MapBlock() {
        if (m_block <= 0) return false;
        m_targets.assign(static_cast<std::size_t>(m_block), Target{});
        for (const CForceRead& read : m_reads) {
            if (read.record < 1 || read.record > m_block) return false;
            Target& target = m_targets[static_cast<std::size_t>(read.record - 1)];
            if (target.element != -1) return false;
            target = {read.element, read.kind};
        }
        return true;
    }

    void ReadBlocks(int cases, CFiniteForces& finite) {
        std::vector<float> piece(kPieceRecords * kForceRecordWords);
        const std::size_t block = m_targets.size();
        const std::size_t total = static_cast<std::size_t>(cases) * block;
        m_file.Seek(0);
        for (std::size_t done = 0; done < total;) {
            const std::size_t records = std::min(kPieceRecords, total - done);
            const unsigned bytes = static_cast<unsigned>(records * kForceRecordBytes);
            if (m_file.ReadBytes(piece.data(), bytes) != bytes) {
                throw CFileException(CFileException::endOfFile, m_file.Path(), "was cut while it was read");
            }
            for (std::size_t r = 0; r < records;) {
                const std::size_t inBlock = (done + r) % block;
                const std::size_t here = std::min(block - inBlock, records - r);
                StoreRun(static_cast<int>((done + r) / block), inBlock, here,
                         piece.data() + r * kForceRecordWords, finite);
                r += here;
            }
            done += records;
        }
    }

    // Stores consecutive records of one case's block.
    void StoreRun(int loadCase, std::size_t inBlock, std::size_t count, const float* words,
                  CFiniteForces& finite) const {
        float* forces = m_pier.MutableCase(loadCase).data();
        for (std::size_t i = 0; i < count; ++i, words += kForceRecordWords)
            Store(forces, m_targets[inBlock + i], words, finite);
    }

    // A file can end with a case; the next one then begins with a record that is missing.
    void TakeLastRecordOf(int loadCase) {
        if (loadCase < 0) return;
        m_file.Read(m_record.data(), loadCase * m_block + m_reads.back().record);
    }

    void ReadCaseByRecord(int loadCase, CFiniteForces& finite) {
        const long long before = loadCase * m_block;
        float* forces = m_pier.MutableCase(loadCase).data();
        for (const CForceRead& read : m_reads) {
            // Behind the file's end the record before stays; there is no need to ask for each.
            if (before + read.record <= m_nWhole) m_file.Read(m_record.data(), before + read.record);
            Store(forces, {read.element, read.kind}, m_record.data(), finite);
        }
    }

    void Store(float* forces, const Target& target, const float* words, CFiniteForces& finite) const {
        if (target.element < 0) return;
        float* to = forces + static_cast<std::size_t>(target.element) * kForcesPerElement;
        if (StoreForceRecord(target.kind, words, to)) return;
        if (target.kind == ForceKind::pile) finite.piles = false;
        if (target.kind == ForceKind::extraMember) finite.extraMembers = false;
        // Cap elements are watched by the cap tables' own check, on the values that these show.
        if (target.kind == ForceKind::frame && IsColumnElement(target.element)) finite.columns = false;
    }

    void Note(const CFiniteForces& finite) {
        if (!finite.piles) m_pier.m_bPileForcesFinite = false;
        if (!finite.columns) m_pier.m_bColumnForcesFinite = false;
        if (!finite.extraMembers) m_pier.m_bXMemberForcesFinite = false;
    }

    bool IsColumnElement(int element) const {
        const std::vector<CColumn>& columns = m_pier.m_Frame.m_Columns;
        return !columns.empty() && element >= columns.front().m_nFirstElement &&
               element < columns.back().m_nFirstElement + m_pier.ColumnElements();
    }

    bool HeadsFinite() const {
        for (int c = 0; c < m_pier.m_nLoadCases; ++c) {
            for (const CPile& pile : m_pier.m_Piles) {
                const ElementForces head = m_pier.Forces(c, pile.m_nFirstElement);
                if (!std::isfinite(GetForce(head, kEndJ, kAxial))) return false;
            }
        }
        return true;
    }

    CPier& m_pier;
    std::vector<CForceRead> m_reads;
    CDirFile& m_file;
    long long m_block = 0;   // records of one case
    long long m_nWhole = 0;  // whole records of the file
    std::vector<Target> m_targets;
    std::array<float, kForceRecordWords> m_record{};
};

}  // namespace

void CCollectData::ReadMemberForces(int k, CPierReadState& state) {
    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(k)];
    const int firstType = g_DataSet.FirstPier().m_nStructureType;
    std::vector<CForceRead> reads = PlanForceReads(pier, state, firstType);
    if (reads.empty()) return;
    const long long missing = ForceReader(pier, std::move(reads), state.forceFile).Read();
    if (missing == 0) return;
    g_DataSet.m_bForceFileShort = true;
    AfxMessageBox(state.forceFile.Path() + ": " + std::to_string(missing) +
                  " force records are missing at its end. Each takes the forces of the record before it.");
}
