#include "app/PlotWords.h"

namespace {

int FirstPresentClass(const CPier& pier, int classes) {
    for (int limitClass = 0; limitClass < classes; ++limitClass) {
        if (pier.IsClassPresent(limitClass)) return limitClass;
    }
    return -1;
}

}  // namespace

std::string FirstPlotWord(const CDataSet& data) {
    if (data.IsPierless()) return {};
    const CPier& pier = data.FirstPier();
    switch (pier.m_nCodeFamily) {
        case kFamilyNone:
        case kFamilyLfd:
        case kFamilyArema:
            return "Shear";
        case kFamilyLrfd: {
            if (FirstPresentClass(pier, 3) >= 0) return "Shear";
            return pier.IsClassPresent(3) ? "Moment" : "";
        }
        default:
            return {};
    }
}

std::string LimitFamilyWord(const CDataSet& data) {
    if (data.IsPierless()) return {};
    const CPier& pier = data.FirstPier();
    static constexpr const char* lrfdWords[] = {"STRENGTH", "SERVICE", "EXTREME", "FATIGUE"};
    static constexpr const char* aremaWords[] = {"LFD-GROUP", "SLD-GROUP"};
    switch (pier.m_nCodeFamily) {
        case kFamilyNone:
            return "NonAASTHO";  // the plot module knows the word by this spelling
        case kFamilyLfd:
            return "GROUP";
        case kFamilyLrfd: {
            const int present = FirstPresentClass(pier, 4);
            return present < 0 ? "" : lrfdWords[present];
        }
        case kFamilyArema: {
            const int present = FirstPresentClass(pier, 2);
            return present < 0 ? "" : aremaWords[present];
        }
        default:
            return {};
    }
}
