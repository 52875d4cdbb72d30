#!/usr/bin/env python3
"""Checks that every export of a public header is documented in full.

usage: check_header.py [HEADER]

Each export needs, in the doc comment right before it, a brief sentence, an @param line for every parameter, @return
(unless it returns nothing), @threads, and @entry when a backend entry stands behind it. A brief "Like QuorDSP_X,
but ..." takes over whatever QuorDSP_X documents, parameters by name; @entry is never taken over and is unique.
"""
import re
import sys
from pathlib import Path

EXPORTS = 132
ENTRIES = 123
ROOT = Path(__file__).parent.parent
DEFAULT_HEADER = ROOT / "include" / "QuorDSP_DAQ.h"
TABLE = ROOT / "src" / "frame" / "entries.def"
WITHOUT_ENTRY = {
    "QuorDSP_Calc_SPL_A", "QuorDSP_Thermocouple", "QuorDSP_Vibration_Acceleration",
    "QuorDSP_Vibration_Acceleration_Euler", "QuorDSP_WriteWAV", "QuorDSP_WriteWAVFile", "QuorDSP_detrend",
    "QuorDSP_getSNR", "linear_regression",
}
DECLARATION = re.compile(r"(?P<doc>/\*\*(?:(?!\*/).)*\*/)?\s*"
                         r"^QUORDSP_API (?!extern\b)(?P<result>[\w\s*]*?)(?P<name>\w+)\((?P<parameters>[^()]*)\);",
                         re.DOTALL | re.MULTILINE)


class Export:
    def __init__(self, match):
        doc = re.sub(r"^/\*\*|\*/$|^\s*\*(?!/)", "", match["doc"] or "", flags=re.MULTILINE)
        self.name = match["name"]
        self.returns = match["result"].strip() != "void"
        self.parameters = [re.search(r"(\w+)(?:\[\])?$", p.strip())[1]
                           for p in match["parameters"].split(",") if p.strip() != "void"]
        self.brief = doc.split("@", 1)[0].strip()
        self.documented = re.findall(r"@param (\w+)(?=[ ]+\S)", doc)
        self.tags = set(re.findall(r"@(return|threads)\b(?=[ ]+\S)", doc))
        self.entries = re.findall(r"@entry (\w*)", doc)
        like = re.match(r"Like (\w+), but ", " ".join(self.brief.split()))
        self.model = like[1] if like else None


def chain(export, exports):
    """The export and all that it is like."""
    links = []
    while export and export not in links:
        links.append(export)
        export = exports.get(export.model)
    return links


def problems_of(export, exports):
    links = chain(export, exports)
    documented = {name for link in links for name in link.documented}
    tags = {tag for link in links for tag in link.tags}
    if not export.brief:
        yield "no brief sentence"
    if export.model and export.model not in exports:
        yield f"is like {export.model}, which is no export"
    if exports.get(links[-1].model) in links:
        yield f"is like itself, through {links[-1].name}"
    for name in export.parameters:
        if name not in documented:
            yield f"no @param {name}"
    for name in export.documented:
        if name not in export.parameters:
            yield f"@param {name} is no parameter"
        if export.documented.count(name) > 1:
            yield f"@param {name} stands more than once"
    if export.returns and "return" not in tags:
        yield "no @return"
    if "threads" not in tags:
        yield "no @threads"
    yield from entry_problems(export)


def entry_problems(export):
    wanted = 0 if export.name in WITHOUT_ENTRY else 1
    if len(export.entries) != wanted:
        yield f"{len(export.entries)} @entry lines instead of {wanted}"
    for entry in export.entries:
        if not re.fullmatch(r"AALFunc[1-9]\d*", entry):
            yield f"@entry {entry} is no entry name"


def table_problems(exports):
    """The numbers in the header against those in the library's table; its stems are the names without their prefix."""
    bound = dict(re.findall(r"^ENTRY\((\w+),\s*(\w+)", TABLE.read_text(encoding="ascii"), re.MULTILINE))
    bound["Acceleration"] = bound.pop("Integrate")  # the one entry that is named for what it does, not for its export
    documented = {export.name.removeprefix("QuorDSP_"): entry for export in exports for entry in export.entries}
    for stem in sorted(bound.keys() | documented.keys()):
        if bound.get(stem) != documented.get(stem):
            yield f"{stem}: @entry {documented.get(stem)}, but the table binds {bound.get(stem)}"


def header_problems(text):
    matches = list(DECLARATION.finditer(text))
    exports = {match["name"]: Export(match) for match in matches}
    for export in exports.values():
        for problem in problems_of(export, exports):
            yield f"{export.name}: {problem}"
    if len(matches) != EXPORTS or len(exports) != EXPORTS:
        yield f"{len(matches)} declarations of {len(exports)} exports instead of {EXPORTS}"
    yield from table_problems(exports.values())
    owners = {}
    for export in exports.values():
        for entry in export.entries:
            owners.setdefault(entry, []).append(export.name)
    for entry, names in owners.items():
        if len(names) > 1:
            yield f"@entry {entry} stands at {', '.join(names)}"
    if len(owners) != ENTRIES:
        yield f"{len(owners)} different entries instead of {ENTRIES}"


def main(arguments):
    header = Path(arguments[0]) if arguments else DEFAULT_HEADER
    problems = list(header_problems(header.read_text(encoding="utf-8")))
    for problem in problems:
        print(f"{header.name}: {problem}")
    print(f"{header.name}: problems: {len(problems)}" if problems else
          f"{header.name}: {EXPORTS} exports documented, {ENTRIES} entries")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
