// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {}  // namespace lumerin
