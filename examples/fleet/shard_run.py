# SPDX-License-Identifier: MIT
"""What runs on a worker: `lumerin check` and `lumerin export` over the projects of one shard.

The standard library alone, because this file is sent to the workers.
"""
from __future__ import annotations

import json
import os
import shutil
import socket
import subprocess
import tempfile
import threading
from dataclasses import dataclass
from pathlib import Path

CHECKS = "checks.jsonl"
ROWS = "rows.sqlite"
ANSWERS = range(5)  # the exit statuses that are answers about projects


class ShardError(RuntimeError):
    """The shard has no whole result; the text says why."""


@dataclass(frozen=True)
class Settings:
    """The same for all shards of a run."""
    program: str  # lumerin, as the workers find it
    work: str  # a folder that workers and writer see
    tables: str
    limit: float
    seconds: float  # that one project may take


def commands(settings: Settings, folder: Path) -> list[list[str]]:
    """The two runs of a shard, which take the list of projects on standard input."""
    shared = ["--limit", repr(settings.limit), "--units", "us", "--files-from", "-"]
    return [[settings.program, "check", "--format", "json", "-o", str(folder / CHECKS), *shared],
            [settings.program, "export", "--table", settings.tables, "--format", "sqlite",
             "-o", str(folder / ROWS), *shared]]


def run_child(command: list[str], names: list[str], seconds: float) -> None:
    """Runs a program that ends with this process: also SIGKILL of the worker leaves no child that goes on.

    setpriv asks the kernel for that and becomes the program; nothing of Python runs between fork and exec, which
    would not be safe beside the threads of a worker.
    """
    try:
        done = subprocess.run(["setpriv", "--pdeathsig", "KILL", *command], input="\n".join(names) + "\n",
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True,
                              errors="surrogateescape", timeout=seconds, check=False)
    except subprocess.TimeoutExpired as fault:
        raise ShardError(f"{command[1]} took longer than {seconds:g} s") from fault
    if done.returncode not in ANSWERS:
        last = done.stderr.strip().splitlines()[-1:] or ["no message"]
        raise ShardError(f"{command[1]} ended with status {done.returncode}: {last[0]}")


def require_all(checks: Path, names: list[str]) -> None:
    """A result without a record for each project is none."""
    with open(checks, encoding="utf-8") as lines:
        found = {json.loads(line)["project"] for line in lines}
    missing = len(set(names) - found)
    if missing:
        raise ShardError(f"check gave no answer about {missing} of {len(names)} projects")


def store(source: Path, target: Path) -> None:
    """Brings a folder of results to the shared storage under this attempt's name, and renames it when it is whole.
    Where another attempt was first, that one's result is as good."""
    attempt = target.with_name(f"{target.name}.attempt-{socket.gethostname()}-{os.getpid()}-{threading.get_ident()}")
    shutil.rmtree(attempt, ignore_errors=True)
    shutil.copytree(source, attempt)
    try:
        os.rename(attempt, target)
    except OSError:
        shutil.rmtree(attempt, ignore_errors=True)
        if not target.is_dir():
            raise


def run_shard(settings: Settings, identity: str, names: list[str]) -> str:
    """Does a shard; returns the folder of its results, which is named for its projects and their files."""
    target = Path(settings.work) / identity
    if target.is_dir():
        return str(target)  # of an earlier attempt, or of a run that was ended
    # SQLite writes on a local disk: its locks are not to be trusted on all shared storage.
    with tempfile.TemporaryDirectory(prefix="lumerin-shard-") as local:
        for command in commands(settings, Path(local)):
            run_child(command, names, settings.seconds * len(names))
        require_all(Path(local) / CHECKS, names)
        store(Path(local), target)
    return str(target)
