// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>

#include "SampleTable.h"
#include "export/WorkbookWriter.h"
#include "support/ScratchFolder.h"

namespace lumerin {

// What a workbook holds is checked by programs that read it (tests/documents/check_exports.py); here is what
// they cannot see.

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr LocalTime kTime{2026, 11, 16, 9, 30, 0};

void WriteBook(const std::string& path, const SampleRow& row, int count) {
    WorkbookWriter writer(path, kTime, 1.0);
    writer.BeginProject("pier");
    writer.BeginTable(kSampleTable, UnitSystem::us);
    for (int i = 0; i < count; ++i) writer.Row(row);
    writer.EndTable();
    writer.EndProject();
    writer.Close();
}

}  // namespace

TEST(Workbook, TwoRunsWriteTheSameBytes) {
    const ScratchFolder folder;
    WriteBook(folder.PathOf("a.xlsx"), MakeRow("pier", 1, "x", 1.25F, 0.5F), 3);
    WriteBook(folder.PathOf("b.xlsx"), MakeRow("pier", 1, "x", 1.25F, 0.5F), 3);
    EXPECT_THAT(folder.Read("a.xlsx"), testing::StartsWith("PK"));
    EXPECT_EQ(folder.Read("a.xlsx"), folder.Read("b.xlsx"));
}

TEST(Workbook, ATableThatASheetCannotHoldIsRefusedWithBothNumbers) {
    const ScratchFolder folder;
    folder.Write("a.xlsx", "earlier");
    const SampleRow nothing(kSampleColumns.size());  // absent cells
    EXPECT_THAT([&] { WriteBook(folder.PathOf("a.xlsx"), nothing, 1048575); },
                ThrowsMessage<ExportError>(
                    AllOf(HasSubstr("1048575 rows"), HasSubstr("holds 1048574"), HasSubstr("samples"))));
    EXPECT_EQ(folder.Read("a.xlsx"), "earlier");
}

TEST(Workbook, OneThatIsNotClosedReplacesNoFile) {
    const ScratchFolder folder;
    folder.Write("a.xlsx", "earlier");
    {
        WorkbookWriter writer(folder.PathOf("a.xlsx"), kTime, 1.0);
        writer.BeginTable(kSampleTable, UnitSystem::us);
        writer.Row(MakeRow("pier", 1, "x", 1.25F, 0.5F));
    }
    EXPECT_EQ(folder.Read("a.xlsx"), "earlier");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(Workbook, ASheetHasOneUnitSystem) {
    const ScratchFolder folder;
    WorkbookWriter writer(folder.PathOf("a.xlsx"), kTime, 1.0);
    writer.BeginTable(kSampleTable, UnitSystem::us);
    EXPECT_THROW(writer.BeginTable(kSampleTable, UnitSystem::si), ExportError);
}

TEST(Workbook, AFolderThatIsNotThereIsNamedAtOnce) {
    const ScratchFolder folder;
    EXPECT_THAT([&] { WorkbookWriter(folder.PathOf("no/a.xlsx"), kTime, 1.0); },
                ThrowsMessage<ExportError>(HasSubstr("there is no folder")));
}

}  // namespace lumerin
