// SPDX-License-Identifier: MIT
#include "cli/ExitStatus.h"

#include <numeric>

namespace lumerin {

ExitStatus Worse(ExitStatus a, ExitStatus b) {
    for (const ExitStatus status : kWorstFirst) {
        if (a == status || b == status) return status;
    }
    return a;
}

ExitStatus BatchSummary::Worst() const {
    for (const ExitStatus status : kWorstFirst) {
        if (m_counts.at(status) > 0) return status;
    }
    return kExitDone;
}

int BatchSummary::Total() const {
    return std::accumulate(m_counts.begin(), m_counts.end(), 0);
}

std::string BatchSummary::Line() const {
    const std::array<std::string, 5> words = {m_done, m_incomplete, "wrong usage", "not loaded", "not sound"};
    std::string line = std::to_string(Total()) + (Total() == 1 ? " project: " : " projects: ");
    bool first = true;
    for (std::size_t status = 0; status < words.size(); ++status) {
        if (m_counts.at(status) == 0) continue;
        if (!first) line += ", ";
        first = false;
        line += std::to_string(m_counts.at(status)) + ' ' + words.at(status);
    }
    if (m_unchanged > 0) line += "; " + std::to_string(m_unchanged) + " unchanged";
    return line;
}

void BatchSummary::Print(std::ostream& err) const {
    if (Total() > 1) err << Line() << std::endl;
}

}  // namespace lumerin
