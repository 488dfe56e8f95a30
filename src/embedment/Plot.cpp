// SPDX-License-Identifier: MIT
#include "embedment/Plot.h"

#include <algorithm>
#include <cmath>

#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr std::uint32_t kWhite = 0xffffff, kInk = 0x222222, kFrame = 0x555555, kSeries = 0x1f4e79;
constexpr std::uint32_t kZeroLine = 0x9a9a9a, kGridDefault = 0xdcdcdc;
constexpr int kMostTicks = 50;
constexpr std::size_t kLongestLabel = 14;  // beyond it a label takes six digits and an exponent

std::uint32_t FromPlatform(int colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    return ((bits & 0xffu) << 16) | (bits & 0xff00u) | ((bits >> 16) & 0xffu);
}

double Real(const GraphValue& value) {
    if (const double* real = std::get_if<double>(&value)) return *real;
    if (const int* integer = std::get_if<int>(&value)) return *integer;
    return 0.0;
}

// "%.4f" gives 4 decimals; any other format is taken as the general one.
std::string LabelText(double value, const std::string& format) {
    const bool fixed = format.size() == 4 && format.rfind("%.", 0) == 0 && format[2] >= '0' &&
                       format[2] <= '9' && format[3] == 'f';
    if (!fixed) return FormatGeneral(value);
    std::string text = FormatFixed(value, format[2] - '0');
    if (text.size() > kLongestLabel) return FormatGeneral(value);
    // A rounded zero has no sign.
    if (text.find_first_of("123456789") == std::string::npos && text[0] == '-') text.erase(0, 1);
    return text;
}

// The part of a line that is inside the frame. False: none of it.
bool ClipLine(const PlotRect& frame, PlotPoint& from, PlotPoint& to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double p[] = {-dx, dx, -dy, dy};
    const double q[] = {from.x - frame.left, frame.right - from.x, from.y - frame.top, frame.bottom - from.y};
    double enter = 0.0, leave = 1.0;
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0.0) {
            if (q[i] < 0.0) return false;
        } else if (p[i] < 0.0) {
            enter = std::max(enter, q[i] / p[i]);
        } else {
            leave = std::min(leave, q[i] / p[i]);
        }
    }
    if (!(enter <= leave)) return false;
    const PlotPoint start = from;
    from = {start.x + enter * dx, start.y + enter * dy};
    to = {start.x + leave * dx, start.y + leave * dy};
    return true;
}

bool IsFinite(PlotPoint p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

double WidestOf(const std::vector<std::string>& labels, const PlotCanvas& canvas, const PlotFont& font) {
    double widest = 0.0;
    for (const std::string& label : labels) widest = std::max(widest, canvas.TextWidth(label, font));
    return widest;
}

// Writes a text in the middle of a stretch; one that is too long for it gets smaller, down to half its size.
void FitText(PlotCanvas& canvas, const std::string& text, PlotPoint at, PlotFont font, double room,
             bool turned) {
    const double width = canvas.TextWidth(text, font);
    if (width > room && width > 0.0) font.height *= std::max(0.5, room / width);
    canvas.Text(text, at, font, TextAnchor::middle, turned, kInk);
}

}  // namespace

bool CPlot::Axis::IsValid() const {
    return std::isfinite(max - min) && max > min;
}

GraphValue CPlot::Get(int dispatchId) const {
    if (dispatchId == kGraphElementCount) return static_cast<int>(m_Elements.size());
    const auto found = m_Properties.find(dispatchId);
    return found == m_Properties.end() ? GraphValue(0) : found->second;
}

void CPlot::Call(int dispatchId, std::span<const GraphValue> arguments) {
    switch (dispatchId) {
        case kGraphClearElements:
            m_Elements.clear();
            break;
        case kGraphAddElement:
            m_Elements.push_back({{}, kSeries, {}});
            break;
        case kGraphSetRanges:
            if (arguments.size() < 4) break;
            m_dMinX = Real(arguments[0]);
            m_dMaxX = Real(arguments[1]);
            m_dMinY = Real(arguments[2]);
            m_dMaxY = Real(arguments[3]);
            break;
        case kGraphPlotPoint: {
            Curve* curve = CurrentElement();
            if (arguments.size() < 2 || curve == nullptr) break;
            if (curve->runs.empty()) curve->runs.emplace_back();
            curve->runs.back().push_back({Real(arguments[0]), Real(arguments[1])});
            break;
        }
        default:
            break;
    }
}

void CPlot::LeaveGap() {
    Curve* curve = CurrentElement();
    if (curve != nullptr && !curve->runs.empty()) curve->runs.emplace_back();
}

void CPlot::Distinguish(std::uint32_t colour, const std::string& name) {
    if (Curve* curve = CurrentElement()) {
        curve->colour = colour;
        curve->name = name;
    }
}

CPlot::Curve* CPlot::CurrentElement() {
    const int element = Integer(kGraphElement, 0);
    if (element < 0 || element >= static_cast<int>(m_Elements.size())) return nullptr;
    return &m_Elements[Index(element)];
}

