// SPDX-License-Identifier: MIT
#pragma once

#include "results/PierModel.h"

namespace lumerin {

// The force file has forces only; these steps give the elements their section, number and nodes.

// Sections of the pile elements, then numbers and nodes, piles in order and elements from the head.
void IdentifyPiles(CPier& pier, const PierModel& model);
// Element and node numbers of columns and cap, in the order in which the host numbers a frame.
void NumberElements(CPier& pier);
void AssignExtraMemberNumbers(CPier& pier, const PierModel& model);
void AssignExtraMemberSections(CPier& pier, const PierModel& model);
// Section numbers of columns and cap; -1 for an element number that the model does not have.
void AssignMemberSections(CPier& pier, const PierModel& model);
// Marks the cap elements whose number has no row in the element table.
void ApplyElementMask(CPier& pier, StructureType firstType);

}  // namespace lumerin
