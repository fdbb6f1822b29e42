#!/usr/bin/env python3
"""Registers the component, runs a client, takes the registration back.

`registered.py [--launcher WINE] --library FILE -- CLIENT ARGUMENT...`: the exit code is the client's; a registration
that fails or cannot be taken back is an error.
"""

import argparse
import subprocess
import sys


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--launcher", help="what runs Windows programs here")
    parser.add_argument("--library", required=True)
    parser.add_argument("client", nargs="+")
    arguments = parser.parse_args()
    launcher = [arguments.launcher] if arguments.launcher else []

    def run(*command):
        return subprocess.run([*launcher, *command], stdin=subprocess.DEVNULL, check=False).returncode

    # For the machine: Wine looks up no classes of a user's own. The machine is the one in Wine's folder.
    if run("regsvr32", "/s", arguments.library) != 0:
        sys.exit("the component could not be registered")
    try:
        code = run(*arguments.client)
    finally:
        unregistered = run("regsvr32", "/s", "/u", arguments.library)
    if unregistered != 0:
        sys.exit("the registration could not be taken back")
    return code


if __name__ == "__main__":
    sys.exit(main())
