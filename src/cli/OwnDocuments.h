// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Options.h"
#include "records/CaseChoice.h"
#include "records/Evaluation.h"
#include "records/OpenProject.h"

namespace lumerin {

// The documents of a project that the dialogs do not have, each with all tables in one file.

struct OwnDocument {
    std::string_view format;  // as --format takes it
    std::string_view ending;  // of the file after the project's name: "_Report.xlsx"
    TableNeeds (*needs)();
    // Throws ExportError when the file cannot be written.
    void (*write)(const Evaluation& evaluation, const CommonOptions& common, const std::string& path);
};

std::span<const OwnDocument> OwnDocuments();
// Null: there is no such document.
const OwnDocument* FindOwnDocument(std::string_view format);

// What --format of report takes: the formats of the dialogs and these documents.
std::vector<std::string> ReportFormats();

// The needs of several of them together.
TableNeeds NeedsOf(std::span<const OwnDocument* const> documents);

}  // namespace lumerin
