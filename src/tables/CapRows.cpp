// SPDX-License-Identifier: MIT
#include "tables/CapRows.h"

#include <array>
#include <string_view>

#include "framework/Index.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

// By row code: 0 left row, 1 right row, 2 the only row, 3 both rows at one place.
constexpr std::array<std::array<std::string_view, 4>, 2> kShearBearings = {{
    {"Brg %i L LR", "Brg %i L RR", "Brg %i L", "Brg %i L"},
    {"Brg %i R LR", "Brg %i R RR", "Brg %i R", "Brg %i R"},
}};

// The key below its lines for the words of the supports; the member word follows each left text.
struct KeyForm {
    const char* leftShort;
    const char* leftLong;
    const char* rightShort;
    const char* rightLong;
};
constexpr std::array<KeyForm, 4> kShearKey = {{
    {"LF", "Left Face of ", "L", "Left Side of Bearing"},
    {"RF", "Right Face of ", "R", "Right Side of Bearing"},
    {"LCL", "Left Centerline of ", "LR", "Bearing Is In The Left Row"},
    {"RCL", "Right Centerline of ", "RR", "Bearing Is In The Right Row"},
}};
constexpr std::array<KeyForm, 3> kMomentKey = {{
    {"LF", "Left Face of ", "LR", "Bearing Is In The Left Row"},
    {"RF", "Right Face of ", "RR", "Bearing Is In The Right Row"},
    {"CL", "Centerline of ", nullptr, nullptr},
}};

bool Holds(const CCapTable& table, int position, int slot, int kind) {
    return position >= 0 && position < table.Positions() && slot >= 0 && slot < table.Slots() && kind >= 0 &&
           kind < table.Kinds();
}

// The tables of one pier that a walk reads.
struct Walk {
    const CapBlock& block;
    const std::function<void(const CCapRow&)>& visit;

    bool IsShear() const { return block.table == kTableCapShear; }
    const std::vector<double>& SupportX() const {
        return IsShear() ? block.results.shearSupportX : block.results.momentSupportX;
    }

    void Support(std::size_t cursor, int point) const {
        const auto& list = IsShear() ? block.results.shearSupportList : block.results.momentSupportList;
        const CCapTable& results = IsShear() ? block.results.shearSupports : block.results.momentSupports;
        if (cursor >= list.size()) return;
        const CSupportLocation& place = list[cursor];
        if (!Holds(results, place.m_nSupport, block.slot, place.m_nKind)) return;
        CCapRow row;
        row.sLabel =
            CapSupportLabel(block.table, block.pier.m_nStructureType, place.m_nSupport, place.m_nKind);
        row.pEntry = &results.At(place.m_nSupport, block.slot, place.m_nKind, block.extreme);
        row.bUnused =
            cursor >= (IsShear() ? block.results.shearSupportsFound : block.results.momentSupportsFound);
        row.nPoint = point;
        row.support = place;
        visit(row);
    }

    void Bearing(std::size_t cursor, int point) const {
        if (cursor >= block.pier.m_BearingList.size()) return;
        const CBearingLocation& place = block.pier.m_BearingList[cursor];
        const CCapTable& results = IsShear() ? block.results.shearBearings : block.results.momentBearings;
        for (int side = 0; side < (IsShear() ? 2 : 1); ++side) {
            const int kind = IsShear() ? place.Row() * 2 + side : place.Row();
            if (!Holds(results, place.m_nBearing, block.slot, kind)) continue;
            CCapRow row;
            row.sLabel = CapBearingLabel(block.table, place, side);
            row.pEntry = &results.At(place.m_nBearing, block.slot, kind, block.extreme);
            row.bBearing = true;
            row.nPoint = point + side;
            row.bearing = place;
            row.nSide = side;
            // The left side goes by the flag of the element that starts at the bearing, though its result
            // comes from the one that ends there: engineers know the rows at a cap's end in this form.
            if (IsShear()) row.bSideHasResult = side == 0 ? place.m_bElementStarts : place.m_bElementEnds;
            visit(row);
        }
    }
};

void AddWordLine(std::vector<CCapKeyLine>& key, StructureType structureType, bool withBearing) {
    CCapKeyLine line{{MemberShortName(structureType), MemberName(structureType)}, std::nullopt};
    if (withBearing) line.right = CCapKeyEntry{"Brg", "Bearing"};
    key.push_back(line);
}

template <std::size_t N>
void AddLines(std::vector<CCapKeyLine>& key, const std::array<KeyForm, N>& forms, const std::string& word) {
    for (const KeyForm& form : forms) {
        CCapKeyLine line{{form.leftShort, form.leftLong + word}, std::nullopt};
        if (form.rightShort != nullptr) line.right = CCapKeyEntry{form.rightShort, form.rightLong};
        key.push_back(line);
    }
}

}  // namespace

void WalkCap(const CapBlock& block, const std::function<void(const CCapRow&)>& visit) {
    const Walk walk{block, visit};
    const int rows = walk.IsShear() ? block.pier.m_nCapShearPoints : block.pier.m_nCapMomentPoints;
    int support = 0, bearing = 0;
    for (int count = 0; count < rows;) {
        switch (NextCapPoint(walk.SupportX(), support, block.pier.m_BearingX, bearing)) {
            case NextPoint::support:
                walk.Support(Index(support++), count);
                ++count;
                break;
            case NextPoint::bearing:
                walk.Bearing(Index(bearing++), count);
                count += walk.IsShear() ? 2 : 1;
                break;
            case NextPoint::nothing:
                return;
        }
    }
}

std::string CapSupportLabel(TableId table, StructureType structureType, int support, int kind) {
    const bool shear = table == kTableCapShear;
    const std::string_view form = shear ? ShearSupportForm(kind) : MomentSupportForm(kind);
    if (form.empty()) return shear ? "Invalid" : "";
    return MemberShortName(structureType) + FormatNumbered(form, support + 1);
}

std::string CapBearingLabel(TableId table, const CBearingLocation& bearing, int side) {
    const std::string_view form = table == kTableCapShear
                                      ? TextAt(kShearBearings[side == 0 ? 0 : 1], bearing.m_nRowCode)
                                      : MomentBearingForm(bearing.m_nRowCode);
    return FormatNumbered(form, bearing.m_nBearing + 1);
}

std::string CCapKeyEntry::Text() const {
    return (sShort.empty() ? sShort : PadRight(sShort, 3)) + " = " + sLong;
}

std::vector<CCapKeyLine> CapKey(TableId table, const CDataSet& data) {
    std::vector<CCapKeyLine> key;
    std::string word = "Support";
    if (data.m_Piers.size() == 1) {
        const StructureType type = data.FirstPier().m_nStructureType;
        word = MemberName(type);
        AddWordLine(key, type, true);
    } else {
        const bool bents = data.HasStructureType(kTypePileBent);
        if (data.HasStructureType(kTypePier)) AddWordLine(key, kTypePier, !bents);
        if (bents) AddWordLine(key, kTypePileBent, true);
    }
    if (table == kTableCapShear) {
        AddLines(key, kShearKey, word);
    } else {
        AddLines(key, kMomentKey, word);
    }
    return key;
}

}  // namespace lumerin
