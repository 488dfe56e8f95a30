// SPDX-License-Identifier: MIT
// bench-stages: measures single stages of the product in one process and prints "name value" lines.
//   collect PROJECT.in         load and the eight collect steps
//   plan PROJECT.in            input of sections.py: records by family and section, classes by case
//   sheet PROJECT.in FILE      the pile head sheet
//   pdf LINES FILE             prepared lines written as pages
//   format                     numbers to text, against the C library
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "MeasuredProject.h"
#include "ReadyLines.h"
#include "framework/Backend.h"
#include "tables/RowText.h"
#include "text/Format.h"
#include "writers/PdfSink.h"
#include "writers/TableSheets.h"

using namespace lumerin;

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

// The base path of a project's input file.
std::string BaseOf(const char* project) {
    const std::string path = project;
    return path.substr(0, path.rfind('.'));
}

// The sum of the values at the extremes of a table, which sections.py must reproduce.
double SumOfExtremes(const CPier& pier, ForceRows& rows, MemberFamily family, const CRecordTable& table) {
    double sum = 0.0;
    for (int section = 0; section < table.Sections(); ++section) {
        for (int slot = 0; slot < table.Slots(); ++slot) {
            for (int extreme = 0; extreme < table.Extremes(); ++extreme) {
                const CMaxRecord& record = table.At(section, slot, extreme);
                const int element = pier.FindElement(family, record.m_nMember, record.m_nElement);
                if (record.m_nLoadCase < 0 || element < 0) continue;
                const int component = table.Extremes() == 1 ? static_cast<int>(kDemandCapacity) : extreme / 2;
                sum += GetForce(rows.At(record.m_nLoadCase, element), record.m_nEnd, component);
            }
        }
    }
    return sum;
}

void RunCollect(const char* path) {
    auto begin = Clock::now();
    MeasuredProject project(BaseOf(path));
    const double load = SecondsSince(begin);
    begin = Clock::now();
    project.CollectAll();
    const double collect = SecondsSince(begin);
    double sum = 0.0;
    for (std::size_t p = 0; p < project.Data().m_Piers.size(); ++p) {
        const CPier& pier = project.Data().m_Piers[p];
        const PierResults& results = project.Results().piers[p];
        const std::unique_ptr<ForceRows> rows = project.Forces()[p]->OpenRows();
        sum += SumOfExtremes(pier, *rows, kPileFamily, results.pileDc) +
               SumOfExtremes(pier, *rows, kPileFamily, results.pileForces) +
               SumOfExtremes(pier, *rows, kColumnFamily, results.columnDc) +
               SumOfExtremes(pier, *rows, kColumnFamily, results.columnForces) +
               SumOfExtremes(pier, *rows, kXMemberFamily, results.extraMemberForces);
    }
    std::printf("load %.6f\ncollect %.6f\nseconds %.6f\nextremes %.6f\n", load, collect, load + collect, sum);
}

void PrintRecords(const char* family, int section, const std::vector<int>& records) {
    std::printf("%s %d", family, section);
    for (const int record : records) std::printf(" %d", record);
    std::printf("\n");
}

// For projects of one substructure whose element numbers have no gaps, as the benchmark's are.
void RunPlan(const char* path) {
    const MeasuredProject project(BaseOf(path));
    const CDataSet& data = project.Data();
    const CPier& pier = data.FirstPier();
    std::printf("block %d\nslots %d\ncombinations %d\n", data.m_nPileElements + data.m_nElements,
                pier.SlotCount(), pier.m_bCombinations ? 1 : 0);
    std::printf("classes");
    for (const CLoadCase& loadCase : pier.m_LoadCases) std::printf(" %d", loadCase.m_nLimitClass);
    std::printf("\n");
    for (int section = 1; section <= pier.m_nPileSections; ++section) {
        std::vector<int> records;
        for (const CPile& pile : pier.m_Piles) {
            for (int e = 0; e < pile.m_nElements; ++e) {
                const int element = pile.m_nFirstElement + e;
                if (pier.Element(element).m_nSection == section) records.push_back(element);
            }
        }
        PrintRecords("pile", section, records);
    }
    for (int section = 2; section < 2 + pier.m_nColumnSections; ++section) {
        std::vector<int> records;
        for (int column = 0; column < pier.m_nColumns; ++column) {
            for (int e = 0; e <= pier.m_nColumnNodes; ++e) {
                const CElement& element = pier.Element(pier.ColumnElement(column, e));
                if (element.m_nSection != section) continue;
                records.push_back(data.m_nPileElements + element.m_nElementNumber - 1);
            }
        }
        PrintRecords("column", section, records);
    }
}

