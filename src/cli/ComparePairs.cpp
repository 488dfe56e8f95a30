// SPDX-License-Identifier: MIT
#include "cli/ComparePairs.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

#include "cli/ProjectArguments.h"
#include "framework/File.h"
#include "framework/NativePath.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;

// Paths inside the folder, without extension.
std::set<std::string> ProjectsIn(const std::string& folder) {
    std::set<std::string> names;
    for (const ProjectName& project : ReadProjects({{folder}, {}})) {
        // A folder without projects is in the list itself.
        if (project.basePath != folder) {
            names.insert(FromNativePath(NativePath(project.basePath).lexically_relative(NativePath(folder))));
        }
    }
    return names;
}

std::string FileName(const std::string& name) {
    return FromNativePath(NativePath(name).filename());
}

// The only name of the set with that file name; empty: there is none, or several.
std::string OnlyOneNamed(const std::set<std::string>& names, const std::string& fileName) {
    std::string only;
    for (const std::string& name : names) {
        if (FileName(name) != fileName) continue;
        if (!only.empty()) return {};
        only = name;
    }
    return only;
}

// Names of both sides: the same in both, then those that only the last part makes the same.
std::vector<std::pair<std::string, std::string>> MatchNames(std::set<std::string> before,
                                                            std::set<std::string> after) {
    std::vector<std::pair<std::string, std::string>> pairs;
    std::set<std::string> same;
    std::ranges::set_intersection(before, after, std::inserter(same, same.end()));
    for (const std::string& name : same) {
        pairs.emplace_back(name, name);
        before.erase(name);
        after.erase(name);
    }
    std::map<std::string, std::string> moved;
    for (const std::string& name : before) {
        const std::string now = OnlyOneNamed(after, FileName(name));
        if (!now.empty() && OnlyOneNamed(before, FileName(name)) == name) moved.emplace(name, now);
    }
    for (const auto& [name, now] : moved) {
        pairs.emplace_back(name, now);
        before.erase(name);
        after.erase(now);
    }
    for (const std::string& name : before) pairs.emplace_back(name, "");
    for (const std::string& name : after) pairs.emplace_back("", name);
    return pairs;
}

ProjectName NameIn(const std::string& folder, const std::string& name) {
    return ProjectName(FromNativePath(NativePath(folder) / NativePath(name + ".in")));
}

bool IsFolderOfProjects(const std::string& given) {
    return IsFolder(given) && !ProjectExists(ProjectName(given));
}

}  // namespace

std::vector<ProjectPair> FindPairs(const std::string& before, const std::string& after) {
    if (before.empty() || after.empty()) throw std::invalid_argument("the name of a project is empty");
    const bool folders = IsFolderOfProjects(before);
    if (folders != IsFolderOfProjects(after)) {
        throw std::invalid_argument((folders ? before : after) + " is a folder, and " +
                                    (folders ? after : before) +
                                    " is not; two projects or two folders can be compared");
    }
    if (!folders) {
        const ProjectName old(before), now(after);
        return {{now.name, old, now}};
    }
    std::vector<ProjectPair> pairs;
    for (const auto& [old, now] : MatchNames(ProjectsIn(before), ProjectsIn(after))) {
        ProjectPair& pair = pairs.emplace_back();
        pair.name = ToUtf8(now.empty() ? old : now);
        if (!old.empty()) pair.before = NameIn(before, old);
        if (!now.empty()) pair.after = NameIn(after, now);
    }
    if (pairs.empty()) throw std::invalid_argument("there is no project in " + before + " and in " + after);
    std::ranges::stable_sort(pairs, {}, &ProjectPair::name);
    return pairs;
}

}  // namespace lumerin
