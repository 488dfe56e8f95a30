// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "envelopes/ElementSearch.h"
#include "envelopes/ResultTables.h"
#include "model/CaseSelection.h"
#include "records/CaseChoice.h"
#include "records/ElementIdentity.h"
#include "records/Findings.h"
#include "records/OpenProject.h"
#include "records/Table.h"
#include "tables/Report.h"

namespace lumerin {

// What the results are held against, in the units of the project.
struct Limits {
    double ratio = 1.0;                                  // the greatest D/C that passes
    std::optional<double> pileCompression, pileTension;  // capacities of a pile head, both positive
};

// A project with everything that its tables of records need: one pass over the forces serves all.
class Evaluation {
  public:
    // Computes what `needs` asks for, all together. `project` must outlive the object. Throws
    // CFileException, and std::invalid_argument for a choice that fits no case.
    Evaluation(const OpenProject& project, const CaseChoice& cases, const Limits& limits,
               const TableNeeds& needs);

    const OpenProject& Opened() const { return m_project; }
    const CDataSet& Data() const { return m_project.project.data; }
    const CaseSelection& Selection() const { return m_selection; }
    const ResultTables& Results() const { return m_results; }
    const Limits& Bounds() const { return m_limits; }
    UnitSystem Units() const { return UnitSystemOf(Data().m_nUnits); }
    // By substructure; empty where the needs did not ask for elements.
    std::span<const ElementResults> Elements() const { return m_elements; }
    // The elements of each substructure that have forces, and the masked ones.
    std::span<const ElementIdentity> Identities(std::size_t pier) const { return m_identities.at(pier); }
    // Those of the files always; those of the forces when a pass was made.
    const std::vector<Finding>& Findings() const { return m_findings; }
    bool HasReadForces() const { return m_hasReadForces; }
    // The rows of single cases, read when they are asked for.
    RowReader& Rows() const { return m_rows; }

  private:
    const OpenProject& m_project;
    Limits m_limits;
    CaseSelection m_selection;
    ResultTables m_results;
    std::vector<ElementResults> m_elements;
    std::vector<std::vector<ElementIdentity>> m_identities;
    std::vector<Finding> m_findings;
    bool m_hasReadForces = false;
    mutable RowReader m_rows;
};

// All needs of a list of tables.
TableNeeds NeedsOf(std::span<const Table* const> tables);

}  // namespace lumerin
