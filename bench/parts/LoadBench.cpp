// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "parts/SampleProject.h"

namespace lumerin {

// The load of a project and each collect step, in bytes of the force file a second.
namespace {

void SetBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * SampleProject::Get().ForceBytes());
}

void Load(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(SampleProject::Get().Load());
    SetBytes(state);
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond);

void CollectStep(benchmark::State& state, TableId table) {
    MeasuredProject& project = SampleProject::Loaded();
    for (auto _ : state) project.Collect(table);
    SetBytes(state);
}
BENCHMARK_CAPTURE(CollectStep, MaxAxialForces, kTableMaxAxial);
BENCHMARK_CAPTURE(CollectStep, PileDemandCapacity, kTablePileDc);
BENCHMARK_CAPTURE(CollectStep, ColumnDemandCapacity, kTableColumnDc);
BENCHMARK_CAPTURE(CollectStep, CapShear, kTableCapShear);
BENCHMARK_CAPTURE(CollectStep, CapMoment, kTableCapMoment);
BENCHMARK_CAPTURE(CollectStep, PileForces, kTablePileForces);
BENCHMARK_CAPTURE(CollectStep, ColumnForces, kTableColumnForces);
BENCHMARK_CAPTURE(CollectStep, ExtraMemberForces, kTableExtraMembers);

}  // namespace

}  // namespace lumerin

BENCHMARK_MAIN();
