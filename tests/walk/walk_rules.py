"""What has to hold behind every step of a walk, read from what the player wrote."""

import json
import re

INVALID_XML = -2147220991  # the error event of a catalogue that cannot be used, and of a cycle that cannot be written
# What the members that write the cycle answer when it cannot be written.
NOTHING_WRITTEN = {"CycleChanged ": {"CycleChanged": False}, "RetrieveCycle ": {"RetrieveCycle": ""}}


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


class HistoryRules:
    """What undo and redo bring back: the lines, the variables and the description, as far as they were shown."""

    NEEDED = {"atoms", "lstVariables", "txtCycleDescription", "history"}

    def __init__(self):
        self.step = ""
        self.now = None  # the cycle behind this step, None until it is shown
        self.loaded = None
        self.loaded_changed = None  # what CycleChanged said behind the load, None when it was not asked
        self.comparable = False  # no hand-back came between
        self.undone = []  # the cycles from which the steps that can be done again were undone
        self.wanted = None  # the cycle to which a redo has to lead

    def on_step(self, step):
        """A step that changes or may change something; what it leaves is shown next."""
        before, self.now = self.now, None
        if step.startswith("SetXMLStrings "):
            self.loaded = self.loaded_changed = None
            self.comparable = True
        if step == "RetrieveCycle":
            self.comparable = False
        self.wanted = None
        if step == "undo":
            self.undone.append(before)
        elif step == "redo":
            self.wanted = self.undone.pop() if self.undone else None
        elif before is None:
            self.undone = []
        self.step = step

    def problem_of_shown(self, shown):
        history = shown["history"]
        self.now = (shown["atoms"], shown["lstVariables"]["items"], shown["txtCycleDescription"]["text"])
        if history["redo"] is None:
            self.undone = []
        if self.step.startswith("SetXMLStrings "):
            self.loaded = self.now
            return "" if history == {"undo": None, "redo": None} else "a load leaves steps to undo"
        if history["undo"] is None and self.loaded not in (None, self.now):
            return "with nothing to undo the cycle is another one than was loaded"
        if self.wanted not in (None, self.now):
            return "a step that was done again leads to another cycle than before"
        return ""

    def problem_of_changed(self, changed):
        if self.step.startswith("SetXMLStrings "):
            self.loaded_changed = changed
        comparable = self.comparable and None not in (self.loaded, self.loaded_changed)
        if comparable and self.now == self.loaded and changed != self.loaded_changed:
            return "what was loaded reads changed otherwise than behind the load"
        return ""


def broken_rule(output, steps, code):
    """The first rule that a walk's output breaks, as a text; empty when it breaks none."""
    shown = {}
    unusable = 0
    wanted = None  # the next line
    history = HistoryRules()
    showing = {step for step in steps if step.startswith("show ")}
    step = iter(steps)

    def go_on_to(wanted):
        """Behind the step that wrote the line."""
        nonlocal shown
        while (taken := next(step)) != wanted:
            if not taken.startswith("show "):
                history.on_step(taken)
            shown = {}

    for line in output:
        name, value = next(iter(json.loads(line).items()))
        if wanted not in (None, {name: value}):
            return f"a cycle that cannot be written is handed back: {line}"
        wanted = None
        if name == "CycleEditorError":
            if value["lngError"] != INVALID_XML:
                return f"an error event: {line}"
            wanted = NOTHING_WRITTEN.get(value["strProcedure"])
            unusable += wanted is None
        if name == "CycleChanged":
            go_on_to(name)
            problem = history.problem_of_changed(value)
            if problem:
                return f"{problem}: {line}"
            shown = {}
        if f"show {name}" not in showing:
            continue
        go_on_to(f"show {name}")
        shown[name] = value
        for rule, needed in RULES.items():
            problem = rule(shown) if name in needed and needed <= shown.keys() else ""
            if problem:
                return f"{problem}: {line}"
        if name in HistoryRules.NEEDED and HistoryRules.NEEDED <= shown.keys():
            problem = history.problem_of_shown(shown)
            if problem:
                return f"{problem}: {line}"
    loads = sum(step.startswith(('SetXMLStrings "" ', 'SetXMLStrings "<LATESTKAM>" ')) for step in steps)
    if code == 0 and unusable != loads:
        return f"{loads} catalogues cannot be used: {unusable} error events"
    return ""
