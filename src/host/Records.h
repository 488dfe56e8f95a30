// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "script/JsonLines.h"

namespace lumerin {

// What the module passes to other programs is reported by those programs: the recorder, which replaces a
// viewer, and the recording plot module append a line to a file that the environment names.
class Records {
  public:
    // Makes the file and names it in the environment, for this process and those that it starts.
    explicit Records(JsonLines& lines);
    Records(const Records&) = delete;
    Records& operator=(const Records&) = delete;
    ~Records();

    // Prints what was recorded since the last time. False: a started program has not written its line yet.
    bool Print();

  private:
    void PrintLine(const std::string& line);

    JsonLines& m_lines;
    std::string m_path;
    std::size_t m_read = 0;  // bytes of the file that are printed
};

}  // namespace lumerin
