#!/usr/bin/python3
"""pandas_csv.py CSV: writes the rows of a CSV again by pandas; prints rows and the seconds of to_csv alone."""
import os
import sys
import time

import pandas

SINGLES = ("fax", "f22", "f33", "m22", "m33", "torque", "dc")

rows = pandas.read_csv(sys.argv[1], dtype={name: "float32" for name in SINGLES})
copy = sys.argv[1] + ".pandas"
begin = time.perf_counter()
rows.to_csv(copy, index=False)
print("seconds", time.perf_counter() - begin)
print("rows", len(rows))
os.remove(copy)
