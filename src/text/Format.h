// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumerin {

// Numbers to text by the rules of the printf formats named below, exact and locale-free on every platform.
// The Append functions write at the end of `out` and allocate no other memory.

void AppendInt(std::string& out, long long value, int width = 0);       // "%<width>d"
void AppendIntBlankZero(std::string& out, long long value, int width);  // "%<width>.i": 0 prints as blanks
void AppendFixed(std::string& out, double value, int decimals, int width = 0);  // "%<width>.<decimals>f"
// The default format of an output stream: six significant digits without trailing zeros.
void AppendGeneral(std::string& out, double value);

std::string FormatInt(long long value, int width = 0);
std::string FormatFixed(double value, int decimals, int width = 0);
std::string FormatGeneral(double value);
// A format text with one "%d" or "%i": the number takes its place.
std::string FormatNumbered(std::string_view format, long long value);

std::string PadLeft(std::string_view text, std::size_t width);   // unchanged if as long or longer
std::string PadRight(std::string_view text, std::size_t width);  // unchanged if as long or longer
std::string RemoveBlanks(std::string_view text);
std::string_view TrimLeft(std::string_view text);   // white space
std::string_view TrimRight(std::string_view text);  // white space
std::string_view Trim(std::string_view text);
std::string Blanks(std::size_t count);
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

// Whether "%.5f" of the value is a plain number: no letter or symbol, "-" in first place only, one ".". True
// for exactly the finite values.
bool IsValidNumber(double value);

}  // namespace lumerin
