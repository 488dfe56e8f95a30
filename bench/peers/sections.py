#!/usr/bin/python3
"""sections.py PLAN FORCES: the searches of the five section tables and of their checks, in NumPy.

Memory-maps a force file and finds, for each section and limit class, the greatest D/C ratio and the thirteen
extremes of the forces with their places, and whether every number is finite. PLAN is what `bench-stages plan`
prints. The sum of the extremes is printed, so that a difference to the product's own would show.
"""
import sys
import time

import numpy

# Words of a record by component, at I and at J, and the sign that turns them into a table's force.
WORDS = ((13, 1, 2, 6, 5, 15, 11), (14, 3, 4, 8, 7, 16, 12))
SIGNS = ((1, -1, -1, 1, 1, 1, 1), (1, 1, 1, -1, -1, -1, 1))
RECORD_WORDS = 17
CHUNK_BYTES = 32 << 20


def read_plan(path):
    plan = {"sections": []}
    for line in open(path, encoding="ascii"):
        name, *values = line.split()
        if name in ("pile", "column"):
            plan["sections"].append((name, [int(value) for value in values[1:]]))
        else:
            plan[name] = [int(value) for value in values]
    return plan


def as_slice(records):
    """A run of neighbours as a slice, which saves a copy."""
    if records and records == list(range(records[0], records[-1] + 1)):
        return slice(records[0], records[-1] + 1)
    return numpy.array(records, dtype=int)


class Search:
    """The extremes of one section in one limit class, with the case and record of each."""

    def __init__(self, family):
        self.signs = numpy.array(SIGNS)
        if family == "pile":
            self.signs[0][5] = -1  # the torque at I
        self.best = {}

    def offer(self, key, value, find, case):
        held = self.best.get(key)
        if held is None or value > held[0]:
            self.best[key] = (value, case + find())

    def examine(self, chunk, case):
        greatest, least = chunk.max(axis=(0, 1)), chunk.min(axis=(0, 1))
        for component in range(7):
            for end in range(2):
                word, sign = WORDS[end][component], self.signs[end][component]
                high, low = (greatest, least) if sign > 0 else (least, greatest)
                for sense, value in ((1, sign * high[word]), (-1, -sign * low[word])):
                    if component == 6 and sense == -1:
                        continue
                    column = chunk[:, :, word]
                    side = sense * sign
                    self.offer((component, sense), value,
                               lambda: numpy.argmax(side * column) // column.shape[1], case)

    def sum(self):
        forces = sum(sense * float(value) for (_, sense), (value, _) in self.best.items())
        return forces + float(self.best[6, 1][0]) if self.best else 0.0  # the ratio is in two tables


def runs_of(classes):
    """Runs of neighbouring cases of one class."""
    begin = 0
    for case in range(1, len(classes) + 1):
        if case == len(classes) or classes[case] != classes[begin]:
            yield begin, case, classes[begin]
            begin = case


def main():
    begin = time.perf_counter()
    plan = read_plan(sys.argv[1])
    block = plan["block"][0]
    forces = numpy.memmap(sys.argv[2], dtype="<f4", mode="r").reshape(-1, block, RECORD_WORDS)
    slots = plan["slots"][0]
    classes = plan["classes"] if plan["combinations"][0] else [0] * len(plan["classes"])
    sections = [(family, as_slice(records), [Search(family) for _ in range(slots)])
                for family, records in plan["sections"] if records]
    step = max(1, CHUNK_BYTES // (block * RECORD_WORDS * 4))
    finite = True
    for first, last, slot in runs_of(classes):
        for case in range(first, last, step):
            chunk = forces[case:min(case + step, last)]
            finite = finite and bool(numpy.isfinite(chunk).all())
            if slot >= slots:
                continue
            for _, records, searches in sections:
                searches[slot].examine(chunk[:, records], case)
    copies = 1 if plan["combinations"][0] else slots
    total = sum(search.sum() for _, _, searches in sections for search in searches) * copies
    print(f"seconds {time.perf_counter() - begin:.6f}\nextremes {total:.6f}\nfinite {int(finite)}")


main()
