// SPDX-License-Identifier: MIT
#include "session/PlotWords.h"

namespace lumerin {

namespace {

// The first of the classes 0 to classes - 1 that has a case; -1: none has.
int FirstPresentClass(const CaseSelection& selection, int classes) {
    for (int limitClass = 0; limitClass < classes; ++limitClass) {
        if (selection.IsClassPresent(static_cast<LimitClass>(limitClass))) return limitClass;
    }
    return -1;
}

}  // namespace

std::string FirstPlotWord(const CDataSet& data, const CaseSelection& selection) {
    if (data.IsPierless()) return {};
    switch (data.FirstPier().m_nCodeFamily) {
        case kFamilyNone:
        case kFamilyLfd:
        case kFamilyArema:
            return "Shear";
        case kFamilyLrfd: {
            if (FirstPresentClass(selection, 3) >= 0) return "Shear";
            return selection.IsClassPresent(kFatigue) ? "Moment" : "";
        }
        default:
            return {};
    }
}

std::string LimitFamilyWord(const CDataSet& data, const CaseSelection& selection) {
    if (data.IsPierless()) return {};
    static constexpr const char* lrfdWords[] = {"STRENGTH", "SERVICE", "EXTREME", "FATIGUE"};
    static constexpr const char* aremaWords[] = {"LFD-GROUP", "SLD-GROUP"};
    switch (data.FirstPier().m_nCodeFamily) {
        case kFamilyNone:
            return "NonAASTHO";  // the plot module expects this spelling
        case kFamilyLfd:
            return "GROUP";
        case kFamilyLrfd: {
            const int present = FirstPresentClass(selection, 4);
            return present < 0 ? "" : lrfdWords[present];
        }
        case kFamilyArema: {
            const int present = FirstPresentClass(selection, 2);
            return present < 0 ? "" : aremaWords[present];
        }
        default:
            return {};
    }
}

}  // namespace lumerin
