"""What the checks of the exports share: sample projects, calls of the program, and its CSV as rows."""
import csv
import pathlib
import subprocess

PRESETS = ["pier", "bent", "group", "walls", "bridge", "history"]
CLOCK = "2026-11-14T08:30:05"


class Samples:
    """The six sample projects in a folder, and the program that exports them."""

    def __init__(self, lumerin, make_sample, folder):
        self.lumerin, self.folder = pathlib.Path(lumerin).resolve(), pathlib.Path(folder)
        for preset in PRESETS:
            subprocess.run([make_sample, self.folder, "--preset", preset], check=True, capture_output=True)

    def call(self, *words, status=0):
        """Runs the program in the folder; its standard output."""
        done = subprocess.run([self.lumerin, *map(str, words)], cwd=self.folder, capture_output=True, check=False)
        assert done.returncode == status, (words, done.returncode, done.stderr.decode())
        return done.stdout

    def rows(self, project, table, *words):
        """The rows of a table as dictionaries of texts."""
        return self._read(self.call("export", project, "--table", table, *words))

    def every_row(self, project, table):
        """The same; a table without rows is one of none."""
        path = self.folder / "all" / f"{project}-{table}.csv"
        if not path.exists():
            self.call("export", project, "--table", "all", "-o", "all/")
        return self._read(path.read_bytes())

    @staticmethod
    def _read(out):
        return list(csv.DictReader(out.decode().splitlines()))
