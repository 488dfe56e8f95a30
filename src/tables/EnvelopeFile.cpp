#include <array>
#include <string>
#include <string_view>

#include "model/DataSet.h"
#include "session/Session.h"
#include "tables/CapRows.h"
#include "tables/RowText.h"
#include "tables/WriteData.h"
#include "text/Format.h"

// The data file of the envelope plotter: keyed sections, each closed by a colon and an empty line. The
// plotter finds the sections by their names and the fields of a row by their keys and columns.
namespace {

constexpr std::string_view kSectionEnd = ":\n\n";
constexpr std::size_t kColumnWidth = 12;

constexpr int kPlainCases = -2;  // in place of a family: load cases or time steps

// A slot that has blocks: its family and the word in the block's name.
struct BlockName {
    int family;
    int slot;
    bool needsClass;  // a case of the class must be selected
    bool moment, shear;
    const char* word;
};
constexpr std::array<BlockName, 8> kBlockNames{{
    {kPlainCases, 0, false, true, true, ""},
    {kFamilyLrfd, 0, true, true, true, "STRENGTH_"},
    {kFamilyLrfd, 1, true, true, true, "SERVICE_"},
    {kFamilyLrfd, 2, true, true, true, "EXTREME_"},
    {kFamilyLrfd, 3, true, true, false, "FATIGUE_"},
    {kFamilyLfd, 0, false, true, true, ""},
    {kFamilyArema, 0, true, true, true, "LOAD_FACTOR_DESIGN_"},
    {kFamilyArema, 1, true, true, true, "SERVICE_LOAD_DESIGN_"},
}};

// A line of the limit state section: whether cases of the class are selected.
struct StatusLine {
    int family;
    const char* key;
    int limitClass;
};
constexpr std::array<StatusLine, 11> kStatusLines{{
    {kFamilyLrfd, "SHSTR= ", 0},
    {kFamilyLrfd, "SHEXT= ", 2},
    {kFamilyLrfd, "SHSER= ", 1},
    {kFamilyLrfd, "MOSTR= ", 0},
    {kFamilyLrfd, "MOEXT= ", 2},
    {kFamilyLrfd, "MOSER= ", 1},
    {kFamilyLrfd, "MOFAT= ", 3},
    {kFamilyArema, "SHLFD= ", 0},
    {kFamilyArema, "SHSLD= ", 1},
    {kFamilyArema, "MOLFD= ", 0},
    {kFamilyArema, "MOSLD= ", 1},
}};

constexpr std::array<const char*, 4> kShearKinds = {" %i LF", " %i LCL", " %i RCL", " %i RF"};
constexpr std::array<const char*, 3> kMomentKinds = {" %i LF", " %i CL", " %i RF"};
// By side and row code. Unlike in the tables the two sides of a row's bearing read alike when there are two
// rows.
constexpr std::array<std::array<const char*, 4>, 2> kShearBearings = {{
    {"Brg %i LR", "Brg %i RR", "Brg %i L", "Brg %i L"},
    {"Brg %i LR", "Brg %i RR", "Brg %i R", "Brg %i R"},
}};
constexpr std::array<const char*, 4> kMomentBearings = {"Brg %i LR", "Brg %i RR", "Brg %i", "Brg %i"};

template <std::size_t N>
const char* TextAt(const std::array<const char*, N>& texts, int index, const char* other) {
    return index >= 0 && index < static_cast<int>(N) ? texts[static_cast<std::size_t>(index)] : other;
}

std::string RowLabel(int table, const CCapRow& row) {
    const bool shear = table == kTableCapShear;
    std::string label;
    if (row.bBearing) {
        const int code = row.bearing.m_nRowCode;
        const char* form = shear ? TextAt(kShearBearings[row.nSide == 0 ? 0 : 1], code, "")
                                 : TextAt(kMomentBearings, code, "");
        AppendNumbered(label, form, row.bearing.m_nBearing + 1LL);
    } else {
        const int kind = row.support.m_nKind;
        const char* form = shear ? TextAt(kShearKinds, kind, "Invalid") : TextAt(kMomentKinds, kind, "");
        AppendNumbered(label, form, row.support.m_nSupport + 1LL);
    }
    return label;
}

// Feet from the substructure's own position in US units, the plain x in metric ones.
double RowPosition(const CPier& pier, int table, const CCapRow& row) {
    const std::vector<double>& points = table == kTableCapShear ? pier.m_ShearPointX : pier.m_MomentPointX;
    const std::size_t at = static_cast<std::size_t>(row.nPoint);
    const double x = at < points.size() ? points[at] : 0.0;
    return g_DataSet.m_nUnits == 0 ? (x - pier.m_dLocationX) / 12.0 : x;
}

void AppendLoadAndValue(std::string& line, std::string_view load, double value) {
    line += " E= ";
    line += PadRight(load, kColumnWidth);
    line += " F=  ";
    AppendFixed(line, value, 2, 15);
}

std::string EnvelopeRow(const CPier& pier, int table, const CCapRow& row) {
    const CCapEntry& entry = *row.pEntry;
    std::string line = "L= " + PadRight(RowLabel(table, row), kColumnWidth) + "C=  ";
    AppendFixed(line, RowPosition(pier, table, row), 2, 15);
    if (entry.record.m_nMissing == 1) {
        AppendLoadAndValue(line, "0", 0.0);
    } else if (!row.bSideHasResult || entry.record.m_nLoadCase == -1) {
        line += "none";
    } else {
        const std::size_t component = table == kTableCapShear ? kF22 : kM33;
        AppendLoadAndValue(line, FormatInt(entry.record.m_nLoadCase), entry.values[component]);
    }
    return line + "\n";
}

// The entry of a slot that gets blocks; null for one that does not.
const BlockName* FindBlock(int table, int slot) {
    const CPier& first = g_DataSet.FirstPier();
    const int family = first.m_bCombinations ? first.m_nCodeFamily : kPlainCases;
    for (const BlockName& name : kBlockNames) {
        if (name.family != family || name.slot != slot) continue;
        if (!(table == kTableCapShear ? name.shear : name.moment)) return nullptr;
        return name.needsClass && !first.IsClassPresent(slot) ? nullptr : &name;
    }
    return nullptr;
}

void WriteEnvelopes(StoredStream& out, int table) {
    if (!g_DataSet.m_bTableEnabled[static_cast<std::size_t>(table)] || g_DataSet.IsPierless()) return;
    const char* kind = table == kTableCapShear ? "SHEAR_" : "MOMENT_";
    const int slots = g_DataSet.FirstPier().SlotCount();
    long long number = 0;
    for (const CPier& pier : g_DataSet.m_Piers) {
        for (int extreme = 0; extreme < 2; ++extreme) {
            for (int slot = 0; slot < slots; ++slot) {
                const BlockName* name = FindBlock(table, slot);
                if (name == nullptr) continue;
                out << kind << name->word << (extreme == 0 ? "MAX" : "MIN") << "_PIER" << FormatInt(number)
                    << "\n";
                WalkCap(table, pier, slot, extreme,
                        [&](const CCapRow& row) { out << EnvelopeRow(pier, table, row); });
                out << kSectionEnd;
            }
        }
        ++number;
    }
}

void WriteProject(StoredStream& out) {
    const bool combinations = !g_DataSet.IsPierless() && g_DataSet.FirstPier().m_bCombinations;
    out << "GENERAL\n"
        << "U= " << FormatInt(g_DataSet.m_nUnits) << "\n"
        << "P= " << FormatInt(g_DataSet.m_nPiers) << "\n"
        << "A= " << (combinations ? "1" : "0") << "\n"
        << "T= " << FormatInt(g_DataSet.m_nAnalysisMode) << "\n"
        << kSectionEnd;
    out << "PROJECTDATA\n"
        << g_DataSet.m_sProjectN << "\n"
        << g_DataSet.m_sProjectD << "\n"
        << g_DataSet.m_sProjectT << "\n"
        << g_DataSet.m_sProjectC << "\n"
        << kSectionEnd;
    out << "STRUCTURETYPE\n";
    for (const CPier& pier : g_DataSet.m_Piers) {
        out << "S= " << FormatInt(pier.m_nStructureType) << " N= " << FormatInt(pier.m_nCapShearPoints)
            << " M= " << FormatInt(pier.m_nCapMomentPoints) << " B= " << FormatInt(pier.m_nBearingRows)
            << "\n";
    }
    out << kSectionEnd;
}

}  // namespace

