// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "records/OpenProject.h"
#include "script/CommandParser.h"

namespace lumerin {

// The projects of a command: PROJECT... and --files-from FILE|-.
struct ProjectArguments {
    std::vector<std::string> given;
    std::string listFile;  // a file with a project a line; "-": standard input; empty: none
};

// The variables must live as long as the parser.
void AddProjectArguments(CommandParser& command, ProjectArguments& arguments);

// The projects in order, first those of the command line; those of a folder are sorted by their paths. Throws
// std::invalid_argument with a text for the user when there is none, a name is empty, or the list cannot be
// read. Whether a project exists is not looked at; a folder without projects stays in the list, so that it is
// reported in its place.
std::vector<ProjectName> ReadProjects(const ProjectArguments& arguments);

// Throws std::invalid_argument when the output would replace the list.
void RequireOtherThanList(const ProjectArguments& arguments, const std::string& output);

}  // namespace lumerin
