#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""check_sql.py LUMERIN MAKE_SAMPLE EXAMPLES: the questions of examples/sql over a small set whose answers are worked out
by hand, in the tables that `lumerin export` makes; and over exported projects, where each must find its columns.
"""
from __future__ import annotations

import sqlite3
import subprocess
import sys
import tempfile
from pathlib import Path

TABLES = "projects,verdict,findings,pile_axial"
KIP = 4.4482216152605
FORCES = ("tension", "compression")
HERE = Path(__file__).resolve().parent.parent / "sql"


def export(lumerin: str, make_sample: str, folder: Path, units: str) -> sqlite3.Connection:
    """A database with the tables of two exported projects."""
    for preset in ("bent", "pier"):
        subprocess.run([make_sample, folder, "--preset", preset], check=True, stdout=subprocess.DEVNULL)
    path = folder / f"{units}.sqlite"
    subprocess.run([lumerin, "export", folder / "bent", folder / "pier", "--table", TABLES, "--format", "sqlite",
                    "--units", units, "-o", path], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return sqlite3.connect(path)


def put_known_set(database: sqlite3.Connection, kip: float) -> None:
    """The known set in place of the exported rows; a kip in the unit of the database."""
    for table in TABLES.split(","):
        database.execute(f"DELETE FROM {table}")
    database.executescript((HERE / "known-set.sql").read_text(encoding="utf-8"))
    for column in FORCES:
        database.execute(f"UPDATE pile_axial SET {column} = {column} * ?", (kip,))


def expected_rows() -> dict[str, list[str]]:
    """The lines of each question."""
    questions: dict[str, list[str]] = {}
    rows: list[str] = []
    for line in (HERE / "expected.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("== "):
            rows = questions.setdefault(line[3:], [])
        elif not line.startswith("#"):
            rows.append(line)
    return questions


def answer(database: sqlite3.Connection, question: Path) -> list[str]:
    return ["|".join(map(str, row)) for row in database.execute(question.read_text(encoding="utf-8"))]


def main() -> None:
    lumerin, make_sample = sys.argv[1:3]
    questions = sorted(Path(sys.argv[3], "sql").glob("*.sql"))
    expected = expected_rows()
    assert {question.stem for question in questions} == set(expected), "each question has its expected rows"
    with tempfile.TemporaryDirectory() as name:
        database = export(lumerin, make_sample, Path(name), "us")
        for question in questions:
            text = question.read_text(encoding="utf-8")
            assert text.startswith("-- "), f"{question.name}: no comment says what it answers"
            database.execute(text).fetchall()  # the columns are there
        put_known_set(database, 1.0)
        for question in questions:
            got = answer(database, question)
            assert got == expected[question.stem], f"{question.name}: {got}, expected {expected[question.stem]}"
        # The same piles in kilonewtons: the threshold is in kips.
        database = export(lumerin, make_sample, Path(name), "si")
        put_known_set(database, KIP)
        tension = [row.split("|") for row in answer(database, next(q for q in questions if q.stem == "piles-in-tension"))]
        assert [[*row[:3], round(float(row[3]), 9), row[4]] for row in tension] == [
            ["b", "1", "3", 90.0, "EXTREME-I"], ["c", "1", "2", 50.5, "LFD-GROUP-V"]], tension
    print(f"{len(questions)} questions have the rows that were worked out")


main()
