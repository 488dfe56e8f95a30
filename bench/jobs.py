#!/usr/bin/python3
"""bench/jobs.py BUILD [COUNT]: would `lumerin check --jobs 2` be worth it?

The prototype of jobs that share nothing: one process over a list of small projects, and two processes at once over
its halves, in turn. Printed are the best time of each, their ratio, and the load of the machine before each turn: with
other work on the machine the ratio says nothing.
"""
import os
import pathlib
import subprocess
import sys
import time

import many

TURNS = 9
WORTH_IT = 1.6


def seconds(program, lists):
    """From the start of the processes, one for each list, to the end of the last."""
    begin = time.perf_counter()
    runs = [subprocess.Popen([program, "check", "--limit", "100", "--format", "json", "--files-from", path],
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) for path in lists]
    for run in runs:
        if run.wait() != 0:
            raise SystemExit("a run failed")
    return time.perf_counter() - begin


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    count = int(sys.argv[2]) if len(sys.argv) > 2 else many.COUNTS[-1]
    folder = build / "projects"
    folder.mkdir(exist_ok=True)
    many.make(build, folder)
    names = [pathlib.Path(line) for line in (folder / f"many-{many.COUNTS[-1]}.txt").read_text().split()][:count]
    whole = many.write_list(folder / "jobs.txt", names)
    halves = [many.write_list(folder / f"jobs-{half}.txt", names[half::2]) for half in range(2)]
    ones, twos, loads = [], [], []
    for _ in range(TURNS):
        loads.append(os.getloadavg()[0])
        ones.append(seconds(build / "lumerin", [whole]))
        twos.append(seconds(build / "lumerin", halves))
    one, two = min(ones), min(twos)
    print(f"one process {count / one:.0f} projects a second, two {count / two:.0f}: {one / two:.2f} times "
          f"(worth it from {WORTH_IT}); {os.cpu_count()} cores, load {min(loads):.1f} to {max(loads):.1f}")


main()
