#!/usr/bin/env python3
"""Runs cyced-host off screen on the samples, and checks the files that it writes, what it says and how it ends."""

import argparse
import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

FINE, WRONG_USAGE, UNUSABLE_FILE, NOT_WRITTEN = range(4)


class Smoke:
    def __init__(self, host, samples, folder):
        self.host, self.samples, self.folder = host, samples, folder
        self.failures = []
        self.instrument = ["--catalogue", samples / "catalogue.xml", "--config", samples / "configuration.xml"]

    def run(self, name, arguments, exit_code, says="", environment=()):
        """Runs the program; its exit code and a piece of its output must be as expected. The output is returned."""
        settings = self.folder / "settings"
        variables = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_CONFIG_HOME": str(settings), **dict(environment)}
        variables = {key: value for key, value in variables.items() if value is not None}
        run = subprocess.run([self.host, *map(str, arguments)], capture_output=True, timeout=60, env=variables)
        output = (run.stdout + run.stderr).decode("utf-8")
        if run.returncode != exit_code:
            self.fail(name, f"ended with {run.returncode}, not {exit_code}: {output}")
        if says not in output:
            self.fail(name, f"did not say {says!r}, but {output!r}")
        if settings.exists():
            self.fail(name, "remembered something for the next start")
        return output

    def fail(self, name, problem):
        self.failures.append(f"{name}: {problem}")

    def expect(self, name, condition, problem):
        if not condition:
            self.fail(name, problem)

    def unchanged_cycles(self):
        for cycle in ("cycle-standard.xml", "cycle-1000.xml"):
            out = self.folder / cycle
            self.run(cycle, [*self.instrument, "--cycle", self.samples / cycle, "--out", out, "--quit"], FINE)
            self.expect(cycle, out.is_file() and out.read_bytes() == (self.samples / cycle).read_bytes(),
                        "an unchanged cycle was not handed back as it was")

    def old_cycle(self):
        out, again = self.folder / "new.xml", self.folder / "again.xml"
        self.run("old", [*self.instrument, "--cycle", self.samples / "cycle-old.xml", "--out", out, "--quit"], FINE)
        root = ElementTree.parse(out).getroot()
        old = ElementTree.parse(self.samples / "cycle-old.xml").getroot()
        self.expect("old", root.findtext("VERSION") == "03", "was not written in the newest format")
        self.expect("old", "blank < 5 counts & no 'ghost' peaks" in root.findtext("DESCRIPTION"), "lost its description")
        self.expect("old", [e.text for e in root.iter("ATOMLINE")] == [e.text for e in old.iter("ATOMLINE")],
                    "has other lines now")
        self.run("old again", [*self.instrument, "--cycle", out, "--out", again, "--quit"], FINE)
        self.expect("old again", again.read_bytes() == out.read_bytes(), "changed in another round")

    def encodings(self):
        text = (self.samples / "cycle-standard.xml").read_text(encoding="utf-8")
        for encoding in ("utf-8-sig", "utf-16", "iso-8859-1"):
            cycle, out = self.folder / f"{encoding}.xml", self.folder / f"{encoding}-out.xml"
            declaration = f'<?xml version="1.0" encoding="{encoding}"?>\n' if encoding == "iso-8859-1" else ""
            body = text.replace("–", "-")
            cycle.write_bytes((declaration + body).encode(encoding))
            self.run(encoding, [*self.instrument, "--cycle", cycle, "--out", out, "--quit"], FINE)
            self.expect(encoding, out.read_bytes() == body.encode("utf-8"), "came back differently")

    def macro_text(self):
        macro, out = self.folder / "macro.txt", self.folder / "macro.xml"
        macro.write_bytes("[PMA]\n//Spülen\nWAIT(2.5)\nWAIT(3)".encode("utf-8"))
        self.run("macro", [*self.instrument, "--cycle", macro, "--out", out, "--quit"], FINE)
        lines = [line.text for line in ElementTree.parse(out).getroot().iter("ATOMLINE")]
        self.expect("macro", lines == ["WAIT(2.5,)", "WAIT(3,)"], f"has the lines {lines}")

    def screenshots(self):
        for name, more in (("empty", []), ("cycle", ["--cycle", self.samples / "cycle-standard.xml"])):
            picture = self.folder / f"{name}.png"
            self.run(name, [*self.instrument, *more, "--screenshot", picture, "--quit"], FINE)
            data = picture.read_bytes()
            width, height = struct.unpack(">II", data[16:24])
            self.expect(name, data[:8] == b"\x89PNG\r\n\x1a\n", "is no PNG picture")
            self.expect(name, width >= 600 and height >= 400, f"is only {width} x {height}")
        self.expect("screenshots", (self.folder / "empty.png").read_bytes() != (self.folder / "cycle.png").read_bytes(),
                    "show the same with and without a cycle")
        self.run("no files", ["--screenshot", self.folder / "bare.png", "--quit"], FINE)

    def without_display(self):
        bare = {"QT_QPA_PLATFORM": None, "DISPLAY": None, "WAYLAND_DISPLAY": None}.items()
        self.run("no display, --quit", [*self.instrument, "--quit"], FINE, environment=bare)
        self.run("no display", self.instrument, WRONG_USAGE, "There is no display", environment=bare)

    def usage(self):
        self.run("--help", ["--help"], FINE, "Exit codes:")
        self.run("--version", ["--version"], FINE, "cyced-host ")
        self.run("unknown option", ["--bogus"], WRONG_USAGE, "--bogus")
        self.run("missing value", ["--cycle"], WRONG_USAGE, "--cycle")
        self.run("cycle alone", ["--cycle", self.samples / "cycle-old.xml", "--quit"], WRONG_USAGE, "--catalogue")
        self.run("out alone", [*self.instrument, "--out", self.folder / "x.xml", "--quit"], WRONG_USAGE, "--cycle")

    def unusable_files(self):
        broken = self.folder / "broken.xml"
        broken.write_text("<CYCLE>\n  <VARIABLES>\n</CYCLE>\n")
        incomplete = self.folder / "incomplete.xml"
        incomplete.write_text("<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM/></ATOMS></ATOMSEQUENCE></CYCLE>")
        out = self.folder / "never.xml"
        cycles = {
            self.folder / "none.xml": "There is no such file.",
            self.samples: "It is a folder or a device",
            broken: "Line 3, column ",
            self.samples / "catalogue.xml": "This looks like a catalogue.",
            incomplete: "in part only",
        }
        for cycle, says in cycles.items():
            self.run(cycle.name, [*self.instrument, "--cycle", cycle, "--out", out, "--quit"], UNUSABLE_FILE, says)
        self.run("catalogue", ["--catalogue", broken, "--quit"], UNUSABLE_FILE, "The catalogue ")
        self.run("configuration", ["--config", broken, "--quit"], UNUSABLE_FILE, "The configuration ")
        self.expect("unusable", not out.exists(), "something was written all the same")

    def unwritable_files(self):
        cycle = [*self.instrument, "--cycle", self.samples / "cycle-standard.xml", "--quit"]
        self.run("out: folder", [*cycle, "--out", self.folder], NOT_WRITTEN, "It is a folder.")
        pipe = self.folder / "pipe"  # stands in for a device: a real one would be gone where this fails
        os.mkfifo(pipe)
        self.run("out: device", [*cycle, "--out", pipe], NOT_WRITTEN, "It is a device, not a file.")
        self.expect("out: device", pipe.is_fifo(), "the pipe was replaced")
        self.run("out: no folder", [*cycle, "--out", self.folder / "none" / "x.xml"], NOT_WRITTEN, "There is no folder")
        self.run("screenshot", [*cycle, "--screenshot", self.folder], NOT_WRITTEN, "It is a folder.")
        empty = self.folder / "without-lines.xml"
        empty.write_text("<CYCLE><DESCRIPTION>//a</DESCRIPTION><VARIABLES/>"
                         "<ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>")
        old = self.folder / "old.xml"
        old.write_text("old")
        self.run("out: no lines", [*self.instrument, "--cycle", empty, "--out", old, "--quit"], NOT_WRITTEN,
                 "The cycle has no atom lines")
        self.expect("out: no lines", old.read_text() == "old", "the file was replaced by nothing")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--host", required=True, help="the program cyced-host")
    parser.add_argument("samples", type=pathlib.Path, help="the folder of the samples")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        smoke = Smoke(arguments.host, arguments.samples.resolve(), pathlib.Path(folder))
        for check in (smoke.unchanged_cycles, smoke.old_cycle, smoke.encodings, smoke.macro_text, smoke.screenshots,
                      smoke.without_display, smoke.usage, smoke.unusable_files, smoke.unwritable_files):
            check()
    for failure in smoke.failures:
        print(failure)
    return 1 if smoke.failures else 0


if __name__ == "__main__":
    sys.exit(main())
