// SPDX-License-Identifier: MIT
#include "text/Utf8.h"

#include <cstddef>
#include <iterator>

namespace lumerin {

namespace {

// Code points of the Western code page's bytes 0x80 to 0x9F; the five unused bytes have their own value as
// code point.
constexpr unsigned kUpperControls[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                         0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

// Length of the UTF-8 sequence that the text begins with; 0: it does not begin with one.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0u) != 0x80u) return 0;
    }
    const unsigned second = byte(1);
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F)) return 0;
    if ((first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F)) return 0;
    return length;
}

void AppendCodePoint(std::string& out, unsigned code) {
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        out.push_back(static_cast<char>(0xC0u | (code >> 6)));
        out.push_back(static_cast<char>(0x80u | (code & 0x3Fu)));
    } else {
        out.push_back(static_cast<char>(0xE0u | (code >> 12)));
        out.push_back(static_cast<char>(0x80u | ((code >> 6) & 0x3Fu)));
        out.push_back(static_cast<char>(0x80u | (code & 0x3Fu)));
    }
}

// The code point of the sequence of that length.
unsigned CodePointOf(std::string_view sequence) {
    constexpr unsigned kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    unsigned code = static_cast<unsigned char>(sequence[0]) & kLeadBits[sequence.size()];
    for (const char c : sequence.substr(1)) code = (code << 6) | (static_cast<unsigned char>(c) & 0x3Fu);
    return code;
}

char WesternOf(unsigned code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
    for (unsigned i = 0; i < std::size(kUpperControls); ++i) {
        if (kUpperControls[i] == code) return static_cast<char>(0x80 + i);
    }
    return '?';
}

}  // namespace

std::string ToUtf8(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        const unsigned byte = static_cast<unsigned char>(text[0]);
        if (length > 0) {
            out.append(text.substr(0, length));
        } else {
            AppendCodePoint(out, byte < 0xA0 ? kUpperControls[byte - 0x80] : byte);
        }
        text.remove_prefix(length > 0 ? length : 1);
    }
    return out;
}

std::string ToWestern(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        out += length > 0 ? WesternOf(CodePointOf(text.substr(0, length))) : text[0];
        text.remove_prefix(length > 0 ? length : 1);
    }
    return out;
}

std::size_t WholeCharacters(std::string_view text) {
    constexpr std::size_t kLongest = 4;
    for (std::size_t back = 1; back < kLongest && back <= text.size(); ++back) {
        const auto byte = static_cast<unsigned char>(text[text.size() - back]);
        if (byte < 0x80) break;
        if (byte < 0xC0) continue;
        const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
        return text.size() - (length > back ? back : 0);
    }
    return text.size();
}

std::string WithoutControls(std::string_view text) {
    constexpr unsigned char kDelete = 0x7F, kLeadOfUpper = 0xC2, kEndOfUpper = 0x9F;
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : kDelete;
        if (byte == kLeadOfUpper && next > kDelete && next <= kEndOfUpper) {
            shown += '?';
            ++i;
        } else if ((byte < ' ' && byte != '\n' && byte != '\t') || byte == kDelete) {
            shown += '?';
        } else {
            shown += text[i];
        }
    }
    return shown;
}

}  // namespace lumerin
