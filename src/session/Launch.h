// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// The one operation that the host calls. Opens the report dialog on a project and returns when it has ended.
//   reportFormat       the format that the dialog starts on: 0 spreadsheet, 1 PDF, 2 text; any other selects
//   none inputFile          full path of the project's input file, ending in ".in"; empty: no project is open
//   version            the host's version
//   textA, textB       stored, read by nothing
//   envelopeArgument   passed to the plot module
// A null text counts as empty. Returns 1 when the dialog was left by "Close", otherwise 0. Reports nothing
// itself and throws nothing. A call during another one, on any thread, returns 0 and changes nothing.
unsigned LaunchLumerin(int reportFormat, const char* inputFile, const char* version, const char* textA,
                       const char* textB, const char* envelopeArgument);

}  // namespace lumerin
