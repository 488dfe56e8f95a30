// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "embedment/dialog/GraphHost.h"

namespace lumerin {

// A picture of a part of the screen: 24 bits a pixel in the order blue, green, red, rows from top to bottom.
class CaptureEx {
  public:
    // Takes what is on the screen now; the four sides are multiplied by `scale`, the width goes down to a
    // multiple of 4. With `save` the picture is also written. Without a screen, nothing happens and the
    // earlier picture stays. False: nothing was taken, or the file could not be written.
    bool Capture(double scale, const std::string& path, bool save, int left, int top, int right, int bottom);
    // A bitmap file with the rows from top to bottom. False: there is no picture, or no such file can be.
    bool SaveBitmap(const std::string& path) const;

    // Pixels from another source; `data` has height rows of 3 * width bytes.
    void SetImage(int width, int height, std::vector<std::uint8_t> data);
    int Width() const { return m_width; }
    int Height() const { return m_height; }

  private:
    std::vector<std::uint8_t> m_data;
    int m_width = 0, m_height = 0;
};

namespace graphplatform {

// Reads a rectangle of the screen into 3 bytes a pixel, rows from top to bottom without padding. False: there
// is no screen.
bool ReadScreen(const ScreenRect& rect, std::vector<std::uint8_t>& data);

}  // namespace graphplatform

}  // namespace lumerin
