// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "model/CapChain.h"

namespace lumerin {

namespace {

constexpr int kMomentMode = 4;

long long SpanElements(const CPier& pier) {
    return pier.m_nSpanNodes + 1LL;
}

// The run of elements of one member of the chain that has `node` at `end`; -1 if it has none.
int FindInRun(const CPier& pier, const CMember& run, int count, int node, int end) {
    for (int e = 0; e < count; ++e) {
        if (pier.Element(run.m_nFirstElement + e).Node(end) == node) return e;
    }
    return -1;
}

// The first element of the chain that has `node` at `end`: both cantilevers, then the spans.
bool FindOnChain(const CPier& pier, int node, int end, CCapPlace& place) {
    for (int side = 0; side < 2; ++side) {
        const CCantilever& cantilever = pier.m_Frame.m_Cantilevers[side];
        const int e = FindInRun(pier, cantilever, cantilever.m_nElements, node, end);
        if (e < 0) continue;
        place = {kCapCantilever, side, e, 0.0};
        return true;
    }
    const long long perSpan = SpanElements(pier);
    const long long inSpans = (CapSupportCount(pier) - 1LL) * perSpan;
    if (perSpan <= 0 || inSpans <= 0) return false;
    const CBeam& beam = pier.m_Frame.m_Beam;
    const int count = static_cast<int>(std::min<long long>(inSpans, beam.m_nElements));
    const int e = FindInRun(pier, beam, count, node, end);
    if (e < 0) return false;
    place = {kCapSpan, static_cast<int>(e / perSpan), static_cast<int>(e % perSpan), 0.0};
    return true;
}

// The range of cap points that contains a face, and the member along which it runs.
struct Stretch {
    int kind = kCapSpan;
    long long index = 0;
    long long firstPoint = 0;
    long long points = 0;
};

Stretch LeftFaceStretch(const CPier& pier, long long support) {
    const long long cantilever = HasCantilevers(pier) ? pier.m_nCantileverNodes + 1LL : 0;
    if (support == 1) return {kCapCantilever, 0, 0, pier.m_nCantileverNodes + 2LL};
    return {kCapSpan, support - 2, SpanElements(pier) * (support - 2) + cantilever, pier.m_nSpanNodes + 2LL};
}

Stretch RightFaceStretch(const CPier& pier, long long support) {
    const long long count = CapSupportCount(pier);
    const long long spanNodes = pier.m_nSpanNodes;
    if (support == count) {
        return {kCapCantilever, 1, (count - 1) * spanNodes + pier.m_nCantileverNodes + count,
                pier.m_nCantileverNodes + 2LL};
    }
    const long long first =
        spanNodes * (support - 1) + (HasCantilevers(pier) ? support + pier.m_nCantileverNodes : support - 1);
    return {kCapSpan, support - 1, first, spanNodes + 2};
}

bool LocateOnStretch(const CPier& pier, const Stretch& stretch, double x, CCapPlace& place) {
    const long long known = static_cast<long long>(pier.m_CapPointX.size());
    for (long long i = 0; i < stretch.points; ++i) {
        const long long at = stretch.firstPoint + i;
        if (at < 0 || at >= known) return false;
        const double here = pier.m_CapPointX[Index(at)];
        if (here == x) {
            place = {stretch.kind, static_cast<int>(stretch.index), static_cast<int>(i), 0.0};
            return true;
        }
        if (here > x) {
            if (i == 0) return false;
            const double previous = pier.m_CapPointX[Index(at - 1)];
            place = {stretch.kind, static_cast<int>(stretch.index), static_cast<int>(i - 1),
                     (x - previous) / (here - previous)};
            return true;
        }
    }
    return false;
}

void StepBack(const CPier& pier, CCapPlace& place) {
    place.m_dT = 1.0;
    if (place.m_nElement > 0) {
        --place.m_nElement;
    } else if (place.m_nKind == kCapSpan && place.m_nIndex > 0) {
        --place.m_nIndex;
        place.m_nElement = pier.m_nSpanNodes;
    } else if (place.m_nKind == kCapSpan || CapSupportCount(pier) < 2) {
        place = {kCapCantilever, 0, pier.m_nCantileverNodes, 1.0};
    } else {
        place = {kCapSpan, CapSupportCount(pier) - 2, pier.m_nSpanNodes, 1.0};
    }
}

void StepForward(const CPier& pier, CCapPlace& place) {
    place.m_dT = 0.0;
    if (place.m_nKind == kCapCantilever && place.m_nIndex == 0 &&
        place.m_nElement == pier.m_nCantileverNodes) {
        place =
            CapSupportCount(pier) < 2 ? CCapPlace{kCapCantilever, 1, 0, 0.0} : CCapPlace{kCapSpan, 0, 0, 0.0};
    } else if (place.m_nKind == kCapSpan && place.m_nElement == pier.m_nSpanNodes) {
        if (place.m_nIndex < CapSupportCount(pier) - 2) {
            ++place.m_nIndex;
            place.m_nElement = 0;
        } else if (HasCantilevers(pier)) {
            place = {kCapCantilever, 1, 0, 0.0};
        }
    } else {
        ++place.m_nElement;
    }
}

}  // namespace

int FindCapPoint(const CPier& pier, double x) {
    const auto found = std::find(pier.m_CapPointX.begin(), pier.m_CapPointX.end(), x);
    return found == pier.m_CapPointX.end() ? -1 : static_cast<int>(found - pier.m_CapPointX.begin());
}

bool CPier::LocateOnCap(int support, int kind, double x, int mode, CCapPlace& place) const {
    const int rightFace = mode == kMomentMode ? 2 : 3;
    const bool cantilevers = HasCantilevers(*this);
    if (kind != 0 && kind != rightFace) return false;
    if (kind == 0) {
        if (support == 1 && !cantilevers) {
            place = {kCapSpan, 0, 0, 0.0};
            return true;
        }
        return LocateOnStretch(*this, LeftFaceStretch(*this, support), x, place);
    }
    if (support == CapSupportCount(*this) && !cantilevers) {
        place = {kCapSpan, CapSupportCount(*this) - 1, m_nSpanNodes, 1.0};
        return true;
    }
    return LocateOnStretch(*this, RightFaceStretch(*this, support), x, place);
}

bool CPier::FindElementAtNode(int node, CCapPlace& place, int end) const {
    if (!FindOnChain(*this, node, end, place)) return false;
    place.m_dT = end == kEndI ? 0.0 : 1.0;
    return true;
}

int CPier::GetElementFromNode(int node, int end, Messages& messages) const {
    CCapPlace place;
    if (FindOnChain(*this, node, end, place))
        return GetElement(place.m_nKind, place.m_nIndex, place.m_nElement, messages);
    messages.Show("Error in CPier::GetElementFromNode(...).  Element could not be found.");
    return -1;
}

int CPier::GetElement(int kind, int index, int element, Messages& messages) const {
    if (kind != kCapCantilever && kind != kCapSpan) {
        messages.Show("Error in CElement* CPier::GetElement(...).  Element not found.");
        return -1;
    }
    if (index < 0 || element < 0 || (kind == kCapCantilever && index > 1)) return -1;
    const CMember& run = kind == kCapSpan ? static_cast<const CMember&>(m_Frame.m_Beam)
                                          : static_cast<const CMember&>(m_Frame.m_Cantilevers[index]);
    const long long at = kind == kCapSpan ? index * SpanElements(*this) + element : element;
    if (at < 0 || at >= run.m_nElements) return -1;
    return run.m_nFirstElement + static_cast<int>(at);
}

void CPier::StepAlongCap(int direction, CCapPlace& place) const {
    if (direction == 1) StepBack(*this, place);
    if (direction == 0) StepForward(*this, place);
}

double CPier::NodeCoordinate(int node, int axis) const {
    const long long position = static_cast<long long>(node) - m_nFoundationNodes - 1;
    if (position < 0 || position >= static_cast<long long>(m_dNodes.size()) || axis < 0 || axis > 2)
        return 0.0;
    return m_dNodes[Index(position)][Index(axis)];
}

bool CPier::IsCapElementEnd(int node, int end) const {
    CCapPlace place;
    return FindOnChain(*this, node, end, place);
}

}  // namespace lumerin
