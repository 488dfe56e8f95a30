// SPDX-License-Identifier: MIT
#include "results/ForceFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "framework/Index.h"

namespace lumerin {

namespace {

// Records of a piece: a quarter of a megabyte stays in the second-level cache together with the case that it
// fills.
constexpr std::size_t kPieceRecords = (std::size_t{256} << 10) / kForceRecordBytes;

using Record = std::array<float, kForceRecordWords>;

// The rows of a file that the load has checked.
class FileRows : public ForceRows {
  public:
    FileRows(const ForceFile& source, const std::string& path) : m_source(source) {
        CFileException failure(CFileException::none, path, "");
        if (!m_file.Open(path, kForceRecordBytes, &failure)) throw failure;
    }

    ForceRow At(int loadCase, int element) override {
        ForceRow row{};
        const std::optional<ForceFile::Source> source = m_source.SourceOf(loadCase, element);
        if (!source) return row;
        // A missing record without an earlier one counts as zeros, whose turned signs are shown.
        Record record{};
        if (source->record > 0 && m_file.Read(record.data(), source->record) != kForceRecordBytes) {
            throw CFileException(CFileException::endOfFile, m_file.Path(), "was cut while it was read");
        }
        StoreForceRecord(source->kind, record.data(), row.data());
        return row;
    }

  private:
    const ForceFile& m_source;
    CDirFile m_file;
};

// The rows of a substructure none of whose elements has a record.
class ZeroRows : public ForceRows {
  public:
    ForceRow At(int, int) override { return {}; }
};

}  // namespace

// One reading of the whole file.
class ForceFile::Pass {
  public:
    Pass(const ForceFile& source, const CaseTaker& take)
        : m_source(source),
          m_take(take),
          m_forces((Index(source.m_elements) + source.m_others.size()) * kForcesPerElement, 0.0F) {}

    FiniteForces Run() {
        if (m_source.m_reads.empty()) {
            for (int c = 0; c < m_source.m_cases; ++c) Hand(c);
            return m_finite;
        }
        CFileException failure(CFileException::none, m_source.m_path, "");
        if (!m_file.Open(m_source.m_path, kForceRecordBytes, &failure)) throw failure;
        ReadWholeCases();
        for (int c = m_source.m_wholeCases; c < m_source.m_cases; ++c) ReadCaseByRecord(c);
        return m_finite;
    }

  private:
    void ReadWholeCases() {
        std::vector<float> piece(kPieceRecords * kForceRecordWords);
        const std::size_t block = m_source.m_targets.size();
        const std::size_t total = Index(m_source.m_wholeCases) * block;
        m_file.Seek(0);
        std::size_t inBlock = 0;
        int loadCase = 0;
        for (std::size_t done = 0; done < total;) {
            const std::size_t records = std::min(kPieceRecords, total - done);
            const unsigned bytes = static_cast<unsigned>(records * kForceRecordBytes);
            if (m_file.ReadBytes(piece.data(), bytes) != bytes) {
                throw CFileException(CFileException::endOfFile, m_file.Path(), "was cut while it was read");
            }
            for (std::size_t r = 0; r < records;) {
                const std::size_t here = std::min(block - inBlock, records - r);
                StoreRun(loadCase, inBlock, here, piece.data() + r * kForceRecordWords);
                r += here;
                inBlock += here;
                if (inBlock < block) continue;
                Hand(loadCase++);
                inBlock = 0;
            }
            done += records;
        }
    }

    // Stores consecutive records of one case's block.
    void StoreRun(int loadCase, std::size_t inBlock, std::size_t count, const float* words) {
        std::span<const ForceTarget> targets(m_source.m_targets);
        targets = targets.subspan(inBlock, count);
        while (!targets.empty()) {
            const std::size_t finite = StoreForceRecords(targets, words, m_forces.data());
            if (finite == targets.size()) return;
            Note(loadCase, targets[finite], words + finite * kForceRecordWords);
            targets = targets.subspan(finite + 1);
            words += (finite + 1) * kForceRecordWords;
        }
    }

