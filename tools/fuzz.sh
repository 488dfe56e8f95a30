#!/bin/bash
# tools/fuzz.sh TARGET|all SECONDS: builds the fuzz targets and lets one of them (or each in turn) look for inputs
# that end the program. It starts from the sample maker's projects and from what earlier runs found. New inputs
# stay in build/fuzz-corpus/TARGET; those that fail in build/fuzz-faults/TARGET.
#
# tools/fuzz.sh keep: writes the inputs that matter into tests/fuzz-corpus, within its size.
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/fuzz
corpus=build/fuzz-corpus
kept=tests/fuzz-corpus

prepare() {
    tools/install fuzz
    cmake --preset fuzz >/dev/null
    cmake --build --preset fuzz -j "$(nproc)" -- --quiet
    "$build/make-seeds" "$corpus"
}

targets() {
    find "$build" -maxdepth 1 -name 'fuzz-*' -type f -perm -u+x -printf '%f\n' | sed 's/^fuzz-//' | sort
}

# Folders in memory of processes that ended in a fault.
sweep() {
    local folder
    for folder in /dev/shm/lumerin-fuzz-*; do
        [[ -d $folder && ! -d /proc/${folder##*-} ]] && rm -rf "$folder"
    done
    return 0
}
trap sweep EXIT

run() {
    local target=$1 seconds=$2 faults=build/fuzz-faults/$1
    mkdir -p "$corpus/$target" "$faults" "$kept/$target"
    echo "-- $target, $seconds s"
    # Small inputs first; the largest is a whole project.
    "$build/fuzz-$target" -timeout=20 -rss_limit_mb=2048 -max_len=50000 -max_total_time="$seconds" -verbosity=0 \
        -print_final_stats=1 -artifact_prefix="$faults/" "$corpus/$target" "$kept/$target" 2>&1 |
        grep -E '^stat::(number_of_executed_units|average_exec)|ERROR|SUMMARY|a step ended' || true
    [[ ${PIPESTATUS[0]} -eq 0 ]]
}

keep() {
    local target
    for target in $(targets); do
        mkdir -p "$kept/$target"
        "$build/fuzz-$target" -merge=1 -max_len=4000 -verbosity=0 "$kept/$target" "$corpus/$target" 2>/dev/null
    done
    du -sb "$kept"
}

if (( $# < 1 )); then
    echo "usage: tools/fuzz.sh TARGET|all SECONDS, or tools/fuzz.sh keep" >&2
    exit 2
fi
prepare
case $1 in
    keep) keep ;;
    all)
        for target in $(targets); do run "$target" "${2:-10}"; done
        ;;
    *) run "$1" "${2:-60}" ;;
esac
