// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// What drawing borrows from the platform and gives back on every way out.
namespace win32 {

// From BeginPaint to EndPaint: a paint that fails is over too, and the platform does not ask for it for ever.
class Painting {
  public:
    explicit Painting(HWND window) : m_window(window), m_dc(BeginPaint(window, &m_paint)) {}
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
    ~Painting() { EndPaint(m_window, &m_paint); }

    HDC Context() const { return m_dc; }
    const RECT& Area() const { return m_paint.rcPaint; }

  private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
    HDC m_dc;
};

// The context of a window's client area, or of the whole screen.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : m_window(window), m_dc(GetDC(window)) {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() { ReleaseDC(m_window, m_dc); }

    HDC Context() const { return m_dc; }

  private:
    HWND m_window;
    HDC m_dc;
};

// A bitmap of a size in pixels with a context of its own to draw on it.
class BitmapContext {
  public:
    BitmapContext(HDC compatibleTo, int width, int height)
        : m_dc(CreateCompatibleDC(compatibleTo)),
          m_bitmap(CreateCompatibleBitmap(compatibleTo, width, height)),
          m_before(SelectObject(m_dc, m_bitmap)) {}
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;
    ~BitmapContext() {
        Release();
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }

    HDC Context() const { return m_dc; }
    HBITMAP Bitmap() const { return m_bitmap; }
    // Takes the bitmap off the context: only then its pixels can be read.
    void Release() {
        if (m_before != nullptr) SelectObject(m_dc, m_before);
        m_before = nullptr;
    }

  private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

}  // namespace win32

}  // namespace lumerin
