// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/DataSet.h"

namespace lumerin {

// The state of one call of LaunchLumerin: what the host passed, the paths derived from it, and the report
// options of the press that is running. The module stays loaded between calls, so the strings outlive a call
// and are overwritten by the next one.

extern CDataSet g_DataSet;  // the project of the dialog; empty between two calls and after a failed load

extern std::string g_InputFilePath;         // the project's input file, as the host gave it
extern std::string g_ProjectBasePath;       // without its last three characters; empty: no project is open
extern std::string g_ProjectFolder;         // with its trailing separator
extern std::string g_ProjectFileName;       // file name part of the input file
extern std::string g_VersionText;           // the host's version
extern std::string g_VersionLabel;          // "v" + version, for the page footer
extern std::string g_EnvelopePlotArgument;  // passed to the plot module
extern std::string g_OutputFilePath;        // the table file that is being written
extern std::string g_HostProgramPath;       // stored, read by nothing
extern std::string g_HostTextA;             // stored, read by nothing
extern std::string g_HostTextB;             // stored, read by nothing

extern int g_InitialReportFormat;  // the format radio group starts on it

// Set to their start values by ResetSession.
extern bool g_DataLoaded;  // the project was read already for this call
extern int g_FooterOn, g_FooterDate, g_FooterTime, g_FooterVersion, g_FooterFileName;
extern int g_ReportFormat;   // copy of the format radio group; steers FormatCellText alone
extern bool g_AllLoadCases;  // the radio button "All Load Cases" is the selected one

// Start values for the options that go with a project. g_DataLoaded becomes true, so that a second show of
// the dialog in the same call skips the load.
void ResetSession();

// Removes one double quote from each end that has one.
void StripQuotes(std::string& text);

// Sets base path, folder and file name from g_InputFilePath. The folder keeps its earlier value when the
// path has no folder or ends in one.
void DerivePaths();

// Cuts from the end of `text` every character that occurs in `characters` (a set, not a suffix).
void TrimRightCharacters(std::string& text, const std::string& characters);

// The folder of the process's program, with its trailing separator.
std::string HostProgramFolder();
// The folder of the module, with its trailing separator.
std::string ModuleFolder();

}  // namespace lumerin
