#!/usr/bin/env python3
"""Checks the operator's help against itself and against the sources.

Every page is well-formed, every link, anchor and picture is there, every page is in the help project, its contents, and
the library's resources; every message of the sources is in messages.html to the letter, every caption and every name of
a control is in the pages.

`help.py TREE` checks a tree; `help.py --self-test` checks this check.
"""

import argparse
import html.parser
import pathlib
import re
import shutil
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# The sources whose texts people get to see, each with the texts in it that are no messages. A source that shows a
# message box and is missing here is reported.
MESSAGES = "messages.html"
SOURCES = {
    "src/control/modErr.cpp": set(),
    "src/control/modGlobal.cpp": set(),
    "src/control/modMsgBox.cpp": set(),
    "src/control/EditorControl.cpp": set(),
    "src/panels/CycleVariables.cpp": set(),
    "src/panels/frmparams.cpp": {"Parameter Description", "Modify Parameter", "Add New Parameter", "Default Value",
                                  "Lower limit", "Upper limit"},
    "src/panels/ValueValidation.cpp": {"Default:"},
    "src/platform/RunTimeError.cpp": set(),
    "src/text/MessageTitles.h": set(),
}
SHOWS_MESSAGES = re.compile(r"[.>]messageBox\(")
FOLDERS_OF_SOURCES = ("src/catalogue", "src/control", "src/cycle", "src/panels", "src/rules")
# Forwards to the service, and has no texts of its own.
NO_TEXTS = {"src/control/modMsgBox.h"}

CAPTION_SOURCES = ("src/control/ScreenStart.cpp", "src/panels/frmparams.cpp")
CAPTION = re.compile(r'(?:setCaption\(|setColumnTitle\(\d, |setCaption\([^")]*\? |: )"((?:\\.|[^"\\])+)"')
SETTING = re.compile(r'Setting\{\w+, "([^"]+)"')
NAME_SOURCES = ("src/qt/EditorScreen.h", "src/qt/QtVariableDialog.h", "src/qt/QtVariableDialog.cpp")
NAME = re.compile(r'"((?:fra|txt|cbo|Grd|grd|cmd|lst|mnu|opt|lbl|frm|tmr|OK)\w+)"')
# Several words, a word with a colon, a word like those in sentences, a row of characters; but no name of a procedure.
READABLE = re.compile(r".*\S\s+\S.*|\S+:|[A-Z][a-z]{4,}|[^\w\s]{4,}", re.DOTALL)
ENDS_A_LINE = frozenset("br p td th li h1 h2 h3 pre".split())
LITERAL = re.compile(r'"((?:\\.|[^"\\\n])*)"')
HIDDEN = re.compile(r'//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*', re.DOTALL | re.MULTILINE)


def plain(text):
    """A text as it is read: line ends, hard and repeated blanks count as one blank."""
    return " ".join(text.replace("\u00a0", " ").split())


def literals_of(source):
    text = source.read_text(encoding="utf-8")
    # Comments go first; no literal of these sources holds "//" or "/*".
    text = HIDDEN.sub("", text)
    text = re.sub(r'"\s*\n\s*"', "", text)  # literals that go on in the next line
    return [literal.replace('\\"', '"').replace("\\\\", "\\") for literal in LITERAL.findall(text)]


class Page:
    def __init__(self, file):
        self.root = ElementTree.fromstring(file.read_text(encoding="ascii"))
        for element in self.root.iter():
            element.tag = element.tag.rpartition("}")[2]
        for element in self.root.iter():
            if element.tag in ENDS_A_LINE:
                element.tail = "\n" + (element.tail or "")
        self.text = plain("".join(self.root.find("body").itertext()))
        self.anchors = {element.get("name") for element in self.root.iter("a") if element.get("name")}
        self.ids = {element.get("id") for element in self.root.iter() if element.get("id")}
        self.links = [element.get("href") for element in self.root.iter("a") if element.get("href")]
        self.files = [element.get("src") for element in self.root.iter("img")]
        self.files += [element.get("href") for element in self.root.iter("link")]


