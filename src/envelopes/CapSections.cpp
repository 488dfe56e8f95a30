#include "envelopes/CapSections.h"

#include <algorithm>

#include "envelopes/CapChain.h"

namespace {

// A face or centreline with the two sides that are compared there.
struct CapSection {
    bool atNode = false;
    int node = -1;
    CapSide left, right;
    bool oneSided = false;  // both sides are the same element, end and fraction
};

double SectionX(const CPier& pier, const CapForm& form, int support, int kind) {
    const double x = pier.GetSupportX(support);
    const double half = pier.GetSupportWidth(support) / 2;
    if (kind == 0) return x - half;
    return kind == form.RightFace() ? x + half : x;
}

CapSection CenterlineSection(const CPier& pier, const CapForm& form, int support, int kind) {
    int leftEnd = kEndJ, rightEnd = kEndI;
    if (form.splitCenterline) leftEnd = rightEnd = kind == 1 ? kEndJ : kEndI;
    CapSection section{true, pier.GetSupportNode(support), CapSide(pier, CapSide::kAtNode, leftEnd),
                       CapSide(pier, CapSide::kAtNode, rightEnd), form.splitCenterline};
    section.left.FindAtNode(section.node);
    section.right.FindAtNode(section.node);
    return section;
}

CapSection FaceSection(const CPier& pier, const CapForm& form, int support, int kind, double x) {
    const int point = FindCapPoint(pier, x);
    if (point >= 0) {
        CapSection section{true, pier.m_CapPointNode[static_cast<std::size_t>(point)],
                           CapSide(pier, CapSide::kAtNode, kEndJ), CapSide(pier, CapSide::kAtNode, kEndI),
                           false};
        section.left.FindAtNode(section.node);
        section.right.FindAtNode(section.node);
        return section;
    }
    CapSection section{false, -1, CapSide(pier, CapSide::kInside, kEndJ),
                       CapSide(pier, CapSide::kInside, kEndI), false};
    CCapPlace place;
    if (!pier.LocateOnCap(support + 1, kind, x, form.locateMode, place)) return section;
    section.left.SetPlace(place);
    section.right.SetPlace(place);
    section.oneSided = section.left.HasInnerFraction();
    return section;
}

CapSection FindSection(const CPier& pier, const CapForm& form, int support, int kind, double x) {
    if (kind == 0 || kind == form.RightFace()) return FaceSection(pier, form, support, kind, x);
    return CenterlineSection(pier, form, support, kind);
}

// PROP, ELEM and NODE come from the chosen element; a place that is no element leaves those words.
void StoreElement(const CPier& pier, const CapSection& section, const CapSide& side, CCapRecord& record) {
    const int element = side.Element();
    if (element < 0) return;
    const CElement& identity = pier.Element(element);
    record.m_nElementNumber = identity.m_nElementNumber;
    record.m_nSection = identity.m_nSection;
    if (section.atNode) {
        record.m_nEnd = side.End();
        record.m_nNode = section.node;
    } else {
        record.m_nEnd = kInsideElement;
        record.m_nNode = identity.m_nNodeI;
        record.m_nSecondNode = identity.m_nNodeJ;
    }
}

void StoreResult(const CPier& pier, const CapForm& form, CapSection& section, int slot, int sense,
                 CCapEntry& entry) {
    const CapSideResult atLeft = section.left.Search(form.component, form.tieBreak, slot, sense);
    const CapSideResult atRight =
        section.oneSided ? atLeft : section.right.Search(form.component, form.tieBreak, slot, sense);
    CapChoice choice = CapChoice::left;
    if (section.oneSided) {
        if (atLeft.status != 0) choice = CapChoice::none;
    } else {
        choice = ChooseSide(form, sense, section.left, atLeft, section.right, atRight);
    }
    if (choice == CapChoice::none) {
        StoreNoResult(entry.record);
        return;
    }
    const CapSide& side = choice == CapChoice::left ? section.left : section.right;
    const int loadCase = choice == CapChoice::left ? atLeft.loadCase : atRight.loadCase;
    StorePlace(entry.record, side.Place(), loadCase);
    entry.record.m_nMissing = 0;
    StoreElement(pier, section, side, entry.record);
    StoreValues(side, loadCase, entry.values);
}

}  // namespace

bool HasCapSections(const CPier& pier) {
    return HasCapTables(pier) || pier.m_nStructureType == kTypeMast;
}

CapChoice ChooseSide(const CapForm& form, int sense, const CapSide& left, const CapSideResult& atLeft,
                     const CapSide& right, const CapSideResult& atRight) {
    if (atLeft.status == 0 && atRight.status == 0) return form.choose(sense, left, atLeft, right, atRight);
    if (atLeft.status == 0) return CapChoice::left;
    return atRight.status == 0 ? CapChoice::right : CapChoice::none;
}

void StoreNoElement(CCapRecord& record) {
    record = {-1, -1, -1, -1, -1, -1, -1, -1, -1, 1};
}

void StoreNoResult(CCapRecord& record) {
    StorePlace(record, CCapPlace{}, -1);
    record.m_nMissing = 1;
}

void StorePlace(CCapRecord& record, const CCapPlace& place, int loadCase) {
    record.m_nLoadCase = loadCase;
    record.m_nKind = place.m_nKind;
    record.m_nIndex = place.m_nIndex;
    record.m_nElement = place.m_nElement;
}

void StoreValues(const CapSide& side, int loadCase, CapValues& values) {
    if (loadCase < 0) return;
    for (int component = 0; component < kComponents; ++component) {
        values[static_cast<std::size_t>(component)] = side.Value(loadCase, component);
    }
}

void ComputeCapAtSupports(const CPier& pier, const CapForm& form, CapSupportTables tables) {
    std::size_t next = 0;
    const int supports = std::min(CapSupportCount(pier), tables.table.Positions());
    const int slots = tables.table.Slots();
    for (int support = 0; support < supports; ++support) {
        for (int kind = 0; kind < form.kinds; ++kind) {
            const bool exists = form.splitCenterline ? pier.IsShearSection(support, kind)
                                                     : pier.IsMomentSection(support, kind);
            if (!exists) continue;
            const double x = SectionX(pier, form, support, kind);
            // The list can be shorter than the sections that exist; the results are found all the same.
            if (next < tables.list.size()) {
                tables.x[next] = x;
                tables.list[next] = {support, kind};
                ++next;
            }
            CapSection section = FindSection(pier, form, support, kind, x);
            for (int sense = kMaximum; sense <= kMinimum; ++sense) {
                for (int slot = 0; slot < slots; ++slot) {
                    StoreResult(pier, form, section, slot, sense,
                                tables.table.At(support, slot, kind, sense));
                }
            }
        }
    }
}
