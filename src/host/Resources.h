// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>

namespace lumerin {

// The resources of the machine that this process holds, those of loaded modules included. A resource that is
// never released shows as a count that grows from round to round.
struct Resources {
    unsigned gdi = 0;        // pens, brushes, fonts, bitmaps, device contexts
    unsigned user = 0;       // windows, menus, icons, accelerator tables
    unsigned handles = 0;    // of the kernel: files, registry keys, events, processes
    unsigned files = 0;      // those of them that are files or folders on a disk
    std::size_t heap = 0;    // bytes that are allocated and not freed, in all heaps
    std::size_t memory = 0;  // bytes that are this process's own
};

Resources CountResources();

// A line of JSON for a round that was played.
void PrintRound(std::ostream& out, int round, const Resources& resources);

// Takes one of each and never releases it; the counts must show it.
void LeakOneOfEach();

}  // namespace lumerin
