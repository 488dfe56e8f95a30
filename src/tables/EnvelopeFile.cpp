// SPDX-License-Identifier: MIT
#include "tables/EnvelopeFile.h"

#include <array>
#include <string>
#include <string_view>

#include "framework/Index.h"
#include "tables/CapRows.h"
#include "tables/RowText.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

// The data file of the envelope plotter: keyed sections, each closed by a colon and an empty line. The
// plotter finds the sections by their names and the fields of a row by their keys and columns.
namespace {

constexpr std::string_view kSectionEnd = ":\n\n";
constexpr std::size_t kColumnWidth = 12;

constexpr int kPlainCases = -2;  // in place of a family: load cases or time steps

// A slot that has blocks: its family and the word in the block's name.
struct BlockName {
    int family;
    LimitClass slot;
    bool needsClass;  // a case of the class must be selected
    bool moment, shear;
    const char* word;
};
constexpr std::array<BlockName, 8> kBlockNames{{
    {kPlainCases, kStrength, false, true, true, ""},
    {kFamilyLrfd, kStrength, true, true, true, "STRENGTH_"},
    {kFamilyLrfd, kService, true, true, true, "SERVICE_"},
    {kFamilyLrfd, kExtreme, true, true, true, "EXTREME_"},
    {kFamilyLrfd, kFatigue, true, true, false, "FATIGUE_"},
    {kFamilyLfd, kStrength, false, true, true, ""},
    {kFamilyArema, kStrength, true, true, true, "LOAD_FACTOR_DESIGN_"},
    {kFamilyArema, kService, true, true, true, "SERVICE_LOAD_DESIGN_"},
}};

// A line of the limit state section: whether cases of the class are selected.
struct StatusLine {
    CodeFamily family;
    const char* key;
    LimitClass limitClass;
};
constexpr std::array<StatusLine, 11> kStatusLines{{
    {kFamilyLrfd, "SHSTR= ", kStrength},
    {kFamilyLrfd, "SHEXT= ", kExtreme},
    {kFamilyLrfd, "SHSER= ", kService},
    {kFamilyLrfd, "MOSTR= ", kStrength},
    {kFamilyLrfd, "MOEXT= ", kExtreme},
    {kFamilyLrfd, "MOSER= ", kService},
    {kFamilyLrfd, "MOFAT= ", kFatigue},
    {kFamilyArema, "SHLFD= ", kStrength},
    {kFamilyArema, "SHSLD= ", kService},
    {kFamilyArema, "MOLFD= ", kStrength},
    {kFamilyArema, "MOSLD= ", kService},
}};

// By side and row code. Unlike in the tables, both sides of a bearing have the same text when there are two
// rows.
constexpr std::array<std::array<std::string_view, 4>, 2> kShearBearings = {{
    {"Brg %i LR", "Brg %i RR", "Brg %i L", "Brg %i L"},
    {"Brg %i LR", "Brg %i RR", "Brg %i R", "Brg %i R"},
}};

std::string RowLabel(TableId table, const CCapRow& row) {
    const bool shear = table == kTableCapShear;
    std::string label;
    if (row.bBearing) {
        const int code = row.bearing.m_nRowCode;
        const std::string_view form =
            shear ? TextAt(kShearBearings[row.nSide == 0 ? 0 : 1], code) : MomentBearingForm(code);
        AppendNumbered(label, form, row.bearing.m_nBearing + 1LL);
    } else {
        const int kind = row.support.m_nKind;
        const std::string_view form = shear ? ShearSupportForm(kind) : MomentSupportForm(kind);
        AppendNumbered(label, form.empty() && shear ? "Invalid" : form, row.support.m_nSupport + 1LL);
    }
    return label;
}

// Feet from the substructure's own position in US units, the plain x in metric ones.
double RowPosition(const CapBlock& block, const CCapRow& row, bool us) {
    const std::vector<double>& points =
        block.table == kTableCapShear ? block.results.shearPointX : block.results.momentPointX;
    const std::size_t at = Index(row.nPoint);
    const double x = at < points.size() ? points[at] : 0.0;
    return us ? (x - block.pier.m_dLocationX) / 12.0 : x;
}

void AppendLoadAndValue(std::string& line, std::string_view load, double value) {
    line += " E= ";
    line += PadRight(load, kColumnWidth);
    line += " F=  ";
    AppendFixed(line, value, 2, 15);
}

std::string EnvelopeRow(const CapBlock& block, const CCapRow& row, bool us) {
    const CCapEntry& entry = *row.pEntry;
    std::string line = "L= " + PadRight(RowLabel(block.table, row), kColumnWidth) + "C=  ";
    AppendFixed(line, RowPosition(block, row, us), 2, 15);
    if (entry.record.m_nMissing == 1) {
        AppendLoadAndValue(line, "0", 0.0);
    } else if (!row.bSideHasResult || entry.record.m_nLoadCase == -1) {
        line += "none";
    } else {
        const std::size_t component = block.table == kTableCapShear ? kF22 : kM33;
        AppendLoadAndValue(line, FormatInt(entry.record.m_nLoadCase), entry.values[component]);
    }
    return line + "\n";
}

// The entry of a slot that gets blocks; null for one that does not.
const BlockName* FindBlock(const Report& report, TableId table, LimitClass slot) {
    const CPier& first = report.data.FirstPier();
    const int family = first.m_bCombinations ? int{first.m_nCodeFamily} : kPlainCases;
    for (const BlockName& name : kBlockNames) {
        if (name.family != family || name.slot != slot) continue;
        if (!(table == kTableCapShear ? name.shear : name.moment)) return nullptr;
        return name.needsClass && !report.selection.IsClassPresent(slot) ? nullptr : &name;
    }
    return nullptr;
}

void WriteEnvelopes(const Report& report, TableId table, StoredStream& out) {
    const CDataSet& data = report.data;
    if (!report.enabled[table] || data.IsPierless()) return;
    const char* kind = table == kTableCapShear ? "SHEAR_" : "MOMENT_";
    const bool us = data.m_nUnits == 0;
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        for (int extreme = 0; extreme < 2; ++extreme) {
            for (const LimitClass slot : data.FirstPier().Slots()) {
                const BlockName* name = FindBlock(report, table, slot);
                if (name == nullptr) continue;
                out << kind << name->word << (extreme == 0 ? "MAX" : "MIN") << "_PIER"
                    << FormatInt(static_cast<long long>(p)) << "\n";
                const CapBlock block{table, data.m_Piers[p], report.results.piers[p], slot, extreme};
                WalkCap(block, [&](const CCapRow& row) { out << EnvelopeRow(block, row, us); });
                out << kSectionEnd;
            }
        }
    }
}

