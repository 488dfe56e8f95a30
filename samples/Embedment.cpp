// SPDX-License-Identifier: MIT
#include "samples/Embedment.h"

#include <cmath>
#include <memory>
#include <string>

#include "samples/Forces.h"
#include "samples/TextLines.h"

namespace lumerin {

namespace samples {
namespace {

struct Extreme {
    double value = 0.0;
    int pile = 1;
};

struct Extremes {
    Extreme greatest;
    Extreme least;
};

// Over all elements of all piles: a force has its extremes at the head or at the tip.
Extremes AxialExtremes(const std::vector<PileHead>& piles) {
    Extremes result;
    for (std::size_t p = 0; p < piles.size(); ++p) {
        const int number = static_cast<int>(p) + 1;
        const double head = piles[p].axial;
        const double tip = head * ForceModel::kTipShare;
        const double greatest = head > tip ? head : tip;
        const double least = head < tip ? head : tip;
        if (p == 0 || greatest > result.greatest.value) result.greatest = {greatest, number};
        if (p == 0 || least < result.least.value) result.least = {least, number};
    }
    return result;
}

// Short piles turn about a point near their tip: the head moves little at first, then at a growing rate.
double Flexibility(double length, double fullLength) {
    const double ratio = fullLength / length;
    return 0.5 + 0.03 * ratio * ratio * ratio * ratio * ratio * ratio;
}

// The pile with the greatest value of `push` at its head.
template <typename Push>
Extreme MostMoved(const std::vector<PileHead>& piles, double flexibility, Push push) {
    Extreme result;
    for (std::size_t p = 0; p < piles.size(); ++p) {
        const double moved = push(piles[p]) * flexibility;
        if (moved > result.value) result = {moved, static_cast<int>(p) + 1};
    }
    return result;
}

double PushAlong(const PileHead& head) {
    return std::abs(head.shear2);
}
double PushAcross(const PileHead& head) {
    return std::abs(head.shear3);
}
double PushAnyWay(const PileHead& head) {
    return std::sqrt(head.shear2 * head.shear2 + head.shear3 * head.shear3);
}

std::string Pair(const Extreme& extreme, int decimals) {
    return "  " + NumberText(extreme.value, decimals) + "  " + std::to_string(extreme.pile);
}

class Trial {
  public:
    Trial(const std::filesystem::path& path, const Project& project, std::size_t index)
        : m_file(path),
          m_length(project.study.lengths[index]),
          m_fullLength(project.study.lengths.front()),
          m_finished(static_cast<int>(index) + 1 != project.study.unfinishedTrial) {
        m_file.Line(" 1  " + std::to_string(project.study.lengths.size()) + "  0  " +
                    std::to_string(project.cases) + "  " + NumberText(m_length, 2));
    }

    void Case(int number, const std::vector<PileHead>& piles, const Extremes& axial) {
        const double flexibility = 0.02 * Flexibility(m_length, m_fullLength);
        std::string line = "  " + std::to_string(number);
        line += Pair(MostMoved(piles, flexibility, PushAnyWay), 6);
        line += Pair(MostMoved(piles, flexibility, PushAlong), 6);
        line += Pair(MostMoved(piles, flexibility, PushAcross), 6);
        // A shorter pile transfers load to its neighbours.
        const double share = 1.0 + 0.02 * (m_fullLength / m_length - 1.0);
        line += Pair({axial.greatest.value / share, axial.greatest.pile}, 4);
        line += Pair({axial.least.value * share, axial.least.pile}, 4);
        m_file.Line(line);
    }

    void Close() {
        if (m_finished) m_file.Line("EOF");
        m_file.Close();
    }

  private:
    LineFile m_file;
    double m_length;
    double m_fullLength;
    bool m_finished;
};

std::filesystem::path TrialPath(const std::filesystem::path& folder, const Project& project,
                                std::size_t index) {
    if (index == 0) return folder / (project.name + ".PEL");
    const std::string trial = "MPTE" + std::to_string(index + 1);
    return folder / trial / (project.name + "_" + trial + ".PEL");
}

}  // namespace

void WriteEmbedmentStudy(const std::filesystem::path& folder, const Project& project) {
    std::vector<std::unique_ptr<Trial>> trials;
    for (std::size_t i = 0; i < project.study.lengths.size(); ++i) {
        if (static_cast<int>(i) + 1 == project.study.missingTrial) continue;
        const auto path = TrialPath(folder, project, i);
        MakeFolder(path.parent_path());
        trials.push_back(std::make_unique<Trial>(path, project, i));
    }
    if (trials.empty()) return;
    ForceModel model(project, 0);
    for (int c = 0; c < project.cases; ++c) {
        model.Solve(c);
        const Extremes axial = AxialExtremes(model.Piles());
        for (auto& trial : trials) trial->Case(c + 1, model.Piles(), axial);
    }
    for (auto& trial : trials) trial->Close();
}

}  // namespace samples

}  // namespace lumerin
