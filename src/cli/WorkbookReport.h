// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "records/Evaluation.h"

namespace lumerin {

// The workbook that an engineer opens: a cover with the texts of the project, verdict and findings, then the
// tables under the titles of the printed ones, those that have rows.
TableNeeds WorkbookReportNeeds();
// Throws ExportError when the workbook cannot be written.
void WriteWorkbookReport(const Evaluation& evaluation, const std::string& path);

}  // namespace lumerin
