#!/usr/bin/env python3
"""Holds `lumerin compare` to a plain comparison of the exports of both runs.

usage: check_compare.py LUMERIN MAKE_SAMPLE [PAIRS [FIRST]]

PAIRS (30) random pairs of projects from the number FIRST (0) on: another seed, other cases or piles, cases with titles in
another order or with one title, single words of the force files, some of them no numbers. For each pair

- values over the tolerances, governing cases and places, new rows and rows that are gone, cases that are new or gone,
  verdicts and the exit status are worked out from `lumerin export` of both runs, by exact decimal arithmetic;
- where one word of a force file was changed, the rows of element_dc that differ are worked out by NumPy from the bytes of
  both force files.

The pair of the user guide has two governing results that moved: `diff` of its full reports prints hundreds of lines,
`compare` a page. A project against itself is the same.
"""
import collections
import csv
import decimal
import difflib
import pathlib
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile

import numpy as np

import check_records
import exported

decimal.getcontext().prec = 60
D = decimal.Decimal
FORCES = {"fax": "force", "f22": "force", "f33": "force", "m22": "moment", "m33": "moment", "torque": "moment", "dc": "dc"}
ABSOLUTE = {"force": D("0.5"), "moment": D("1.0"), "dc": D("0.01"), "length": D("0.001"), "count": D(0)}
RELATIVE = {"length": D("0.0001"), "count": D(0)}
ELEMENT = ["member", "element", "end"]
RECORD = 4 * 17  # bytes of a force record
# What a row is; what governs: (case, values); where.
TABLES = {
    "verdict": (["substructure", "family"],
                [("case", {"dc": "dc", "limit": "dc", "ends": "count", "ends_over": "count"})], ["place"]),
    "pile_axial": (["substructure", "pile", "class"],
                   [(side + "_case", {side: "force", side + "_dc": "dc"}) for side in ("tension", "compression")], []),
    "section_dc": (["substructure", "family", "section", "class"], [("case", FORCES)], ELEMENT),
    "section_forces": (["substructure", "family", "section", "class", "extreme"], [("case", FORCES)], ELEMENT),
    "cap_shear": (["substructure", "place", "side", "class", "extreme"],
                  [("case", {**FORCES, "x": "length"})], ["element", "end"]),
    "cap_moment": (["substructure", "place", "side", "class", "extreme"],
                   [("case", {**FORCES, "x": "length"})], ["element", "end"]),
    # Its case columns are those of one value each; `x` goes with the first of them.
    "cap_envelope": (["substructure", "element", "end", "class"],
                     [("max_shear_case", {"max_shear": "force", "x": "length"}), ("min_shear_case", {"min_shear": "force"}),
                      ("max_moment_case", {"max_moment": "moment"}), ("min_moment_case", {"min_moment": "moment"})], []),
    "pile_heads": (["substructure", "pile", "CASE"], [(None, FORCES)], ["element"]),
}


class Run:
    """A project with its tables as texts."""

    def __init__(self, lumerin, base, units):
        out = base.parent / (base.name + "-export")
        out.mkdir()
        done = subprocess.run([lumerin, "export", base, "--table", "cases,projects," + ",".join(TABLES), "--units", units,
                               "-o", str(out) + "/"], capture_output=True, check=False)
        assert done.returncode in (0, 1, 4), done.stderr.decode()
        self.tables = {}
        for name in ["cases", "projects", *TABLES]:
            with open(out / f"{base.name}-{name}.csv", newline="", encoding="utf-8") as file:
                self.tables[name] = list(csv.DictReader(file))
        self.sound = done.returncode != 4
        self.cases = self.tables["cases"]
        seen = collections.Counter()
        self.ids = {"": None}
        self.words = {}
        titled = any(row["title"] for row in self.cases)
        for row in self.cases:
            words = (row["title"] if titled else "") or row["limit_state"]
            self.ids[row["case"]] = (words, seen[words])
            seen[words] += 1

    def rows(self, table):
        """Rows by what they are, and of those that are the same by all words in order."""
        identity, _, _ = TABLES[table]
        found, seen = {}, collections.Counter()
        for row in self.tables[table]:
            key = tuple(str(self.ids[row["case"]]) if name == "CASE" else row[name] for name in identity)
            found[key, seen[key]] = row
            seen[key] += 1
        return found


