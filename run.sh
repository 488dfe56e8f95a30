#!/bin/bash
# run.sh [--windows]: sets up, builds, makes a sample project, writes its full report and says where it is.
# With --windows it builds the module instead and shows its real dialog on the sample project.
set -euo pipefail
cd "$(dirname "$0")"

# Where there is a compiler cache, clones in several folders share their work.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

jobs=$(nproc)
tools/install build
cmake --preset native >build-native.log 2>&1 || { cat build-native.log >&2; exit 1; }
rm -f build-native.log
cmake --build --preset native --target lumerin make-sample -j "$jobs" -- --quiet

mkdir -p build/sample
for preset in pier bent group walls bridge history; do
    build/native/make-sample build/sample --preset "$preset" --name "$preset"
done

if [[ ${1:-} == --windows ]]; then
    exec tools/show-module build/sample/pier.in
fi

written=$(build/native/lumerin report build/sample/pier.in --table full --format text)
echo "----- the first screen of the full report -----"
head -n 40 "$written" | tr -d '\r'
echo "-----------------------------------------------"
echo "The report: $written"
echo "The sample projects: build/sample/"
echo "The program: build/native/lumerin (try: build/native/lumerin --help)"
