// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "framework/Window.h"
#include "grid/GridCell.h"
#include "grid/GridHost.h"
#include "grid/TitleTip.h"

namespace lumerin {

// The table control of the two small dialogs: a store of cell objects with a focus cell and a selection,
// keys, mouse, clipboard and editors. Its window scrolls by whole rows and columns. Setters show no message:
// for a cell out of range they return false and change nothing.
class CGridCtrl : public CWnd {
  public:
    static const CRuntimeClass classCGridCtrl;
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridCtrl; }

    CGridCtrl();
    ~CGridCtrl() override;
    void OnAttach() override;

    // ---- store (GridStore.cpp)
    void ClearGrid();
    bool SetRowCount(int rows);
    bool SetColumnCount(int columns);
    bool SetFixedRowCount(int rows);
    bool SetFixedColumnCount(int columns);
    int GetRowCount() const { return m_nRows; }
    int GetColumnCount() const { return m_nCols; }
    int GetFixedRowCount() const { return m_nFixedRows; }
    int GetFixedColumnCount() const { return m_nFixedCols; }
    // Pixels; 0: the keyboard skips the row or column.
    bool SetRowHeight(int row, int pixels);
    bool SetColumnWidth(int column, int pixels);
    // Throw std::invalid_argument out of range.
    int GetRowHeight(int row) const;
    int GetColumnWidth(int column) const;
    bool IsCellInRange(int row, int column) const {
        return row >= 0 && row < m_nRows && column >= 0 && column < m_nCols;
    }
    CGridCellBase* GetCell(int row, int column);  // null out of range
    const CGridCellBase* GetCell(int row, int column) const;
    CGridDefaultCell& DefaultCell(bool fixedRow, bool fixedColumn) {
        return m_DefaultCells[(fixedRow ? 1u : 0u) + (fixedColumn ? 2u : 0u)];
    }

    // ---- attributes of a cell (GridStore.cpp)
    bool SetCellText(int row, int column, const std::string& text);
    std::string GetCellText(int row, int column) const;
    // The class must derive from CGridCellBase and make objects; the new cell gets the content.
    bool SetCellClass(int row, int column, const CRuntimeClass& cellClass);
    bool SetCellBackground(int row, int column, Colour colour);
    bool SetCellState(int row, int column, unsigned state);
    unsigned GetCellState(int row, int column) const;
    bool SetCellFormat(int row, int column, unsigned format);
    bool IsCellReadOnly(int row, int column) const;

    // ---- settings
    void SetEditable(bool editable) { m_bEditable = editable; }
    bool IsEditable() const { return m_bEditable; }
    void SetBackground(Colour colour) { m_crBackground = colour; }
    Colour Background() const { return m_crBackground; }
    void SetRowsResizable(bool on) { m_bRowsResizable = on; }
    void SetColumnsResizable(bool on) { m_bColumnsResizable = on; }
    void SetFixedRowClickSelects(bool on) { m_bFixedRowClickSelects = on; }
    void SetFixedColumnClickSelects(bool on) { m_bFixedColumnClickSelects = on; }
    void SetSelectable(bool on) { m_bSelectable = on; }
    void SetTabMoves(bool on) { m_bTabMoves = on; }
    bool TabMoves() const { return m_bTabMoves; }
    void SetNoStore(bool on) { m_bNoStore = on; }
    void SetRedraw(bool on);
    void EnableScrollBarCtrl(bool vertical, bool enable = true);
    GridHost& Host() { return *m_pHost; }
    // Tests and backends give the grid another window.
    void SetHost(std::unique_ptr<GridHost> host);

    // ---- focus and selection (GridFocus.cpp, GridSelection.cpp)
    bool MoveFocusCell(int row, int column);
    CCellID FocusCell() const { return m_FocusCell; }
    // Replaces the selection by the rectangle, with `select` false by nothing. `force` redraws all of it.
    void SelectRange(int firstRow, int firstColumn, int lastRow, int lastColumn, bool force, bool select);
    bool IsCellSelected(int row, int column) const;
    std::vector<CCellID> SelectedCells() const;  // row by row
    virtual void ClearSelection();

