// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "parts/SampleProject.h"
#include "tables/TableText.h"
#include "writers/TablePdf.h"
#include "writers/TableSheets.h"

namespace lumerin {

// Each writer of each table, in bytes of its file a second.
namespace {

template <class Write>
void MeasureWriter(benchmark::State& state, Write write) {
    RowReader rows(SampleProject::Loaded().Forces());
    const Report report = SampleProject::Loaded().MakeReport(rows);
    std::int64_t bytes = 0;
    for (auto _ : state) {
        StoredStream out(SampleProject::Get().OutputFile());
        write(report, out);
        bytes += out.Position();
        out.Close();
        if (out.Failed()) state.SkipWithError("the file could not be written");
    }
    state.SetBytesProcessed(bytes);
}

void Text(benchmark::State& state, TableId table) {
    MeasureWriter(state,
                  [table](const Report& report, StoredStream& out) { WriteTableText(report, table, out); });
}

void Pdf(benchmark::State& state, TableId table) {
    MeasureWriter(state, [table](const Report& report, StoredStream& out) {
        CPdfWriter pdf(true);
        pdf.WriteHeader(out);
        WriteTablePdf(report, table, out, pdf);
        pdf.Finish(out);
    });
}

void Sheet(benchmark::State& state, TableId table) {
    MeasureWriter(state, [table](const Report& report, StoredStream& out) {
        WriteTableSheet(report, table, out, false);
    });
}

#define LUMERIN_BENCH_WRITERS(name, table) \
    BENCHMARK_CAPTURE(Text, name, table);  \
    BENCHMARK_CAPTURE(Pdf, name, table);   \
    BENCHMARK_CAPTURE(Sheet, name, table)

LUMERIN_BENCH_WRITERS(MaxAxial, kTableMaxAxial);
LUMERIN_BENCH_WRITERS(PileDc, kTablePileDc);
LUMERIN_BENCH_WRITERS(ColumnDc, kTableColumnDc);
LUMERIN_BENCH_WRITERS(CapShear, kTableCapShear);
LUMERIN_BENCH_WRITERS(CapMoment, kTableCapMoment);
LUMERIN_BENCH_WRITERS(PileForces, kTablePileForces);
LUMERIN_BENCH_WRITERS(ColumnForces, kTableColumnForces);
LUMERIN_BENCH_WRITERS(ExtraMemberForces, kTableExtraMembers);
BENCHMARK_CAPTURE(Sheet, PileHeadForces, kTablePileHeads);

}  // namespace

}  // namespace lumerin
