// SPDX-License-Identifier: MIT
#include "figures/Figure.h"

#include <gmock/gmock.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>

#include "figures/CapData.h"
#include "figures/Svg.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;

constexpr const char* kPresets[] = {"pier", "bent", "group", "walls", "bridge", "history"};

struct FreeDocument {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, FreeDocument>;

Document Parse(const std::string& svg) {
    return Document(xmlReadMemory(svg.data(), static_cast<int>(svg.size()), "figure.svg", nullptr,
                                  XML_PARSE_NONET | XML_PARSE_NOWARNING));
}

// The upright texts of a document with their boxes, by the widths that the picture was laid out with.
struct TextBox {
    std::string text;
    double left, right, base, size;
};

double NumberOf(xmlNode* node, const char* name) {
    xmlChar* value = xmlGetProp(node, reinterpret_cast<const xmlChar*>(name));
    const double number = value == nullptr ? 0.0 : std::stod(reinterpret_cast<const char*>(value));
    xmlFree(value);
    return number;
}
std::string WordOf(xmlNode* node, const char* name) {
    xmlChar* value = xmlGetProp(node, reinterpret_cast<const xmlChar*>(name));
    const std::string word = value == nullptr ? "" : reinterpret_cast<const char*>(value);
    xmlFree(value);
    return word;
}

void Collect(xmlNode* node, std::vector<TextBox>& boxes) {
    for (; node != nullptr; node = node->next) {
        const std::string name = node->name == nullptr ? "" : reinterpret_cast<const char*>(node->name);
        if (name == "text" && WordOf(node, "transform").empty()) {
            xmlChar* content = xmlNodeGetContent(node);
            const std::string text = reinterpret_cast<const char*>(content);
            xmlFree(content);
            const double size = NumberOf(node, "font-size"), x = NumberOf(node, "x");
            const double width = TextWidth(text, size, WordOf(node, "font-weight") == "bold");
            const std::string anchor = WordOf(node, "text-anchor");
            const double left = anchor == "middle" ? x - width / 2 : anchor == "end" ? x - width : x;
            boxes.push_back({text, left, left + width, NumberOf(node, "y"), size});
        }
        Collect(node->children, boxes);
    }
}

// Every box of the picture is inside it.
void ExpectInside(xmlNode* node, double width, double height, const std::string& where) {
    for (; node != nullptr; node = node->next) {
        if (node->name != nullptr && std::string(reinterpret_cast<const char*>(node->name)) == "rect") {
            EXPECT_GE(NumberOf(node, "x"), 0.0) << where;
            EXPECT_LE(NumberOf(node, "x") + NumberOf(node, "width"), width) << where;
            EXPECT_LE(NumberOf(node, "y") + NumberOf(node, "height"), height) << where;
        }
        ExpectInside(node->children, width, height, where);
    }
}

}  // namespace

// Every figure of every substructure of the sample projects is well-formed XML, lies inside its picture, and
// no text lies on another.
TEST(Figures, AreWellFormedAndTheirTextsNeverOverlap) {
    const SampleFolder folder;
    int drawn = 0;
    for (const char* preset : kPresets) {
        const auto opened = LoadByName(ProjectName(folder.Write(preset)));
        for (const FigureKind& figure : AllFigures()) {
            Limits limits;
            limits.pileCompression = 500.0;
            const Evaluation evaluation(*opened, {}, limits, figure.needs);
            for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
                const std::string where =
                    std::string(preset) + " " + std::string(figure.name) + " " + std::to_string(p + 1);
                FigureRequest request;
                request.substructure = static_cast<int>(p) + 1;
                const std::string svg = figure.draw(evaluation, request);
                const Document document = Parse(svg);
                ASSERT_NE(document, nullptr) << where;
                ++drawn;
                EXPECT_EQ(svg.find("nan"), std::string::npos) << where;
                if (figure.scope != FigureScope::project) {
                    EXPECT_THAT(svg, HasSubstr(std::string(preset) + ".in, substructure"));
                }
                std::vector<TextBox> boxes;
                xmlNode* root = xmlDocGetRootElement(document.get());
                Collect(root, boxes);
                const double width = NumberOf(root, "width"), height = NumberOf(root, "height");
                ExpectInside(root, width, height, where);
                for (std::size_t i = 0; i < boxes.size(); ++i) {
                    const TextBox& a = boxes[i];
                    EXPECT_GE(a.left, 0.0) << where << ": " << a.text;
                    EXPECT_LE(a.right, width) << where << ": " << a.text;
                    EXPECT_LE(a.base, height) << where << ": " << a.text;
                    for (std::size_t j = i + 1; j < boxes.size(); ++j) {
                        const TextBox& b = boxes[j];
                        const bool apart = a.right <= b.left || b.right <= a.left ||
                                           std::abs(a.base - b.base) >= 0.8 * std::min(a.size, b.size);
                        EXPECT_TRUE(apart) << where << ": \"" << a.text << "\" and \"" << b.text << '"';
                    }
                }
            }
        }
    }
    EXPECT_EQ(drawn, 7 * (1 + 1 + 1 + 1 + 3 + 1));
}

