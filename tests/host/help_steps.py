#!/usr/bin/env python3
"""Checks the help's examples of steps with the editor itself, played through cyced-play.

Each row of the table "steps" in values.html names a step, the parts of its unit, and numbers: those that fit are taken,
and those that do not are refused.
"""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

PAGE = "{http://www.w3.org/1999/xhtml}"


def examples_of(page):
    """A step, the parts of its unit, a number, and whether it fits; in the order of the page."""
    table = ElementTree.parse(page).find(f".//{PAGE}table[@class='steps']")
    for row in table.iter(f"{PAGE}tr"):
        cells = ["".join(cell.itertext()) for cell in row.findall(f"{PAGE}td")]
        if not cells:
            continue  # the titles
        step, parts, *numbers = cells
        for fits, texts in zip((True, False), numbers, strict=True):
            for number in filter(None, texts.split(", ")):
                yield step, int(parts), number, fits


def is_taken(player, step, parts, number):
    """Whether the editor takes a number in a row of this step."""
    definition = f"Value;0;{100 * parts};0;{float(step) * parts:g};unit"
    catalogue = f"<LATESTKAM><ATOMS><ATOM><AtomName>A</AtomName><Param>{definition}</Param></ATOM></ATOMS></LATESTKAM>"
    unit = f"<UNIT><UNITNAME>unit</UNITNAME><UNITTEXT>unit</UNITTEXT><FACTOR>{parts}</FACTOR></UNIT>"
    steps = [f"SetConfigXML {json.dumps(f'<Config><Units>{unit}</Units></Config>')}",
             f'SetXMLStrings {json.dumps(catalogue)} ""',
             'choose cboAtom "A"', "press GrdAtom 160 25", "hover GrdAtom 160 25", "show toolTip",
             f"edit GrdAtom 1 {json.dumps(number)}", "show GrdAtom"]
    with tempfile.TemporaryDirectory() as folder:
        scenario = pathlib.Path(folder) / "step.scenario"
        scenario.write_text("\n".join(steps) + "\n", encoding="utf-8")
        run = subprocess.run([player, str(scenario)], capture_output=True, timeout=60)
    shown = [json.loads(line) for line in run.stdout.decode("utf-8").splitlines()]
    if run.returncode != 0 or shown[-1]["GrdAtom"]["rows"][0]["value"] != number:
        sys.exit(f"cyced-play ended with {run.returncode}: {(run.stdout + run.stderr).decode('utf-8')[-500:]}")
    if not shown[0]["toolTip"].endswith(f" Step: {step}"):
        sys.exit(f"The row shows no step of {step}: {shown[0]}")
    return not any("MessageBox" in line for line in shown)


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("--player", required=True, help="the program cyced-play")
    parser.add_argument("page", type=pathlib.Path, help="values.html")
    arguments = parser.parse_args()
    examples = list(examples_of(arguments.page))
    if {fits for *_, fits in examples} != {True, False}:
        sys.exit(f"{arguments.page} has no examples of both kinds")
    problems = 0
    for step, parts, number, fits in examples:
        if is_taken(arguments.player, step, parts, number) != fits:
            problems += 1
            answer = "refuses" if fits else "takes"
            print(f"The editor {answer} {number} where the step is {step} and the unit has {parts} parts")
    print(f"{len(examples)} examples looked at")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
