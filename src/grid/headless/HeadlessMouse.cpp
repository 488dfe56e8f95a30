// SPDX-License-Identifier: MIT
#include "grid/headless/HeadlessMouse.h"

#include "grid/GridCtrl.h"
#include "grid/headless/HeadlessGrid.h"

namespace lumerin {

namespace {

constexpr int kOutside = 12;        // pixels from the grid's window to a place beside it
constexpr int kInside = 3;          // pixels from the last row into the area below it
constexpr int kShake = 2;           // pixels that a hand moves between two clicks
constexpr unsigned kApart = 10000;  // milliseconds between two actions
constexpr unsigned kSoon = 100;     // and within a double click
constexpr GridPoint kFarAway{-1000, -1000};

bool Covers(GridSize client, GridPoint place) {
    return GridRect{0, 0, client.width, client.height}.Contains(place);
}

}  // namespace

bool HeadlessMouse::FindOnCell(const MouseSpot& spot, GridPoint& place) const {
    GridRect rect;
    if (!m_grid.CellRect(spot.row, spot.column, rect)) return false;
    place = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    if (spot.place == MousePlace::cellRight) place.x = rect.right - 1;
    if (spot.place == MousePlace::cellBottom) place.y = rect.bottom - 1;
    return Covers(m_window.ClientSize(), place);
}

bool HeadlessMouse::FindPlace(const MouseSpot& spot, GridPoint& place) const {
    const GridSize client = m_window.ClientSize();
    place = m_place;
    switch (spot.place) {
        case MousePlace::here:
            return true;
        case MousePlace::away:
            place = kFarAway;
            return true;
        case MousePlace::frame:
            place = {-1, client.height / 2};
            return true;
        case MousePlace::above:
            place.y = -kOutside;
            return true;
        case MousePlace::below:
            place.y = client.height + kOutside;
            return true;
        case MousePlace::left:
            place.x = -kOutside;
            return true;
        case MousePlace::right:
            place.x = client.width + kOutside;
            return true;
        case MousePlace::beside: {
            GridRect rect;
            if (!m_grid.CellRect(m_grid.GetRowCount() - 1, 0, rect)) return false;
            place = {(rect.left + rect.right) / 2, rect.bottom + kInside};
            return Covers(client, place);
        }
        default:
            return FindOnCell(spot, place);
    }
}

HeadlessMouse::Target HeadlessMouse::TargetAt(GridPoint place) const {
    if (m_window.IsCaptured()) return Target::grid;
    if (m_window.TipPlace().Contains(place)) return Target::tip;
    if (!Covers(m_window.ClientSize(), place)) return Target::none;
    const HeadlessEditor* editor = m_window.Editor();
    return editor != nullptr && editor->Place().Contains(place) ? Target::editor : Target::grid;
}

void HeadlessMouse::MoveTo(GridPoint place) {
    if (place == m_place) return;
    const bool wasOnTip = TargetAt(m_place) == Target::tip;
    m_place = place;
    const Target target = TargetAt(place);
    if (target == Target::tip) {
        m_grid.OnTipMove(place);
        return;
    }
    if (wasOnTip) m_grid.OnTipLeave();
    if (target == Target::grid) m_grid.OnMouseMove(place, m_down);
    // A tip that opened under the mouse receives it from now on.
    if (TargetAt(place) == Target::tip) m_grid.OnTipMove(place);
}

// The timer of the drag ticks until it has nothing more to scroll.
void HeadlessMouse::DragOutside() {
    if (!m_window.IsCaptured() || Covers(m_window.ClientSize(), m_place)) return;
    for (CCellID before, now{-2, -2}; before != now;) {
        before = m_grid.FirstVisibleCell();
        m_grid.OnDragTimer();
        now = m_grid.FirstVisibleCell();
    }
}

void HeadlessMouse::Press(KeyState keys, bool soon) {
    m_now += soon ? kSoon : kApart;
    const Target target = TargetAt(m_place);
    const bool isDouble = soon && target == m_pressed;
    m_pressed = isDouble ? Target::none : target;
    m_down = true;
    if (target == Target::tip) {
        m_grid.OnTipLeftDown(m_place, keys, m_now);
        return;
    }
    m_grid.HideTip();
    if (target != Target::grid) return;
    if (isDouble) {
        m_grid.OnDoubleClick(m_place);
    } else {
        m_grid.OnLeftDown(m_place, keys, m_now);
    }
}

void HeadlessMouse::Release() {
    if (!m_down) return;
    m_down = false;
    if (TargetAt(m_place) == Target::grid) m_grid.OnLeftUp(m_place);
}

void HeadlessMouse::PressRight() {
    m_grid.HideTip();
}

bool HeadlessMouse::Scroll(ScrollPart part, int count) {
    for (int i = 0; i < count; ++i) {
        const ScrollPlace& bar = m_window.VerticalBar();
        if (bar.count <= bar.page) return false;
        m_grid.HideTip();
        m_place = kFarAway;
        int position = bar.position;
        switch (part) {
            case ScrollPart::lineUp:
                --position;
                break;
            case ScrollPart::lineDown:
                ++position;
                break;
            case ScrollPart::pageUp:
                position -= bar.page;
                break;
            case ScrollPart::pageDown:
                position += bar.page;
                break;
            case ScrollPart::first:
                position = 0;
                break;
            case ScrollPart::last:
                position = bar.count - 1;
                break;
        }
        m_grid.OnScroll(true, position);
    }
    return true;
}

bool HeadlessMouse::Play(const MouseAction& action) {
    // A real window has been painted by now, and its bars with it.
    m_grid.UpdateScrollBars();
    switch (action.deed) {
        case MouseDeed::wheel:
            if (TargetAt(m_place) != Target::none) m_grid.OnMouseWheel(action.count);
            return true;
        case MouseDeed::scroll:
            return Scroll(action.part, action.count);
        case MouseDeed::lose:
        case MouseDeed::cancel:
            m_grid.OnCaptureLost();
            return true;
        default:
            break;
    }
    GridPoint place;
    if (!FindPlace(action.spot, place)) return false;
    MoveTo(place);
    switch (action.deed) {
        case MouseDeed::move:
            DragOutside();
            break;
        case MouseDeed::press:
            Press(action.keys, false);
            break;
        case MouseDeed::release:
            Release();
            break;
        case MouseDeed::rightClick:
            PressRight();
            break;
        default:
            Press(action.keys, false);
            Release();
            if (action.deed == MouseDeed::click) break;
            if (action.deed == MouseDeed::shakyDouble) MoveTo({place.x + kShake, place.y});
            Press(action.keys, true);
            Release();
            break;
    }
    return true;
}

}  // namespace lumerin
