#pragma once

#include <string>
#include <variant>
#include <vector>

#include "framework/Backend.h"

// What a plot control shows to the headless backend: it takes properties and methods by dispatch id and
// remembers those of its last drawing. The control attaches its peer when the dialog binds it.

using GraphValue = std::variant<bool, int, double, std::string>;

struct GraphCall {
    bool isMethod = false;  // a method with its arguments; otherwise a property, set to the one value
    int dispatchId = 0;
    std::vector<GraphValue> values;
};

class GraphPeer {
  public:
    virtual ~GraphPeer() = default;

    // Everything that the dialog set and called for the drawing that is shown, in order.
    virtual std::vector<GraphCall> LastDrawing() const = 0;
    // A click at that x, with the dialog's notice.
    virtual void Click(double x) = 0;
};

namespace headless {

void AttachGraph(WindowHandle window, GraphPeer& peer);

}  // namespace headless