class Sitemap(html.parser.HTMLParser):
    """The entries of a table of contents or an index."""

    def __init__(self, text):
        super().__init__()
        self.links = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag == "param" and values.get("name") == "Local":
            self.links.append(values.get("value"))


class Check:
    def __init__(self, tree):
        self.tree = tree
        self.folder = tree / "docs" / "help"
        self.pages = {}
        self.problems = []

    def report(self, place, problem):
        self.problems.append(f"{place}: {problem}")

    def run(self):
        for file in sorted(self.folder.glob("*.html")):
            try:
                self.pages[file.name] = Page(file)
            except (ElementTree.ParseError, UnicodeDecodeError) as error:
                self.report(f"docs/help/{file.name}", f"not well-formed: {error}")
        if "index.html" not in self.pages:
            self.report("docs/help", "there is no index.html that can be read")
            return self.problems
        self.check_pages()
        self.check_project()
        self.check_resources()
        self.check_messages()
        self.check_names()
        return self.problems

    def check_link(self, place, name, link):
        target, _, anchor = link.partition("#")
        page = self.pages.get(target or name)
        if page is None:
            self.report(place, f'"{link}" leads to no page')
        elif anchor and anchor not in page.anchors:
            self.report(place, f'"{link}" leads to no place of the page')

    def check_pages(self):
        used = set()
        for name, page in self.pages.items():
            place = f"docs/help/{name}"
            for link in page.links:
                self.check_link(place, name, link)
            for file in page.files:
                used.add(file)
                if not (self.folder / file).is_file():
                    self.report(place, f'there is no "{file}"')
            if page.anchors != page.ids:
                self.report(place, f"anchors need a name and an id: {sorted(page.anchors ^ page.ids)}")
            if name not in self.pages["index.html"].links and name != "index.html":
                self.report(place, "index.html has no link to it")
        for file in self.folder.glob("images/*"):
            if f"images/{file.name}" not in used:
                self.report(f"docs/help/images/{file.name}", "no page shows it")

    def shown_files(self):
        files = {file for page in self.pages.values() for file in page.files}
        return files | set(self.pages)

    def check_project(self):
        project = (self.folder / "mavCycEd.hhp").read_text(encoding="ascii")
        listed = set(project.partition("[FILES]")[2].split())
        for file in sorted(listed ^ self.shown_files()):
            self.report("docs/help/mavCycEd.hhp", f'"{file}" is listed and not shown, or shown and not listed')
        for name in ("mavCycEd.hhc", "mavCycEd.hhk"):
            links = Sitemap((self.folder / name).read_text(encoding="ascii")).links
            for link in links:
                self.check_link(f"docs/help/{name}", None, link)
            for page in self.pages:
                if name.endswith("hhc") and page not in links:
                    self.report(f"docs/help/{name}", f"{page} is missing")

    def check_resources(self):
        listing = self.tree / "src" / "qt" / "mavCycEd_help.qrc"
        listed = {element.get("alias") for element in ElementTree.parse(listing).getroot().iter("file")}
        for file in sorted(listed ^ self.shown_files()):
            self.report("src/qt/mavCycEd_help.qrc", f'"{file}" is listed and not shown, or shown and not listed')

    def check_messages(self):
        told = self.pages[MESSAGES].text if MESSAGES in self.pages else ""
        for folder in FOLDERS_OF_SOURCES:
            for source in sorted((self.tree / folder).glob("*.*")):
                name = str(source.relative_to(self.tree))
                if SHOWS_MESSAGES.search(source.read_text(encoding="utf-8")) and name not in {*SOURCES, *NO_TEXTS}:
                    self.report(name, "it shows messages: name it in SOURCES of tests/structure/help.py")
        for name, no_messages in SOURCES.items():
            source = self.tree / name
            if not source.is_file():
                self.report("tests/structure/help.py", f"SOURCES names {name}, which is not there")
                continue
            captions = {*CAPTION.findall(source.read_text(encoding="utf-8")), *no_messages}
            for literal in literals_of(source):
                is_message = literal not in captions and READABLE.fullmatch(literal.strip())
                if is_message and plain(literal) not in told:
                    self.report(f"docs/help/{MESSAGES}", f'the text "{literal}" of {name} is missing')

    def check_names(self):
        texts = " ".join(self.pages[name].text for name in ("screen.html", "variables.html", "host.html")
                         if name in self.pages)
        captions = set()
        for source in CAPTION_SOURCES:
            text = (self.tree / source).read_text(encoding="utf-8")
            captions |= {*CAPTION.findall(text), *SETTING.findall(text)}
        if not captions:
            self.report("tests/structure/help.py", "no captions found")
        for caption in sorted(captions):
            if plain(caption.replace("&", "")) not in texts:
                self.report("docs/help", f'the caption "{caption}" is nowhere')
        names = set()
        for source in NAME_SOURCES:
            names |= set(NAME.findall((self.tree / source).read_text(encoding="utf-8")))
        if not names:
            self.report("tests/structure/help.py", "no names of controls found")
        for name in sorted(names):
            if not re.search(rf"\b{name}\b", self.pages["host.html"].text if "host.html" in self.pages else ""):
                self.report("docs/help/host.html", f'the control "{name}" is missing')


