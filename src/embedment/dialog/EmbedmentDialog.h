// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/CaseSelection.h"
#include "model/DataSet.h"

namespace lumerin {

// The data of the study's dialog. The caller owns all of it and keeps it during the call.
struct EmbedmentInput {
    const std::string& inputFile;  // of the project
    const CDataSet& data;
    const CaseSelection& selection;
    bool allCases;  // the envelopes go over every case, whatever the selection
};

// Opens the dialog of the embedment study over the project, with the report dialog's format, and returns when
// it was closed.
void RunEmbedmentDialog(const EmbedmentInput& input, int format);

}  // namespace lumerin
