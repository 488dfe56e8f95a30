// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>

#include "SampleTable.h"
#include "export/SqliteWriter.h"
#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

class Sqlite : public testing::Test {
  protected:
    std::string Path() const { return m_folder.PathOf("results.sqlite"); }
    std::int64_t Number(const std::string& sql) {
        Database database(Path(), Database::Access::read);
        return database.Number(sql);
    }
    std::string Text(const std::string& sql) {
        Database database(Path(), Database::Access::read);
        Statement statement(database, sql);
        return statement.Step() ? statement.Text(0) : "no row";
    }
    void Export(std::string_view project, const Table& table, int rows, UnitSystem system = UnitSystem::us) {
        SqliteWriter writer(Path(), "1.2.3");
        std::vector<SampleRow> all;
        for (int i = 1; i <= rows; ++i) all.push_back(MakeRow(project, i, "x", -0.1F, 0.5F));
        WriteRows(writer, project, table, all, system);
        writer.Close();
    }
    ScratchFolder m_folder;
};

TEST_F(Sqlite, KeepsTypesAndShortestNumbers) {
    Export("pier", kSampleTable, 2);
    EXPECT_EQ(
        Text("SELECT group_concat(typeof(project) || typeof(number) || typeof(fax) || typeof(masked), ';')"
             " FROM samples"),
        "textintegerrealinteger;textintegerrealinteger");
    EXPECT_EQ(Text("SELECT fax FROM samples WHERE number = 2"), "-0.1");
    EXPECT_EQ(Text("SELECT \"case\" FROM samples WHERE masked = 1"), "3");
}

TEST_F(Sqlite, AbsentCellsAndWhatIsNotANumberAreNull) {
    SqliteWriter writer(Path(), "1");
    WriteRows(writer, "p", kSampleTable,
              {MakeRow("p", 1, "", {}, std::numeric_limits<float>::quiet_NaN()),
               MakeRow("p", 2, "=1+1", std::numeric_limits<float>::infinity(), 1.0)});
    EXPECT_EQ(Number("SELECT count(*) FROM samples WHERE fax IS NULL AND dc IS NULL AND words = ''"), 1);
    EXPECT_EQ(Number("SELECT count(*) FROM samples WHERE fax > 1e300 AND words = '=1+1'"), 1);
}

TEST_F(Sqlite, HasVersionsUnitsAndTables) {
    Export("pier", kSampleTable, 1);
    EXPECT_EQ(Number("PRAGMA application_id"), 0x4C554D52);
    EXPECT_EQ(Number("PRAGMA user_version"), kTablesVersion);
    EXPECT_EQ(Text("SELECT value FROM versions WHERE name = 'lumerin'"), "1.2.3");
    EXPECT_EQ(Text("SELECT value FROM versions WHERE name = 'units'"), "us");
    EXPECT_EQ(Text("SELECT unit || '/' || unit_system FROM units WHERE table_name = 'samples' AND "
                   "column_name = 'fax'"),
              "kips/us");
    EXPECT_EQ(Number("SELECT count(*) FROM units"), 2);
    EXPECT_EQ(Text("SELECT row FROM tables WHERE name = 'samples'"), "a sample");
    EXPECT_EQ(Text("SELECT tables FROM imports WHERE project = 'pier'"), "samples");
    EXPECT_EQ(UnitsOfDatabase(Path()), UnitSystem::us);
}

TEST_F(Sqlite, HasAKeyAndAnIndexOfTheRatios) {
    Export("pier", kSampleTable, 1);
    EXPECT_THAT(Text("SELECT sql FROM sqlite_master WHERE name = 'samples_key'"),
                testing::AllOf(HasSubstr("UNIQUE"), HasSubstr("(\"project\", \"number\")")));
    EXPECT_EQ(Text("SELECT tbl_name FROM sqlite_master WHERE name = 'samples_by_dc'"), "samples");
    SqliteWriter writer(Path(), "1");
    writer.BeginProject("pier");
    writer.BeginTable(kSampleTable, UnitSystem::us);
    writer.Row(MakeRow("pier", 1, "x", {}, {}));
    EXPECT_THROW(writer.Row(MakeRow("pier", 1, "x", {}, {})), ExportError);
}