    void ReadCaseByRecord(int loadCase) {
        // The forces of the record before the first one of the case.
        const long long last = m_source.m_lastBefore[Index(loadCase - m_source.m_wholeCases)];
        Record record{};
        if (last > 0) m_file.Read(record.data(), last);
        const long long before = loadCase * m_source.m_block;
        for (const CForceRead& read : m_source.m_reads) {
            if (before + read.record <= m_source.m_whole) m_file.Read(record.data(), before + read.record);
            const ForceTarget target{read.element, read.kind};
            Store(loadCase, target, record);
        }
        ReadOthers(loadCase);
        Hand(loadCase);
    }

    // The case is complete.
    void Hand(int loadCase) {
        if (!m_finite.hasRatio) LookForRatio();
        m_take(loadCase, m_forces);
    }

    // Usually the first case has one, and no other is looked at.
    void LookForRatio() {
        for (std::size_t i = kDemandCapacity; i < m_forces.size() && !m_finite.hasRatio; i += kComponents) {
            m_finite.hasRatio = m_forces[i] != 0.0F;
        }
    }

    // Missing ones have zeros: no table shows them, so no earlier record takes their place.
    void ReadOthers(int loadCase) {
        const long long before = loadCase * m_source.m_block;
        int element = m_source.m_elements;
        for (const long long other : m_source.m_others) {
            Record record{};
            if (before + other <= m_source.m_whole) m_file.Read(record.data(), before + other);
            Store(loadCase, {element++, ForceKind::frame}, record);
        }
    }

    void Store(int loadCase, const ForceTarget& target, const Record& record) {
        if (!StoreForceRecord(target.kind, record.data(), ForcesOf(target))) {
            Note(loadCase, target, record.data());
        }
    }

    float* ForcesOf(const ForceTarget& target) {
        return m_forces.data() + Index(target.element) * kForcesPerElement;
    }

    // The forces of the element are not all finite in its record.
    void Note(int loadCase, const ForceTarget& target, const float* words) {
        const float* forces = ForcesOf(target);
        const auto place = [&](std::size_t force) {
            const int i = static_cast<int>(force);
            return ForceFault{0, loadCase, target.element, i / kComponents, i % kComponents};
        };
        bool finite = true;
        for (std::size_t i = 0; i < kForcesPerElement; ++i) {
            if (std::isfinite(forces[i])) continue;
            finite = false;
            Count(m_finite.notFinite, place(i));
        }
        if (target.kind != ForceKind::extraMember) {
            if (!std::isfinite(words[kRatioWordAtI])) Count(m_finite.replacedRatios, place(kDemandCapacity));
            if (!std::isfinite(words[kRatioWordAtJ])) {
                Count(m_finite.replacedRatios, place(kComponents + kDemandCapacity));
            }
        }
        if (!finite) NoteFamily(target);
    }

    // A force of the element is not finite.
    void NoteFamily(const ForceTarget& target) {
        if (target.kind == ForceKind::pile) {
            m_finite.piles = false;
            const bool head = m_source.m_isHead[Index(target.element)] != 0;
            if (head && !std::isfinite(ForcesOf(target)[kComponents + kAxial])) m_finite.pileHeads = false;
        }
        if (target.kind == ForceKind::extraMember) m_finite.extraMembers = false;
        // Cap elements are checked by the cap tables, on the values that these show.
        const bool column =
            target.element >= m_source.m_firstColumnElement && target.element < m_source.m_endOfColumns;
        if (target.kind == ForceKind::frame && column) m_finite.columns = false;
    }

    static void Count(ForceFault& fault, const ForceFault& place) {
        const long long before = fault.count;
        if (before == 0) fault = place;
        fault.count = before + 1;
    }

