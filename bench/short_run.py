#!/usr/bin/env python3
"""Runs the benchmarks of 1,000 lines once and checks that each row says what it measured."""

import json
import os
import subprocess
import sys

FIELDS = ["work", "lines", "ours", "yardstick", "ratio", "target"]

program, file = sys.argv[1:]
environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="default.warning=false")
options = ["--benchmark_filter=(Retrieve|Changed|Insert|memory after load).* 1000 ", "--benchmark_min_time=0.001"]
table = subprocess.run([program, file, *options], env=environment, check=True, capture_output=True, text=True).stdout
with open(file, encoding="utf-8") as rows_file:
    rows = json.load(rows_file)
if len(rows) != 6:
    sys.exit(f"There are {len(rows)} rows instead of 6:\n{table}")
for row in rows:
    if list(row) != FIELDS:
        sys.exit(f"This row has other fields than {FIELDS}: {row}")
    if not (row["ours"] > 0 and row["yardstick"] > 0 and abs(row["ratio"] - row["ours"] / row["yardstick"]) < 1e-9):
        sys.exit(f"This row does not hold together: {row}")
    if row["work"] not in table:
        sys.exit(f"The table lacks the row {row['work']!r}:\n{table}")
