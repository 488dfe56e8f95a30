// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "cli/Console.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

constexpr std::size_t kUsualWidth = 80, kLeastWidth = 40;

// Characters of UTF-8, each one column wide.
std::size_t Columns(std::string_view text) {
    return Index(std::count_if(text.begin(), text.end(),
                               [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u; }));
}

std::string WrappedLine(std::string_view line, std::size_t width, std::size_t indent) {
    std::string text;
    std::size_t used = 0;
    while (!line.empty()) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string_view word = line.substr(0, blank);
        line.remove_prefix(std::min(blank + 1, line.size()));
        if (used > 0 && used + 1 + Columns(word) > width) {
            text += '\n' + std::string(indent, ' ');
            used = indent;
        } else if (used > 0) {
            text += ' ';
            ++used;
        }
        text += word;
        used += Columns(word);
    }
    return text;
}

}  // namespace

std::size_t TerminalWidth() {
    std::size_t width = console::Width();
    if (width == 0) {
        const char* text = std::getenv("COLUMNS");
        const std::string_view columns = text == nullptr ? "" : text;
        std::from_chars(columns.data(), columns.data() + columns.size(), width);
    }
    return width == 0 ? kUsualWidth : std::max(width, kLeastWidth);
}

bool UsesColour(const std::ostream& stream) {
    const char* forbidden = std::getenv("NO_COLOR");
    const bool isOutput = &stream == &std::cout;
    if (!isOutput && &stream != &std::cerr) return false;
    return console::TakesEscapes(isOutput ? console::Stream::output : console::Stream::error) &&
           (forbidden == nullptr || *forbidden == '\0');
}

std::string Painted(std::string_view text, Paint paint, const std::ostream& stream) {
    if (!UsesColour(stream)) return std::string(text);
    const char* code = "1";
    if (paint == Paint::red) code = "31";
    if (paint == Paint::yellow) code = "33";
    if (paint == Paint::green) code = "32";
    return std::string("\033[").append(code).append("m").append(text).append("\033[0m");
}

std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string wrapped, paragraph;
    const auto end = [&](bool more) {
        wrapped += WrappedLine(paragraph, width, indent);
        if (more && !paragraph.empty()) wrapped += '\n';
        paragraph.clear();
    };
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t feed = std::min(text.find('\n', from), text.size());
        const std::string_view line = text.substr(from, feed - from);
        const bool isLast = feed == text.size();
        from = feed + 1;
        if (!line.empty() && !line.starts_with(' ')) {
            paragraph.append(paragraph.empty() ? "" : " ").append(line);
            continue;
        }
        end(true);
        wrapped += line;
        if (!isLast) wrapped += '\n';
    }
    end(false);
    return wrapped;
}

}  // namespace lumerin
