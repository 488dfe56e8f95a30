// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// Receives what a reader or a search reports to the engineer while it runs, as the text of a message box. The
// dialog shows a box; a program without a screen prints a line. The caller of a load or a search owns the
// sink.
class Messages {
  public:
    Messages() = default;
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
    virtual ~Messages() = default;

    virtual void Show(const std::string& text) = 0;
};

}  // namespace lumerin
