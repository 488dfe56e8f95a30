// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace lumerin {

// The style sheet and the script of every page, as texts of their languages.
extern const std::string_view kPageStyle;
extern const std::string_view kPageScript;

}  // namespace lumerin
