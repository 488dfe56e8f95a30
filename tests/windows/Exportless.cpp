// SPDX-License-Identifier: MIT
// Replaces the plot module and has no export of its name.
extern "C" int __stdcall UnrelatedExport() {
    return 0;
}
