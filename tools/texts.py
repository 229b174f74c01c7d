#!/usr/bin/env python3
"""Brings the tables of texts in resources/translations into step with the sources.

tools/texts.py              all tables
tools/texts.py nl pt_BR     those of these languages, made anew where there is none
tools/texts.py --check      changes nothing and says what is wrong

Texts that a table lacks are added to it, marked as unfinished, and those that the program shows no
longer are taken out. Qt Linguist does the rest.
"""

import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
DEFAULT_TABLE = "Localizable"
# The functions themselves, and alerts, whose texts are found where they are set.
HANDED_ON = {"localized.h", "localized.cpp", "translated.h", "translated.cpp", "alert_box.cpp",
             "desktop_face.cpp"}

PANEL = "NocturoPreferencePanel"
PLACEHOLDER = re.compile(r"%(?:\d\$)?[@d]|%%")
MNEMONIC = re.compile(r"&([^&\s])")

# What is reached from one window with one press of Alt, beside the panel's own controls; a menu is
# a window, too, and so is a page of the panel that is made by hand.
WINDOWS = {
    PANEL: ["&File", "&Effect", "&Help"],
    "schedule": ["&Choose looks by the clock and the sun", "Pa&use", "Resu&me", "&When:", "&Look:",
                 "&Add", "&Remove", "&Place of the sun:", "Change o&ver:"],
    "rules": ["&Choose looks by what is in front", "&When:", "&Program:", "P&ick a window", "&Look:",
              "&Add", "&Remove"],
    "question": ["&Keep", "&Go back"],
    "save panel": ["&Hide extension"],
    "file menu": ["&Open...", "Open &Recent", "&Save...", "&Preferences...", "&Close",
                  "&Quit Nocturo"],
    "recent menu": ["&Clear Menu"],
    "effect menu": ["&Activate Effect"],
    "effect menu while on": ["&Deactivate Effect"],
    "help menu": ["User &Guide", "&About Nocturo"],
}

PAGES = {"schedule", "rules"}

