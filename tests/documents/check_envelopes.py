#!/usr/bin/env python3
"""Compares the envelope data file of every sample project with a cap with one that is worked out without the program.

usage: check_envelopes.py LUMERIN MAKE_SAMPLE
"""
import difflib
import pathlib
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
import cap_envelopes  # noqa: E402

PRESETS = ["pier", "bent", "bridge", "history"]
SEEDS = [1, 2, 3]


def check(lumerin, make_sample, folder, preset, seed, options=(), chosen=None):
    subprocess.run([make_sample, folder, "--preset", preset, "--seed", str(seed)], check=True, stdout=subprocess.DEVNULL)
    base = folder / preset
    subprocess.run([lumerin, "report", f"{base}.in", "--table", "envelopes", *options], check=True,
                   stdout=subprocess.DEVNULL)
    got = (folder / f"{preset}_Envelopes.txt").read_bytes().decode("cp1252")
    wanted = cap_envelopes.work_out(base, chosen).replace("\n", "\r\n")
    if got == wanted:
        return True
    print(f"{preset}, seed {seed} {' '.join(options)}: worked out (-) and written (+)")
    print("\n".join(difflib.unified_diff(wanted.splitlines(), got.splitlines(), n=0, lineterm="")))
    return False


def main():
    programs = sys.argv[1:3]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        good = [check(*programs, folder, preset, seed) for preset in PRESETS for seed in SEEDS]
        # Cases 2, 4 to 9: of the pier's strength cases alone, so that three of its classes have no block.
        some = [1] + list(range(3, 9))
        good += [check(*programs, folder, preset, 1, ["--cases", "2,4-9"], some) for preset in PRESETS]
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main())
