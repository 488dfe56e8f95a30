// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/OpenProject.h"

namespace lumerin {

// A project in its two runs. One of them is missing where only one of two folders has the project.
struct ProjectPair {
    std::string name;  // UTF-8: of two folders the path in them, else the later project's name
    std::optional<ProjectName> before, after;
};

// The pairs that two arguments of the command line name: two projects, or two folders with the projects that
// ReadProjects finds in them. Projects of folders are matched by their paths in the folders; what is then
// left on both sides, by the name of the project alone where it is the only one of that name on each side. In
// the order of their names. Throws std::invalid_argument with a text for the user: a folder and a project, or
// folders without any project.
std::vector<ProjectPair> FindPairs(const std::string& before, const std::string& after);

}  // namespace lumerin
