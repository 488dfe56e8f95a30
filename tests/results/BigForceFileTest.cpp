#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <limits>
#include <vector>

#include "model/DataSet.h"
#include "results/ForcePlan.h"
#include "samples/Presets.h"
#include "samples/Project.h"
#include "session/Session.h"

// A force file of many pieces must come out as if it had been read in one.
namespace {

constexpr int kCases = 640;  // 784,640 records, 48 pieces
constexpr std::size_t kRecordsOfACase = 1226;

class BigForceFile : public testing::Test {
  protected:
    void SetUp() override {
        m_folder = std::filesystem::temp_directory_path() / "lumerin-big-force-file";
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
    void TearDown() override {
        g_DataSet.FreePiers();
        std::filesystem::remove_all(m_folder);
    }

    std::filesystem::path Forces() const { return m_folder / "pier.vmd"; }
    static bool Load(const std::filesystem::path& folder) {
        g_DataSet.FreePiers();
        g_DataSet.Reset();
        g_InputFilePath = (folder / "pier.in").string();
        DerivePaths();
        return g_DataSet.LoadProject();
    }
    float Word(int loadCase, int element, std::size_t word) const {
        const std::size_t record =
            static_cast<std::size_t>(loadCase) * kRecordsOfACase + static_cast<std::size_t>(element);
        return m_words[record * kForceRecordWords + word];
    }

    std::filesystem::path m_folder;
    std::vector<float> m_words;
};

}  // namespace

TEST_F(BigForceFile, EveryPileElementOfEveryCaseHasItsRecord) {
    ASSERT_TRUE(Load(m_folder));
    const CPier& pier = g_DataSet.FirstPier();
    ASSERT_EQ(pier.m_nLoadCases, kCases);
    for (int c = 0; c < kCases; ++c) {
        for (int e = 0; e < 1200; ++e) {  // the piles' records come first, in the order of the list
            const ElementForces forces = pier.Forces(c, e);
            ASSERT_EQ(forces[kAxial], Word(c, e, 13)) << c << ' ' << e;
            ASSERT_EQ(forces[kComponents + kAxial], Word(c, e, 14)) << c << ' ' << e;
        }
    }
    EXPECT_TRUE(pier.m_bPileForcesFinite);
    EXPECT_TRUE(pier.m_bColumnForcesFinite);
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
        ASSERT_TRUE(Load(m_folder));
        EXPECT_FALSE(g_DataSet.FirstPier().m_bPileForcesFinite) << loadCase;
        EXPECT_TRUE(g_DataSet.FirstPier().m_bColumnForcesFinite) << loadCase;
        put(before);
    }
}
