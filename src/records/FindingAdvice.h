// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace lumerin {

// What a finding means for the engineer and what to do, in a sentence or two; the user guide has the same
// words. Empty for a code that is not known.
std::string_view AdviceOn(std::string_view code);

}  // namespace lumerin
