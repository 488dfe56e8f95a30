// SPDX-License-Identifier: MIT
#include "framework/WholeFilePlatform.h"
#include "reliability/FaultyCalls.h"
#include "session/Launch.h"
#include "session/ReportControls.h"
#include "support/BrokenProject.h"

namespace lumerin {

// The Nth allocation fails, for N = 1, 2, 3 ... until a run passes clean: no run may end the process, and the
// next run must be complete again.

namespace {

// Presses by identifier, the way a dialog's user would. A press that opens a dialog leaves the following ones
// to that dialog, until it is closed.
constexpr int kPresses[] = {IDC_MAX_AXIAL,
                            IDC_CAP_SHEAR,
                            IDC_CAP_ENVELOPES,
                            IDC_FORMAT_PDF,
                            IDC_FULL_REPORT,
                            IDC_FORMAT_EXCEL,
                            IDC_PILE_FORCES,
                            IDC_CUSTOM_CASES,
                            IDC_CHOOSE_CASES,
                            IDC_CASES_NONE,
                            IDC_CASES_ALL,
                            IDC_CASE_EXPORT,
                            1,
                            IDC_CAP_MOMENT,
                            IDC_EMBEDMENT,
                            IDC_STUDY_ENVELOPE,
                            IDC_STUDY_INDIVIDUAL,
                            IDC_STUDY_EXPORT,
                            2,
                            IDC_FORMAT_TEXT,
                            IDC_FULL_REPORT,
                            IDC_COLUMN_FORCES,
                            IDC_TITLE_PAGE,
                            IDC_FORMAT_PDF,
                            IDC_TITLE_PAGE,
                            1};

// Presses the buttons with the allocation of that number failing.
class Presses {
  public:
    explicit Presses(const std::string& base) : m_project(base + ".in") {}

    // Whether the run reached that allocation.
    bool RunWithFailure(long number) {
        headless::ResetState();
        headless::State().clock = LocalTime{2026, 11, 14, 6, 8, 30, 0};
        std::size_t next = 0;
        headless::SetModalDriver([&next](headless::HeadlessDialog& dialog) {
            while (dialog.IsOpen() && next < std::size(kPresses)) dialog.Click(kPresses[next++]);
        });
        faulty::g_allocationsLeft = number;
        LaunchLumerin(kFormatText, m_project.c_str(), "5.2.1", "", "", "");
        const bool failed = faulty::g_allocationsLeft < 0;
        faulty::g_allocationsLeft = -1;
        headless::ResetState();
        return failed;
    }

  private:
    std::string m_project;
};

// A file that lacks its end, or that was left over; empty: there is none. The texts have no mark at their
// end.
std::string CutDocument(const std::filesystem::path& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (wholefile::IsTemporaryName(name)) return name;
        const bool sheet = name.ends_with(".xml");
        if (!sheet && !name.ends_with(".pdf")) continue;
        const std::string bytes = ReadBytesOf(entry.path());
        if (!bytes.empty() && !bytes.ends_with(sheet ? "</Workbook>\r\n" : "%%EOF\r\r\n")) return name;
    }
    return {};
}

TEST(Allocation, NoFailureEndsTheProcessOrCutsADocumentAndTheNextRunIsWhole) {
    const BrokenProject project("pier", 2);
    const std::string report = project.Base() + "_Full_Report.txt";
    ASSERT_EQ(ReportOf(project.Base()).status, kExitDone);
    const std::string whole = ReadBytesOf(report);
    Presses presses(project.Base());
    long number = 0, runs = 0;
    // The first few hundred one by one, then in growing steps: a run makes tens of thousands.
    while (presses.RunWithFailure(number)) {
        ++runs;
        ASSERT_EQ(CutDocument(project.Folder()), "") << "allocation " << number;
        number += 1 + (number > (kSanitized ? 60 : 600) ? number / (kSanitized ? 20 : 300) : 0);
    }
    RecordProperty("runs", static_cast<int>(runs));
    EXPECT_GT(runs, 100);
    EXPECT_EQ(ReportOf(project.Base()).status, kExitDone);
    EXPECT_EQ(ReadBytesOf(report), whole);
}

}  // namespace

}  // namespace lumerin
