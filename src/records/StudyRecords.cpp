// SPDX-License-Identifier: MIT
#include <array>

#include "embedment/EmbedmentResults.h"
#include "framework/Index.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"
#include "text/SilentMessages.h"

namespace lumerin {

namespace {

constexpr auto kEmbedmentColumns = JoinColumns(
    kProjectColumn,
    Column{"substructure", "number of the substructure that was studied", ColumnType::integer},
    Column{"trial", "number of the trial, from 1", ColumnType::integer, Quantity::none, true},
    Column{"embedment", "embedment length of the trial", ColumnType::real, Quantity::length},
    Column{"complete", "whether the trial ran to its end; one that did not has no values", ColumnType::flag},
    Column{"quantity", "lateral, lateral_x, lateral_y, max_axial or min_axial", ColumnType::text,
           Quantity::none, true},
    Column{"view", "case: the values of one case; max or min: the envelope over the chosen cases",
           ColumnType::text, Quantity::none, true},
    Column{"case", "number of the case; of an envelope, the case that has the value", ColumnType::integer,
           Quantity::none, true},
    Column{"displacement", "displacement of the pile heads; empty for axial forces", ColumnType::real,
           Quantity::displacement},
    Column{"axial_force", "axial force; empty for displacements", ColumnType::real, Quantity::force},
    Column{"pile", "number of the pile with the value", ColumnType::integer});

constexpr std::array<std::string_view, kQuantityCount> kQuantityKeys{"lateral", "lateral_x", "lateral_y",
                                                                     "max_axial", "min_axial"};

class StudyRows {
  public:
    StudyRows(const Evaluation& evaluation, const CEmbedmentResults& study, const RowTaker& take)
        : m_evaluation(evaluation), m_study(study), m_row(evaluation.Opened().name.name, take) {}

    void Run() {
        for (int trial = 0; trial < m_study.GetTrialCount(); ++trial) {
            for (int quantity = 0; quantity < kQuantityCount; ++quantity) AddQuantity(trial, quantity);
        }
    }

  private:
    void AddQuantity(int trial, int quantity) {
        if (m_study.IsTrialIncomplete(trial)) {
            Add(trial, quantity, "case", -1);
            return;
        }
        int greatest = -1, least = -1;
        for (int c = 0; c < m_study.GetCaseCount(); ++c) {
            if (!m_evaluation.Selection().IsCaseSelected(c)) continue;
            Add(trial, quantity, "case", c);
            const double value = m_study.GetValue(trial, c, quantity);
            if (greatest < 0 || value > m_study.GetValue(trial, greatest, quantity)) greatest = c;
            if (least < 0 || value < m_study.GetValue(trial, least, quantity)) least = c;
        }
        if (greatest < 0) return;
        Add(trial, quantity, "max", greatest);
        Add(trial, quantity, "min", least);
    }

    // A case below 0: the trial is incomplete.
    void Add(int trial, int quantity, std::string_view view, int loadCase) {
        const bool complete = loadCase >= 0;
        m_row.Begin(Index(std::max(m_study.GetSubstructure(), 0))).Integer(trial + 1LL);
        if (complete) {
            m_row.Number(m_study.GetEmbedment(trial));
        } else {
            m_row.Absent();
        }
        m_row.Flag(complete).Text(kQuantityKeys[Index(quantity)]).Text(view).IntegerFrom(1, loadCase + 1LL);
        if (!complete) {
            m_row.Absent(3).Hand();
            return;
        }
        const double value = m_study.GetValue(trial, loadCase, quantity);
        if (quantity < kMaxAxial) {
            m_row.Number(value).Absent();
        } else {
            m_row.Absent().Number(value);
        }
        m_row.Integer(m_study.GetLocation(trial, loadCase, quantity)).Hand();
    }

    const Evaluation& m_evaluation;
    const CEmbedmentResults& m_study;
    RowBuffer m_row;
};

void EmbedmentRows(const Evaluation& evaluation, const RowTaker& take) {
    const std::string& input = evaluation.Opened().name.inputFile;
    if (!HasEmbedmentStudy(input)) return;
    SilentMessages messages;
    CEmbedmentResults study(input, messages);
    study.LoadTrials();
    StudyRows(evaluation, study, take).Run();
}

constexpr std::array<Table, 1> kTablesOfStudy{{
    {"embedment",
     "a trial of the embedment study, a quantity, and a case or envelope",
     kEmbedmentColumns,
     {},
     EmbedmentRows},
}};

}  // namespace

const std::span<const Table> kStudyTables = kTablesOfStudy;

}  // namespace lumerin