def self_test(tree):
    """Each of these changes of the real help and sources must be reported."""
    cases = [
        ("docs/help/values.html", "</h1>", "", "not well-formed"),
        ("docs/help/values.html", "</h1>", " \u00b5</h1>", "not well-formed"),
        ("docs/help/values.html", "messages.html#range", "messages.html#rage", "leads to no place of the page"),
        ("docs/help/values.html", "keys.html", "kyes.html", '"kyes.html" leads to no page'),
        ("docs/help/screen.html", "images/menu.png", "images/manu.png", 'there is no "images/manu.png"'),
        ("docs/help/mavCycEd.hhp", "keys.html\n", "", '"keys.html" is listed and not shown'),
        ("docs/help/mavCycEd.hhc", "keys.html#help", "keys.html#hilfe", "leads to no place"),
        ("src/qt/mavCycEd_help.qrc", 'alias="keys.html"', 'alias="k.html"', '"keys.html" is listed and not shown'),
        ("docs/help/messages.html", "The upper limit is missing.", "The upper limit is gone.",
         'the text "The upper limit is missing."'),
        ("docs/help/messages.html", "out of range or invalid", "out of range, or invalid",
         "out of range or invalid step"),
        ("src/panels/frmparams.cpp", "Empty parameter name", "No parameter name", 'the text "No parameter name"'),
        ("src/panels/ValueValidation.cpp", "'&<>;,", "'&<>;,?", "ValueValidation.cpp is missing"),
        ("src/panels/CycleLoader.cpp", "void CycleLoader::FillCycle() {", "void f() { m.messageBox(0); ",
         "it shows messages"),
        ("src/control/ScreenStart.cpp", "&Replace", "&Exchange", 'the caption "&Exchange" is nowhere'),
        ("src/panels/frmparams.cpp", '"Modify Parameter"', '"Change it"', 'the caption "Change it" is nowhere'),
        ("src/qt/EditorScreen.h", '"lstVariables"', '"lstNames"', 'the control "lstNames" is missing'),
    ]
    failures = [f"the tree itself is reported: {problem}" for problem in Check(tree).run()]
    for name, old, new, expected in cases:
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / "tree"
            shutil.copytree(tree / "src", copy / "src")
            shutil.copytree(tree / "docs" / "help", copy / "docs" / "help")
            file = copy / name
            text = file.read_text(encoding="utf-8")
            if old not in text:
                failures.append(f"{name} holds no {old!r}")
                continue
            file.write_text(text.replace(old, new), encoding="utf-8")
            found = Check(copy).run()
        if not any(expected in problem for problem in found):
            failures.append(f"{name} with {new!r} must be reported as {expected!r}; reported: {found}")
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tree", nargs="?", type=pathlib.Path)
    parser.add_argument("--self-test", action="store_true")
    arguments = parser.parse_args()
    if arguments.self_test:
        problems = self_test(pathlib.Path(__file__).resolve().parents[2])
    elif arguments.tree is not None:
        check = Check(arguments.tree.resolve())
        problems = check.run()
        print(f"{len(check.pages)} pages looked at")
    else:
        parser.error("name a tree or --self-test")
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
