// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumerin {

// A document while it is written. The bytes go to a new file in the folder of `path`. It replaces the file of
// that name after all bytes are stored. Until then the earlier file is unchanged, and it stays so when a
// write fails, an exception is thrown or the process ends. A link or a pipe of that name is replaced, never
// followed. The temporary files of a killed process are removed by the first document that the next run makes
// in the folder.
//
// A file that may be written but not replaced (another program has it open, its folder is protected) is
// overwritten in place, after all bytes are complete.
class WholeFile {
  public:
    WholeFile() = default;
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    ~WholeFile() { Discard(); }

    // An open document is discarded first. False: nothing can be written under that name, because its folder
    // does not exist, or the name belongs to a folder, a device or a file that is protected against writing.
    bool Open(const std::string& path);
    bool IsOpen() const { return m_handle != kNoHandle; }
    // False: the file system stored only a part, and the document will not replace the earlier one.
    bool Write(const void* bytes, std::size_t count);
    // Closes the document and puts it in its place. False: the document is discarded and the earlier file is
    // unchanged. A file that is written in place can be left with a part of the new bytes when the disk
    // fills.
    bool Commit();
    // Discards the document; the earlier file is unchanged.
    void Discard() noexcept;

    // Called at the start of a call of the module: temporary files of killed processes are searched for
    // again.
    static void BeginRun() noexcept;
    // While it exists, all calls are one run. Else a batch would list the folder of its documents for each
    // project, which grows with every project.
    class Batch {
      public:
        Batch() noexcept;
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;
        ~Batch();
    };

  private:
    static constexpr std::intptr_t kNoHandle = -1;
    bool CreateBeside(const std::string& folder);
    bool Place();

    std::intptr_t m_handle = kNoHandle;
    std::string m_path;
    std::string m_temporary;  // empty: the bytes are in a file without a name
    bool m_failed = false;
};

}  // namespace lumerin
