// SPDX-License-Identifier: MIT
#include "compare/Structure.h"

#include <algorithm>
#include <map>
#include <utility>

#include "framework/Index.h"
#include "model/CapChain.h"
#include "tables/CapRows.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr double kInchesOfAFoot = 12.0;

// Something of a model by its name: words that must be the same, and lengths that may differ by a rounding.
struct Fact {
    std::string_view kind;
    std::string words;
    std::vector<double> lengths;  // ft or m
};

// By what it is of. Two of one name are told apart by a count.
class Facts {
  public:
    void Add(std::string_view kind, const std::string& name, std::string words, std::vector<double> lengths) {
        const int earlier = m_counts[name]++;
        const std::string own = earlier == 0 ? name : name + " (" + std::to_string(earlier + 1) + ")";
        m_order.push_back(own);
        m_facts.emplace(own, Fact{kind, std::move(words), std::move(lengths)});
    }
    const std::vector<std::string>& Order() const { return m_order; }
    const Fact* Find(const std::string& name) const {
        const auto found = m_facts.find(name);
        return found == m_facts.end() ? nullptr : &found->second;
    }
    const Fact& At(const std::string& name) const { return m_facts.at(name); }

  private:
    std::vector<std::string> m_order;
    std::map<std::string, Fact> m_facts;
    std::map<std::string, int> m_counts;
};

// Describes one substructure with lengths in one unit system.
class Describer {
  public:
    Describer(const Evaluation& evaluation, std::size_t p, UnitSystem units)
        : m_evaluation(evaluation),
          m_p(p),
          m_pier(evaluation.Data().m_Piers[p]),
          m_factor(ConversionFactor(Quantity::length, evaluation.Units(), units)) {}

    Facts Describe() {
        m_facts.Add("substructure", "type", std::string(StructureTypeName(m_pier.m_nStructureType)), {});
        m_facts.Add("substructure", "location", "", {Length(m_pier.m_dLocationX)});
        AddMembers();
        AddNodes();
        if (HasCapTables(m_pier)) AddCap();
        return std::move(m_facts);
    }

  private:
    // From inches or metres of the model.
    double Length(double value) const {
        return (m_pier.m_nUnits == 0 ? value / kInchesOfAFoot : value) * m_factor;
    }

    void AddMembers() {
        for (std::size_t i = 0; i < m_pier.m_Piles.size(); ++i) {
            m_facts.Add("piles", "pile " + std::to_string(i + 1), "",
                        {Length(m_pier.m_Piles[i].m_dDimension)});
        }
        for (const ElementIdentity& identity : m_evaluation.Identities(m_p)) {
            const std::string kind = ReplaceAll(MemberKindName(identity.kind), "_", " ");
            std::string name = "element " + std::to_string(identity.number);
            if (identity.member > 0) {
                name = kind + " " + std::to_string(identity.member) + " element " +
                       std::to_string(identity.index);
            }
            m_facts.Add("elements", name,
                        identity.masked ? "left out" : "section " + std::to_string(identity.section), {});
        }
    }

    void AddNodes() {
        for (std::size_t i = 0; i < m_pier.m_dNodes.size(); ++i) {
            const auto& node = m_pier.m_dNodes[i];
            // Not by their numbers, which another pile changes.
            m_facts.Add("nodes", "node " + std::to_string(i + 1) + " above the foundation", "",
                        {Length(node[0]), Length(node[1]), Length(node[2])});
        }
    }

    void AddCap() {
        const std::string_view word = MemberShortName(m_pier.m_nStructureType);
        for (int support = 0; support < CapSupportCount(m_pier); ++support) {
            m_facts.Add("supports", std::string(word) + " " + std::to_string(support + 1), "",
                        {Length(m_pier.GetSupportX(support)), Length(m_pier.GetSupportWidth(support))});
        }
        for (std::size_t i = 0; i < m_pier.m_BearingList.size(); ++i) {
            m_facts.Add("bearings", CapBearingLabel(kTableCapMoment, m_pier.m_BearingList[i], 0), "",
                        {Length(m_pier.m_BearingX[i])});
        }
    }

    const Evaluation& m_evaluation;
    std::size_t m_p;
    const CPier& m_pier;
    double m_factor;
    Facts m_facts;
};

bool AreSame(const Fact& before, const Fact& after) {
    if (before.words != after.words || before.lengths.size() != after.lengths.size()) return false;
    for (std::size_t i = 0; i < before.lengths.size(); ++i) {
        if (ChangeOf(before.lengths[i], after.lengths[i], Quantity::length, {}).exceeds) return false;
    }
    return true;
}

