// SPDX-License-Identifier: MIT
// The one pass over the elements against the rules written out: one walk for each section, slot and extreme.
#include <gtest/gtest.h>

#include <random>

#include "support/Searches.h"

namespace lumerin {

namespace {

struct Walked {
    int member, element, listElement;
};

// The elements of a family in the order of the walk, whatever their section.
std::vector<Walked> Walk(const CPier& pier, MemberFamily family) {
    std::vector<Walked> walk;
    if (family == kPileFamily) {
        for (int p = 0; p < static_cast<int>(pier.m_Piles.size()); ++p) {
            const int nodes = pier.m_Piles[static_cast<std::size_t>(p)].m_nNodes;
            for (int e = 0; e <= nodes - 2; ++e) walk.push_back({p, e, pier.PileElement(p, e)});
        }
    } else if (family == kColumnFamily) {
        for (int c = 0; c < pier.m_nColumns; ++c) {
            for (int e = 0; e <= pier.m_nColumnNodes; ++e) walk.push_back({c, e, pier.ColumnElement(c, e)});
        }
    } else {
        for (int x = 0; x < pier.m_nExtraMembers; ++x) {
            const int first = pier.m_Frame.m_XMembers[static_cast<std::size_t>(x)].m_nFirstElement;
            for (int e = 0; e < pier.m_nXMemberElements; ++e) walk.push_back({x, e, first + e});
        }
    }
    return walk;
}

// One extreme that a table shows.
struct Question {
    MemberFamily family;
    int sectionNumber, slot;
};

template <class Visit>
void ForElements(const SearchedPier& model, const Question& q, Visit visit) {
    const CPier& pier = model.pier;
    const std::vector<Walked> walk = Walk(pier, q.family);
    for (int c = 0; c < pier.m_nLoadCases; ++c) {
        if (!model.selection.IsCaseSelected(c)) continue;
        if (pier.m_bCombinations && pier.m_LoadCases[static_cast<std::size_t>(c)].m_nLimitClass != q.slot)
            continue;
        for (const Walked& w : walk) {
            if (pier.Element(w.listElement).m_nSection == q.sectionNumber) visit(c, w);
        }
    }
}

CMaxRecord Found(const CPier& pier, int loadCase, const Walked& w, int end) {
    const CElement& e = pier.Element(w.listElement);
    return {loadCase, w.member, w.element, e.m_nElementNumber, end, end == 1 ? e.m_nNodeJ : e.m_nNodeI};
}

CMaxRecord HighestRatio(SearchedPier& model, const Question& q) {
    const CPier& pier = model.pier;
    CMaxRecord record = kNotFoundRecord;
    double best = -0.1;
    ForElements(model, q, [&](int c, const Walked& w) {
        for (const int end : {0, 1}) {
            const double value = GetForce(model.Forces(c, w.listElement), end, kDemandCapacity);
            if (value > best) {
                best = value;
                record = Found(pier, c, w, end);
            }
        }
    });
    return record;
}

CMaxRecord ExtremeForce(SearchedPier& model, const Question& q, int extreme) {
    const CPier& pier = model.pier;
    CMaxRecord record = kNotFoundRecord;
    const int component = extreme / 2;
    const bool greatest = extreme % 2 == 0;
    double best = 0.0;
    bool seen = false;
    int mark = -1;
    const auto beats = [&](double value) { return greatest ? value > best : value < best; };
    ForElements(model, q, [&](int c, const Walked& w) {
        const double atJ = GetForce(model.Forces(c, w.listElement), kEndJ, component);
        const double atI = GetForce(model.Forces(c, w.listElement), kEndI, component);
        bool hit = false;
        if (!seen || beats(atJ)) {
            best = atJ;
            seen = hit = true;
            mark = 1;
        }
        if (beats(atI)) {
            best = atI;
            mark = 0;
            hit = true;
        }
        if (hit) record = Found(pier, c, w, mark);
    });
    return record;
}

int HeadCase(SearchedPier& model, int slot, int pile, bool tension) {
    const CPier& pier = model.pier;
    double best = 0.0;
    int found = -1;
    for (int c = 0; c < pier.m_nLoadCases; ++c) {
        if (!model.selection.IsCaseSelected(c)) continue;
        if (pier.m_bCombinations && pier.m_LoadCases[static_cast<std::size_t>(c)].m_nLimitClass != slot)
            continue;
        const double v = GetForce(model.Forces(c, pier.PileElement(pile, 0)), kEndJ, kAxial);
        if (tension ? v > best : v < best) {
            best = v;
            found = c;
        }
    }
    return found;
}

class RandomModel {
  public:
    explicit RandomModel(unsigned seed) : m_random(seed) {}

    PierShape Shape() {
        PierShape shape;
        shape.type = kTypePier;
        shape.piles = Pick(0, 4);
        shape.pileNodes = Pick(2, 9);
        shape.columns = Pick(0, 3);
        shape.columnNodes = Pick(0, 6);
        shape.spanElements = Pick(0, 3);
        shape.cantileverElements = Pick(0, 2);
        shape.extraMembers = Pick(0, 5);
        shape.cases = Pick(0, 12);
        shape.family = CodeFamily{Pick(-1, 2)};
        shape.sections = Pick(1, 4);
        shape.firstExtraSection = 7;
        return shape;
    }

