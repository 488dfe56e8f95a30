// SPDX-License-Identifier: MIT
#include "cli/ProjectArguments.h"

#include <fstream>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "framework/Backend.h"
#include "framework/File.h"
#include "framework/FolderNames.h"
#include "framework/NativePath.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// Empty lines are left out; a list that was written on Windows can begin with the mark of UTF-8 and ends its
// lines with two characters.
void ReadLines(std::istream& list, std::vector<std::string>& names) {
    bool isFirst = true;
    for (std::string line; std::getline(list, line); isFirst = false) {
        if (line.find('\0') != std::string::npos) {
            throw std::invalid_argument("the list of projects is no text in UTF-8");
        }
        if (isFirst && line.starts_with(kMarkOfUtf8)) line.erase(0, kMarkOfUtf8.size());
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty()) names.push_back(line);
    }
}

// The projects in the folder and the folders in it, sorted. A folder that cannot be listed stays in the list
// under its own name: it is reported as a project that was not loaded, and the others are done. Links to
// folders are not followed, so that a search always ends.
void AddProjectsBelow(const std::string& folder, std::vector<std::string>& names) {
    const std::vector<std::string> entries = EntriesStartingWith(folder, "");
    if (entries.empty()) {
        names.push_back(folder);
        return;
    }
    const bool ends = services::IsFolderSeparator(folder.back());
    for (const std::string& entry : entries) {
        if (entry == "." || entry == "..") continue;
        std::string path = folder;
        if (!ends) path += services::FolderSeparator();
        path += entry;
        const bool isFolder = IsRealFolder(path);
        const bool isInputFile = IsInputFile(path);
        if (isInputFile && (!isFolder || ProjectExists(ProjectName(path)))) {
            names.push_back(path);
        } else if (isFolder) {
            AddProjectsBelow(path, names);
        }
    }
}

// A name of the user as projects: itself, or those of a folder where it is no project.
void AddName(const std::string& name, std::vector<std::string>& names) {
    if (!IsFolder(name) || ProjectExists(ProjectName(name))) {
        names.push_back(name);
        return;
    }
    const std::size_t before = names.size();
    AddProjectsBelow(name, names);
    if (names.size() == before) names.push_back(name);
}

}  // namespace

void AddProjectArguments(CommandParser& command, ProjectArguments& arguments) {
    command.Add("PROJECT", arguments.given,
                "A project: its input file, with or without .in; or a folder, for all projects in it and "
                "in the folders below (*.in)");
    command
        .Add("--files-from", arguments.listFile,
             "Read more projects and folders from a file, one a line; - for standard input")
        .Takes("FILE");
}

std::vector<ProjectName> ReadProjects(const ProjectArguments& arguments) {
    std::vector<std::string> names;
    for (const std::string& given : arguments.given) {
        for (std::string& name : FilesNamedBy(given)) names.push_back(std::move(name));
    }
    if (arguments.listFile == "-") {
        ReadLines(std::cin, names);
    } else if (!arguments.listFile.empty()) {
        std::ifstream list(NativePath(arguments.listFile), std::ios::binary);
        if (!list) throw std::invalid_argument("the list " + arguments.listFile + " could not be read");
        ReadLines(list, names);
        if (list.bad()) throw std::invalid_argument("the list " + arguments.listFile + " could not be read");
    }
    if (names.empty()) throw std::invalid_argument("no project is given");
    std::vector<std::string> found;
    for (const std::string& name : names) {
        if (name.empty()) throw std::invalid_argument("the name of a project is empty");
        AddName(name, found);
    }
    return {found.begin(), found.end()};
}

void RequireOtherThanList(const ProjectArguments& arguments, const std::string& output) {
    if (arguments.listFile.empty() || arguments.listFile == "-") return;
    const FileStamp list = StampOf(arguments.listFile), other = StampOf(output);
    if (other.length >= 0 && list.volume == other.volume && list.index == other.index) {
        throw std::invalid_argument("-o " + output + " is the list of the projects");
    }
}

}  // namespace lumerin
