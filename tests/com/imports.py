#!/usr/bin/env python3
"""Checks that a library needs nothing but what every Windows has, and exports nothing but a component's functions.

`imports.py OBJDUMP FILE`
"""

import re
import subprocess
import sys

SYSTEM = {"advapi32", "comctl32", "comdlg32", "gdi32", "hhctrl", "imm32", "kernel32", "msvcrt", "ole32", "oleacc", "oleaut32",
          "shell32", "shlwapi", "user32", "uxtheme", "version"}
EXPORTS = {"DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer", "DllUnregisterServer"}


def main():
    objdump, file = sys.argv[1:]
    text = subprocess.run([objdump, "-p", file], capture_output=True, text=True, check=True).stdout
    imported = {name.lower().rsplit(".", 1)[0] for name in re.findall(r"DLL Name: (\S+)", text)}
    exports = set(re.findall(r"^\s*\[\s*\d+\](?: \+base\[\s*\d+\])?\s+(?:[0-9a-f]+ )?(Dll\w+|\w+)\s*$",
                             text.split("[Ordinal/Name Pointer] Table", 1)[1], re.MULTILINE))
    problems = [f"{file} needs {name}" for name in sorted(imported - SYSTEM)]
    problems += [f"{file} exports {name}" for name in sorted(exports - EXPORTS)]
    problems += [f"{file} does not export {name}" for name in sorted(EXPORTS - exports)]
    if not imported:
        problems.append(f"no imports were found in {file}")
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
