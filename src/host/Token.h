// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostWindows.h"

namespace lumerin {

// The token by which the module knows this driver's questions.
namespace token {

// Chooses one at random and puts it into the environment; the module that is loaded next reads it there.
void Publish();
// Takes it out of the environment again, before any other program is started.
void Withdraw();
// The first parameter of every question.
WPARAM Get();

}  // namespace token

}  // namespace lumerin
