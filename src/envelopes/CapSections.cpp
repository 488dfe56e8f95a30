// SPDX-License-Identifier: MIT
#include "envelopes/CapSections.h"

#include <algorithm>

#include "framework/Index.h"
#include "model/CapChain.h"

namespace lumerin {

namespace {

double SectionX(const CPier& pier, const CapForm& form, int support, int kind) {
    const double x = pier.GetSupportX(support);
    const double half = pier.GetSupportWidth(support) / 2;
    if (kind == 0) return x - half;
    return kind == form.RightFace() ? x + half : x;
}

CapSection CenterlineSection(const PierInput& input, const CapForm& form, CSupportLocation location,
                             double x) {
    const int support = location.m_nSupport, kind = location.m_nKind;
    int leftEnd = kEndJ, rightEnd = kEndI;
    if (form.splitCenterline) leftEnd = rightEnd = kind == 1 ? kEndJ : kEndI;
    CapSection section{location,
                       x,
                       true,
                       input.pier.GetSupportNode(support),
                       CapSide(input, CapSide::kAtNode, leftEnd),
                       CapSide(input, CapSide::kAtNode, rightEnd),
                       form.splitCenterline};
    section.left.FindAtNode(section.node);
    section.right.FindAtNode(section.node);
    return section;
}

CapSection FaceSection(const PierInput& input, const CapForm& form, CSupportLocation location, double x) {
    const CPier& pier = input.pier;
    const int point = FindCapPoint(pier, x);
    if (point >= 0) {
        CapSection section{location,
                           x,
                           true,
                           pier.m_CapPointNode[Index(point)],
                           CapSide(input, CapSide::kAtNode, kEndJ),
                           CapSide(input, CapSide::kAtNode, kEndI),
                           false};
        section.left.FindAtNode(section.node);
        section.right.FindAtNode(section.node);
        return section;
    }
    CapSection section{location,
                       x,
                       false,
                       -1,
                       CapSide(input, CapSide::kInside, kEndJ),
                       CapSide(input, CapSide::kInside, kEndI),
                       false};
    CCapPlace place;
    if (!pier.LocateOnCap(location.m_nSupport + 1, location.m_nKind, x, form.locateMode, place))
        return section;
    section.left.SetPlace(place);
    section.right.SetPlace(place);
    section.oneSided = section.left.HasInnerFraction();
    return section;
}

CapSection FindSection(const PierInput& input, const CapForm& form, CSupportLocation location) {
    const double x = SectionX(input.pier, form, location.m_nSupport, location.m_nKind);
    if (location.m_nKind == 0 || location.m_nKind == form.RightFace())
        return FaceSection(input, form, location, x);
    return CenterlineSection(input, form, location, x);
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

}  // namespace

CapChoice ChooseSide(const CapForm& form, int sense, const CapSideResult& left, const CapSideResult& right) {
    if (left.status == 0 && right.status == 0) return form.choose(sense, left, right);
    if (left.status == 0) return CapChoice::left;
    return right.status == 0 ? CapChoice::right : CapChoice::none;
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

void StoreValues(const CapSideResult& result, CapValues& values) {
    if (result.loadCase >= 0) values = result.values;
}

CapSupportSearch::CapSupportSearch(const PierInput& input, const CapForm& form)
    : m_input(input), m_form(form), m_places(input) {
    const int supports = HasCapTables(input.pier) ? CapSupportCount(input.pier) : 0;
    for (int support = 0; support < supports; ++support) {
        for (int kind = 0; kind < form.kinds; ++kind) {
            const bool exists = form.splitCenterline ? input.pier.IsShearSection(support, kind)
                                                     : input.pier.IsMomentSection(support, kind);
            if (!exists) continue;
            CapSection& section = m_sections.emplace_back(FindSection(input, form, {support, kind}));
            section.left.AddPlaces(form.component, m_places);
            if (!section.oneSided) section.right.AddPlaces(form.component, m_places);
        }
    }
}

void CapSupportSearch::StoreResult(CapSection& section, int slot, int sense, CCapEntry& entry) const {
    const CapSideResult left = section.left.Result(m_form.component, m_places, slot, sense);
    const CapSideResult right =
        section.oneSided ? left : section.right.Result(m_form.component, m_places, slot, sense);
    CapChoice choice = CapChoice::left;
    if (section.oneSided) {
        if (left.status != 0) choice = CapChoice::none;
    } else {
        choice = ChooseSide(m_form, sense, left, right);
    }
    if (choice == CapChoice::none) {
        StoreNoResult(entry.record);
        return;
    }
    const CapSide& side = choice == CapChoice::left ? section.left : section.right;
    const CapSideResult& result = choice == CapChoice::left ? left : right;
    StorePlace(entry.record, side.Place(), result.loadCase);
    entry.record.m_nMissing = 0;
    StoreElement(m_input.pier, section, side, entry.record);
    StoreValues(result, entry.values);
}

void CapSupportSearch::Finish(CapSupportTables tables) const {
    std::size_t next = 0;
    for (CapSection section : m_sections) {
        const CSupportLocation& location = section.location;
        if (location.m_nSupport >= tables.table.Positions()) break;
        // The list can be shorter than the sections that exist; the results are found all the same.
        if (next < tables.list.size()) {
            tables.x[next] = section.x;
            tables.list[next] = location;
            ++next;
        }
        for (int sense = kMaximum; sense <= kMinimum; ++sense) {
            for (int slot = 0; slot < tables.table.Slots(); ++slot) {
                StoreResult(section, slot, sense,
                            tables.table.At(location.m_nSupport, slot, location.m_nKind, sense));
            }
        }
    }
    tables.found = next;
}

CapBearingSearch::CapBearingSearch(const PierInput& input, const CapForm& form)
    : m_form(form), m_places(input) {
    if (!HasCapTables(input.pier)) return;
    int row = 0;
    for (const CBearingRow& bearings : input.pier.m_BearingRows) {
        int position = 0;
        for (const CBearing& bearing : bearings.m_Bearings) {
            CapBearing& added = m_bearings.emplace_back(
                CapBearing{position++, row, CapSide(input, CapSide::kAtBearing, kEndJ),
                           CapSide(input, CapSide::kAtBearing, kEndI)});
            for (CapSide* side : {&added.left, &added.right}) {
                side->FindAtNode(bearing.m_nNode);
                side->AddPlaces(form.component, m_places);
            }
        }
        ++row;
    }
}

}  // namespace lumerin
