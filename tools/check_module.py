"""Holds a built module against what it must be: its exports, and on Windows its imports, security flags and resources.

usage: check_module.py MODULE EXPORTS.txt [--imports DLL ...]

EXPORTS.txt lists the exported names, one a line, sorted. A decorated name stands as it is on Windows and, indented on
the next line, as it is on other systems. Reads the module with llvm-readobj-19 and llvm-nm-19.
"""
import argparse
import re
import subprocess
import sys
from pathlib import Path

SECURITY = ("DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT")
RESOURCES = ("MANIFEST (ID 24)", "VERSIONINFO (ID 16)")
MANIFEST = Path(__file__).parent.parent / "cmake" / "module.manifest"


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def windows_exports(module):
    return re.findall(r"^  Name: (\S+)$", output("llvm-readobj-19", "--coff-exports", module), re.MULTILINE)


def linux_exports(module):
    lines = output("llvm-nm-19", "-D", "--defined-only", module).splitlines()
    return [line.split()[-1] for line in lines]


def compare(what, found, wanted):
    found, wanted = list(found), list(wanted)
    problems = [f"{what} listed twice: {name}" for name in sorted({name for name in found if found.count(name) > 1})]
    problems += [f"{what} missing: {name}" for name in sorted(set(wanted) - set(found))]
    problems += [f"{what} too many: {name}" for name in sorted(set(found) - set(wanted))]
    return problems


def windows_problems(module, imports):
    headers = output("llvm-readobj-19", "--file-headers", "--coff-imports", module)
    found = [name.lower() for name in re.findall(r"^  Name: (\S+)$", headers, re.MULTILINE)]
    problems = [f"imported but not allowed: {name}" for name in sorted(set(found) - {name.lower() for name in imports})]
    problems += [f"flag missing: {flag}" for flag in SECURITY if f"IMAGE_DLL_CHARACTERISTICS_{flag} " not in headers]
    resources = output("llvm-readobj-19", "--coff-resources", module)
    problems += [f"resource missing: {resource}" for resource in RESOURCES if f"Type: {resource}" not in resources]
    if MANIFEST.read_bytes() not in Path(module).read_bytes():
        problems.append(f"the manifest is not {MANIFEST.name}")
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("module")
    parser.add_argument("exports")
    parser.add_argument("--imports", nargs="*", default=[])
    args = parser.parse_args()
    with open(args.exports, encoding="ascii") as golden:
        lines = [line.split() for line in golden.read().replace("\n ", " ").splitlines()]
    on_windows = args.module.endswith(".dll")
    wanted = [names[0 if on_windows else -1] for names in lines]
    problems = compare("export", (windows_exports if on_windows else linux_exports)(args.module), wanted)
    if on_windows:
        problems += windows_problems(args.module, args.imports)
    for problem in problems:
        print(f"{args.module}: {problem}")
    if not problems:
        print(f"{args.module}: {len(wanted)} exports, as listed")
    return 1 if problems else 0


sys.exit(main())