void WriteProject(const CDataSet& data, StoredStream& out) {
    const bool combinations = data.HasCombinations();
    out << "GENERAL\n"
        << "U= " << FormatInt(data.m_nUnits) << "\n"
        << "P= " << FormatInt(data.m_nPiers) << "\n"
        << "A= " << (combinations ? "1" : "0") << "\n"
        << "T= " << FormatInt(data.m_nAnalysisMode) << "\n"
        << kSectionEnd;
    out << "PROJECTDATA\n"
        << data.m_sProjectN << "\n"
        << data.m_sProjectD << "\n"
        << data.m_sProjectT << "\n"
        << data.m_sProjectC << "\n"
        << kSectionEnd;
    out << "STRUCTURETYPE\n";
    for (const CPier& pier : data.m_Piers) {
        out << "S= " << FormatInt(pier.m_nStructureType) << " N= " << FormatInt(pier.m_nCapShearPoints)
            << " M= " << FormatInt(pier.m_nCapMomentPoints) << " B= " << FormatInt(pier.m_nBearingRows)
            << "\n";
    }
    out << kSectionEnd;
}

void WriteLimitStateStatus(const Report& report, StoredStream& out) {
    const CodeFamily family = report.data.FirstPier().m_nCodeFamily;
    const int design = family == kFamilyLfd || family == kFamilyArema ? int{family} : 0;
    out << "AASHTO_LIMITSTATE_STATUS\n"
        << "D= " << FormatInt(design) << "\n";
    for (const StatusLine& line : kStatusLines) {
        if (line.family == family)
            out << line.key << (report.selection.IsClassPresent(line.limitClass) ? "1" : "0") << "\n";
    }
    out << kSectionEnd;
}

}  // namespace

void WriteEnvelopeFile(const Report& report, StoredStream& out) {
    WriteProject(report.data, out);
    if (report.data.HasCombinations()) WriteLimitStateStatus(report, out);
    for (const TableId table : {kTableCapShear, kTableCapMoment}) {
        if (report.results.valid[table]) WriteEnvelopes(report, table, out);
    }
}

}  // namespace lumerin
