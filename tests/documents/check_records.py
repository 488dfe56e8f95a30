#!/usr/bin/env python3
"""Compares the rows of `lumerin export` with the printed tables, and with the force files themselves.

usage: check_records.py LUMERIN MAKE_SAMPLE

- Each number of section_dc, section_forces, pile_axial, cap_shear and cap_moment of the six sample projects is,
  rounded, the number at the same place of the text form; those of pile_heads are the numbers of the worksheet.
- cap_envelope has the values of cap_shear and cap_moment at their design places that are ends of elements.
- element_dc is worked out anew by NumPy from the bytes of the force files.
"""
import collections
import re
import sys
import tempfile

import numpy as np

import exported

ABSENT = "***"
FORCES = ["fax", "f22", "f33", "m22", "m33", "torque"]
WORDS = 17  # of a force record
# The words of the forces at I and J and their signs; the torque at I is turned in piles alone.
WORDS_OF = {0: [(13, 1), (1, -1), (2, -1), (6, 1), (5, 1), (15, 1)],
            1: [(14, 1), (3, 1), (4, 1), (8, -1), (7, -1), (16, -1)]}
LIMIT_CLASSES = {"STRENGTH": "strength", "SERVICE": "service", "EXTREME": "extreme", "FATIGUE": "fatigue",
                 "LFD": "load factor design", "SLD": "service load design"}


def fixed(text, decimals=2):
    """A value as a printed table has it. Floats are printed from their 32 bits, other values from 64."""
    if text == "":
        return ABSENT
    single = np.float32(text)
    is_single = float(np.format_float_scientific(single)) == float(text)
    return f"{float(single) if is_single else float(text):.{decimals}f}"


def state(row, prefix=""):
    return [row[prefix + "limit_state"]] if row[prefix + "limit_state"] else []


# ---- the rows as lines of words

def axial_line(row, has_states):
    words = [row["substructure"], row["pile"]]
    for side in ("tension", "compression"):
        if row[side] == "":
            words += [ABSENT] + [ABSENT] * has_states + ["none", ABSENT]
        else:
            words += [row[side + "_case"], *state(row, side + "_"), fixed(row[side]), fixed(row[side + "_dc"])]
    return words


def section_line(row, _):
    numbers = [row[name] for name in ("section", "member", "element", "node", "case")]
    extreme = row.get("extreme", "").split()
    return [*numbers, *state(row), row["end"], *extreme, *(fixed(row[name]) for name in FORCES), fixed(row["dc"])]


def cap_line(row, has_states, forces=FORCES):
    place = row["place"].split()
    if row["status"] == "missing":
        return place + ["miss"] + [ABSENT] * (5 + has_states + len(forces))
    words = place + [row["element"], row["section"], row["nodes"]]
    if row["status"] == "none":
        return words + [ABSENT] * (1 + has_states) + ["none"] + [ABSENT] * (len(forces) + 1)
    return words + [row["case"], *state(row), row["end"], *(fixed(row[name]) for name in forces), fixed(row["dc"])]


def moment_line(row, has_states):
    return cap_line(row, has_states, ["fax", "m22", "m33"])


TABLES = [("axial", "pile_axial", None, axial_line), ("pile-dc", "section_dc", "pile", section_line),
          ("column-dc", "section_dc", "column", section_line), ("pile-forces", "section_forces", "pile", section_line),
          ("column-forces", "section_forces", "column", section_line),
          ("extra-members", "section_forces", "extra_member", section_line),
          ("cap-shear", "cap_shear", None, cap_line), ("cap-moment", "cap_moment", None, moment_line)]


def printed_lines(text):
    """The data lines of a text form with what is said above them: substructure, class, extreme."""
    above = {"substructure": None, "class": None, "extreme": None}
    for line in text.split("\n"):
        if match := re.search(r"Substructure\s+(\d+)", line):
            above["substructure"] = match.group(1)
        if match := re.match(r"(Maximum|Minimum) \([+-]\)", line):
            above["extreme"] = {"Maximum": "max", "Minimum": "min"}[match.group(1)]
        if match := re.match(r" (?:MAXIMUM )?(\w[\w ]*?)(?: CASE)? DATA$", line):
            above["class"] = match.group(1).lower()
        words = line.split()
        # A section without a result has no numbers in the printed tables, or no line at all.
        if words[1:3] in (["-1", "-1"], [ABSENT, ABSENT]):
            continue
        if len(words) >= 8 and re.fullmatch(r"\*\*\*|-?\d+\.\d\d", words[-1]) and "=" not in words:
            yield dict(above), words


def compare(samples, project, printed, exported_rows, line_of, has_states):
    path = samples.call("report", project + ".in", "--table", printed).decode().strip()
    text = (samples.folder / path).read_bytes().decode("cp1252").replace("\r\n", "\n")
    lines = list(printed_lines(text))
    assert len(lines) == len(exported_rows), (project, printed, len(lines), len(exported_rows))
    for (above, words), row in zip(lines, exported_rows):
        assert line_of(row, has_states) == words, (project, printed, words, line_of(row, has_states))
        assert above["substructure"] in (None, row["substructure"]), (project, printed, above, row)
        assert not row["class"] or above["class"] == row["class"], (project, printed, above, row)
        if printed.startswith("cap"):
            assert above["extreme"] == row["extreme"], (project, printed, above, row)
    return len(lines)


