#!/usr/bin/env python3
"""Checks who includes whom: the layers of the system, cycles between rooms, cycles between files.

A room is a folder of src/. `layers.py TREE` checks a tree; `layers.py --self-test` checks this check.
"""

import argparse
import pathlib
import re
import sys
import tempfile
from typing import NamedTuple

# What each room may include besides itself. A room that is missing here may include nothing and is reported.
BELOW_PANELS = ("platform", "text", "document", "catalogue", "rules", "cycle")
CORE = (*BELOW_PANELS, "panels", "control")
ROOMS = {
    "platform": (),
    "text": ("platform",),
    "document": ("platform", "text"),
    "kit": ("platform", "text"),
    "catalogue": ("platform", "text"),
    "rules": ("platform", "text", "document", "catalogue"),
    "cycle": ("platform", "text", "document", "catalogue", "rules"),
    "panels": BELOW_PANELS,
    "control": (*BELOW_PANELS, "panels"),
    "libxml2": ("platform", "text"),
    "headless": (*BELOW_PANELS, "libxml2"),
    "memory": (*CORE, "kit"),
    "qt": (*CORE, "kit", "libxml2"),
    "win32": (*CORE, "kit"),
    "com": (*CORE, "kit", "libxml2", "win32"),
}

# The headers of the public folder include/mavCycEd, by the room that each belongs to.
PUBLIC_FOLDER = pathlib.PurePath("include/mavCycEd")
PUBLIC_HEADERS = {
    "document": ("Cycle.h", "CycleDocument.h", "CycleEdit.h", "ParameterText.h", "VariableDefinition.h"),
    "rules": ("ValueFault.h", "VariableUses.h"),
    "cycle": ("CycleFacts.h", "MacroLosses.h", "UnwritablePlace.h"),
    "headless": ("Catalogue.h", "Configuration.h", "CycleCheck.h", "CycleReading.h", "CycleWriting.h", "ParameterRow.h",
                 "TextFault.h"),
}
ROOM_OF_PUBLIC_HEADER = {header: room for room, headers in PUBLIC_HEADERS.items() for header in headers}

# Single headers behind which the rest of their room stays hidden from other rooms.
ONLY_HEADER_FOR_ROOMS = {"libxml2": "libxml2/Libxml2DocumentFactory.h"}

# The headers of a lower room that a room may include where it may not include all of them: no port of a screen, here.
SOME_HEADERS = {
    ("document", "platform"): ("RunTimeError.h",),
    ("rules", "platform"): ("ErrorSink.h", "RunTimeError.h", "XmlContent.h", "XmlDocument.h", "XmlNode.h"),
}

# Headers of libraries, by room. A room that is missing here has the C++ standard library only.
LIBRARIES = {
    "libxml2": re.compile(r"libxml/\w+\.h"),
    "qt": re.compile(r"Q\w+(/\w+)?"),
    "com": re.compile(r"(objsafe|ocidl|ole2|oleauto|olectl|initguid|mavCycEdTypes)\.h"),
    "win32": re.compile(r"(windows|windowsx|commctrl|oleacc|oleauto|shellapi|uxtheme|vssym32)\.h"),
}

STANDARD_HEADERS = frozenset("""
    algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view
    strstream syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility
    valarray variant vector version
""".split())

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)
# Raw strings and comments hide includes; ordinary strings are matched so that "/*" inside one starts no comment.
RAW_STRING = r'R"(?P<mark>[^()\\ ]{0,16})\(.*?\)(?P=mark)"'
COMMENT = r"//[^\n]*|/\*.*?\*/"
STRING = r"\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])+'"
HIDING = re.compile(f"(?P<hidden>{RAW_STRING}|{COMMENT})|{STRING}", re.DOTALL)


class Include(NamedTuple):
    line: int
    quoted: bool
    name: str


