// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "envelopes/Collect.h"
#include "results/LoadProject.h"
#include "tables/Report.h"

namespace lumerin {

// A project as the dialog holds it, for measurements. A message of the load or a search ends the measurement.
class MeasuredProject {
  public:
    explicit MeasuredProject(const std::string& basePath) : m_project(Load(basePath)) {}

    void Collect(TableId table) {
        Complaints messages;
        CollectTable(table, {m_project.data, m_project.forces, m_selection, messages}, m_results);
    }
    void CollectAll() {
        Complaints messages;
        const SearchPass pass({m_project.data, m_project.forces, m_selection, messages}, kSearchedTables);
        for (const TableId table : kSearchedTables) pass.Store(table, m_results);
    }

    const CDataSet& Data() const { return m_project.data; }
    const ResultTables& Results() const { return m_results; }
    const ForceSources& Forces() const { return m_project.forces; }
    // One row reader for each document.
    Report MakeReport(RowReader& rows) const {
        return {m_project.data, m_selection, m_results, m_enabled, m_options, rows};
    }

  private:
    struct Complaints : Messages {
        void Show(const std::string& text) override { throw std::runtime_error(text); }
    };
    static Project Load(const std::string& basePath) {
        Complaints messages;
        return LoadProject(basePath, messages).value();
    }

    Project m_project;
    CaseSelection m_selection{m_project.data};
    ResultTables m_results{m_project.data};
    TableFlags m_enabled = ApplicableTables(m_project.data, m_selection);
    ReportOptions m_options;
};

}  // namespace lumerin
