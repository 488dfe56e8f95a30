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

// The interface of a grid for the headless backend, which has no type for cells. The grid attaches its peer
// to the record of its control when the dialog binds it, and the driver types and reads through the peer. The
// grid owns the peer and outlives the run of its dialog.
class GridPeer {
  public:
    virtual ~GridPeer() = default;

    // Puts the focus on the cell and types the text and a Return, key by key. False: there is no such cell.
    virtual bool TypeCell(int row, int column, const std::string& text) = 0;
    // A character or a key of the keyboard while the grid or its editor has the focus. False: the grid leaves
    // the key to the dialog.
    virtual void TypeChar(unsigned character, KeyState keys) = 0;
    virtual bool PressKey(unsigned key, KeyState keys) = 0;
    // Acts with the mouse. False: the place does not exist or is not visible, or the bar has nothing to
    // scroll.
    virtual bool Mouse(const MouseAction& action) = 0;
    // Removes the title tip, as any key does, whichever control has the focus.
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
