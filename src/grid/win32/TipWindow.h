#pragma once

#include <string>

#include "framework/win32/Windows32.h"
#include "grid/GridTypes.h"

class CGridCtrl;

// The window of the title tip: a text over a cell, above all other windows.
class TipWindow {
  public:
    explicit TipWindow(CGridCtrl& grid) : m_grid(grid) {}
    TipWindow(const TipWindow&) = delete;
    TipWindow& operator=(const TipWindow&) = delete;
    ~TipWindow();

    // `rect` in the client area of the grid's window.
    void Show(HWND owner, const GridRect& rect, const std::string& text, const FontRecord& font);
    void Hide();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR data);
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnPaint();
    void OnButton(UINT message, WPARAM wParam, LPARAM lParam);
    void WatchForLeave();

    CGridCtrl& m_grid;
    HWND m_owner = nullptr;
    HWND m_window = nullptr;
    std::string m_text;
    FontRecord m_font;
};
