#!/bin/bash
# bench/run.sh: installs what the benchmarks need, builds them, makes four projects and prints one table of
# times, peak memory and ratios to yardsticks that are measured beside them. bench/run.sh parts runs the
# benchmarks of the parts instead, with the further arguments.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install bench
cmake --preset native -B build/bench >build-bench.log 2>&1 || { cat build-bench.log >&2; exit 1; }
rm -f build-bench.log
cmake --build build/bench -j "$(nproc)" --target lumerin make-sample sum-floats bench-stages bench-parts \
    xlsx_cells haru_lines -- --quiet

if [[ ${1:-} == parts ]]; then
    shift
    exec build/bench/bench-parts "$@"
fi

projects=build/bench/projects
make_project() { # NAME CASES PILES
    [[ -f $projects/$1.vmd ]] && return
    build/bench/make-sample "$projects" --preset pier --name "$1" --cases "$2" --piles "$3" >/dev/null
}
mkdir -p "$projects"
# 100 piles under two columns and a cap; each next one has ten times the cases. The last one has ten times the
# piles of the second instead.
make_project cases-8 100 10x10
make_project cases-80 1000 10x10
make_project cases-800 10000 10x10
make_project piles-800 1000 25x40

exec /usr/bin/python3 bench/report.py build/bench "$projects"
