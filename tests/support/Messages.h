// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "text/Messages.h"

namespace lumerin {

// Keeps what a reader or a search reports, in the order of the calls.
class RecordedMessages : public Messages {
  public:
    void Show(const std::string& text) override { texts.push_back(text); }

    std::vector<std::string> texts;
};

}  // namespace lumerin
