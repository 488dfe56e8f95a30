// SPDX-License-Identifier: MIT
#include "figures/CaseScan.h"

#include <algorithm>
#include <stdexcept>

#include "framework/Index.h"
#include "records/TableRows.h"

namespace lumerin {

namespace {

// The end with the greater ratio; of equal ones, and without ratios, end I.
int WorseEnd(const ElementResults& results, const ElementIdentity& identity) {
    const EndExtreme i = results.GreatestRatio(identity.element, kEndI);
    const EndExtreme j = results.GreatestRatio(identity.element, kEndJ);
    if (j.loadCase < 0) return kEndI;
    return i.loadCase < 0 || j.value > i.value ? kEndJ : kEndI;
}

const ElementIdentity* WorstElement(const ElementResults& results,
                                    std::span<const ElementIdentity> identities) {
    const ElementIdentity* worst = nullptr;
    float greatest = 0.0F;
    for (const ElementIdentity& identity : identities) {
        if (identity.masked) continue;
        const EndExtreme here = results.GreatestRatio(identity.element, WorseEnd(results, identity));
        if (here.loadCase < 0 || (worst != nullptr && here.value <= greatest)) continue;
        worst = &identity;
        greatest = here.value;
    }
    return worst;
}

const ElementIdentity& NamedElement(std::span<const ElementIdentity> identities,
                                    const FigureRequest& request) {
    const auto found = std::ranges::find_if(identities, [&](const ElementIdentity& identity) {
        return identity.number == request.element && !identity.masked;
    });
    if (found != identities.end()) return *found;
    const bool isMasked =
        std::ranges::find(identities, request.element, &ElementIdentity::number) != identities.end();
    const std::string number = std::to_string(request.element);
    const std::string where = " in substructure " + std::to_string(request.substructure);
    throw std::invalid_argument(isMasked ? "element " + number + where + " is masked and has no forces"
                                         : "there is no element " + number + where);
}

}  // namespace

ScannedEnd EndOf(const Evaluation& evaluation, const FigureRequest& request) {
    const std::size_t pier = Index(request.substructure - 1);
    const ElementResults& results = evaluation.Elements()[pier];
    const std::span<const ElementIdentity> identities = evaluation.Identities(pier);
    ScannedEnd found;
    found.identity =
        request.element == 0 ? WorstElement(results, identities) : &NamedElement(identities, request);
    if (found.identity == nullptr) return found;
    found.end = request.end < 0 ? WorseEnd(results, *found.identity) : request.end;
    return found;
}

CaseScan ScanCases(const Evaluation& evaluation, std::size_t pier, const ScannedEnd& end) {
    const CPier& model = evaluation.Data().m_Piers[pier];
    const ElementIdentity& identity = *end.identity;
    const ForceLayout layout = evaluation.Opened().project.forces[pier]->Layout();
    CaseScan scan{identity, end.end, PlaceOf(model, identity, end.end), {}};
    for (const LimitClass slot : ClassesOf(evaluation)) {
        ScannedClass& scanned = scan.classes.emplace_back();
        scanned.name = ClassNameIn(evaluation, slot);
        const bool isOnlyOne = scanned.name.empty();
        for (int c = 0; c < static_cast<int>(model.m_LoadCases.size()); ++c) {
            if (!evaluation.Selection().IsCaseSelected(c)) continue;
            if (!isOnlyOne && model.SlotOf(c) != slot) continue;
            ScannedCase here{c, layout.HasRecord(c, identity.record), {}};
            const ForceRow row = evaluation.Rows().At(pier, c, identity.element);
            std::ranges::copy(std::span(row).subspan(Index(end.end) * kComponents, kComponents),
                              here.values.begin());
            scanned.cases.push_back(here);
        }
    }
    return scan;
}

}  // namespace lumerin
