#!/usr/bin/env python3
"""Reads the documents of a report with other people's programs and compares them with the text form.

usage: check_documents.py LUMERIN MAKE_SAMPLE

- pdftotext opens every PDF of every sample project; its pages have the lines of the text form.
- xmllint finds every workbook without a stray fragment well formed; sheet names have 31 characters or fewer.
- soffice, where the machine has it, opens workbooks and finds the numbers of the text form in them.
"""
import csv
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

TABLES = ["axial", "pile-dc", "column-dc", "cap-shear", "cap-moment", "pile-forces", "column-forces", "extra-members"]
PRESETS = ["pier", "bent", "group", "bridge", "history"]
FOOTER = re.compile(r"^\w+, \w+ \d+, \d{4} .*|^Page \d+ of \d+$")
CLOCK = "2026-11-14T08:30:05"


def run(*arguments, **options):
    return subprocess.run([str(a) for a in arguments], capture_output=True, check=False, **options)


def squeezed(line):
    return " ".join(line.split())


def content(lines, heads):
    """What a reader compares: no empty lines, no column heads (a PDF repeats them), no page marks."""
    kept = []
    for line in map(squeezed, lines):
        if not line or line in heads or line in ("cont...", "(cont...)") or FOOTER.match(line):
            continue
        kept.append(re.sub(r" ?Page \d+ of \d+$", "", line))
    return kept


def column_heads(lines):
    first = re.compile(r"^(PROP|LOCATION|SUBSTRUCTURE PILE)\b")
    heads = set()
    for upper, lower in zip(lines, lines[1:]):
        if first.match(squeezed(upper)):
            heads |= {squeezed(upper), squeezed(lower)}
    return heads


def check_pdf(text_path, pdf_path):
    result = run("pdftotext", "-layout", "-enc", "Latin1", pdf_path, "-")
    assert result.returncode == 0, f"pdftotext can't open {pdf_path.name}: {result.stderr.decode()}"
    assert not result.stderr.replace(b"Syntax Warning", b"").strip() or b"Error" not in result.stderr, result.stderr
    text_lines = text_path.read_bytes().decode("cp1252").replace("\r\n", "\n").split("\n")
    pdf_lines = result.stdout.decode("latin1").replace("\f", "\n").split("\n")
    heads = column_heads(text_lines)
    wanted, got = content(text_lines, heads), content(pdf_lines, heads)
    for number, (want, have) in enumerate(zip(wanted, got)):
        assert want == have, f"{pdf_path.name}, line {number}: {have!r} where the text form has {want!r}"
    assert len(wanted) == len(got), f"{pdf_path.name}: {len(got)} lines, the text form has {len(wanted)}"
    return len(got)


def check_workbook(path):
    text = path.read_text(encoding="cp1252")
    stray = re.search(r"</Row>\s*<\s", text) is not None
    if not stray:
        result = run("xmllint", "--noout", path)
        assert result.returncode == 0, f"{path.name}: {result.stderr.decode()[:300]}"
    for name in re.findall(r'<Worksheet ss:Name="([^"]*)"', text):
        assert len(name) <= 31, f"{path.name}: sheet {name}"
    return not stray


def numbers(words):
    found = []
    for word in words:
        try:
            found.append(float(word))
        except ValueError:
            continue
    return found


def check_numbers(text_path, workbook, folder):
    """The rows that carry five numbers or more, in order."""
    result = run("soffice", "--headless", f"-env:UserInstallation=file://{folder}/office", "--convert-to", "csv",
                 "--outdir", folder, workbook, timeout=300)
    sheet = folder / (workbook.stem + ".csv")
    assert sheet.exists(), f"soffice can't open {workbook.name}: {result.stderr.decode()}"
    with open(sheet, newline="", encoding="utf-8", errors="replace") as file:
        rows = [numbers(row) for row in csv.reader(file)]
    lines = [numbers(line.split()) for line in text_path.read_text(encoding="cp1252").splitlines()]
    rows = [row for row in rows if len(row) >= 5]
    lines = [line for line in lines if len(line) >= 5]
    assert lines and len(rows) == len(lines), f"{workbook.name}: {len(rows)} rows of numbers, not {len(lines)}"
    for row, line in zip(rows, lines):
        assert len(row) == len(line) and all(abs(a - b) < 0.0051 for a, b in zip(row, line)), (
            f"{workbook.name}: {row} where the text form has {line}")
    return len(rows)


def main():
    lumerin, make_sample = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
    pdfs = lines = workbooks = well_formed = 0
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for preset in PRESETS:
            assert run(make_sample, folder, "--preset", preset).returncode == 0
            options = [o for t in TABLES for o in ("--table", t)]
            run(lumerin, "report", folder / f"{preset}.in", *options, "--table", "pile-heads", "--format", "text",
                "--format", "pdf", "--format", "excel", "--clock", CLOCK, "--version-text", "5.2.1")
            for pdf in sorted(folder.glob(f"{preset}_*.pdf")):
                lines += check_pdf(pdf.with_suffix(".txt"), pdf)
                pdfs += 1
            for workbook in sorted(folder.glob(f"{preset}_*.xml")):
                well_formed += check_workbook(workbook)
                workbooks += 1
        assert pdfs >= 20 and workbooks >= 25, (pdfs, workbooks)
        print(f"{pdfs} PDF files say what the text form says, {lines} lines")
        print(f"{workbooks} workbooks, {well_formed} of them well formed, the others with their known slips")
        if shutil.which("soffice") is None:
            print("SKIPPED: no soffice on this machine, so no workbook was opened by a spreadsheet program")
            return
        for preset, table in (("group", "Max_Axial_Forces_Pile_Heads"), ("group", "Max_DC_For_Pile_Sections"),
                              ("history", "Max_Forces_For_All_Pile_Sects")):
            workbook = folder / f"{preset}_{table}.xml"
            count = check_numbers(workbook.with_suffix(".txt"), workbook, folder)
            print(f"soffice gives back {count} rows of {workbook.name}")


if __name__ == "__main__":
    main()
