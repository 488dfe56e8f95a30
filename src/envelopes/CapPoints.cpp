#include <algorithm>

#include "model/Pier.h"
#include "text/Format.h"

namespace {

constexpr int kNothing = -1, kSupportNext = 0, kBearingNext = 1;

// The order along the cap: a support section comes before a bearing at the same x.
int NextPoint(const std::vector<double>& supportX, int supportCursor, const std::vector<double>& bearingX,
              int bearingCursor) {
    const std::size_t support = static_cast<std::size_t>(std::max(supportCursor, 0));
    const std::size_t bearing = static_cast<std::size_t>(std::max(bearingCursor, 0));
    const bool bearingsLeft = bearing < bearingX.size();
    if (support >= supportX.size()) return bearingsLeft ? kBearingNext : kNothing;
    if (!bearingsLeft) return kSupportNext;
    return bearingX[bearing] < supportX[support] ? kBearingNext : kSupportNext;
}

// Merges both lists in order of position; a bearing stands once for each row that it has in the table.
void MergePoints(const std::vector<double>& supportX, const std::vector<double>& bearingX, int rowsOfBearing,
                 std::vector<double>& points) {
    std::size_t point = 0;
    int support = 0, bearing = 0;
    while (point < points.size()) {
        const int next = NextPoint(supportX, support, bearingX, bearing);
        if (next == kNothing) return;
        if (next == kSupportNext) {
            points[point++] = supportX[static_cast<std::size_t>(support++)];
            continue;
        }
        for (int i = 0; i < rowsOfBearing && point < points.size(); ++i) {
            points[point++] = bearingX[static_cast<std::size_t>(bearing)];
        }
        ++bearing;
    }
}

// Records and lists hold whole numbers, which always pass; the values decide, those of missing sections too.
bool HasValidValues(const CCapTable& table) {
    return std::all_of(table.Entries().begin(), table.Entries().end(), [](const CCapEntry& entry) {
        return std::all_of(entry.values.begin(), entry.values.end(), IsValidNumber);
    });
}

}  // namespace

void CPier::MergeShearPoints() {
    MergePoints(m_ShearSupportX, m_BearingX, 2, m_ShearPointX);
}

void CPier::MergeMomentPoints() {
    MergePoints(m_MomentSupportX, m_BearingX, 1, m_MomentPointX);
}

int CPier::NextShearPoint(int supportCursor, int bearingCursor) const {
    return NextPoint(m_ShearSupportX, supportCursor, m_BearingX, bearingCursor);
}

int CPier::NextMomentPoint(int supportCursor, int bearingCursor) const {
    return NextPoint(m_MomentSupportX, supportCursor, m_BearingX, bearingCursor);
}

bool CPier::CheckCapShearData() const {
    return HasValidValues(m_ShearSupports) && HasValidValues(m_ShearBearings);
}

bool CPier::CheckCapMomentData() const {
    return HasValidValues(m_MomentSupports) && HasValidValues(m_MomentBearings);
}
