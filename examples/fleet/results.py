# SPDX-License-Identifier: MIT
"""The one writer of a run: brings the results of all shards into one SQLite file."""
from __future__ import annotations

import json
import os
import sqlite3
from collections import Counter
from collections.abc import Iterator
from pathlib import Path
from urllib.parse import quote

from shard_run import CHECKS, ROWS

NOT_LOADED = 3
WORDS = {0: "pass", 1: "fail", 2: "wrong usage", 3: "not loaded", 4: "not sound"}
SHARED = ("versions", "tables", "imports", "units")  # the same rows in the database of each shard

CREATE_CHECKS = """
CREATE TABLE checks (
    project TEXT PRIMARY KEY,   -- as in the other tables
    status INTEGER NOT NULL,    -- exit status of lumerin check
    passes INTEGER,             -- NULL: there is no verdict
    dc REAL,                    -- greatest ratio
    "limit" REAL,
    error TEXT,                 -- why there is no verdict
    milliseconds INTEGER
)"""


def quoted(name: str) -> str:
    """A name as SQL takes it."""
    return '"' + name.replace('"', '""') + '"'


class Results:
    """A database that is written under another name and renamed when it is whole. One object writes it; shards are
    added in the order in which they are done."""

    def __init__(self, path: str) -> None:
        self.path = path
        self.partial = path + ".partial"
        Path(self.partial).unlink(missing_ok=True)
        self.database = sqlite3.connect(f"file:{quote(os.path.abspath(self.partial))}", uri=True,
                                        isolation_level=None)
        # What is left of a run that was ended is thrown away, so nothing has to survive a crash.
        self.database.executescript("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF;" + CREATE_CHECKS)
        self.indices: dict[str, str] = {}
        self.counts: Counter[int] = Counter()

    def add(self, folder: str) -> None:
        """The results of a shard, all of them or none."""
        rows = Path(folder) / ROWS
        if rows.exists():
            uri = f"file:{quote(os.path.abspath(rows))}?immutable=1"
            self.database.execute("ATTACH ? AS shard", (uri,))
        self.database.execute("BEGIN")
        try:
            if rows.exists():
                self._copy_tables()
            with open(Path(folder) / CHECKS, encoding="utf-8") as lines:
                for line in lines:
                    self._add_check(json.loads(line))
            self.database.execute("COMMIT")
        except BaseException:
            self.database.execute("ROLLBACK")
            raise
        finally:
            if rows.exists():
                self.database.execute("DETACH shard")

    def add_error(self, project: str, text: str) -> None:
        """The one row of a project that failed again and again."""
        self._add_check({"project": project, "status": NOT_LOADED, "error": text})

    def close(self) -> None:
        """Makes the indices, which check the keys, and puts the file in its place."""
        for sql in self.indices.values():
            self.database.execute(sql)
        self.database.close()
        os.replace(self.partial, self.path)

    def discard(self) -> None:
        """Leaves an earlier file of that name as it is."""
        self.database.close()
        Path(self.partial).unlink(missing_ok=True)

    def summary(self) -> str:
        """For instance "12 projects: 8 pass, 3 fail, 1 not loaded"."""
        words = ", ".join(f"{count} {WORDS[status]}" for status, count in sorted(self.counts.items()))
        return f"{self.counts.total()} projects: {words}"

    def _add_check(self, record: dict) -> None:
        self.database.execute("INSERT INTO checks VALUES (?, ?, ?, ?, ?, ?, ?)",
                              [record.get(key) for key in ("project", "status", "passes", "dc", "limit", "error",
                                                           "milliseconds")])
        self.counts[record["status"]] += 1

    def _entries(self, kind: str) -> Iterator[tuple[str, str]]:
        yield from self.database.execute(
            "SELECT name, sql FROM shard.sqlite_master WHERE type = ? AND sql IS NOT NULL", (kind,)).fetchall()

    def _copy_tables(self) -> None:
        known = {name for name, in self.database.execute("SELECT name FROM main.sqlite_master")}
        if "versions" not in known:
            for pragma in ("application_id", "user_version"):
                value, = self.database.execute(f"PRAGMA shard.{pragma}").fetchone()
                self.database.execute(f"PRAGMA main.{pragma} = {value}")
        for name, sql in self._entries("table"):
            if name not in known:
                self.database.execute(sql)
            verb = "INSERT OR REPLACE" if name in SHARED else "INSERT"
            self.database.execute(f"{verb} INTO main.{quoted(name)} SELECT * FROM shard.{quoted(name)}")
        self.indices.update(self._entries("index"))
