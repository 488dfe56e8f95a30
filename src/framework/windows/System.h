// SPDX-License-Identifier: MIT
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

// Names that the platform's header turns into macros and that are ours: the two identifiers have the same
// values, and a method keeps its name in every file.
#undef IDOK
#undef IDCANCEL
#undef SetWindowText
#undef GetWindowText
#undef DrawText
