// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>
#include <sstream>

#include "SampleTable.h"
#include "export/CsvWriter.h"
#include "export/FilePerTable.h"
#include "export/JsonLinesWriter.h"
#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

std::string Csv(const std::vector<SampleRow>& rows, char separator = ',') {
    std::ostringstream out;
    CsvWriter writer(std::make_unique<StreamSink>(out), separator);
    WriteRows(writer, "pier", kSampleTable, rows);
    writer.Close();
    return out.str();
}

std::string JsonLines(const std::vector<SampleRow>& rows, bool namesTable) {
    std::ostringstream out;
    JsonLinesWriter writer(std::make_unique<StreamSink>(out), namesTable);
    WriteRows(writer, "pier", kSampleTable, rows);
    writer.Close();
    return out.str();
}

constexpr std::string_view kHead = "project,number,case,words,fax,dc,masked\r\n";

}  // namespace

TEST(Csv, HasALineOfNamesAndALineForEachRow) {
    EXPECT_EQ(Csv({MakeRow("pier", 1, "Col 1 CL", -409.96F, 0.1F), MakeRow("pier", 2, "none", 2.0, 1e-7F)}),
              std::string(kHead) + "pier,1,3,Col 1 CL,-409.96,0.1,true\r\npier,2,3,none,2,1e-07,false\r\n");
}

TEST(Csv, AnAbsentCellIsAnEmptyField) {
    EXPECT_EQ(Csv({{std::string_view("pier"), {}, {}, {}, {}, {}, {}}}),
              std::string(kHead) + "pier,,,,,,\r\n");
}

TEST(Csv, NumbersThatAreNotFiniteHaveTheirNames) {
    EXPECT_EQ(Csv({MakeRow("pier", 1, "x", kNotANumber, -kInfinite)}),
              std::string(kHead) + "pier,1,3,x,nan,-inf,true\r\n");
}

TEST(Csv, QuotesWhatWouldEndAField) {
    EXPECT_EQ(
        Csv({MakeRow("a,b", 1, "say \"4 ft\"", {}, {}), MakeRow("c\nd", 2, "e\rf", {}, {})}),
        std::string(kHead) + "\"a,b\",1,3,\"say \"\"4 ft\"\"\",,,true\r\n\"c\nd\",2,3,\"e\rf\",,,false\r\n");
}

TEST(Csv, QuotesTextsThatBeginAsFormulasAndEmptyOnes) {
    EXPECT_EQ(Csv({MakeRow("=1+1", 1, "+A", {}, {}), MakeRow("-B", 2, "@C", {}, {}),
                   MakeRow("a=b", 3, "", {}, {})}),
              std::string(kHead) +
                  "\"=1+1\",1,3,\"+A\",,,true\r\n\"-B\",2,3,\"@C\",,,false\r\na=b,3,3,\"\",,,true\r\n");
}

TEST(Csv, AnotherSeparatorChangesWhatIsQuoted) {
    EXPECT_EQ(Csv({MakeRow("a,b", 1, "c;d", 1.5F, {})}, ';'),
              "project;number;case;words;fax;dc;masked\r\na,b;1;3;\"c;d\";1.5;;true\r\n");
}

TEST(Csv, ATableOfSeveralProjectsHasOneHeadLine) {
    std::ostringstream out;
    CsvWriter writer(std::make_unique<StreamSink>(out), ',');
    WriteRows(writer, "a", kSampleTable, {MakeRow("a", 1, "x", {}, {})});
    WriteRows(writer, "b", kSampleTable, {MakeRow("b", 1, "x", {}, {})});
    EXPECT_THROW(writer.BeginTable(kOtherTable, UnitSystem::us), ExportError);
    writer.Close();
    EXPECT_EQ(out.str(), std::string(kHead) + "a,1,3,x,,,true\r\nb,1,3,x,,,true\r\n");
}