def check_printed(samples, counts):
    for project in exported.PRESETS:
        has_states = any(row["limit_state"] for row in samples.rows(project, "cases"))
        for printed, table, family, line_of in TABLES:
            rows = samples.every_row(project, table)
            rows = [row for row in rows if family in (None, row.get("family"))]
            rows = [row for row in rows if not table.startswith("section") or row["case"]]
            # Of the printed tables that of the cap's moments alone shows fatigue.
            rows = [row for row in rows if row["class"] != "fatigue" or table == "cap_moment"]
            if rows and project != "walls":  # walls have no printed tables
                counts[table] += compare(samples, project, printed, rows, line_of, has_states)
            else:
                samples.call("report", project + ".in", "--table", printed, status=1)


def check_pile_heads(samples, counts):
    """The worksheet has a sheet a substructure, and in it the heads of each case with twelve decimals."""
    for project in exported.PRESETS:
        if project == "walls":
            samples.call("report", project + ".in", "--table", "pile-heads", "--format", "excel", status=1)
            continue
        path = samples.call("report", project + ".in", "--table", "pile-heads", "--format", "excel").decode().strip()
        text = (samples.folder / path).read_bytes().decode("cp1252")
        sheets = []
        for number, sheet in enumerate(text.split("<Worksheet ss:Name=")[1:], 1):
            for cells in re.findall(r"<Row[^>]*>(.*?)</Row>", sheet, re.DOTALL):
                words = [word.strip() for word in re.findall(r"<Data[^>]*>(.*?)</Data>", cells, re.DOTALL)]
                if len(words) == 12 and words[0].isdigit():
                    sheets.append([str(number), words[0], words[1], words[3], *words[5:]])
        rows = samples.rows(project, "pile_heads")
        assert len(rows) == len(sheets) > 0, (project, len(rows), len(sheets))
        for row, words in zip(rows, sheets):
            got = [row[name] for name in ("substructure", "pile", "element", "case")]
            got += [fixed(row[name], 12) for name in (*FORCES, "dc")]
            assert got == words, (project, got, words)
        counts["pile_heads"] += len(rows)


def check_envelope_values(samples, counts):
    """A design place at the end of an element has the value of the cap's envelope there, and its case unless all cases
    have the same value."""
    for project in exported.PRESETS:
        ends = {tuple(row[name] for name in ("substructure", "class", "element", "end")): row
                for row in samples.every_row(project, "cap_envelope")}
        for table, force, quantity in (("cap_shear", "f22", "shear"), ("cap_moment", "m33", "moment")):
            for row in samples.every_row(project, table):
                if row["status"] != "ok" or row["end"] not in ("I", "J"):
                    continue
                there = ends[tuple(row[name] for name in ("substructure", "class", "element", "end"))]
                name = f"{row['extreme']}_{quantity}"
                assert there[name] == row[force], (project, table, row, there)
                is_same_in_all = there["max_" + quantity] == there["min_" + quantity]
                assert is_same_in_all or there[name + "_case"] == row["case"], (project, table, row, there)
                counts["envelope_" + quantity] += 1


# ---- element_dc from the bytes

def class_of(limit_state):
    return LIMIT_CLASSES.get(limit_state.split("-")[0], "") if not limit_state.startswith("GROUP") else ""


def greatest_ratios(path, classes, rows):
    """The expected rows of a substructure: (record, end, class): dc, case, forces, all of 32 bits."""
    words = np.fromfile(path, "<f4").reshape(len(classes), -1, WORDS)
    piles = {int(row["record"]) for row in rows if row["member_kind"] == "pile"}
    expected = {}
    for name in dict.fromkeys(classes):
        cases = np.array([number for number, other in enumerate(classes) if other == name])
        for end in (0, 1):
            ratios = words[cases, :, 11 + end]
            best = cases[np.argmax(ratios, axis=0)]  # of equal ones the first
            for record, case in enumerate(best):
                forces = [words[case, record, word] * np.float32(sign) for word, sign in WORDS_OF[end]]
                if end == 0 and record + 1 in piles:
                    forces[5] = -forces[5]
                expected[record + 1, "IJ"[end], name] = (words[case, record, 11 + end], case + 1, forces)
    return expected


def check_element_dc(samples, counts):
    for project in exported.PRESETS:
        classes = [class_of(row["limit_state"]) for row in samples.rows(project, "cases")]
        by_substructure = collections.defaultdict(list)
        for row in samples.rows(project, "element_dc"):
            by_substructure[int(row["substructure"])].append(row)
        assert by_substructure, project
        for number, rows in by_substructure.items():
            path = samples.folder / f"{project}.vmd{number if number > 1 else ''}"
            expected = greatest_ratios(path, classes, rows)
            assert len(rows) == len(expected), (project, number, len(rows), len(expected))
            for row in rows:
                ratio, case, forces = expected[int(row["record"]), row["end"], row["class"]]
                assert np.float32(row["dc"]) == ratio and int(row["case"]) == case, (project, row, ratio, case)
                assert [np.float32(row[name]) for name in FORCES] == forces, (project, row, forces)
            counts["element_dc"] += len(rows)


def main():
    with tempfile.TemporaryDirectory() as folder:
        samples = exported.Samples(sys.argv[1], sys.argv[2], folder)
        counts = collections.Counter()
        check_printed(samples, counts)
        check_pile_heads(samples, counts)
        check_envelope_values(samples, counts)
        check_element_dc(samples, counts)
    assert all(counts[table] > 20 for table in ("section_dc", "section_forces", "pile_axial", "cap_shear",
                                                "cap_moment", "pile_heads", "envelope_shear", "envelope_moment",
                                                "element_dc")), counts
    print(", ".join(f"{table}: {count} rows" for table, count in counts.items()))


if __name__ == "__main__":
    main()
