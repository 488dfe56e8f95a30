// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "records/Evaluation.h"

namespace lumerin {

// What `lumerin info` prints about a project.

struct SubstructureInfo {
    std::string type;
    int piles = 0, columns = 0, spans = 0, extraMembers = 0, bearings = 0;
    bool cantilevers = false;
    long long elements = 0;  // with forces
    long long masked = 0;    // cap elements that the model does not have
    int nodes = 0;           // of the model file's node list
    std::string forceFile;   // without its folder
    long long bytes = 0;     // of the force file
};

struct TableInfo {
    std::string name;    // as `lumerin report --table` takes it
    std::string reason;  // why it does not apply; empty: it applies
};

struct ClassCount {
    std::string name;  // empty: the cases have no classes
    int cases = 0;
};

struct CaseInfo {
    int number = 0;
    std::string title, limitState, className;
};

struct ProjectInfo {
    ProjectName name{""};
    ExitStatus status = kExitDone;
    std::string fault;  // why the project could not be loaded; else empty
    std::string title, code, units, kindOfCases;
    int analysed = 0, converged = 0;
    std::vector<ClassCount> classes;
    std::vector<SubstructureInfo> substructures;
    std::vector<TableInfo> tables;
    bool hasStudy = false;
    int trials = 0;
    bool hasReadForces = false;
    std::vector<Finding> findings;
    std::vector<CaseInfo> cases;  // where they were asked for
};

// Collects what the text and the JSON form print.
void Describe(const Evaluation& evaluation, bool withCases, ProjectInfo& info);

void PrintInfo(const ProjectInfo& info, std::ostream& out);
// One JSON object on one line.
void PrintInfoJson(const ProjectInfo& info, std::ostream& out);

}  // namespace lumerin
