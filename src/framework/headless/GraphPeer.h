// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Automation.h"
#include "framework/Backend.h"

namespace lumerin {

namespace headless {

// A graph control attaches its peer when the dialog binds it; the driver reads and clicks through the peer.
void AttachGraph(WindowHandle window, GraphPeer& peer);

}  // namespace headless

}  // namespace lumerin
