"""Runs one project on both faces and compares what they say and write; check-faults uses it."""
import os
import pathlib
import resource
import shutil
import signal
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WINE = ROOT / "tools" / "wine32"
DRIVE = "P:\\"
CLOCK = "2026-11-14T08:30:00"
# The pier has no extra members, so the button of their table (1012) would be refused. The last click closes the dialog.
EVERY_TABLE = [f"click {button}" for button in (1004, 1005, 1006, 1007, 1008, 1010, 1011, 1009, 1001, 1)]
SOME_TABLES = [f"click {button}" for button in (1004, 1008, 1009, 1010)]
NO_PATH_IN_FOOTERS = ["click 1018"]
# The study's table and picture, and the list of load cases.
HAND_OFFS = [f"click {button}" for button in (1022, 1022, 2, 1038, 1039, 1042, 2)]
CODE_PAGE = "cp1252"


class Run:
    """What one face did: its exit status, its lines, and what it printed on the error stream."""

    def __init__(self, process):
        self.status, self.lines, self.errors = process.returncode, process.stdout, process.stderr.decode("latin-1")


def limit_files(size):
    """For a child: no file grows beyond `size` bytes, and the attempt is an error instead of a signal."""
    def steps():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return steps if size is not None else None


class Faces:
    """One project on both faces, in folders of its own.

    For the module `windows` is the drive P:. In `native` the files' names begin with "P:\\" and the folder below,
    as there is no separator between them there; they are in `encoding`.
    """

    def __init__(self, work, native, windows):
        self.work, self.programs = work, {"native": native, "windows": windows}
        self.passed = self.failed = 0

    def folder(self, name):
        return self.work / name.replace(" ", "-")

    def make(self, name, change=lambda folder: None, below="", encoding=CODE_PAGE):
        self.name, self.below, self.encoding = name, below, encoding
        self.native, self.windows = (self.folder(name) / face for face in ("native", "windows"))
        folder = self.windows / below
        folder.mkdir(parents=True)
        subprocess.run([self.programs["native"] / "make-sample", folder, "--preset", "pier", "--name", "p", "--cases", "3",
                        "--piles", "1x2"], check=True, stdout=subprocess.DEVNULL)
        change(folder)
        self.native.mkdir()
        prefix = (DRIVE + (below + "\\" if below else "")).encode(encoding)
        for entry in folder.iterdir():
            to = os.path.join(os.fsencode(self.native), prefix + os.fsencode(entry.name))
            if entry.is_dir() and not entry.is_symlink():
                shutil.copytree(os.fsencode(entry), to)
            else:
                shutil.copy2(os.fsencode(entry), to, follow_symlinks=False)
        drive = pathlib.Path(os.environ["WINEPREFIX"]) / "dosdevices" / "p:"
        drive.unlink(missing_ok=True)
        drive.symlink_to(self.windows)

    def play(self, actions, file_size=None, output_format="text", version="4.17"):
        script = self.work / "actions"
        script.write_text("\n".join(actions) + "\n", encoding="ascii")
        project = DRIVE + (self.below + "\\" if self.below else "") + "p.in"
        options = ["--format", output_format, "--clock", CLOCK, "--version-text", version.encode("utf-8")]
        on_windows = "Z:" + str(script).replace("/", "\\")
        commands = {
            "native": [self.programs["native"] / "lumerin", "drive", project.encode(self.encoding), script, *options,
                       "--without-plot-module"],
            "windows": [WINE, "run", self.programs["windows"] / "Tarnsway.exe", project, on_windows, *options]}
        runs = []
        for face, command in commands.items():
            runs.append(Run(subprocess.run(
                command, cwd=getattr(self, face), stdin=subprocess.DEVNULL, capture_output=True, timeout=120,
                preexec_fn=limit_files(file_size), restore_signals=file_size is None)))
        return runs

    def expect(self, what, holds, detail=""):
        if holds:
            self.passed += 1
        else:
            self.failed += 1
            print(f"FAILED {self.name}: {what}\n    {detail}")

    def expect_alive(self, native, windows):
        """The module came to the script's end and its messages are those of lumerin."""
        self.expect("the process ends by itself", windows.status == 0,
                    f"status {windows.status}: {windows.errors[-500:]}")
        mine, theirs = native.lines.splitlines(), windows.lines.splitlines()
        at = next((i for i, pair in enumerate(zip(mine, theirs)) if pair[0] != pair[1]), min(len(mine), len(theirs)))
        self.expect("both faces say the same", mine == theirs,
                    f"line {at + 1}: lumerin {mine[at:at + 1]}, module {theirs[at:at + 1]}")

    def expect_same_files(self):
        (self.native / "output.json").unlink(missing_ok=True)
        compared = subprocess.run([ROOT / "tests/windows/compare-faces", self.native, self.windows,
                                   self.programs["native"], self.programs["windows"]], capture_output=True)
        self.expect("both faces write the same", compared.returncode == 0, compared.stdout.decode("latin-1")[:1500])

    def written(self, actions, output_format="text"):
        """The names of the files that the actions write, found out by lumerin on a project of its own."""
        self.make(f"what is written as {output_format}")
        before = {entry.name for entry in self.native.iterdir()}
        native, windows = self.play(actions, output_format=output_format)
        self.expect_alive(native, windows)
        self.expect_same_files()
        return sorted(entry.name.removeprefix(DRIVE) for entry in self.native.iterdir() if entry.name not in before)
