// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/Backend.h"
#include "framework/ControlList.h"
#include "framework/GridView.h"
#include "framework/Keys.h"
#include "framework/MouseAction.h"

namespace lumerin {

// What a grid shows to the headless backend, which knows no cells: the grid attaches its peer to the record
// of its control when the dialog binds it, and the driver types and reads through the peer. The peer belongs
// to the grid, which outlives the run of its dialog.
class GridPeer {
  public:
    virtual ~GridPeer() = default;

    // Puts the focus on the cell and types the text and a Return, by the keys that a person would press.
    // False: there is no such cell.
    virtual bool TypeCell(int row, int column, const std::string& text) = 0;
    // A character or a key of the keyboard while the grid or its editor has the focus. A key that the grid
    // leaves to the dialog gives false.
    virtual void TypeChar(unsigned character, KeyState keys) = 0;
    virtual bool PressKey(unsigned key, KeyState keys) = 0;
    // The mouse. False: the place is not there or not visible, or the bar has nothing to scroll.
    virtual bool Mouse(const MouseAction& action) = 0;
    // Takes the title tip away, as any key does, wherever the focus is.
    virtual void EndTip() = 0;
    virtual void GainFocus() = 0;
    // The focus leaves the grid for another control; an open editor ends.
    virtual void LoseFocus() = 0;
    virtual GridView View() const = 0;

    virtual int RowCount() const = 0;
    virtual std::vector<std::string> RowTexts(int row) const = 0;
};

namespace headless {

void AttachGrid(WindowHandle window, GridPeer& peer);
// The line of the control list that the window was made from.
const ControlSpec& SpecOf(WindowHandle window);

}  // namespace headless

}  // namespace lumerin