std::string TextOf(const Fact& fact, UnitSystem units) {
    std::string text = fact.words;
    for (const double length : fact.lengths) {
        if (!text.empty()) text += ", ";
        text += FormatFixed(length, 3);
    }
    if (!fact.lengths.empty()) text += " " + std::string(UnitName(Quantity::length, units));
    return text;
}

// Counts the changes of each kind and presence, and keeps the first.
class Changes {
  public:
    explicit Changes(int substructure) : m_substructure(substructure) {}

    void Add(std::string_view kind, Presence presence, const std::string& what, std::string before = {},
             std::string after = {}) {
        const auto [place, isNew] = m_places.try_emplace({kind, presence}, m_list.size());
        if (!isNew) {
            ++m_list[place->second].count;
            return;
        }
        m_list.push_back({kind, presence, m_substructure, what, std::move(before), std::move(after), 1});
    }
    std::vector<StructureChange> Take() { return std::move(m_list); }

  private:
    int m_substructure;
    std::map<std::pair<std::string_view, Presence>, std::size_t> m_places;
    std::vector<StructureChange> m_list;
};

std::vector<StructureChange> CompareSubstructure(const Facts& before, const Facts& after, int substructure,
                                                 UnitSystem units) {
    Changes changes(substructure);
    for (const std::string& name : before.Order()) {
        const Fact& fact = before.At(name);
        const Fact* other = after.Find(name);
        if (other == nullptr) {
            changes.Add(fact.kind, Presence::removed, name);
        } else if (!AreSame(fact, *other)) {
            changes.Add(fact.kind, Presence::changed, name, TextOf(fact, units), TextOf(*other, units));
        }
    }
    for (const std::string& name : after.Order()) {
        if (before.Find(name) == nullptr) changes.Add(after.At(name).kind, Presence::added, name);
    }
    return changes.Take();
}

// What of a case must be the same, in words.
std::string TraitsOf(const CaseName& name) {
    std::string traits = name.limitState.empty() ? "no limit state" : name.limitState;
    if (!name.className.empty()) traits += " (" + name.className + ")";
    return traits + (name.chosen ? "" : ", not chosen");
}

// What a run is of, for the whole project.
std::vector<StructureChange> CompareRuns(const Evaluation& before, const Evaluation& after) {
    const auto code = [](const Evaluation& evaluation) {
        const bool has = evaluation.Data().HasCombinations();
        return std::string(has ? FamilyName(evaluation.Data().FirstPier().m_nCodeFamily) : "none");
    };
    if (code(before) == code(after)) return {};
    return {{"project", Presence::changed, 0, "design code", code(before), code(after), 1}};
}

}  // namespace

std::vector<StructureChange> CompareCases(const CaseMatch& cases) {
    std::vector<StructureChange> changes;
    for (const CaseName& name : cases.Before()) {
        const int after = cases.AfterOf(name.number);
        if (after == 0) {
            changes.push_back({"case", Presence::removed, 0, TextOf(name), {}, {}, 1});
            continue;
        }
        const std::string before = TraitsOf(name), now = TraitsOf(cases.After()[Index(after - 1)]);
        if (before != now) changes.push_back({"case", Presence::changed, 0, TextOf(name), before, now, 1});
    }
    for (const CaseName& name : cases.After()) {
        if (cases.BeforeOf(name.number) == 0) {
            changes.push_back({"case", Presence::added, 0, TextOf(name), {}, {}, 1});
        }
    }
    return changes;
}

std::vector<StructureChange> CompareModels(const Evaluation& before, const Evaluation& after,
                                           UnitSystem units) {
    std::vector<StructureChange> changes = CompareRuns(before, after);
    const std::size_t countBefore = before.Data().m_Piers.size(), countAfter = after.Data().m_Piers.size();
    for (std::size_t p = 0; p < std::max(countBefore, countAfter); ++p) {
        const int number = static_cast<int>(p) + 1;
        if (p >= countBefore || p >= countAfter) {
            changes.push_back({"substructure",
                               p >= countBefore ? Presence::added : Presence::removed,
                               number,
                               "substructure " + std::to_string(number),
                               {},
                               {},
                               1});
            continue;
        }
        for (StructureChange& change :
             CompareSubstructure(Describer(before, p, units).Describe(),
                                 Describer(after, p, units).Describe(), number, units)) {
            changes.push_back(std::move(change));
        }
    }
    return changes;
}

}  // namespace lumerin
