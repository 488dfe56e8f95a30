// SPDX-License-Identifier: MIT
#include "records/Evaluation.h"

#include <algorithm>
#include <string>

#include "envelopes/Collect.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

// No cap message is expected of a loaded project twice, once for each search; what there is comes once.
class MessagesOnce : public Messages {
  public:
    void Show(const std::string& text) override {
        if (std::ranges::find(texts, text) == texts.end()) texts.push_back(text);
    }
    std::vector<std::string> texts;
};

// The searches of an evaluation, fed by one pass.
class Searches {
  public:
    Searches(const Project& project, const CaseSelection& selection, const TableNeeds& needs,
             Messages& messages)
        : m_project(project) {
        for (const TableId table : kSearchedTables) {
            if ((needs.searches >> Index(table) & 1U) != 0) m_tables.push_back(table);
        }
        if (!needs.elements) return;
        for (std::size_t p = 0; p < project.data.m_Piers.size(); ++p) {
            const PierInput input{project.data.m_Piers[p], selection, messages};
            m_elements.emplace_back(input, static_cast<int>(project.forces[p]->Layout().others.size()));
        }
    }

    SearchPass Run(const CaseSelection& selection, Messages& messages) {
        SearchPass::Taker take;
        if (!m_elements.empty()) {
            take = [this](std::size_t p, int loadCase, CaseForces forces) {
                m_elements[p].Take(loadCase, forces);
            };
        }
        return SearchPass({m_project.data, m_project.forces, selection, messages}, m_tables, take);
    }

    void Store(const SearchPass& pass, ResultTables& results, std::vector<ElementResults>& elements) {
        for (const TableId table : m_tables) pass.Store(table, results);
        for (ElementSearch& search : m_elements) elements.push_back(search.TakeResults());
    }

  private:
    const Project& m_project;
    std::vector<TableId> m_tables;
    std::vector<ElementSearch> m_elements;
};

}  // namespace

Evaluation::Evaluation(const OpenProject& project, const CaseChoice& cases, const Limits& limits,
                       const TableNeeds& needs)
    : m_project(project),
      m_limits(limits),
      m_selection(Select(project.project.data, cases)),
      m_results(project.project.data),
      m_rows(project.project.forces) {
    const Project& data = project.project;
    m_findings = FindInFiles(project.name.basePath, data.data, data.forces);
    if (needs.searches != 0 || needs.elements || needs.soundness) {
        MessagesOnce messages;
        Searches searches(data, m_selection, needs, messages);
        const SearchPass pass = searches.Run(m_selection, messages);
        searches.Store(pass, m_results, m_elements);
        m_hasReadForces = true;
        for (Finding& finding : FindInForces(data.data, data.forces, pass.Finite())) {
            m_findings.push_back(std::move(finding));
        }
    }
    for (Finding& finding : FindInStudy(project.name.inputFile)) m_findings.push_back(std::move(finding));
    for (std::size_t p = 0; p < data.data.m_Piers.size(); ++p) {
        m_identities.push_back(IdentifyElements(data.data.m_Piers[p], data.forces[p]->Layout()));
    }
}

TableNeeds NeedsOf(std::span<const Table* const> tables) {
    TableNeeds needs;
    for (const Table* table : tables) needs.Add(table->needs);
    return needs;
}

}  // namespace lumerin
