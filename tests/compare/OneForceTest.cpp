// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <random>
#include <set>

#include "compare/Runs.h"
#include "framework/Index.h"
#include "support/RecordsProject.h"

namespace lumerin {

// One word of one force record is changed. The rows that must differ are worked out by a plain search over
// the words of both runs, which knows nothing of the product's searches.

namespace {

constexpr int kCases = 3, kRecords = 4, kWords = 17, kForces = 7;
// FAX, F22, F33, M22, M33, TORQUE, D/C at I and at J: the word and its sign in a record of a pile.
constexpr int kWordOf[2][kForces] = {{13, 1, 2, 6, 5, 15, 11}, {14, 3, 4, 8, 7, 16, 12}};
constexpr float kSign[2][kForces] = {{1, -1, -1, 1, 1, -1, 1}, {1, 1, 1, -1, -1, -1, 1}};
constexpr const char* kNames[6] = {"Axial", "f22", "f33", "m22", "m33", "Torque"};
// Of the records of the two piles.
constexpr int kSectionOf[kRecords] = {1, 2, 1, 1};

using Words = std::array<std::array<std::array<float, kWords>, kRecords>, kCases>;
using Forces = std::array<double, kForces>;

Forces ForcesAt(const Words& words, int c, int r, int end) {
    Forces forces{};
    for (int k = 0; k < kForces; ++k) {
        forces.at(Index(k)) =
            AsDouble(kSign[end][k] * words.at(Index(c)).at(Index(r)).at(Index(kWordOf[end][k])));
    }
    return forces;
}

// The forces where force `k` is the greatest (sign 1) or the least (-1) of the records that count.
template <class Counts>
Forces Search(const Words& words, int k, int sign, Counts counts) {
    Forces best{};
    bool found = false;
    for (int c = 0; c < kCases; ++c) {
        for (int r = 0; r < kRecords; ++r) {
            for (int end = 0; end < 2; ++end) {
                if (!counts(r, end)) continue;
                const Forces here = ForcesAt(words, c, r, end);
                if (!found || sign * here.at(Index(k)) > sign * best.at(Index(k))) best = here;
                found = true;
            }
        }
    }
    return best;
}

bool Differ(double a, double b, double absolute) {
    const double distance = std::abs(a - b);
    return distance > absolute && distance > 0.01 * std::max(std::abs(a), std::abs(b));
}

bool Differ(const Forces& a, const Forces& b) {
    for (int k = 0; k < kForces; ++k) {
        if (Differ(a.at(Index(k)), b.at(Index(k)), k < 3 ? 0.5 : k < 6 ? 1.0 : 0.01)) return true;
    }
    return false;
}

std::multiset<std::string> Expected(const Words& before, const Words& after) {
    std::multiset<std::string> names;
    const auto compare = [&](const std::string& name, int k, int sign, auto counts) {
        if (Differ(Search(before, k, sign, counts), Search(after, k, sign, counts))) names.insert(name);
    };
    for (int section = 1; section <= 2; ++section) {
        const auto ofSection = [&](int r, int) { return kSectionOf[r] == section; };
        const std::string name = "pile section " + std::to_string(section);
        compare("section_dc " + name, 6, 1, ofSection);
        for (int k = 0; k < 6; ++k) {
            compare("section_forces " + name + ", Max " + kNames[k], k, 1, ofSection);
            compare("section_forces " + name + ", Min " + kNames[k], k, -1, ofSection);
        }
    }
    for (int pile = 0; pile < 2; ++pile) {
        const auto isHead = [&](int r, int end) { return r == 2 * pile && end == 1; };
        for (const int sign : {1, -1}) {
            const Forces old = Search(before, 0, sign, isHead), now = Search(after, 0, sign, isHead);
            const bool had = sign * old[0] > 0.0, has = sign * now[0] > 0.0;
            const bool moved = Differ(old[0], now[0], 0.5) || Differ(old[6], now[6], 0.01);
            if (had != has || (had && moved)) names.insert("pile_axial pile " + std::to_string(pile + 1));
        }
    }
    return names;
}

void Write(RecordsProject& run, const Words& words) {
    run.cases = kCases;
    for (int c = 0; c < kCases; ++c) {
        for (int r = 0; r < kRecords; ++r) {
            for (int w = 0; w < kWords; ++w)
                run.Set(c, r + 1, w, words.at(Index(c)).at(Index(r)).at(Index(w)));
        }
    }
    run.WriteAll();
}

Words RandomWords() {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> force(-300.0F, 300.0F), ratio(0.1F, 0.9F);
    Words words{};
    for (auto& loadCase : words) {
        for (auto& record : loadCase) {
            for (float& word : record) word = force(random);
            record[11] = ratio(random);
            record[12] = ratio(random);
        }
    }
    return words;
}

}  // namespace

TEST(OneForce, ShowsExactlyTheRowsThatASearchOfBothRunsSays) {
    const Words before = RandomWords();
    RecordsProject old, now;
    Write(old, before);
    RunOptions options;
    options.tables = {FindTable("pile_axial"), FindTable("section_dc"), FindTable("section_forces")};
    std::size_t rows = 0;
    for (int c = 0; c < kCases; ++c) {
        for (int r = 0; r < kRecords; ++r) {
            for (int w = 1; w < kWords; ++w) {
                Words after = before;
                float& word = after.at(Index(c)).at(Index(r)).at(Index(w));
                word = w == 11 || w == 12 ? word + 0.3F : 1.5F * word + 20.0F;
                Write(now, after);
                const std::vector<std::string> names =
                    NamesOf(CompareFiles(old.Base(), now.Base(), options).results);
                EXPECT_EQ(std::multiset<std::string>(names.begin(), names.end()), Expected(before, after))
                    << "case " << c + 1 << " record " << r + 1 << " word " << w;
                rows += names.size();
            }
        }
    }
    EXPECT_GT(rows, 200U);
}

}  // namespace lumerin
