// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "envelopes/ResultTables.h"
#include "framework/Index.h"
#include "model/Applicability.h"
#include "model/CaseSelection.h"
#include "model/DataSet.h"
#include "results/ForceSource.h"
#include "text/Clock.h"

namespace lumerin {

// The parts of the page footer; nothing is printed where it is off.
struct FooterParts {
    bool on = false;
    bool date = false, time = false, version = false, fileName = false;
};

// What a report contains besides its numbers, as set in the dialog or on the command line at one press.
struct ReportOptions {
    FooterParts footer;
    ReportFormat format = kFormatSpreadsheet;  // used only by FormatCellText
    std::string versionText;                   // the host's version
    std::string versionLabel;                  // "v" and the version, for the footer
    // As documents show them, in the Western code page.
    std::string projectBasePath;  // the input file without its last three characters
    std::string projectFolder;    // with its trailing separator
    std::string projectFileName;
    int viewerFontSize = 0;                         // of the text viewer, in points; 0: not known
    std::function<LocalTime()> now = DocumentTime;  // the clock of dates and stamps
};

// The rows of all substructures, read when they are asked for. A file is opened with its first row and stays
// open for the life of the object, which is one press.
class RowReader {
  public:
    explicit RowReader(const ForceSources& forces) : m_forces(forces), m_rows(forces.size()) {}

    ForceRow At(std::size_t pier, int loadCase, int element) {
        std::unique_ptr<ForceRows>& rows = m_rows.at(pier);
        if (!rows) rows = m_forces[pier]->OpenRows();
        return rows->At(loadCase, element);
    }
    // All cases of a substructure in order, for a table that shows them all.
    void EachCase(std::size_t pier, const CaseTaker& take) const { m_forces.at(pier)->ReadCases(take); }

  private:
    const ForceSources& m_forces;
    std::vector<std::unique_ptr<ForceRows>> m_rows;
};

// Everything that a table is written from. A writer reads it and computes nothing; the caller owns all parts
// and keeps them for the call.
struct Report {
    const CDataSet& data;
    const CaseSelection& selection;
    const ResultTables& results;
    const TableFlags& enabled;  // the tables that apply to the project
    const ReportOptions& options;

    RowReader& rows;  // the forces of the rows that are shown

    // The fourteen forces of an element of a substructure in a load case; all three exist. Throws
    // CFileException.
    ForceRow Forces(const CPier& pier, int loadCase, int element) const {
        return rows.At(Index(&pier - data.m_Piers.data()), loadCase, element);
    }
};

}  // namespace lumerin
