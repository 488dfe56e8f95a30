// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "grid/Canvas.h"
#include "grid/GridTypes.h"
#include "grid/InPlaceEdit.h"

namespace lumerin {

class CGridCtrl;

// The position of a scroll bar, in rows or columns.
struct ScrollPlace {
    int count = 0, page = 0, position = 0;
    bool operator==(const ScrollPlace&) const = default;
};

// What the grid needs of its window. It is made by the backend when a dialog binds the grid to a control; a
// grid that no window was made for yet has one that does nothing.
class GridHost {
  public:
    virtual ~GridHost() = default;

    virtual GridSize ClientSize() const { return {}; }
    virtual std::string WindowText() const { return {}; }
    virtual void Invalidate(const GridRect&) {}
    virtual void InvalidateAll() {}
    // A bar that has nothing to scroll is hidden, unless it is forced.
    virtual void SetScrollBar(bool /*vertical*/, const ScrollPlace&) {}
    virtual void ForceScrollBar(bool /*vertical*/, bool /*forced*/) {}

    virtual void TakeFocus() {}
    // The focus goes to the dialog's next or previous control.
    virtual void LeaveByTab(bool /*backwards*/) {}
    // While captured, all mouse events come here and a timer ticks.
    virtual void CaptureMouse(bool /*captured*/) {}

    virtual void SetClipboard(const std::string&) {}
    virtual std::string Clipboard() const { return {}; }  // empty: no text on it

    // Makes a window at the rectangle for the editor, keeps both, and starts the editor. False: no window
    // could be made, and the editor was destroyed.
    virtual bool OpenEditor(std::unique_ptr<CInPlaceEdit>, const GridRect&) { return false; }
    virtual void ShowTip(const GridRect&, const std::string&, const FontRecord&) {}
    virtual void HideTip() {}
};

// The platform refused the grid its window class.
class CResourceException : public std::runtime_error {
  public:
    CResourceException() : std::runtime_error("the grid's window class could not be registered") {}
};

namespace gridplatform {

// Binds the grid to the window of its control; called by CGridCtrl::OnAttach.
std::unique_ptr<GridHost> MakeHost(CGridCtrl& grid);
// Registers the window class "MFCGridCtrl" and prepares the clipboard, once a module. Throws
// CResourceException.
void PrepareWindowClass();

}  // namespace gridplatform

}  // namespace lumerin
