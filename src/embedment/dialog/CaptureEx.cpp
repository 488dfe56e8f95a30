// SPDX-License-Identifier: MIT
#include "embedment/dialog/CaptureEx.h"

#include <array>

#include "framework/Index.h"
#include "framework/WholeFile.h"

namespace lumerin {

namespace {

constexpr std::size_t kFileHeader = 14, kInfoHeader = 40, kHeaders = kFileHeader + kInfoHeader;
constexpr std::uint16_t kPlanes = 1, kBits = 24;
constexpr int kBytesPerPixel = 3;
constexpr int kLongestSide = 32767;

// The header's numbers, the lowest byte first.
class HeaderBytes {
  public:
    void Put16(std::size_t at, std::uint16_t value) {
        for (std::size_t i = 0; i < 2; ++i) m_bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
    void Put32(std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i) m_bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
    const std::array<std::uint8_t, kHeaders>& Bytes() const { return m_bytes; }

  private:
    std::array<std::uint8_t, kHeaders> m_bytes{};
};

HeaderBytes MakeHeader(int width, int height, std::size_t dataSize) {
    HeaderBytes header;
    const auto size = static_cast<std::uint32_t>(dataSize);
    header.Put16(0, 0x4d42);  // "BM"
    header.Put32(2, size + static_cast<std::uint32_t>(kHeaders));
    header.Put32(10, static_cast<std::uint32_t>(kHeaders));
    header.Put32(kFileHeader, static_cast<std::uint32_t>(kInfoHeader));
    header.Put32(kFileHeader + 4, static_cast<std::uint32_t>(width));
    header.Put32(kFileHeader + 8, static_cast<std::uint32_t>(-height));  // rows are stored top first
    header.Put16(kFileHeader + 12, kPlanes);
    header.Put16(kFileHeader + 14, kBits);
    header.Put32(kFileHeader + 20, size);
    return header;
}

int Scaled(int value, double scale) {
    const double scaled = value * scale;
    return scaled >= -kLongestSide && scaled <= kLongestSide ? static_cast<int>(scaled) : 0;
}

}  // namespace

bool CaptureEx::Capture(double scale, const std::string& path, bool save, int left, int top, int right,
                        int bottom) {
    ScreenRect rect{Scaled(left, scale), Scaled(top, scale), Scaled(right, scale), Scaled(bottom, scale)};
    // Rows of a bitmap end on a multiple of four bytes; a width of that multiple needs no padding.
    rect.right = rect.left + (rect.right - rect.left) / 4 * 4;
    std::vector<std::uint8_t> data;
    if (rect.IsEmpty() || !graphplatform::ReadScreen(rect, data)) return false;
    SetImage(rect.right - rect.left, rect.bottom - rect.top, std::move(data));
    return !save || SaveBitmap(path);
}

void CaptureEx::SetImage(int width, int height, std::vector<std::uint8_t> data) {
    const bool fits = width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
                      data.size() == Index(width) * Index(height) * Index(kBytesPerPixel);
    m_data = fits ? std::move(data) : std::vector<std::uint8_t>();
    m_width = fits ? width : 0;
    m_height = fits ? height : 0;
}

bool CaptureEx::SaveBitmap(const std::string& path) const {
    if (m_data.empty()) return false;
    WholeFile file;
    if (!file.Open(path)) return false;
    const HeaderBytes header = MakeHeader(m_width, m_height, m_data.size());
    return file.Write(header.Bytes().data(), header.Bytes().size()) &&
           file.Write(m_data.data(), m_data.size()) && file.Commit();
}

}  // namespace lumerin
