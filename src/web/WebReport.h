// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Backend.h"
#include "records/Evaluation.h"
#include "web/Page.h"

namespace lumerin {

// The report of a project as one web page: cover, verdict, findings, figures, signs, the printed tables 0 to
// 7 with the characters of the text form, the range of the pile heads, and the list of the cases.

struct WebReportTexts {
    LocalTime now;
    std::string hostVersion;  // empty: not known
};

// What an evaluation must have for the page.
TableNeeds WebReportNeeds();

// Memory grows with the results, never with the cases. Throws CFileException, and what the output throws.
void WriteWebReport(const Evaluation& evaluation, const WebReportTexts& texts, const PageOutput& output);

}  // namespace lumerin
