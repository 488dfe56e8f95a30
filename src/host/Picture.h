// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/HostWindows.h"

namespace lumerin {

// A picture of a window with its frame, as it is on the screen.
struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> pixels;  // red, green, blue; rows from the top, without gaps
};

Picture TakePicture(HWND window);
// As a PNG file, or as a bitmap file when the name ends in ".bmp". False: the file cannot be written.
bool SavePicture(HWND window, const std::string& path);

}  // namespace lumerin
