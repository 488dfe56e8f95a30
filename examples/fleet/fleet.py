#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks and exports many projects on a Dask cluster, into one SQLite file.

    fleet.py -o bridges.sqlite --workers 2 bridges/
    fleet.py --scheduler tcp://node1:8786 --work /shared/work -o bridges.sqlite --files-from projects.txt

fleet.md of the documents describes it. Exit status: 0 all pass, 1 some are over the limit, 2 wrong usage, 3 a project has no
verdict, 4 the data of a project have errors; the first of 3, 4, 1, 0 that occurred.
"""
from __future__ import annotations

import argparse
import os
import shutil
import sys
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

import dask
import shard_run
from distributed import Client, Future, LocalCluster, as_completed
from distributed.diagnostics.plugin import UploadFile
from distributed.scheduler import KilledWorker
from results import Results
from shards import Shard, after_failure, find_projects, make_shards

WORST_FIRST = (2, 3, 4, 1, 0)
TABLES = "projects,verdict,findings,pile_axial,section_dc,cap_shear,cap_moment"


def parse(words: list[str]) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description="Check and export many projects on a Dask cluster.")
    add = parser.add_argument
    add("project", nargs="*", help="a project, or a folder with projects in it and below it")
    add("--files-from", metavar="FILE", help="more projects and folders, one a line; - for standard input")
    add("-o", "--output", required=True, metavar="FILE", help="the SQLite file, replaced when all is done")
    add("--lumerin", default="lumerin", metavar="PROGRAM", help="the program, as the workers find it")
    add("--scheduler", metavar="ADDRESS", help="a cluster that is there, as tcp://HOST:PORT; else one on this machine")
    add("--workers", type=int, default=os.cpu_count(), metavar="N", help="worker processes on this machine")
    add("--work", metavar="DIR", help="a folder that all workers see, for FILE.shards (default: that of FILE)")
    add("--table", default=TABLES, metavar="LIST", help="tables to export (default %(default)s)")
    add("--limit", type=float, default=1.0, metavar="RATIO", help="greatest D/C ratio that passes")
    add("--shard-mb", type=float, default=1000.0, metavar="N", help="megabytes of a shard (default %(default)g)")
    add("--shard-projects", type=int, default=500, metavar="N", help="projects of a shard (default %(default)d)")
    add("--attempts", type=int, default=3, metavar="N", help="attempts before a project is an error (default 3)")
    add("--seconds", type=float, default=600.0, metavar="N", help="that one project may take (default %(default)g)")
    return parser.parse_args(words)


def given_paths(options: argparse.Namespace) -> list[str]:
    """The projects and folders of the command line and the list."""
    paths = list(options.project)
    if options.files_from:
        with (sys.stdin if options.files_from == "-" else open(options.files_from, encoding="utf-8",
                                                               errors="surrogateescape")) as lines:
            paths += [line.rstrip("\r\n") for line in lines if line.strip()]
    return paths


@contextmanager
def cluster(options: argparse.Namespace) -> Iterator[Client]:
    """A client of the cluster, whose workers have the code of a shard."""
    # A shard is given up when so many workers have died with it, and a worker has no more shards than it does at
    # once, so that its end counts against no other.
    dask.config.set({"distributed.scheduler.allowed-failures": options.attempts - 1,
                     "distributed.scheduler.worker-saturation": 1.0})
    local = None if options.scheduler else LocalCluster(n_workers=options.workers, threads_per_worker=1,
                                                        dashboard_address=None)
    try:
        with Client(local or options.scheduler) as client:
            client.register_worker_plugin(UploadFile(shard_run.__file__))
            yield client
    finally:
        if local:
            local.close()


class Run:
    """One run: hands shards to the workers and their results to the writer."""

    def __init__(self, client: Client, settings: shard_run.Settings, results: Results, attempts: int) -> None:
        self.client = client
        self.settings = settings
        self.results = results
        self.attempts = attempts
        self.shards: dict[str, Shard] = {}  # by the key of the task

    def submit(self, shard: Shard) -> Future:
        identity = shard.identity(repr(self.settings))
        key = f"{identity}-{shard.attempt}"
        self.shards[key] = shard
        return self.client.submit(shard_run.run_shard, self.settings, identity, shard.names, key=key)

    def do(self, shards: list[Shard]) -> None:
        """Does all shards. No failure of a project ends it."""
        completed = as_completed([self.submit(shard) for shard in shards])
        for future in completed:
            shard = self.shards.pop(future.key)
            if future.status == "finished":
                self.results.add(future.result())
                continue
            # The scheduler itself has tried again what its workers died with.
            is_given_up = isinstance(future.exception(), KilledWorker) and len(shard.projects) == 1
            next_shards = [] if is_given_up else after_failure(shard, self.attempts)
            for one in next_shards:
                completed.add(self.submit(one))
            if not next_shards:
                self.results.add_error(shard.names[0], reason(future))


def reason(future: Future) -> str:
    """Why a task failed, in one line."""
    fault = future.exception()
    if isinstance(fault, shard_run.ShardError):
        return str(fault)
    if isinstance(fault, KilledWorker):
        return "each worker that took it has died"
    return f"{type(fault).__name__}: {' '.join(str(fault).split())}"


def main() -> int:
    options = parse(sys.argv[1:])
    try:
        projects = find_projects(given_paths(options))
    except OSError as fault:
        print(f"fleet: {fault}", file=sys.stderr)
        return 2
    if not projects:
        print("fleet: no project is given", file=sys.stderr)
        return 2
    output = Path(options.output)
    work = Path(options.work or output.parent) / f"{output.name}.shards"
    work.mkdir(parents=True, exist_ok=True)
    program = shutil.which(options.lumerin) or options.lumerin
    settings = shard_run.Settings(os.path.abspath(program) if os.sep in program else program, str(work.resolve()),
                                  options.table, options.limit, options.seconds)
    shards = make_shards(projects, int(options.shard_mb * 1e6), options.shard_projects)
    results = Results(options.output)
    try:
        with cluster(options) as client:
            Run(client, settings, results, options.attempts).do(shards)
        results.close()
    except BaseException:
        results.discard()  # the results of the shards stay, for the next run
        raise
    shutil.rmtree(work, ignore_errors=True)
    print(results.summary())
    return next(status for status in WORST_FIRST if results.counts[status])


if __name__ == "__main__":
    sys.exit(main())
