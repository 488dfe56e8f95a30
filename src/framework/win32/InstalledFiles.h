// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/win32/Windows32.h"

namespace lumerin {

// Finds programs and libraries that are installed on the machine. The platform's own searches also look into
// the current folder, which is often that of the documents, and would run a program that somebody has put
// there.
namespace win32 {

// Full path of a library in the host's folder, a folder of the system, or a folder of PATH. Neither the
// current folder nor `excluded` is searched, under whatever name PATH has them. Empty: there is no such file.
std::string FindLibrary(const std::string& name, const std::string& excluded);

// Full path of the program that is registered for `name` ("Excel.exe"). Empty: there is none.
std::string FindRegisteredProgram(const std::string& name);

// Null: the path is empty, or the library cannot be loaded.
HMODULE LoadFullPath(const std::string& path);
// Loads a library from the system's folder only. Null: it is not there.
HMODULE LoadSystemLibrary(const std::string& name);

}  // namespace win32

}  // namespace lumerin
