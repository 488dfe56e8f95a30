// SPDX-License-Identifier: MIT
#include "figures/CapOverlay.h"

#include <gmock/gmock.h>
#include <libxml/parser.h>

#include <set>

#include "figures/Figure.h"
#include "records/OpenProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

struct ReadRun {
    explicit ReadRun(const std::string& base)
        : opened(LoadByName(ProjectName(base))),
          evaluation(*opened, {}, {}, FindFigure("cap-moment")->needs) {}
    std::unique_ptr<OpenProject> opened;
    Evaluation evaluation;
};

// The points of the lines with or without dashes.
std::multiset<std::string> Lines(const std::string& svg, bool dashed) {
    std::multiset<std::string> lines;
    const std::string begin = "<polyline points=\"";
    for (std::size_t at = svg.find(begin); at != std::string::npos; at = svg.find(begin, at + 1)) {
        const std::string line = svg.substr(at, svg.find("/>", at) - at);
        if ((line.find("stroke-dasharray") != std::string::npos) != dashed) continue;
        EXPECT_EQ(line.find("#7d7d7d") != std::string::npos, dashed) << "grey and dashed is the earlier run";
        lines.insert(line.substr(begin.size(), line.find('"', begin.size()) - begin.size()));
    }
    return lines;
}

}  // namespace

TEST(CapOverlay, OfOneRunBothEnvelopesHaveTheSamePoints) {
    const SampleFolder folder;
    const ReadRun run(folder.Write("pier"));
    const std::string svg =
        DrawCapOverlay(run.evaluation, run.evaluation, 1, CapForce::moment, UnitSystem::us);
    // Greatest and least of four classes.
    EXPECT_EQ(Lines(svg, true).size(), 8U);
    EXPECT_EQ(Lines(svg, true), Lines(svg, false));
    EXPECT_THAT(svg, HasSubstr("M33 (kip-ft)"));
    xmlDoc* document = xmlReadMemory(svg.data(), static_cast<int>(svg.size()), "overlay.svg", nullptr, 0);
    EXPECT_NE(document, nullptr);
    xmlFreeDoc(document);
}

TEST(CapOverlay, ExchangedRunsExchangeTheLines) {
    const SampleFolder folder;
    samples::SampleOptions options;
    options.preset = "pier";
    const ReadRun before(folder.Write(options));
    options.name = "other";
    options.seed = 2;
    const ReadRun after(folder.Write(options));
    const auto draw = [](const ReadRun& old, const ReadRun& now) {
        return DrawCapOverlay(old.evaluation, now.evaluation, 1, CapForce::shear, UnitSystem::si);
    };
    const std::string there = draw(before, after), back = draw(after, before);
    EXPECT_EQ(Lines(there, true).size(), 8U);
    EXPECT_NE(Lines(there, true), Lines(there, false));
    EXPECT_THAT(there, HasSubstr("F22 (kN)"));
    EXPECT_EQ(Lines(there, true), Lines(back, false));
    EXPECT_EQ(Lines(there, false), Lines(back, true));
}

TEST(CapOverlay, WithoutACapThereIsNone) {
    const SampleFolder folder;
    const ReadRun run(folder.Write("group"));
    EXPECT_THAT(DrawCapOverlay(run.evaluation, run.evaluation, 1, CapForce::moment, UnitSystem::si),
                IsEmpty());
}

}  // namespace lumerin
