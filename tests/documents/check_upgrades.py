#!/usr/bin/env python3
"""Holds the program to what earlier releases promised.

usage: check_upgrades.py LUMERIN FOLDER [--record VERSION]

FOLDER (tests/upgrade) has the sample projects and a folder for each release:

- `commands`: command lines as a user of that release gives them, run beside the projects; "STATUS: WORDS".
- `documents`: SHA-256 of every file that they wrote then. The same commands write the same bytes today.
- `outputs`: the columns of every exported table and the keys of every JSON record, in their order, with their types.
  Each is still there, of the same type, and in the same order; a table has its new columns after all earlier ones.

`announced` in FOLDER lists what a release has announced to go or change: "VERSION NAME", where the changelog has NAME under
"Deprecated" of that version. From the next release on it may differ.

--record writes `documents` and `outputs` of a release; tools/release does it once for each.
"""
import hashlib
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tarfile
import tempfile


class Projects:
    """The sample projects in a scratch folder, and a program that is run beside them."""

    def __init__(self, lumerin, archive, folder):
        self.lumerin, self.folder = pathlib.Path(lumerin).resolve(), pathlib.Path(folder)
        with tarfile.open(archive) as files:
            files.extractall(folder)
        self.own = self.files()

    def files(self):
        return {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*") if path.is_file()}

    def call(self, words, status=0):
        done = subprocess.run([self.lumerin, *words], cwd=self.folder, capture_output=True, check=False)
        assert done.returncode == status, (words, done.returncode, done.stderr.decode(errors="replace"))
        return done.stdout.decode()

    def take_written(self):
        """The files that were written since the last call, with their digests; they are removed."""
        digests = {}
        for name in sorted(self.files() - self.own):
            path = self.folder / name
            digests[name] = hashlib.sha256(path.read_bytes()).hexdigest()
            path.unlink()
        return digests


def documents_of(projects, commands):
    """Lines "DIGEST NUMBER/FILE" of all that the commands write."""
    lines = []
    for number, line in enumerate(commands.read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        status, words = line.split(":", 1)
        projects.call([word.replace("@", str(commands.parent.resolve()) + "/") for word in shlex.split(words)], int(status))
        lines += [f"{digest} {number}/{name}" for name, digest in projects.take_written().items()]
    return lines


def columns(description):
    """Lines "table NAME.COLUMN TYPE UNIT" of the program's own description."""
    table = None
    for line in description.splitlines():
        if line.startswith("### "):
            table = line[4:]
        elif match := re.match(r"\| `(\w+)`(, key)? \| (\w+) \| ([^|]*) \|", line):
            yield f"table {table}.{match[1]} {match[3]}{match[2] or ''} {match[4].strip()}".rstrip()


def keys(value, path, found):
    """Adds the keys of a record with their types; those of all objects of a list are of one type."""
    if isinstance(value, dict):
        for key, inner in value.items():
            keys(inner, f"{path}.{key}", found)
    elif isinstance(value, list):
        found.setdefault(path, set()).add("list")
        for inner in value:
            keys(inner, path + "[]", found)
    else:
        kinds = {bool: "flag", int: "number", float: "number", str: "text", type(None): "null"}
        found.setdefault(path, set()).add(kinds[type(value)])


RECORDS = {
    "check": "check pier bent group walls bridge history --top 2 --pile-compression 100 --pile-tension 10 --format json",
    "info": "info pier bent group walls bridge history --cases --findings --format json",
    "compare": "compare pier bridge --format json",
    "report": "report pier bridge missing --table axial --json",
}
STATUSES = {"check": 1, "info": 0, "compare": 1, "report": 3}


def outputs_of(projects):
    lines = list(columns(projects.call(["export", "--describe"])))
    for name, words in RECORDS.items():
        found = {}
        for line in projects.call(words.split(), STATUSES[name]).splitlines():
            keys(json.loads(line), name, found)
        lines += [f"record {path} {' '.join(sorted(kinds))}" for path, kinds in found.items()]
    projects.take_written()
    return lines


def read_outputs(lines):
    """Name and rest of each line, in their order, table by table and object by object."""
    groups = {}
    for line in lines:
        kind, name, *rest = line.split(" ", 2)
        groups.setdefault(kind + " " + name.rpartition(".")[0], {})[name] = " ".join(rest)
    return groups


def faults_of(earlier, today, announced):
    """What was promised and is no longer so."""
    for group, names in earlier.items():
        now = today.get(group, {})
        wanted = [name for name in names if name not in announced]
        for name in wanted:
            if name not in now:
                yield f"{name} is gone"
            elif now[name] != names[name]:
                yield f"{name} was {names[name]} and is {now[name]}"
        kept = [name for name in now if name in wanted]
        if kept != [name for name in wanted if name in now]:
            yield f"{group}: the order was {wanted} and is {kept}"
        if group.startswith("table") and len(wanted) == len(names) and list(now)[:len(wanted)] != wanted:
            yield f"{group}: new columns come after {wanted[-1]}"


def announced_in(folder):
    """Names that may go, and the proof that users were warned."""
    changes = (folder.parent.parent / "CHANGELOG.md").read_text()
    names = set()
    for line in (folder / "announced").read_text().splitlines():
        if line.startswith("#") or not line:
            continue
        version, name = line.split()
        section = re.search(rf"^## {re.escape(version)} - .*?(?=^## |\Z)", changes, re.M | re.S)
        warned = section and re.search(r"^### Deprecated$.*?(?=^### |\Z)", section[0], re.M | re.S)
        assert warned and f"`{name}`" in warned[0], f"the changelog of {version} does not announce {name}"
        names.add(name)
    return names


def check(projects, folder):
    faults, documents, today = [], 0, None
    announced = announced_in(folder)
    releases = sorted(path for path in folder.iterdir() if path.is_dir())
    assert releases, folder
    for release in releases:
        expected = (release / "documents").read_text().splitlines()
        found = documents_of(projects, release / "commands")
        documents += len(expected)
        for line in sorted(set(expected) ^ set(found), key=lambda line: line.split(" ", 1)[1]):
            faults.append(f"{release.name}: {'missing or different' if line in expected else 'written'}: {line.split(' ', 1)[1]}")
        if (release / "outputs").exists():
            today = today or read_outputs(outputs_of(projects))
            earlier = read_outputs((release / "outputs").read_text().splitlines())
            faults += [f"{release.name}: {fault}" for fault in faults_of(earlier, today, announced)]
    for fault in faults:
        print(fault)
    print(f"{documents} documents of {len(releases)} releases, {len(faults)} faults")
    return 1 if faults else 0


def main():
    lumerin, folder = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    with tempfile.TemporaryDirectory() as scratch:
        projects = Projects(lumerin, folder / "projects.tar.xz", scratch)
        if sys.argv[3:4] != ["--record"]:
            return check(projects, folder)
        release = folder / sys.argv[4]
        (release / "documents").write_text("\n".join(documents_of(projects, release / "commands")) + "\n")
        if sys.argv[4] != "1.0.0":  # which had neither
            (release / "outputs").write_text("\n".join(outputs_of(projects)) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
