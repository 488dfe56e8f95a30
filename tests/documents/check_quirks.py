#!/usr/bin/env python3
"""Checks that each entry of docs/quirks.md names sources and tests that exist.

usage: check_quirks.py REPOSITORY

An entry begins with a bold sentence and ends with "Source: `FILE`, ... Test: `SUITE.NAME`, ...".
"""
import pathlib
import re
import sys


def tests_of(folder):
    pattern = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)", re.MULTILINE)
    found = set()
    for path in folder.rglob("*.cpp"):
        found |= {f"{suite}.{name}" for suite, name in pattern.findall(path.read_text())}
    return found


def main():
    root = pathlib.Path(sys.argv[1])
    tests = tests_of(root / "tests")
    text = (root / "docs" / "quirks.md").read_text()
    entries = re.split(r"^(?=\*\*)", text, flags=re.MULTILINE)[1:]
    faults = []
    for entry in entries:
        title = entry.split("**")[1].replace("\n", " ")
        names = re.search(r"^Source: (.*?)\. Test:\s(.*?)\.$", entry, re.MULTILINE | re.DOTALL)
        if names is None:
            faults.append(f"{title} names no source and no test")
            continue
        faults += [f"{title} There is no src/{file}" for file in re.findall(r"`([^`]+)`", names[1])
                   if not (root / "src" / file).is_file()]
        faults += [f"{title} There is no test {test}" for test in re.findall(r"`([^`]+)`", names[2])
                   if test not in tests]
    assert len(entries) > 50 and len(tests) > 500, (len(entries), len(tests))
    for fault in faults:
        print(fault)
    print(f"{len(entries)} quirks, {len(faults)} faults")
    sys.exit(bool(faults))


if __name__ == "__main__":
    main()
