// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// The compiler's run-time as the module needs it inside a host: an exception must find its handler whatever
// the process has loaded, also when there is no memory.

// Allocates what the run-time would allocate at the first exception of the process and of this thread;
// without memory it would end the process there. False: there is no memory for it now.
bool PrepareRuntime() noexcept;

}  // namespace lumerin
