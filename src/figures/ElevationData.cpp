// SPDX-License-Identifier: MIT
#include "figures/ElevationData.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "framework/Index.h"

namespace lumerin {

namespace {

// Farther away nothing is part of a bridge: such a number comes from a broken file.
constexpr double kFarthest = 1.0e6;

class Elevation {
  public:
    Elevation(const Evaluation& evaluation, std::size_t p)
        : m_pier(evaluation.Data().m_Piers[p]),
          m_results(evaluation.Elements()[p]),
          m_identities(evaluation.Identities(p)) {}

    ElevationPicture Describe() {
        FindUp();
        const auto nodes = static_cast<int>(m_pier.m_Lists.m_Nodes.size());
        for (int node = 1; node <= nodes; ++node) {
            if (const auto at = PlaceOfNode(node)) m_picture.nodes.push_back({node, *at});
        }
        for (const ElementIdentity& identity : m_identities) {
            if (identity.kind == MemberKind::pile) {
                AddToPile(identity);
            } else {
                AddBar(identity);
            }
        }
        return std::move(m_picture);
    }

  private:
    std::optional<Point> PlaceOfNode(int node) const {
        if (node < 1 || node > std::ssize(m_pier.m_Lists.m_Nodes)) return std::nullopt;
        const auto& [x, y, z] = m_pier.m_Lists.m_Nodes[Index(node - 1)];
        const Point at{CapLocation(m_pier, x), PrintedLength(m_pier, z)};
        const bool isThere = std::abs(at.x) < kFarthest && std::abs(at.y) < kFarthest;
        return isThere ? std::optional(at) : std::nullopt;
    }

    void FindUp() {
        double rise = 0.0;
        for (const ElementIdentity& identity : m_identities) {
            if (identity.kind != MemberKind::column) continue;
            const auto foot = PlaceOfNode(identity.nodeI), top = PlaceOfNode(identity.nodeJ);
            if (foot && top) rise += top->y - foot->y;
        }
        m_picture.zFalls = rise < 0.0;
        m_picture.hasColumns = rise != 0.0;
    }

    // Takes the greater ratio of the element's ends.
    void AddRatio(const ElementIdentity& identity, ElevationBar& bar) const {
        if (identity.masked) return;
        for (const int end : {kEndI, kEndJ}) {
            const EndExtreme here = m_results.GreatestRatio(identity.element, end);
            if (here.loadCase < 0 || (bar.ratio.loadCase >= 0 && here.value <= bar.ratio.value)) continue;
            bar.ratio = here;
            bar.number = identity.number;
            bar.place = PlaceOf(m_pier, identity, end);
        }
    }

    void AddBar(const ElementIdentity& identity) {
        const auto from = PlaceOfNode(identity.nodeI), to = PlaceOfNode(identity.nodeJ);
        if (!from || !to) {
            ++m_picture.withoutPlace;
            return;
        }
        ElevationBar bar{identity.kind,
                         identity.member,
                         identity.number,
                         identity.nodeI,
                         identity.nodeJ,
                         *from,
                         *to,
                         {},
                         {},
                         identity.masked};
        AddRatio(identity, bar);
        m_picture.frame.push_back(std::move(bar));
    }

    // The head is the end J of a pile's first element; its other nodes are not in the list.
    void AddToPile(const ElementIdentity& identity) {
        if (identity.index == 1) {
            const auto head = PlaceOfNode(identity.nodeJ);
            m_hasHead = head.has_value();
            if (!head) {
                ++m_picture.withoutPlace;
                return;
            }
            m_picture.piles.push_back({identity.kind,
                                       identity.member,
                                       identity.number,
                                       identity.nodeJ,
                                       identity.nodeJ,
                                       *head,
                                       *head,
                                       {},
                                       {},
                                       false});
        }
        const bool isOfLast = !m_picture.piles.empty() && m_picture.piles.back().member == identity.member;
        if (m_hasHead && isOfLast) AddRatio(identity, m_picture.piles.back());
    }

    const CPier& m_pier;
    const ElementResults& m_results;
    std::span<const ElementIdentity> m_identities;
    ElevationPicture m_picture;
    bool m_hasHead = false;
};

}  // namespace

const ElevationBar* ElevationPicture::Worst() const {
    const ElevationBar* worst = nullptr;
    for (const std::vector<ElevationBar>* bars : {&frame, &piles}) {
        for (const ElevationBar& bar : *bars) {
            if (bar.ratio.loadCase < 0) continue;
            if (worst == nullptr || bar.ratio.value > worst->ratio.value) worst = &bar;
        }
    }
    return worst;
}

ElevationPicture DescribeElevation(const Evaluation& evaluation, std::size_t pier) {
    return Elevation(evaluation, pier).Describe();
}

}  // namespace lumerin