    const ForceFile& m_source;
    const CaseTaker& m_take;
    std::vector<float> m_forces;  // of the case that is read
    CDirFile m_file;
    FiniteForces m_finite;
};

ForceFile::ForceFile(const CPier& pier, const PierCounts& counts, std::vector<CForceRead> reads,
                     CDirFile& file)
    : m_path(file.Path()),
      m_reads(std::move(reads)),
      m_block(static_cast<long long>(counts.pileElements) + counts.elements),
      m_pileRecords(counts.pileElements),
      m_cases(pier.m_nLoadCases),
      m_elements(pier.ElementCount()),
      m_readOf(Index(m_elements), -1),
      m_isHead(Index(m_elements), 0) {
    if (m_reads.empty()) return;
    for (std::size_t i = 0; i < m_reads.size(); ++i) {
        m_readOf[Index(m_reads[i].element)] = static_cast<int>(i);
    }
    for (const CPile& pile : pier.m_Piles) {
        if (pile.m_nElements > 0) m_isHead[Index(pile.m_nFirstElement)] = 1;
    }
    const std::vector<CColumn>& columns = pier.m_Frame.m_Columns;
    if (!columns.empty()) {
        m_firstColumnElement = columns.front().m_nFirstElement;
        m_endOfColumns = columns.back().m_nFirstElement + pier.ColumnElements();
    }
    file.Seek(0);  // a file that could not be opened is reported here
    m_whole = file.Length() / kForceRecordBytes;
    m_stamp = StampOf(m_path);
    ListOthers();
    MapBlock();
    // The first record of the plan shows whether the file can be read at all.
    Record record{};
    if (m_reads.front().record <= m_whole) file.Read(record.data(), m_reads.front().record);
    for (const CForceRead& read : m_reads) {
        if (read.record < 1) file.Read(record.data(), read.record);  // reports the position
    }
    FollowMissingRecords();
}

void ForceFile::ListOthers() {
    std::vector<bool> taken(Index(std::max(m_block, 0LL)), false);
    for (const CForceRead& read : m_reads) {
        if (read.record >= 1 && read.record <= m_block) taken[Index(read.record - 1)] = true;
    }
    for (std::size_t i = 0; i < taken.size(); ++i) {
        if (!taken[i]) m_others.push_back(static_cast<long long>(i) + 1);
    }
}

ForceLayout ForceFile::Layout() const {
    ForceLayout layout;
    layout.block = m_block;
    layout.whole = m_whole;
    layout.firstFrameRecord = m_pileRecords + 1;
    layout.others = m_others;
    layout.recordOf.assign(m_readOf.size(), 0);
    for (const CForceRead& read : m_reads) layout.recordOf[Index(read.element)] = read.record;
    return layout;
}

void ForceFile::MapBlock() {
    if (m_block <= 0) return;
    m_targets.assign(Index(m_block), ForceTarget{});
    for (std::size_t i = 0; i < m_others.size(); ++i) {
        m_targets[Index(m_others[i] - 1)] = {m_elements + static_cast<int>(i), ForceKind::frame};
    }
    for (std::size_t i = 0; i < m_reads.size(); ++i) {
        const CForceRead& read = m_reads[i];
        const bool inside = read.record >= 1 && read.record <= m_block;
        const bool last = m_readOf[Index(read.element)] == static_cast<int>(i);
        if (!inside || !last || m_targets[Index(read.record - 1)].element != -1) {
            m_targets.clear();
            return;
        }
        m_targets[Index(read.record - 1)] = {read.element, read.kind};
    }
    m_wholeCases = static_cast<int>(std::min<long long>(m_whole / m_block, m_cases));
}

void ForceFile::FollowMissingRecords() {
    long long last = m_wholeCases > 0 ? (m_wholeCases - 1) * m_block + m_reads.back().record : 0;
    for (int c = m_wholeCases; c < m_cases; ++c) {
        m_lastBefore.push_back(last);
        for (const CForceRead& read : m_reads) {
            if (c * m_block + read.record <= m_whole) last = c * m_block + read.record;
        }
    }
}

long long ForceFile::MissingRecords() const {
    return m_reads.empty() ? 0 : std::max(0LL, m_block * m_cases - m_whole);
}

FiniteForces ForceFile::ReadCases(const CaseTaker& take) const {
    return Pass(*this, take).Run();
}

std::unique_ptr<ForceRows> ForceFile::OpenRows() const {
    if (m_reads.empty()) return std::make_unique<ZeroRows>();
    return std::make_unique<FileRows>(*this, m_path);
}

std::optional<ForceFile::Source> ForceFile::SourceOf(int loadCase, int element) const {
    if (element >= m_elements) {
        const long long record = loadCase * m_block + m_others.at(Index(element - m_elements));
        return Source{record <= m_whole ? record : 0, ForceKind::frame};
    }
    const int place = m_readOf.at(Index(element));
    if (place < 0) return {};
    const ForceKind kind = m_reads[Index(place)].kind;
    const long long before = loadCase * m_block;
    for (int i = place; i >= 0; --i) {
        const long long record = before + m_reads[Index(i)].record;
        if (record <= m_whole) return Source{record, kind};
    }
    return Source{m_lastBefore.at(Index(loadCase - m_wholeCases)), kind};
}

}  // namespace lumerin
