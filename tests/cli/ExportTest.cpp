// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "cli/ExportCommand.h"
#include "support/SampleFolder.h"

namespace lumerin {

// The command export: where rows go, and what it ends with.

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using testing::ThrowsMessage;

class Export : public testing::Test {
  protected:
    // A request for a project's tables.
    ExportRequest Request(const std::vector<std::string>& projects, const std::string& tables,
                          const std::string& output) const {
        ExportRequest request;
        for (const std::string& project : projects) request.projects.emplace_back(project);
        ReadTables(tables, request);
        request.output = output;
        return request;
    }
    ExitStatus Run(const ExportRequest& request) {
        m_out.str("");
        m_err.str("");
        return RunExport(request, m_out, m_err);
    }
    std::string PathOf(const std::string& name) const { return m_folder.Base(name); }
    std::string Read(const std::string& path) const {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void CutInHalf(const std::string& path) {
        std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    }

    SampleFolder m_folder;
    std::ostringstream m_out, m_err;
};

TEST_F(Export, RowsGoToStandardOutput) {
    EXPECT_EQ(Run(Request({m_folder.Write("group")}, "cases", "-")), kExitDone);
    EXPECT_THAT(m_out.str(), StartsWith("project,substructure,case,"));
    EXPECT_THAT(m_out.str(), HasSubstr("\r\n" + PathOf("group") + ",,1,"));
}

TEST_F(Export, AFolderHasAFileForEachProjectAndTable) {
    const ExportRequest request =
        Request({m_folder.Write("group"), m_folder.Write("bent")}, "cases,verdict", PathOf("out/"));
    EXPECT_EQ(Run(request), kExitDone);
    EXPECT_EQ(m_out.str(), PathOf("out/group-cases.csv\n") + PathOf("out/group-verdict.csv\n") +
                               PathOf("out/bent-cases.csv\n") + PathOf("out/bent-verdict.csv\n"));
    EXPECT_THAT(Read(PathOf("out/bent-verdict.csv")), StartsWith("project,substructure,family,"));
}

TEST_F(Export, WrongUsageWritesNothing) {
    const std::string group = m_folder.Write("group"), bent = m_folder.Write("bent");
    ExportRequest workbook = Request({group}, "cases", "-");
    workbook.form = ExportForm::workbook;
    for (const ExportRequest& request : {Request({group}, "cases,verdict", PathOf("a.csv")),
                                         Request({group, group}, "cases", PathOf("a.csv")),
                                         Request({group, bent}, "cases", PathOf("a.csv")), workbook}) {
        EXPECT_THROW(Run(request), std::invalid_argument);
        EXPECT_FALSE(std::filesystem::exists(PathOf("a.csv")));
    }
    ExportRequest request;
    EXPECT_THROW(ReadTables("cases,nonsense", request), std::invalid_argument);
    EXPECT_THROW(ReadForm("xls"), std::invalid_argument);
}

TEST_F(Export, ProjectsOfBothUnitSystemsNeedOne) {
    ExportRequest request = Request({m_folder.Write("group"), m_folder.Write("bent")}, "verdict", "-");
    EXPECT_THAT([&] { Run(request); }, ThrowsMessage<std::invalid_argument>(HasSubstr("give --units us")));
    request.units = UnitSystem::si;
    EXPECT_EQ(Run(request), kExitDone);
}

TEST_F(Export, AProjectThatIsMissingDoesNotStopTheOthers) {
    EXPECT_EQ(Run(Request({PathOf("nothing"), m_folder.Write("bent")}, "cases", PathOf("a.csv"))),
              kExitNotLoaded);
    EXPECT_THAT(m_err.str(), HasSubstr("no project " + PathOf("nothing.in")));
    EXPECT_THAT(Read(PathOf("a.csv")), HasSubstr(PathOf("bent") + ",,1,"));
    EXPECT_EQ(Run(Request({PathOf("nothing")}, "cases", PathOf("b.csv"))), kExitNotLoaded);
    EXPECT_FALSE(std::filesystem::exists(PathOf("b.csv"))) << "a file without a project looks like a result";
}

TEST_F(Export, UnsoundDataAreExportedAndReported) {
    const std::string pier = m_folder.Write("pier");
    CutInHalf(pier + ".vmd");
    EXPECT_EQ(Run(Request({pier}, "verdict", PathOf("a.csv"))), kExitUnsound);
    EXPECT_THAT(m_err.str(), HasSubstr("error: missing-records"));
    EXPECT_TRUE(std::filesystem::exists(PathOf("a.csv")));
}

TEST_F(Export, ATableWithoutRowsIsReported) {
    const std::string group = m_folder.Write("group");
    EXPECT_EQ(Run(Request({group}, "cap_shear,cases", PathOf("out/"))), kExitIncomplete);
    EXPECT_THAT(m_err.str(), HasSubstr("the table cap_shear has no rows"));
    EXPECT_EQ(Run(Request({group}, "all", PathOf("out/"))), kExitDone);
}

TEST_F(Export, AnOutputThatCannotBeWrittenIsNamed) {
    EXPECT_EQ(Run(Request({m_folder.Write("group")}, "cases", PathOf("no/a.csv"))), kExitIncomplete);
    EXPECT_THAT(m_err.str(), HasSubstr("there is no folder " + PathOf("no/")));
}

TEST_F(Export, TablesOfOneStreamAreNamedInJsonLines) {
    ExportRequest request = Request({m_folder.Write("group")}, "CASES,verdict,cases", "-");
    request.form = ReadForm("JSONL");
    ASSERT_EQ(request.tables.size(), 2u) << "a table that is named twice is written once";
    EXPECT_EQ(Run(request), kExitDone);
    EXPECT_THAT(m_out.str(), StartsWith("{\"table\":\"cases\",\"project\":"));
    EXPECT_THAT(m_out.str(), HasSubstr("\n{\"table\":\"verdict\","));
}

TEST_F(Export, ADatabaseKeepsItsUnitSystem) {
    ExportRequest request = Request({m_folder.Write("group")}, "verdict", PathOf("a.sqlite"));
    request.form = ExportForm::sqlite;
    EXPECT_EQ(Run(request), kExitDone);
    request.projects = {ProjectName(m_folder.Write("bent"))};
    EXPECT_THAT([&] { Run(request); }, ThrowsMessage<std::invalid_argument>(HasSubstr("has units si")));
    request.units = UnitSystem::us;
    EXPECT_THROW(Run(request), std::invalid_argument);
    request.units = UnitSystem::si;
    EXPECT_EQ(Run(request), kExitDone);
}

}  // namespace

}  // namespace lumerin
