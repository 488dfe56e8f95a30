// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <string>

#include "text/Format.h"

namespace lumerin {

// Numbers to text, compared with the C library.
namespace {

constexpr int kWidth = 10;

std::array<double, 1024> MakeForces() {
    std::array<double, 1024> forces{};
    unsigned state = 20261114;
    for (double& force : forces) {
        state = state * 1664525U + 1013904223U;
        force = static_cast<double>(static_cast<float>(state >> 8) / 2000.0F - 4000.0F);
    }
    return forces;
}

void Fixed(benchmark::State& state) {
    const auto forces = MakeForces();
    std::string out;
    std::size_t i = 0;
    for (auto _ : state) {
        out.clear();
        AppendFixed(out, forces[i++ % forces.size()], static_cast<int>(state.range(0)), kWidth);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(Fixed)->ArgName("decimals")->Arg(2)->Arg(3)->Arg(12);

void CLibrary(benchmark::State& state) {
    const auto forces = MakeForces();
    std::array<char, 64> out{};
    std::size_t i = 0;
    for (auto _ : state) {
        std::snprintf(out.data(), out.size(), "%*.*f", kWidth, static_cast<int>(state.range(0)),
                      forces[i++ % forces.size()]);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(CLibrary)->ArgName("decimals")->Arg(2)->Arg(3)->Arg(12);

void Integers(benchmark::State& state) {
    std::string out;
    long long number = 0;
    for (auto _ : state) {
        out.clear();
        AppendInt(out, number++ % 100000, 6);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(Integers);

}  // namespace

}  // namespace lumerin
