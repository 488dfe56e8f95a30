// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Report.h"
#include "text/StoredStream.h"

namespace lumerin {

// Writes the data file of the envelope plotter, from the cap tables of both forms.
void WriteEnvelopeFile(const Report& report, StoredStream& out);

}  // namespace lumerin