class Check:
    def __init__(self, tree):
        self.tree = tree
        self.source_folder = tree / "src"
        # What hosts include, in angle brackets too.
        self.public_folders = [tree / "include", *sorted(self.source_folder.glob("*/include"))]
        self.problems = []
        self.files = {}  # file -> its includes of our own files, as (file, line)
        self.rooms = {}  # room -> room -> the first include that leads there, as "file:line"

    def run(self):
        for folder in ("include", "src", "apps", "tests", "bench", "fuzz", "examples"):
            for file in sorted((self.tree / folder).rglob("*")):
                if file.suffix in (".h", ".cpp") and file.is_file():
                    self.check_file(file)
        self.report_cycles("files", {file: [target for target, _ in found] for file, found in self.files.items()},
                           lambda file: self.place(file, 1),
                           "move what both need into a header of its own, or declare instead of including")
        self.report_cycles("rooms", {room: list(found) for room, found in self.rooms.items()},
                           lambda room: next(iter(self.rooms[room].values())),
                           "let the lower room offer an interface that the higher one implements")
        return self.problems

    def place(self, file, line):
        return f"{file.relative_to(self.tree)}:{line}"

    def report(self, place, problem, remedy):
        self.problems.append(f"{place}: {problem}; {remedy}")

    def room_of(self, file):
        """The room that a file of src/ or a public header belongs to; None for all other files."""
        if self.is_public(file):
            return ROOM_OF_PUBLIC_HEADER.get(file.name, file.name)
        if self.source_folder not in file.parents:
            return None
        return file.relative_to(self.source_folder).parts[0]

    def is_public(self, file):
        return file.parent == self.tree / PUBLIC_FOLDER

    def check_file(self, file):
        room = self.room_of(file)
        self.files[file] = []
        if room is not None and room not in ROOMS:
            self.report(self.place(file, 1), f'the room "{room}" is unknown',
                        "add it with what it may include to ROOMS in tests/structure/layers.py, or a public header to "
                        "PUBLIC_HEADERS")
        for include in includes_of(file):
            target = self.own_file(file, include)
            place = self.place(file, include.line)
            if target is not None:
                self.files[file].append((target, include.line))
                if self.is_public(file) and not self.is_public(target):
                    self.report(place, f'a public header may not include "{include.name}"',
                                "it has the C++ standard headers and the other public headers only: hosts see it all")
                elif room is not None:
                    self.check_own(place, room, target)
            elif room is not None:
                self.check_foreign(place, file, room, include)

    def own_file(self, file, include):
        """The file of this tree that an include names; None if it names none."""
        folders = self.public_folders
        if include.quoted:
            folders = [file.parent, self.source_folder, *folders, self.tree / "apps", self.tree / "tests", self.tree]
        for folder in folders:
            candidate = (folder / include.name).resolve()
            if candidate.is_file() and self.tree in candidate.parents:
                return candidate
        return None

    def check_own(self, place, room, target):
        other = self.room_of(target)
        if other is None:
            self.report(place, f"{target.relative_to(self.tree)} lies outside src/", "move what is needed into src/")
            return
        if other == room:
            return
        self.rooms.setdefault(room, {}).setdefault(other, place)
        name = str(target.relative_to(self.tree / "include" if self.is_public(target) else self.source_folder))
        if other not in ROOMS.get(room, ()):
            allowed = ", ".join(ROOMS.get(room, ())) or "no other room"
            self.report(place, f'the room "{room}" may not include "{name}"',
                        f"it may include {allowed}: go through an interface of one of these")
        elif target.name not in SOME_HEADERS.get((room, other), (target.name,)):
            self.report(place, f'the room "{room}" may not include "{name}"',
                        f'of the room "{other}" it may include {", ".join(SOME_HEADERS[room, other])}')
        elif name != ONLY_HEADER_FOR_ROOMS.get(other, name):
            self.report(place, f'"{name}" is private to its room',
                        f'include "{ONLY_HEADER_FOR_ROOMS[other]}" instead')

    def check_foreign(self, place, file, room, include):
        if include.quoted:
            if include.name != f"{file.stem}.moc" or room != "qt":
                self.report(place, f'there is no "{include.name}" in this tree',
                            "name our headers from src/ on and in quotes, all others in angle brackets")
            return
        library = LIBRARIES.get(room)
        if include.name in STANDARD_HEADERS or (library and library.fullmatch(include.name)):
            return
        if (self.source_folder / include.name).is_file():
            self.report(place, f"<{include.name}> is ours", f'write "{include.name}"')
        else:
            what = "the C++ standard headers and its library" if library else "the C++ standard headers"
            self.report(place, f'the room "{room}" may not include <{include.name}>',
                        f"it has {what} only: go through an interface of the room platform")

    def report_cycles(self, what, graph, place_of, remedy):
        for cycle in cycles_of(graph):
            names = [str(node.relative_to(self.tree)) if isinstance(node, pathlib.Path) else node for node in cycle]
            self.report(place_of(cycle[0]), f"cycle between {what}: {' -> '.join([*names, names[0]])}", remedy)


