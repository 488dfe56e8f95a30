#include "envelopes/SectionSearch.h"

#include <algorithm>
#include <limits>

namespace {

// Ends of an element, as offsets of its floats.
constexpr std::size_t kAtI = 0;
constexpr std::size_t kAtJ = kComponents;

// Even extremes are greatest values, odd ones least; extreme 12 is the greatest D/C ratio.
constexpr bool IsGreatest(int extreme) {
    return extreme % 2 == 0;
}

bool Beats(float value, float best, bool greatest) {
    return greatest ? value > best : value < best;
}

CMaxRecord MakeRecord(const CPier& pier, const CSectionWalk& walk, const FoundEnd& found) {
    if (found.m_nLoadCase < 0) return kNotFoundRecord;
    const ElementPlace& place = walk.Place(found.m_nPlace);
    const CElement& element = pier.Element(place.m_nListElement);
    return {found.m_nLoadCase,        place.m_nMember, place.m_nElement,
            element.m_nElementNumber, found.m_nEnd,    element.Node(found.m_nEnd)};
}

// The searches of a table by section and slot. Without combinations all slots hold the same, so one does.
template <class Search>
class SearchTable {
  public:
    SearchTable(const CPier& pier, const CRecordTable& table)
        : m_pier(pier),
          m_nSlots(pier.m_bCombinations ? table.Slots() : std::min(table.Slots(), 1)),
          m_searches(static_cast<std::size_t>(table.Sections()) * static_cast<std::size_t>(m_nSlots)) {}

    void Run(const CSectionWalk& walk) {
        if (walk.Runs().empty()) return;
        const int cases = std::min({m_pier.m_nLoadCases, static_cast<int>(m_pier.m_LoadCases.size()),
                                    static_cast<int>(m_pier.m_CaseSelected.size())});
        for (int loadCase = 0; loadCase < cases; ++loadCase) {
            const int slot = SlotOf(loadCase);
            if (slot >= 0 && slot < m_nSlots) RunCase(walk, loadCase, slot);
        }
    }

    void Store(const CSectionWalk& walk, CRecordTable& table) const {
        for (int section = 0; section < table.Sections(); ++section) {
            for (int slot = 0; slot < table.Slots(); ++slot) {
                const Search& search = m_searches[Index(section, std::min(slot, m_nSlots - 1))];
                for (int extreme = 0; extreme < Search::kExtremeCount; ++extreme) {
                    table.At(section, slot, extreme) = MakeRecord(m_pier, walk, search.Found(extreme));
                }
            }
        }
    }

  private:
    int SlotOf(int loadCase) const {
        if (!m_pier.IsCaseSelected(loadCase)) return -1;
        if (!m_pier.m_bCombinations) return 0;
        return m_pier.m_LoadCases[static_cast<std::size_t>(loadCase)].m_nLimitClass;
    }
    std::size_t Index(int section, int slot) const {
        return static_cast<std::size_t>(section) * static_cast<std::size_t>(m_nSlots) +
               static_cast<std::size_t>(slot);
    }
    void RunCase(const CSectionWalk& walk, int loadCase, int slot) {
        const float* forces = m_pier.Forces(loadCase, 0).data();
        for (const SectionRun& run : walk.Runs()) {
            m_searches[Index(run.m_nEntry, slot)].Examine(
                forces + static_cast<std::size_t>(run.m_nFirstElement) * kForcesPerElement, run.m_nElements,
                loadCase, run.m_nFirstPlace);
        }
    }

    const CPier& m_pier;
    int m_nSlots;
    std::vector<Search> m_searches;
};

template <class Search>
void Fill(const CPier& pier, const CSectionWalk& walk, CRecordTable& table) {
    SearchTable<Search> searches(pier, table);
    searches.Run(walk);
    searches.Store(walk, table);
}

}  // namespace

void CDcSearch::Examine(const float* forces, int elements, int loadCase, int firstPlace) {
    for (int i = 0; i < elements; ++i, forces += kForcesPerElement) {
        const double atI = static_cast<double>(forces[kAtI + kDemandCapacity]);
        const double atJ = static_cast<double>(forces[kAtJ + kDemandCapacity]);
        if (atI > m_dBest) {
            m_dBest = atI;
            m_found = {loadCase, firstPlace + i, kEndI};
        }
        if (atJ > m_dBest) {
            m_dBest = atJ;
            m_found = {loadCase, firstPlace + i, kEndJ};
        }
    }
}

// The first element sets all limits but one: the D/C ratio has no least extreme, and nothing lies below this.
CForceSearch::CForceSearch() {
    m_greatest.fill(std::numeric_limits<float>::infinity());
    m_least.fill(-std::numeric_limits<float>::infinity());
}

// Whether one of the values beats the best so far. Only such a value can change an extreme, so elements whose
// values all fail this test need no closer look; a not-a-number always fails it.
template <std::size_t count>
bool CForceSearch::MayBeat(const float* forces) const {
    unsigned beats = 0;
    for (std::size_t i = 0; i < count; ++i) {
        beats |= static_cast<unsigned>(forces[i] > m_greatest[i]);
        beats |= static_cast<unsigned>(forces[i] < m_least[i]);
    }
    return beats != 0;
}

void CForceSearch::Examine(const float* forces, int elements, int loadCase, int firstPlace) {
    int i = 0;
    if (!m_bSeen && elements > 0) {
        ExamineElement(forces, loadCase, firstPlace);
        i = 1;
    }
    for (; i + 1 < elements; i += 2) {
        const float* pair = forces + static_cast<std::size_t>(i) * kForcesPerElement;
        if (!MayBeat<kPair>(pair)) continue;
        ExamineElement(pair, loadCase, firstPlace + i);
        ExamineElement(pair + kForcesPerElement, loadCase, firstPlace + i + 1);
    }
    if (i >= elements) return;
    const float* last = forces + static_cast<std::size_t>(i) * kForcesPerElement;
    if (MayBeat<kForcesPerElement>(last)) ExamineElement(last, loadCase, firstPlace + i);
}

void CForceSearch::ExamineElement(const float* forces, int loadCase, int place) {
    for (int extreme = 0; extreme < kExtremes; ++extreme) ExamineExtreme(extreme, forces, loadCase, place);
    m_bSeen = true;
}

void CForceSearch::ExamineExtreme(int extreme, const float* forces, int loadCase, int place) {
    const auto component = static_cast<std::size_t>(extreme / 2);
    const bool greatest = IsGreatest(extreme);
    float best = m_best[static_cast<std::size_t>(extreme)];
    int end = -1;
    if (const float value = forces[kAtJ + component]; !m_bSeen || Beats(value, best, greatest)) {
        best = value;
        end = kEndJ;
    }
    if (const float value = forces[kAtI + component]; Beats(value, best, greatest)) {
        best = value;
        end = kEndI;
    }
    if (end < 0) return;
    Take(extreme, best);
    m_found[static_cast<std::size_t>(extreme)] = {loadCase, place, end};
}

void CForceSearch::Take(int extreme, float value) {
    m_best[static_cast<std::size_t>(extreme)] = value;
    std::array<float, kPair>& limits = IsGreatest(extreme) ? m_greatest : m_least;
    for (std::size_t at = static_cast<std::size_t>(extreme / 2); at < kPair; at += kComponents) {
        limits[at] = value;
    }
}

void FillSectionTable(const CPier& pier, const CSectionWalk& walk, CRecordTable& table) {
    if (table.Slots() < 1) return;
    if (table.Extremes() == kExtremes) Fill<CForceSearch>(pier, walk, table);
    if (table.Extremes() == 1) Fill<CDcSearch>(pier, walk, table);
}
