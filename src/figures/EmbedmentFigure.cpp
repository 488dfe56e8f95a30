// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "embedment/EmbedmentFiles.h"
#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "text/SilentMessages.h"

namespace lumerin {

namespace {

// Without a choice of cases the envelopes go over all cases of the study, as those of its dialog do.
StudyCases CasesOf(const Evaluation& evaluation) {
    const CaseSelection& selection = evaluation.Selection();
    if (selection.SelectedCount(selection.CaseCount()) == selection.CaseCount()) {
        return {0, [](int) { return true; }};
    }
    int first = 0;
    while (first < selection.CaseCount() && !selection.IsCaseSelected(first)) ++first;
    return {first, [&selection](int loadCase) { return selection.IsCaseSelected(loadCase); }};
}

void RequireCase(const StudyView& view, const CEmbedmentResults& results) {
    const bool isShown = view.envelope < 0 || view.hasCase;
    if (!isShown || (view.loadCase >= 1 && view.loadCase <= results.GetCaseCount())) return;
    throw std::invalid_argument("there is no case " + std::to_string(view.loadCase) + ", the study has " +
                                std::to_string(results.GetCaseCount()));
}

}  // namespace

std::string DrawEmbedment(const Evaluation& evaluation, const FigureRequest& request) {
    const std::string& input = evaluation.Opened().name.inputFile;
    if (!HasEmbedmentStudy(input)) {
        return figure::Sentence(evaluation, "Embedment study", request.substructure,
                                "The project has no embedment study.");
    }
    SilentMessages messages;
    CEmbedmentResults results(input, messages);
    results.LoadTrials();
    RequireCase(request.study, results);
    const CDataSet& data = evaluation.Data();
    return StudyPicture(StudyLabelsOf(request.study, data.HasCombinations(), data.m_nUnits),
                        StudyCurvesOf(results, CasesOf(evaluation), request.study, data.HasCombinations()));
}

}  // namespace lumerin
