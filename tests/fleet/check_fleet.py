#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""check_fleet.py LUMERIN MAKE_SAMPLE EXAMPLES: a run on a local cluster of two workers, of which one is killed on the
way, gives every row of a plain run; a project that kills its worker each time is one row with an error.
"""
from __future__ import annotations

import json
import os
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

TABLES = "projects,verdict,findings,pile_axial,section_dc,cap_shear,cap_moment"
PRESETS = ("bent", "group", "walls", "pier", "bridge")
COPIES = 3
SECONDS_TO_START = 60

# Stands between the workers and the program. Its first run names its worker and then waits, so that the worker is
# killed in the middle of a shard.
BETWEEN = """#!/bin/sh
if mkdir {folder}/first 2>/dev/null; then
    echo $PPID $$ >{folder}/named && mv {folder}/named {folder}/victim
    exec sleep 60
fi
cat >{folder}/list-$$
grep -q kills-its-worker {folder}/list-$$ && kill -KILL $PPID
grep -q kills-itself {folder}/list-$$ && kill -KILL $$
exec {lumerin} "$@" <{folder}/list-$$
"""


def make_projects(make_sample: str, folder: Path) -> list[str]:
    """Sound and unsound ones, one that is missing, and two that no program survives; sorted."""
    for preset in PRESETS:
        for seed in range(1, COPIES + 1):
            subprocess.run([make_sample, folder, "--preset", preset, "--name", f"{preset}-{seed}", "--cases", "4",
                            "--seed", str(seed)], check=True, stdout=subprocess.DEVNULL)
    forces = folder / "pier-2.vmd"
    os.truncate(forces, forces.stat().st_size - 100)
    os.truncate(folder / "bridge-1.PLF", 50)
    for name in ("missing", "kills-its-worker", "kills-itself"):
        (folder / f"{name}.in").touch()
    return sorted(str(path)[:-3] for path in folder.glob("*.in"))


def plain_run(lumerin: str, names: list[str], folder: Path) -> Path:
    """The tables of a run without a cluster, with the table `checks` beside them."""
    path = folder / "plain.sqlite"
    options = ["--units", "us", "--limit", "0.9", *names]
    subprocess.run([lumerin, "export", "--table", TABLES, "--format", "sqlite", "-o", path, *options],
                   capture_output=True, check=False)
    checks = subprocess.run([lumerin, "check", "--format", "json", *options], capture_output=True, text=True,
                            check=False)
    with sqlite3.connect(path) as database:
        database.execute('CREATE TABLE checks (project, status, passes, dc, "limit", error)')
        for record in map(json.loads, checks.stdout.splitlines()):
            database.execute("INSERT INTO checks VALUES (?, ?, ?, ?, ?, ?)", [record.get(key) for key in (
                "project", "status", "passes", "dc", "limit", "error")])
    return path


def kill_the_worker(folder: Path, run: subprocess.Popen) -> None:
    """Kills the worker of the first shard, whose child must end with it."""
    deadline = time.monotonic() + SECONDS_TO_START
    while not (folder / "victim").exists():
        assert run.poll() is None and time.monotonic() < deadline, "no worker has begun"
        time.sleep(0.05)
    worker, child = map(int, (folder / "victim").read_text(encoding="ascii").split())
    os.kill(child, 0)
    os.kill(worker, signal.SIGKILL)
    deadline = time.monotonic() + 10
    while is_running(child):
        assert time.monotonic() < deadline, "the child goes on without its worker"
        time.sleep(0.02)


def is_running(process: int) -> bool:
    try:
        state = Path(f"/proc/{process}/stat").read_text(encoding="ascii", errors="replace").rsplit(")", 1)[1].split()[0]
    except OSError:
        return False
    return state != "Z"


def rows_of(path: Path, table: str, columns: str = "*") -> list[tuple]:
    with sqlite3.connect(path) as database:
        return sorted(database.execute(f'SELECT {columns} FROM "{table}"').fetchall(), key=repr)


def compare(plain: Path, fleet: Path) -> int:
    """Every row of every table; returns how many rows there are."""
    count = 0
    for table in (*TABLES.split(","), "versions", "tables", "imports", "units"):
        expected, got = rows_of(plain, table), rows_of(fleet, table)
        assert expected, f"{table}: the plain run has no rows"
        assert got == expected, f"{table}: {len(got)} rows, expected {len(expected)}"
        count += len(got)
    columns = 'project, status, passes, dc, "limit", error'
    lost = {"kills-its-worker": "each worker that took it has died",
            "kills-itself": "check ended with status -9: no message"}
    expected = [row if (text := lost.get(Path(row[0]).name)) is None else (row[0], 3, None, None, None, text)
                for row in rows_of(plain, "checks", columns)]
    got = rows_of(fleet, "checks", columns)
    assert got == sorted(expected, key=repr), f"checks: {set(got) ^ set(expected)}"
    return count + len(got)


def main() -> None:
    lumerin, make_sample, examples = (os.path.abspath(word) for word in sys.argv[1:4])
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        projects = folder / "projects"
        names = make_projects(make_sample, projects)
        between = folder / "lumerin"
        between.write_text(BETWEEN.format(folder=folder, lumerin=lumerin), encoding="ascii")
        between.chmod(0o755)
        started = time.monotonic()
        result = folder / "fleet.sqlite"
        with subprocess.Popen(["/usr/bin/python3", os.path.join(examples, "fleet", "fleet.py"), "--lumerin", between,
                               "--workers", "2", "--shard-projects", "4", "--attempts", "2", "--limit", "0.9",
                               "-o", result, projects], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              text=True, cwd=folder) as run:
            kill_the_worker(folder, run)
            out, err = run.communicate(timeout=300)
        assert run.returncode == 3, f"status {run.returncode}: {out}{err[-3000:]}"
        seconds = time.monotonic() - started
        count = compare(plain_run(lumerin, names, folder), result)
        assert out.startswith(f"{len(names)} projects: "), out
        assert not list(folder.glob("*.partial")) and not (folder / "fleet.sqlite.shards").exists()
        print(f"{out.strip()}; {count} rows as in the plain run, a worker killed, {seconds:.1f} s")


main()
