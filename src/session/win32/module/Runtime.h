// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// The compiler's run-time as the module needs it inside a host: an exception must find its handler whatever
// the process has loaded, and must not need memory that is out.

// Makes what the run-time would make at the first exception of the process and of this thread, and that it
// ends the process for when it gets no memory. False: there is not even the memory for that.
bool PrepareRuntime() noexcept;

}  // namespace lumerin
