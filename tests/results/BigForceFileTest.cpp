// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <limits>
#include <vector>

#include "results/ForcePlan.h"
#include "results/LoadProject.h"
#include "samples/Presets.h"
#include "samples/Project.h"
#include "support/ScratchFolder.h"

namespace lumerin {

// A force file of many pieces must come out as if it had been read in one.
namespace {

constexpr int kCases = 640;  // 784,640 records, 48 pieces
constexpr std::size_t kRecordsOfACase = 1226;

class BigForceFile : public testing::Test {
  protected:
    void SetUp() override {
        samples::SampleOptions options;
        options.rows = options.columns = 10;
        options.cases = kCases;
        samples::WriteProject(m_folder, samples::MakeProject(options));
        m_words.resize(kCases * kRecordsOfACase * kForceRecordWords);
        std::ifstream file(Forces(), std::ios::binary);
        file.read(reinterpret_cast<char*>(m_words.data()),
                  static_cast<std::streamsize>(m_words.size() * sizeof(float)));
        ASSERT_TRUE(file);
    }

    std::filesystem::path Forces() const { return m_folder / "pier.vmd"; }
    struct Silent : Messages {
        void Show(const std::string& text) override { ADD_FAILURE() << text; }
    };
    static std::optional<Project> Load(const std::filesystem::path& folder) {
        Silent messages;
        return LoadProject((folder / "pier").string(), messages);
    }
    float Word(int loadCase, int element, std::size_t word) const {
        const std::size_t record =
            static_cast<std::size_t>(loadCase) * kRecordsOfACase + static_cast<std::size_t>(element);
        return m_words[record * kForceRecordWords + word];
    }

    const ScratchFolder m_scratch;
    const std::filesystem::path m_folder = m_scratch.Path();
    std::vector<float> m_words;
};

TEST_F(BigForceFile, EveryPileElementOfEveryCaseHasItsRecord) {
    const std::optional<Project> project = Load(m_folder);
    ASSERT_TRUE(project);
    const CPier& pier = project->data.FirstPier();
    ASSERT_EQ(pier.m_nLoadCases, kCases);
    int cases = 0;
    const FiniteForces finite = project->forces[0]->ReadCases([&](int c, CaseForces forces) {
        ASSERT_EQ(c, cases++);
        for (int e = 0; e < 1200; ++e) {  // the piles' records come first, in the order of the list
            const ElementForces row = ForcesOf(forces, e);
            ASSERT_EQ(row[kAxial], Word(c, e, 13)) << c << ' ' << e;
            ASSERT_EQ(row[kComponents + kAxial], Word(c, e, 14)) << c << ' ' << e;
        }
    });
    EXPECT_EQ(cases, kCases);
    EXPECT_TRUE(finite.piles);
    EXPECT_TRUE(finite.columns);
}

TEST_F(BigForceFile, ANumberThatIsNotFiniteIsNoticedAnywhereInTheFile) {
    for (const int loadCase : {0, 350, kCases - 1}) {
        const auto at = static_cast<std::streamoff>(
            (static_cast<std::size_t>(loadCase) * kRecordsOfACase + 5) * kForceRecordBytes +
            3 * sizeof(float));
        const float infinite = std::numeric_limits<float>::infinity();
        const float before = Word(loadCase, 5, 3);
        const auto put = [&](float value) {
            std::fstream file(Forces(), std::ios::binary | std::ios::in | std::ios::out);
            file.seekp(at);
            file.write(reinterpret_cast<const char*>(&value), sizeof value);
        };
        put(infinite);
        const std::optional<Project> project = Load(m_folder);
        ASSERT_TRUE(project);
        const FiniteForces finite = project->forces[0]->ReadCases([](int, CaseForces) {});
        EXPECT_FALSE(finite.piles) << loadCase;
        EXPECT_TRUE(finite.columns) << loadCase;
        put(before);
    }
}

}  // namespace

}  // namespace lumerin
