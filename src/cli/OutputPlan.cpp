// SPDX-License-Identifier: MIT
#include "cli/OutputPlan.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <system_error>

#include "cli/Suggest.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;

// The name with its placeholders replaced, without the extension.
std::string FilledName(const std::string& pattern, const PlannedDocument& document) {
    std::string name;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        if (pattern[at] != '{') {
            name += pattern[at];
            continue;
        }
        const std::size_t end = pattern.find('}', at);
        if (end == std::string::npos) throw std::invalid_argument("--name has a { without its }");
        const std::string word = pattern.substr(at + 1, end - at - 1);
        if (word == "project") {
            name += fs::path(document.project).filename().string();
        } else if (word == "table") {
            name += document.table;
        } else {
            throw std::invalid_argument("--name has no placeholder {" + word + "}" +
                                        Suggestion(word, {"project", "table"}, "{", "}") +
                                        " ({project}, {table})");
        }
        at = end;
    }
    if (name.empty() || name.find('/') != std::string::npos) {
        throw std::invalid_argument("--name makes no file name: \"" + name + "\"; folders go to -o");
    }
    return name;
}

std::string Described(const PlannedDocument& document) {
    return "the table " + document.table + " of " + document.project;
}

// The error of making a file in the folder; 0: none.
int ErrorOfNewFile(const std::string& folder) {
    std::string path = folder + "/.lumerin-XXXXXX";
    const int file = mkostemp(path.data(), O_CLOEXEC);
    if (file < 0) return errno;
    unlink(path.c_str());
    close(file);
    return 0;
}

}  // namespace

std::string PathOf(const OutputOptions& options, const PlannedDocument& document) {
    const fs::path usual(document.path);
    fs::path path = options.folder.empty() ? usual.parent_path() : fs::path(options.folder);
    path /= options.name.empty() ? usual.filename()
                                 : fs::path(FilledName(options.name, document) + usual.extension().string());
    return path.string();
}

std::string NormalPath(const std::string& path) {
    return fs::absolute(path).lexically_normal().string();
}

void RequireOwnPaths(const OutputOptions& options, const std::vector<PlannedDocument>& documents) {
    if (options.ToStandardOutput() && documents.size() > 1) {
        throw std::invalid_argument("standard output takes one document, not " +
                                    std::to_string(documents.size()));
    }
    std::map<std::string, PlannedDocument> taken;
    for (const PlannedDocument& document : documents) {
        const std::string path = PathOf(options, document);
        const auto [other, isNew] = taken.emplace(NormalPath(path), document);
        if (isNew) continue;
        throw std::invalid_argument("two documents have the name " + path + ": " + Described(other->second) +
                                    " and " + Described(document));
    }
}

std::string WriteFault(const std::string& path) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) return "a folder has this name: " + path;
    const fs::path parent = fs::path(path).parent_path();
    const std::string folder = parent.empty() ? "." : parent.string();
    if (!fs::is_directory(folder, ignored)) {
        return (fs::exists(folder, ignored) ? "not a folder: " : "no such folder: ") + folder;
    }
    int error = 0;
    if (fs::exists(path, ignored)) {
        const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        if (file < 0) error = errno;
        if (file >= 0) close(file);
    } else {
        error = ErrorOfNewFile(folder);
    }
    if (error == EACCES || error == EPERM || error == EROFS) return "permission denied: " + path;
    return error == 0 ? "" : std::generic_category().message(error) + ": " + path;
}

DocumentFolder::DocumentFolder() {
    std::error_code failure;
    const fs::path parent = fs::temp_directory_path(failure);
    m_path = (failure ? fs::path("/tmp") : parent) / "lumerin-XXXXXX";
    if (mkdtemp(m_path.data()) == nullptr) {
        throw std::runtime_error("no temporary folder could be made: " + m_path);
    }
}

DocumentFolder::~DocumentFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

}  // namespace lumerin
