// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <map>

#include "figures/ElevationData.h"
#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "figures/RatioColour.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr std::string_view kHeading = "Elevation";
constexpr double kTop = kHeadHeight + 44.0, kMostHeight = 460.0;
constexpr double kSideRoom = 36.0;  // for numbers left and right of the frame
constexpr double kStubLength = 54.0, kStubWidth = 9.0, kBarWidth = 7.0, kThin = 1.6, kRing = 12.0;
constexpr std::string_view kNoRatio = "#bdbdbd";
// More of them are drawn in runs of one colour, without numbers: nobody could tell them apart.
constexpr std::size_t kMostBars = 600;

// Where a point of the model is in the picture, the same scale in both directions.
class Layout {
  public:
    explicit Layout(const ElevationPicture& picture) : m_zFalls(picture.zFalls) {
        for (const std::vector<ElevationBar>* bars : {&picture.frame, &picture.piles}) {
            for (const ElevationBar& bar : *bars) {
                Take(bar.from);
                Take(bar.to);
            }
        }
        const double room = kWidth - kLeft - kRight - 2.0 * kSideRoom;
        const double width = m_high.x - m_low.x, height = m_high.y - m_low.y;
        m_scale = 1.0;
        if (width > 0.0) m_scale = room / width;
        if (height > 0.0)
            m_scale = width > 0.0 ? std::min(m_scale, kMostHeight / height) : kMostHeight / height;
        m_left = kLeft + kSideRoom + (room - width * m_scale) / 2.0;
    }

    Point At(const Point& place) const {
        const double below = m_zFalls ? place.y - m_low.y : m_high.y - place.y;
        return {m_left + (place.x - m_low.x) * m_scale, kTop + below * m_scale};
    }
    double Height() const { return (m_high.y - m_low.y) * m_scale; }
    double Bottom() const { return kTop + Height(); }
    // The axes; a range of no length has none.
    Scale X() const {
        const double left = At(m_low).x, right = At(m_high).x;
        return {m_low.x, m_high.x, left, right, TicksOf(right - left), false};
    }
    Scale Z() const { return {m_low.y, m_high.y, At(m_low).y, At(m_high).y, TicksOf(Height()), false}; }

  private:
    static int TicksOf(double pixels) { return std::clamp(static_cast<int>(pixels / 45.0), 2, 12); }
    void Take(const Point& place) {
        m_low = m_any ? Point{std::min(m_low.x, place.x), std::min(m_low.y, place.y)} : place;
        m_high = m_any ? Point{std::max(m_high.x, place.x), std::max(m_high.y, place.y)} : place;
        m_any = true;
    }

    Point m_low, m_high;
    bool m_any = false, m_zFalls;
    double m_scale = 1.0, m_left = 0.0;
};

// Piles with the same head in this view, one after the other in y.
struct PileRow {
    std::vector<int> numbers;
    const ElevationBar* worst = nullptr;
};

// Elements that are drawn as one line.
struct DrawnBar {
    std::vector<Point> points;
    const ElevationBar* worst = nullptr;
    const ElevationBar* last = nullptr;
};

class ElevationFigure {
  public:
    ElevationFigure(const Evaluation& evaluation, const FigureRequest& request,
                    const ElevationPicture& picture)
        : m_evaluation(evaluation),
          m_picture(picture),
          m_layout(picture),
          m_limit(evaluation.Bounds().ratio),
          m_lowest(FindLowest()),
          m_svg(
              kWidth, m_lowest + 104.0, kHeading,
              "The frame of the substructure in the x-z plane, its elements coloured by their greatest D/C."),
          m_substructure(request.substructure) {}

    std::string Draw() {
        m_svg.Rect(0, 0, m_svg.Width(), m_svg.Height(), {"#ffffff", {}, 0, {}});
        DrawHeadLines();
        DrawAxes();
        for (const PileRow& row : Rows()) DrawPiles(row);
        DrawFrame();
        DrawWorst();
        if (m_picture.frame.size() <= kMostBars) DrawNumbers();
        DrawNotes();
        return m_svg.Document();
    }

  private:
    double FindLowest() const {
        double lowest = m_layout.Bottom() + 14.0;
        for (const ElevationBar& pile : m_picture.piles) {
            lowest = std::max(lowest, m_layout.At(pile.from).y + kStubLength + 20.0);
        }
        return lowest;
    }

    void DrawHeadLines() {
        std::string more = std::string("The x-z plane; up is ") + (m_picture.zFalls ? "-z" : "+z");
        more += m_picture.hasColumns ? ", from the foot of a column to its top" : "";
        more += m_picture.piles.empty() ? "" : "; the lengths of piles are not to scale";
        DrawHead(m_svg, m_evaluation, kHeading, m_substructure, more + "; D/C limit " + NumberText(m_limit));
        const ElevationBar* worst = m_picture.Worst();
        const std::string words =
            worst == nullptr ? "No element has a D/C ratio"
                             : "Greatest D/C " + RatioLabel(worst->ratio.value, m_limit) + ", " +
                                   worst->place + ", " + CaseText(m_evaluation, worst->ratio.loadCase);
        m_svg.Text(words, {kLeft, 78.0}, {kNormal, true, Anchor::start, kSoft, false});
    }

