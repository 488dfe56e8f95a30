#!/usr/bin/python3
"""report.py BUILD PROJECTS: measures the whole program and what it is compared with, and prints one table.

BUILD has the programs, PROJECTS the sample projects; bench/run.sh makes both. The count of rounds is five.
"""
import os
import pathlib
import shutil
import subprocess
import sys

import many
import measure

ROUNDS = 5
EXPORT_ROUNDS = 3
MANY_ROUNDS = 3
SHEET_ROWS_OF_THE_PEER = 200_000
PDF_LINES = 500_000
PROJECTS = ("cases-8", "cases-80", "cases-800", "piles-800")
BIG = "cases-800"


class Table:
    def __init__(self):
        self.missed = []
        print(f"{'what':<46}{'measured':>14}{'target':>14}")

    def line(self, what, measured, target="", reached=True):
        mark = "" if reached else "  missed"
        print(f"{what:<46}{measured:>14}{target:>14}{mark}", flush=True)
        if not reached:
            self.missed.append(what)

    def at_most(self, what, value, limit, unit="x"):
        self.line(what, f"{value:.2f} {unit}", f"<= {limit:g} {unit}", value <= limit)

    def at_least(self, what, value, limit, unit="x"):
        self.line(what, f"{value:.2f} {unit}", f">= {limit:g} {unit}", value >= limit)


def measure_project(table, build, folder, name):
    """Times of one project; returns the seconds of load and collect, and of the whole report."""
    project = folder / f"{name}.in"
    files = measure.force_files(folder, name)
    megabytes = measure.force_bytes(folder, name) / 1e6
    big = name == BIG
    plan = folder / f"{name}.plan"
    with open(plan, "w", encoding="ascii") as out:
        subprocess.run([build / "bench-stages", "plan", project], stdout=out, check=True)
    commands = [[build / "sum-floats", *files], [build / "bench-stages", "collect", project],
                [build / "lumerin", "report", project, "--table", "full", "--format", "text"]]
    peer = pathlib.Path(__file__).parent / "peers" / "sections.py"
    commands.append(["/usr/bin/python3", peer, plan, *files])
    # The verdict reads the same file; the limit is one that every project passes, for status 0.
    commands.append([build / "lumerin", "check", "--brief", "--limit", "100", project])
    sums, stages, reports, numpy, checks = measure.rounds(commands, ROUNDS)
    if abs(stages[0]["extremes"] - numpy[0]["extremes"]) > 1e-3:
        raise SystemExit(f"{name}: NumPy finds other extremes than the product")
    seconds = lambda run: run["seconds"]
    wall = lambda run: run.wall
    yard, collect = measure.median(sums, seconds), measure.median(stages, seconds)
    report, peer = measure.median(reports, wall), measure.median(numpy, wall)
    peak = max(run.peak for run in reports) / 1e6
    cases = plan.read_text(encoding="ascii").split("classes", 1)[1].split("\n", 1)[0].count(" ")
    table.line(f"{name}: force file", f"{megabytes:.1f} MB")
    table.line(f"{name}: (a) sum of all floats", f"{yard:.4f} s")
    table.line(f"{name}: (b) section tables in NumPy", f"{peer:.4f} s")
    table.line(f"{name}: load", f"{measure.median(stages, lambda run: run['load']):.4f} s")
    table.line(f"{name}: load + collect", f"{collect:.4f} s")
    table.line(f"{name}: full report in text", f"{report:.4f} s")
    table.at_most(f"{name}: load + collect : (a)", collect / yard, 2.1) if big else table.line(
        f"{name}: load + collect : (a)", f"{collect / yard:.2f} x")
    table.at_most(f"{name}: full report : (a)", report / yard, 2.1) if big else table.line(
        f"{name}: full report : (a)", f"{report / yard:.2f} x")
    table.at_least(f"{name}: (b) : full report", peer / report, 5) if big else table.line(
        f"{name}: (b) : full report", f"{peer / report:.2f} x")
    verdict = measure.median(checks, wall) / report
    table.at_most(f"{name}: check : full report", verdict, 1.2) if big else table.line(
        f"{name}: check : full report", f"{verdict:.2f} x")
    table.at_most(f"{name}: peak memory", peak, 64 * 1.048576 + 200 * cases / 1e6, "MB")
    return collect, report


def measure_writers(table, build, folder):
    sheet, pdf = folder / "sheet.xml", folder / "lines.pdf"
    commands = [[build / "bench-stages", "sheet", folder / f"{BIG}.in", sheet],
                [build / "bench-stages", "pdf", PDF_LINES, pdf]]
    peers = [("xlsx_cells", SHEET_ROWS_OF_THE_PEER, folder / "peer.xlsx"),
             ("haru_lines", PDF_LINES, folder / "peer.pdf")]
    for program, amount, file in peers:
        if not (build / program).exists():
            raise SystemExit(f"{program} was not built: its library is missing")
        commands.append([build / program, amount, file])
    sheets, pdfs, xlsx, haru = measure.rounds(commands, ROUNDS)
    rate = lambda what: lambda run: run[what] / run["seconds"] / 1e6
    ours, theirs = measure.median(sheets, rate("cells")), measure.median(xlsx, rate("cells"))
    table.line("pile head sheet, million cells a second", f"{ours:.2f}")
    table.line("libxlsxwriter, million cells a second", f"{theirs:.2f}")
    table.at_least("pile head sheet : libxlsxwriter", ours / theirs, 4)
    ours, theirs = measure.median(pdfs, rate("lines")), measure.median(haru, rate("lines"))
    table.line("PDF, million lines a second", f"{ours:.2f}")
    table.line("libharu, million lines a second", f"{theirs:.2f}")
    table.at_least("PDF : libharu", ours / theirs, 1.5)
    for file in (sheet, pdf, *(peer[2] for peer in peers)):
        os.remove(file)


