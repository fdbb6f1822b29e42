#!/usr/bin/env python3
"""Random walks of an operator through the editor, on every edition.

For each seed a walk is written as a scenario (cyced-walk) and played on every edition. Behind every step the rules of
walk_rules.py hold, and all editions showed the same. At its end a walk undoes all its steps and does them again. The
cycle that is handed back then is loaded again and handed back again, which must give the same text. A walk that fails
is shrunk to a short scenario, which is left in the work folder.
"""

import argparse
import concurrent.futures
import dataclasses
import json
import pathlib
import subprocess
import sys

import walk_rules

LAST_STEP = "RetrieveCycle"
ENDLESS = -1000  # the exit code of a run that does not end


@dataclasses.dataclass
class Failure:
    kind: str  # while a walk is shrunk it has to go on failing in the same way
    text: str


def launcher_of(arguments):
    return [arguments.launcher] if arguments.launcher else []


class Editions:
    """The player on every edition."""

    def __init__(self, player, names):
        self.player = player
        self.names = names

    def play(self, edition, scenario):
        try:
            run = subprocess.run([*self.player, "--edition", edition, str(scenario)], capture_output=True, timeout=120)
        except subprocess.TimeoutExpired:
            return ENDLESS, []
        return run.returncode, run.stdout.decode("utf-8").splitlines()

    def failure_of(self, scenario):
        """How the walk fails, None when it does not."""
        outputs = {}
        for edition in self.names:
            code, lines = outputs[edition] = self.play(edition, scenario)
            if code not in (0, 2):
                return Failure(f"{edition} {code}", f"the {edition} edition ended with {code} behind line {len(lines)}")
        code, lines = outputs[self.names[0]]
        broken = walk_rules.broken_rule(lines, scenario.read_text(encoding="utf-8").splitlines(), code)
        if broken:
            return Failure(broken.split(":")[0], broken)
        for edition in self.names[1:]:
            if outputs[edition] != (code, lines):
                return self.difference(edition, outputs)
        return self.round_trip_failure(scenario, lines) if code == 0 and lines else None

    def difference(self, edition, outputs):
        (code, mine), (other_code, theirs) = outputs[self.names[0]], outputs[edition]
        same = next((i for i, pair in enumerate(zip(mine, theirs)) if pair[0] != pair[1]), min(len(mine), len(theirs)))
        return Failure(f"difference {code}",
                       f"line {same + 1}\n{self.names[0]} ({code}) shows {''.join(mine[same:same + 1])}\n"
                       f"{edition} ({other_code}) shows {''.join(theirs[same:same + 1])}")

    def round_trip_failure(self, scenario, lines):
        """Loads the cycle that the walk handed back at its end, and hands it back again."""
        handed_back = json.loads(lines[-1]).get("RetrieveCycle")
        if not handed_back:
            return None
        again = scenario.with_suffix(".again")
        again.write_text("SetConfigXML @configuration.xml\nSetXMLStrings @catalogue.xml " + json.dumps(handed_back) +
                         "\nCycleChanged\nRetrieveCycle\n", encoding="utf-8")
        for edition in self.names:
            code, seen = self.play(edition, again)
            if code or [json.loads(line) for line in seen] != [{"CycleChanged": False}, {"RetrieveCycle": handed_back}]:
                return Failure("round trip", f"the cycle handed back does not come back unchanged from {edition}: {again}")
        again.unlink()
        return None


def shrunk(editions, scenario, kind):
    """The shortest scenario that can be reached by leaving out steps and still fails in this way."""
    lines = scenario.read_text(encoding="utf-8").splitlines()
    end = [lines.pop()] if lines[-1] == LAST_STEP else []
    trial = scenario.with_suffix(".trial")

    def fails(candidate):
        trial.write_text("\n".join(candidate + end) + "\n", encoding="utf-8")
        failure = editions.failure_of(trial)
        return failure is not None and failure.kind == kind

    def leave_out(size):
        """Leaves out what can be left out, `size` steps at a time; steps that belong together go together."""
        nonlocal lines
        at = 0
        while at < len(lines):
            candidate = lines[:at] + lines[at + size:]
            if fails(candidate):
                lines = candidate
            else:
                at += size if size > 4 else 1

    size = len(lines) // 2
    while size > 4:
        leave_out(size)
        size //= 2
    before = None
    while before != len(lines):
        before = len(lines)
        for size in (1, 2, 3, 4):
            leave_out(size)
    for rest in (trial, trial.with_suffix(".again")):
        rest.unlink(missing_ok=True)
    return lines + end


def walk(arguments, editions, seed):
    """Walks once; gives what failed, empty when nothing did."""
    scenario = arguments.work / f"walk-{seed}.scenario"
    try:
        walked = subprocess.run([*launcher_of(arguments), arguments.walker, "--seed", str(seed), "--steps", str(arguments.steps), "--samples",
                                 str(arguments.samples), str(scenario)], capture_output=True, timeout=120)
        failure = editions.failure_of(scenario)
        if walked.returncode and not failure:
            failure = Failure("", f"the walker ended with {walked.returncode}: {walked.stderr.decode()}"
                                  f"{walked.stdout.decode()[-400:]}")
    except subprocess.TimeoutExpired:
        failure = Failure("", f"the walker does not end; its steps are in {scenario}")
    if not failure:
        scenario.unlink()
        return ""
    text = f"The walk of seed {seed} failed: {failure.text}\n"
    if failure.kind:
        short = scenario.with_name(f"walk-{seed}-short.scenario")
        short.write_text("\n".join(shrunk(editions, scenario, failure.kind)) + "\n", encoding="utf-8")
        text += f"Shrunk to {short}:\n{short.read_text(encoding='utf-8')}"
    return text


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
    parser.add_argument("--jobs", type=int, default=2, help="how many walks run at a time")
    arguments = parser.parse_args()

    arguments.work.mkdir(parents=True, exist_ok=True)
    for name in ("catalogue.xml", "configuration.xml", "cycle-standard.xml", "cycle-old.xml"):
        (arguments.work / name).write_bytes((arguments.samples / name).read_bytes())
    editions = Editions([*launcher_of(arguments), arguments.player], arguments.editions)
    seeds = range(arguments.first_seed, arguments.first_seed + arguments.seeds)
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        for failure in pool.map(lambda seed: walk(arguments, editions, seed), seeds):
            if failure:
                print(failure, flush=True)
                pool.shutdown(cancel_futures=True)
                return 1
    print(f"{arguments.seeds} walks of {arguments.steps} steps on {', '.join(arguments.editions)}: all rules hold")
    return 0


if __name__ == "__main__":
    sys.exit(main())
