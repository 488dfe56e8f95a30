#!/bin/bash
# test.sh: sets up, builds, and runs every check of the repository. Each step is reported with its time; the
# first that fails ends the run.
set -euo pipefail
cd "$(dirname "$0")"

# Where there is a compiler cache, clones in several folders share their work.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

jobs=$(nproc)
started=$SECONDS
skipped=()

step() {
    local name=$1 from=$SECONDS
    shift
    echo "== $name"
    if ! "$@"; then
        echo "FAILED: $name" >&2
        exit 1
    fi
    echo "   $((SECONDS - from)) s"
}

build() {
    cmake --preset "$1" >/dev/null && cmake --build --preset "$1" -j "$jobs" "${@:2}" -- --quiet
}

# The tests write thousands of small files: in memory, where there is room for that.
if [[ -d /dev/shm && -w /dev/shm ]]; then
    scratch=$(mktemp -d /dev/shm/lumerinXXXXXX)
else
    scratch=$(mktemp -d "${TMPDIR:-/tmp}/lumerinXXXXXX")
fi
trap '[[ -z ${windows_job:-} ]] || kill "$windows_job"; rm -rf "$scratch"' EXIT

run_tests() {
    TMPDIR=$scratch ctest --preset "$1" -j "$jobs" --progress >"$scratch/ctest.log" || { cat "$scratch/ctest.log"; return 1; }
    grep 'tests passed' "$scratch/ctest.log"
}

format() {
    git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
}

install() {
    tools/install sanitize && tools/install windows
}

# What is installed and what the documents and the notices say of it; packaging/check of tools/release uses the packages.
packaged() {
    packaging/check-files build/native && packaging/check-sbom --notices
}

# The test of two projects in two threads alone; tools/nightly runs the others under the thread sanitizer too.
two_threads() {
    build threads && TMPDIR=$scratch build/threads/test-threads --gtest_brief=1
}

# The lint of the module reads the compile commands of its build.
lints() {
    cmake --preset windows >/dev/null && tools/lint
}

# The module's tests wait most of their time for windows, so they run beside the builds.
windows_job=
start_windows() {
    tools/test-windows >"$scratch/windows.log" 2>&1 &
    windows_job=$!
}
finish_windows() {
    local status=0
    wait "$windows_job" || status=$?
    windows_job=
    cat "$scratch/windows.log"
    if (( status == 77 )) && [[ -z ${CI:-} ]]; then
        skipped+=("the module's tests: no 32-bit Wine on this machine")
        return 0
    fi
    return "$status"
}

# The pages of the sample projects in real browsers.
web_report() {
    local status=0
    tools/install web || echo "the browsers could not be installed"
    TMPDIR=$scratch tools/test-web || status=$?
    if (( status == 77 )) && [[ -z ${CI:-} ]]; then
        skipped+=("the web report in browsers: they are not on this machine")
        return 0
    fi
    return "$status"
}

step "install what the tests need" install
step "layers of the sources" tools/check-layers
step "names" tools/check-names
step "formatter" format
step "native build" build native
step "layers of the libraries" tools/check-layers build/native
step "native tests" run_tests native
step "what is packaged" packaged
step "speed ratios" bench/check-ratios
start_windows
# Its short bursts of work come first; everything else fills the time in between.
renice -n 10 $$ >/dev/null
step "web report" web_report
step "sanitizer build, tests and fuzz targets" build sanitize --target all fuzz
step "functions that nobody calls" tools/check-dead-code
step "each source by itself" tools/check-alone
step "tests under the sanitizers" run_tests sanitize
# From a fixed seed, so that a run is like the one before it.
LUMERIN_FUZZ_SEED=1 step "fuzz targets, a few seconds each" tools/fuzz.sh all 2
step "two threads under the thread sanitizer" two_threads
step "lints" lints
step "the module under Wine" finish_windows
step "the same bytes in another folder" tools/check-same-bytes

for what in "${skipped[@]:-}"; do
    [[ -z $what ]] || echo "SKIPPED: $what"
done
echo "All checks passed in $((SECONDS - started)) s; ${#skipped[@]} skipped."