    // ---- clipboard (GridClipboard.cpp)
    virtual std::string SelectionToClipboardData() const;
    virtual bool PasteAt(int row, int column, const std::string& data);
    virtual void OnCut();
    virtual void OnCopy();
    virtual void OnPaste();
    virtual void OnSelectAll();

    // ---- printing (GridPrint.cpp)
    void SetPrintTexts(const std::string& header, const std::string& heading, const std::string& footer);
    virtual void PrintBegin(CDC& dc, GridSize page);
    virtual void PrintPage(CDC& dc, int page);  // from 1
    virtual void PrintEnd();
    int PrintPageCount() const;
    int PrintCharacterWidth() const { return m_nPrintCharWidth; }
    const FontRecord& PrintFont() const { return m_PrintFont; }

    // ---- events of the window (GridKeyboard.cpp, GridMouse.cpp). True: the grid used it.
    bool OnKeyDown(unsigned key, KeyState keys);
    bool OnChar(unsigned character, KeyState keys);
    // `time` in milliseconds; it counts beside a title tip alone.
    void OnLeftDown(GridPoint point, KeyState keys, unsigned time = 0) { Press(point, keys, time, false); }
    void OnMouseMove(GridPoint point, bool leftDown);
    void OnLeftUp(GridPoint point);
    void OnDoubleClick(GridPoint point);
    // The grid has lost the mouse: the action of the mouse ends, and its effects so far remain.
    void OnCaptureLost();
    void OnDragTimer();
    void OnMouseWheel(int steps);  // above 0: towards the first row
    void OnScroll(bool vertical, int position);
    void OnSize();
    void OnGotFocus();
    void OnNotify(const EditNotice& notice);
    // The mouse on the title tip, with points in the grid's window: a press counts for the cell below.
    void OnTipLeftDown(GridPoint point, KeyState keys, unsigned time) { Press(point, keys, time, true); }
    void OnTipMove(GridPoint point) { m_MousePoint = point; }
    void OnTipLeave() { m_TitleTip.Hide(*m_pHost); }
    CCellID TipCell() const { return m_TitleTip.Cell(); }
    // The tip comes back when the mouse moves.
    void HideTip();

    // ---- layout and drawing (GridLayout.cpp, GridDraw.cpp)
    bool CellRect(int row, int column, GridRect& rect) const;  // false: scrolled out, or hidden
    CCellID CellAt(GridPoint point) const;
    bool ScrollCellIntoView(int row, int column);
    CCellID FirstVisibleCell() const { return {TopRow(), LeftColumn()}; }
    int PageRows() const;
    // Brings the scroll bars up to date after sizes have changed; before painting and after each event.
    void UpdateScrollBars();
    void Paint(CDC& target, const GridRect& area);
    virtual void OnDraw(CDC& dc);

    // ---- editing (GridEdit.cpp)
    virtual bool BeginCellEdit(int row, int column, GridPoint point, unsigned key);
    virtual void FinishCellEdit(int row, int column, const std::string& text);
    // Whether the cell takes the text; true if the cell is not there.
    virtual bool AcceptEdit(int row, int column, const std::string& text) const;
    CInPlaceEdit* OpenEditor() const;  // null: no cell is being edited
    // Ends an open edit, as a loss of focus does.
    void EndOpenEdit();
    // The editor could not return its text; the cell keeps the old one.
    void AbandonEdit();
    int EditorTextWidth(int row, int column, const std::string& text) const;

  protected:
    virtual void PrintHeader(CDC& dc, int page);
    virtual void PrintColumnHeadings(CDC& dc);
    virtual void PrintRowHeadings(CDC& dc, int firstRow, int lastRow);
    virtual void PrintCells(CDC& dc, int firstRow, int lastRow);
    virtual void PrintFooter(CDC& dc, int page);
    virtual void ClickOnHeadingRow(CCellID cell);
    virtual void ClickOnHeadingColumn(CCellID cell);
    // The only places where cell objects are made and released.
    virtual std::unique_ptr<CGridCellBase> MakeCell(int row, int column);
    virtual void FreeCell(int row, int column);

