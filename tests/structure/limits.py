#!/usr/bin/env python3
"""Checks all files of a tree: none is too long, none names a folder of the machine that it was written on.

`limits.py TREE` checks a tree; `limits.py --self-test` checks this check.
"""

import argparse
import pathlib
import re
import sys
import tempfile

LONGEST_SOURCE = 500
SOURCE_FOLDERS = ("src", "apps", "bench")
LEFT_OUT = re.compile(r"\.git|\.cache|build.*|__pycache__")

# Top folders in which people and build machines keep their checkouts. The look-behind spares relative paths and
# addresses that merely contain such a name.
MACHINE_FOLDERS = ("home", "Users", "work", "workspace", "builds")
MACHINE_PATH = re.compile(r"(?<![\w.:/~$}\-])/(" + "|".join(MACHINE_FOLDERS) + r")(/[^\s\"'`]*|\b)")


def files_of(folder):
    for entry in sorted(folder.iterdir()):
        if entry.is_dir() and not entry.is_symlink():
            if not LEFT_OUT.fullmatch(entry.name):
                yield from files_of(entry)
        elif entry.is_file() and entry.name != ".git":
            yield entry


def check(tree):
    """The problems of a tree and the number of files looked at."""
    problems, count = [], 0
    own_path = f"{tree}/" if len(tree.parts) > 2 else None  # "/src/" and the like would match by chance
    for file in files_of(tree):
        content = file.read_bytes()
        if b"\0" in content:
            continue
        count += 1
        name = file.relative_to(tree)
        lines = content.decode("utf-8", errors="replace").splitlines()
        if name.parts[0] in SOURCE_FOLDERS and len(lines) > LONGEST_SOURCE:
            problems.append(f"{name}:{LONGEST_SOURCE + 1}: {len(lines)} lines, and {LONGEST_SOURCE} are the most; "
                            "split it along what it does")
        for number, line in enumerate(lines, start=1):
            match = MACHINE_PATH.search(line)
            path = match.group() if match else own_path if own_path and own_path in line else None
            if path:
                problems.append(f"{name}:{number}: names the machine's folder {path}; "
                                "name it from the top of this tree on")
    return problems, count


def self_test():
    home = "/" + MACHINE_FOLDERS[0]
    cases = [
        ("src/text/Long.cpp", "\n" * (LONGEST_SOURCE + 1), "src/text/Long.cpp:501: 501 lines"),
        ("src/text/Fits.cpp", "\n" * LONGEST_SOURCE, None),
        ("samples/long.xml", "\n" * (LONGEST_SOURCE + 1), None),
        ("docs/guide.md", f"first\nsee {home}/somebody/tree", f"docs/guide.md:2: names the machine's folder {home}"),
        ("bench/result.json", f'"{home}/x/y"', "bench/result.json:1:"),
        ("docs/guide.md", f"docs{home}/page and https://example.org{home}/page and ~{home}", None),
        ("docs/guide.md", "TREE/src/text/Strings.h", "docs/guide.md:1: names the machine's folder TREE"),
        ("build-debug/log.txt", f"{home}/somebody", None),
        ("samples/picture.png", f"\0{home}/somebody", None),
    ]
    failures = []
    for name, text, expected in cases:
        with tempfile.TemporaryDirectory() as folder:
            tree = pathlib.Path(folder).resolve()
            (tree / name).parent.mkdir(parents=True)
            (tree / name).write_text(text.replace("TREE", str(tree)), encoding="utf-8")
            found = [problem.replace(str(tree), "TREE") for problem in check(tree)[0]]
        if (expected is None and found) or (expected and not any(expected in problem for problem in found)):
            failures.append(f"{name}: expected {expected!r}; reported: {found}")
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tree", nargs="?", type=pathlib.Path)
    parser.add_argument("--self-test", action="store_true")
    arguments = parser.parse_args()
    if arguments.self_test:
        problems = self_test()
    elif arguments.tree is not None:
        problems, count = check(arguments.tree.resolve())
        print(f"{count} files looked at")
    else:
        parser.error("name a tree or --self-test")
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
