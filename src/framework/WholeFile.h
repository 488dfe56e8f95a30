// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumerin {

// A document while it is written. The bytes go to a new file beside `path`, which takes the place of whatever
// has that name once all of them are stored. Until then, and for good when a write fails, an exception comes
// or the process is ended, the earlier file stays as it was. A link or a pipe of that name is replaced, never
// followed. What a killed process has left in a folder is cleared by the first document that the next run
// makes there.
//
// A file that may be written but not replaced (another program has it open, its folder is protected) gets the
// bytes in place, when all of them are there.
class WholeFile {
  public:
    WholeFile() = default;
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    ~WholeFile() { Discard(); }

    // An open document is discarded first. False: nothing can be written under that name, as there is no such
    // folder, or a folder, a device or a file that is protected against writing has it.
    bool Open(const std::string& path);
    bool IsOpen() const { return m_handle != kNoHandle; }
    // False: the file system took less than all of it, and the document will never be put in its place.
    bool Write(const void* bytes, std::size_t count);
    // Closes the document and puts it in its place. False: it is gone and the earlier file stays. A file that
    // is written in place can be left with a part of the new bytes when the disk fills.
    bool Commit();
    // Leaves the earlier file as it was.
    void Discard() noexcept;

    // A call of the module, or a project of a batch, begins: folders may hold left-overs again.
    static void BeginRun() noexcept;

  private:
    static constexpr std::intptr_t kNoHandle = -1;
    bool CreateBeside(const std::string& folder);
    bool Place();

    std::intptr_t m_handle = kNoHandle;
    std::string m_path;
    std::string m_temporary;  // empty: the bytes lie in a file without a name
    bool m_bFailed = false;
};

}  // namespace lumerin