def measure_exports(table, build, folder):
    """CSV and SQLite of every force of a project, beside pandas and the shell of SQLite."""
    csv, ours, theirs = (folder / name for name in ("forces.csv", "forces.sqlite", "import.sqlite"))
    export = [build / "lumerin", "export", folder / "cases-80.in", "--table", "element_forces", "-o"]
    peers = pathlib.Path(__file__).parent / "peers"
    fresh = lambda *command: ["sh", "-c", 'rm -f "$0"; exec "$@"', *command]
    commands = [[*export, csv], ["/usr/bin/python3", peers / "pandas_csv.py", csv],
                fresh(ours, *export, ours, "--format", "sqlite"),
                fresh(theirs, "sqlite3", theirs, ".mode csv", f".import {csv} element_forces")]
    written, pandas, stored, imported = measure.rounds(commands, EXPORT_ROUNDS)
    wall = lambda run: run.wall
    time, peer = measure.median(written, wall), measure.median(pandas, lambda run: run["seconds"])
    table.line(f"element_forces as CSV, {pandas[0]['rows']:.0f} rows", f"{time:.4f} s")
    table.line("the same rows, pandas to_csv", f"{peer:.4f} s")
    table.at_least("pandas to_csv : CSV", peer / time, 5)
    time, peer = measure.median(stored, wall), measure.median(imported, wall)
    table.line("element_forces in SQLite, with its key", f"{time:.4f} s")
    table.line("the CSV by .import of sqlite3", f"{peer:.4f} s")
    table.at_most("SQLite : .import", time / peer, 2)
    big, = measure.rounds([[build / "lumerin", "export", folder / f"{BIG}.in", "--table", "element_forces", "-o", csv]], 1)
    table.at_most(f"{BIG}: element_forces as CSV, peak memory", big[0].peak / 1e6, 64 * 1.048576, "MB")
    for file in (csv, ours, theirs):
        os.remove(file)


def measure_many(table, build, folder):
    """Projects a second on one core, and that memory and time do not grow with their number."""
    lists, flat = many.make(build, folder)
    most = many.COUNTS[-1]
    output = folder / "many.out"
    check = lambda path: [build / "lumerin", "check", "--limit", "100", "--format", "json", "--files-from", path]
    forms = {"export": ["export", "--units", "us", "--table", "verdict,projects,findings", "--format", "jsonl",
                        "-o", output],
             "report": ["report", "--json", "--table", "axial", "-o", folder / "many-documents", "--name", "{project}"]}
    commands = [check(lists[count]) for count in many.COUNTS] + [check(flat)]
    commands += [[build / "lumerin", *words, "--files-from", lists[count]]
                 for words in forms.values() for count in (many.COUNTS[0], most)]
    # The yardstick: every file of the projects is opened and read, and nothing else.
    commands.append(["sh", "-c", 'xargs -0 cat <"$0" >/dev/null', many.file_list(lists[most])])
    wall = [measure.median(held, lambda run: run.wall) for held in measure.rounds(commands, MANY_ROUNDS)]
    peak = [measure.peak_while_it_runs(command) for command in commands]
    for count, time, bytes_ in zip(many.COUNTS, wall, peak):
        table.line(f"check of {count} projects, a second", f"{count / time:.0f}")
        table.line(f"check of {count} projects, peak memory", f"{bytes_ / 1e6:.2f} MB")
    table.at_most("check, peak memory, 10000 : 100 projects", peak[2] / peak[0], 2)
    table.at_most("check, time of a project, 10000 : 1000", wall[2] / wall[1] / 10, 1.5)
    table.at_most("check, 10000 in one folder : in their own", wall[3] / wall[2], 2)
    for index, name in enumerate(forms):
        few, all_ = 4 + 2 * index, 5 + 2 * index
        table.line(f"{name} of {most} projects, a second", f"{most / wall[all_]:.0f}")
        table.at_most(f"{name}, peak memory, 10000 : 100 projects", peak[all_] / peak[few], 2)
    table.at_most("check of 10000 projects : cat of their files", wall[2] / wall[-1], 4)
    output.unlink()
    shutil.rmtree(folder / "many-documents")


def measure_numbers(table, build):
    runs, = measure.rounds([[build / "bench-stages", "format"]], ROUNDS)
    for decimals in (2, 12):
        table.at_least(f"%.{decimals}f : snprintf", measure.median(runs, lambda run: run[f"faster{decimals}"]), 4)


def main():
    build, folder = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    table = Table()
    times = {name: measure_project(table, build, folder, name) for name in PROJECTS}
    collect, report = (times[BIG][index] / times["cases-80"][index] for index in (0, 1))
    # Time grows with the length of the file. The small file costs more for each byte: start-up, and pages of the system's cache.
    table.at_most(f"load + collect, {BIG} : cases-80", collect, 11)
    table.at_most(f"full report, {BIG} : cases-80", report, 11)
    measure_writers(table, build, folder)
    measure_exports(table, build, folder)
    measure_many(table, build, folder)
    measure_numbers(table, build)
    print("All targets are reached." if not table.missed else f"Missed: {'; '.join(table.missed)}")


main()
