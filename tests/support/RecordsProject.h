// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "records/Evaluation.h"
#include "support/ResultProject.h"

namespace lumerin {

// The words of a force record that tests set.
enum ForceWords { kF22WordI = 1, kRatioI = 11, kRatioJ = 12, kFaxWordI = 13, kFaxWordJ = 14 };

// A project of two piles with two elements each and one element of section 1, whose force words are 0 where a
// test does not set them. Its block has five records: 1 and 2 of pile 1 from the head down, 3 and 4 of pile
// 2, 5 of the foundation. ELEM numbers: the foundation's is 1, those of the piles 2 to 5.
class RecordsProject : public ResultProject {
  public:
    RecordsProject() { substructures[0].rows.push_back({1, 6, 7, 1}); }

    // The case counts from 0, the record from 1.
    void Set(int loadCase, int record, int word, float value) { m_words[{loadCase, record, word}] = value; }
    void WriteAll() {
        Write([this](std::size_t, int c, int r, int w) {
            const auto found = m_words.find({c, r, w});
            return found == m_words.end() ? 0.0F : found->second;
        });
        WriteFile(".in", "");
    }
    // Makes the cases combinations of AASHTO-LRFD with these rows of the limit state list.
    void WriteLimitStates(const std::string& rows) {
        WriteFile(".LIM", "LIMIT STATES\nA= 1 F= 2\ntext\nmore text\n" + rows + ":\n");
    }

    const Evaluation& Evaluate(const CaseChoice& choice = {}, const Limits& limits = {}) {
        const Table& verdict = *FindTable("verdict");
        return Evaluate(verdict.needs, choice, limits);
    }
    const Evaluation& Evaluate(const TableNeeds& needs, const CaseChoice& choice = {},
                               const Limits& limits = {}) {
        m_evaluation.reset();
        m_opened = LoadByName(ProjectName(Base()));
        m_evaluation = std::make_unique<Evaluation>(*m_opened, choice, limits, needs);
        return *m_evaluation;
    }

  private:
    std::map<std::tuple<int, int, int>, float> m_words;
    std::unique_ptr<OpenProject> m_opened;
    std::unique_ptr<Evaluation> m_evaluation;
};

// The rows of a table as texts, absent cells empty; the first column, the project, is left out.
inline std::vector<std::vector<std::string>> RowsOf(const Evaluation& evaluation, const char* name,
                                                    UnitSystem system = UnitSystem::us) {
    std::vector<std::vector<std::string>> rows;
    EachRow(*FindTable(name), evaluation, system, [&](std::span<const Value> row) {
        std::vector<std::string>& texts = rows.emplace_back();
        for (const Value& value : row.subspan(1)) {
            std::string& text = texts.emplace_back();
            if (const auto* words = std::get_if<std::string_view>(&value)) text = *words;
            if (const auto* single = std::get_if<float>(&value)) AppendNumber(text, *single);
            if (const auto* real = std::get_if<double>(&value)) AppendNumber(text, *real);
            if (const auto* integer = std::get_if<std::int64_t>(&value)) text = std::to_string(*integer);
            if (const auto* flag = std::get_if<bool>(&value)) text = *flag ? "yes" : "no";
        }
    });
    return rows;
}

}  // namespace lumerin
