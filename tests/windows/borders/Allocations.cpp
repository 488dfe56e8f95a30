// SPDX-License-Identifier: MIT
// Each allocation of each thing that a user does fails once, the first, the second and so on until one passes
// clean. The host must keep running, each failure that the user asked for must be reported, and the last full
// report must be whole.
#include <cstdio>
#include <utility>

#include "FailingMemory.h"
#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

enum ReportControl {
    kCustom = IDC_CUSTOM_CASES,
    kChoose = IDC_CHOOSE_CASES,
    kText = IDC_FORMAT_TEXT,
    kPdf = IDC_FORMAT_PDF,
    kExcel = IDC_FORMAT_EXCEL,
    kStudy = IDC_EMBEDMENT
};
enum CaseControl { kCaseGrid = IDC_CASE_GRID, kCaseExport = IDC_CASE_EXPORT, kAll = IDC_CASES_ALL };
enum StudyControl {
    kCase = IDC_STUDY_CASE,
    kQuantity = IDC_STUDY_QUANTITY,
    kStudyGrid = IDC_STUDY_GRID,
    kGraph = IDC_STUDY_GRAPH,
    kEnvelope = IDC_STUDY_ENVELOPE
};
constexpr int kFullReport = IDC_FULL_REPORT, kOk = 1;

// One by one at first, then in growing steps: a report makes tens of thousands.
long Next(long number) {
    return number + 1 + number / 6;
}

