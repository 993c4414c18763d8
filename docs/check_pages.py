"""Compares the pages with what they show: a block of code under the comment "example: FILE" must be that file, word for
word; every file of docs/examples must be shown; every link to a file must lead to one.

check_pages.py PROJECT
"""

import pathlib
import re
import subprocess
import sys
import tempfile

EXAMPLE = re.compile(r"<!-- example: (\S+) -->\n\n?```\w*\n(.*?)```\n", re.DOTALL)
MARKED = "<!-- example:"
LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")


def example_text(project, page, name):
    """The text of an example: a file beside the page or, of a header, the program with which it opens."""
    path = page.parent / name
    if path.suffix != ".h":
        return path.read_text()
    with tempfile.NamedTemporaryFile("r") as program:
        subprocess.run([sys.executable, "-B", project / "tests/installation/hosts/extract_example.py", path, program.name],
                       check=True)
        return program.read()


def faults_of(project, page, shown):
    text = page.read_text()
    examples = EXAMPLE.findall(text)
    if len(examples) != text.count(MARKED):
        yield "an example's comment is not followed by a block of code"
    for name, code in examples:
        shown.add((page.parent / name).resolve())
        if code != example_text(project, page, name):
            yield f"does not show {name} as it is"
    for target in LINK.findall(re.sub(r"```.*?```", "", text, flags=re.DOTALL)):
        if "://" not in target and not (page.parent / target).exists():
            yield f"a link leads to {target}, which is not there"


def main(project):
    shown = set()
    faults = [f"{page.relative_to(project)}: {fault}"
              for page in sorted([*project.glob("*.md"), *project.glob("docs/*.md")])
              for fault in faults_of(project, page, shown)]
    faults += [f"docs/examples/{path.name} is shown on no page"
               for path in sorted(project.glob("docs/examples/*")) if path.resolve() not in shown]
    for fault in faults:
        print(fault)
    return 1 if faults else 0


sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
