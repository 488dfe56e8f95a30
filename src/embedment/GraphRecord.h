// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "framework/Automation.h"

namespace lumerin {

// The calls of a drawing as one text, one line a call, so that they can cross from the module to a program
// that was linked on its own. Line feeds in texts are lost; the plot's texts have none.
std::string WriteGraphCalls(const std::vector<GraphCall>& calls);
// False: the text holds a line that is no call; `calls` has those before it.
bool ReadGraphCalls(std::string_view text, std::vector<GraphCall>& calls);

}  // namespace lumerin
