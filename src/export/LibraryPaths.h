// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// How the libraries of the exports are given paths.

// An existing folder as std::fopen takes it, of which libxlsxwriter makes its temporary files. Empty: it has
// no such name, since the code page lacks letters of it.
std::string FolderForFopen(const std::string& folder);

// A path as SQLite takes it: UTF-8, with the prefix of long paths where the platform has one.
std::string PathForSqlite(const std::string& path);
// SQLite's name of the file functions that take paths of any length; null: those that it takes by itself.
const char* SqliteFileFunctions();

}  // namespace lumerin
