// SPDX-License-Identifier: MIT
#include "host/PngFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "framework/Index.h"

namespace lumerin {

// Windows are mostly runs of one colour over many rows. So each row is stored as its difference to the row
// above, and the compressor looks for one thing only: repetitions of the last byte.

namespace {

constexpr std::size_t kBytesPerPixel = 3;
constexpr std::size_t kLongestRun = 258, kShortestRun = 3;
constexpr unsigned kEndOfBlock = 256;

std::uint32_t Crc(std::string_view bytes) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> values{};
        for (std::uint32_t n = 0; n < values.size(); ++n) {
            std::uint32_t c = n;
            for (int bit = 0; bit < 8; ++bit) c = (c & 1u) != 0 ? 0xedb88320u ^ (c >> 1) : c >> 1;
            values[n] = c;
        }
        return values;
    }();
    std::uint32_t crc = 0xffffffffu;
    for (const char c : bytes) crc = table[(crc ^ static_cast<std::uint8_t>(c)) & 0xffu] ^ (crc >> 8);
    return ~crc;
}

std::uint32_t Adler(std::string_view bytes) {
    std::uint32_t a = 1, b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<std::uint8_t>(c)) % 65521u;
        b = (b + a) % 65521u;
    }
    return b << 16 | a;
}

void AppendNumber(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<char>(value >> shift & 0xffu));
}

void AppendChunk(std::string& out, const std::string& type, const std::string& data) {
    AppendNumber(out, static_cast<std::uint32_t>(data.size()));
    out += type + data;
    AppendNumber(out, Crc(type + data));
}

// Bits of one block with the fixed codes.
class BitWriter {
  public:
    void Bits(unsigned value, int count) {
        for (int i = 0; i < count; ++i) Bit(value >> i & 1u);
    }
    // Codes go from their highest bit.
    void Code(unsigned value, int count) {
        for (int i = count - 1; i >= 0; --i) Bit(value >> i & 1u);
    }
    void Symbol(unsigned symbol) {
        if (symbol < 144) {
            Code(0x30 + symbol, 8);
        } else if (symbol < 256) {
            Code(0x190 + symbol - 144, 9);
        } else if (symbol < 280) {
            Code(symbol - 256, 7);
        } else {
            Code(0xc0 + symbol - 280, 8);
        }
    }
    std::string Finish() {
        while (m_bits != 0) Bit(0);
        return std::move(m_out);
    }

  private:
    void Bit(unsigned bit) {
        m_byte |= bit << m_bits;
        if (++m_bits < 8) return;
        m_out.push_back(static_cast<char>(m_byte));
        m_byte = 0;
        m_bits = 0;
    }
    std::string m_out;
    unsigned m_byte = 0;
    int m_bits = 0;
};

// A length's symbol and the extra bits after it.
void AppendRun(BitWriter& bits, std::size_t length) {
    if (length == kLongestRun) {
        bits.Symbol(285);
    } else {
        // Lengths from 11 on share a symbol in groups, which double in size after every four.
        const auto rest = static_cast<unsigned>(length - kShortestRun);
        int extra = 0;
        while (rest >> (extra + 3) != 0) ++extra;
        const unsigned symbol =
            extra == 0 ? 257 + rest : 261 + 4 * static_cast<unsigned>(extra) + (rest >> extra & 3u);
        bits.Symbol(symbol);
        bits.Bits(rest & ((1u << extra) - 1u), extra);
    }
    bits.Code(0, 5);  // distance 1: the last byte
}

std::string Compress(const std::string& data) {
    BitWriter bits;
    bits.Bits(1, 1);  // the last block
    bits.Bits(1, 2);  // with the fixed codes
    for (std::size_t at = 0; at < data.size();) {
        std::size_t run = 0;
        while (at > 0 && run < kLongestRun && at + run < data.size() && data[at + run] == data[at - 1]) ++run;
        if (run >= kShortestRun) {
            AppendRun(bits, run);
            at += run;
        } else {
            bits.Symbol(static_cast<std::uint8_t>(data[at++]));
        }
    }
    bits.Symbol(kEndOfBlock);
    std::string out = "\x78\x01" + bits.Finish();
    AppendNumber(out, Adler(data));
    return out;
}

}  // namespace

std::string PngBytes(int width, int height, std::span<const std::uint8_t> pixels) {
    const std::size_t rowBytes = Index(width) * kBytesPerPixel;
    std::string rows;
    for (std::size_t y = 0; y < Index(height); ++y) {
        rows.push_back(2);  // filter: difference to the row above
        for (std::size_t x = 0; x < rowBytes; ++x) {
            const unsigned above = y == 0 ? 0u : pixels[(y - 1) * rowBytes + x];
            rows.push_back(static_cast<char>((pixels[y * rowBytes + x] - above) & 0xffu));
        }
    }
    std::string header;
    AppendNumber(header, static_cast<std::uint32_t>(width));
    AppendNumber(header, static_cast<std::uint32_t>(height));
    header += std::string("\x08\x02\x00\x00\x00", 5);
    std::string out = "\x89PNG\r\n\x1a\n";
    AppendChunk(out, "IHDR", header);
    AppendChunk(out, "IDAT", Compress(rows));
    AppendChunk(out, "IEND", "");
    return out;
}

}  // namespace lumerin