def exceeds(old, new, kind):
    if old == "" or new == "":
        return old != new
    a, b = D(old), D(new)
    if not (a.is_finite() and b.is_finite()):
        return str(a) != str(b)
    allowed = max(RELATIVE.get(kind, D("0.01")) * max(abs(a), abs(b)), ABSOLUTE[kind])
    return abs(a - b) > allowed


def number(text):
    return "" if text == "" else repr(float(text))


def plain(old, new):
    """What differs: multisets of lines as the CSV of `compare` has them."""
    values, governing, rows = collections.Counter(), collections.Counter(), collections.Counter()
    for table, (_, results, places) in TABLES.items():
        before, after = old.rows(table), new.rows(table)
        for key in before.keys() - after.keys():
            rows[table, before[key]["substructure"], "gone"] += 1
        for key in after.keys() - before.keys():
            rows[table, after[key]["substructure"], "new"] += 1
        for key in before.keys() & after.keys():
            a, b = before[key], after[key]
            for case, kinds in results:
                cases = (a[case or "case"], b[case or "case"])
                head = (table, b["substructure"], *cases)
                over = [name for name, kind in kinds.items() if exceeds(a[name], b[name], kind)]
                for name in over:
                    values[(*head, name, number(a[name]), number(b[name]))] += 1
                other = case is not None and old.ids[cases[0]] != new.ids[cases[1]]
                if not over and (other or any(a[name] != b[name] for name in places)):
                    governing[head] += 1
    return values, governing, rows


def told(lines):
    """The same of the output."""
    values, governing, rows = collections.Counter(), collections.Counter(), collections.Counter()
    for line in lines:
        head = (line["table"], line["substructure"], line["old_case"], line["new_case"])
        if line["kind"] == "value":
            values[(*head, line["column"], number(line["old"]), number(line["new"]))] += 1
        elif line["kind"] == "governing":
            governing[head] += 1
        elif line["kind"] == "row":
            rows[line["table"], line["substructure"], line["change"]] += 1
    return values, governing, rows


def case_changes(old, new):
    before, after = set(old.ids.values()), set(new.ids.values())
    return len(before - after), len(after - before)


def check_pair(lumerin, old_base, new_base):
    units = "si" if old_base.name.startswith(("group", "history")) else "us"
    old, new = Run(lumerin, old_base, units), Run(lumerin, new_base, units)
    done = subprocess.run([lumerin, "compare", old_base, new_base, "--format", "csv", "--table", ",".join(TABLES)],
                          capture_output=True, check=False)
    lines = list(csv.DictReader(done.stdout.decode().splitlines()))
    for name, expected, got in zip(("values", "governing", "rows"), plain(old, new), told(lines)):
        assert expected == got, (old_base, new_base, name, list((expected - got).items())[:3],
                                 list((got - expected).items())[:3])
    changes = collections.Counter(line["change"] for line in lines if line["kind"] == "structure"
                                  and line["table"] == "case")
    assert (changes["gone"], changes["new"]) == case_changes(old, new), (old_base, new_base, changes)
    verdicts = [(line["old_text"], line["new_text"]) for line in lines if line["kind"] == "verdict" and not line["substructure"]]
    passes = tuple({"true": "PASS", "false": "FAIL"}[run.tables["projects"][0]["passes"]] for run in (old, new))
    assert verdicts == ([passes] if passes[0] != passes[1] else []), (old_base, new_base, verdicts, passes)
    differs = any(line["kind"] != "governing" for line in lines)
    expected = 4 if not (old.sound and new.sound) else int(differs)
    assert done.returncode == expected, (old_base, new_base, done.returncode, expected)
    return len(lines)


