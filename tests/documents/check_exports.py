#!/usr/bin/env python3
"""Reads what `lumerin export` and `lumerin report --format xlsx` write with other people's programs.

usage: check_exports.py LUMERIN MAKE_SAMPLE DATA_MD

- openpyxl finds the sheets, heads, filters, colours and print set-up of the workbooks, and every value of the CSV.
- LibreOffice opens a workbook and finds the same numbers in it.
- pandas reads CSV, JSON Lines and SQLite, and the three agree.
- The examples of docs/data.md run, and its description of the tables is that of the program.
"""
import io
import math
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile

import openpyxl
import pandas

import exported

TABLES = ["section_dc", "section_forces", "pile_axial", "cap_shear", "cap_moment", "element_dc", "verdict", "cases"]


def same(cell, text):
    if text == "":
        return cell is None
    if isinstance(cell, bool):
        return text == str(cell).lower()
    # The library writes 16 digits, and a double may have 17.
    return math.isclose(float(text), cell, rel_tol=1e-15) if isinstance(cell, (int, float)) else text == cell


def check_export_workbook(samples):
    samples.call("export", "bridge", "--table", ",".join(TABLES), "--format", "xlsx", "-o", "bridge.xlsx")
    book = openpyxl.load_workbook(samples.folder / "bridge.xlsx")
    assert book.sheetnames == TABLES, book.sheetnames
    for sheet in book:
        rows = samples.every_row("bridge", sheet.title)
        head = [cell.value for cell in sheet[1]]
        assert head == list(rows[0]), (sheet.title, head)
        assert sheet.max_row == len(rows) + 2, (sheet.title, sheet.max_row, len(rows))
        for line, row in zip(sheet.iter_rows(min_row=3), rows):
            assert all(same(cell.value, text) for cell, text in zip(line, row.values())), (sheet.title, row)
        assert sheet.freeze_panes == "A3" and sheet.print_title_rows in ("1:2", "$1:$2"), sheet.title
        assert sheet.auto_filter.ref == f"A2:{sheet.dimensions.split(':')[1]}", sheet.auto_filter.ref
        assert sheet.page_setup.orientation == "landscape" and sheet.page_setup.fitToHeight == 0
    units = dict(zip([cell.value for cell in book["section_dc"][1]], [cell.value for cell in book["section_dc"][2]]))
    assert units["fax"] == "kips" and units["m33"] == "kip-ft" and units["case"] is None, units
    ratio = next(cell for cell in book["section_dc"][3] if cell.column_letter == "F")
    assert book["section_dc"]["F1"].value == "dc" and ratio.number_format == "0.00"
    rules = {str(area.sqref): area.rules[0] for area in book["section_dc"].conditional_formatting}
    (area, rule), = rules.items()
    assert area.startswith("F3:F") and rule.operator == "greaterThan" and rule.formula == ["1"], rules
    assert rule.dxf.font.color.rgb == "FF9C0006"


def check_report_workbook(samples):
    out = samples.call("report", "bridge", "--format", "xlsx", "--clock", exported.CLOCK).decode().strip()
    assert out == "bridge_Report.xlsx", out
    first = (samples.folder / out).read_bytes()
    samples.call("report", "bridge", "--format", "xlsx", "--clock", exported.CLOCK)
    assert first == (samples.folder / out).read_bytes(), "two runs of one clock differ"
    book = openpyxl.load_workbook(samples.folder / out)
    assert book.sheetnames == ["Cover", "Pile axial", "Pile DC", "Column DC", "Cap shear", "Cap moment", "Pile forces",
                               "Column forces", "Extra members"], book.sheetnames
    assert book["Pile DC"]["A1"].value == "Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)"
    cover = [cell.value for row in book["Cover"].iter_rows() for cell in row if cell.value is not None]
    assert cover[0] == "County Road 9 over Stony River", cover[0]
    verdict = cover[cover.index("FAILS") + 1]
    assert verdict == "D/C 1.050 at extra member 2 end I, case 16 GROUP-VII", verdict
    rows = samples.every_row("bridge", "section_dc")
    assert book["Pile DC"].max_row - 4 == sum(row["family"] == "pile" for row in rows)
    assert "Extra members" not in openpyxl.load_workbook(samples.folder / samples.call(
        "report", "pier", "--format", "xlsx").decode().strip()).sheetnames


