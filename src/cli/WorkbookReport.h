// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "records/CaseChoice.h"
#include "records/Evaluation.h"
#include "records/Findings.h"
#include "records/OpenProject.h"

namespace lumerin {

// The workbook that an engineer opens: a cover with the texts of the project, verdict and findings, then the
// tables under the titles of the printed ones, those that have rows.
struct WorkbookReportRequest {
    ProjectName project;
    CaseChoice cases;
    Limits limits;
    bool strict = false;  // write nothing where the data have errors
    std::string path;     // of the workbook
};

struct WorkbookReportResult {
    std::vector<std::string> messages;  // of the load
    std::vector<Finding> findings;
    bool isWritten = false;
};

// The usual path: beside the project.
std::string WorkbookReportPath(const ProjectName& project);

// Throws std::invalid_argument for a choice that fits no case, ExportError when the workbook cannot be
// written, and another std::exception when the project cannot be read.
WorkbookReportResult WriteWorkbookReport(const WorkbookReportRequest& request);

}  // namespace lumerin
