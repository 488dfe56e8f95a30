// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Backend.h"

namespace lumerin {

// The clock of dates and stamps in documents: the local time, or the fixed time in the environment variable
// LUMERIN_CLOCK.
LocalTime DocumentTime();

}  // namespace lumerin
