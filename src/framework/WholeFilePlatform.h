// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lumerin {

// What WholeFile asks of the platform. Nothing here throws but for want of memory.
namespace wholefile {

using Handle = std::intptr_t;
inline constexpr Handle kNoHandle = -1;

enum class Target {
    absent,       // nothing has the name, as far as can be seen
    file,         // a file that may be written
    replaceable,  // a link or a pipe
    refused,      // a folder, a device, or a file that is protected against writing
};
// Follows no link, and opens nothing but a file.
Target LookAt(const std::string& path);

// The folder of a path, with the separator after it; empty where the path has none.
std::string FolderPart(const std::string& path);

// Each platform knows by its own locks which files are still written, so each has its own ending and clears
// no other files than these.
extern const std::string_view kTemporaryEnding;
// Eleven characters: a path that its document fits in holds its temporary file, too.
std::string TemporaryName(std::uint32_t number);
bool IsTemporaryName(std::string_view name);

// A new file for reading and writing, which no other process clears while it is open. `taken`: the name is in
// use, another one may do.
Handle CreateNew(const std::string& path, bool& taken);
// A new file in the system's folder for temporary files, which is gone when it is closed, whatever closes it.
Handle CreateNameless();
// Gives the new file the rights of the one that it will replace, as far as that is simple.
void CopyRights(Handle handle, const std::string& from) noexcept;
bool Write(Handle handle, const void* bytes, std::size_t count) noexcept;
// Has the file system store all that was written. False: it could not.
bool Settle(Handle handle) noexcept;
// Puts the open file `from` in the place of `to`.
bool Rename(Handle handle, const std::string& from, const std::string& to);
// Copies the open file into an existing one, which is no link.
bool CopyInto(Handle handle, const std::string& to);
void Close(Handle handle) noexcept;
// Closes the open file and removes it.
void Remove(Handle handle, const std::string& path) noexcept;

// Removes the temporary files of the folder that no process has open.
void RemoveLeftOvers(const std::string& folder);

}  // namespace wholefile

}  // namespace lumerin
