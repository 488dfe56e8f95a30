// SPDX-License-Identifier: MIT
#include "framework/File.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "framework/NativePath.h"

namespace lumerin {

namespace {

CFileException::Cause CauseOf(int osError) {
    if (osError == ENOENT || osError == ENOTDIR) return CFileException::fileNotFound;
    if (osError == EACCES || osError == EPERM) return CFileException::accessDenied;
    return CFileException::generic;
}

std::string OpenFault(int osError) {
    switch (CauseOf(osError)) {
        case CFileException::fileNotFound:
            return "the file was not found";
        case CFileException::accessDenied:
            return "access to the file was denied";
        default:
            return "the file could not be opened (" + std::generic_category().message(osError) + ")";
    }
}

bool SeekTo(std::FILE* file, std::int64_t offset, int origin) {
#ifdef _WIN32
    return _fseeki64(file, offset, origin) == 0;
#else
    return fseeko(file, offset, origin) == 0;
#endif
}

}  // namespace

bool MakeFolders(const std::string& path) {
    if (path.empty() || IsFolder(path)) return true;
    const std::filesystem::path native = NativePath(path);
    const std::filesystem::path parent = native.parent_path();
    if (parent != native && !MakeFolders(FromNativePath(parent))) return false;
    std::error_code ignored;
    std::filesystem::create_directory(native, ignored);
    return IsFolder(path);
}

std::string FaultInWords(const std::error_code& fault) {
    if (fault == std::errc::device_or_resource_busy) return "another program has it open";
    const bool forbidden = fault == std::errc::permission_denied ||
                           fault == std::errc::operation_not_permitted ||
                           fault == std::errc::read_only_file_system;
    return forbidden ? "permission denied" : fault.message();
}

CFileException::CFileException(Cause cause, std::string fileName, const std::string& fault, long osError)
    : m_cause(cause), m_lOsError(osError), m_strFileName(std::move(fileName)) {
    m_strText = m_strFileName + ": " + fault;
}

CFile::CFile(const std::string& path) {
    CFileException failure(CFileException::none, path, "");
    if (!Open(path, &failure)) throw failure;
}

bool CFile::Open(const std::string& path, CFileException* error) {
    Close();
    m_strPath = path;
    const std::string found = FindFileAnyCase(path);
    int osError = found.empty() ? ENOENT : 0;
    if (osError == 0 && IsFolder(found)) osError = EISDIR;
    if (osError == 0) {
        errno = 0;
        m_file.reset(OpenForReading(found));
        if (m_file != nullptr) return true;
        osError = errno;
    }
    m_nOpenError = osError;
    if (error != nullptr) *error = CFileException(CauseOf(osError), path, OpenFault(osError), osError);
    return false;
}

void CFile::ThrowNotOpen() const {
    if (m_nOpenError == 0) {
        throw CFileException(CFileException::generic, m_strPath, "the file is not open for reading");
    }
    throw CFileException(CauseOf(m_nOpenError), m_strPath, OpenFault(m_nOpenError), m_nOpenError);
}

unsigned CFile::ReadBytes(void* buffer, unsigned count) {
    if (m_file == nullptr) ThrowNotOpen();
    const std::size_t got = std::fread(buffer, 1, count, m_file.get());
    if (got < count && std::ferror(m_file.get()) != 0) {
        throw CFileException(CFileException::generic, m_strPath, "the file could not be read", errno);
    }
    return static_cast<unsigned>(got);
}

void CFile::Seek(std::int64_t position) {
    if (m_file == nullptr) ThrowNotOpen();
    if (position < 0 || !SeekTo(m_file.get(), position, SEEK_SET)) {
        throw CFileException(CFileException::badFormat, m_strPath,
                             "a position outside the file was asked for");
    }
}

std::int64_t CFile::Length() const {
    if (m_file == nullptr) return 0;
    std::FILE* file = m_file.get();
#ifdef _WIN32
    const std::int64_t here = _ftelli64(file);
    SeekTo(file, 0, SEEK_END);
    const std::int64_t length = _ftelli64(file);
#else
    const std::int64_t here = ftello(file);
    SeekTo(file, 0, SEEK_END);
    const std::int64_t length = ftello(file);
#endif
    SeekTo(file, here, SEEK_SET);
    return length;
}

}  // namespace lumerin
