"""Compares the pages with what they show: a block of code under the comment "example: FILE" must stand in that file, line for
line; a page must show or link every file of docs/examples; every link to a file must lead to one.

check_pages.py PROJECT
"""

import pathlib
import re
import sys

EXAMPLE = re.compile(r"<!-- example: (\S+) -->\n\n?```\w*\n(.*?)```\n", re.DOTALL)
MARKED = "<!-- example:"
LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")


def faults_of(page, used):
    text = page.read_text()
    examples = EXAMPLE.findall(text)
    if len(examples) != text.count(MARKED):
        yield "an example's comment is not followed by a block of code"
    for name, code in examples:
        path = (page.parent / name).resolve()
        used.add(path)
        if "\n" + code not in "\n" + path.read_text():
            yield f"shows lines that {name} does not have:\n{code}"
    for target in LINK.findall(re.sub(r"```.*?```", "", text, flags=re.DOTALL)):
        if "://" in target:
            continue
        used.add((page.parent / target).resolve())
        if not (page.parent / target).exists():
            yield f"a link leads to {target}, which is not there"


def main(project):
    used = set()
    faults = [f"{page.relative_to(project)}: {fault}"
              for page in sorted([*project.glob("*.md"), *project.glob("docs/*.md")])
              for fault in faults_of(page, used)]
    faults += [f"docs/examples/{path.name} is on no page"
               for path in sorted(project.glob("docs/examples/*")) if path.resolve() not in used]
    for fault in faults:
        print(fault)
    return 1 if faults else 0


sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