def check_one_word(lumerin, old_base, new_base, suffix, substructure, counts):
    """The rows of element_dc whose values differ, from the bytes."""
    exports = [subprocess.run([lumerin, "export", base, "--table", "element_dc"], capture_output=True, check=False).stdout
               for base in (old_base, new_base)]
    rows = [row for row in csv.DictReader(exports[0].decode().splitlines()) if int(row["substructure"]) == substructure]
    cases = subprocess.run([lumerin, "export", old_base, "--table", "cases"], capture_output=True, check=True).stdout
    classes = [check_records.class_of(row["limit_state"]) for row in csv.DictReader(cases.decode().splitlines())]
    old, new = (check_records.greatest_ratios(base.with_name(base.name + ".vmd" + suffix), classes, rows)
                for base in (old_base, new_base))
    expected = collections.Counter()
    for key, (ratio, case, forces) in old.items():
        now, now_case, now_forces = new[key]
        pairs = [("dc", ratio, now), *zip(FORCES, forces, now_forces)]
        for name, a, b in pairs:
            texts = [np.format_float_positional(value, trim="-") for value in (a, b)]
            if exceeds(*texts, FORCES[name]):
                expected[name, *map(number, texts), str(case), str(now_case)] += 1
    done = subprocess.run([lumerin, "compare", old_base, new_base, "--format", "csv", "--table", "element_dc"],
                          capture_output=True, check=False)
    got = collections.Counter((line["column"], number(line["old"]), number(line["new"]), line["old_case"], line["new_case"])
                              for line in csv.DictReader(done.stdout.decode().splitlines()) if line["kind"] == "value")
    assert expected == got, (old_base, new_base, expected - got, got - expected)
    counts["rows of one changed word"] += sum(got.values())


