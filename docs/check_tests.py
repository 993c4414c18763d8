"""Compares docs/compatibility.md with the tests: each test that the page names must exist, and each row of its tables must
name one.

check_tests.py PROJECT
"""

import pathlib
import re
import sys

NAMED = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")
WRITTEN = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")
TABLE_ROW = re.compile(r"^\| (?!What )(.*) \|$", re.MULTILINE)


def tests_of(project):
    """The names of all tests that are written down in the sources."""
    return {f"{suite}.{case}"
            for path in (project / "tests").rglob("*Test.*")
            for suite, case in WRITTEN.findall(path.read_text())}


def faults_of(page, written):
    rows = TABLE_ROW.findall(page)
    if not rows:
        yield "the page has no table"
    for row in rows:
        if not NAMED.search(row.split(" | ")[-1]):
            yield f"no test holds: {row}"
    for name in NAMED.findall(page):
        if name not in written:
            yield f"there is no test {name}"


def main(project):
    faults = list(faults_of((project / "docs/compatibility.md").read_text(), tests_of(project)))
    for fault in faults:
        print("docs/compatibility.md:", fault)
    return 1 if faults else 0


sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
