// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <vector>

#include "envelopes/TableSearch.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

// How many slots the pile head search fills. The fatigue slot is left as it was: nothing reads it.
std::size_t SearchedSlots(const CPier& pier) {
    if (!pier.m_bCombinations || pier.m_nCodeFamily == kFamilyLfd) return 1;
    return pier.m_nCodeFamily == kFamilyArema ? 2 : 3;
}

// The greatest tension and compression of every pile head in one slot. Both start at zero with strict
// comparisons: a head that is never in tension has no load case of greatest tension.
struct HeadExtremes {
    explicit HeadExtremes(std::size_t piles)
        : tension(piles, 0.0F),
          compression(piles, 0.0F),
          tensionCase(piles, -1),
          compressionCase(piles, -1) {}
    std::vector<float> tension, compression;
    std::vector<int> tensionCase, compressionCase;
};

class PileHeadSearch : public TableSearch {
  public:
    PileHeadSearch(const PierInput& input, const PierResults& results)
        : m_input(input),
          m_slots(
              std::min({SearchedSlots(input.pier), results.maxTension.size(), results.maxCompression.size()}),
              HeadExtremes(input.pier.m_Piles.size())) {}

    void Take(int loadCase, CaseForces forces) override {
        if (!m_input.selection.IsCaseSelected(loadCase)) return;
        const std::size_t slot = Index(m_input.pier.SlotOf(loadCase));
        if (slot >= m_slots.size()) return;  // a class below 0 is far above every slot, too
        HeadExtremes& best = m_slots[slot];
        for (std::size_t pile = 0; pile < best.tension.size(); ++pile) {
            const CPile& member = m_input.pier.m_Piles[pile];
            if (member.m_nElements < 1) continue;
            const float axial = ForcesOf(forces, member.m_nFirstElement)[kEndJ * kComponents + kAxial];
            if (axial > best.tension[pile]) {
                best.tension[pile] = axial;
                best.tensionCase[pile] = loadCase;
            }
            if (axial < best.compression[pile]) {
                best.compression[pile] = axial;
                best.compressionCase[pile] = loadCase;
            }
        }
    }

    void Finish(PierResults& results) const override {
        for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
            results.maxTension[slot] = m_slots[slot].tensionCase;
            results.maxCompression[slot] = m_slots[slot].compressionCase;
        }
    }

  private:
    PierInput m_input;
    std::vector<HeadExtremes> m_slots;
};

}  // namespace

std::unique_ptr<TableSearch> BeginPileHeadSearch(const PierInput& input, const PierResults& results) {
    return std::make_unique<PileHeadSearch>(input, results);
}

}  // namespace lumerin
