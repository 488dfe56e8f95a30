// SPDX-License-Identifier: MIT
// What the grids and the plot put on the screen, pixel by pixel.
#include <algorithm>
#include <array>
#include <cmath>

#include "Stage.h"
#include "embedment/win32/GraphMessages.h"
#include "host/GraphReader.h"
#include "host/Token.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr int kClose = 1;
constexpr COLORREF kWhite = 0xffffff;
constexpr COLORREF kFrame = 0x555555;
constexpr int kRowHeight = 30;  // of both grids
constexpr int kSetRanges =
    53;  // the call that gives the plot its ranges: least x, greatest x, least y, greatest y
constexpr double kMostText = 60.0;  // pixels of the plot's texts
constexpr double kLeastText = 7.0;

SIZE ClientSize(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

// A window's pixels as they are now.
class Pixels {
  public:
    explicit Pixels(HWND window) : m_window(window) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        m_dc = GetDC(window);
    }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;
    ~Pixels() { ReleaseDC(m_window, m_dc); }
    COLORREF At(long x, long y) const { return GetPixel(m_dc, static_cast<int>(x), static_cast<int>(y)); }

  private:
    HWND m_window;
    HDC m_dc = nullptr;
};

// The system's colour of windows is another one while this lives.
class WindowColour {
  public:
    explicit WindowColour(COLORREF colour) : m_before(GetSysColor(COLOR_WINDOW)) { Set(colour); }
    WindowColour(const WindowColour&) = delete;
    WindowColour& operator=(const WindowColour&) = delete;
    ~WindowColour() { Set(m_before); }

  private:
    static void Set(COLORREF colour) {
        const int index = COLOR_WINDOW;
        SetSysColors(1, &index, &colour);
    }
    COLORREF m_before;
};

// A place beside the text of a cell that is not shaded.
void CheckCells(HWND grid, const std::string& name) {
    const Pixels pixels(grid);
    const long beside = ClientSize(grid).cx - 60;
    Check(pixels.At(beside, 2 * kRowHeight + 4) == kWhite,
          name + ": the cells are white, whatever windows are");
}

// The plot's frame lies where its layout puts it: all sizes follow from the height of the texts, and that
// from the size of the window; from left to right it takes the range of x.
void CheckFrame(HWND graph) {
    std::array<double, 2> range{};
    for (const GraphCall& call : graphreader::ReadDrawing(graph)) {
        if (!call.isMethod || call.dispatchId != kSetRanges) continue;
        range = {std::get<double>(call.values.at(0)), std::get<double>(call.values.at(1))};
    }
    std::array<GraphPoint, 2> sides{GraphPoint{range[0], {}}, GraphPoint{range[1], {}}};
    for (GraphPoint& side : sides) {
        Check(SendMessageA(graph, kGraphPointOf, token::Get(), reinterpret_cast<LPARAM>(&side)) == TRUE,
              "the plot says where its range begins and ends");
    }
    const SIZE size = ClientSize(graph);
    const double em = std::clamp(std::min(size.cx / 52.0, size.cy / 26.0), kLeastText, kMostText);
    const long left = sides[0].place.x, right = sides[1].place.x;
    const long top = std::lround(em * 2.9), bottom = std::lround(size.cy - em * 4.2);
    const Pixels pixels(graph);
    for (const long x : {left, right})
        Check(pixels.At(x, top + 2) == kFrame, "the frame's side at " + std::to_string(x));
    for (const long y : {top, bottom})
        Check(pixels.At(left + 2, y) == kFrame, "the frame's line at " + std::to_string(y));
    Check(pixels.At(left + 1, top + 1) == kWhite && pixels.At(left - 1, top + 1) == kWhite,
          "the frame's lines are one pixel wide");
    Check(pixels.At(0, 0) == kWhite && pixels.At(size.cx - 1, size.cy - 1) == kWhite,
          "the window is drawn to its edges");
}

}  // namespace

void TestDrawing(const Words& words) {
    token::Publish();
    const Module module = LoadModule();
    token::Withdraw();
    const HostWindow host;
    const WindowColour yellow(RGB(255, 255, 128));
    int cases = 0, studies = 0;
    Visits visits([&](HWND dialog) {
        if (const HWND grid = GetDlgItem(dialog, IDC_CASE_GRID)) {
            ++cases;
            CheckCells(grid, "load cases");
            Cancel(dialog);
        } else if (const HWND graph = GetDlgItem(dialog, IDC_STUDY_GRAPH)) {
            ++studies;
            CheckCells(GetDlgItem(dialog, IDC_STUDY_GRID), "study");
            CheckFrame(graph);
            Cancel(dialog);
        } else {
            Press(dialog, IDC_CUSTOM_CASES);
            Press(dialog, IDC_CHOOSE_CASES);
            Press(dialog, IDC_EMBEDMENT);
            Press(dialog, kClose);
        }
    });
    module.launch(2, words.at(0).c_str(), "4.17", "", "", "");
    Check(cases == 1 && studies == 1, "both dialogs opened");
}

}  // namespace lumerin
