// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "model/Types.h"

namespace lumerin {

// Names of limit states: row by limit state number, column by code family (AASHTO-LRFD, AASHTO-LFD, AREMA);
// empty where a family has no such state.
extern const std::array<std::array<const char*, 3>, 18> g_LimitStateNames;

// The name of a limit state by the code that the host gives it (101 to 113, 201 to 211, 301 to 318); "ERROR
// 1" for any other code.
std::string LimitStateName(int code);
// The class of a limit state in a code family, for a code that the family has.
bool FindLimitClass(CodeFamily family, int code, LimitClass& limitClass);

}  // namespace lumerin