    void Fill(SearchedPier& model) {
        CPier& pier = model.pier;
        if (Pick(0, 5) == 0) pier.m_bCombinations = !pier.m_bCombinations;
        const int runLength = Pick(1, 6);
        int section = 1;
        for (int e = 0; e < pier.ElementCount(); ++e) {
            if (Pick(1, runLength) == 1) section = Pick(-1, 11);
            pier.Element(e).m_nSection = section;
        }
        const bool withNaN = Pick(0, 2) == 0;
        const int sparse = Pick(0, 3);  // high: nearly all values are 0, as in a member without load
        for (int c = 0; c < pier.m_nLoadCases; ++c) {
            SetClass(pier, c, Pick(0, 3));
            model.selection.SetCaseSelected(c, Pick(0, 3) > 0);
            for (int e = 0; e < pier.ElementCount(); ++e) {
                for (float& value : model.forces.Of(pier).Row(c, e)) {
                    value = Pick(0, sparse) == 0 ? Value(withNaN) : 0.0F;
                }
            }
        }
    }

  private:
    int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    // Few values, so that there are many ties. Some models have no not-a-number, which as a seed would end
    // every search.
    float Value(bool withNaN) {
        constexpr float values[] = {0.0F,  -0.0F, 1.0F,   -1.0F, 2.5F, -2.5F, -0.05F, -0.1F,
                                    1e30F, -3.0F, 1e-40F, 3.0F,  0.5F, kNaN,  kNaN};
        return values[Pick(0, withNaN ? 14 : 12)];
    }

    std::mt19937 m_random;
};

void CompareForces(SearchedPier& model, const CRecordTable& table, MemberFamily family, int firstSection) {
    ASSERT_EQ(table.Extremes(), kExtremes);
    for (int p = 0; p < table.Sections(); ++p) {
        for (int slot = 0; slot < table.Slots(); ++slot) {
            for (int extreme = 0; extreme < kExtremes; ++extreme) {
                ASSERT_EQ(table.At(p, slot, extreme),
                          ExtremeForce(model, {family, firstSection + p, slot}, extreme))
                    << "family " << family << " section " << p << " slot " << slot << " extreme " << extreme;
            }
        }
    }
}

void CompareRatios(SearchedPier& model, const CRecordTable& table, MemberFamily family, int firstSection) {
    for (int p = 0; p < table.Sections(); ++p) {
        for (int slot = 0; slot < table.Slots(); ++slot) {
            ASSERT_EQ(table.At(p, slot), HighestRatio(model, {family, firstSection + p, slot}))
                << "family " << family << " section " << p << " slot " << slot;
        }
    }
}

class SectionPass : public testing::TestWithParam<unsigned> {};

TEST_P(SectionPass, FindsWhatSeparateWalksFind) {
    RandomModel random(GetParam());
    for (int round = 0; round < 60; ++round) {
        SearchedPier model(random.Shape());
        random.Fill(model);
        model.Search(kTablePileForces);
        model.Search(kTableColumnForces);
        model.Search(kTableExtraMembers);
        model.Search(kTablePileDc);
        model.Search(kTableColumnDc);
        CompareForces(model, model.results.pileForces, kPileFamily, 1);
        CompareForces(model, model.results.columnForces, kColumnFamily, 2);
        CompareForces(model, model.results.extraMemberForces, kXMemberFamily, 7);
        CompareRatios(model, model.results.pileDc, kPileFamily, 1);
        CompareRatios(model, model.results.columnDc, kColumnFamily, 2);
        if (HasFatalFailure()) return;
    }
}

TEST_P(SectionPass, PileHeadsFindWhatSeparateWalksFind) {
    RandomModel random(GetParam() + 1000);
    for (int round = 0; round < 60; ++round) {
        SearchedPier model(random.Shape());
        random.Fill(model);
        model.Search(kTableMaxAxial);
        const CPier& pier = model.pier;
        const std::size_t searched = !pier.m_bCombinations || pier.m_nCodeFamily == kFamilyLfd
                                         ? 1
                                         : (pier.m_nCodeFamily == kFamilyArema ? 2 : 3);
        for (std::size_t slot = 0; slot < std::min(searched, model.results.maxTension.size()); ++slot) {
            for (std::size_t pile = 0; pile < pier.m_Piles.size(); ++pile) {
                const int s = static_cast<int>(slot);
                const int p = static_cast<int>(pile);
                ASSERT_EQ(model.results.maxTension[slot][pile], HeadCase(model, s, p, true));
                ASSERT_EQ(model.results.maxCompression[slot][pile], HeadCase(model, s, p, false));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(RandomModels, SectionPass, testing::Range(1U, 41U));

}  // namespace

}  // namespace lumerin
