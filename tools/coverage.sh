#!/bin/bash
# tools/coverage.sh [PERCENT]: builds with counters in build/coverage, runs the native tests and prints the share of the
# lines of src/ that they reach, by folder, and the lines that none reaches. win32/, windows/ and host/ are not part of the native
# build. Exit status 1 if the share is below PERCENT (default 95).
set -euo pipefail
cd "$(dirname "$0")/.."

wanted=${1:-95}
build=${LUMERIN_COVERAGE_BUILD:-build/coverage}
tools/install coverage
cmake --preset coverage -B "$build" >/dev/null
cmake --build "$build" -j "$(nproc)" -- --quiet
find "$build" -name '*.gcda' -delete
ctest --test-dir "$build" -j "$(nproc)" --output-on-failure >"$build/tests.log" || { tail -40 "$build/tests.log"; exit 1; }
# The clean-up of a throw does not count as a line; headers are summed over the files that include them.
gcovr --root . --filter 'src/' --exclude 'src/host/' --exclude '.*/win32/' --exclude '.*/windows/' --object-directory "$build" \
    --json-summary "$build/coverage.json" --json "$build/lines.json" --gcov-ignore-parse-errors -j "$(nproc)" "$build" >/dev/null
python3 - "$build/coverage.json" "$build/lines.json" "$wanted" <<'PYTHON'
import collections
import json
import sys

summary = json.load(open(sys.argv[1]))
lines = json.load(open(sys.argv[2]))
wanted = float(sys.argv[3])
folders = collections.defaultdict(lambda: [0, 0])
for entry in summary["files"]:
    folder = folders[entry["filename"].split("/")[1]]
    folder[0] += entry["line_covered"]
    folder[1] += entry["line_total"]
for entry in sorted(lines["files"], key=lambda e: e["file"]):
    missed = [line["line_number"] for line in entry["lines"] if line["count"] == 0 and not line.get("gcovr/noncode")]
    if missed:
        print(f'{entry["file"]}: {" ".join(map(str, missed))}')
for name, (covered, total) in sorted(folders.items()):
    print(f"{name:12} {covered:6} of {total:6} lines  {100.0 * covered / total:5.1f} %")
covered, total = (sum(folder[i] for folder in folders.values()) for i in (0, 1))
share = 100.0 * covered / total
print(f"src          {covered:6} of {total:6} lines  {share:5.1f} %")
sys.exit(0 if share >= wanted else 1)
PYTHON
