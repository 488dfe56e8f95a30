#include <algorithm>
#include <cstddef>
#include <vector>

#include "model/Pier.h"
#include "session/Constants.h"

namespace {

// How many slots the pile head search fills. The fatigue slot is left as it was: nothing reads it.
std::size_t SearchedSlots(const CPier& pier) {
    if (!pier.m_bCombinations || pier.m_nCodeFamily == kFamilyLfd) return 1;
    return pier.m_nCodeFamily == kFamilyArema ? 2 : 3;
}

// The greatest tension and compression of every pile head in one slot. Both start at zero with strict
// comparisons: a head that is never in tension has no load case of greatest tension.
struct HeadExtremes {
    explicit HeadExtremes(std::size_t piles) : tension(piles, 0.0F), compression(piles, 0.0F) {}
    std::vector<float> tension, compression;
};

void ResetSlots(std::vector<std::vector<int>>& table, std::size_t slots) {
    for (std::size_t slot = 0; slot < slots; ++slot) std::ranges::fill(table[slot], -1);
}

}  // namespace

void CPier::ComputeMaxAxialForces() {
    const std::size_t slots =
        std::min({SearchedSlots(*this), m_ppMaxTension.size(), m_ppMaxCompression.size()});
    ResetSlots(m_ppMaxTension, slots);
    ResetSlots(m_ppMaxCompression, slots);
    std::vector<HeadExtremes> best(slots, HeadExtremes(m_Piles.size()));
    const int cases = std::min(
        {m_nLoadCases, static_cast<int>(m_LoadCases.size()), static_cast<int>(m_CaseSelected.size())});
    for (int loadCase = 0; loadCase < cases; ++loadCase) {
        if (!IsCaseSelected(loadCase)) continue;
        const int limitClass = m_LoadCases[static_cast<std::size_t>(loadCase)].m_nLimitClass;
        const std::size_t slot = m_bCombinations ? static_cast<std::size_t>(limitClass) : 0;
        if (slot >= slots) continue;  // a class below 0 is far above every slot, too
        std::vector<int>& tension = m_ppMaxTension[slot];
        std::vector<int>& compression = m_ppMaxCompression[slot];
        const std::size_t piles = std::min({m_Piles.size(), tension.size(), compression.size()});
        for (std::size_t pile = 0; pile < piles; ++pile) {
            if (m_Piles[pile].m_nElements < 1) continue;
            const float axial = Forces(loadCase, m_Piles[pile].m_nFirstElement)[kEndJ * kComponents + kAxial];
            if (axial > best[slot].tension[pile]) {
                best[slot].tension[pile] = axial;
                tension[pile] = loadCase;
            }
            if (axial < best[slot].compression[pile]) {
                best[slot].compression[pile] = axial;
                compression[pile] = loadCase;
            }
        }
    }
}

// The table shows the D/C ratio and the axial force of the heads; both were tested while they were read.
bool CPier::CheckMaxAxialData() const {
    return m_bPileHeadsFinite;
}
