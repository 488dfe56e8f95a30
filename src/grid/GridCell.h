// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "framework/Object.h"
#include "grid/Canvas.h"
#include "grid/GridTypes.h"

namespace lumerin {

class CGridCtrl;
class CGridDefaultCell;
class CInPlaceEdit;

// Bits of a cell's state. The fixed bits select the default cell; the grid maintains them.
enum CellStateBits : unsigned {
    kCellFocus = 1,
    kCellSelected = 2,
    kCellHighlighted = 4,
    kCellReadOnly = 8,
    kCellFixed = 16,
    kCellFixedRow = 32,
    kCellFixedColumn = 64,
    kCellChanged = 128,
};

inline constexpr unsigned kDefaultFormat = 0xffffffff;  // the default cell's format

// The interface of a cell for the grid. A property that a class does not store has its initial value, and
// setting it does nothing.
class CGridCellBase : public CObject {
  public:
    static const CRuntimeClass classCGridCellBase;
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridCellBase; }

    virtual void SetText(const std::string&) {}
    virtual void SetImage(int) {}
    virtual void SetUserValue(std::int32_t) {}
    virtual void SetState(unsigned state) { m_nState = state; }
    virtual void SetFormat(unsigned) {}
    virtual void SetTextColour(Colour) {}
    virtual void SetBackground(Colour) {}
    virtual void SetFont(const FontRecord*) {}  // null: the default cell's font
    virtual void SetMargin(int) {}
    virtual void SetGrid(CGridCtrl*) {}

    virtual std::string GetText() const { return {}; }
    virtual std::string GetTipText() const { return GetText(); }
    virtual int GetImage() const { return -1; }
    virtual std::int32_t GetUserValue() const { return 0; }
    virtual unsigned GetState() const { return m_nState; }
    virtual unsigned GetFormat() const { return 0; }
    virtual Colour GetTextColour() const { return kDefaultColour; }
    virtual Colour GetBackground() const { return kDefaultColour; }
    virtual const FontRecord& GetFont() const;
    virtual CGridCtrl* GetGrid() const { return nullptr; }
    virtual CInPlaceEdit* GetEditor() const { return nullptr; }
    virtual int GetMargin() const { return 0; }

    virtual bool IsDefaultFont() const { return true; }
    virtual bool IsEditing() const { return false; }
    virtual bool IsFocused() const { return (m_nState & kCellFocus) != 0; }
    virtual bool IsFixed() const { return (m_nState & kCellFixed) != 0; }
    virtual bool IsFixedColumn() const { return (m_nState & kCellFixedColumn) != 0; }
    virtual bool IsFixedRow() const { return (m_nState & kCellFixedRow) != 0; }
    virtual bool IsSelected() const { return (m_nState & kCellSelected) != 0; }
    virtual bool IsReadOnly() const { return (m_nState & kCellReadOnly) != 0; }
    virtual bool IsChanged() const { return (m_nState & kCellChanged) != 0; }
    virtual bool IsHighlighted() const { return (m_nState & kCellHighlighted) != 0; }

    virtual void CopyFrom(const CGridCellBase& other);
    virtual void Reset() { m_nState = 0; }
    virtual void Draw(CDC& dc, const GridRect& rect) const;

    // The size that the text needs, margins included.
    virtual GridSize Extent() const;
    int TextWidth() const;

    // Opens the cell's editor at the rectangle. `key` started the edit, kKeyMouse for the mouse.
    virtual bool Edit(int row, int column, const GridRect& rect, GridPoint point, int id, unsigned key);
    virtual void EndEdit() {}
    // Whether the text may become the cell's.
    virtual bool AcceptText(const std::string&) const { return true; }

    virtual void OnClick(GridPoint) {}
    virtual void OnDoubleClick(GridPoint) {}

  protected:
    unsigned m_nState = 0;
};

class CGridCell : public CGridCellBase {
  public:
    static const CRuntimeClass classCGridCell;
    static std::unique_ptr<CObject> Create() { return std::make_unique<CGridCell>(); }
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridCell; }

    void SetText(const std::string& text) override { m_sText = text; }
    void SetImage(int image) override { m_nImage = image; }
    void SetUserValue(std::int32_t value) override { m_nUserValue = value; }
    void SetFormat(unsigned format) override { m_nFormat = format; }
    void SetTextColour(Colour colour) override { m_crText = colour; }
    void SetBackground(Colour colour) override { m_crBack = colour; }
    void SetFont(const FontRecord* font) override;
    void SetMargin(int margin) override { m_nMargin = margin; }
    void SetGrid(CGridCtrl* grid) override { m_pGrid = grid; }

    std::string GetText() const override { return m_sText; }
    int GetImage() const override { return m_nImage; }
    std::int32_t GetUserValue() const override { return m_nUserValue; }
    unsigned GetFormat() const override;
    Colour GetTextColour() const override;
    Colour GetBackground() const override;
    const FontRecord& GetFont() const override;
    CGridCtrl* GetGrid() const override { return m_pGrid; }
    CInPlaceEdit* GetEditor() const override { return m_pEditor; }
    int GetMargin() const override;

    bool IsDefaultFont() const override { return m_pFont == nullptr; }
    bool IsEditing() const override { return m_bEditing; }
    void CopyFrom(const CGridCellBase& other) override;
    void Reset() override;
    bool Edit(int row, int column, const GridRect& rect, GridPoint point, int id, unsigned key) override;
    void EndEdit() override;

  protected:
    const CGridDefaultCell* DefaultCell() const;
    // Marks the cell as being edited and passes ownership of the editor to the grid's window.
    bool OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect);

    std::string m_sText;
    std::int32_t m_nUserValue = 0;
    int m_nImage = -1;
    unsigned m_nFormat = kDefaultFormat;
    Colour m_crText = kDefaultColour, m_crBack = kDefaultColour;
    std::unique_ptr<FontRecord> m_pFont;  // null: the default cell's
    int m_nMargin = -1;
    bool m_bEditing = false;
    CGridCtrl* m_pGrid = nullptr;
    CInPlaceEdit* m_pEditor = nullptr;  // the open editor, which belongs to its window
};

// The values that cells use when they have none of their own.
class CGridDefaultCell : public CGridCell {
  public:
    static const CRuntimeClass classCGridDefaultCell;
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridDefaultCell; }
    CGridDefaultCell();

    void SetFont(const FontRecord* font) override;
    void SetState(unsigned) override {}  // a default cell has no state
    const FontRecord& GetFont() const override { return m_font; }
    unsigned GetFormat() const override { return m_nFormat; }
    Colour GetTextColour() const override { return m_crText; }
    Colour GetBackground() const override { return m_crBack; }
    int GetMargin() const override { return m_nMargin; }
    bool IsDefaultFont() const override { return false; }

    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }

  private:
    void Measure();
    FontRecord m_font;
    int m_nWidth = 0, m_nHeight = 0;  // pixels
};

inline const CRuntimeClass CGridCellBase::classCGridCellBase{"CGridCellBase", &CObject::classCObject};
inline const CRuntimeClass CGridCell::classCGridCell{"CGridCell", &CGridCellBase::classCGridCellBase,
                                                     &CGridCell::Create};
inline const CRuntimeClass CGridDefaultCell::classCGridDefaultCell{"CGridDefaultCell",
                                                                   &CGridCell::classCGridCell};

}  // namespace lumerin
