// SPDX-License-Identifier: MIT
#include "host/Mouse.h"

#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "grid/win32/GridMessages.h"
#include "host/GridReader.h"
#include "host/Keyboard.h"

namespace lumerin {

namespace {

constexpr int kOutside = 12;     // pixels from the grid's window to a place beside it
constexpr int kInside = 3;       // pixels from the last row into the area below it
constexpr int kShake = 2;        // pixels that the mouse moves between two clicks
constexpr POINT kFarAway{1, 1};  // on the screen
// Pixels between two presses that cannot be a double click: they are on different cells.
constexpr int kNearX = 200, kNearY = 32;
constexpr DWORD kStillTime = 400;     // milliseconds without a scroll that end a drag past the edge
constexpr DWORD kLeaveTime = 1500;    // milliseconds after which a tip counts as one that stays
constexpr DWORD kDoubleMargin = 100;  // milliseconds beyond the double click time

void SendButton(DWORD event, int data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = event;
    input.mi.mouseData = static_cast<DWORD>(data);
    SendInput(1, &input, sizeof input);
}

POINT Pointer() {
    POINT place{};
    GetCursorPos(&place);
    return place;
}

// A place on a cell, in the client area. False: not visible.
bool FindOnCell(HWND grid, const MouseSpot& spot, POINT& place) {
    RECT area{}, client{};
    if (!gridreader::FindCell(grid, spot.row, spot.column, area)) return false;
    GetClientRect(grid, &client);
    place = {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    if (spot.place == MousePlace::cellRight) place.x = area.right - 1;
    if (spot.place == MousePlace::cellBottom) place.y = area.bottom - 1;
    return PtInRect(&client, place) != FALSE;
}

bool FindBelowRows(HWND grid, POINT& place) {
    RECT area{}, client{};
    const int last = gridreader::RowCount(grid) - 1;
    if (!gridreader::FindCell(grid, last, 0, area)) return false;
    GetClientRect(grid, &client);
    place = {(area.left + area.right) / 2, area.bottom + kInside};
    return PtInRect(&client, place) != FALSE;
}

// The place on the screen. False: not visible.
bool FindPlace(HWND grid, const MouseSpot& spot, POINT& place) {
    RECT window{};
    GetWindowRect(grid, &window);
    place = Pointer();
    switch (spot.place) {
        case MousePlace::here:
            return true;
        case MousePlace::away:
            place = kFarAway;
            return true;
        case MousePlace::frame:
            place = {window.left, (window.top + window.bottom) / 2};
            return true;
        case MousePlace::above:
            place.y = window.top - kOutside;
            return true;
        case MousePlace::below:
            place.y = window.bottom + kOutside;
            return true;
        case MousePlace::left:
            place.x = window.left - kOutside;
            return true;
        case MousePlace::right:
            place.x = window.right + kOutside;
            return true;
        case MousePlace::beside:
            if (!FindBelowRows(grid, place)) return false;
            break;
        default:
            if (!FindOnCell(grid, spot, place)) return false;
            break;
    }
    ClientToScreen(grid, &place);
    return true;
}

bool IsOutside(MousePlace place) {
    return place == MousePlace::above || place == MousePlace::below || place == MousePlace::left ||
           place == MousePlace::right;
}

bool LeavesCells(MousePlace place) {
    return IsOutside(place) || place == MousePlace::away || place == MousePlace::frame;
}

bool SameSelection(const GridView& a, const GridView& b) {
    return a.top == b.top && a.left == b.left && a.bottom == b.bottom && a.right == b.right &&
           a.selected == b.selected;
}

bool ReadBar(HWND grid, SCROLLBARINFO& bar) {
    bar = {};
    bar.cbSize = sizeof bar;
    if (!GetScrollBarInfo(grid, OBJID_VSCROLL, &bar)) return false;
    return (bar.rgstate[0] & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_UNAVAILABLE)) == 0;
}

POINT PartOfBar(const SCROLLBARINFO& bar, ScrollPart part) {
    const RECT& area = bar.rcScrollBar;
    const int arrow = GetSystemMetrics(SM_CYVSCROLL);  // Wine puts another size into the record
    POINT place{(area.left + area.right) / 2, 0};
    switch (part) {
        case ScrollPart::lineUp:
            place.y = area.top + arrow / 2;
            break;
        case ScrollPart::lineDown:
            place.y = area.bottom - arrow / 2;
            break;
        case ScrollPart::pageUp:
            place.y = area.top + (arrow + bar.xyThumbTop) / 2;
            break;
        case ScrollPart::pageDown:
            place.y = (area.top + bar.xyThumbBottom + area.bottom - arrow) / 2;
            break;
        default:
            place.y = area.top + (bar.xyThumbTop + bar.xyThumbBottom) / 2;
            break;
    }
    return place;
}

}  // namespace

void Mouse::Then(std::function<void()> step) {
    m_steps.emplace_back([step = std::move(step)] {
        step();
        return true;
    });
}

void Mouse::ThenWait(std::function<bool()> isOver) {
    m_steps.push_back(std::move(isOver));
}

void Mouse::Step() {
    if (!m_steps.empty() && m_steps.front()()) m_steps.pop_front();
}

void Mouse::MoveTo(POINT place) {
    Then([place] { SetCursorPos(place.x, place.y); });
}

void Mouse::Press(KeyState keys) {
    Then([this, keys] {
        if (keys.control) keyboard::Hold(VK_CONTROL, true);
        if (keys.shift) keyboard::Hold(VK_SHIFT, true);
        SendButton(MOUSEEVENTF_LEFTDOWN);
        m_down = true;
        m_held = keys;
        m_pressTime = GetTickCount();
        m_pressed = Pointer();
    });
}

void Mouse::Release() {
    Then([this] { LetGo(); });
}

void Mouse::LetGo() {
    if (m_down) SendButton(MOUSEEVENTF_LEFTUP);
    if (m_held.shift) keyboard::Hold(VK_SHIFT, false);
    if (m_held.control) keyboard::Hold(VK_CONTROL, false);
    m_down = false;
    m_held = {};
}

// Two presses of the script are two clicks, however fast it is played.
void Mouse::WaitForDoubleClickTime(POINT place) {
    if (std::abs(place.x - m_pressed.x) > kNearX || std::abs(place.y - m_pressed.y) > kNearY) return;
    ThenWait([this] { return GetTickCount() - m_pressTime > GetDoubleClickTime() + kDoubleMargin; });
}

// A machine that is too slow for a double click must not pass for one that sees none.
void Mouse::PressAgain(KeyState keys) {
    Then([this] {
        if (GetTickCount() - m_pressTime >= GetDoubleClickTime()) {
            throw std::runtime_error("the double click took too long");
        }
    });
    Press(keys);
}

void Mouse::WaitForStillness(HWND grid) {
    ThenWait([grid, last = Stillness{gridreader::ReadView(grid), GetTickCount()}]() mutable {
        const GridView view = gridreader::ReadView(grid);
        if (!SameSelection(view, last.view)) last = {view, GetTickCount()};
        return GetTickCount() - last.since > kStillTime;
    });
}

// The platform may take a while to notice that the pointer has left a window.
void Mouse::WaitForTipToGo(HWND grid) {
    ThenWait([grid, since = GetTickCount()] {
        return gridreader::ReadView(grid).tipRow < 0 || GetTickCount() - since > kLeaveTime;
    });
}

bool Mouse::Begin(HWND grid, const MouseAction& action) {
    switch (action.deed) {
        case MouseDeed::lose:
        case MouseDeed::cancel:
            return LoseCapture(grid, action.deed == MouseDeed::cancel);
        case MouseDeed::wheel:
            Then([notches = action.count] { SendButton(MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA); });
            return true;
        case MouseDeed::scroll:
            return BeginScroll(grid, action);
        default:
            return BeginAt(grid, action);
    }
}

bool Mouse::BeginAt(HWND grid, const MouseAction& action) {
    POINT place{};
    if (!FindPlace(grid, action.spot, place)) return false;
    MoveTo(place);
    switch (action.deed) {
        case MouseDeed::move:
            if (m_down && IsOutside(action.spot.place)) WaitForStillness(grid);
            if (!m_down && LeavesCells(action.spot.place)) WaitForTipToGo(grid);
            break;
        case MouseDeed::press:
            WaitForDoubleClickTime(place);
            Press(action.keys);
            break;
        case MouseDeed::release:
            Release();
            break;
        case MouseDeed::rightClick:
            Then([] { SendButton(MOUSEEVENTF_RIGHTDOWN); });
            Then([] { SendButton(MOUSEEVENTF_RIGHTUP); });
            break;
        default:
            WaitForDoubleClickTime(place);
            Press(action.keys);
            Release();
            if (action.deed == MouseDeed::click) break;
            if (action.deed == MouseDeed::shakyDouble) MoveTo({place.x + kShake, place.y});
            PressAgain(action.keys);
            Release();
            break;
    }
    return true;
}

bool Mouse::BeginScroll(HWND grid, const MouseAction& action) {
    SCROLLBARINFO bar{};
    if (!ReadBar(grid, bar)) return false;
    if (action.part == ScrollPart::first || action.part == ScrollPart::last) {
        DrawSlider(grid, action.part == ScrollPart::last);
        return true;
    }
    for (int i = 0; i < action.count; ++i) {
        // The slider moves, and with it the area beside it.
        Then([grid, part = action.part] {
            SCROLLBARINFO now{};
            ReadBar(grid, now);
            const POINT place = PartOfBar(now, part);
            SetCursorPos(place.x, place.y);
            SendButton(MOUSEEVENTF_LEFTDOWN);
            SendButton(MOUSEEVENTF_LEFTUP);
        });
    }
    return true;
}

void Mouse::DrawSlider(HWND grid, bool toEnd) {
    SCROLLBARINFO bar{};
    ReadBar(grid, bar);
    const POINT slider = PartOfBar(bar, ScrollPart::first);
    MoveTo(slider);
    Press({});
    MoveTo({slider.x, toEnd ? bar.rcScrollBar.bottom - 1 : bar.rcScrollBar.top});
    Release();
}

// False: the timer of the drag goes on all the same.
bool Mouse::LoseCapture(HWND grid, bool broken) {
    if (broken) {
        SendMessageA(grid, WM_CANCELMODE, 0, 0);
    } else {
        SetCapture(GetParent(grid));
        ReleaseCapture();
    }
    return KillTimer(grid, kGridDragTimer) == FALSE;
}

}  // namespace lumerin
