// SPDX-License-Identifier: MIT
#include "host/Picture.h"

#include <algorithm>
#include <fstream>

#include "framework/Index.h"
#include "host/PngFile.h"

namespace lumerin {

namespace {

constexpr int kBitsPerPixel = 24;
constexpr std::size_t kBytesPerPixel = 3;
constexpr int kChannels = 3;

// Rows of a bitmap fill up to whole words.
std::size_t RowBytes(int width) {
    return (Index(width) * kBytesPerPixel + 3) / 4 * 4;
}

// The window's pixels as the platform keeps them: blue, green, red; rows filled up.
std::vector<std::uint8_t> ReadPixels(HWND window, int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kBitsPerPixel;
    std::vector<std::uint8_t> bytes(RowBytes(width) * Index(height));
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateCompatibleBitmap(source, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), bytes.data(), &info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return bytes;
}

Picture ReadPicture(HWND window) {
    UpdateWindow(window);
    RECT frame{};
    GetWindowRect(window, &frame);
    Picture picture;
    picture.width = frame.right - frame.left;
    picture.height = frame.bottom - frame.top;
    const std::vector<std::uint8_t> bytes = ReadPixels(window, picture.width, picture.height);
    picture.pixels.reserve(bytes.size());
    for (std::size_t y = 0; y < Index(picture.height); ++y) {
        const std::uint8_t* row = bytes.data() + y * RowBytes(picture.width);
        for (std::size_t x = 0; x < Index(picture.width); ++x) {
            for (std::size_t colour = kBytesPerPixel; colour > 0; --colour) {
                picture.pixels.push_back(row[x * kBytesPerPixel + colour - 1]);
            }
        }
    }
    return picture;
}

struct OverlayTarget {
    HWND window;
    Picture* picture;
};

// Copies the picture of a window onto that of its owner.
BOOL CALLBACK OverlayOwned(HWND window, LPARAM data) {
    const auto& target = *reinterpret_cast<const OverlayTarget*>(data);
    if (GetWindow(window, GW_OWNER) != target.window || !IsWindowVisible(window)) return TRUE;
    RECT frame{}, owner{};
    GetWindowRect(window, &frame);
    GetWindowRect(target.window, &owner);
    const Picture top = ReadPicture(window);
    Picture& below = *target.picture;
    for (int y = 0; y < top.height; ++y) {
        for (int x = 0; x < top.width; ++x) {
            const int toX = x + frame.left - owner.left, toY = y + frame.top - owner.top;
            if (toX < 0 || toY < 0 || toX >= below.width || toY >= below.height) continue;
            std::copy_n(top.pixels.begin() + (y * top.width + x) * kChannels, kChannels,
                        below.pixels.begin() + (toY * below.width + toX) * kChannels);
        }
    }
    return TRUE;
}

std::string BitmapBytes(const Picture& picture) {
    const std::size_t rowBytes = RowBytes(picture.width);
    std::string pixels(rowBytes * Index(picture.height), '\0');
    for (std::size_t y = 0; y < Index(picture.height); ++y) {
        for (std::size_t x = 0; x < Index(picture.width); ++x) {
            const std::size_t from = (y * Index(picture.width) + x) * kBytesPerPixel;
            for (std::size_t colour = 0; colour < kBytesPerPixel; ++colour) {
                pixels[y * rowBytes + x * kBytesPerPixel + colour] =
                    static_cast<char>(picture.pixels[from + kBytesPerPixel - 1 - colour]);
            }
        }
    }
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = picture.width;
    info.biHeight = -picture.height;
    info.biPlanes = 1;
    info.biBitCount = kBitsPerPixel;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4d42;  // "BM"
    file.bfOffBits = sizeof file + sizeof info;
    file.bfSize = file.bfOffBits + static_cast<DWORD>(pixels.size());
    return std::string(reinterpret_cast<const char*>(&file), sizeof file) +
           std::string(reinterpret_cast<const char*>(&info), sizeof info) + pixels;
}

}  // namespace

Picture TakePicture(HWND window) {
    // The title bar of the window that has the focus, drawn as such even without a window manager.
    SendMessageA(window, WM_NCACTIVATE, GetActiveWindow() == window ? TRUE : FALSE, 0);
    Picture picture = ReadPicture(window);
    // A tip is a window of its own above the dialog.
    OverlayTarget target{window, &picture};
    EnumThreadWindows(GetCurrentThreadId(), OverlayOwned, reinterpret_cast<LPARAM>(&target));
    return picture;
}

bool SavePicture(HWND window, const std::string& path) {
    const Picture picture = TakePicture(window);
    const bool bitmap = path.size() >= 4 && lstrcmpiA(path.c_str() + path.size() - 4, ".bmp") == 0;
    const std::string bytes =
        bitmap ? BitmapBytes(picture) : PngBytes(picture.width, picture.height, picture.pixels);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file.good();
}

}  // namespace lumerin
