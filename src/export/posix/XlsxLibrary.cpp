// SPDX-License-Identifier: MIT
#include "export/XlsxLibrary.h"

#include <dlfcn.h>

#include <string>
#include <type_traits>

#include "export/TableWriter.h"

namespace lumerin {

namespace {

// Stays loaded: nothing is gained by its end before that of the program.
void* OpenLibrary() {
    void* handle = dlopen(LUMERIN_XLSX_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        throw ExportError("workbooks need the library " LUMERIN_XLSX_LIBRARY
                          ", which is not installed (in Debian: libxlsxwriter4)");
    }
    return handle;
}

XlsxLibrary Load() {
    void* handle = OpenLibrary();
    XlsxLibrary library;
    const auto find = [handle](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
        if (function == nullptr) {
            throw ExportError(std::string("the library " LUMERIN_XLSX_LIBRARY " has no function ") + name);
        }
    };
#define LUMERIN_XLSX_FIND(name) find(library.name, #name);
    LUMERIN_XLSX_FUNCTIONS(LUMERIN_XLSX_FIND)
#undef LUMERIN_XLSX_FIND
    return library;
}

}  // namespace

const XlsxLibrary& Xlsx() {
    static const XlsxLibrary library = Load();
    return library;
}

}  // namespace lumerin
