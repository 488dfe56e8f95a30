// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "results/LoadProject.h"

namespace lumerin {

// Whether the name ends with .in, in letters of either case.
bool IsInputFile(std::string_view name);

// How a user names a project: by its input file ("pier.in") or without the extension ("pier"). Any other
// name keeps all its letters, so that "pierXYZ" is never the project "pier".
struct ProjectName {
    explicit ProjectName(std::string_view given);

    std::string basePath;   // without ".in"; the bytes that were given
    std::string inputFile;  // basePath and ".in", for messages and for the export of the module
    std::string name;       // basePath as UTF-8: the value of the column `project`
};

// A project exists when it has the file that counts its substructures, whether or not its input file is still
// there.
bool ProjectExists(const ProjectName& name);
// What a user reads about a project that does not exist; in the bytes of the name.
std::string MissingText(const ProjectName& name);

// A project that was loaded, with what was reported meanwhile.
struct OpenProject {
    ProjectName name;
    Project project;
    std::vector<std::string> messages;
};

// Loads a project. Throws std::runtime_error with a text for the user (without the project's name) when there
// is no such project, no case converged, or a file is missing or broken.
std::unique_ptr<OpenProject> LoadByName(const ProjectName& name);

}  // namespace lumerin
