// SPDX-License-Identifier: MIT
#include "results/ForceRecord.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "model/Element.h"

namespace lumerin {

// The two ways in which records become forces, four words at a time and word by word, give the same bits.

namespace {

using Store = std::size_t (*)(std::span<const ForceTarget>, const float*, float*);

// The places where a way ended, one for each call until all targets are done, and the bits of all forces.
struct Stored {
    std::vector<std::size_t> ends;
    std::vector<std::uint32_t> bits;
    bool operator==(const Stored&) const = default;
};

constexpr std::uint32_t kUntouched = 0x5A5A5A5AU;

Stored StoreAll(Store store, std::span<const ForceTarget> targets, const std::vector<float>& words,
                std::size_t elements) {
    Stored result;
    std::vector<float> forces(elements * kForcesPerElement, std::bit_cast<float>(kUntouched));
    for (std::size_t done = 0; done < targets.size();) {
        const std::size_t end =
            store(targets.subspan(done), words.data() + done * kForceRecordWords, forces.data());
        result.ends.push_back(end);
        done += end + 1;
    }
    for (const float force : forces) result.bits.push_back(std::bit_cast<std::uint32_t>(force));
    return result;
}

// Bits of a word: any at all, or one of those that arithmetic treats in its own way.
class WordMaker {
  public:
    explicit WordMaker(unsigned seed) : m_random(seed) {}
    std::uint32_t Bits() { return static_cast<std::uint32_t>(m_random()); }
    std::size_t Below(std::size_t end) { return Bits() % end; }

    // One word in `every` is special.
    float Word(std::size_t every) {
        if (Below(every) != 0) return std::bit_cast<float>(Bits());
        static constexpr std::array<std::uint32_t, 14> kSpecial{
            0x00000000U, 0x80000000U,               // zeros
            0x00000001U, 0x807FFFFFU,               // denormals
            0x00800000U, 0x7F7FFFFFU, 0xFF7FFFFFU,  // the smallest and the largest
            0x7F800000U, 0xFF800000U,               // infinities
            0x7FC00000U, 0xFFC00000U,               // not a number
            0x7F800001U, 0xFFBFFFFFU, 0x7FFFFFFFU,  // the same, signalling and with a payload
        };
        return std::bit_cast<float>(kSpecial.at(Below(kSpecial.size())));
    }

  private:
    std::mt19937 m_random;
};

constexpr std::array kKinds{ForceKind::pile, ForceKind::frame, ForceKind::extraMember};

}  // namespace

TEST(ForceRecord, BothWaysGiveTheSameBitsForAnyBytes) {
    WordMaker make(20261122);
    std::size_t stops = 0, runs = 0;
    for (int round = 0; round < 3000; ++round) {
        const std::size_t records = make.Below(38);
        const std::size_t every = 1 + make.Below(200);
        std::vector<ForceTarget> targets(records);
        for (ForceTarget& target : targets) {
            target = {static_cast<int>(make.Below(records + 1)) - 1, kKinds.at(make.Below(3))};
        }
        std::vector<float> words(records * kForceRecordWords);
        for (float& word : words) word = make.Word(every);
        const Stored quads = StoreAll(StoreForceRecords, targets, words, records);
        const Stored single = StoreAll(StoreForceRecordsWordByWord, targets, words, records);
        ASSERT_EQ(quads.ends, single.ends) << round;
        ASSERT_EQ(quads.bits, single.bits) << round;
        stops += single.ends.size();
        ++runs;
    }
    // Both kinds of end occurred: after a record that is not finite, and after the last one.
    EXPECT_GT(stops, 2 * runs);
}

TEST(ForceRecord, BothWaysFindEachWordThatIsNoNumber) {
    for (const ForceKind kind : kKinds) {
        for (const float value :
             {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
              std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::signaling_NaN()}) {
            for (std::size_t place = 0; place < kForceRecordWords; ++place) {
                std::vector<float> words(kForceRecordWords, 2.5F);
                words[place] = value;
                const std::vector<ForceTarget> targets{{0, kind}};
                const Stored quads = StoreAll(StoreForceRecords, targets, words, 1);
                EXPECT_EQ(quads, StoreAll(StoreForceRecordsWordByWord, targets, words, 1)) << place;
                // Words 0, 9 and 10 feed no force.
                const bool unread = place == 0 || place == 9 || place == 10;
                EXPECT_EQ(quads.ends.front(), unread ? 1U : 0U) << place;
            }
        }
    }
}

TEST(ForceRecord, ARecordWithoutATargetIsPassedOver) {
    const std::vector<ForceTarget> targets{{-1, ForceKind::frame}, {1, ForceKind::frame}};
    std::vector<float> words(std::size_t{2} * kForceRecordWords, std::numeric_limits<float>::infinity());
    for (std::size_t i = kForceRecordWords; i < words.size(); ++i) words[i] = 1.0F;
    for (const Store store : {StoreForceRecords, StoreForceRecordsWordByWord}) {
        const Stored stored = StoreAll(store, targets, words, 2);
        EXPECT_EQ(stored.ends, std::vector<std::size_t>{2});
        EXPECT_EQ(stored.bits.front(), kUntouched);
        EXPECT_EQ(stored.bits.back(), std::bit_cast<std::uint32_t>(1.0F));
    }
}

TEST(ForceRecord, WordsGoToTheirPlacesWithTheirSigns) {
    std::vector<float> words;
    for (int i = 0; i < kForceRecordWords; ++i) words.push_back(static_cast<float>(i));
    const std::array<float, kForcesPerElement> frame{13, -1, -2, 6, 5, 15, 11, 14, 3, 4, -8, -7, -16, 12};
    for (const ForceKind kind : kKinds) {
        std::array<float, kForcesPerElement> expected = frame, single{};
        if (kind == ForceKind::pile) expected[5] = -15;
        std::array<float, kForcesPerElement> forces{};
        EXPECT_TRUE(StoreForceRecord(kind, words.data(), forces.data()));
        EXPECT_EQ(forces, expected);
        const std::vector<ForceTarget> targets{{0, kind}};
        EXPECT_EQ(StoreForceRecordsWordByWord(targets, words.data(), single.data()), 1U);
        EXPECT_EQ(single, expected);
    }
}

}  // namespace lumerin
