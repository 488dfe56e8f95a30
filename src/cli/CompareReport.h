// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ComparePairs.h"
#include "cli/ExitStatus.h"
#include "compare/Comparison.h"
#include "export/ByteSink.h"
#include "records/Findings.h"
#include "web/ComparePage.h"

namespace lumerin {

// The answer of `lumerin compare` for one pair of projects, and its forms.

struct PairResult {
    ProjectPair pair;
    ExitStatus status = kExitDone;
    std::string fault;  // why a project could not be loaded or the choice of cases fits none; else empty
    std::optional<Comparison> comparison;  // none: a fault, or one project alone
    double limit = 1.0;
    std::vector<Finding> findingsBefore, findingsAfter;
    std::vector<OverlayFigure> figures;  // of the web page alone
};

// One form of the output. Pair by pair, then Close. Throws ExportError.
class ComparePrinter {
  public:
    ComparePrinter() = default;
    ComparePrinter(const ComparePrinter&) = delete;
    ComparePrinter& operator=(const ComparePrinter&) = delete;
    virtual ~ComparePrinter() = default;

    virtual void Print(const PairResult& result) = 0;
    virtual void Close() = 0;
};

// `top`: how many rows a list has at most, the worst ones; 0: all.
// A page for a person.
std::unique_ptr<ComparePrinter> MakeTextPrinter(std::unique_ptr<ByteSink> sink, std::size_t top, bool colour);
// One object on one line for each pair.
std::unique_ptr<ComparePrinter> MakeJsonPrinter(std::unique_ptr<ByteSink> sink, std::size_t top);
// A line for each value that differs and for everything else that does.
std::unique_ptr<ComparePrinter> MakeCsvPrinter(std::unique_ptr<ByteSink> sink, std::size_t top);
// One web page of all pairs, with the envelopes of both runs.
std::unique_ptr<ComparePrinter> MakeHtmlPrinter(std::unique_ptr<ByteSink> sink, const std::string& title,
                                                std::size_t top);

}  // namespace lumerin
