// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace lumerin {

// The calls that a control takes by dispatch id, as values that can be recorded and read back by a driver.

// A type of its own in place of a std::variant: libstdc++ 12 assumes that a variant with std::string always
// has a value, and reads out of bounds when a copy fails for lack of memory.
struct GraphText : std::string {
    GraphText(std::string text) : std::string(std::move(text)) {}
    GraphText(const char* text) : std::string(text) {}
};

using GraphValue = std::variant<bool, int, double, GraphText>;

struct GraphCall {
    bool isMethod = false;  // a method with its arguments; otherwise a property, set to the one value
    int dispatchId = 0;
    std::vector<GraphValue> values;
};

// A graph control, as a driver of its dialog sees it. It keeps the properties and methods of its last
// drawing.
class GraphPeer {
  public:
    virtual ~GraphPeer() = default;

    // Everything that the dialog set and called for the drawing that is shown, in order.
    virtual std::vector<GraphCall> LastDrawing() const = 0;
    // Clicks the graph at that x and notifies the dialog.
    virtual void Click(double x) = 0;
};

}  // namespace lumerin