void CWriteData::WriteLimitStateStatus(StoredStream& out) {
    const CPier& first = g_DataSet.FirstPier();
    const int family = first.m_nCodeFamily;
    const int design = family == kFamilyLfd || family == kFamilyArema ? family : 0;
    out << "AASHTO_LIMITSTATE_STATUS\n"
        << "D= " << FormatInt(design) << "\n";
    for (const StatusLine& line : kStatusLines) {
        if (line.family == family)
            out << line.key << (first.IsClassPresent(line.limitClass) ? "1" : "0") << "\n";
    }
    out << kSectionEnd;
}

void CWriteData::WriteShearEnvelopes(StoredStream& out) {
    WriteEnvelopes(out, kTableCapShear);
}

void CWriteData::WriteMomentEnvelopes(StoredStream& out) {
    WriteEnvelopes(out, kTableCapMoment);
}

// A file that can't be opened swallows what is written; the plotter is started all the same.
void CWriteData::WriteEnvelopeFile() {
    StoredStream out(g_OutputFilePath);
    WriteProject(out);
    if (!g_DataSet.IsPierless() && g_DataSet.FirstPier().m_bCombinations) WriteLimitStateStatus(out);
    if (g_DataSet.m_bTableValid[kTableCapShear]) WriteShearEnvelopes(out);
    if (g_DataSet.m_bTableValid[kTableCapMoment]) WriteMomentEnvelopes(out);
    out.Close();
}
