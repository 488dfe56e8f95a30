// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Window.h"
#include "grid/GridTypes.h"

namespace lumerin {

class GridHost;

// A tip over a cell whose text does not fit. It shows the whole text in the cell's place and goes away on the
// next mouse button or key.
class CTitleTip : public CWnd {
  public:
    static const CRuntimeClass classCTitleTip;
    const CRuntimeClass& GetRuntimeClass() const override { return classCTitleTip; }

    // Whether a text of that width is cut off in a cell that is drawn so wide with that margin on either
    // side.
    static bool IsCutOff(int textWidth, int drawnWidth, int margin) {
        return textWidth > drawnWidth - 2 * margin;
    }

    // A tip that shows the same text of the same cell already stays as it is.
    void Show(GridHost& host, CCellID cell, const GridRect& cellRect, const std::string& text,
              const FontRecord& font, int margin);
    void Hide(GridHost& host);

    // The left button went down over a cell at a time in milliseconds, on the tip or on the grid itself.
    // True: it is the second press of a double click. When one of the presses hit the tip, which the first
    // press removes, the platform reports no double click. Two presses on the grid itself are left to the
    // platform.
    bool IsSecondPress(CCellID cell, unsigned time, bool onTip);
    // The next press is a first one.
    void ForgetPress() { m_PressedCell = {}; }

    bool IsShown() const { return m_Cell.IsValid(); }
    CCellID Cell() const { return m_Cell; }

  private:
    CCellID m_Cell;
    std::string m_sText;
    CCellID m_PressedCell;  // of the last first press
    unsigned m_nPressTime = 0;
    bool m_bPressedTip = false;
};

inline const CRuntimeClass CTitleTip::classCTitleTip{"CTitleTip", &CWnd::classCWnd};

}  // namespace lumerin