// A design place inside an element is interpolated in one case, and so is never outside the band of all
// cases.
TEST(Figures, TheBandHoldsEveryDesignPlace) {
    const SampleFolder folder;
    int marks = 0;
    for (const char* preset : {"pier", "bent", "bridge", "history"}) {
        const auto opened = LoadByName(ProjectName(folder.Write(preset)));
        const Evaluation evaluation(*opened, {}, {}, FindFigure("cap-shear")->needs);
        const Evaluation moments(*opened, {}, {}, FindFigure("cap-moment")->needs);
        for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
            for (const CapForce force : {CapForce::shear, CapForce::moment}) {
                const CapPicture picture =
                    DescribeCap(force == CapForce::shear ? evaluation : moments, p, force);
                for (const CapPanel& panel : picture.panels) {
                    for (const DesignMark& mark : panel.marks) {
                        double least = 1e30, greatest = -1e30;
                        for (const BandRun& run : panel.runs) {
                            for (std::size_t i = 0; i + 1 < run.size(); ++i) {
                                const double from = run[i].x, to = run[i + 1].x;
                                if (mark.x < from - 1e-9 || mark.x > to + 1e-9) continue;
                                const double t = to == from ? 0.0 : (mark.x - from) / (to - from);
                                greatest = std::max(greatest, run[i].greatest.value * (1 - t) +
                                                                  run[i + 1].greatest.value * t);
                                least = std::min(least,
                                                 run[i].least.value * (1 - t) + run[i + 1].least.value * t);
                            }
                        }
                        const double room = 1e-4 * std::max(1.0, std::abs(mark.value));
                        EXPECT_LE(mark.value, greatest + room) << preset << " " << mark.place;
                        EXPECT_GE(mark.value, least - room) << preset << " " << mark.place;
                        ++marks;
                    }
                }
            }
        }
    }
    EXPECT_GT(marks, 200);
}

// The two rows of a place: its greatest and its least value, the greatest first.
TEST(Figures, MarksOfAPlaceAreItsGreatestAndItsLeastValue) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("pier")));
    const Evaluation evaluation(*opened, {}, {}, FindFigure("cap-moment")->needs);
    for (const CapPanel& panel : DescribeCap(evaluation, 0, CapForce::moment).panels) {
        std::map<std::string, std::pair<double, double>> places;
        for (const DesignMark& mark : panel.marks) {
            (mark.maximum ? places[mark.place].first : places[mark.place].second) = mark.value;
        }
        EXPECT_GE(places.size(), 10U);
        std::size_t apart = 0;
        for (const auto& [place, values] : places) {
            EXPECT_GE(values.first, values.second) << place;
            if (values.first > values.second) ++apart;
        }
        EXPECT_GE(apart + 2, places.size());  // the bearings at both tips carry the same in all cases
    }
}

