// SPDX-License-Identifier: MIT
// Calls of the C library that a test lets fail. The linker sends the product's own calls through here.
#pragma once

#include <atomic>

namespace lumerin {

namespace faulty {

// How many more calls succeed before one fails; below 0 all do. The one that fails sets it to -1.
extern std::atomic<long> g_allocationsLeft;  // operator new
extern long g_writesLeft;  // of files: the failing call stores half of its bytes, as a disk does that fills
// At the write of that number the process is killed, with half of the bytes stored.
extern long g_writesToDeath;

}  // namespace faulty

}  // namespace lumerin
