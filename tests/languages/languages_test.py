#!/usr/bin/env python3
"""That the tables of texts agree with what the program shows, and that tools/texts.py sees where not."""

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


class Languages(unittest.TestCase):
    def test_every_text_is_there_in_every_language(self):
        self.assertEqual(LANGUAGES, set(texts.languages()))
        self.assertEqual([], list(texts.faults(ROOT)))

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
                found = list(texts.faults(self.root))
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
        missing = {text for text in texts.faults(self.root) if text.startswith("fr") and "missing" in text}
        wanted = {("NocturoPreferencePanel", "Shut"), ("Localizable", "One text"), ("ZQFluxCheck", "Two"),
                  ("Localizable", "Three"), ("Localizable", "Four"), ("ZQFluxCheck", "Five"),
                  ("Localizable", "Six"), ("Localizable", "Seven %@"), ("Localizable", "Eight")}
        self.assertEqual({f"fr: {key} is missing" for key in wanted}, missing)

    def test_texts_that_cannot_be_found_are_refused(self):
        for code in ("localized(english)", "translated(english, {name})"):
            with self.subTest(code):
                (self.root / "src/new.cpp").write_text(f"a({code});\n")
                with self.assertRaises(ValueError):
                    list(texts.faults(self.root))


if __name__ == "__main__":
    unittest.main()
