#!/usr/bin/env python3
"""Makes C++ of the texts that are said without Qt: compile_texts.py OUTPUT nocturo_LANGUAGE.ts..."""

import json
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

sys.dont_write_bytecode = True  # building changes no sources
from texts import DEFAULT_TABLE  # noqa: E402

# Alerts are told where nobody can see them.
TABLES = (DEFAULT_TABLE, "ZQFluxCheck")


def finished_texts(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        if context.findtext("name") in TABLES:
            for message in context.iter("message"):
                translation = message.find("translation")
                if translation.text and not translation.get("type"):
                    yield message.findtext("source"), translation.text


def literal(text):
    return json.dumps(text, ensure_ascii=False)  # what JSON escapes in our texts C++ escapes alike


def source_of(tables):
    yield '#include "base/texts/text_tables.h"\n\nnamespace nocturo {\n\nnamespace {\n'
    for language, texts in tables.items():
        yield f"constexpr Translation k_{language}[] = {{"
        for english in sorted(texts, key=str.encode):
            yield f"    {{{literal(english)},\n     {literal(texts[english])}}},"
        yield "};\n"
    yield "constexpr TextTable kTables[] = {"
    yield from (f'    {{"{language}", k_{language}}},' for language in tables)
    yield "};\n\n} // namespace\n"
    yield "std::span<const TextTable> textTables() {\n    return kTables;\n}\n\n} // namespace nocturo"


def main(output, *paths):
    tables = {}
    for path in map(pathlib.Path, paths):
        if texts := dict(finished_texts(path)):
            tables[path.stem.removeprefix("nocturo_")] = texts
    pathlib.Path(output).write_text("\n".join(source_of(tables)) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