void RunSheet(const char* path, const char* file) {
    const MeasuredProject project(BaseOf(path));
    RowReader reader(project.Forces());
    const auto begin = Clock::now();
    StoredStream out(file);
    WriteTableSheet(project.MakeReport(reader), kTablePileHeads, out, false);
    out.Close();
    const double seconds = SecondsSince(begin);
    if (out.Failed()) throw std::runtime_error("the sheet could not be written");
    long long rows = 0;
    for (const CPier& pier : project.Data().m_Piers) {
        rows += static_cast<long long>(pier.m_Piles.size()) * pier.m_nLoadCases;
    }
    constexpr int kCellsOfARow = 12;  // without the empty first cell
    std::printf("seconds %.6f\ncells %lld\n", seconds, rows * kCellsOfARow);
}

void RunPdf(long lines, const char* file) {
    std::vector<RowText> ready;
    for (std::string& line : MakeReadyLines()) ready.emplace_back().line = std::move(line);
    const auto begin = Clock::now();
    StoredStream out(file);
    CPdfWriter pdf(true);
    pdf.WriteHeader(out);
    CPdfSink sink(out, pdf, "", false);
    for (long line = 0; line < lines; ++line) sink.Row(ready[static_cast<std::size_t>(line) % ready.size()]);
    sink.EndTable();
    pdf.Finish(out);
    out.Close();
    std::printf("seconds %.6f\nlines %ld\npages %d\n", SecondsSince(begin), lines, pdf.PageCount());
    if (out.Failed()) throw std::runtime_error("the document could not be written");
}

// Forces as tables hold them: floats of several thousands and ratios of about one, as doubles.
std::vector<double> MakeNumbers() {
    std::vector<double> numbers(1 << 16);
    unsigned state = 20261114;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        state = state * 1664525U + 1013904223U;
        const float unit = static_cast<float>(state >> 8) / static_cast<float>(1U << 24) - 0.5F;
        numbers[i] = static_cast<double>(unit * (i % 7 == 6 ? 2.0F : 9000.0F));
    }
    return numbers;
}

template <class Write>
double TimeNumbers(const std::vector<double>& numbers, Write write) {
    std::string out;
    out.reserve(numbers.size() * 24);
    double best = 1e9;
    for (int round = 0; round < 7; ++round) {
        out.clear();
        const auto begin = Clock::now();
        for (const double number : numbers) write(out, number);
        best = std::min(best, SecondsSince(begin));
    }
    return best / static_cast<double>(numbers.size());
}

void RunFormat() {
    const std::vector<double> numbers = MakeNumbers();
    for (const int decimals : {2, 12}) {
        const double ours = TimeNumbers(
            numbers, [decimals](std::string& out, double number) { AppendFixed(out, number, decimals, 10); });
        const double theirs = TimeNumbers(numbers, [decimals](std::string& out, double number) {
            char text[64];
            const int length = std::snprintf(text, sizeof text, "%10.*f", decimals, number);
            out.append(text, static_cast<std::size_t>(length));
        });
        std::printf("ours%d %.3e\nsnprintf%d %.3e\nfaster%d %.3f\n", decimals, ours, decimals, theirs,
                    decimals, theirs / ours);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view stage = argc > 1 ? argv[1] : "";
    try {
        if (stage == "collect" && argc == 3) {
            RunCollect(argv[2]);
        } else if (stage == "plan" && argc == 3) {
            RunPlan(argv[2]);
        } else if (stage == "sheet" && argc == 4) {
            RunSheet(argv[2], argv[3]);
        } else if (stage == "pdf" && argc == 4) {
            RunPdf(std::strtol(argv[2], nullptr, 10), argv[3]);
        } else if (stage == "format" && argc == 2) {
            RunFormat();
        } else {
            std::fprintf(stderr, "bench-stages: the head of bench/stages.cpp describes the use\n");
            return 2;
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-stages: %s\n", error.what());
        return 1;
    }
    return 0;
}