def includes_of(file):
    """The includes of a file; those in comments and raw strings do not count."""
    text = file.read_text(encoding="utf-8", errors="replace")
    text = HIDING.sub(lambda match: "\n" * match.group().count("\n") if match["hidden"] else match.group(), text)
    return [Include(text.count("\n", 0, match.start()) + 1, match.group(1) == '"', match.group(2))
            for match in INCLUDE.finditer(text)]


def cycles_of(graph):
    """One cycle for each edge that leads back while the graph is walked in depth."""
    done, cycles = set(), []

    def walk(node, path):
        if node in path:
            cycles.append(path[path.index(node):])
        elif node not in done:
            for neighbour in graph.get(node, ()):
                walk(neighbour, [*path, node])
            done.add(node)

    for node in graph:
        walk(node, [])
    return cycles


def self_test():
    """Bad trees must be reported, each for its own reason, and a good one must not."""
    good = {
        "src/text/Strings.h": "#include <string>\n",
        "src/platform/XmlDocument.h": "#include <memory>\n",
        "src/catalogue/cAtom.h": '#include "platform/XmlDocument.h"\n#include "text/Strings.h"\n',
        "src/catalogue/cAtom.cpp": '#include "catalogue/cAtom.h"\n// #include <QString>\n/*\n#include "qt/No.h"\n*/\n',
        "src/libxml2/Libxml2DocumentFactory.h": '#include <libxml/tree.h>\n#include "platform/XmlDocument.h"\n',
        "src/qt/Editor.h": '#include <QtWidgets/QWidget>\n#include "libxml2/Libxml2DocumentFactory.h"\n',
        "src/qt/Editor.cpp": '#include "qt/Editor.h"\n#include <editor/Public.h>\n#include "Editor.moc"\n',
        "src/qt/include/editor/Public.h": "#include <QWidget>\n",
        "apps/host/main.cpp": '#include <QApplication>\n#include "qt/Editor.h"\n',
        "include/mavCycEd/Cycle.h": "#include <string>\n",
        "include/mavCycEd/CycleReading.h": '#include "mavCycEd/Cycle.h"\n',
        "src/document/Cycle.cpp": '#include "mavCycEd/Cycle.h"\n',
        "src/headless/Reading.cpp": '#include "mavCycEd/CycleReading.h"\n#include "libxml2/Libxml2DocumentFactory.h"\n',
        "tests/core/Test.cpp": 'auto text = R"(\n#include "nowhere.h"\n)";\n#include "text/Strings.h"\n',
    }
    bad = [
        ("src/text/Bad.h", "#include <QString>\n", "src/text/Bad.h:1: the room \"text\" may not include <QString>"),
        ("src/text/Bad.h", "#include <windows.h>\n", "may not include <windows.h>"),
        ("src/qt/Bad.cpp", "#include <windows.h>\n", "may not include <windows.h>"),
        ("src/com/Bad.h", '#include "qt/Editor.h"\n', 'the room "com" may not include "qt/Editor.h"'),
        ("src/win32/Bad.cpp", "#include <QWidget>\n", 'the room "win32" may not include <QWidget>'),
        ("src/win32/Bad.h", '#include "qt/Editor.h"\n', 'the room "win32" may not include "qt/Editor.h"'),
        ("src/control/Bad.cpp", "\n\n#include <libxml/tree.h>\n", "src/control/Bad.cpp:3: the room \"control\""),
        ("src/qt/Bad.cpp", "#include <libxml/tree.h>\n", "may not include <libxml/tree.h>"),
        ("src/platform/Bad.h", '#include "text/Strings.h"\n', 'the room "platform" may not include "text/Strings.h"'),
        ("src/catalogue/Bad.h", '#include "../qt/Editor.h"\n', 'the room "catalogue" may not include "qt/Editor.h"'),
        ("src/control/Bad.h", "#include <editor/Public.h>\n", 'may not include "qt/include/editor/Public.h"'),
        ("src/memory/Bad.h", '#include "libxml2/Libxml2DocumentFactory.h"\n', 'the room "memory" may not include'),
        ("src/text/Bad.h", 'auto a = "/*";\n#include "text/Missing.h"\nauto b = "*/";\n',
         'there is no "text/Missing.h"'),
        ("src/text/Bad.h", "#include <text/Strings.h>\n", "<text/Strings.h> is ours"),
        ("src/text/Bad.h", '#include "host/Bad.h"\n', "lies outside src/"),
        ("src/novel/New.h", "#include <string>\n", 'the room "novel" is unknown'),
        ("src/text/Strings.h", '#include "text/Bad.h"\n', "cycle between files: src/text/"),
        ("src/text/Bad.h", '#include "catalogue/cAtom.h"\n', "cycle between rooms: catalogue -> text -> catalogue"),
        ("src/qt/Bad.h", '#include "libxml2/Inner.h"\n', '"libxml2/Inner.h" is private to its room'),
        ("include/mavCycEd/Cycle.h", '#include "text/Strings.h"\n', 'a public header may not include "text/Strings.h"'),
        ("include/mavCycEd/Cycle.h", "#include <libxml/tree.h>\n", "may not include <libxml/tree.h>"),
        ("include/mavCycEd/Cycle.h", '#include "mavCycEd/CycleReading.h"\n', 'the room "document" may not include'),
        ("include/mavCycEd/New.h", "#include <string>\n", 'the room "New.h" is unknown'),
        ("src/document/Bad.cpp", '#include "mavCycEd/CycleReading.h"\n', 'the room "document" may not include'),
        ("src/rules/Bad.h", '#include "platform/ListBox.h"\n', 'of the room "platform" it may include ErrorSink.h'),
        ("src/document/Bad.h", '#include "platform/XmlDocument.h"\n', 'it may include RunTimeError.h'),
    ]
    supporting = {
        "src/text/Bad.h": '#include "text/Strings.h"\n',
        "apps/host/Bad.h": "\n",
        "src/platform/ListBox.h": "#include <string>\n",
        "src/libxml2/Inner.h": "\n",
    }
    failures = [f"the good tree is reported: {problem}" for problem in problems_of(good)]
    for name, text, expected in bad:
        found = problems_of({**good, **supporting, name: text})
        if not any(expected in problem for problem in found):
            failures.append(f"{name} with {text!r} must be reported as {expected!r}; reported: {found}")
    return failures


def problems_of(contents):
    with tempfile.TemporaryDirectory() as folder:
        tree = pathlib.Path(folder).resolve()
        for name, text in contents.items():
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            (tree / name).write_text(text, encoding="utf-8")
        return Check(tree).run()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tree", nargs="?", type=pathlib.Path)
    parser.add_argument("--self-test", action="store_true")
    arguments = parser.parse_args()
    if arguments.self_test:
        problems = self_test()
    elif arguments.tree is not None:
        check = Check(arguments.tree.resolve())
        problems = check.run()
        print(f"{len(check.files)} files looked at")
        if not check.files:
            problems.append(f"{arguments.tree}: no sources found")
    else:
        parser.error("name a tree or --self-test")
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
