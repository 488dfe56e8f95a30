// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "embedment/PlotCanvas.h"
#include "framework/Automation.h"

namespace lumerin {

// The members of the graph control that the dialog uses, by dispatch id.
enum GraphMember {
    kGraphCaption = -518,
    kGraphColour = 2,  // blue, green, red from the third byte down
    kGraphTicksX = 5,
    kGraphTicksY = 6,
    kGraphShowGrid = 7,
    kGraphLabelX = 8,
    kGraphLabelY = 9,
    kGraphElementA = 11,  // four drawing attributes of the current element
    kGraphElementB = 12,
    kGraphElementC = 13,
    kGraphElementD = 14,
    kGraphElement = 31,  // the current element
    kGraphClickedX = 34,
    kGraphFormatX = 39,
    kGraphFormatY = 40,
    kGraphElementCount = 51,
    kGraphSetRanges = 53,
    kGraphAddElement = 57,
    kGraphClearElements = 59,
    kGraphPlotPoint = 60,
};

// The module's own plot: it accepts the ids of the graph control and draws on any canvas, at any size. Ids
// that it does not use only keep their value.
class CPlot {
  public:
    void Set(int dispatchId, const GraphValue& value) { m_Properties[dispatchId] = value; }
    GraphValue Get(int dispatchId) const;
    void Call(int dispatchId, std::span<const GraphValue> arguments);
    // The current element's next point is not joined to the one before it. The graph control has no such
    // member: it joins all points.
    void LeaveGap();
    // Colour (0xRRGGBB) of the current element, and a name that is drawn at its end. The graph control has no
    // such members.
    void Distinguish(std::uint32_t colour, const std::string& name);

    void Draw(PlotCanvas& canvas, double width, double height) const;
    // The x of the data at a place of the drawing, also left and right of the frame.
    double XAt(double pixelX, const PlotCanvas& canvas, double width, double height) const;
    // The place of an x of the data in the drawing.
    double PixelOf(double x, const PlotCanvas& canvas, double width, double height) const;

  private:
    struct Axis {
        double min = 0.0, max = 0.0;
        std::vector<std::string> labels;  // from min to max in equal steps
        bool IsValid() const;
        double Share(double value) const { return (value - min) / (max - min); }
    };
    struct Layout {
        PlotFont text, title;
        PlotRect frame;
        Axis x, y;
        double tick = 0.0;  // length of a tick mark
    };

    // An element's points in runs; the points of a run are joined by a line.
    struct Curve {
        std::vector<std::vector<PlotPoint>> runs;
        std::uint32_t colour;
        std::string name;  // empty: none is drawn
    };

    int Integer(int id, int fallback) const;
    Curve* CurrentElement();  // null: there is none
    std::string Text(int id) const;
    Axis MakeAxis(double min, double max, int ticksId, int formatId) const;
    Layout MakeLayout(const PlotCanvas& canvas, double width, double height) const;
    void DrawGrid(PlotCanvas& canvas, const Layout& layout) const;
    void DrawAxes(PlotCanvas& canvas, const Layout& layout) const;
    void DrawTexts(PlotCanvas& canvas, const Layout& layout, double width) const;
    void DrawSeries(PlotCanvas& canvas, const Layout& layout, const std::vector<PlotPoint>& run,
                    std::uint32_t colour) const;
    void DrawName(PlotCanvas& canvas, const Layout& layout, const Curve& curve) const;

    std::map<int, GraphValue> m_Properties;
    std::vector<Curve> m_Elements;
    double m_dMinX = 0.0, m_dMaxX = 1.0, m_dMinY = 0.0, m_dMaxY = 1.0;
};

}  // namespace lumerin
