#include "grid/TitleTip.h"

#include "grid/GridHost.h"

void CTitleTip::Show(GridHost& host, CCellID cell, const GridRect& cellRect, const std::string& text,
                     const FontRecord& font, int margin) {
    if (cell == m_Cell) return;
    m_Cell = cell;
    const int width = gridplatform::MeasureText(text, font).width + 2 * margin;
    host.ShowTip({cellRect.left, cellRect.top, cellRect.left + width, cellRect.bottom}, text, font);
}

void CTitleTip::Hide(GridHost& host) {
    if (!IsShown()) return;
    m_Cell = {};
    host.HideTip();
}

bool CTitleTip::OnButton(GridHost& host, unsigned time) {
    // The difference is right across the wrap of the clock.
    const bool second = m_bClicked && time - m_nLastClick <= gridplatform::DoubleClickTime();
    m_nLastClick = time;
    m_bClicked = !second;
    Hide(host);
    return second;
}