// Pile 2 has its ratio 0.75 at its head in case 2, and 1.25 below it; the foundation's element 0.75 in
// case 1.
TEST(Figures, MembersAreListedWorstFirstAndHeadsByTheirOwnEnd) {
    RecordsProject project;
    project.Set(1, 3, kRatioJ, 0.75F);
    project.Set(1, 3, kRatioI, 1.25F);
    project.Set(0, 5, kRatioI, 0.75F);
    project.Set(1, 5, kRatioJ, 0.75F);
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(FindFigure("dc")->needs);
    const std::string ratios = FindFigure("dc")->draw(evaluation, {});
    EXPECT_THAT(ratios, HasSubstr("1.250 over the limit, pile 2 element 4 end I, case 2<"));
    EXPECT_THAT(ratios, HasSubstr("0.750, element 1 end I, case 1<"));
    EXPECT_LT(ratios.find(">pile 2<"), ratios.find(">element 1<"));
    EXPECT_LT(ratios.find(">element 1<"), ratios.find(">pile 1<"));
    EXPECT_THAT(FindFigure("pile-heads")->draw(evaluation, {}), HasSubstr("pile 2 head: D/C 0.75, case 2<"));
}

// The bridge's bent has two masked elements side by side: its band has a gap there.
TEST(Figures, AMaskedElementIsAGap) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("bridge")));
    const Evaluation evaluation(*opened, {}, {}, FindFigure("cap-moment")->needs);
    const CapPicture bent = DescribeCap(evaluation, 1, CapForce::moment);
    ASSERT_EQ(bent.panels.size(), 1U);
    EXPECT_EQ(bent.panels[0].runs.size(), 2U);
    EXPECT_EQ(DescribeCap(evaluation, 0, CapForce::moment).panels[0].runs.size(), 2U);
    EXPECT_TRUE(DescribeCap(evaluation, 2, CapForce::moment).IsEmpty());
}

TEST(Figures, ASubstructureWithoutTheMemberIsASentence) {
    RecordsProject project;
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(FindFigure("cap-shear")->needs);
    EXPECT_THAT(FindFigure("cap-shear")->draw(evaluation, {}), HasSubstr("This substructure has no cap."));
}

TEST(Figures, ForcesThatAreNoNumbersLeaveAPicture) {
    RecordsProject project;
    for (int c = 0; c < 2; ++c) {
        project.Set(c, 1, kFaxWordJ, std::numeric_limits<float>::quiet_NaN());
        project.Set(c, 3, kFaxWordJ, std::numeric_limits<float>::infinity());
    }
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(FindFigure("pile-heads")->needs);
    const std::string svg = FindFigure("pile-heads")->draw(evaluation, {});
    EXPECT_NE(Parse(svg), nullptr);
    EXPECT_EQ(svg.find("nan"), std::string::npos);
}

// Two decimals would say 1.00, which is no more than the limit.
TEST(Figures, ARatioJustOverTheLimitShowsIt) {
    RecordsProject project;
    project.Set(0, 3, kRatioJ, 1.0001F);
    project.WriteAll();
    const std::string svg = FindFigure("dc")->draw(project.Evaluate(FindFigure("dc")->needs), {});
    EXPECT_THAT(svg, testing::ContainsRegex(">1\\.0001[0-9]* over the limit, pile 2 head, case 1<"));
}

// By hand from the face's table: A 667, v 500, the full stop 278, all in thousandths.
TEST(Svg, TextWidthsAreThoseOfTheFace) {
    EXPECT_DOUBLE_EQ(TextWidth("Av.", 10.0), 14.45);
    EXPECT_DOUBLE_EQ(TextWidth("", 10.0), 0.0);
    EXPECT_DOUBLE_EQ(TextWidth("\u00f6", 10.0), 7.78);
}

TEST(Svg, TextsOfAProjectCannotBreakTheDocument) {
    Svg svg(100, 100, "<&>\"\x01", "]]>");
    svg.BeginGroup("a \"title\" & more", "id\"");
    svg.Text("<script>\x02", {1, 2});
    const std::string document = svg.Document();  // the open group is closed
    EXPECT_NE(Parse(document), nullptr) << document;
    EXPECT_THAT(document, HasSubstr("&lt;script&gt;</text>"));
}

TEST(Svg, CoordinatesAreShort) {
    EXPECT_EQ(Coordinate(1.0), "1");
    EXPECT_EQ(Coordinate(-0.001), "0");
    EXPECT_EQ(Coordinate(12.346), "12.35");
    EXPECT_EQ(Coordinate(std::numeric_limits<double>::infinity()), "0");
}

}  // namespace lumerin
