#!/usr/bin/env python3
"""Kills a program that saves without a pause, at random moments: each time the file is whole, the old or the new one."""

import argparse
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

LONGEST_WAIT = 0.03  # seconds; a few savings


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--saver", required=True, help="the program save_loop")
    parser.add_argument("--kills", type=int, default=220)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        contents = [b"<CYCLE><!--" + letter * size + b"--></CYCLE>" for letter, size in ((b"a", 400_000), (b"b", 900_000))]
        sources = [folder / "first.xml", folder / "second.xml"]
        for source, content in zip(sources, contents):
            source.write_bytes(content)
        target = folder / "target" / "cycle.xml"
        target.parent.mkdir()
        target.write_bytes(contents[0])
        found = [0, 0]
        for kill in range(arguments.kills):
            with subprocess.Popen([arguments.saver, target, *sources], stdout=subprocess.PIPE) as saver:
                saver.stdout.readline()
                time.sleep(random.uniform(0, LONGEST_WAIT))
                saver.kill()
            if saver.returncode != -signal.SIGKILL:
                print(f"the saver ended by itself with {saver.returncode}")
                return 1
            content = target.read_bytes()
            if content not in contents:
                print(f"kill {kill + 1}: the file is neither the old nor the new one: {len(content)} bytes")
                return 1
            found[contents.index(content)] += 1
            for leftover in target.parent.iterdir():
                if leftover != target:
                    leftover.unlink()
    print(f"{arguments.kills} kills; found {found[0]} times the one file and {found[1]} times the other")
    # Otherwise nothing has been tested.
    return 0 if min(found) > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
