// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace lumerin {

// What a control takes by dispatch id, as calls that can be recorded and read back by a driver.

// A type of its own: libstdc++ 12 takes a variant with std::string for one that always has a value, and reads
// past it where a copy fails for lack of memory.
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

// A plot control as a driver of its dialog sees it: it remembers the properties and methods of its last
// drawing.
class GraphPeer {
  public:
    virtual ~GraphPeer() = default;

    // Everything that the dialog set and called for the drawing that is shown, in order.
    virtual std::vector<GraphCall> LastDrawing() const = 0;
    // A click at that x, with the dialog's notice.
    virtual void Click(double x) = 0;
};

}  // namespace lumerin
