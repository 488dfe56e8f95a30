# SPDX-License-Identifier: MIT
"""Projects and the shards they are done in."""
from __future__ import annotations

import hashlib
import os
from collections.abc import Iterable, Iterator
from dataclasses import dataclass
from functools import lru_cache

INPUT_EXTENSION = ".in"


@dataclass(frozen=True)
class Project:
    """A project as `lumerin` takes it, without its extension, with the bytes and the stamp of its files."""
    name: str
    size: int
    stamp: str


@dataclass(frozen=True)
class Shard:
    """Projects that one task does. The name stands for their files: another length or time gives another name."""
    projects: tuple[Project, ...]
    attempt: int = 1

    @property
    def names(self) -> list[str]:
        return [project.name for project in self.projects]

    @property
    def size(self) -> int:
        return sum(project.size for project in self.projects)

    def identity(self, options: str) -> str:
        """A file name for the results of these projects with these options."""
        text = "\n".join([options] + [f"{project.name} {project.stamp}" for project in self.projects])
        return hashlib.sha256(text.encode("utf-8", "surrogateescape")).hexdigest()[:24]


def project_name(path: str) -> str:
    """The path without `.in`, in letters of either case."""
    return path[:-len(INPUT_EXTENSION)] if path.lower().endswith(INPUT_EXTENSION) else path


def below(folder: str) -> Iterator[str]:
    """The projects in a folder and the folders below it. A folder that cannot be listed ends the search aloud:
    bridges that nobody looked at must not look like bridges that pass."""
    def refuse(fault: OSError) -> None:
        raise fault

    for path, folders, files in os.walk(folder, onerror=refuse):
        folders.sort()
        for name in sorted(files):
            if name.lower().endswith(INPUT_EXTENSION):
                yield os.path.join(path, name)


@lru_cache(maxsize=64)
def _listing(folder: str) -> dict[str, list[str]]:
    """The files of a folder by what comes before the first point of their names, in small letters."""
    names: dict[str, list[str]] = {}
    try:
        for name in sorted(os.listdir(folder or ".")):
            names.setdefault(name.split(".", 1)[0].lower(), []).append(name)
    except OSError:
        pass  # lumerin says what is wrong with the project
    return names


def look_at(path: str) -> Project:
    """A project with the size and the stamp of all files whose names begin with its own."""
    name = project_name(path)
    folder, base = os.path.split(name)
    start = base.lower() + "."
    size, stamps = 0, []
    for file in _listing(folder).get(base.split(".", 1)[0].lower(), []):
        if not file.lower().startswith(start):
            continue
        try:
            found = os.stat(os.path.join(folder, file))
        except OSError:
            continue
        size += found.st_size
        stamps.append(f"{file} {found.st_size} {found.st_mtime_ns}")
    return Project(name, size, "; ".join(stamps))


def find_projects(paths: Iterable[str]) -> list[Project]:
    """The projects of paths and folders, each once, in the order given."""
    found: dict[str, Project] = {}
    for path in paths:
        for one in below(path) if os.path.isdir(path) else [path]:
            found.setdefault(project_name(one), look_at(one))
    return list(found.values())


def make_shards(projects: Iterable[Project], most_bytes: int, most_projects: int) -> list[Shard]:
    """Shards of about the same size, the largest projects first, so that the last tasks are short ones."""
    shards: list[Shard] = []
    held: list[Project] = []
    size = 0
    for project in sorted(projects, key=lambda one: (-one.size, one.name)):
        if held and (size + project.size > most_bytes or len(held) == most_projects):
            shards.append(Shard(tuple(held)))
            held, size = [], 0
        held.append(project)
        size += project.size
    if held:
        shards.append(Shard(tuple(held)))
    return shards


def after_failure(shard: Shard, attempts: int) -> list[Shard]:
    """What is tried next. Several projects are tried one by one, so that the one at fault is found. Empty: the one
    project has had its attempts."""
    if len(shard.projects) > 1:
        return [Shard((project,)) for project in shard.projects]
    return [Shard(shard.projects, shard.attempt + 1)] if shard.attempt < attempts else []
