#pragma once

#include "model/DataSet.h"
#include "results/CollectData.h"

// The force file carries forces only; these steps give the elements their section, number and nodes.

// Sections of the pile elements, then numbers and nodes, piles in order and elements from the head.
void IdentifyPiles(CPier& pier, const CPierReadState& state);
// Element and node numbers of columns and cap, in the order in which the host numbers a frame.
void NumberElements(CPier& pier);
void AssignExtraMemberNumbers(CPier& pier, const CPierReadState& state);
void AssignExtraMemberSections(CPier& pier, const CPierReadState& state);
// Section numbers of columns and cap; -1 for an element number that the model doesn't have.
void AssignMemberSections(CPier& pier, const CPierReadState& state);
// Marks the cap elements whose number has no row in the element table.
void ApplyElementMask(CPier& pier, int firstType);
