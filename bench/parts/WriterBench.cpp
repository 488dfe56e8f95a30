#include <benchmark/benchmark.h>

#include "parts/SampleProject.h"
#include "tables/WriteData.h"
#include "writers/PdfWriter.h"

// Each writer of each table, in bytes of its file a second.
namespace {

template <class Write>
void MeasureWriter(benchmark::State& state, Write write) {
    SampleProject::Get().LoadOnce();
    std::int64_t bytes = 0;
    for (auto _ : state) {
        StoredStream out(SampleProject::Get().OutputFile());
        CWriteData writer;
        write(writer, out);
        bytes += out.Position();
        out.Close();
        if (out.Failed()) state.SkipWithError("the file could not be written");
    }
    state.SetBytesProcessed(bytes);
}

void Text(benchmark::State& state, int (CWriteData::*write)(StoredStream&)) {
    MeasureWriter(state, [write](CWriteData& writer, StoredStream& out) { (writer.*write)(out); });
}

void Pdf(benchmark::State& state, int (CWriteData::*write)(StoredStream&, CPdfWriter&)) {
    MeasureWriter(state, [write](CWriteData& writer, StoredStream& out) {
        CPdfWriter pdf(true);
        pdf.WriteHeader(out);
        (writer.*write)(out, pdf);
        pdf.Finish(out);
    });
}

void Sheet(benchmark::State& state, int (CWriteData::*write)(StoredStream&, bool)) {
    MeasureWriter(state, [write](CWriteData& writer, StoredStream& out) { (writer.*write)(out, false); });
}

#define LUMERIN_BENCH_WRITERS(table)                                 \
    BENCHMARK_CAPTURE(Text, table, &CWriteData::Write##table##Text); \
    BENCHMARK_CAPTURE(Pdf, table, &CWriteData::Write##table##Pdf);   \
    BENCHMARK_CAPTURE(Sheet, table, &CWriteData::Write##table##Sheet)

LUMERIN_BENCH_WRITERS(MaxAxial);
LUMERIN_BENCH_WRITERS(PileDc);
LUMERIN_BENCH_WRITERS(ColumnDc);
LUMERIN_BENCH_WRITERS(CapShear);
LUMERIN_BENCH_WRITERS(CapMoment);
LUMERIN_BENCH_WRITERS(PileForces);
LUMERIN_BENCH_WRITERS(ColumnForces);
LUMERIN_BENCH_WRITERS(ExtraMemberForces);
BENCHMARK_CAPTURE(Sheet, PileHeadForces, &CWriteData::WritePileHeadForcesSheet);

}  // namespace
