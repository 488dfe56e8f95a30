// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lumerin {

// What WholeFile needs from the platform. These functions throw only when there is no memory.
namespace wholefile {

using Handle = std::intptr_t;
inline constexpr Handle kNoHandle = -1;

enum class Target {
    absent,       // there is no file of the name, as far as the process can see
    file,         // a file that may be written
    replaceable,  // a link or a pipe
    refused,      // a folder, a device, or a file that is protected against writing
};
// Does not follow links, and opens regular files only.
Target LookAt(const std::string& path);

// The folder of a path, with the separator after it; empty where the path has none.
std::string FolderPart(const std::string& path);

// Each platform finds out by its own locks which files are still being written. So the temporary files of
// each have an ending of their own, and each removes only its own.
extern const std::string_view kTemporaryEnding;
// Eleven characters, so that the path of the temporary file is no longer than a document's path may be.
std::string TemporaryName(std::uint32_t number);
bool IsTemporaryName(std::string_view name);

// A new file for reading and writing, which no other process clears while it is open. `taken`: the name is in
// use; another name may work.
Handle CreateNew(const std::string& path, bool& taken);
// A new file in the system's folder for temporary files, which is deleted when it is closed, also by the end
// of the process.
Handle CreateNameless();
// Gives the new file the access rights of the one that it will replace, as far as the process may.
void CopyRights(Handle handle, const std::string& from) noexcept;
bool Write(Handle handle, const void* bytes, std::size_t count) noexcept;
// Has the file system store all that was written. False: it could not.
bool Settle(Handle handle) noexcept;
// Renames the open file `from` to `to`, which it replaces.
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
