// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/DataSet.h"
#include "results/ForceSource.h"

namespace lumerin {

// What is wrong or incomplete in the data of a project, although they could be read.

enum class Severity { note, warning, error };
std::string_view SeverityName(Severity severity);  // "note", "warning", "error"

struct Finding {
    std::string code;  // "missing-records"; the same word in every release
    Severity severity = Severity::note;
    int substructure = 0;    // from 1; 0: the whole project
    std::string file;        // its name without folder; empty: no single file
    std::string text;        // one sentence for the engineer, UTF-8
    long long count = 1;     // of what the text says
    std::string firstPlace;  // "case 3, element 18, end I, M33"; empty: no single place
};

// The findings of the files beside the project, for which no force is read.
std::vector<Finding> FindInFiles(const std::string& basePath, const CDataSet& data,
                                 const ForceSources& forces);
// Those of the forces; `checks` by substructure, from a pass over all cases.
std::vector<Finding> FindInForces(const CDataSet& data, const ForceSources& forces,
                                  std::span<const FiniteForces> checks);
// Incomplete trials of the embedment study; none where the project has no study.
std::vector<Finding> FindInStudy(const std::string& inputFile);

bool HasError(std::span<const Finding> findings);
// One line: "error: missing-records: bridge.vmd: 12 force records are missing (first: case 3, element 18)".
std::string LineOf(const Finding& finding);

}  // namespace lumerin
