// SPDX-License-Identifier: MIT
#include "text/Clock.h"

#include "text/Product.h"

namespace lumerin {

LocalTime DocumentTime() {
    return services::Now(kClockVariable);
}

}  // namespace lumerin
