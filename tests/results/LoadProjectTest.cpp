// SPDX-License-Identifier: MIT
#include "support/ResultProject.h"

namespace lumerin {

namespace {

// The load must end in a file exception whose text names the file and holds the words.
void ExpectFault(ResultProject& project, const std::string& file, const std::string& words) {
    try {
        project.Load();
        FAIL() << "loaded in spite of " << words;
    } catch (const CFileException& error) {
        EXPECT_THAT(std::string(error.what()), testing::HasSubstr(file));
        EXPECT_THAT(std::string(error.what()), testing::HasSubstr(words));
    }
}

}  // namespace

TEST(LoadProject, LaterSubstructuresCarryTheirNumbers) {
    ResultProject project;
    project.substructures.resize(3);
    project.substructures[1].pileSections = {{2, 2}, {2, 2}};
    project.Write();
    EXPECT_TRUE(std::filesystem::exists(project.Path(".PLF2")));
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_Piers.size(), 3U);
    EXPECT_EQ(project.Data().m_Piers[0].Element(0).m_nSection, 1);
    EXPECT_EQ(project.Data().m_Piers[1].Element(0).m_nSection, 2);
    EXPECT_EQ(project.Data().m_Piers[2].Element(0).m_nSection, 1);
}

TEST(LoadProject, FilesAreFoundWhateverTheCaseOfTheirNames) {
    ResultProject project;
    project.Write();
    for (const auto& [is, was] : {std::pair{".plf", ".PLF"},
                                  {".pil", ".PIL"},
                                  {".NCV", ".ncv"},
                                  {".VMD", ".vmd"},
                                  {".twr", ".TWR"}}) {
        std::filesystem::rename(project.Path(was), project.Path(is));
    }
    EXPECT_TRUE(project.Load());
}

TEST(LoadProject, EveryCaseIsSelectedAtFirst) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    const CaseSelection selection(project.Data());
    EXPECT_EQ(selection.CaseCount(), 2);
    EXPECT_TRUE(selection.IsCaseSelected(0));
    EXPECT_TRUE(selection.IsCaseSelected(1));
}

// The counts that all tables share are those of the substructure that is read last.
TEST(LoadProject, TheDataSetHasTheCountsOfTheLastSubstructure) {
    ResultProject project;
    project.mode = 1;
    project.substructures = {MakePier(), MakePier()};
    ResultSubstructure& last = project.substructures[1];
    last.columnNodes = 3;
    last.cantileverNodes = 2;
    last.spanNodes = 4;
    last.columnSections = 5;
    last.extraMembers = 1;
    last.xMemberSections = 6;
    last.sections.resize(3, {1, 12.0, 10.0});
    last.piles = 3;
    last.pileNodes = 4;
    last.rowsB = 3;
    last.pileSections.assign(3, {1, 1, 1});
    // The foundation's two nodes; five a column, three a cantilever, four of the span.
    last.nodes.assign(2 + 2 * 5 + 2 * 3 + 4, {});
    // The foundation's eight rows; four a column, three a cantilever, five of the span, the extra member,
    // whose number leaves two out.
    last.rows.resize(8);
    for (int i = 0; i < 2 * 4 + 2 * 3 + 5; ++i) last.rows.push_back({9 + i, 0, 0, 1});
    last.rows.push_back({30, 1, 2, 1});
    project.Write();
    ASSERT_TRUE(project.Load());
    const CDataSet& data = project.Data();
    EXPECT_EQ(data.m_nPiers, 2);
    EXPECT_EQ(data.m_nAnalysisMode, 1);
    EXPECT_EQ(data.m_nLoadCases, 2);
    EXPECT_EQ(data.m_nStructureType, kTypePier);
    EXPECT_EQ(data.m_nColumns, 2);
    EXPECT_EQ(data.m_nCantilevers, 2);
    EXPECT_EQ(data.m_nColumnNodes, 3);
    EXPECT_EQ(data.m_nCantileverNodes, 2);
    EXPECT_EQ(data.m_nSpanNodes, 4);
    EXPECT_EQ(data.m_nColumnSections, 5);
    EXPECT_EQ(data.m_nExtraMembers, 1);
    EXPECT_EQ(data.m_nXMemberSections, 6);
    EXPECT_EQ(data.m_nSectionRecords, 3);
    EXPECT_EQ(data.m_nElements, 28);
    EXPECT_EQ(data.m_nElementGaps, 2);
    EXPECT_EQ(data.m_nPiles, 3);
    EXPECT_EQ(data.m_nPileNodes, 4);
    EXPECT_EQ(data.m_nPileNodesTotal, 12);
    EXPECT_EQ(data.m_nPilesFromNodes, 3);
    EXPECT_EQ(data.m_nPileElements, 9);
    EXPECT_EQ(data.m_nPilTableSize, 1);
}

