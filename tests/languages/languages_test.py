#!/usr/bin/env python3
"""Compares the tables of texts with what the program shows."""

import collections
import pathlib
import re
import shutil
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))
import texts  # noqa: E402

LANGUAGES = {"de", "en", "es", "fr", "ja", "pt_BR", "zh_CN"}
PANEL = "NocturoPreferencePanel"
PLACEHOLDER = re.compile(r"%(?:\d\$)?[@d]|%%")
MNEMONIC = re.compile(r"&([^&\s])")

# What is reached from one window with one press of Alt, beside the panel's own controls; a menu is
# a window, too.
WINDOWS = {
    PANEL: ["&File", "&Effect", "&Help"],
    "question": ["&Keep", "&Go back"],
    "save panel": ["&Hide extension"],
    "file menu": ["&Open...", "Open &Recent", "&Save...", "&Preferences...", "&Close",
                  "&Quit Nocturo"],
    "recent menu": ["&Clear Menu"],
    "effect menu": ["&Activate Effect"],
    "effect menu while on": ["&Deactivate Effect"],
    "help menu": ["&About Nocturo"],
}


def placeholders(text):
    found = PLACEHOLDER.findall(text)
    return set(found), sorted(one for one in found if "$" not in one)  # numbered ones may come twice


def faults_of_text(english, translation):
    if placeholders(english) != placeholders(translation):
        yield "has other placeholders"
    if len(MNEMONIC.findall(english)) != len(MNEMONIC.findall(translation)):
        yield "has another number of mnemonics"
    for mark in ("...", ":"):
        if english.endswith(mark) != translation.endswith((mark, "…" if mark == "..." else "：")):
            yield f"should end like the English text with “{mark}” or not"


def clashes(table):
    """Mnemonics that two controls of one window share, and ones that belong to no known window."""
    for window, also in WINDOWS.items():
        keys = collections.defaultdict(list)
        for (context, english), translation in table.items():
            if context == window or (context == texts.DEFAULT_TABLE and english in also):
                for key in MNEMONIC.findall(translation):
                    keys[key.casefold()].append(english)
        yield from (f"{window}: {', '.join(shared)} share Alt+{key}"
                    for key, shared in keys.items() if len(shared) > 1)
    placed = {text for also in WINDOWS.values() for text in also}
    for context, english in table:
        if context != PANEL and MNEMONIC.search(english) and english not in placed:
            yield f"{english} is missing in the list of windows of this test"


def faults(root):
    program = texts.texts_of_program(root)
    yield from clashes({key: key[1] for key in program})
    for language in texts.languages(root):
        table = {}
        for context in ElementTree.parse(texts.table_path(root, language)).iter("context"):
            for message in context.iter("message"):
                key = context.findtext("name"), message.findtext("source")
                translation = message.find("translation")
                text = table[key] = translation.text or ""
                if key not in program or not texts.is_for(language, key[1]):
                    yield f"{language}: {key} is shown no longer"
                elif translation.get("type") or not text.strip():
                    yield f"{language}: {key} is unfinished"
                else:
                    yield from (f"{language}: {key} {fault}"
                                for fault in faults_of_text(key[1], text))
        for key in program:
            if texts.is_for(language, key[1]) and key not in table:
                yield f"{language}: {key} is missing"
        yield from (f"{language}: {clash}" for clash in clashes(table))


class Languages(unittest.TestCase):
    def test_every_text_is_there_in_every_language(self):
        self.assertEqual(LANGUAGES, set(texts.languages()))
        self.assertEqual([], list(faults(ROOT)))

    def test_the_credits_name_the_same_people_in_every_language(self):
        def links(path):
            return re.findall(r'href="[^"]*"', path.read_text("utf-8"))
        for language in LANGUAGES - {"en"}:
            with self.subTest(language):
                self.assertIn(f">Credits_{language}.html<",
                              texts.table_path(ROOT, language).read_text("utf-8"))
                translated = ROOT / "resources" / "translations" / f"Credits_{language}.html"
                self.assertEqual(links(ROOT / "resources" / "Credits.html"), links(translated))


class Faults(unittest.TestCase):
    """That the test above sees what it is there for, in a copy with one thing wrong at a time."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        for part in ("src", "resources"):
            shutil.copytree(ROOT / part, self.root / part,
                            ignore=shutil.ignore_patterns("icons", "*.png"))

    def replace(self, path, old, new):
        text = (self.root / path).read_text("utf-8")
        self.assertIn(old, text)
        (self.root / path).write_text(text.replace(old, new), "utf-8")

    def test_tables(self):
        table = "resources/translations/nocturo_de.ts"
        for old, new, fault in (
                (">Abbrechen<", "><", "unfinished"),
                ("<translation>Abbrechen", '<translation type="unfinished">Abbrechen', "unfinished"),
                ("<source>Cancel<", "<source>Cancal<", "missing"),
                ("<source>Cancel<", "<source>Cancal<", "shown no longer"),
                (">Bildschirm %d<", ">Bildschirm %@<", "placeholders"),
                (">Bildschirm %d<", ">Bildschirm<", "placeholders"),
                (">&amp;Invertieren<", ">Invertieren<", "mnemonics"),
                (">&amp;Invertieren<", ">In&amp;vertieren<", "share Alt+v"),
                (">&amp;Beibehalten<", ">Bei&amp;zehalten<", "share Alt+z"),
                (">Farb&amp;ton:<", ">Farb&amp;ton<", "end like")):
            with self.subTest(new):
                before = (self.root / table).read_text("utf-8")
                self.replace(table, old, new)
                found = list(faults(self.root))
                self.assertTrue(any(fault in text for text in found), found)
                (self.root / table).write_text(before, "utf-8")

    def test_new_texts_are_missed(self):
        self.replace("resources/NocturoPreferencePanel.ui", "<string>Close<", "<string>Shut<")
        (self.root / "src/new.cpp").write_text(
            'a(localized("One" // a comment\n    " text"), localized("Two", "ZQFluxCheck"));\n'
            '// localized("None at all")\n'
            'b(localized(on ? "Three" : "Four"));\n'
            'Alert alert; alert.table = "ZQFluxCheck"; alert.title = "Five"; Alert other;\n'
            'other.message = "Si"\n "x";\n'
            'c(translated("Seven %@", {name}), ListedText("Eight"), text.translated());\n')
        missing = {text for text in faults(self.root) if text.startswith("fr") and "missing" in text}
        wanted = {(PANEL, "Shut"), ("Localizable", "One text"), ("ZQFluxCheck", "Two"),
                  ("Localizable", "Three"), ("Localizable", "Four"), ("ZQFluxCheck", "Five"),
                  ("Localizable", "Six"), ("Localizable", "Seven %@"), ("Localizable", "Eight")}
        self.assertEqual({f"fr: {key} is missing" for key in wanted}, missing)

    def test_texts_that_cannot_be_found_are_refused(self):
        for code in ("localized(english)", "translated(english, {name})"):
            with self.subTest(code):
                (self.root / "src/new.cpp").write_text(f"a({code});\n")
                with self.assertRaises(ValueError):
                    list(faults(self.root))


if __name__ == "__main__":
    unittest.main()
