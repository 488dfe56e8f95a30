// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace lumerin {

// Where documents go.
struct OutputOptions {
    std::string folder;  // empty: beside each project; "-": standard output
    std::string name;    // with {project} and {table}; empty: the usual name

    bool ToStandardOutput() const { return folder == "-"; }
    // Whether each document has its usual path.
    bool IsUsual() const { return folder.empty() && name.empty(); }
};

struct PlannedDocument {
    std::string project;  // base path
    std::string table;    // short name
    std::string path;     // the usual one
};

// The path of the document in place of its usual one: another folder, another name, the same extension.
// Throws std::invalid_argument for a placeholder that does not exist and a name with a folder in it.
std::string PathOf(const OutputOptions& options, const PlannedDocument& document);

// The path as one text, however it was written, for comparison.
std::string NormalPath(const std::string& path);

// Throws std::invalid_argument when two documents would get one path, or several would go to standard
// output.
void RequireOwnPaths(const OutputOptions& options, const std::vector<PlannedDocument>& documents);

// Why a document could not be written, as a person says it: "permission denied: PATH". Empty: no reason is
// found; the disk may be full.
std::string WriteFault(const std::string& path);

}  // namespace lumerin
