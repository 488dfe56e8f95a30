// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace lumerin {

// The commit that the program was built from, its first 12 digits; empty where it was not known.
std::string_view Commit();

}  // namespace lumerin