def check_office(samples):
    """LibreOffice opens the workbook, and its own CSV of the first sheet has the same numbers."""
    office = shutil.which("soffice")
    assert office, "LibreOffice is not here"
    profile = (samples.folder / "profile").as_uri()
    samples.call("export", "bridge", "--table", "section_forces", "--format", "xlsx", "-o", "office.xlsx")
    subprocess.run([office, f"-env:UserInstallation={profile}", "--headless", "--convert-to", "csv", "office.xlsx"],
                   cwd=samples.folder, check=True, capture_output=True, timeout=240)
    lines = list(pandas.read_csv(samples.folder / "office.csv", dtype=str, keep_default_na=False).to_dict("records"))[1:]
    rows = samples.every_row("bridge", "section_forces")
    assert len(lines) == len(rows) > 100
    for line, row in zip(lines, rows):
        assert line["limit_state"] == row["limit_state"] and line["case"] == row["case"]
        assert row["m33"] == "" == line["m33"] or math.isclose(float(line["m33"]), float(row["m33"]), abs_tol=0.0051)


def check_texts(samples):
    """A project whose name begins as a formula: a text in every form."""
    for path in list(samples.folder.glob("group.*")):
        shutil.copy(path, path.with_name("=1+1" + path.suffix))
    csv_text = samples.call("export", "=1+1", "--table", "cases").decode()
    assert csv_text.split("\r\n")[1].startswith('"=1+1",'), csv_text
    samples.call("export", "=1+1", "--table", "cases", "--format", "xlsx", "-o", "formula.xlsx")
    cell = openpyxl.load_workbook(samples.folder / "formula.xlsx")["cases"]["A3"]
    assert cell.value == "=1+1" and cell.data_type in ("s", "inlineStr"), (cell.value, cell.data_type)


def check_pandas(samples):
    for table in TABLES:
        frame = pandas.read_csv(io.BytesIO(samples.call("export", "bridge", "--table", table)),
                                float_precision="round_trip")
        lines = pandas.read_json(io.BytesIO(samples.call("export", "bridge", "--table", table, "--format", "jsonl")),
                                 lines=True, precise_float=True)[list(frame.columns)]
        samples.call("export", "bridge", "--table", table, "--format", "sqlite", "-o", table + ".sqlite")
        with sqlite3.connect(samples.folder / (table + ".sqlite")) as database:
            stored = pandas.read_sql(f"SELECT * FROM {table}", database)
            assert database.execute("PRAGMA integrity_check").fetchone() == ("ok",)
        assert len(frame) == len(lines) == len(stored) > 0, table
        for name in frame.columns:
            for other in (lines[name], stored[name]):
                left, right = frame[name].tolist(), other.tolist()
                assert all(a == b or (pandas.isna(a) and pandas.isna(b)) for a, b in zip(left, right)), (table, name)


def check_units(samples):
    """One output has one unit system; conversion goes by the definitions of foot and kip."""
    done = subprocess.run([samples.lumerin, "export", "pier", "group", "--table", "verdict"], cwd=samples.folder,
                          capture_output=True, check=False)
    assert done.returncode == 2 and not done.stdout and b"give --units" in done.stderr, done
    own = samples.rows("pier", "section_dc")
    for row, other in zip(own, samples.rows("pier", "section_dc", "--units", "si")):
        assert math.isclose(float(other["fax"]), float(row["fax"]) * 4.4482216152605, rel_tol=1e-12)
        assert math.isclose(float(other["m33"]), float(row["m33"]) * 4.4482216152605 * 0.3048, rel_tol=1e-12)
        assert other["dc"] == row["dc"]
    both = samples.call("export", "pier", "group", "--table", "verdict", "--units", "si").decode().splitlines()
    assert both[1].startswith("pier,") and both[-1].startswith("group,") and sum("project" in x for x in both) == 1


def check_document(samples, path):
    text = path.read_text(encoding="utf-8")
    described = samples.call("export", "--describe").decode()
    assert text.endswith(described), "docs/data.md: its end differs from the output of lumerin export --describe"
    samples.call("export", "pier", "bridge", "--table", "all", "--format", "sqlite", "-o", "results.sqlite")
    shells = re.findall(r"```sql\n(.*?)```", text, re.DOTALL)
    with sqlite3.connect(samples.folder / "results.sqlite") as database:
        for query in shells:
            assert database.execute(query).fetchall(), query
    samples.call("export", "bridge", "--table", "element_dc", "-o", "element_dc.csv")
    programs = re.findall(r"```python\n(.*?)```", text, re.DOTALL)
    for program in programs:
        done = subprocess.run([sys.executable, "-c", program], cwd=samples.folder, capture_output=True, check=False)
        assert done.returncode == 0 and done.stdout, (program, done.stderr.decode())
    assert shells and programs


def main():
    with tempfile.TemporaryDirectory() as folder:
        samples = exported.Samples(sys.argv[1], sys.argv[2], folder)
        for check in (check_export_workbook, check_report_workbook, check_texts, check_pandas, check_units, check_office):
            check(samples)
            print(check.__name__, flush=True)
        check_document(samples, pathlib.Path(sys.argv[3]))


if __name__ == "__main__":
    main()
