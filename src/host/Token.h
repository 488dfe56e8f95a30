// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostWindows.h"

namespace lumerin {

// The token by which the module recognises this driver's queries.
namespace token {

// Chooses one at random and puts it into the environment; the module that is loaded next reads it there.
void Publish();
// Removes it from the environment, before any other program is started.
void Withdraw();
// The first parameter of every query.
WPARAM Get();

}  // namespace token

}  // namespace lumerin