class Pairs:
    """Makes pairs. The number of a pair gives the same pair on every machine."""

    def __init__(self, lumerin, make_sample, folder):
        self.lumerin, self.make_sample, self.folder = lumerin, make_sample, folder

    def sample(self, side, preset, *words):
        folder = self.folder / side
        subprocess.run([self.make_sample, folder, "--preset", preset, *map(str, words)], check=True, capture_output=True)
        return folder / preset

    def copy(self, old):
        folder = self.folder / "new"
        folder.mkdir()
        for file in old.parent.glob(old.name + ".*"):
            shutil.copy(file, folder)
        return folder / old.name

    @staticmethod
    def titles(base, change):
        """Gives the combinations other titles."""
        path = base.with_suffix(".CMB")
        if not path.exists():
            return
        lines = path.read_bytes().split(b"\r\n")
        places = [i + 1 for i, line in enumerate(lines) if line.startswith(b"[Comb.")]
        for place, title in zip(places, change([lines[place] for place in places])):
            lines[place] = title
        path.write_bytes(b"\r\n".join(lines))

    @staticmethod
    def change_words(base, random_, count, wild):
        path = random_.choice(sorted(base.parent.glob(base.name + ".vmd*")))
        words = bytearray(path.read_bytes())
        for _ in range(count):
            at = 4 * random_.randrange(len(words) // 4)
            if count == 1:  # a ratio, so that the record governs
                at = at // RECORD * RECORD + 4 * random_.choice([11, 12])
            value = struct.unpack_from("<f", words, at)[0]
            if count == 1:
                value = 2 * value + 0.5
            elif wild and random_.random() < 0.3:
                value = random_.choice([float("nan"), float("inf"), float("-inf")])
            else:
                value = value * random_.choice([1.005, 1.01, 1.02, 1.5, -1.0, 3.0]) + random_.choice([0, 0.5, 0.01, 20])
            struct.pack_into("<f", words, at, value)
        path.write_bytes(words)
        return path.name[len(base.name) + len(".vmd"):]

    def check(self, pair, counts):
        random_ = random.Random(pair)
        preset = random_.choice(exported.PRESETS)
        cases = random_.randint(9, 26)
        old = self.sample("old", preset, "--seed", random_.randint(1, 9), "--cases", cases)
        kind = random_.choice(["one word", "words", "wild", "seed", "cases", "piles", "order", "one title"])
        counts[kind] += 1
        if kind == "seed":
            new = self.sample("new", preset, "--seed", random_.randint(1, 9), "--cases", cases)
        elif kind == "cases":
            new = self.sample("new", preset, "--cases", cases + random_.randint(-4, 6))
        elif kind == "piles":
            new = self.sample("new", preset, "--cases", cases, "--piles",
                              f"{random_.randint(2, 3)}x{random_.randint(3, 6)}")
        else:
            new = self.copy(old)
            suffix = self.change_words(new, random_, 1 if kind == "one word" else 60, kind == "wild")
            if kind == "one word":
                check_one_word(self.lumerin, old, new, suffix, int(suffix or 1), counts)
            if kind == "order":
                self.titles(new, lambda titles: random_.sample(titles, len(titles)))
            if kind == "one title":
                for base in (old, new):
                    self.titles(base, lambda titles: [random_.choice([b"same", title]) for title in titles])
        counts["lines"] += check_pair(self.lumerin, old, new)


def check_guide(lumerin, make_sample, folder):
    script = pathlib.Path(__file__).resolve().parents[2] / "samples" / "changed-pair"
    subprocess.run([sys.executable, script, make_sample, folder], check=True, capture_output=True)
    old, new = folder / "before" / "pier", folder / "after" / "pier"
    texts = []
    for base in (old, new):
        words = [lumerin, "report", base, "--table", "full", "--format", "text", "--clock", exported.CLOCK, "-o", "-"]
        texts.append(subprocess.run(words, capture_output=True, check=True).stdout.decode("cp1252").splitlines())
    moved = [line for line in difflib.ndiff(*texts) if line[0] in "+-"]
    done = subprocess.run([lumerin, "compare", old, new], capture_output=True, check=False)
    page = done.stdout.decode().splitlines()
    assert done.returncode == 1 and len(moved) > 300 and len(page) < 40, (done.returncode, len(moved), len(page))
    results = [line.split()[1] for line in page if re.match(r" +1  [a-z_]+  ", line)]
    # The compression of pile 5 and its ratio; the moment beside column 1, where it is the extreme and where it acts.
    assert sorted(results) == ["cap_moment"] * 2 + ["cap_shear"] * 2 + ["pile_axial", "section_dc", "section_forces",
                                                                        "verdict", "verdict"], results
    same = subprocess.run([lumerin, "compare", old, old, "--table", "all"], capture_output=True, check=False)
    assert same.returncode == 0 and b"  SAME  0 results" in same.stdout, same.stdout
    return len(moved), len(page)


def main():
    lumerin, make_sample = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    pairs, first = (int(word) for word in [*sys.argv[3:], *["30", "0"][len(sys.argv) - 3:]])
    counts = collections.Counter()
    with tempfile.TemporaryDirectory() as folder:
        moved, page = check_guide(lumerin, make_sample, pathlib.Path(folder))
    for pair in range(first, first + pairs):
        with tempfile.TemporaryDirectory() as folder:
            try:
                Pairs(lumerin, make_sample, pathlib.Path(folder)).check(pair, counts)
            except AssertionError:
                print(f"pair {pair} differs from the plain comparison", file=sys.stderr)
                raise
    assert counts["lines"] > 10 * pairs, counts
    print(f"the pair of the guide: {moved} lines of the reports, {page} lines of the comparison")
    print(f"{pairs} pairs: " + ", ".join(f"{name}: {count}" for name, count in sorted(counts.items())))


if __name__ == "__main__":
    main()
