// SPDX-License-Identifier: MIT
#include <algorithm>

#include "envelopes/SectionSearch.h"
#include "envelopes/TableSearch.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

// What the section tables differ in. The section numbers of piles count from 1; those of columns from 2, as
// number 1 is neither column nor cap; those of extra members from the least one in use.
struct SectionTableForm {
    TableId table;
    MemberFamily family;
    int firstSection;
    CRecordTable PierResults::*records;
};
constexpr SectionTableForm kForms[] = {
    {kTablePileDc, kPileFamily, 1, &PierResults::pileDc},
    {kTableColumnDc, kColumnFamily, 2, &PierResults::columnDc},
    {kTablePileForces, kPileFamily, 1, &PierResults::pileForces},
    {kTableColumnForces, kColumnFamily, 2, &PierResults::columnForces},
    {kTableExtraMembers, kXMemberFamily, 0, &PierResults::extraMemberForces},
};

CMaxRecord MakeRecord(const CPier& pier, const CSectionWalk& walk, const FoundEnd& found) {
    if (found.loadCase < 0) return kNotFoundRecord;
    const ElementPlace& place = walk.Place(found.place);
    const CElement& element = pier.Element(place.listElement);
    return {found.loadCase,           place.member, place.element,
            element.m_nElementNumber, found.end,    element.Node(found.end)};
}

// The searches of a table by section and slot. Without combinations all slots hold the same, so one does.
template <class Search>
class SectionTableSearch : public TableSearch {
  public:
    SectionTableSearch(const SectionTableForm& form, const PierInput& input, const CRecordTable& table)
        : m_form(form),
          m_input(input),
          m_walk(input.pier, form.family,
                 form.family == kXMemberFamily ? input.pier.m_nXMemberFirstSection : form.firstSection,
                 table.Sections()),
          m_slots(input.pier.m_bCombinations ? table.Slots() : std::min(table.Slots(), 1)),
          m_searches(Index(table.Sections()) * Index(m_slots)) {}

    void Take(int loadCase, CaseForces forces) override {
        if (!m_input.selection.IsCaseSelected(loadCase)) return;
        const int slot = m_input.pier.SlotOf(loadCase);
        if (slot < 0 || slot >= m_slots) return;
        for (const SectionRun& run : m_walk.Runs()) {
            m_searches[Place(run.entry, slot)].Examine(
                forces.data() + Index(run.firstElement) * kForcesPerElement, run.elements, loadCase,
                run.firstPlace);
        }
    }

    void Finish(PierResults& results) const override {
        CRecordTable& table = results.*m_form.records;
        if (m_slots < 1) return;
        for (int section = 0; section < table.Sections(); ++section) {
            for (int slot = 0; slot < table.Slots(); ++slot) {
                const Search& search = m_searches[Place(section, std::min(slot, m_slots - 1))];
                for (int extreme = 0; extreme < Search::kExtremeCount; ++extreme) {
                    table.At(section, slot, extreme) =
                        MakeRecord(m_input.pier, m_walk, search.Found(extreme));
                }
            }
        }
    }

  private:
    std::size_t Place(int section, int slot) const { return Index(section) * Index(m_slots) + Index(slot); }

    const SectionTableForm& m_form;
    PierInput m_input;
    CSectionWalk m_walk;
    int m_slots;
    std::vector<Search> m_searches;
};

}  // namespace

std::unique_ptr<TableSearch> BeginSectionSearch(TableId table, const PierInput& input,
                                                const PierResults& results) {
    const auto form = std::ranges::find(kForms, table, &SectionTableForm::table);
    if (form == std::end(kForms)) return nullptr;
    const CRecordTable& records = results.*form->records;
    if (records.Extremes() == kExtremes) {
        return std::make_unique<SectionTableSearch<CForceSearch>>(*form, input, records);
    }
    return std::make_unique<SectionTableSearch<CDcSearch>>(*form, input, records);
}

}  // namespace lumerin
