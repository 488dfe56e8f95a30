#!/usr/bin/env python3
"""check_program.py PROGRAM...: what the system's loader sees of a program for Linux.

It must lie at another address each time, have no memory that can be both written and run, resolve its functions before
it begins and have the tables of them read-only from then on, look for no library in a folder of its own, guard its
stack, check the copies whose size the compiler knows, and name no folder of the machine that built it.
Prints what is wrong; exit status 1 then.
"""
import pathlib
import re
import subprocess
import sys

SOURCE_PATH = re.compile(rb"(?<=\0)(?!/usr/)/[\w .+/-]*\.(?:cpp|h|inc)\0")


def read(*options):
    return subprocess.run(options, capture_output=True, text=True, check=True, env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout


def faults(path):
    header, dynamic = read("readelf", "-hlW", path), read("readelf", "-dW", path)
    symbols = set(re.findall(r" UND (\w+)", read("readelf", "--dyn-syms", "-W", path)))
    if not re.search(r"Type:\s+DYN", header) or not re.search(r"\(FLAGS_1\).*\bPIE\b", dynamic):
        yield "lies at the same address each time"
    if not re.search(r"^\s+GNU_RELRO", header, re.M):
        yield "keeps the tables of the loader writable"
    if not re.search(r"\(FLAGS\).*\bBIND_NOW\b|\(FLAGS_1\).*\bNOW\b|\(BIND_NOW\)", dynamic):
        yield "resolves functions while it runs"
    if not re.search(r"^\s+GNU_STACK.* RW ", header, re.M) or re.search(r"^\s+\w+ .* RWE ", header, re.M):
        yield "has memory that can be written and run"
    if re.search(r"\((?:RPATH|RUNPATH)\)", dynamic):
        yield "looks for libraries in a folder of its own"
    if "__stack_chk_fail" not in symbols:
        yield "does not guard its stack"
    if not any(re.fullmatch(r"__\w+_chk", s) for s in symbols):
        yield "does not check copies"
    data = path.read_bytes()
    places = {m.group(0)[:-1].decode() for m in SOURCE_PATH.finditer(data)}
    root = pathlib.Path(__file__).resolve().parents[2]
    places |= {str(f) for f in (root, path.resolve().parent) if str(f).encode() in data}
    if places:
        yield f"names the build machine's {', '.join(sorted(places))}"


def main():
    found = [f"{name}: {fault}" for name in sys.argv[1:] for fault in faults(pathlib.Path(name))]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
