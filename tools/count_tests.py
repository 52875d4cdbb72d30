"""Adds up the tests that the suites left in a folder and prints the closing line.

Fails unless some tests ran and none failed.

usage: count_tests.py FOLDER [failed check ...]
"""
import sys
import xml.etree.ElementTree as xml
from pathlib import Path


def count(report):
    suite = xml.parse(report).getroot()
    total, failed, skipped = (int(suite.get(key, 0)) for key in ("tests", "failures", "skipped"))
    skipped += int(suite.get("disabled", 0))
    return total - failed - skipped, failed, skipped


def main(folder, *failed_checks):
    counts = {report.stem: count(report) for report in sorted(Path(folder).glob("*.xml"))}
    for name, (passed, failed, skipped) in counts.items():
        print(f"{name}: {passed} passed, {failed} failed, {skipped} skipped")
    passed, failed, skipped = (sum(column) for column in zip(*counts.values())) if counts else (0, 0, 0)
    # A check that failed without a failed test (a build, a style rule) counts as one.
    failed += sum(1 for check in failed_checks if counts.get(check, (0, 0, 0))[1] == 0)
    print(f"{passed} passed, {failed} failed" + (f", {skipped} skipped" if skipped else ""))
    return 1 if failed or not passed else 0


sys.exit(main(*sys.argv[1:]))