int CPlot::Integer(int id, int fallback) const {
    const auto found = m_Properties.find(id);
    const int* value = found == m_Properties.end() ? nullptr : std::get_if<int>(&found->second);
    return value == nullptr ? fallback : *value;
}

std::string CPlot::Text(int id) const {
    const GraphValue value = Get(id);
    const std::string* text = std::get_if<GraphText>(&value);
    return text == nullptr ? std::string() : *text;
}

CPlot::Axis CPlot::MakeAxis(double min, double max, int ticksId, int formatId) const {
    Axis axis{min, max, {}};
    if (!axis.IsValid()) return axis;
    const int ticks = std::clamp(Integer(ticksId, 1), 1, kMostTicks);
    const std::string format = Text(formatId);
    for (int i = 0; i <= ticks; ++i) {
        axis.labels.push_back(LabelText(min + (max - min) * i / ticks, format));
    }
    return axis;
}

// All sizes follow from the height of the text, and that from the size of the drawing.
CPlot::Layout CPlot::MakeLayout(const PlotCanvas& canvas, double width, double height) const {
    Layout layout;
    const double em = std::clamp(std::min(width / 52.0, height / 26.0), 7.0, 60.0);
    layout.text = {em, false};
    layout.title = {em * 1.2, true};
    layout.tick = em * 0.4;
    layout.x = MakeAxis(m_dMinX, m_dMaxX, kGraphTicksX, kGraphFormatX);
    layout.y = MakeAxis(m_dMinY, m_dMaxY, kGraphTicksY, kGraphFormatY);
    const double labelWidth = WidestOf(layout.y.labels, canvas, layout.text);
    const double lastLabel =
        layout.x.labels.empty() ? 0.0 : canvas.TextWidth(layout.x.labels.back(), layout.text);
    PlotRect& frame = layout.frame;
    frame.left = std::round(em * 2.6 + labelWidth + em * 0.4 + layout.tick);
    frame.top = std::round(em * 2.9);
    frame.right = std::round(width - std::max(em * 1.2, lastLabel / 2.0 + em * 0.6));
    frame.bottom = std::round(height - em * 4.2);
    frame.right = std::max(frame.right, frame.left + 1.0);
    frame.bottom = std::max(frame.bottom, frame.top + 1.0);
    return layout;
}

void CPlot::Draw(PlotCanvas& canvas, double width, double height) const {
    const Layout layout = MakeLayout(canvas, width, height);
    canvas.FillRect({0.0, 0.0, width, height}, kWhite);
    DrawGrid(canvas, layout);
    DrawAxes(canvas, layout);
    DrawTexts(canvas, layout, width);
    if (!layout.x.IsValid() || !layout.y.IsValid()) return;
    for (const Curve& curve : m_Elements) {
        for (const auto& run : curve.runs) DrawSeries(canvas, layout, run, curve.colour);
        if (!curve.name.empty()) DrawName(canvas, layout, curve);
    }
}

void CPlot::DrawName(PlotCanvas& canvas, const Layout& layout, const Curve& curve) const {
    if (curve.runs.empty() || curve.runs.front().empty()) return;
    const PlotRect& frame = layout.frame;
    const double em = layout.text.height;
    const PlotPoint first = curve.runs.front().front();
    const PlotPoint place{frame.left + frame.Width() * layout.x.Share(first.x),
                          frame.bottom - frame.Height() * layout.y.Share(first.y)};
    if (!IsFinite(place)) return;
    // On the side of the point that has more space.
    const bool isLeft = place.x < (frame.left + frame.right) / 2.0;
    const double y = place.y - frame.top > em * 2.0 ? place.y - em * 0.7 : place.y + em * 1.4;
    canvas.Text(curve.name, {place.x, y}, layout.text, isLeft ? TextAnchor::start : TextAnchor::end, false,
                curve.colour);
}

void CPlot::DrawGrid(PlotCanvas& canvas, const Layout& layout) const {
    const PlotRect& frame = layout.frame;
    const GraphValue show = Get(kGraphShowGrid);
    const bool* shown = std::get_if<bool>(&show);
    const std::uint32_t colour =
        m_Properties.count(kGraphColour) != 0 ? FromPlatform(Integer(kGraphColour, 0)) : kGridDefault;
    if (shown != nullptr && *shown) {
        const auto inner = [](const Axis& axis) {
            return axis.labels.size() < 2 ? 0 : axis.labels.size() - 1;
        };
        for (std::size_t i = 1; i < inner(layout.x); ++i) {
            const double x =
                frame.left + frame.Width() * static_cast<double>(i) / static_cast<double>(inner(layout.x));
            canvas.RuleLine({x, frame.top}, {x, frame.bottom}, 1.0, colour);
        }
        for (std::size_t i = 1; i < inner(layout.y); ++i) {
            const double y =
                frame.bottom - frame.Height() * static_cast<double>(i) / static_cast<double>(inner(layout.y));
            canvas.RuleLine({frame.left, y}, {frame.right, y}, 1.0, colour);
        }
    }
    // Forces and displacements change their sign here.
    if (layout.y.IsValid() && layout.y.min < 0.0 && layout.y.max > 0.0) {
        const double y = frame.bottom - frame.Height() * layout.y.Share(0.0);
        canvas.RuleLine({frame.left, y}, {frame.right, y}, 1.0, kZeroLine);
    }
}

