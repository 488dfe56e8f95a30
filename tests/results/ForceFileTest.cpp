// SPDX-License-Identifier: MIT
#include "results/ForceFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;
using Record = std::array<float, kForceRecordWords>;

// A force file with a plan of its own, whatever the members of its substructure are.
class PlannedFile : public testing::Test {
  protected:
    void SetSize(int block, int elements, int cases) {
        counts.pileElements = block;
        CMemberCounts members;
        members.extraMembers = elements;
        pier = CPier();
        pier.AllocateMembers(members, cases);
    }
    void Write(const std::vector<Record>& records, std::size_t moreBytes = 0) {
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(records.data()),
                   static_cast<std::streamsize>(records.size() * sizeof(Record)));
        file << std::string(moreBytes, '\x7f');
    }
    std::unique_ptr<ForceFile> Open() {
        CDirFile file;
        if (!file.Open(path, kForceRecordBytes)) ADD_FAILURE() << "not opened";
        return std::make_unique<ForceFile>(pier, counts, reads, file);
    }
    static std::vector<std::vector<float>> AllCases(const ForceFile& source) {
        std::vector<std::vector<float>> cases;
        source.ReadCases([&](int loadCase, CaseForces forces) {
            EXPECT_EQ(loadCase, static_cast<int>(cases.size()));
            cases.emplace_back(forces.begin(), forces.end());
        });
        return cases;
    }
    // The forces as one buffer of a record gives them. It is filled again for each record, in the order of
    // the plan, wherever the file has the record.
    std::vector<std::vector<float>> ByOneBuffer(const std::vector<Record>& records) const {
        std::vector<std::vector<float>> cases;
        std::vector<float> forces(static_cast<std::size_t>(pier.ElementCount()) * kForcesPerElement, 0.0F);
        Record record{};
        for (int c = 0; c < pier.m_nLoadCases; ++c) {
            for (const CForceRead& read : reads) {
                const auto number = static_cast<std::size_t>(c * counts.pileElements + read.record);
                if (number <= records.size()) record = records[number - 1];
                StoreForceRecord(read.kind, record.data(),
                                 forces.data() + static_cast<std::size_t>(read.element) * kForcesPerElement);
            }
            cases.push_back(forces);
            AppendOthers(c, records, cases.back());
        }
        return cases;
    }
    // The records of the block that the plan does not have, zeros for those that the file does not have.
    void AppendOthers(int loadCase, const std::vector<Record>& records, std::vector<float>& forces) const {
        for (long long r = 1; r <= counts.pileElements; ++r) {
            if (std::ranges::find(reads, r, &CForceRead::record) != reads.end()) continue;
            const auto number = static_cast<std::size_t>(loadCase * counts.pileElements + r);
            const Record record = number <= records.size() ? records[number - 1] : Record{};
            ForceRow row{};
            StoreForceRecord(ForceKind::frame, record.data(), row.data());
            forces.insert(forces.end(), row.begin(), row.end());
        }
    }

    ScratchFolder folder;
    std::string path = folder.PathOf("p.vmd");
    CPier pier;
    PierCounts counts;
    std::vector<CForceRead> reads;
};

std::vector<std::uint32_t> Bits(std::span<const float> values) {
    std::vector<std::uint32_t> bits;
    std::ranges::transform(values, std::back_inserter(bits),
                           [](float value) { return std::bit_cast<std::uint32_t>(value); });
    return bits;
}

std::vector<Record> RandomRecords(std::size_t count, std::mt19937& random) {
    std::vector<Record> records(count);
    for (Record& record : records) {
        for (float& word : record) word = static_cast<float>(random() % 2000) - 1000.0F;
    }
    return records;
}

// Plans in the order of the block, in another order, with records of other blocks, with records that feed two
// elements and with elements that are fed twice; files of any length.
TEST_F(PlannedFile, AnyPlanAndAnyLengthGiveWhatOneBufferWould) {
    std::mt19937 random(20261122);
    for (int round = 0; round < 400; ++round) {
        const int block = 1 + static_cast<int>(random() % 12), cases = 1 + static_cast<int>(random() % 9);
        const int elements = block + static_cast<int>(random() % 4);
        SetSize(block, elements, cases);
        reads.clear();
        for (int r = 1; r <= block; ++r) {
            reads.push_back({r, r - 1, static_cast<ForceKind>(random() % 3)});
        }
        if (round % 2 == 1) std::ranges::shuffle(reads, random);
        if (round % 4 == 2)
            reads[random() % reads.size()].record = 1 + static_cast<long long>(random() % (2 * reads.size()));
        if (round % 4 == 3) reads[random() % reads.size()].element = static_cast<int>(random()) & 1;
        for (CForceRead& read : reads) read.element %= elements;
        if (random() % 3 == 0) reads.resize(1 + random() % reads.size());
        const std::vector<Record> records =
            RandomRecords(random() % (static_cast<std::size_t>(block * cases) + 3), random);
        Write(records, random() % 68);

        const std::unique_ptr<ForceFile> source = Open();
        const std::vector<std::vector<float>> expected = ByOneBuffer(records);
        const std::vector<std::vector<float>> found = AllCases(*source);
        ASSERT_EQ(found.size(), expected.size()) << round;
        const std::unique_ptr<ForceRows> rows = source->OpenRows();
        for (int c = cases - 1; c >= 0; --c) {
            const std::vector<float>& forces = expected[static_cast<std::size_t>(c)];
            ASSERT_EQ(Bits(found[static_cast<std::size_t>(c)]), Bits(forces)) << round << ", case " << c;
            const int rowCount = static_cast<int>(forces.size() / kForcesPerElement);
            for (int e = 0; e < rowCount; ++e) {
                ASSERT_EQ(Bits(rows->At(c, e)), Bits(ForcesOf(forces, e)))
                    << round << ", case " << c << ", element " << e;
            }
        }
    }
}

