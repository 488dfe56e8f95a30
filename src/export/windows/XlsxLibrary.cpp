// SPDX-License-Identifier: MIT
#include "export/XlsxLibrary.h"

namespace lumerin {

namespace {

// The program has it linked in.
XlsxLibrary Linked() {
    XlsxLibrary library;
#define LUMERIN_XLSX_LINKED(name) library.name = &::name;
    LUMERIN_XLSX_FUNCTIONS(LUMERIN_XLSX_LINKED)
#undef LUMERIN_XLSX_LINKED
    return library;
}

}  // namespace

const XlsxLibrary& Xlsx() {
    static const XlsxLibrary library = Linked();
    return library;
}

}  // namespace lumerin