  private:
    enum class MouseMode { none, selecting, sizingColumn, sizingRow };
    using CellRow = std::vector<std::unique_ptr<CGridCellBase>>;
    static constexpr GridPoint kNoPoint{-30000, -30000};

    void MarkFixed(int row, int column);
    void RemarkFixed();
    void ForgetCellsOutside();
    void RedrawCell(int row, int column);
    void RedrawAll();
    void LayoutChanged();

    int NextRow(int row, int step) const;  // the next visible normal row; -1: none
    int NextColumn(int column, int step) const;
    void GoTo(CCellID cell, bool extend);
    void Choose(CCellID cell, bool extend);
    bool MoveByTab(bool backwards);
    CCellID TabTarget(bool backwards) const;  // none: the dialog's next control
    bool MoveByKey(unsigned key, KeyState keys);
    int PageTarget(int direction) const;
    CCellID FirstCell() const;
    bool OnCommandKey(unsigned key, KeyState keys);
    void DeleteFocusText();

    void SetSelected(int row, int column, bool selected);
    void ExtendSelectionTo(CCellID cell);

    int TopRow() const;
    int LeftColumn() const;
    int FixedHeight() const;
    int FixedWidth() const;
    int LastTopRow() const;
    int LastLeftColumn() const;
    void SetTop(int row, int column);
    void DrawRow(CDC& dc, int row, int top, int clientWidth);
    void DrawCell(CDC& dc, int row, int column, const GridRect& rect);
    GridRect WithoutLines(GridRect rect) const;
    int RowAt(int y) const;
    int ColumnAt(int x) const;
    void Press(GridPoint point, KeyState keys, unsigned time, bool onTip);
    void TakeFocusByMouse();
    void EndMouseMode();
    bool BeginResize(GridPoint point);
    void ContinueResize(GridPoint point);
    void ShowTipOf(CCellID cell);
    void PrintRow(CDC& dc, int row, int firstColumn, int lastColumn, int top);
    int PrintRowsPerPage() const;

    std::string m_sPrintHeader, m_sPrintHeading, m_sPrintFooter;
    Colour m_crBackground, m_crGridLines, m_crWindowText, m_crWindow, m_crFace, m_crShadow;
    bool m_bNoStore = false;
    int m_nLineMode = 3;  // 1 horizontal, 2 vertical lines, 3 both
    bool m_bEditable = false;
    bool m_bRedraw = true, m_bSelectable = true;
    bool m_bTabMoves = true;
    bool m_bFixedRowClickSelects = true, m_bFixedColumnClickSelects = true;
    int m_nRows = 0, m_nFixedRows = 0, m_nCols = 0, m_nFixedCols = 0;
    std::vector<unsigned> m_RowHeights, m_ColumnWidths;
    std::array<CGridDefaultCell, 4> m_DefaultCells;  // normal, fixed row, fixed column, corner
    FontRecord m_PrintFont;
    std::vector<CellRow> m_CellRows;
    CCellID m_FocusCell, m_FirstVisibleCell, m_SelectionStart, m_SelectionEnd;
    bool m_bColumnsResizable = true, m_bRowsResizable = true;
    std::map<std::uint32_t, CCellID> m_Selection, m_DragStartSelection;
    CTitleTip m_TitleTip;
    int m_nPrintCharWidth = 0, m_nPrintRowHeight = 0;
    GridSize m_PrintPage;

    MouseMode m_MouseMode = MouseMode::none;
    GridPoint m_MousePoint = kNoPoint;
    GridPoint m_TipEndPoint = kNoPoint;  // where the mouse was when a tip ended
    bool m_bTakingFocus = false;         // a click brings the focus
    int m_nResized = -1;                 // the row or column whose border is being dragged
    int m_nResizeOrigin = 0;             // its near edge
    bool m_bLayoutDirty = false;
    std::array<ScrollPlace, 2> m_Bars;  // horizontal, vertical
    CCellID m_EditCell;                 // the cell with the open editor
    WindowHandle m_hAttached = nullptr;
    std::unique_ptr<GridHost> m_pHost;
};

inline const CRuntimeClass CGridCtrl::classCGridCtrl{"CGridCtrl", &CWnd::classCWnd};

}  // namespace lumerin
