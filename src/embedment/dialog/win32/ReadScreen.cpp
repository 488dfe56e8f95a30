// SPDX-License-Identifier: MIT
#include "embedment/dialog/CaptureEx.h"
#include "framework/Index.h"
#include "framework/win32/Drawing.h"

namespace lumerin {

namespace graphplatform {

bool ReadScreen(const ScreenRect& rect, std::vector<std::uint8_t>& data) {
    constexpr int kBytesPerPixel = 3;
    const int width = rect.right - rect.left, height = rect.bottom - rect.top;
    const win32::WindowContext screen(nullptr);
    win32::BitmapContext copy(screen.Context(), width, height);
    const BOOL copied =
        BitBlt(copy.Context(), 0, 0, width, height, screen.Context(), rect.left, rect.top, SRCCOPY);
    copy.Release();
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 8 * kBytesPerPixel;
    info.bmiHeader.biCompression = BI_RGB;
    // The platform pads a row to a multiple of four bytes.
    const auto row = Index((width * kBytesPerPixel + 3) / 4 * 4);
    std::vector<std::uint8_t> padded(row * Index(height));
    if (!copied || GetDIBits(copy.Context(), copy.Bitmap(), 0, static_cast<UINT>(height), padded.data(),
                             &info, DIB_RGB_COLORS) == 0) {
        return false;
    }
    data.clear();
    for (std::size_t y = 0; y < Index(height); ++y) {
        const auto from = padded.begin() + static_cast<std::ptrdiff_t>(y * row);
        data.insert(data.end(), from, from + width * kBytesPerPixel);
    }
    return true;
}

}  // namespace graphplatform

}  // namespace lumerin
