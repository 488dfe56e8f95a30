#include "framework/File.h"
#include "framework/win32/Windows32.h"

// Windows finds files whatever their case. A path is bytes of the code page here, which the standard
// library's paths would take for another encoding.

std::string FindFileAnyCase(const std::string& path) {
    return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES ? std::string() : path;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}
