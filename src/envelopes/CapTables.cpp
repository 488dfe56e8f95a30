// SPDX-License-Identifier: MIT
#include "envelopes/CapSections.h"
#include "envelopes/TableSearch.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

// Merges both lists in order of position; a bearing has an entry for each row that it has in the table.
void MergePoints(const std::vector<double>& supportX, const std::vector<double>& bearingX, int rowsOfBearing,
                 std::vector<double>& points) {
    std::size_t point = 0;
    int support = 0, bearing = 0;
    while (point < points.size()) {
        const NextPoint next = NextCapPoint(supportX, support, bearingX, bearing);
        if (next == NextPoint::nothing) return;
        if (next == NextPoint::support) {
            points[point++] = supportX[Index(support++)];
            continue;
        }
        for (int i = 0; i < rowsOfBearing && point < points.size(); ++i) {
            points[point++] = bearingX[Index(bearing)];
        }
        ++bearing;
    }
}

// What the two cap tables differ in.
struct CapTableForm {
    const CapForm& form;
    CCapTable PierResults::*supports;
    std::vector<double> PierResults::*supportX;
    std::vector<CSupportLocation> PierResults::*supportList;
    std::size_t PierResults::*found;
    CCapTable PierResults::*bearings;
    std::vector<double> PierResults::*pointX;
    int rowsOfBearing;
    void (*storeBearings)(const CPier& pier, const CapBearingSearch& search, CCapTable& table);
};
const CapTableForm kShear{kShearForm,
                          &PierResults::shearSupports,
                          &PierResults::shearSupportX,
                          &PierResults::shearSupportList,
                          &PierResults::shearSupportsFound,
                          &PierResults::shearBearings,
                          &PierResults::shearPointX,
                          2,
                          StoreShearAtBearings};
const CapTableForm kMoment{kMomentForm,
                           &PierResults::momentSupports,
                           &PierResults::momentSupportX,
                           &PierResults::momentSupportList,
                           &PierResults::momentSupportsFound,
                           &PierResults::momentBearings,
                           &PierResults::momentPointX,
                           1,
                           StoreMomentAtBearings};

class CapTableSearch : public TableSearch {
  public:
    CapTableSearch(const PierInput& input, const CapTableForm& table)
        : m_pier(input.pier), m_table(table), m_supports(input, table.form), m_bearings(input, table.form) {}

    void Take(int loadCase, CaseForces forces) override {
        m_supports.Take(loadCase, forces);
        m_bearings.Take(loadCase, forces);
    }

    void Finish(PierResults& results) const override {
        m_supports.Finish({results.*m_table.supports, results.*m_table.supportX, results.*m_table.supportList,
                           results.*m_table.found});
        m_table.storeBearings(m_pier, m_bearings, results.*m_table.bearings);
        MergePoints(results.*m_table.supportX, m_pier.m_BearingX, m_table.rowsOfBearing,
                    results.*m_table.pointX);
    }

  private:
    const CPier& m_pier;
    const CapTableForm& m_table;
    CapSupportSearch m_supports;
    CapBearingSearch m_bearings;
};

}  // namespace

std::unique_ptr<TableSearch> BeginCapSearch(TableId table, const PierInput& input) {
    return std::make_unique<CapTableSearch>(input, table == kTableCapShear ? kShear : kMoment);
}

}  // namespace lumerin
