#include "results/ProjectFiles.h"

#include "framework/File.h"
#include "session/Session.h"

namespace {
std::string AsItLies(const std::string& path) {
    const std::string found = FindFileAnyCase(path);
    return found.empty() ? path : found;
}
}  // namespace

std::string ProjectFile(const char* suffix) {
    return AsItLies(g_ProjectBasePath + suffix);
}

std::string SubstructureFile(const char* suffix, int number) {
    const std::string path = g_ProjectBasePath + suffix;
    return AsItLies(number > 1 ? path + std::to_string(number) : path);
}
