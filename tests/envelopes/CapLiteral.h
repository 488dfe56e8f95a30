// SPDX-License-Identifier: MIT
#pragma once

#include "support/Searches.h"

namespace lumerin {

// The cap searches in their plainest form: one search over the load cases for each class, sense and side,
// step by step; every value is looked up again. Slow and long on purpose: the searches of the product must
// give the same results.
class LiteralCap {
  public:
    // Works on the model's substructure and selection, and on tables of its own, which begin as the model's.
    explicit LiteralCap(SearchedCap& model)
        : pier(model.pier),
          selection(model.selection),
          messages(model.messages),
          forces(model.forces.Of(model.pier)),
          shearSupports(model.results.shearSupports),
          shearBearings(model.results.shearBearings),
          momentSupports(model.results.momentSupports),
          momentBearings(model.results.momentBearings) {}

    void ShearAtSupports() { AtSupports(true); }
    void MomentAtSupports() { AtSupports(false); }
    void ShearAtBearings();
    void MomentAtBearings();

    const CPier& pier;
    const CaseSelection& selection;
    Messages& messages;
    const MemoryForces& forces;
    CCapTable shearSupports, shearBearings, momentSupports, momentBearings;

  private:
    // A candidate of a section: the element on its left or its right.
    struct Candidate {
        bool found = false;
        CCapPlace place;
        double t = 0.0;
        int end = 0;
    };
    struct Outcome {
        int status = 1;  // absent
        int loadCase = -1;
        double value = 0.0;
    };
    using Reader = double (LiteralCap::*)(const Candidate&, int loadCase, int component) const;

    bool IsInClass(int loadCase, int slot) const;
    int ElementOf(const Candidate& candidate) const;
    int NodeAt(double x) const;  // of the cap; -1 where there is none
    double ReadEnd(const Candidate& candidate, int loadCase, int component) const;
    double ReadInside(const Candidate& candidate, int loadCase, int component) const;
    int Search(Reader reader, bool seesMask, int component, int sense, const Candidate& candidate, int slot,
               int& loadCase, int tie) const;
    int AtSection(int component, int sense, Candidate& candidate, int slot, int& loadCase, int tie) const;
    Outcome Evaluate(Candidate& candidate, bool atNode, bool shear, int sense, int slot) const;
    Outcome EvaluateBearing(const Candidate& candidate, int component, int sense, int slot, int tie) const;
    double MaskedRead(const Candidate& candidate, bool atNode, int loadCase, int component) const;
    int Choose(bool shear, int sense, const Outcome& a, const Outcome& b, double dcA, double dcB) const;

    void AtSupports(bool shear);
    void AtLocation(bool shear, int support, int kind);
    void FindAtNode(Candidate& candidate, int node) const;
    void Store(CCapEntry& entry, const Candidate& chosen, const Outcome& outcome, bool atNode,
               int node) const;
};

}  // namespace lumerin
