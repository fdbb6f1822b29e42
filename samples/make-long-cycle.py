#!/usr/bin/env python3
"""Writes a long cycle for catalogue.xml and configuration.xml, the same one every time.

`make-long-cycle.py --output cycle-1000.xml` makes the sample of this name; `--lines` makes others, up to the very long
ones that show how the editor scales. Without `--output` the cycle goes to the standard output.
"""

import argparse
import pathlib
import sys

SHORTEST = 2  # the repetition and its end
STAMP = "2024-03-11T08:30:00"

DESCRIPTION = [
    "Plate screening, written by make-long-cycle.py.",
    "Every well: take the sample, add the internal standard, incubate, inject.",
    "Temperatures in °C, volumes in µl – the operator refills the buffer after half of the wells.",
]
VARIABLES = [
    "Sample volume (ul);10;1;1000",
    "Incubation (min);10;1;240",
    "Rinses ();2;1;20",
    "Sample tray;TRAY",
]
TRAYS = ["Tray_A", "Tray_B", "Tray_C", "Tray_D", "Cooled_Tray", "Sample tray"]


def repeat(times):
    return ("REPEAT", [("Repetitions", times)])


END = ("END", [])


def well(number):
    """The atom lines for one well, with blocks in blocks; what they hold depends on the number only."""
    tray = TRAYS[number // 96 % len(TRAYS)]
    position = str(number % 96 + 1)
    volume = "Sample volume" if number % 3 == 0 else f"{10 + number % 40 * 0.5:g}"
    yield ("PICK_UP_SYRINGE", [("Syringe", ("Syringe_100", "Syringe_250", "SYR")[number % 3])])
    yield repeat("Rinses" if number % 2 else "2")
    yield ("ASPIRATE", [("Volume(ul)", "SYR.Half_Volume"), ("Source", "Water"), ("Position", "1"),
                        ("Speed(ul/s)", "SYR.Fill_Speed"), ("Depth(mm)", "30")])
    yield ("DISPENSE", [("Volume(ul)", "SYR.Half_Volume"), ("Target", "Waste_Front"), ("Position", "1"),
                        ("Speed(ul/s)", "SYR.Eject_Speed"), ("Depth(mm)", "10")])
    yield END
    yield ("AIR_GAP", [("Volume(ul)", f"{1 + number % 10 * 0.5:g}")])
    yield ("ASPIRATE", [("Volume(ul)", volume), ("Source", tray), ("Position", position), ("Speed(ul/s)", "10"),
                        ("Depth(mm)", f"{30 + number % 50 * 0.1:g}")])
    yield repeat(str(number % 4 + 1))
    yield ("MIX", [("Target", tray), ("Position", position), ("Strokes", "3"), ("Volume(ul)", "50"),
                   ("Speed(ul/s)", "")])
    yield repeat("2")
    yield ("WAIT", [("Time(s)", f"{1 + number % 30 * 0.5:g}")])
    yield END
    yield END
    yield ("INCUBATE", [("Zone", "Oven"), ("Temperature(°C)", f"{37 + number % 7 * 0.5:g}"),
                        ("Time(min)", "Incubation"), ("Agitation", "On" if number % 2 else "Off")])
    yield ("INJECT", [("Injector", f"Injector_{number % 2 + 1}"), ("Volume(ul)", volume), ("Speed(ul/s)", "5"),
                      ("Dwell before(s)", "0.5"), ("Dwell after(s)", "0")])
    yield ("WASH_NEEDLE", [("Station", "Wash_Deep"), ("Rinses", "Rinses"), ("Volume(ul)", "100"),
                           ("Mode", "Standard")])


def sequence(lines):
    """As many atom lines as asked for: a repetition around wells, the last one cut short by waits."""
    inner, number = [], 0
    while True:
        atoms = list(well(number))
        if len(inner) + len(atoms) > lines - 2:
            break
        inner += atoms
        number += 1
    inner += [("WAIT", [("Time(s)", "1")])] * (lines - 2 - len(inner))
    return [repeat("1"), *inner, END]


def element(indent, name, text=None):
    """One element on a line of its own; the texts here hold nothing that XML needs escaped."""
    content = f"<{name}>{text}</{name}>" if text else f"<{name}/>"
    return f"{'  ' * indent}{content}\n"


def container(indent, name, lines):
    if not lines:
        return element(indent, name)
    blanks = "  " * indent
    return f"{blanks}<{name}>\n{''.join(lines)}{blanks}</{name}>\n"


def atom_element(name, parameters):
    parameter_elements = [
        container(5, "PARAMETER", [element(6, "PARAMNAME", parameter), element(6, "PARAMVALUE", value)])
        for parameter, value in parameters
    ]
    return container(3, "ATOM", [element(4, "ATOMNAME", name), container(4, "PARAMETERS", parameter_elements)])


def summary(name, parameters):
    return name + "(" + "".join(value + "," for _, value in parameters) + ")"


def cycle(description, variables, atoms):
    """The cycle document in the form in which the editor hands it back."""
    parts = [
        element(1, "DESCRIPTION", "//" + "\n".join(description)),
        container(1, "VARIABLES", [element(2, "VALUE", variable) for variable in variables]),
        container(1, "CYCLEATOMS", [element(2, "ATOMLINE", summary(*atom)) for atom in atoms]),
        container(1, "ATOMSEQUENCE", [container(2, "ATOMS", [atom_element(*atom) for atom in atoms])]),
        element(1, "VERSION", "03"),
    ]
    return f'<CYCLE Created="{STAMP}" Modified="{STAMP}">\n{"".join(parts)}</CYCLE>\n'


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("--lines", type=int, default=1000, help="how many atom lines (default: %(default)s)")
    parser.add_argument("--output", type=pathlib.Path, help="the file to write (default: the standard output)")
    arguments = parser.parse_args()
    if arguments.lines < SHORTEST:
        parser.error(f"--lines: {SHORTEST} is the least")
    written = cycle(DESCRIPTION, VARIABLES, sequence(arguments.lines)).encode("utf-8")
    try:
        if arguments.output is None:
            sys.stdout.buffer.write(written)
            sys.stdout.buffer.flush()
        else:
            arguments.output.write_bytes(written)
    except OSError as error:
        sys.exit(f"The cycle could not be written: {error}")


if __name__ == "__main__":
    main()
