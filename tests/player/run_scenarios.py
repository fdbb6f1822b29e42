#!/usr/bin/env python3
"""Plays every scenario of a folder on one edition and compares what it shows with what is expected.

A scenario NAME.scenario stands beside NAME.expected, the standard output that it must give, and, where the exit code is
not 0, NAME.exit, which holds that code. Two things are not compared: the line numbers in error events, and the wording
of a refused step where the expected text is "*". A difference is printed as a diff.
"""

import argparse
import difflib
import os
import pathlib
import re
import subprocess
import sys


def comparable(line, expected):
    line = re.sub(r'"intLineNumber":-?\d+', '"intLineNumber":0', line)
    if expected is not None and expected.startswith('{"error":"*"'):
        line = re.sub(r'^\{"error":"(?:[^"\\]|\\.)*"', '{"error":"*"', line)
    return line


def failure_of(scenario, player, edition):
    """What is wrong with the scenario's run, as a text; empty when nothing is."""
    expected = scenario.with_suffix(".expected").read_text(encoding="utf-8").splitlines()
    exit_file = scenario.with_suffix(".exit")
    expected_exit = int(exit_file.read_text()) if exit_file.exists() else 0
    run = subprocess.run([*player, "--edition", edition, str(scenario)], capture_output=True, timeout=120,
                         env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    shown = run.stdout.decode("utf-8").splitlines()
    shown = [comparable(line, expected[i] if i < len(expected) else None) for i, line in enumerate(shown)]
    expected = [comparable(line, None) for line in expected]
    problems = list(difflib.unified_diff(expected, shown, "expected", f"shown by the {edition} edition", lineterm=""))
    if run.returncode != expected_exit:
        problems.append(f"exit code {run.returncode} instead of {expected_exit}")
    if run.stderr:
        problems.append("standard error: " + run.stderr.decode("utf-8", "replace").strip())
    return "\n".join(problems)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--player", required=True, help="the cyced-play program")
    parser.add_argument("--launcher", help="a program that runs the player")
    parser.add_argument("--edition", required=True)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--only", default="*", help="a pattern of scenario names")
    arguments = parser.parse_args()

    player = [arguments.launcher, arguments.player] if arguments.launcher else [arguments.player]
    scenarios = sorted(arguments.folder.glob(arguments.only + ".scenario"))
    failures = 0
    for scenario in scenarios:
        failure = failure_of(scenario, player, arguments.edition)
        if failure:
            failures += 1
            print(f"FAILED {scenario.stem}\n{failure}\n")
    print(f"{len(scenarios)} scenarios on the {arguments.edition} edition, {failures} failed")
    return 1 if failures or not scenarios else 0


if __name__ == "__main__":
    sys.exit(main())
