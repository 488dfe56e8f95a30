// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <string>

#include "framework/Index.h"
#include "results/ReadData.h"

namespace lumerin {

namespace {

constexpr int kLineLength = 128;

// The flags of a substructure's block; a key that is absent keeps what the substructure before it had.
struct BlockFlags {
    int columnLines = 0;      // C=: 0, one line serves the whole column
    int beamLines = 0;        // B=: 0, one line serves the whole cap
    int cantileverLines = 0;  // R=: 0, one line serves both cantilevers
};

class BlockReader {
  public:
    BlockReader(ifstreamex& file, bool squaredWidth) : m_file(file), m_squared(squaredWidth) {}

    void Read(CPier& pier) {
        NextLine();
        NextLine();
        NextLine();
        ReadKeyedInt(m_line, "C", m_flags.columnLines);
        ReadKeyedInt(m_line, "B", m_flags.beamLines);
        ReadKeyedInt(m_line, "R", m_flags.cantileverLines);
        NextLine();
        ReadColumns(pier);
        const CFrame& frame = pier.m_Frame;
        if (frame.m_Beam.m_nElements > 0) {
            NextLine();
            ReadRun(pier, frame.m_Beam, m_flags.beamLines != 0, false);
        }
        const bool ownLines = m_flags.cantileverLines != 0;
        if (frame.m_Cantilevers[0].m_nElements > 0) {
            NextLine();
            // The file describes the left cantilever from the column outwards.
            ReadRun(pier, frame.m_Cantilevers[0], ownLines, true);
        }
        if (ownLines) NextLine();
        ReadRun(pier, frame.m_Cantilevers[1], ownLines, false);
    }

    bool AtEnd() const { return !m_file.good(); }

  private:
    void NextLine() { m_file.GetLineEx(m_line, kLineLength); }

    void Apply(CSectionData& section) const {
        ReadKeyedInt(m_line, "S", section.m_nShape);
        ReadKeyedDouble(m_line, "D", section.m_dD);
        ReadKeyedDouble(m_line, "W", section.m_dWidth);
        if (ReadKeyedDouble(m_line, "Z", section.m_dZ) && m_squared) {
            section.m_dZ = std::sqrt(section.m_dZ);
            section.m_dWidth = std::sqrt(section.m_dWidth);
        }
        ReadKeyedDouble(m_line, "G", section.m_dG);
    }

    // One element after the other from the current line on, with a line for each or one for all.
    void ReadRun(CPier& pier, const CMember& member, bool ownLines, bool backwards) {
        for (int i = 0; i < member.m_nElements; ++i) {
            const int e = backwards ? member.m_nElements - 1 - i : i;
            Apply(pier.SectionData(member.m_nFirstElement + e));
            if (ownLines && i != member.m_nElements - 1) NextLine();
        }
    }

    void ReadColumns(CPier& pier) {
        const std::vector<CColumn>& columns = pier.m_Frame.m_Columns;
        if (columns.empty()) return;
        const int elements = pier.ColumnElements();
        ReadRun(pier, columns[0], m_flags.columnLines != 0, false);
        Extend(pier, columns[0].m_nFirstElement, m_flags.columnLines - 1, elements);
        for (std::size_t c = 1; c < columns.size(); ++c) {
            for (int e = 0; e < elements; ++e) {
                pier.SectionData(columns[c].m_nFirstElement + e) =
                    pier.SectionData(columns[0].m_nFirstElement + e);
            }
        }
    }

    // The described part of a column ends inside an element: its sizes continue for half a step of the taper.
    static void Extend(CPier& pier, int firstElement, int index, int elements) {
        if (index < 1 || index >= elements) return;
        CSectionData& last = pier.SectionData(firstElement + index);
        const CSectionData& before = pier.SectionData(firstElement + index - 1);
        last.m_dD += (last.m_dD - before.m_dD) * 0.5;
        last.m_dZ += (last.m_dZ - before.m_dZ) * 0.5;
        last.m_dWidth += (last.m_dWidth - before.m_dWidth) * 0.5;
    }

    ifstreamex& m_file;
    bool m_squared;
    BlockFlags m_flags;
    std::string m_line;
};

}  // namespace

void ReadPierSections(ifstreamex& file, CDataSet& data) {
    if (HasNoFrame(data.FirstPier().m_nStructureType)) return;
    if (!FindSection(file, "PIERXSEC")) return;
    std::string header;
    file.GetLineEx(header, kLineLength);
    int described = 0, squared = 0;
    ReadKeyedInt(header, "P", described);
    ReadKeyedInt(header, "L", squared);
    BlockReader reader(file, squared == 1);
    for (int i = 0; i < described && i < static_cast<int>(data.m_Piers.size()) && !reader.AtEnd(); ++i) {
        reader.Read(data.m_Piers[Index(i)]);
    }
}

}  // namespace lumerin
