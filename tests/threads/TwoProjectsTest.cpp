// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "envelopes/Collect.h"
#include "framework/File.h"
#include "results/LoadProject.h"
#include "samples/Presets.h"
#include "samples/Project.h"
#include "support/Messages.h"
#include "support/ScratchFolder.h"
#include "tables/TableText.h"
#include "writers/TablePdf.h"
#include "writers/TableSheets.h"

namespace lumerin {

// Two projects in one process at the same time: each has its own model, selection, results and documents, and
// a fault of one does not affect the other. The thread sanitizer watches this test.

namespace {

std::string Bytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string MakeProject(const std::filesystem::path& folder, const char* preset) {
    samples::SampleOptions options;
    options.preset = preset;
    options.name = preset;
    samples::WriteProject(folder, samples::MakeProject(options));
    return (folder / preset).string();
}

// Loads the project and returns every table in every format as one text, or the fault that ended the load.
std::string ReportOf(const std::string& basePath, const std::filesystem::path& output) {
    try {
        RecordedMessages messages;
        const std::optional<Project> project = LoadProject(basePath, messages);
        if (!project) return "nothing converged";
        const CaseSelection selection(project->data);
        ResultTables results(project->data);
        const TableFlags enabled = ApplicableTables(project->data, selection);
        ReportOptions options;
        RowReader rows(project->forces);
        options.projectBasePath = basePath;
        options.now = [] { return LocalTime{2026, 11, 14, 6, 8, 30, 5}; };
        StoredStream out(output.string());
        CPdfWriter pdf(true);
        pdf.WriteHeader(out);
        for (int table = kTableMaxAxial; table <= kTableExtraMembers; ++table) {
            CollectTable(TableId{table}, {project->data, project->forces, selection, messages}, results);
            const Report report{project->data, selection, results, enabled, options, rows};
            WriteTableText(report, TableId{table}, out);
            WriteTablePdf(report, TableId{table}, out, pdf);
            WriteTableSheet(report, TableId{table}, out, true);
        }
        pdf.Finish(out);
        out.Close();
        return Bytes(output);
    } catch (const CFileException& error) {
        return error.what();
    }
}

}  // namespace

TEST(TwoProjects, AreReportedInTwoThreadsAsOneAfterTheOther) {
    const ScratchFolder folder;
    const std::string pier = MakeProject(folder.Path(), "pier"),
                      bridge = MakeProject(folder.Path(), "bridge");
    const std::string pierAlone = ReportOf(pier, folder.Path() / "a"),
                      bridgeAlone = ReportOf(bridge, folder.Path() / "b");
    ASSERT_NE(pierAlone, bridgeAlone);
    ASSERT_GT(pierAlone.size(), 10000U);
    std::string first, second;
    std::thread one([&] { first = ReportOf(pier, folder.Path() / "c"); });
    std::thread other([&] { second = ReportOf(bridge, folder.Path() / "d"); });
    one.join();
    other.join();
    EXPECT_TRUE(first == pierAlone);
    EXPECT_TRUE(second == bridgeAlone);
}

TEST(TwoProjects, ABrokenOneLeavesTheOtherAsItIs) {
    const ScratchFolder folder;
    const std::string pier = MakeProject(folder.Path(), "pier"), bent = MakeProject(folder.Path(), "bent");
    const std::string alone = ReportOf(pier, folder.Path() / "a");
    std::filesystem::resize_file(bent + ".PLF", 100);
    std::string whole, fault;
    std::thread one([&] { whole = ReportOf(pier, folder.Path() / "b"); });
    std::thread other([&] { fault = ReportOf(bent, folder.Path() / "c"); });
    one.join();
    other.join();
    EXPECT_TRUE(whole == alone);
    EXPECT_NE(fault.find("bent.PLF"), std::string::npos) << fault;
}

}  // namespace lumerin
