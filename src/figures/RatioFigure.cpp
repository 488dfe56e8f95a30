// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>

#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "figures/Marks.h"
#include "figures/RatioColour.h"
#include "framework/Index.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr std::string_view kHeading = "Greatest D/C of each member";
constexpr double kRowHeight = 20.0, kLabelWidth = 170.0;
constexpr std::size_t kMostRows = 40;

// A member with its greatest ratio.
struct MemberRatio {
    std::string name, place;
    float ratio = 0.0F;
    int loadCase = -1;
};

std::string MemberText(const CPier& pier, const ElementIdentity& identity) {
    std::string word(MemberKindName(identity.kind));
    std::ranges::replace(word, '_', ' ');
    const bool isWall = identity.kind == MemberKind::column &&
                        (pier.m_nStructureType == kTypeWallA || pier.m_nStructureType == kTypeWallB);
    if (isWall) word = "wall";
    if (identity.kind == MemberKind::other) return "element " + std::to_string(identity.number);
    const bool isAlone =
        identity.kind == MemberKind::leftCantilever || identity.kind == MemberKind::rightCantilever;
    return isAlone ? word : word + " " + std::to_string(identity.member);
}

std::vector<MemberRatio> MembersOf(const Evaluation& evaluation, std::size_t p) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    const ElementResults& results = evaluation.Elements()[p];
    std::vector<MemberRatio> members;
    std::map<std::string, std::size_t> known;
    for (const ElementIdentity& identity : evaluation.Identities(p)) {
        if (identity.masked) continue;
        const std::string name = MemberText(pier, identity);
        const auto [at, isNew] = known.emplace(name, members.size());
        if (isNew) members.push_back({name, {}, 0.0F, -1});
        MemberRatio& member = members[at->second];
        for (const int end : {kEndI, kEndJ}) {
            const EndExtreme here = results.GreatestRatio(identity.element, end);
            if (here.loadCase < 0 || (member.loadCase >= 0 && here.value <= member.ratio)) continue;
            member.ratio = here.value;
            member.loadCase = here.loadCase;
            member.place = PlaceOf(pier, identity, end);
        }
    }
    std::erase_if(members, [](const MemberRatio& member) { return member.loadCase < 0; });
    std::ranges::stable_sort(members, std::ranges::greater(), &MemberRatio::ratio);
    return members;
}

// "1.05 over the limit, Col 1 CL, case 16 GROUP-VII"
std::string LabelOf(const Evaluation& evaluation, const MemberRatio& member) {
    return RatioLabel(member.ratio, evaluation.Bounds().ratio) + ", " + member.place + ", " +
           CaseText(evaluation, member.loadCase);
}

// The widest label; bars leave that much room on the right.
double LabelRoom(const Evaluation& evaluation, std::span<const MemberRatio> members) {
    double room = 0.0;
    for (const MemberRatio& member : members) {
        room = std::max(room, TextWidth(LabelOf(evaluation, member), kSmall, true));
    }
    return std::min(room + 10.0, kWidth / 2.0);
}

}  // namespace

std::string DrawRatios(const Evaluation& evaluation, const FigureRequest& request) {
    const std::vector<MemberRatio> members = MembersOf(evaluation, Index(request.substructure - 1));
    if (members.empty()) {
        return Sentence(evaluation, kHeading, request.substructure,
                        "No member of this substructure has a D/C ratio.");
    }
    const double limit = evaluation.Bounds().ratio;
    const std::size_t rows = std::min(members.size(), kMostRows);
    const double top = kHeadHeight + 12.0, bottom = top + static_cast<double>(rows) * kRowHeight;
    Svg svg(kWidth, bottom + 76.0, kHeading, "Bars of the greatest D/C of each member, the worst first.");
    svg.Rect(0, 0, svg.Width(), svg.Height(), {"#ffffff", {}, 0, {}});
    std::string more = "Over all element ends and chosen cases, worst first; limit " + NumberText(limit);
    if (rows < members.size()) {
        more += "; the first " + std::to_string(rows) + " of " + std::to_string(members.size()) + " members";
    }
    DrawHead(svg, evaluation, kHeading, request.substructure, more);
    // Room for the text after the longest bar.
    const double greatest = std::max(static_cast<double>(members.front().ratio), limit);
    const double room = LabelRoom(evaluation, std::span(members).first(rows));
    const Scale x(0.0, greatest, kLabelWidth, kWidth - kRight - room, 10, true);
    for (const double tick : x.Ticks()) {
        svg.Line({x.At(tick), top}, {x.At(tick), bottom}, {{}, kGrid, 1.0, {}});
    }
    for (std::size_t i = 0; i < rows; ++i) {
        const MemberRatio& member = members[i];
        const double y = top + static_cast<double>(i) * kRowHeight;
        svg.Text(member.name, {kLabelWidth - 8.0, y + 14.0}, {kNormal, false, Anchor::end, kMark, false});
        const double ratio = std::max(static_cast<double>(member.ratio), 0.0);
        svg.BeginGroup(member.name + ": " + LabelOf(evaluation, member), MemberMarkName(member.name));
        DrawRatio(svg, ratio, limit, {x.At(0.0), y + 3.0, x.At(ratio) - x.At(0.0), kRowHeight - 6.0});
        svg.EndGroup();
        svg.Text(LabelOf(evaluation, member), {std::max(x.At(ratio), x.At(limit)) + 6.0, y + 14.0},
                 {kSmall, member.ratio > limit, Anchor::start, member.ratio > limit ? kOver : kAxis, false});
    }
    svg.Line({x.At(limit), top - 4.0}, {x.At(limit), bottom}, {{}, kMark, 1.4, "6 3"});
    DrawXAxis(svg, x, bottom, "D/C");
    DrawRatioLegend(svg, {kLeft, bottom + 64.0}, limit);
    return svg.Document();
}

}  // namespace lumerin
