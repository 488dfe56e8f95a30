// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "support/Forces.h"
#include "support/Model.h"
#include "support/ScratchFolder.h"
#include "tables/Report.h"
#include "tables/TableText.h"
#include "text/Format.h"

namespace lumerin {

// The input of a report, built by hand, a fixed clock, and the written file read back.
class ReportTest : public testing::Test {
  protected:
    ReportTest() {
        options.format = kFormatText;
        options.versionText = "5.2.1";
        options.versionLabel = "v5.2.1";
        options.now = [this] { return clock; };
    }

    // Substructures in place of all earlier ones. Every case is selected, and the result tables are empty.
    void MakePiers(const std::vector<PierShape>& shapes) {
        data.m_Piers = std::vector<CPier>(shapes.size());
        for (std::size_t p = 0; p < shapes.size(); ++p) BuildPier(data.m_Piers[p], shapes[p]);
        forces.Clear();
        selection = CaseSelection(data);
        results.piers = std::vector<PierResults>(shapes.size());
    }
    void AddPiers(std::size_t count, StructureType type = kTypePier) {
        MakePiers(std::vector<PierShape>(count, {.type = type, .cases = 0}));
    }
    // Members of one element each, for a substructure that has none.
    void Fill(CPier& pier, int piles, int columns, int extraMembers, int cases) {
        BuildPier(pier, {.type = pier.m_nStructureType,
                         .piles = piles,
                         .columns = columns,
                         .extraMembers = extraMembers,
                         .cases = cases});
        selection = CaseSelection(data);
    }
    // Combinations of a family; only these classes have a case.
    void MakeCombinations(CPier& pier, CodeFamily family, const std::vector<int>& classes) {
        pier.m_bCombinations = true;
        pier.m_nCodeFamily = family;
        PresentClasses(classes);
    }
    void SetForces(const CPier& pier, int loadCase, int element, int end,
                   const std::array<float, kComponents>& values) {
        forces.Set(pier, loadCase, element, end, values);
    }
    CPier& Pier(std::size_t index = 0) { return data.m_Piers.at(index); }
    PierResults& Results(std::size_t index = 0) { return results.piers.at(index); }
    // Result tables of the sizes that the substructures have.
    void AllocateResults() {
        for (CPier& pier : data.m_Piers) pier.BuildCapGeometry();
        results.piers = ResultTables(data).piers;
    }
    // Only these limit classes have a case.
    void PresentClasses(const std::vector<int>& classes) {
        selection = SelectionWithClasses(classes, selection.CaseCount());
    }

    std::string Path() const { return scratch.PathOf("report"); }
    std::string StoredBytes() const { return scratch.Read("report"); }
    // The stored text with bare line feeds, each of which was stored after a carriage return.
    std::string StoredText() const {
        const std::string bytes = StoredBytes();
        for (std::size_t at = bytes.find('\n'); at != std::string::npos; at = bytes.find('\n', at + 1)) {
            EXPECT_TRUE(at > 0 && bytes[at - 1] == '\r') << "line feed at " << at;
        }
        return ReplaceAll(bytes, "\r\n", "\n");
    }
    // The table as text; its line count goes to m_lines.
    std::string Text(TableId table) {
        StoredStream out(Path());
        m_lines = WriteTableText(MakeReport(), table, out);
        out.Close();
        EXPECT_FALSE(out.Failed());
        return StoredText();
    }

    // The input of the writers, with the current forces.
    Report MakeReport() {
        rowReader = std::make_unique<RowReader>(forces.Sources());
        return {data, selection, results, enabled, options, *rowReader};
    }

    const ScratchFolder scratch;
    LocalTime clock{2026, 11, 14, 6, 8, 30, 5};  // a Saturday
    CDataSet data;
    CaseSelection selection;
    ResultTables results;
    TableFlags enabled = kAllTables;
    ReportOptions options;
    ModelForces forces{data};
    std::unique_ptr<RowReader> rowReader;  // of the last report
    int m_lines = -1;
};

}  // namespace lumerin
