// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <span>
#include <string>
#include <string_view>

namespace lumerin {

// The host's keyed text: lines of keys such as "N=" followed by values, in named sections.

// An input text file. A missing file, or a folder in its place, leaves the stream in the failed state, a file
// that cannot be read in the bad one. It throws only when memory runs out.
class ifstreamex : public std::ifstream {
  public:
    // Opens the file of that name whatever the case of its letters.
    explicit ifstreamex(const std::string& path);

    // One logical line: at most maxLength - 1 characters up to `delimiter`; a backslash ends the physical
    // line and joins the next one; leading white space goes, and so does a carriage return before the
    // delimiter. A physical line of maxLength characters or more puts the stream into the failed state after
    // its first part. False: nothing could be read.
    bool GetLineEx(std::string& line, int maxLength, char delimiter = '\n');

  private:
    bool ReadPhysicalLine(std::string& line, int maxLength, char delimiter);
    bool TakeLine(std::string& line, int maxLength, char delimiter);
};

// Reads up to out.size() values after `key`, which is found anywhere in the text without regard to letter
// case; a key of one character gets its "=", an empty key starts at the first character. `out` is cleared
// first. Returns how many were read; 0 when the key is absent.
int ReadKeyedInts(std::string_view text, std::string_view key, std::span<int> out);
int ReadKeyedDoubles(std::string_view text, std::string_view key, std::span<double> out);
// Reads the one value after a key; `value` is unchanged when there is none.
bool ReadKeyedInt(std::string_view text, std::string_view key, int& value);
bool ReadKeyedDouble(std::string_view text, std::string_view key, double& value);

}  // namespace lumerin
