#pragma once

#include <string>

#include "framework/Window.h"
#include "grid/GridTypes.h"

class GridHost;

// A tip over a cell whose text does not fit. It shows the whole text in the cell's place and goes away on the
// next mouse button or key.
class CTitleTip : public CWnd {
  public:
    static const CRuntimeClass classCTitleTip;
    const CRuntimeClass& GetRuntimeClass() const override { return classCTitleTip; }

    // Whether a text of that width is cut off in a cell of that width with that margin on either side.
    static bool IsCutOff(int textWidth, int cellWidth, int margin) {
        return textWidth > cellWidth - 2 * margin;
    }

    void Show(GridHost& host, CCellID cell, const GridRect& cellRect, const std::string& text,
              const FontRecord& font, int margin);
    void Hide(GridHost& host);

    // A mouse button over the tip at a time in milliseconds. True: it is the second of a double click, which
    // belongs to the cell below.
    bool OnButton(GridHost& host, unsigned time);

    bool IsShown() const { return m_Cell.IsValid(); }
    CCellID Cell() const { return m_Cell; }

  private:
    CCellID m_Cell;
    unsigned m_nLastClick = 0;
    bool m_bClicked = false;
};

inline const CRuntimeClass CTitleTip::classCTitleTip{"CTitleTip", &CWnd::classCWnd};