    void DrawAxes() {
        constexpr double kLeastHeight = 40.0;
        const Scale x = m_layout.X();
        if (m_layout.Height() >= kLeastHeight) {
            DrawYAxis(m_svg, m_layout.Z(), kLeft, kWidth - kRight,
                      WithUnit("z", Quantity::length, m_evaluation));
        }
        DrawXAxis(m_svg, x, m_lowest, WithUnit("x", Quantity::length, m_evaluation));
    }

    std::vector<PileRow> Rows() const {
        std::map<std::pair<std::string, std::string>, PileRow> rows;
        for (const ElevationBar& pile : m_picture.piles) {
            const Point at = m_layout.At(pile.from);
            PileRow& row = rows[{Coordinate(at.x), Coordinate(at.y)}];
            row.numbers.push_back(pile.member);
            if (row.worst == nullptr || IsWorse(pile, *row.worst)) row.worst = &pile;
        }
        std::vector<PileRow> found;
        found.reserve(rows.size());
        for (auto& [place, row] : rows) found.push_back(std::move(row));
        return found;
    }
    static bool IsWorse(const ElevationBar& a, const ElevationBar& b) {
        if (a.ratio.loadCase < 0) return false;
        return b.ratio.loadCase < 0 || a.ratio.value > b.ratio.value;
    }

    std::string RatioWords(const ElevationBar& bar) const {
        if (bar.masked) return "masked, no forces";
        if (bar.ratio.loadCase < 0) return "no D/C ratio";
        return "greatest D/C " + NumberText(static_cast<double>(bar.ratio.value)) + ", " + bar.place + ", " +
               CaseText(m_evaluation, bar.ratio.loadCase);
    }
    std::string_view ColourOf(const ElevationBar& bar) const {
        return bar.ratio.loadCase < 0 ? kNoRatio : RatioColour(bar.ratio.value, m_limit);
    }

    void DrawPiles(const PileRow& row) {
        const Point head = m_layout.At(row.worst->from);
        std::string numbers;
        for (const int number : row.numbers)
            numbers += (numbers.empty() ? "" : ", ") + std::to_string(number);
        const bool isOne = row.numbers.size() == 1;
        m_svg.BeginGroup((isOne ? "pile " : "piles ") + numbers + ": " + RatioWords(*row.worst));
        const Box stub{head.x - kStubWidth / 2.0, head.y, kStubWidth, kStubLength};
        if (row.worst->ratio.loadCase < 0) {
            m_svg.Rect(stub.left, stub.top, stub.width, stub.height, {kNoRatio, kAxis, 0.5, {}});
        } else {
            DrawRatio(m_svg, row.worst->ratio.value, m_limit, stub);
        }
        // The stub is cut off.
        const double end = head.y + kStubLength;
        m_svg.Line({head.x - 8.0, end + 2.0}, {head.x + 8.0, end - 2.0}, {{}, kAxis, 1.2, {}});
        m_svg.EndGroup();
        const Point at{head.x, end + 14.0};
        if (!m_labels.Place(m_svg, numbers, at, {kSmall, false, Anchor::middle, kMark, false, true})) {
            m_labels.Place(m_svg, std::to_string(row.worst->member), at,
                           {kSmall, false, Anchor::middle, kMark, false, true});
        }
    }

    // The worst are drawn last, so that none of them is covered.
    void DrawFrame() {
        std::vector<DrawnBar> bars;
        for (const ElevationBar& bar : m_picture.frame) {
            if (m_picture.frame.size() > kMostBars && !bars.empty() && Continues(bars.back(), bar)) {
                bars.back().points.push_back(m_layout.At(bar.to));
                bars.back().last = &bar;
                if (IsWorse(bar, *bars.back().worst)) bars.back().worst = &bar;
            } else {
                bars.push_back({{m_layout.At(bar.from), m_layout.At(bar.to)}, &bar, &bar});
            }
        }
        std::ranges::stable_sort(
            bars, [](const DrawnBar& a, const DrawnBar& b) { return IsWorse(*b.worst, *a.worst); });
        for (const DrawnBar& bar : bars) DrawBar(bar);
    }
    bool Continues(const DrawnBar& run, const ElevationBar& bar) const {
        const ElevationBar& last = *run.last;
        return last.kind == bar.kind && last.member == bar.member && last.nodeJ == bar.nodeI &&
               last.masked == bar.masked && ColourOf(last) == ColourOf(bar);
    }

