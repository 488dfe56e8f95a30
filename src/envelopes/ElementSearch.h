// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "envelopes/PierInput.h"
#include "framework/Index.h"

namespace lumerin {

// The greatest D/C ratio of every element end, and the envelopes of the cap's element ends. No printed table
// shows them all: they answer whether a substructure passes, and draw its envelopes.

// A value with its case (from 0); -1: no selected case of the class has a number there.
struct EndExtreme {
    int loadCase = -1;
    float value = 0.0F;
};

// The four curves of a cap's envelope at an element end.
struct CapEnvelopeEnd {
    EndExtreme greatestShear, leastShear, greatestMoment, leastMoment;
};

// The results of one substructure. Elements count through the element list and go on with the other records
// of its force block (ForceLayout::others).
struct ElementResults {
    int elements = 0, classes = 0;
    std::vector<EndExtreme> ratios;            // [class][element][end]
    int firstCapElement = 0, capElements = 0;  // of the element list
    std::vector<CapEnvelopeEnd> cap;           // [class][element of the cap][end]
    // The axial forces of each pile's head, over all classes.
    std::vector<EndExtreme> greatestAxial, leastAxial;

    const EndExtreme& Ratio(int limitClass, int element, int end) const {
        return ratios[(Index(limitClass) * Index(elements) + Index(element)) * 2 + Index(end)];
    }
    // Over all classes; of equal values the earliest case.
    EndExtreme GreatestRatio(int element, int end) const;
    const CapEnvelopeEnd& Cap(int limitClass, int capElement, int end) const {
        return cap[(Index(limitClass) * Index(capElements) + Index(capElement)) * 2 + Index(end)];
    }
};

// Takes the cases in order. Of equal values the earliest case is kept. Values that are not numbers are passed
// over.
class ElementSearch {
  public:
    // `others` is the count of the block's records without an element of the list.
    ElementSearch(const PierInput& input, int others);

    void Take(int loadCase, CaseForces forces);
    ElementResults TakeResults() { return std::move(m_results); }

  private:
    void TakeHeads(int loadCase, CaseForces forces);

    PierInput m_input;
    ElementResults m_results;
};

}  // namespace lumerin