TEST(LoadProject, WithoutColumnsThereIsNoFrame) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    const CFrame& frame = project.Pier().m_Frame;
    EXPECT_TRUE(frame.m_Columns.empty());
    EXPECT_EQ(frame.m_Beam.m_nElements, 0);
    EXPECT_EQ(frame.m_Cantilevers[0].m_nElements, 0);
}

TEST(LoadProject, MissingFilesAreNamed) {
    for (const char* suffix : {".TWR", ".PLF", ".PIL", ".ncv", ".vmd", ".pls"}) {
        ResultProject project;
        project.substructures[0] = MakePier();
        project.Write();
        project.Remove(suffix);
        EXPECT_THROW(project.Load(), CFileException) << suffix;
    }
}

TEST(LoadProject, ATextFileThatCannotBeReadIsAsOneThatIsMissing) {
    for (const char* suffix : {".MIS", ".CMB", ".LIM"}) {
        ResultProject project;
        project.substructures[0].codeFamily = 0;
        project.Write();
        project.WriteFile(".MIS", "PROJECTDATA\nL= 5 N= a bridge\n");
        project.WriteFile(".CMB", "[Comb. 1]\nfirst\n[Comb. 2]\nsecond\n");
        project.WriteFile(".LIM", "x\nA= 1\nx\nx\n101 1 2\n:\n");
        const auto loaded = [&project] {
            EXPECT_TRUE(project.Load());
            EXPECT_TRUE(project.messages.texts.empty());
            const CLoadCase& second = project.Pier().m_LoadCases[1];
            return project.Data().m_sProjectN + "|" + second.m_sName + "|" + second.m_sLimitState;
        };
        EXPECT_EQ(loaded(), "a bri|second|STRENGTH-I");
        project.Remove(suffix);
        const std::string missing = loaded();
        std::filesystem::create_directory(project.Path(suffix));
        EXPECT_EQ(loaded(), missing) << "a folder " << suffix;
        project.Remove(suffix);
        // /proc/self/mem opens as a file whose first bytes cannot be read.
        std::filesystem::create_symlink("/proc/self/mem", project.Path(suffix));
        EXPECT_EQ(loaded(), missing) << "a read error in " << suffix;
    }
}

TEST(LoadProject, AFileWithoutItsMarkIsNamed) {
    for (const char* suffix : {".TWR", ".PLF", ".PIL", ".ncv", ".pls"}) {
        ResultProject project;
        project.substructures[0] = MakePier();
        project.Write();
        project.WriteFile(suffix, "X" + SeqBytes().Zeros(48).End());
        ExpectFault(project, std::string("p") + suffix, "its mark is missing");
    }
}

TEST(LoadProject, WrongCountsAreNamed) {
    ResultProject project;
    project.Write();
    project.WriteFile(".TWR", SeqBytes().Ints({-1}).End());
    ExpectFault(project, "p.TWR", "p.TWR: substructure count -1 is out of range (1 to 10000)");
    project.WriteFile(".TWR", SeqBytes().Ints({2000000000}).End());
    ExpectFault(project, "p.TWR", "substructure count 2000000000 is out of range (1 to 10000)");
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(2000000000).End());
    ExpectFault(project, "p.vmd", "2000000000 load cases");
    project.WriteFile(".ncv", ResultProject::Convergence(-4).End());
    ExpectFault(project, "p.ncv", "load case count -4 is out of range (0 or more)");
    project.Write();
    project.WriteFile(".PLF", SeqBytes().Ints({1 << 30}).End());
    ExpectFault(project, "p.PLF", "section block count 1073741824 is out of range (0 to ");
    project.substructures[0] = MakePier();
    project.substructures[0].columns = 1 << 30;
    project.Write();
    ExpectFault(project, "p.PLF", "column count 1073741824 is out of range (0 to 1000000)");
    project.substructures[0] = ResultSubstructure{};
    project.substructures[0].type = 12;
    project.Write();
    ExpectFault(project, "p.PLF", "structure type 12 is out of range (-1 to 8)");
}

