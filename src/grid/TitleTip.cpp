// SPDX-License-Identifier: MIT
#include "grid/TitleTip.h"

#include "grid/GridHost.h"

namespace lumerin {

void CTitleTip::Show(GridHost& host, CCellID cell, const GridRect& cellRect, const std::string& text,
                     const FontRecord& font, int margin) {
    if (cell == m_Cell && text == m_sText) return;
    m_Cell = cell;
    m_sText = text;
    const int width = gridplatform::MeasureText(text, font).width + 2 * margin;
    host.ShowTip({cellRect.left, cellRect.top, cellRect.left + width, cellRect.bottom}, text, font);
}

void CTitleTip::Hide(GridHost& host) {
    if (!IsShown()) return;
    m_Cell = {};
    host.HideTip();
}

bool CTitleTip::IsSecondPress(CCellID cell, unsigned time, bool onTip) {
    // The difference is also right when the clock has wrapped.
    const bool inTime = time - m_nPressTime <= gridplatform::DoubleClickTime();
    const bool second = cell.IsValid() && cell == m_PressedCell && inTime && (onTip || m_bPressedTip);
    m_PressedCell = second ? CCellID{} : cell;
    m_nPressTime = time;
    m_bPressedTip = onTip;
    return second;
}

}  // namespace lumerin
