// SPDX-License-Identifier: MIT
// Checks that the codes of Keys.h are those of the platform.
#include "framework/Keys.h"
#include "framework/win32/Windows32.h"

namespace lumerin {

static_assert(kKeyMouse == VK_LBUTTON);
static_assert(kKeyBackspace == VK_BACK);
static_assert(kKeyTab == VK_TAB);
static_assert(kKeyReturn == VK_RETURN);
static_assert(kKeyEscape == VK_ESCAPE);
static_assert(kKeyBlank == VK_SPACE);
static_assert(kKeyPageUp == VK_PRIOR);
static_assert(kKeyPageDown == VK_NEXT);
static_assert(kKeyEnd == VK_END);
static_assert(kKeyHome == VK_HOME);
static_assert(kKeyLeft == VK_LEFT);
static_assert(kKeyUp == VK_UP);
static_assert(kKeyRight == VK_RIGHT);
static_assert(kKeyDown == VK_DOWN);
static_assert(kKeyInsert == VK_INSERT);
static_assert(kKeyDelete == VK_DELETE);

}  // namespace lumerin