TEST(LoadProject, AForceFileThatCannotBeOpenedIsReportedAsThatWhateverTheModelsSize) {
    // 14 elements and 2,000,010 of them: their forces in two cases are 1,568 bytes and 224 MB.
    for (const int columnNodes : {1, 999999}) {
        ResultProject project;
        project.substructures[0] = MakePier();
        project.substructures[0].columnNodes = columnNodes;
        project.Write();
        project.Remove(".vmd");
        ExpectFault(project, "p.vmd", "the file was not found");
        std::filesystem::create_directory(project.Path(".vmd"));
        ExpectFault(project, "p.vmd", "the file could not be opened");
    }
}

TEST(LoadProject, AForceFileIsTooShortBeyondThreeTimesItsLengthAnd32Megabytes) {
    ResultProject project;
    project.Write();
    // Two piles of two elements: 224 bytes of forces a case and 144 for itself; 272 bytes of records.
    const int most = (32 << 20) / (224 + 144);
    project.WriteFile(".vmd", "");
    project.WriteFile(".ncv", ResultProject::Convergence(most - 100).End());
    {
        EXPECT_TRUE(project.Load());
        EXPECT_THAT(project.messages.texts,
                    testing::ElementsAre(testing::HasSubstr(" force records are missing")));
    }
    project.WriteFile(".ncv", ResultProject::Convergence(most + 1).End());
    ExpectFault(project, "p.vmd",
                "holds 0 bytes, too few for 4 elements in " + std::to_string(most + 1) +
                    " load cases, whose records take " + std::to_string(272LL * (most + 1)));
    // 68,000 bytes allow 204,000 more.
    project.WriteFile(".vmd", std::string(68000, '\0'));
    EXPECT_TRUE(project.Load());
}

TEST(LoadProject, CasesWithoutElementsAreBoundedToo) {
    ResultProject project;
    project.substructures[0].piles = 0;
    project.substructures[0].pileSections.clear();
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(250000).End());  // 36,000,000 bytes
    ExpectFault(project, "p.vmd", "holds 0 bytes, too few for 250000 load cases");
}

TEST(LoadProject, ATruncatedFileIsNamedWithTheRecordThatIsMissing) {
    ResultProject project;
    project.Write();
    std::filesystem::resize_file(project.Path(".PLF"), 40);
    ExpectFault(project, "p.PLF", "section record");
    project.Write();
    std::filesystem::resize_file(project.Path(".PIL"), 20);
    ExpectFault(project, "p.PIL", "pile model counts");
    project.Write();
    std::filesystem::resize_file(project.Path(".ncv"), 3);
    ExpectFault(project, "p.ncv", "ends before its load case count");
}

TEST(LoadProject, EveryTruncationOfEverySequentialFileLoadsOrIsNamed) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.substructures[0].codeFamily = 0;
    for (const char* suffix : {".TWR", ".PLF", ".PIL", ".ncv", ".pls", ".ash"}) {
        project.Write();
        const auto size = std::filesystem::file_size(project.Path(suffix));
        for (std::uintmax_t cut = 0; cut < size; ++cut) {
            project.Write();
            std::filesystem::resize_file(project.Path(suffix), cut);
            try {
                project.Load();
            } catch (const CFileException& error) {
                EXPECT_THAT(std::string(error.what()), testing::HasSubstr("p."))
                    << suffix << " cut at " << cut;
            }
        }
    }
}

}  // namespace lumerin