TEST_F(PlannedFile, TheLayoutNamesTheRecordsOfElementsAndTheOthers) {
    SetSize(4, 3, 2);
    Write(std::vector<Record>(7));
    // Element 1 has no record; the records 1 and 3 have no element.
    reads = {{4, 0, ForceKind::pile}, {2, 2, ForceKind::frame}};
    const ForceLayout layout = Open()->Layout();
    EXPECT_EQ(layout.recordOf, (std::vector<long long>{4, 0, 2}));
    EXPECT_EQ(layout.others, (std::vector<long long>{1, 3}));
    EXPECT_EQ(layout.block, 4);
    EXPECT_TRUE(layout.HasRecord(0, 4));
    EXPECT_TRUE(layout.HasRecord(1, 3));  // the seventh record of the file
    EXPECT_FALSE(layout.HasRecord(1, 4));
}

// Values that are not finite are counted, with the first of them in the order of cases and records.
TEST_F(PlannedFile, APassCountsWhatIsNotFinite) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    SetSize(3, 2, 2);
    reads = {{1, 0, ForceKind::frame}, {2, 1, ForceKind::extraMember}};
    std::vector<Record> records(6);
    records[1][kRatioWordAtJ] = kNan;  // case 0, element 1: an extra member's ratio is not replaced
    records[2][1] = kNan;              // case 0, record 3, no element: F22 at I
    records[3][kRatioWordAtI] = kNan;  // case 1, element 0: replaced
    records[3][kRatioWordAtJ] = kNan;
    Write(records);
    const FiniteForces found = Open()->ReadCases([](int, CaseForces) {});
    EXPECT_EQ(found.notFinite.count, 2);
    EXPECT_EQ(found.notFinite.loadCase, 0);
    EXPECT_EQ(found.notFinite.element, 1);
    EXPECT_EQ(found.notFinite.end, kEndJ);
    EXPECT_EQ(found.notFinite.component, kDemandCapacity);
    EXPECT_EQ(found.replacedRatios.count, 2);
    EXPECT_EQ(found.replacedRatios.loadCase, 1);
    EXPECT_EQ(found.replacedRatios.element, 0);
    EXPECT_EQ(found.replacedRatios.end, kEndI);
    EXPECT_FALSE(found.extraMembers);
    EXPECT_TRUE(found.columns && found.piles && found.pileHeads);
}

TEST_F(PlannedFile, ARecordBeforeTheFirstEndsTheLoad) {
    SetSize(2, 2, 1);
    Write(std::vector<Record>(2));
    reads = {{1, 0, ForceKind::pile}, {0, 1, ForceKind::frame}};
    EXPECT_THROW(Open(), CFileException);
}

TEST_F(PlannedFile, LengthTimeAndIdentityShowAChangedFile) {
    SetSize(1, 1, 2);
    Write(std::vector<Record>(2));
    reads = {{1, 0, ForceKind::pile}};
    const std::unique_ptr<ForceFile> source = Open();
    const auto time = fs::last_write_time(path);
    EXPECT_TRUE(source->IsUnchanged());
    // Longer, with the same time.
    Write(std::vector<Record>(3));
    fs::last_write_time(path, time);
    EXPECT_FALSE(source->IsUnchanged());
    Write(std::vector<Record>(2));
    fs::last_write_time(path, time);
    EXPECT_TRUE(source->IsUnchanged());
    // Written again, with the same length.
    fs::last_write_time(path, time + std::chrono::seconds(2));
    EXPECT_FALSE(source->IsUnchanged());
    fs::last_write_time(path, time);
    // Another file of that name, with the same length and time.
    fs::rename(path, path + ".old");
    fs::copy_file(path + ".old", path);
    fs::last_write_time(path, time);
    EXPECT_FALSE(source->IsUnchanged());
    fs::remove(path);
    EXPECT_FALSE(source->IsUnchanged());
}

TEST_F(PlannedFile, AFileThatIsCutDuringAPassIsNamed) {
    SetSize(1, 1, 3);
    Write(std::vector<Record>(3));
    reads = {{1, 0, ForceKind::pile}};
    const std::unique_ptr<ForceFile> source = Open();
    fs::resize_file(path, 100);
    EXPECT_THAT(
        [&] { source->ReadCases([](int, CaseForces) {}); },
        testing::ThrowsMessage<CFileException>(testing::HasSubstr("p.vmd: was cut while it was read")));
    fs::remove(path);
    EXPECT_THROW(source->OpenRows(), CFileException);
}

}  // namespace

}  // namespace lumerin
