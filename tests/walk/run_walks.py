#!/usr/bin/env python3
"""Random walks of an operator through the editor, on every edition.

For each seed a walk is written as a scenario (cyced-walk) and played on every edition. Behind every step: the sequence
list shows the atom lines, the row table matches the grid, no error event came that the step does not call for, and all
editions showed the same. At its end the cycle is handed back, loaded again and handed back again, which must give the
same text. A walk that fails is shrunk to a short scenario, which is left in the work folder.
"""

import argparse
import json
import pathlib
import subprocess
import sys


def play(player, edition, scenario):
    run = subprocess.run([*player, "--edition", edition, str(scenario)], capture_output=True, timeout=600)
    return run.returncode, run.stdout.decode("utf-8")


def broken_rule(output):
    """The first rule of a walk that its output breaks, as a text; empty when it breaks none."""
    names = None  # what the sequence list showed last, until the atom lines are shown
    grid = None  # what the grid showed last, until its row table is shown
    for line in output.splitlines():
        shown = json.loads(line)
        if "CycleEditorError" in shown:
            return f"an error event: {line}"
        if "lstAtomSequence" in shown:
            names = [item.lstrip("0123456789").lstrip(" ") for item in shown["lstAtomSequence"]["items"]]
            numbers = [int(item.split(" ")[0]) for item in shown["lstAtomSequence"]["items"]]
            if numbers != list(range(1, len(numbers) + 1)):
                return f"the lines are not numbered in order: {line}"
        elif "atoms" in shown and names is not None:
            if names != [atom["AtomName"].lstrip(" ") for atom in shown["atoms"]]:
                return f"the list does not show the atom lines: {line}"
            names = None
        elif "GrdAtom" in shown:
            grid = shown["GrdAtom"]
            count = len(grid["rows"])
            if not (1 <= grid["row"] <= count if count else grid["row"] == 0):
                return f"the current row is no row: {line}"
        elif "rows" in shown and grid is not None:
            table = shown["rows"]
            if len(table) != len(grid["rows"]):
                return f"the row table has {len(table)} entries for {len(grid['rows'])} rows"
            if any(not row["IsNumeric"] and row["Items"] != ";".join(seen["items"])
                   for row, seen in zip(table, grid["rows"])):
                return f"the pick lists are not those of the row table: {line}"
            grid = None
        else:
            names = grid = None
    return ""


def failure_of(player, editions, scenario):
    outputs = {edition: play(player, edition, scenario) for edition in editions}
    code, first = outputs[editions[0]]
    if code not in (0, 2):
        return f"the {editions[0]} edition ended with {code}"
    problem = broken_rule(first)
    for edition in editions[1:]:
        if not problem and outputs[edition] != (code, first):
            mine, theirs = first.splitlines(), outputs[edition][1].splitlines()
            at = next((i for i, pair in enumerate(zip(mine, theirs)) if pair[0] != pair[1]), min(len(mine), len(theirs)))
            problem = (f"line {at + 1}: {editions[0]} shows {''.join(mine[at:at + 1])}\n"
                       f"{edition} (exit code {outputs[edition][0]}) shows {''.join(theirs[at:at + 1])}")
    return problem or round_trip_failure(player, editions, scenario, first) if code == 0 else problem


def round_trip_failure(player, editions, scenario, output):
    """Hands the walk's cycle back, loads it again and hands it back again."""
    again = scenario.with_suffix(".again")
    again.write_text(scenario.read_text(encoding="utf-8") + "RetrieveCycle\n", encoding="utf-8")
    handed_back = json.loads(play(player, editions[0], again)[1].splitlines()[-1]).get("RetrieveCycle")
    if not handed_back:
        again.unlink()
        return ""
    again.write_text("SetConfigXML @configuration.xml\nSetXMLStrings @catalogue.xml " + json.dumps(handed_back) +
                     "\nCycleChanged\nRetrieveCycle\n", encoding="utf-8")
    for edition in editions:
        lines = [json.loads(line) for line in play(player, edition, again)[1].splitlines()]
        if lines != [{"CycleChanged": False}, {"RetrieveCycle": handed_back}]:
            return f"the cycle that was handed back does not come back unchanged from the {edition} edition"
    again.unlink()
    return ""


def shrunk(player, editions, scenario):
    """The shortest scenario that can be reached by leaving out steps and still fails."""
    lines = scenario.read_text(encoding="utf-8").splitlines()
    trial = scenario.with_name("trial.scenario")

    def fails(candidate):
        trial.write_text("\n".join(candidate) + "\n", encoding="utf-8")
        return bool(failure_of(player, editions, trial))

    size = len(lines) // 2
    while size >= 1:
        at = 0
        while at < len(lines):
            candidate = lines[:at] + lines[at + size:]
            if candidate and fails(candidate):
                lines = candidate
            else:
                at += size
        size //= 2
    trial.unlink(missing_ok=True)
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--walker", required=True, help="the cyced-walk program")
    parser.add_argument("--player", required=True, help="the cyced-play program")
    parser.add_argument("--launcher", help="a program that runs the other two")
    parser.add_argument("--editions", required=True, nargs="+")
    parser.add_argument("--samples", required=True, type=pathlib.Path)
    parser.add_argument("--work", required=True, type=pathlib.Path, help="the folder for the scenarios")
    parser.add_argument("--seeds", type=int, default=40)
    parser.add_argument("--first-seed", type=int, default=1)
    parser.add_argument("--steps", type=int, default=500)
    arguments = parser.parse_args()

    launcher = [arguments.launcher] if arguments.launcher else []
    player = [*launcher, arguments.player]
    arguments.work.mkdir(parents=True, exist_ok=True)
    for name in ("catalogue.xml", "configuration.xml", "cycle-standard.xml", "cycle-old.xml"):
        (arguments.work / name).write_bytes((arguments.samples / name).read_bytes())
    for seed in range(arguments.first_seed, arguments.first_seed + arguments.seeds):
        scenario = arguments.work / f"walk-{seed}.scenario"
        walk = subprocess.run([*launcher, arguments.walker, "--seed", str(seed), "--steps", str(arguments.steps), "--samples",
                               str(arguments.samples), str(scenario)], capture_output=True, timeout=600)
        problem = f"the walker ended with {walk.returncode}: {walk.stderr.decode()}{walk.stdout.decode()[-400:]}" \
            if walk.returncode else failure_of(player, arguments.editions, scenario)
        if problem:
            print(f"The walk of seed {seed} failed: {problem}")
            if not walk.returncode:
                short = scenario.with_name(f"walk-{seed}-short.scenario")
                short.write_text("\n".join(shrunk(player, arguments.editions, scenario)) + "\n",
                                 encoding="utf-8")
                print(f"Shrunk to {short}:\n{short.read_text(encoding='utf-8')}")
            return 1
        scenario.unlink()
    print(f"{arguments.seeds} walks of {arguments.steps} steps on {', '.join(arguments.editions)}: all rules hold")
    return 0


if __name__ == "__main__":
    sys.exit(main())
