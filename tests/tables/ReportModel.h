#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "framework/headless/Headless.h"
#include "model/DataSet.h"
#include "session/Session.h"
#include "tables/WriteData.h"
#include "text/Format.h"

// A project built by hand for the writers, a clock that stands still, and the written file read back.
class ReportTest : public ::testing::Test {
  protected:
    void SetUp() override {
        headless::ResetState();
        headless::State().clock = LocalTime{2026, 11, 14, 6, 8, 30, 5};  // a Saturday
        g_DataSet.Reset();
        g_DataSet.m_bTableEnabled.fill(true);
        g_ReportFormat = kFormatText;
        g_FooterOn = g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 0;
        g_ProjectBasePath.clear();
        g_ProjectFolder.clear();
        g_ProjectFileName.clear();
        g_VersionText = "5.2.1";
        g_VersionLabel = "v5.2.1";
    }
    void TearDown() override {
        g_DataSet.Reset();
        g_DataSet.FreePiers();
        headless::ResetState();
        std::remove(Path().c_str());
    }

    static void AddPiers(std::size_t count, int type = kTypePier) {
        g_DataSet.m_Piers = std::vector<CPier>(count);
        for (CPier& pier : g_DataSet.m_Piers) pier.m_nStructureType = type;
    }
    static CPier& Pier(std::size_t index = 0) { return g_DataSet.m_Piers.at(index); }

    // Members with one element each, `cases` load cases, and result tables of one slot.
    static void Fill(CPier& pier, int piles, int columns, int extraMembers, int cases) {
        CMemberCounts counts;
        counts.piles = piles;
        counts.pileNodes = 2;
        counts.columns = columns;
        counts.columnNodes = 0;
        counts.extraMembers = extraMembers;
        pier.AllocateMembers(counts, cases);
        pier.m_LoadCases = std::vector<CLoadCase>(static_cast<std::size_t>(cases));
        pier.m_nLoadCases = cases;
        pier.m_nPiles = piles;
        pier.m_nColumns = columns;
        pier.m_nExtraMembers = extraMembers;
        pier.AllocateCaseSelection(cases);
    }
    // Combinations of a family; the classes named are present.
    static void MakeCombinations(CPier& pier, int family, const std::vector<int>& classes) {
        pier.m_bCombinations = true;
        pier.m_nCodeFamily = family;
        for (const int limitClass : classes)
            pier.m_nFirstOfClass.at(static_cast<std::size_t>(limitClass)) = 0;
    }
    // The seven components at one end of an element.
    static void SetForces(CPier& pier, int loadCase, int element, int end,
                          const std::array<float, 7>& values) {
        const auto forces = pier.MutableForces(loadCase, element);
        for (std::size_t i = 0; i < values.size(); ++i) {
            forces[static_cast<std::size_t>(end * kComponents) + i] = values[i];
        }
    }

    static std::string Path() {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        return ::testing::TempDir() + test->test_suite_name() + "." + test->name();
    }
    static std::string StoredBytes() {
        std::ifstream file(Path(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    // The text that a writer writes, with bare line feeds; its line count goes to m_nLines.
    std::string Text(int (CWriteData::*write)(StoredStream&)) {
        CWriteData writer;
        StoredStream out(Path());
        m_nLines = (writer.*write)(out);
        out.Close();
        EXPECT_FALSE(out.Failed());
        return ReplaceAll(StoredBytes(), "\r\n", "\n");
    }

    int m_nLines = -1;
};
