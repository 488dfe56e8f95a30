// SPDX-License-Identifier: MIT
#include "cli/OutputPlan.h"

#include <filesystem>
#include <map>
#include <stdexcept>
#include <system_error>

#include "cli/Suggest.h"
#include "framework/File.h"
#include "framework/NativePath.h"
#include "text/Paths.h"

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
            name += FromNativePath(NativePath(document.project).filename());
        } else if (word == "table") {
            name += document.table;
        } else {
            throw std::invalid_argument("--name has no placeholder {" + word + "}" +
                                        Suggestion(word, {"project", "table"}, "{", "}") +
                                        " ({project}, {table})");
        }
        at = end;
    }
    if (name.empty() || !FolderOf(name).empty()) {
        throw std::invalid_argument("--name makes no file name: \"" + name + "\"; folders go to -o");
    }
    return name;
}

std::string Described(const PlannedDocument& document) {
    return "the table " + document.table + " of " + document.project;
}

}  // namespace

std::string PathOf(const OutputOptions& options, const PlannedDocument& document) {
    const fs::path usual = NativePath(document.path);
    fs::path path = options.folder.empty() ? usual.parent_path() : NativePath(options.folder);
    path /= options.name.empty() ? usual.filename()
                                 : NativePath(FilledName(options.name, document)) += usual.extension();
    return FromNativePath(path);
}

std::string NormalPath(const std::string& path) {
    return PathButForCase(FromNativePath(fs::absolute(NativePath(path)).lexically_normal()));
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
    if (IsFolder(path)) return "a folder has this name: " + path;
    const fs::path parent = NativePath(path).parent_path();
    const std::string folder = parent.empty() ? "." : FromNativePath(parent);
    if (!IsFolder(folder)) {
        return (FindFileAnyCase(folder).empty() ? "no such folder: " : "not a folder: ") + folder;
    }
    const std::error_code fault = ErrorOfWriting(path);
    return fault ? FaultInWords(fault) + ": " + path : "";
}

}  // namespace lumerin