void CPlot::DrawAxes(PlotCanvas& canvas, const Layout& layout) const {
    const PlotRect& frame = layout.frame;
    canvas.RuleLine({frame.left, frame.top}, {frame.right, frame.top}, 1.0, kFrame);
    canvas.RuleLine({frame.right, frame.top}, {frame.right, frame.bottom}, 1.0, kFrame);
    canvas.RuleLine({frame.left, frame.bottom}, {frame.right, frame.bottom}, 1.0, kFrame);
    canvas.RuleLine({frame.left, frame.top}, {frame.left, frame.bottom}, 1.0, kFrame);
    const double em = layout.text.height;
    const std::size_t countX = layout.x.labels.size(), countY = layout.y.labels.size();
    // Labels that would touch each other leave some out.
    const double room = countX < 2 ? frame.Width() : frame.Width() / static_cast<double>(countX - 1);
    const double needed = WidestOf(layout.x.labels, canvas, layout.text) + em * 0.5;
    const auto every = static_cast<std::size_t>(std::clamp(std::ceil(needed / room), 1.0, 100.0));
    for (std::size_t i = 0; i < countX; ++i) {
        const double x = frame.left + room * static_cast<double>(i);
        canvas.RuleLine({x, frame.bottom}, {x, frame.bottom + layout.tick}, 1.0, kFrame);
        if (i % every != 0) continue;
        canvas.Text(layout.x.labels[i], {x, frame.bottom + layout.tick + em * 1.15}, layout.text,
                    TextAnchor::middle, false, kInk);
    }
    for (std::size_t i = 0; i < countY; ++i) {
        const double y =
            frame.bottom - frame.Height() * static_cast<double>(i) / static_cast<double>(countY - 1);
        canvas.RuleLine({frame.left - layout.tick, y}, {frame.left, y}, 1.0, kFrame);
        canvas.Text(layout.y.labels[i], {frame.left - layout.tick - em * 0.4, y + em * 0.35}, layout.text,
                    TextAnchor::end, false, kInk);
    }
}

void CPlot::DrawTexts(PlotCanvas& canvas, const Layout& layout, double width) const {
    const PlotRect& frame = layout.frame;
    const double em = layout.text.height;
    const double middle = (frame.left + frame.right) / 2.0;
    const double roomAround = 2.0 * std::min(middle, width - middle) - em;
    FitText(canvas, Text(kGraphCaption), {middle, frame.top - em * 1.0}, layout.title, roomAround, false);
    FitText(canvas, Text(kGraphLabelX), {middle, frame.bottom + layout.tick + em * 2.85}, layout.text,
            roomAround, false);
    FitText(canvas, Text(kGraphLabelY), {em * 1.6, (frame.top + frame.bottom) / 2.0}, layout.text,
            frame.Height() + em * 2.0, true);
}

void CPlot::DrawSeries(PlotCanvas& canvas, const Layout& layout, const std::vector<PlotPoint>& run,
                       std::uint32_t colour) const {
    const PlotRect& frame = layout.frame;
    const double em = layout.text.height;
    std::vector<PlotPoint> places;
    for (const PlotPoint& point : run) {
        const PlotPoint place{frame.left + frame.Width() * layout.x.Share(point.x),
                              frame.bottom - frame.Height() * layout.y.Share(point.y)};
        if (IsFinite(place)) places.push_back(place);
    }
    // Lines are cut at the frame, so that the line to a point outside is still shown.
    std::vector<PlotPoint> line;
    const auto flush = [&] {
        if (line.size() > 1) canvas.Polyline(line, std::max(1.3, em * 0.15), colour);
        line.clear();
    };
    for (std::size_t i = 1; i < places.size(); ++i) {
        PlotPoint from = places[i - 1], to = places[i];
        if (!ClipLine(frame, from, to)) {
            flush();
            continue;
        }
        if (line.empty()) line.push_back(from);
        line.push_back(to);
        if (!frame.Contains(places[i])) flush();
    }
    flush();
    for (const PlotPoint& place : places) {
        if (frame.Contains(place)) canvas.Disc(place, std::max(2.5, em * 0.3), colour, kWhite);
    }
}

double CPlot::XAt(double pixelX, const PlotCanvas& canvas, double width, double height) const {
    const Layout layout = MakeLayout(canvas, width, height);
    const double share = (pixelX - layout.frame.left) / layout.frame.Width();
    return layout.x.IsValid() ? layout.x.min + share * (layout.x.max - layout.x.min) : layout.x.min;
}

double CPlot::PixelOf(double x, const PlotCanvas& canvas, double width, double height) const {
    const Layout layout = MakeLayout(canvas, width, height);
    return layout.x.IsValid() ? layout.frame.left + layout.frame.Width() * layout.x.Share(x)
                              : layout.frame.left;
}

}  // namespace lumerin
