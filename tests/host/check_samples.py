#!/usr/bin/env python3
"""Checks the samples with the editor itself, played through cyced-play.

Every cycle loads unchanged, its lines hold the parameters that the catalogue gives their atoms, and the editor takes
every line again as a replacement of itself. Every limit and every default of the catalogue and of the configuration
may be inserted. cycle-1000.xml is what make-long-cycle.py writes.
"""

import argparse
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

OLDEST_REWRITABLE = 3
CLASS_NAME = re.compile(r"[A-Z_]{2,}")


class Samples:
    def __init__(self, folder, player):
        self.folder, self.player = folder, player
        self.catalogue = ElementTree.parse(folder / "catalogue.xml").getroot()
        self.configuration = ElementTree.parse(folder / "configuration.xml").getroot()
        self.problems = []
        constants = self.catalogue.findall("CLASSES/CLASS[CLASSName='SYRINGE']/*")[1:]
        self.offered = {"user_index"} | {"SYR." + constant.text.split(";")[0] for constant in constants}
        self.offered |= {argument.text for argument in self.configuration.iter("ARGUMENT")}

    def complain(self, problem):
        self.problems.append(problem)

    def play(self, cycle, steps):
        """What the steps show, as parsed lines."""
        load = [f"SetConfigXML @{self.folder / 'configuration.xml'}",
                f"SetXMLStrings @{self.folder / 'catalogue.xml'} {cycle}"]
        with tempfile.TemporaryDirectory() as folder:
            scenario = pathlib.Path(folder) / "samples.scenario"
            scenario.write_text("\n".join(load + steps) + "\n", encoding="utf-8")
            run = subprocess.run([self.player, str(scenario)], capture_output=True, timeout=120)
        if run.returncode != 0:
            sys.exit(f"cyced-play ended with {run.returncode}: {(run.stdout + run.stderr).decode('utf-8')[-500:]}")
        return [json.loads(line) for line in run.stdout.decode("utf-8").splitlines()]

    def answers(self, name, shown, wanted):
        """The shown lines of a kind; every other one, a message or an error event, is a problem."""
        for line in shown:
            if wanted not in line:
                self.complain(f"{name}: {json.dumps(line, ensure_ascii=False)}")
        return [line[wanted] for line in shown if wanted in line]

    def check_cycle(self, file):
        text = file.read_bytes().decode("utf-8")
        root = ElementTree.fromstring(text)
        atoms = root.findall("ATOMSEQUENCE/ATOMS/ATOM")
        written = self.answers(file.name, self.play(f"@{file}", ["RetrieveCycle"]), "RetrieveCycle")
        if int(root.findtext("VERSION")) >= OLDEST_REWRITABLE and written != [text]:
            self.complain(f"{file.name}: the editor writes it differently")

        variables = {value.text.split(";")[0].split("(")[0].strip() for value in root.findall("VARIABLES/VALUE")}
        steps = []
        for index in range(len(atoms)):
            steps += [f"select lstAtomSequence {index}", "show cboAtom", "show GrdAtom", "click cmdReplace"]
        shown = self.play(f"@{file}", ["CycleChanged", *steps, "CycleChanged"])
        changes = [line for line in shown if "CycleChanged" in line]
        if changes != [{"CycleChanged": False}] * 2:
            self.complain(f"{file.name}: it does not stay unchanged: {changes}")
        combos = [line["cboAtom"] for line in shown if "cboAtom" in line]
        rest = [line for line in shown if "CycleChanged" not in line and "cboAtom" not in line]
        grids = self.answers(file.name, rest, "GrdAtom")
        for number, (atom, combo, grid) in enumerate(zip(atoms, combos, grids, strict=True), start=1):
            self.check_line(f"{file.name}, line {number}", atom, combo, grid, variables)

    def check_line(self, place, atom, combo, grid, variables):
        if combo["text"] != atom.findtext("ATOMNAME"):
            self.complain(f"{place}: there is no atom {atom.findtext('ATOMNAME')}")
        held = [(parameter.findtext("PARAMNAME"), parameter.findtext("PARAMVALUE"))
                for parameter in atom.findall("PARAMETERS/PARAMETER")]
        rows = [row for row in grid["rows"] if row["key"]]
        if held != [(row["key"], row["value"]) for row in rows]:
            self.complain(f"{place}: {held} are not the parameters {[row['key'] for row in rows]}")
        for row in rows:
            if not self.may_stand(row["value"], row["items"], variables):
                self.complain(f"{place}: {row['key']} offers no {row['value']}")

    def may_stand(self, value, items, variables):
        if items:
            return value in items or value in variables
        terms = [term.strip() for term in value.replace("-", "+").split("+")]
        return value in self.offered or all(
            term == "" or term in variables or re.fullmatch(r"\d+(\.\d+)?", term) for term in terms)

    def check_definitions(self):
        factors = {unit.findtext("UNITNAME"): int(unit.findtext("FACTOR"))
                   for unit in self.configuration.findall("Units/UNIT")}
        atoms = self.catalogue.findall("ATOMS/ATOM") + self.configuration.findall("FurtherAtoms/ATOM")
        definitions = {}
        for atom in atoms:
            name = atom.findtext("AtomName").replace("!", "")
            definitions.setdefault(name, []).extend(definition.text for definition in atom.findall("Param"))
        steps, inserted = ["Ignore_Hidden true", "SetXMLStrings " + f"@{self.folder / 'catalogue.xml'} \"\""], 0
        for name, texts in definitions.items():
            steps += [f'choose cboAtom "{name}"', "show GrdAtom", "click cmdInset"]
            inserted += 1
            for row, definition in enumerate(texts, start=1):
                fields = definition.split(";")
                if "#" in fields[0] or CLASS_NAME.fullmatch(fields[1]):
                    continue
                if fields[-1] not in factors:
                    self.complain(f"{name}: the configuration has no unit {fields[-1]}")
                    continue
                for value in fields[1:4]:
                    shown = f"{int(value) / factors[fields[-1]]:g}"
                    steps += [f'edit GrdAtom {row} "{shown}"', "click cmdInset"]
                    inserted += 1
        shown = self.play('""', steps + ["show lstAtomSequence"])
        sequence = [line for line in shown if "lstAtomSequence" in line]
        grids = self.answers("catalogue", [line for line in shown if "lstAtomSequence" not in line], "GrdAtom")
        if len(sequence[0]["lstAtomSequence"]["items"]) != inserted:
            self.complain(f"catalogue: {inserted} lines should have been inserted: {sequence}")
        for (name, texts), grid in zip(definitions.items(), grids, strict=True):
            rows = [row for row in grid["rows"] if row["key"]]
            if len(rows) != len(texts):
                self.complain(f"{name}: {len(texts)} definitions, {len(rows)} rows")
            for definition, row in zip(texts, rows):
                chosen = "#" in definition or CLASS_NAME.fullmatch(definition.split(";")[1])
                if chosen and (not row["items"] or row["value"] not in row["items"]):
                    self.complain(f"{name}: nothing to choose from in {row}")

    def check_long_cycle(self):
        """With and without a file to write to: the first writes that file, the second none."""
        wanted = (self.folder / "cycle-1000.xml").read_bytes()
        with tempfile.TemporaryDirectory() as folder:
            program = shutil.copy(self.folder / "make-long-cycle.py", folder)
            copy = pathlib.Path(folder) / "copy.xml"
            subprocess.run([sys.executable, program, "--output", copy], check=True)
            if copy.read_bytes() != wanted:
                self.complain("cycle-1000.xml: make-long-cycle.py writes another one")
            before = sorted(pathlib.Path(folder).iterdir())
            run = subprocess.run([sys.executable, program, "--lines", "2"], cwd=folder, check=True, capture_output=True)
            if len(ElementTree.fromstring(run.stdout).findall("ATOMSEQUENCE/ATOMS/ATOM")) != 2:
                self.complain("make-long-cycle.py: no cycle of two lines on the standard output")
            if sorted(pathlib.Path(folder).iterdir()) != before:
                self.complain("make-long-cycle.py: it writes a file although none was named")


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("--player", required=True, help="the program cyced-play")
    parser.add_argument("folder", type=pathlib.Path, help="the folder of the samples")
    arguments = parser.parse_args()
    samples = Samples(arguments.folder.resolve(), arguments.player)
    samples.check_definitions()
    for file in sorted(samples.folder.glob("cycle-*.xml")):
        samples.check_cycle(file)
    samples.check_long_cycle()
    for problem in samples.problems:
        print(problem)
    return 1 if samples.problems else 0


if __name__ == "__main__":
    sys.exit(main())
