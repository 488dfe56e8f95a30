// SPDX-License-Identifier: MIT
#include "embedment/dialog/CaptureEx.h"

namespace lumerin {

namespace graphplatform {

// Without a screen there is nothing to take.
bool ReadScreen(const ScreenRect&, std::vector<std::uint8_t>&) {
    return false;
}

}  // namespace graphplatform

}  // namespace lumerin