    void DrawBar(const DrawnBar& bar) {
        const ElevationBar& worst = *bar.worst;
        std::string member(MemberFamilyName(worst.kind));
        std::ranges::replace(member, '_', ' ');
        m_svg.BeginGroup("element " + std::to_string(worst.number) + " (" + member +
                         "): " + RatioWords(worst));
        const Point from = bar.points.front(), to = bar.points.back();
        const bool isDot = std::hypot(to.x - from.x, to.y - from.y) < 0.5;
        const double width = worst.kind == MemberKind::other ? kBarWidth / 2.0 : kBarWidth;
        if (worst.masked) {
            m_svg.Polyline(bar.points, {{}, kAxis, kThin, "2 4"});
        } else if (isDot) {
            m_svg.Circle(from, width / 2.0, {ColourOf(worst), kAxis, 0.8, {}});
        } else {
            m_svg.Polyline(bar.points, {{}, kAxis, width + 1.6, {}});
            m_svg.Polyline(bar.points, {{}, ColourOf(worst), width, {}});
            const bool isOver = worst.ratio.loadCase >= 0 && worst.ratio.value > m_limit;
            if (isOver) m_svg.Polyline(bar.points, {{}, "#ffffff", width - 2.0, "2 5"});
        }
        m_svg.EndGroup();
    }

    static Point Middle(const Point& from, const Point& to) {
        return {(from.x + to.x) / 2.0, (from.y + to.y) / 2.0};
    }

    void DrawWorst() {
        const ElevationBar* worst = m_picture.Worst();
        if (worst == nullptr) return;
        Point at = Middle(m_layout.At(worst->from), m_layout.At(worst->to));
        if (worst->kind == MemberKind::pile) at.y += kStubLength / 2.0;
        m_svg.Circle(at, kRing, {{}, kMark, 1.6, {}});
    }

    void DrawNumbers() {
        std::vector<const ElevationBar*> bars;
        for (const ElevationBar& bar : m_picture.frame) bars.push_back(&bar);
        // Where there is no room for all, the worst keep theirs.
        std::ranges::stable_sort(
            bars, [](const ElevationBar* a, const ElevationBar* b) { return IsWorse(*a, *b); });
        for (const ElevationBar* bar : bars) {
            const Point from = m_layout.At(bar->from), to = m_layout.At(bar->to), middle = Middle(from, to);
            const double length = std::hypot(to.x - from.x, to.y - from.y);
            const std::string number = std::to_string(bar->number);
            const bool isFlat = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
            if (length < (isFlat ? TextWidth(number, kSmall, true) : kSmall)) continue;
            // The ring of the worst is kept free.
            const double away = bar == m_picture.Worst() ? kRing + 3.0 : 8.0;
            const Point at =
                isFlat ? Point{middle.x, middle.y - away} : Point{middle.x + away, middle.y + 4.0};
            m_labels.Place(m_svg, number, at,
                           {kSmall, true, isFlat ? Anchor::middle : Anchor::start, kMark, false, true});
        }
        for (const ElevationNode& node : m_picture.nodes) {
            const Point at = m_layout.At(node.at);
            m_svg.Circle(at, 1.8, {kMark, {}, 0, {}});
            m_labels.Place(m_svg, std::to_string(node.number), {at.x + 8.0, at.y + 15.0},
                           {kSmall - 1.5, false, Anchor::start, kSoft, false, true});
        }
    }

    void DrawNotes() {
        const double y = m_lowest + 60.0;
        DrawRatioLegend(m_svg, {kLeft, y}, m_limit);
        std::string words =
            "Bold numbers: elements, grey ones: nodes, below the stubs: piles; ring: greatest D/C";
        if (m_picture.withoutPlace > 0) {
            words += "; " + std::to_string(m_picture.withoutPlace) +
                     " elements are left out, the model has no place for their nodes";
        }
        m_svg.Text(words, {kLeft, y + 20.0}, {kSmall, false, Anchor::start, kSoft, false});
        m_svg.Text("Grey: no D/C ratio; dotted: masked, no forces", {kLeft, y + 35.0},
                   {kSmall, false, Anchor::start, kSoft, false});
    }

    const Evaluation& m_evaluation;
    const ElevationPicture& m_picture;
    Layout m_layout;
    double m_limit, m_lowest;
    Svg m_svg;
    LabelPlaces m_labels;
    int m_substructure;
};

}  // namespace

std::string DrawElevation(const Evaluation& evaluation, const FigureRequest& request) {
    const ElevationPicture picture = DescribeElevation(evaluation, Index(request.substructure - 1));
    if (picture.IsEmpty()) {
        return Sentence(evaluation, kHeading, request.substructure,
                        "The model of this substructure lists no nodes for its elements.");
    }
    return ElevationFigure(evaluation, request, picture).Draw();
}

}  // namespace lumerin