TEST_F(Sqlite, AProjectReplacesAllOfItselfAndNothingElse) {
    Export("a", kSampleTable, 5);
    Export("a", kOtherTable, 4);
    EXPECT_EQ(Number("SELECT count(*) FROM samples"), 0) << "no table is of an older run than another";
    Export("a", kSampleTable, 2);
    Export("b", kSampleTable, 3);
    Export("b", kSampleTable, 1);
    EXPECT_EQ(Number("SELECT count(*) FROM samples WHERE project = 'a'"), 2);
    EXPECT_EQ(Number("SELECT count(*) FROM samples WHERE project = 'b'"), 1);
    EXPECT_EQ(Number("SELECT count(*) FROM others"), 0);
    EXPECT_EQ(Number("SELECT count(*) FROM imports"), 2);
}

TEST_F(Sqlite, AProjectThatFailsLeavesTheFileAsItWas) {
    Export("a", kSampleTable, 2);
    {
        SqliteWriter writer(Path(), "1");
        writer.BeginProject("a");
        writer.BeginTable(kSampleTable, UnitSystem::us);
        writer.Row(MakeRow("a", 9, "x", {}, {}));
        EXPECT_TRUE(writer.AbandonProject());
        WriteRows(writer, "b", kSampleTable, {MakeRow("b", 1, "x", {}, {})});
        writer.BeginProject("c");
        writer.BeginTable(kOtherTable, UnitSystem::us);
    }
    EXPECT_EQ(Number("SELECT max(number) FROM samples WHERE project = 'a'"), 2);
    EXPECT_EQ(Number("SELECT count(*) FROM samples"), 3);
    EXPECT_EQ(Number("SELECT count(*) FROM sqlite_master WHERE name = 'others'"), 0);
}

TEST_F(Sqlite, ANewFileWithoutAProjectDoesNotStay) {
    {
        SqliteWriter writer(Path(), "1");
        writer.BeginProject("a");
        writer.BeginTable(kSampleTable, UnitSystem::us);
    }
    EXPECT_FALSE(m_folder.Has("results.sqlite"));
    EXPECT_EQ(UnitsOfDatabase(Path()), std::nullopt);
}

TEST_F(Sqlite, OneDatabaseHasOneUnitSystem) {
    Export("a", kSampleTable, 1);
    EXPECT_THAT([&] { Export("b", kSampleTable, 1, UnitSystem::si); },
                ThrowsMessage<ExportError>(HasSubstr("give --units us")));
    EXPECT_EQ(Number("SELECT count(*) FROM samples"), 1);
}

TEST_F(Sqlite, RefusesFilesThatAreNotItsOwn) {
    m_folder.Write("results.sqlite", "a file of somebody's, which is long enough to be looked at");
    EXPECT_THROW(SqliteWriter(Path(), "1"), ExportError);
    EXPECT_THAT(m_folder.Read("results.sqlite"), HasSubstr("somebody"));
    std::filesystem::remove(Path());
    Database(Path(), Database::Access::create).Run("CREATE TABLE mine (x)");
    EXPECT_THAT([&] { SqliteWriter(Path(), "1"); },
                ThrowsMessage<ExportError>(HasSubstr("not one of this program's exports")));
    EXPECT_EQ(Number("SELECT count(*) FROM mine"), 0);
}

TEST_F(Sqlite, AFileThatCannotBeMadeIsReportedWithTheReason) {
    EXPECT_THAT([&] { SqliteWriter(m_folder.PathOf("missing/results.sqlite"), "1"); },
                ThrowsMessage<ExportError>(HasSubstr("there is no folder " + m_folder.PathOf("missing"))));
    std::filesystem::create_directory(Path());
    EXPECT_THAT([&] { SqliteWriter(Path(), "1"); }, ThrowsMessage<ExportError>("it is a folder: " + Path()));
}

TEST_F(Sqlite, RefusesTablesOfAnotherVersion) {
    Export("a", kSampleTable, 1);
    Database(Path(), Database::Access::create).Run("PRAGMA user_version = 99");
    EXPECT_THAT([&] { SqliteWriter(Path(), "1"); }, ThrowsMessage<ExportError>(HasSubstr("version 99")));
}

}  // namespace

}  // namespace lumerin
