// SPDX-License-Identifier: MIT
#pragma once

#include "model/DataSet.h"
#include "text/KeyedLine.h"

namespace lumerin {

// The readers of the project's keyed text file. Each scans the stream for its section from the beginning and
// stops after the first; a stream that could not be opened is empty.

// The cross-sections of columns and caps. The flags of a substructure's block carry over to the next one, the
// other keys from line to line.
void ReadPierSections(ifstreamex& file, CDataSet& data);
// The project's texts. False: there is no such section.
bool ReadProjectData(ifstreamex& file, CDataSet& data);
// The location of each substructure. False: there is no such section.
bool ReadPierData(ifstreamex& file, CDataSet& data);

// Moves on to the line after the one that begins with the keyword. False: there is none.
bool FindSection(ifstreamex& file, std::string_view keyword);

}  // namespace lumerin
