#!/usr/bin/env python3
"""lint_together.py BUILD OUT: joins the sources in one folder of src/ that BUILD compiles alike, with a
compilation database of the joint files in each of two directories: in OUT/included they include the
sources, in OUT/text they hold their text. Prints how many sources and joint files there are.

Reading headers, and looking for faults in them, takes most of clang-tidy's time; so it happens once for
many sources. Those of different folders never meet, so each may have names of its own. The path-sensitive
analyzer passes over what is included, hence the text.

lint_together.py --where: passes what clang-tidy says through, with places in joint text as places in
the sources.
"""

import json
import pathlib
import re
import shlex
import sys

most = 16  # so that all cores have something to do
source_root = pathlib.Path(__file__).resolve().parent.parent / "src"


def in_its_source(place):
    """A place "FILE:LINE" in joint text as one in the source that the line is from."""
    joint, line = place[1], int(place[2])
    above = pathlib.Path(joint).read_text().split("\n")[:line]
    start = max(n for n, text in enumerate(above, 1) if text.startswith(f"// {source_root}/"))
    return f"{above[start - 1][3:]}:{line - start}"


if sys.argv[1:] == ["--where"]:
    for said in sys.stdin:
        sys.stdout.write(re.sub(r"(\S+/text/\d+\.cpp):(\d+)", in_its_source, said))
    sys.exit()

build, out = map(pathlib.Path, sys.argv[1:])

groups = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    source = pathlib.Path(entry["file"])
    if source_root in source.parents:
        words = shlex.split(entry["command"])
        flags = words[: words.index("-o")]
        groups.setdefault((source.parent, entry["directory"], *flags), []).append(source)
runs = [
    (flags, sources[start : start + most])
    for (_, *flags), sources in groups.items()
    for start in range(0, len(sources), most)
]

for form in ("included", "text"):
    place = (out / form).absolute()
    place.mkdir(parents=True, exist_ok=True)
    database = []
    for number, ((directory, *flags), sources) in enumerate(runs):
        joint = place / f"{number}.cpp"
        joint.write_text(
            "".join(
                f'#include "{source}"\n' if form == "included" else f"// {source}\n{source.read_text()}"
                for source in sources
            )
        )
        arguments = [*flags, "-c", str(joint)]
        database.append({"directory": directory, "file": str(joint), "arguments": arguments})
    (place / "compile_commands.json").write_text(json.dumps(database))

print(f"clang-tidy: {sum(map(len, groups.values()))} files in {len(runs)} runs")
