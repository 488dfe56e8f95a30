// SPDX-License-Identifier: MIT
#include "cli/ProjectArguments.h"

#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace lumerin {

namespace {

// Empty lines are passed over; a list that was written on Windows ends its lines with two characters.
void ReadLines(std::istream& list, std::vector<std::string>& names) {
    for (std::string line; std::getline(list, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty()) names.push_back(line);
    }
}

}  // namespace

void AddProjectArguments(CLI::App& command, ProjectArguments& arguments) {
    command.add_option("PROJECT", arguments.given, "A project: its input file, with or without .in")
        ->type_name("");
    command
        .add_option("--files-from", arguments.listFile,
                    "Read more projects from a file, one a line; - for standard input")
        ->type_name("FILE");
}

std::vector<ProjectName> ReadProjects(const ProjectArguments& arguments) {
    std::vector<std::string> names = arguments.given;
    if (arguments.listFile == "-") {
        ReadLines(std::cin, names);
    } else if (!arguments.listFile.empty()) {
        std::ifstream list(arguments.listFile);
        if (!list) throw std::invalid_argument("the list " + arguments.listFile + " could not be read");
        ReadLines(list, names);
        if (list.bad()) throw std::invalid_argument("the list " + arguments.listFile + " could not be read");
    }
    if (names.empty()) throw std::invalid_argument("no project is given");
    std::vector<ProjectName> projects;
    for (const std::string& name : names) {
        if (name.empty()) throw std::invalid_argument("the name of a project is empty");
        projects.emplace_back(name);
    }
    return projects;
}

}  // namespace lumerin
