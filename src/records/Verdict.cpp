// SPDX-License-Identifier: MIT
#include "records/Verdict.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "framework/Index.h"
#include "records/TableRows.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr int kRatioDecimals = 3;

// The families in the order of a verdict.
constexpr std::array<MemberKind, 5> kFamilies{MemberKind::pile, MemberKind::column, MemberKind::span,
                                              MemberKind::extraMember, MemberKind::other};

// An element end and its greatest ratio over all classes.
struct EndOfElement {
    std::size_t pier = 0;
    const ElementIdentity* identity = nullptr;
    int end = kEndI;
    EndExtreme best;
};

template <class Take>
void EachEnd(const Evaluation& evaluation, std::size_t p, Take take) {
    for (const ElementIdentity& identity : evaluation.Identities(p)) {
        if (identity.masked) continue;
        for (const int end : {kEndI, kEndJ}) {
            const EndExtreme best = evaluation.Elements()[p].GreatestRatio(identity.element, end);
            if (best.loadCase >= 0) take(EndOfElement{p, &identity, end, best});
        }
    }
}

EndRatio Describe(const Evaluation& evaluation, const EndOfElement& from) {
    const ElementIdentity& identity = *from.identity;
    EndRatio ratio;
    ratio.substructure = static_cast<int>(from.pier) + 1;
    ratio.family = MemberFamilyName(identity.kind);
    ratio.ratio = from.best.value;
    ratio.place = PlaceOf(evaluation.Data().m_Piers[from.pier], identity, from.end);
    ratio.element = identity.number;
    ratio.node = identity.Node(from.end);
    ratio.end = from.end;
    ratio.loadCase = from.best.loadCase + 1;
    ratio.limitState = LimitStateIn(evaluation.Data(), from.best.loadCase);
    const ForceRow forces = evaluation.Rows().At(from.pier, from.best.loadCase, identity.element);
    const std::size_t first = Index(from.end) * kComponents;
    std::copy_n(forces.begin() + static_cast<std::ptrdiff_t>(first), ratio.forces.size(),
                ratio.forces.begin());
    return ratio;
}

// Of equal ratios the first end is kept.
void JudgeFamily(const Evaluation& evaluation, std::size_t p, std::string_view family, Verdict& verdict) {
    FamilyVerdict judged;
    judged.limit = evaluation.Bounds().ratio;
    EndOfElement worst;
    EachEnd(evaluation, p, [&](const EndOfElement& end) {
        if (MemberFamilyName(end.identity->kind) != family) return;
        ++judged.ends;
        if (static_cast<double>(end.best.value) > judged.limit) ++judged.endsOver;
        if (worst.identity == nullptr || end.best.value > worst.best.value) worst = end;
    });
    if (worst.identity == nullptr) return;
    judged.worst = Describe(evaluation, worst);
    judged.passes = judged.endsOver == 0;
    verdict.families.push_back(std::move(judged));
}

// The heads of a substructure against one capacity: those over it, and the worst one in any case.
void JudgeHeads(const Evaluation& evaluation, std::size_t p, bool tension, double capacity,
                Verdict& verdict) {
    const ElementResults& results = evaluation.Elements()[p];
    const std::vector<EndExtreme>& extremes = tension ? results.greatestAxial : results.leastAxial;
    std::vector<HeadVerdict> heads;
    for (std::size_t pile = 0; pile < extremes.size(); ++pile) {
        const EndExtreme& extreme = extremes[pile];
        if (extreme.loadCase < 0) continue;
        const double demand = tension ? extreme.value : -static_cast<double>(extreme.value);
        heads.push_back({static_cast<int>(p) + 1, static_cast<int>(pile) + 1, tension, extreme.value,
                         extreme.loadCase + 1, std::string(LimitStateIn(evaluation.Data(), extreme.loadCase)),
                         capacity, !(demand > capacity)});
    }
    const auto demand = [](const HeadVerdict& head) { return head.tension ? head.force : -head.force; };
    std::ranges::stable_sort(heads, std::ranges::greater(), demand);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        if (i == 0 || !heads[i].passes) verdict.heads.push_back(heads[i]);
    }
}

}  // namespace

const FamilyVerdict* Verdict::Worst() const {
    const auto worst = std::ranges::max_element(
        families, {}, [](const FamilyVerdict& family) { return family.worst.ratio; });
    return worst == families.end() ? nullptr : &*worst;
}

Verdict Judge(const Evaluation& evaluation) {
    Verdict verdict;
    for (std::size_t p = 0; p < evaluation.Elements().size(); ++p) {
        for (const MemberKind kind : kFamilies) {
            JudgeFamily(evaluation, p, MemberFamilyName(kind), verdict);
        }
        const Limits& limits = evaluation.Bounds();
        if (limits.pileCompression) JudgeHeads(evaluation, p, false, *limits.pileCompression, verdict);
        if (limits.pileTension) JudgeHeads(evaluation, p, true, *limits.pileTension, verdict);
    }
    verdict.passes = std::ranges::all_of(verdict.families, &FamilyVerdict::passes) &&
                     std::ranges::all_of(verdict.heads, &HeadVerdict::passes);
    return verdict;
}

std::vector<EndRatio> GreatestRatios(const Evaluation& evaluation, std::size_t count) {
    std::vector<EndOfElement> ends;
    for (std::size_t p = 0; p < evaluation.Elements().size(); ++p) {
        EachEnd(evaluation, p, [&](const EndOfElement& end) { ends.push_back(end); });
    }
    std::ranges::stable_sort(ends, std::ranges::greater(),
                             [](const EndOfElement& end) { return end.best.value; });
    ends.resize(std::min(ends.size(), count));
    std::vector<EndRatio> ratios;
    std::ranges::transform(ends, std::back_inserter(ratios),
                           [&](const EndOfElement& end) { return Describe(evaluation, end); });
    return ratios;
}

std::string RatioText(double ratio, double limit) {
    std::string text = FormatFixed(ratio, kRatioDecimals);
    const bool hidden = std::isfinite(ratio) && (ratio > limit) != (std::stod(text) > limit);
    if (!hidden) return text;
    text.clear();
    AppendNumber(text, static_cast<float>(ratio));
    return text;
}

}  // namespace lumerin
