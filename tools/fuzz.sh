#!/bin/bash
# tools/fuzz.sh TARGET|all SECONDS: builds the fuzz targets and runs one of them, or each (as many at a time as there
# are processors), to find inputs that end the program. A run starts from the sample maker's projects and from the
# inputs of earlier runs. New inputs are kept in build/fuzz-corpus/TARGET, those that fail in build/fuzz-faults/TARGET.
#
# tools/fuzz.sh keep: writes the inputs that matter into tests/fuzz-corpus, within its size.
set -euo pipefail
self=$(readlink -f "$0")
cd "$(dirname "$0")/.."

build=${LUMERIN_FUZZ_BUILD:-build/sanitize}
corpus=build/fuzz-corpus
kept=tests/fuzz-corpus

prepare() {
    tools/install sanitize
    cmake --preset sanitize -B "$build" >/dev/null
    cmake --build "$build" --target fuzz -j "$(nproc)" -- --quiet
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
    # No seconds: what is known is replayed, nothing new is looked for.
    local limit=(-max_total_time="$seconds" -seed="${LUMERIN_FUZZ_SEED:-0}")
    (( seconds > 0 )) || limit=(-runs=0)
    mkdir -p "$corpus/$target" "$faults" "$kept/$target"
    echo "-- $target, $seconds s"
    # Small inputs first; the largest is a whole project.
    local log=$faults/log
    if ! "$build/fuzz-$target" -timeout=60 -rss_limit_mb=2048 -max_len=50000 "${limit[@]}" \
        -print_final_stats=1 -artifact_prefix="$faults/" "$corpus/$target" "$kept/$target" >"$log" 2>&1; then
        grep -vE '^#[0-9]+[[:space:]]+(NEW|REDUCE|pulse)|NEW_FUNC' "$log" | tail -60 >&2
        return 1
    fi
    grep -E '^stat::(number_of_executed_units|average_exec)' "$log"
}

# The smallest thirty, and 12 KB at most; inputs with a name of their own are faults that were found, and stay.
trim() {
    local sum=0 count=0 size name
    while read -r size name; do
        sum=$((sum + size)) count=$((count + 1))
        if (( sum > 12000 || count > 30 )); then rm -- "$1/$name"; fi
    done < <(find "$1" -type f -printf '%s %f\n' | grep -E ' [0-9a-f]{40}$' | sort -n)
}

keep() {
    local target
    for target in $(targets); do
        mkdir -p "$kept/$target"
        "$build/fuzz-$target" -set_cover_merge=1 -max_len=4000 "$kept/$target" "$corpus/$target" >/dev/null 2>&1
        trim "$kept/$target"
    done
}

if (( $# < 1 )); then
    echo "usage: tools/fuzz.sh TARGET|all SECONDS, or tools/fuzz.sh keep" >&2
    exit 2
fi
if [[ $1 == __one ]]; then
    # One of several at a time: its output is printed in one piece.
    status=0
    said=$(run "$2" "$3" 2>&1) || status=1
    printf '%s\n' "$said"
    exit "$status"
fi
prepare
case $1 in
    keep) keep ;;
    all)
        targets | xargs -P "$(nproc)" -I{} "$self" __one {} "${2:-10}"
        ;;
    *) run "$1" "${2:-60}" ;;
esac
