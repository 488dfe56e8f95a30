// SPDX-License-Identifier: MIT
// Stands where the plot module would and has no export of its name.
extern "C" int __stdcall UnrelatedExport() {
    return 0;
}