void Paint(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

class Trial {
  public:
    explicit Trial(Visits& visits) : m_visits(visits) {}

    // `reported`: each failure shows a box. A failure of what the platform repeats, such as painting, may be
    // covered by the box of the one before.
    template <class Action>
    void Each(const char* name, bool reported, const Action& action) {
        int failures = 0;
        std::size_t boxes = 0;
        for (long number = 0;; number = Next(number)) {
            const std::size_t before = m_visits.boxes.size();
            failing::Arm(number);
            action();
            Pump();
            const bool failed = failing::Disarm();
            Pump();
            const std::size_t shown = m_visits.boxes.size() - before;
            if (!failed) break;
            ++failures;
            boxes += shown;
            if (reported) {
                Check(shown > 0,
                      std::string(name) + ": failure " + std::to_string(number) + " is not reported");
            }
        }
        std::printf("%s: %d failures, %d boxes\n", name, failures, static_cast<int>(boxes));
        std::fflush(stdout);
        Check(failures > 0, std::string(name) + ": nothing failed");
        Check(boxes > 0, std::string(name) + ": nothing was reported");
    }

  private:
    Visits& m_visits;
};

LPARAM PointOf(HWND grid, int row, int column) {
    RECT area{};
    GetClientRect(grid, &area);
    constexpr int kRowHeight = 30;
    return MAKELPARAM(area.right * (2 * column + 1) / 4, kRowHeight * row + kRowHeight / 2);
}

HWND EditorOf(HWND grid) {
    return FindWindowExA(grid, nullptr, "Edit", nullptr);
}

void WorkOnCells(Trial& trial, HWND dialog) {
    const HWND grid = GetDlgItem(dialog, kCaseGrid);
    SetFocus(grid);
    Key(grid, VK_HOME, true);
    Key(grid, VK_RIGHT);
    Key(grid, VK_DOWN);
    trial.Each("select by keys", true, [&] { Key(grid, VK_DOWN, false, true), Key(grid, VK_DOWN); });
    trial.Each("select all", true, [&] { Key(grid, VK_HOME), Key(grid, 'A', true); });
    trial.Each("copy", true, [&] { Key(grid, 'C', true); });
    trial.Each("paste", true, [&] { Key(grid, VK_HOME), Key(grid, VK_DOWN), Key(grid, 'V', true); });
    trial.Each("cut", true, [&] { Key(grid, 'A', true), Key(grid, 'X', true); });
    trial.Each("paint", false, [&] { Paint(grid); });
    trial.Each("open the editor by a key", true, [&] {
        SendMessageA(grid, WM_CHAR, '1', 1);
        Pump();
        if (const HWND editor = EditorOf(grid)) SendMessageA(editor, WM_KEYDOWN, VK_ESCAPE, 1);
    });
    trial.Each("type", true, [&] {
        const HWND editor = EditorOf(grid);
        SendMessageA(editor != nullptr ? editor : grid, WM_CHAR, '1', 1);
        Pump();
        if (editor != nullptr) SendMessageA(editor, WM_CHAR, '0', 1);
    });
    trial.Each("end the edit", true, [&] {
        const HWND editor = EditorOf(grid);
        if (editor == nullptr) SendMessageA(grid, WM_CHAR, '1', 1);
        if (editor != nullptr) SendMessageA(editor, WM_KEYDOWN, VK_RETURN, 1);
    });
    trial.Each("open the editor by the mouse", true, [&] {
        SendMessageA(grid, WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(grid, 2, 1));
        Pump();
        SendMessageA(grid, WM_LBUTTONDOWN, MK_LBUTTON, PointOf(grid, 1, 1));
        SendMessageA(grid, WM_LBUTTONUP, 0, PointOf(grid, 1, 1));
    });
    trial.Each("drag", true, [&] {
        SendMessageA(grid, WM_LBUTTONDOWN, MK_LBUTTON, PointOf(grid, 1, 0));
        SendMessageA(grid, WM_MOUSEMOVE, MK_LBUTTON, PointOf(grid, 3, 1));
        SendMessageA(grid, WM_LBUTTONUP, 0, PointOf(grid, 3, 1));
    });
    Key(grid, VK_RIGHT);
    trial.Each("scroll", true, [&] {
        SendMessageA(grid, WM_CHAR, '1', 1);
        SendMessageA(grid, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        SendMessageA(grid, WM_VSCROLL, SB_TOP, 0);
    });
    trial.Each("paint the links", false, [&] { Paint(GetDlgItem(dialog, kAll)); });
    trial.Each("export the grid", true, [&] { Press(dialog, kCaseExport); });
}

void WorkOnStudy(Trial& trial, HWND dialog) {
    const HWND graph = GetDlgItem(dialog, kGraph), quantity = GetDlgItem(dialog, kQuantity);
    trial.Each("paint the plot", false, [&] { Paint(graph); });
    trial.Each("click on the plot", true, [&] {
        RECT area{};
        GetClientRect(graph, &area);
        SendMessageA(graph, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(area.right / 2, area.bottom / 2));
        SendMessageA(graph, WM_LBUTTONUP, 0, MAKELPARAM(area.right / 2, area.bottom / 2));
    });
    trial.Each("choose a quantity", true, [&] {
        SendMessageA(quantity, CB_SETCURSEL, 3, 0);
        SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kQuantity, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(quantity));
    });
    trial.Each("choose a case", true, [&] { SetWindowTextA(GetDlgItem(dialog, kCase), "2"); });
    trial.Each("show the envelope", true, [&] { Press(dialog, kEnvelope); });
    trial.Each("export the study", true, [&] { Press(dialog, kStudy); });
}

// A lasting lack of memory must not keep the user in message boxes: painting is reported once, and Cancel
// ends the dialog.
void CheckWayOut(Visits& visits, HWND dialog) {
    const std::size_t before = visits.boxes.size();
    failing::Arm(0, true);
    for (int i = 0; i < 5; ++i) {
        Paint(GetDlgItem(dialog, kCaseGrid));
        Pump(50);
    }
    Check(
        visits.boxes.size() == before + 1,
        "paints that fail for good show " + std::to_string(visits.boxes.size() - before) + " boxes, not one");
    Cancel(dialog);
    Pump();
    failing::Disarm();
    Check(!IsWindow(dialog) || !IsWindowVisible(dialog), "Cancel ends the dialog without memory");
}

class Work {
  public:
    void Visit(HWND dialog) {
        if (GetDlgItem(dialog, kFullReport) != nullptr) {
            VisitReport(dialog);
        } else if (m_work) {
            std::exchange(m_work, nullptr)(dialog);
            if (IsWindow(dialog)) Cancel(dialog);
        } else {
            // It was opened with too little memory and may be incomplete: it must still be drawn and must
            // close.
            failing::Disarm();
            Paint(dialog);
            Cancel(dialog);
        }
    }
    Visits visits{[this](HWND dialog) { Visit(dialog); }};

  private:
    void VisitReport(HWND dialog) {
        Trial trial(visits);
        // First the opening of the dialogs, then the work in them.
        trial.Each("open the load cases", false, [&] { Press(dialog, kCustom), Press(dialog, kChoose); });
        m_work = [&](HWND cases) { WorkOnCells(trial, cases); };
        Press(dialog, kChoose);
        m_work = [&](HWND cases) { CheckWayOut(visits, cases); };
        Press(dialog, kChoose);
        trial.Each("open the study", false, [&] { Press(dialog, kStudy); });
        m_work = [&](HWND study) { WorkOnStudy(trial, study); };
        Press(dialog, kStudy);
        for (const int button : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_COLUMN_DC, IDC_CAP_SHEAR, IDC_CAP_MOMENT,
                                 IDC_CAP_ENVELOPES, IDC_PILE_FORCES, IDC_COLUMN_FORCES, IDC_TITLE_PAGE}) {
            const int format = button % 3 == 0 ? kText : button % 3 == 1 ? kPdf : kExcel;
            Press(dialog, button == IDC_TITLE_PAGE ? kPdf : format);
            trial.Each(("button " + std::to_string(button)).c_str(), true, [&] { Press(dialog, button); });
        }
        Press(dialog, kText);
        trial.Each("full report", true, [&] { Press(dialog, kFullReport); });
        Press(dialog, kOk);
    }
    std::function<void(HWND)> m_work;
};

}  // namespace

void TestAllocations(const Words& words) {
    const Module module = LoadModule();
    Check(failing::Hook(module.handle), "the module allocates by the C library");
    Work work;
    const unsigned result = module.launch(2, words.at(0).c_str(), "4.17", "", "", "");
    Check(result == 1, "the call ends by Close");
}

}  // namespace lumerin