TEST(Csv, ManyRowsAreStoredInPiecesAndWhole) {
    const std::string longText(1000, 'x');
    std::vector<SampleRow> rows;
    for (int i = 0; i < 1000; ++i) rows.push_back(MakeRow("p", i, longText, {}, {}));
    const std::string csv = Csv(rows);
    std::string expected(kHead);
    for (int i = 0; i < 1000; ++i) {
        expected +=
            "p," + std::to_string(i) + ",3," + longText + ",,," + (i % 2 == 1 ? "true" : "false") + "\r\n";
    }
    EXPECT_EQ(csv, expected);
}

TEST(Csv, ReadsSeparators) {
    EXPECT_EQ(ReadSeparator(";"), ';');
    EXPECT_EQ(ReadSeparator("tab"), '\t');
    EXPECT_EQ(ReadSeparator("\\t"), '\t');
    for (const char* wrong : {"", "a", "5", ".", "-", "+", "\"", "'", "\n", ";;"}) {
        EXPECT_EQ(ReadSeparator(wrong), std::nullopt) << wrong;
    }
}

TEST(Csv, AFailedStreamIsAnError) {
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    CsvWriter writer(std::make_unique<StreamSink>(out), ',');
    writer.BeginTable(kSampleTable, UnitSystem::us);
    EXPECT_THROW(writer.Close(), ExportError);
}

TEST(JsonLines, HasAnObjectForEachRow) {
    EXPECT_EQ(JsonLines({MakeRow("pier", 1, "Col \"1\"\\", -409.96F, {}), MakeRow("b", 2, "\tx", 2.0, 0.5F)},
                        false),
              "{\"project\":\"pier\",\"number\":1,\"case\":3,\"words\":\"Col \\\"1\\\"\\\\\",\"fax\":-409.96,"
              "\"dc\":null,\"masked\":true}\n"
              "{\"project\":\"b\",\"number\":2,\"case\":3,\"words\":\"\\u0009x\",\"fax\":2,\"dc\":0.5,"
              "\"masked\":false}\n");
}

TEST(JsonLines, NumbersThatAreNotFiniteAreTexts) {
    EXPECT_EQ(JsonLines({MakeRow("p", 1, "x", kNotANumber, -kInfinite)}, false),
              "{\"project\":\"p\",\"number\":1,\"case\":3,\"words\":\"x\",\"fax\":\"nan\",\"dc\":\"-inf\","
              "\"masked\":true}\n");
}

TEST(JsonLines, NamesTheTableWhereThereAreSeveral) {
    EXPECT_THAT(JsonLines({MakeRow("p", 1, "x", {}, {})}, true),
                testing::StartsWith("{\"table\":\"samples\",\"project\":\"p\",\"number\":1,"));
}

TEST(FileForEachTable, AProjectThatFailsLeavesNoFile) {
    const ScratchFolder folder;
    int number = 0;
    FilePerTable writer([&](const Table& table) {
        const std::string path = folder.PathOf(std::string(table.name) + std::to_string(++number));
        return std::make_unique<CsvWriter>(std::make_unique<FileSink>(path), ',');
    });
    WriteRows(writer, "a", kSampleTable, {MakeRow("a", 1, "x", {}, {})});
    writer.BeginProject("b");
    writer.BeginTable(kSampleTable, UnitSystem::us);
    writer.Row(MakeRow("b", 1, "x", {}, {}));
    EXPECT_TRUE(writer.AbandonProject());
    writer.Close();
    EXPECT_EQ(folder.Read("samples1"), std::string(kHead) + "a,1,3,x,,,true\r\n");
    EXPECT_FALSE(folder.Has("samples2"));
}

TEST(OutputFile, NamesWhyItCannotBeWritten) {
    const ScratchFolder folder;
    EXPECT_EQ(WhyNotWritten(folder.PathOf("no/a.csv")), "there is no folder " + folder.PathOf("no/"));
    EXPECT_EQ(WhyNotWritten(folder.Path().string()), "it is a folder: " + folder.Path().string());
    EXPECT_THROW(FileSink(folder.PathOf("no/a.csv")), ExportError);
}

}  // namespace lumerin
