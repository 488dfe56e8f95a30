// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/win32/WindowHook.h"
#include "grid/GridTypes.h"

namespace lumerin {

class CGridCtrl;

// The window of the title tip: a text over a cell, above all other windows.
class TipWindow : private win32::MessageTarget {
  public:
    explicit TipWindow(CGridCtrl& grid) : m_grid(grid) {}
    TipWindow(const TipWindow&) = delete;
    TipWindow& operator=(const TipWindow&) = delete;
    ~TipWindow() override;

    // `rect` in the client area of the grid's window.
    void Show(HWND owner, const GridRect& rect, const std::string& text, const FontRecord& font);
    void Hide();

  private:
    static LRESULT CALLBACK WatchMessage(int code, WPARAM wParam, LPARAM lParam) noexcept;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnGone() noexcept override {
        EndWatch();
        m_window = nullptr;
    }
    void OnPaint();
    void OnOtherButton(UINT message, WPARAM wParam, LPARAM lParam);
    POINT InOwner(LPARAM lParam) const;
    void WatchForLeave();
    void WatchForInput();
    void EndWatch();

    CGridCtrl& m_grid;
    HWND m_owner = nullptr;
    HWND m_window = nullptr;
    HHOOK m_hook = nullptr;  // while the tip shows
    std::string m_text;
    FontRecord m_font;
};

}  // namespace lumerin
