// SPDX-License-Identifier: MIT
#include "text/KeyedLine.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "framework/File.h"
#include "framework/Index.h"
#include "framework/NativePath.h"
#include "text/Format.h"

namespace lumerin {

namespace {

char Upper(char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

// The text after the first occurrence of the key.
bool FindAfterKey(std::string_view text, std::string_view key, std::string_view& rest) {
    std::string wanted(key);
    if (wanted.size() == 1) wanted += '=';
    const auto same = [](char a, char b) { return Upper(a) == Upper(b); };
    const auto hit = std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), same);
    if (!wanted.empty() && hit == text.end()) return false;
    rest = text.substr(Index(hit - text.begin()) + wanted.size());
    return true;
}

void SkipBlanks(std::string_view& text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= 32) text.remove_prefix(1);
}

// Removes a leading "+", which std::from_chars does not accept.
std::string_view WithoutPlus(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+') text.remove_prefix(1);
    return text;
}

// Extracts one number from the front, as a stream does. False: there is none, or an integer is outside the
// range of int.
bool Extract(std::string_view& text, int& value) {
    const std::string_view digits = WithoutPlus(text);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{}) return false;
    text = digits.substr(Index(end - digits.data()));
    return true;
}

bool Extract(std::string_view& text, double& value) {
    const std::string_view digits = WithoutPlus(text);
    // A stream does not read "inf" and "nan" as numbers.
    const std::size_t first = digits.find_first_not_of('-');
    if (first == std::string_view::npos || first > 1 ||
        (std::isdigit(static_cast<unsigned char>(digits[first])) == 0 && digits[first] != '.')) {
        return false;
    }
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{}) return false;
    text = digits.substr(Index(end - digits.data()));
    return true;
}

template <class Value>
int ReadKeyedValues(std::string_view text, std::string_view key, std::span<Value> out) {
    std::fill(out.begin(), out.end(), Value{});
    std::string_view rest;
    if (!FindAfterKey(text, key, rest)) return 0;
    SkipBlanks(rest);
    int read = 0;
    for (Value& slot : out) {
        Value value{};
        if (rest.empty() || !Extract(rest, value)) break;
        slot = value;
        ++read;
        SkipBlanks(rest);
        if (!rest.empty() && rest.front() == ',') {
            rest.remove_prefix(1);
            SkipBlanks(rest);
        }
    }
    return read;
}

}  // namespace

ifstreamex::ifstreamex(const std::string& path) {
    const std::string found = FindFileAnyCase(path);
    // On some platforms a folder can be opened, and fails when it is read.
    if (found.empty() || IsFolder(found)) {
        setstate(std::ios::failbit);
    } else {
        open(NativePath(found), std::ios::in | std::ios::binary);
    }
}

bool ifstreamex::ReadPhysicalLine(std::string& line, int maxLength, char delimiter) {
    if (!good()) {
        setstate(std::ios::failbit);
        return false;
    }
    try {
        return TakeLine(line, maxLength, delimiter);
    } catch (const std::ios_base::failure&) {
        setstate(std::ios::badbit);  // the buffer throws for a file that cannot be read
        return false;
    }
}

bool ifstreamex::TakeLine(std::string& line, int maxLength, char delimiter) {
    constexpr int kEnd = std::char_traits<char>::eof();
    std::streambuf& source = *rdbuf();
    int stored = 0;
    for (int c = source.sbumpc();; c = source.sbumpc()) {
        if (c == kEnd) {
            setstate(stored > 0 ? std::ios::eofbit : std::ios::eofbit | std::ios::failbit);
            return stored > 0;
        }
        if (c == delimiter || (c == '\r' && source.sgetc() == delimiter)) {
            if (c != delimiter) source.sbumpc();
            return true;
        }
        if (stored >= maxLength - 1) {
            source.sungetc();
            setstate(std::ios::failbit);
            return true;
        }
        line += std::char_traits<char>::to_char_type(c);
        ++stored;
    }
}

bool ifstreamex::GetLineEx(std::string& line, int maxLength, char delimiter) {
    line.clear();
    bool read = ReadPhysicalLine(line, maxLength, delimiter);
    for (std::size_t cut = line.find('\\'); cut != std::string::npos; cut = line.find('\\', cut)) {
        line.resize(cut);
        if (!good()) break;
        read = ReadPhysicalLine(line, maxLength, delimiter) || read;
    }
    line.erase(0, line.size() - TrimLeft(line).size());
    return read;
}

int ReadKeyedInts(std::string_view text, std::string_view key, std::span<int> out) {
    return ReadKeyedValues(text, key, out);
}

int ReadKeyedDoubles(std::string_view text, std::string_view key, std::span<double> out) {
    return ReadKeyedValues(text, key, out);
}

bool ReadKeyedInt(std::string_view text, std::string_view key, int& value) {
    int read = 0;
    if (ReadKeyedInts(text, key, std::span(&read, 1)) < 1) return false;
    value = read;
    return true;
}

bool ReadKeyedDouble(std::string_view text, std::string_view key, double& value) {
    double read = 0.0;
    if (ReadKeyedDoubles(text, key, std::span(&read, 1)) < 1) return false;
    value = read;
    return true;
}

}  // namespace lumerin