LITERALS = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'
CODE = re.compile(r'"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'|(//[^\n]*|/\*.*?\*/)', re.DOTALL)
CALL = re.compile(r"\blocalized\(|(?<![.\w])(translated\(|ListedText\((?!\)))")
TEXT = re.compile(rf'\s*{LITERALS}(?:,\s*"(\w+)"\s*)?\)')
PRINTED = re.compile(rf"\s*{LITERALS}(?:\)|,\s*\{{)")
CHOICE = re.compile(rf"[^\"();]*\?\s*{LITERALS}:\s*{LITERALS}\)")
ALERT = re.compile(
    rf"\bAlert (\w+)|\b(\w+)\.(table|title|message|defaultButton|alternateButton) =\s*{LITERALS};")


def joined(literals):
    parts = re.findall(r'"((?:[^"\\]|\\.)*)"', literals)
    return re.sub(r"\\(.)", lambda found: {"n": "\n", "t": "\t"}.get(found[1], found[1]),
                  "".join(parts))


def texts_of_code(path):
    code = CODE.sub(lambda found: " " if found[1] else found[0], path.read_text("utf-8"))
    for call in CALL.finditer(code):
        if path.name in HANDED_ON:
            continue
        printed = call[1] and PRINTED.match(code, call.end())
        text = not call[1] and TEXT.match(code, call.end())
        choice = CHOICE.match(code, call.end())
        if printed:
            yield DEFAULT_TABLE, joined(printed[1])
        elif text:
            yield text[2] or DEFAULT_TABLE, joined(text[1])
        elif choice:
            yield DEFAULT_TABLE, joined(choice[1])
            yield DEFAULT_TABLE, joined(choice[2])
        else:
            line = code.count("\n", 0, call.start()) + 1
            raise ValueError(f"{path}: {call[0]}...) near line {line} takes what is no literal "
                             "text, which cannot be found for the tables")
    table = DEFAULT_TABLE
    for found in ALERT.finditer(code):
        if found[1]:
            table = DEFAULT_TABLE
        elif found[3] == "table":
            table = joined(found[4])
        else:
            yield table, joined(found[4])


def texts_of_form(path):
    form = ElementTree.parse(path).getroot()
    for text in form.iter("string"):
        if text.text and text.get("notr") != "true":
            yield form.findtext("class"), text.text


def texts_of_program(root=ROOT):
    """Every text as a pair of its table and its English, once, in the order of the sources."""
    found = {}
    for path in sorted((root / "resources").glob("*.ui")):
        found.update(dict.fromkeys(texts_of_form(path)))
    for path in sorted((root / "src").rglob("*")):
        if path.suffix in (".cpp", ".h"):
            found.update(dict.fromkeys(texts_of_code(path)))
    return list(found)


def is_for(language, english):
    """Whether a table has to have the text; that of English only what is no English itself."""
    return language != "en" or english.startswith("[")


def table_path(root, language):
    return root / "resources" / "translations" / f"nocturo_{language}.ts"


def update(root, language):
    path = table_path(root, language)
    table = ElementTree.Element("TS", version="2.1", language=language, sourcelanguage="en")
    known = {}
    if path.exists():
        for context in ElementTree.parse(path).getroot().iter("context"):
            for message in context.iter("message"):
                known[context.findtext("name"), message.findtext("source")] = message
    contexts = {}
    for key in texts_of_program(root):
        name, english = key
        if not is_for(language, english):
            continue
        if name not in contexts:
            contexts[name] = ElementTree.SubElement(table, "context")
            ElementTree.SubElement(contexts[name], "name").text = name
        if key not in known:
            message = known[key] = ElementTree.Element("message")
            ElementTree.SubElement(message, "source").text = english
            ElementTree.SubElement(message, "translation", type="unfinished")
        contexts[name].append(known[key])
    ElementTree.indent(table, "    ")
    path.write_text('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n' +
                    ElementTree.tostring(table, encoding="unicode") + "\n", encoding="utf-8")


def languages(root=ROOT):
    return sorted(path.stem.removeprefix("nocturo_")
                  for path in table_path(root, "").parent.glob("nocturo_*.ts"))


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


def windows(root):
    """Each with the texts of other windows that are in it, and those that it never shows."""
    panel = ElementTree.parse(root / f"resources/{PANEL}.ui")
    pages = [{text.text for text in page.iter("string")}
             for page in panel.iter("widget") if page.get("class") == "nocturo::PageArea"]
    for window, also in WINDOWS.items():
        hidden = set().union(*pages)  # but for one page at a time
        if window == PANEL:
            for page in pages:
                yield window, also, hidden - page
        elif window in PAGES:
            yield window, also + WINDOWS[PANEL], hidden
        else:
            yield window, also, set()


def clashes(table, root):
    """Mnemonics that two controls of one window share, and ones that belong to no known window."""
    for window, also, hidden in windows(root):
        keys = collections.defaultdict(list)
        for (context, english), translation in table.items():
            if ((context == (PANEL if window in PAGES else window) and english not in hidden)
                    or (context == DEFAULT_TABLE and english in also)):
                for key in MNEMONIC.findall(translation):
                    keys[key.casefold()].append(english)
        yield from (f"{window}: {', '.join(shared)} share Alt+{key}"
                    for key, shared in keys.items() if len(shared) > 1)
    placed = {text for also in WINDOWS.values() for text in also}
    for context, english in table:
        if context != PANEL and MNEMONIC.search(english) and english not in placed:
            yield f"{english} is missing in the list of windows of this tool"


def faults(root):
    program = texts_of_program(root)
    yield from clashes({key: key[1] for key in program}, root)
    for language in languages(root):
        table = {}
        for context in ElementTree.parse(table_path(root, language)).iter("context"):
            for message in context.iter("message"):
                key = context.findtext("name"), message.findtext("source")
                translation = message.find("translation")
                text = table[key] = translation.text or ""
                if key not in program or not is_for(language, key[1]):
                    yield f"{language}: {key} is shown no longer"
                elif translation.get("type") or not text.strip():
                    yield f"{language}: {key} is unfinished"
                else:
                    yield from (f"{language}: {key} {fault}"
                                for fault in faults_of_text(key[1], text))
        for key in program:
            if is_for(language, key[1]) and key not in table:
                yield f"{language}: {key} is missing"
        yield from (f"{language}: {clash}" for clash in clashes(table, root))


if __name__ == "__main__":
    if sys.argv[1:] == ["--check"]:
        found = list(faults(ROOT))
        print(*found, sep="\n", end="\n" if found else "")
        sys.exit(1 if found else 0)
    if any(argument.startswith("-") for argument in sys.argv[1:]):
        sys.exit(__doc__)
    for chosen in sys.argv[1:] or languages():
        update(ROOT, chosen)
