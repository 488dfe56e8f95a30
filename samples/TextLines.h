// SPDX-License-Identifier: MIT
// Lines of text with numbers, the same on every machine.
#pragma once

#include <charconv>
#include <filesystem>
#include <string>
#include <string_view>

#include "samples/OutputFile.h"

namespace lumerin {

namespace samples {

// The shortest text that reads back as this number, or one with that many decimals.
inline std::string NumberText(double value) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed).ptr;
    return std::string(text, end);
}

inline std::string NumberText(double value, int decimals) {
    char text[400];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    return std::string(text, end);
}

// The host writes on a platform whose lines end in carriage return and line feed.
class LineFile {
  public:
    explicit LineFile(const std::filesystem::path& path) : m_file(path) {}
    void Line(std::string_view text = {}) {
        m_file.Write(text);
        m_file.Write(std::string_view("\r\n"));
    }
    void Close() { m_file.Close(); }

  private:
    OutputFile m_file;
};

}  // namespace samples

}  // namespace lumerin
