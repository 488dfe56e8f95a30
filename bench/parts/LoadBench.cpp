#include <benchmark/benchmark.h>

#include "parts/SampleProject.h"
#include "results/CollectData.h"

// The load of a project and each collect step, in bytes of the force file a second.
namespace {

void SetBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * SampleProject::Get().ForceBytes());
}

void Load(benchmark::State& state) {
    for (auto _ : state) SampleProject::Get().Load();
    SetBytes(state);
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond);

void CollectStep(benchmark::State& state, void (CCollectData::*step)()) {
    SampleProject::Get().LoadOnce();
    CCollectData collect;
    for (auto _ : state) (collect.*step)();
    SetBytes(state);
}
BENCHMARK_CAPTURE(CollectStep, MaxAxialForces, &CCollectData::CollectMaxAxialForces);
BENCHMARK_CAPTURE(CollectStep, PileDemandCapacity, &CCollectData::CollectPileDemandCapacity);
BENCHMARK_CAPTURE(CollectStep, ColumnDemandCapacity, &CCollectData::CollectColumnDemandCapacity);
BENCHMARK_CAPTURE(CollectStep, CapShear, &CCollectData::CollectCapShear);
BENCHMARK_CAPTURE(CollectStep, CapMoment, &CCollectData::CollectCapMoment);
BENCHMARK_CAPTURE(CollectStep, PileForces, &CCollectData::CollectPileForces);
BENCHMARK_CAPTURE(CollectStep, ColumnForces, &CCollectData::CollectColumnForces);
BENCHMARK_CAPTURE(CollectStep, ExtraMemberForces, &CCollectData::CollectExtraMemberForces);

}  // namespace

BENCHMARK_MAIN();
