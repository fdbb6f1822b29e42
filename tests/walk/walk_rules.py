"""What has to hold behind every step of a walk, read from what the player wrote."""

import json
import re

INVALID_XML = -2147220991  # the error event of a catalogue that cannot be used


def lines_problem(shown):
    """The lines of the sequence list are numbered in order."""
    numbers = [int(item.split(" ")[0]) for item in shown["lstAtomSequence"]["items"]]
    return "" if numbers == list(range(1, len(numbers) + 1)) else "the lines are not numbered in order"


def atoms_problem(shown):
    """The list shows the atom lines, behind their numbers and the indent."""
    names = [re.sub("^[0-9]+ +", "", item) for item in shown["lstAtomSequence"]["items"]]
    return "" if names == [atom["AtomName"] for atom in shown["atoms"]] else "the list does not show the atom lines"


def grid_problem(shown):
    """The current row is a parameter row, or 0 when there is none."""
    row, count = shown["GrdAtom"]["row"], len(shown["GrdAtom"]["rows"])
    return "" if (1 <= row <= count if count else row == 0) else "the current row is no row"


def rows_problem(shown):
    """The row table describes the rows of the grid, one by one."""
    table, grid = shown["rows"], shown["GrdAtom"]["rows"]
    if len(table) != len(grid):
        return f"the row table has {len(table)} entries for {len(grid)} rows"
    for entry, seen in zip(table, grid):
        if entry["Items"] != ";".join(seen["items"]):
            return "the pick lists are not those of the row table"
        unit = re.fullmatch(r".*\((.*)\)", seen["key"])
        if unit and unit[1] != entry["Unit"]:
            return "the units are not those of the row table"
        if any(name and name not in seen["items"] for name in entry["ExtraValues"].split(";")) and seen["items"]:
            return "an extra value is not in the pick list"
    return ""


def state_problem(shown):
    """No step leaves the grid half filled."""
    return "" if shown["state"]["gridReady"] else "the grid is not ready"


# What a rule needs to have been shown since the last step that may have changed something.
RULES = {lines_problem: {"lstAtomSequence"}, atoms_problem: {"lstAtomSequence", "atoms"}, grid_problem: {"GrdAtom"},
         rows_problem: {"GrdAtom", "rows"}, state_problem: {"state"}}


def broken_rule(output, steps, code):
    """The first rule that a walk's output breaks, as a text; empty when it breaks none."""
    shown = {}
    errors = 0
    showing = {step for step in steps if step.startswith("show ")}
    step = iter(steps)
    for line in output:
        name, value = next(iter(json.loads(line).items()))
        if name == "CycleEditorError":
            errors += 1
            if value["lngError"] != INVALID_XML:
                return f"an error event: {line}"
        if f"show {name}" not in showing:
            continue
        while next(step) != f"show {name}":
            shown = {}
        shown[name] = value
        for rule, needed in RULES.items():
            problem = rule(shown) if name in needed and needed <= shown.keys() else ""
            if problem:
                return f"{problem}: {line}"
    unusable = sum(step.startswith(('SetXMLStrings "" ', 'SetXMLStrings "<LATESTKAM>" ')) for step in steps)
    if code == 0 and errors != unusable:
        return f"{unusable} catalogues cannot be used: {errors} error events"
    return ""
