// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Window.h"
#include "grid/EditText.h"
#include "grid/GridTypes.h"

namespace lumerin {

class CGridCtrl;

inline constexpr int kEditorId = 8;      // the identifier of the editor as a child of the grid
inline constexpr int kEditEnded = -106;  // the notification code of an edit that ended

// What an editor reports to its grid when it ends.
struct EditNotice {
    int id = 0, code = 0;
    int row = -1, column = -1;
    std::string text;
    unsigned lastKey = 0;  // the key that ended the edit; 0: the focus went elsewhere
    KeyState keys;
};

// The window of an editor: a real edit window on Windows, only a text when there is no screen.
class EditorWindow {
  public:
    virtual ~EditorWindow() = default;
    virtual EditText Read() const = 0;
    virtual void Write(const EditText& edit) = 0;
    virtual GridRect Place() const = 0;
    virtual void Move(const GridRect& rect) = 0;
    virtual void TakeFocus() = 0;
    // Sends a character or a key to this window, after the messages that are waiting for it.
    virtual void PostChar(unsigned character) = 0;
    virtual void PostKey(unsigned key) = 0;
    // Destroys the window, which then destroys the editor.
    virtual void Close() = 0;
};

// The editor of one cell, from the key or click that opened it to the key or loss of focus that ends it. Its
// window owns it and destroys it; the grid never frees it.
class CInPlaceEdit : public CEdit {
  public:
    static const CRuntimeClass classCInPlaceEdit;
    const CRuntimeClass& GetRuntimeClass() const override { return classCInPlaceEdit; }

    CInPlaceEdit(CGridCtrl& grid, int row, int column, int id, const std::string& text, unsigned startKey);

    // Called once when the window is at the cell: sets text and selection and acts on the starting key.
    void Start(EditorWindow& window);

    // Events of the window. True: done here; false: the edit window goes on with it.
    bool OnChar(unsigned character);
    bool OnKeyDown(unsigned key, KeyState keys);
    void OnKillFocus() { End(0, {}); }
    // The text may have changed: the window grows with it.
    void OnTyped();

    const EditorWindow* Window() const { return m_pWindow; }  // null before the start

  protected:
    virtual FilterResult Filter(EditText&, unsigned) const { return FilterResult::passed; }

  private:
    void End(unsigned key, KeyState keys);

    CGridCtrl& m_grid;
    EditorWindow* m_pWindow = nullptr;
    int m_nRow, m_nColumn, m_nId;
    std::string m_sInitial;
    unsigned m_nStartKey;
    int m_nCellRight = 0;
    bool m_bEnded = false;
};

// An editor whose keys type numbers only.
class CInPlaceEditNum : public CInPlaceEdit {
  public:
    static const CRuntimeClass classCInPlaceEditNum;
    const CRuntimeClass& GetRuntimeClass() const override { return classCInPlaceEditNum; }

    CInPlaceEditNum(CGridCtrl& grid, int row, int column, int id, const std::string& text, unsigned startKey,
                    int mode)
        : CInPlaceEdit(grid, row, column, id, text, startKey), m_nMode(mode) {}

  protected:
    FilterResult Filter(EditText& edit, unsigned character) const override {
        return FilterNumber(edit, m_nMode, character);
    }

  private:
    int m_nMode;  // NumberMode
};

inline const CRuntimeClass CInPlaceEdit::classCInPlaceEdit{"CInPlaceEdit", &CWnd::classCWnd};
inline const CRuntimeClass CInPlaceEditNum::classCInPlaceEditNum{"CInPlaceEditNum",
                                                                 &CInPlaceEdit::classCInPlaceEdit};

}  // namespace lumerin
