// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// Owners of drawing objects of the platform; each releases its object when it goes out of scope.
namespace win32 {

// From BeginPaint to EndPaint. A paint that throws is ended too; otherwise the platform would request it
// again for ever.
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

// A bitmap, its size in pixels, and a device context that draws on it.
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
    // Removes the bitmap from the context; only then its pixels can be read.
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
