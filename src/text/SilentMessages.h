// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "text/Messages.h"

namespace lumerin {

// For a load whose messages say nothing that the findings do not.
class SilentMessages : public Messages {
    void Show(const std::string&) override {}
};

}  // namespace lumerin
