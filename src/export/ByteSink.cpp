// SPDX-License-Identifier: MIT
#include "export/ByteSink.h"

#include "export/TableWriter.h"
#include "framework/File.h"
#include "results/ProjectFiles.h"
#include "text/Paths.h"

namespace lumerin {

std::string WhyNotWritten(const std::string& path) {
    const std::string folder = FolderOf(path).empty() ? "." : FolderOf(path);
    if (!IsFolder(folder)) return "there is no folder " + folder;
    if (IsFolder(path)) return "it is a folder: " + path;
    const std::error_code fault = ErrorOfWriting(path);
    return (fault ? FaultInWords(fault) : "cannot be written") + ": " + path;
}

void RequireDocumentName(const std::string& path) {
    if (HasNameOfProjectFile(path)) {
        throw ExportError("projects are read from files of this name, so no result is written to it: " +
                          path);
    }
    // Every other program of the machine would find a file in its place.
    const std::string folder = FolderOf(path);
    if (folder == "/dev/" || folder == "/dev/fd/" || folder.starts_with("/proc/")) {
        throw ExportError("it is a device, and - is standard output: " + path);
    }
}

FileSink::FileSink(const std::string& path) : m_path(path) {
    RequireDocumentName(path);
    if (!m_file.Open(path)) throw ExportError(WhyNotWritten(path));
}

void FileSink::Write(std::string_view bytes) {
    if (!m_file.Write(bytes.data(), bytes.size())) {
        throw ExportError("the file could not be stored whole: " + m_path);
    }
}

void FileSink::Commit() {
    if (m_file.Commit()) return;
    const std::error_code fault = ErrorOfWriting(m_path);
    throw ExportError((fault ? FaultInWords(fault) : "the file could not be stored whole") + ": " + m_path);
}

void StreamSink::Write(std::string_view bytes) {
    if (!m_out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
        throw ExportError("the standard output could not be written");
    }
}

void StreamSink::Commit() {
    if (!m_out.flush()) throw ExportError("the standard output could not be written");
}

}  // namespace lumerin
