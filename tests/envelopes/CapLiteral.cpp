// SPDX-License-Identifier: MIT
#include "CapLiteral.h"

namespace lumerin {

bool LiteralCap::IsInClass(int loadCase, int slot) const {
    if (!selection.IsCaseSelected(loadCase)) return false;
    return !pier.m_bCombinations ||
           pier.m_LoadCases[static_cast<std::size_t>(loadCase)].m_nLimitClass == slot;
}

int LiteralCap::ElementOf(const Candidate& candidate) const {
    return pier.GetElement(candidate.place.m_nKind, candidate.place.m_nIndex, candidate.place.m_nElement,
                           messages);
}

int LiteralCap::NodeAt(double x) const {
    for (std::size_t i = 0; i < pier.m_CapPointX.size(); ++i) {
        if (pier.m_CapPointX[i] == x) return pier.m_CapPointNode[i];
    }
    return -1;
}

double LiteralCap::ReadEnd(const Candidate& candidate, int loadCase, int component) const {
    return GetForce(forces.Row(loadCase, ElementOf(candidate)), candidate.end, component);
}

double LiteralCap::ReadInside(const Candidate& candidate, int loadCase, int component) const {
    const ForceRow row = forces.Row(loadCase, ElementOf(candidate));
    const float i = row[static_cast<std::size_t>(component)];
    const float j = row[static_cast<std::size_t>(component + kComponents)];
    const float difference = i - j;
    return static_cast<double>(i) - static_cast<double>(difference) * candidate.t;
}

int LiteralCap::Search(Reader reader, bool seesMask, int component, int sense, const Candidate& candidate,
                       int slot, int& loadCase, int tie) const {
    bool seeded = false;
    double best = 0.0;
    for (int c = 0; c < pier.m_nLoadCases; ++c) {
        if (!IsInClass(c, slot)) continue;
        if (!seeded) {
            if (seesMask && pier.IsMasked(ElementOf(candidate))) {
                loadCase = -1;
                return 1;
            }
            seeded = true;
            best = (this->*reader)(candidate, c, component);
            loadCase = c;
            continue;
        }
        const double v = (this->*reader)(candidate, c, component);
        if ((sense == 0 && v > best) || (sense == 1 && v < best)) {
            best = v;
            loadCase = c;
        } else if (v == best && tie != 7) {
            if ((this->*reader)(candidate, c, tie) > (this->*reader)(candidate, loadCase, tie)) loadCase = c;
        }
    }
    return 0;
}

int LiteralCap::AtSection(int component, int sense, Candidate& candidate, int slot, int& loadCase,
                          int tie) const {
    if (candidate.t != 0.0 && candidate.t != 1.0) {
        return Search(&LiteralCap::ReadInside, true, component, sense, candidate, slot, loadCase, tie);
    }
    if (Search(&LiteralCap::ReadEnd, true, component, sense, candidate, slot, loadCase, tie) == 1) {
        loadCase = -1;
        return 1;
    }
    const bool back = candidate.t == 0.0 && candidate.end == 1;
    const bool forward = candidate.t == 1.0 && candidate.end == 0;
    if (back || forward) {
        pier.StepAlongCap(back ? 1 : 0, candidate.place);
        candidate.t = candidate.place.m_dT;
    }
    return 0;
}

double LiteralCap::MaskedRead(const Candidate& candidate, bool atNode, int loadCase, int component) const {
    if (loadCase < 0 || ElementOf(candidate) < 0 || pier.IsMasked(ElementOf(candidate))) return 0.0;
    return atNode ? ReadEnd(candidate, loadCase, component) : ReadInside(candidate, loadCase, component);
}

LiteralCap::Outcome LiteralCap::Evaluate(Candidate& candidate, bool atNode, bool shear, int sense,
                                         int slot) const {
    Outcome outcome;
    if (!candidate.found || ElementOf(candidate) < 0) return outcome;
    const int component = shear ? 1 : 4;
    outcome.status = AtSection(component, sense, candidate, slot, outcome.loadCase, shear ? 7 : 6);
    if (outcome.status != 0 || outcome.loadCase < 0) return outcome;
    if (ElementOf(candidate) < 0 || pier.IsMasked(ElementOf(candidate))) outcome.status = 1;
    outcome.value = MaskedRead(candidate, atNode, outcome.loadCase, component);
    return outcome;
}

LiteralCap::Outcome LiteralCap::EvaluateBearing(const Candidate& candidate, int component, int sense,
                                                int slot, int tie) const {
    Outcome outcome;
    if (!candidate.found) return outcome;
    outcome.status =
        Search(&LiteralCap::ReadEnd, false, component, sense, candidate, slot, outcome.loadCase, tie);
    if (outcome.loadCase >= 0 && pier.IsMasked(ElementOf(candidate))) outcome.status = 1;
    outcome.value = MaskedRead(candidate, true, outcome.loadCase, component);
    return outcome;
}

// 0 neither, 1 the first, 2 the second.
int LiteralCap::Choose(bool shear, int sense, const Outcome& a, const Outcome& b, double dcA,
                       double dcB) const {
    if (a.status == 0 && b.status == 1) return 1;
    if (a.status == 1 && b.status == 0) return 2;
    if (a.status != 0) return 0;
    if (shear) {
        if (sense == 0) return a.value < b.value ? 2 : 1;
        return b.value < a.value ? 2 : 1;
    }
    if (sense == 0) {
        if (a.value > b.value) return 1;
        if (b.value > a.value) return 2;
    } else {
        if (b.value > a.value) return 1;
        if (a.value > b.value) return 2;
    }
    return dcA > dcB ? 1 : 2;
}

void LiteralCap::FindAtNode(Candidate& candidate, int node) const {
    const int end = candidate.end;
    const auto matches = [&](int e) {
        return (end == 0 ? pier.Element(e).m_nNodeI : pier.Element(e).m_nNodeJ) == node;
    };
    for (int side = 0; side < 2; ++side) {
        for (int e = 0; e < pier.m_Frame.m_Cantilevers[side].m_nElements; ++e) {
            if (!matches(pier.GetElement(0, side, e, messages))) continue;
            candidate.found = true;
            candidate.place = {0, side, e, candidate.t};
            return;
        }
    }
    for (int span = 0; span + 1 < pier.m_nColumns; ++span) {
        for (int e = 0; e <= pier.m_nSpanNodes; ++e) {
            if (!matches(pier.GetElement(1, span, e, messages))) continue;
            candidate.found = true;
            candidate.place = {1, span, e, candidate.t};
            return;
        }
    }
}

void LiteralCap::Store(CCapEntry& entry, const Candidate& chosen, const Outcome& outcome, bool atNode,
                       int node) const {
    CCapRecord& r = entry.record;
    r.m_nLoadCase = outcome.loadCase;
    r.m_nKind = chosen.place.m_nKind;
    r.m_nIndex = chosen.place.m_nIndex;
    r.m_nElement = chosen.place.m_nElement;
    r.m_nMissing = 0;
    if (ElementOf(chosen) >= 0) {
        const CElement& element = pier.Element(ElementOf(chosen));
        r.m_nElementNumber = element.m_nElementNumber;
        r.m_nSection = element.m_nSection;
        r.m_nEnd = atNode ? chosen.end : 2;
        r.m_nNode = atNode ? node : element.m_nNodeI;
        if (!atNode) r.m_nSecondNode = element.m_nNodeJ;
    }
    if (outcome.loadCase < 0) return;
    for (int component = 0; component < kComponents; ++component) {
        entry.values[static_cast<std::size_t>(component)] =
            MaskedRead(chosen, atNode, outcome.loadCase, component);
    }
}

void LiteralCap::AtLocation(bool shear, int support, int kind) {
    const int last = shear ? 3 : 2;
    Candidate a, b;
    a.end = 1;
    a.t = 1.0;
    double x = pier.GetSupportX(support);
    if (kind == 0) x -= pier.GetSupportWidth(support) / 2;
    if (kind == last) x += pier.GetSupportWidth(support) / 2;
    bool atNode = true;
    int node = pier.GetSupportNode(support);
    if (kind == 0 || kind == last) {
        node = NodeAt(x);
        atNode = node != -1;
    } else if (shear && kind == 1) {
        b = a;
    } else if (shear) {
        a = b;
    }
    if (atNode) {
        FindAtNode(a, node);
        FindAtNode(b, node);
    } else if (CCapPlace place; pier.LocateOnCap(support + 1, kind, x, shear ? 1 : 4, place)) {
        a.found = b.found = true;
        a.place = b.place = place;
        a.t = b.t = place.m_dT;
    }
    CCapTable& table = shear ? shearSupports : momentSupports;
    for (int sense = 0; sense < 2; ++sense) {
        for (int slot = 0; slot < pier.SlotCount(); ++slot) {
            const Outcome atA = Evaluate(a, atNode, shear, sense, slot);
            const Outcome atB = Evaluate(b, atNode, shear, sense, slot);
            const double dcA = a.found ? MaskedRead(a, atNode, atA.loadCase, 6) : 0.0;
            const double dcB = b.found ? MaskedRead(b, atNode, atB.loadCase, 6) : 0.0;
            const int choice = Choose(shear, sense, atA, atB, dcA, dcB);
            CCapEntry& entry = table.At(support, slot, kind, sense);
            if (choice == 1) Store(entry, a, atA, atNode, node);
            if (choice == 2) Store(entry, b, atB, atNode, node);
            if (choice != 0) continue;
            CCapRecord& r = entry.record;
            r.m_nLoadCase = r.m_nElement = r.m_nKind = r.m_nIndex = -1;
            r.m_nMissing = 1;
        }
    }
}

void LiteralCap::AtSupports(bool shear) {
    for (int support = 0; support < pier.m_nColumns; ++support) {
        for (int kind = 0; kind < (shear ? 4 : 3); ++kind) {
            const bool exists =
                shear ? pier.IsShearSection(support, kind) : pier.IsMomentSection(support, kind);
            if (exists) AtLocation(shear, support, kind);
        }
    }
}

void LiteralCap::ShearAtBearings() {
    for (std::size_t row = 0; row < pier.m_BearingRows.size(); ++row) {
        for (std::size_t i = 0; i < pier.m_BearingRows[row].m_Bearings.size(); ++i) {
            for (int side = 0; side < 2; ++side) {
                Candidate candidate;
                candidate.end = side == 0 ? 1 : 0;
                const int node = pier.m_BearingRows[row].m_Bearings[i].m_nNode;
                FindAtNode(candidate, node);
                for (int sense = 0; sense < 2; ++sense) {
                    for (int slot = 0; slot < pier.SlotCount(); ++slot) {
                        CCapEntry& entry = shearBearings.At(static_cast<int>(i), slot,
                                                            static_cast<int>(row) * 2 + side, sense);
                        if (!candidate.found) {
                            entry.record = {-1, -1, -1, -1, -1, -1, -1, -1, -1, 1};
                            continue;
                        }
                        Outcome outcome = EvaluateBearing(candidate, 1, sense, slot, 7);
                        Store(entry, candidate, outcome, true, node);
                    }
                }
            }
        }
    }
}

void LiteralCap::MomentAtBearings() {
    for (std::size_t row = 0; row < pier.m_BearingRows.size(); ++row) {
        for (std::size_t i = 0; i < pier.m_BearingRows[row].m_Bearings.size(); ++i) {
            const int node = pier.m_BearingRows[row].m_Bearings[i].m_nNode;
            Candidate a, b;
            a.end = 1;
            FindAtNode(a, node);
            FindAtNode(b, node);
            for (int sense = 0; sense < 2; ++sense) {
                for (int slot = 0; slot < pier.SlotCount(); ++slot) {
                    CCapEntry& entry =
                        momentBearings.At(static_cast<int>(i), slot, static_cast<int>(row), sense);
                    if (!a.found && !b.found) {
                        entry.record = {-1, -1, -1, -1, -1, -1, -1, -1, -1, 1};
                        continue;
                    }
                    const Outcome atA = EvaluateBearing(a, 4, sense, slot, 6);
                    const Outcome atB = EvaluateBearing(b, 4, sense, slot, 6);
                    const double dcA = a.found ? MaskedRead(a, true, atA.loadCase, 6) : 0.0;
                    const double dcB = b.found ? MaskedRead(b, true, atB.loadCase, 6) : 0.0;
                    const int choice = Choose(false, sense, atA, atB, dcA, dcB);
                    if (choice == 1) Store(entry, a, atA, true, node);
                    if (choice == 2) Store(entry, b, atB, true, node);
                    if (choice != 0) continue;
                    CCapRecord& r = entry.record;
                    r.m_nLoadCase = r.m_nElement = r.m_nKind = r.m_nIndex = -1;
                    r.m_nMissing = 1;
                }
            }
        }
    }
}

}  // namespace lumerin
