"""Takes the program out of a header's opening comment: what stands there indented by five blanks, up to its last brace.

extract_example.py HEADER PROGRAM
"""

import pathlib
import sys

MARGIN = " *     "


def opening_comment(text):
    if not text.startswith("/*"):
        raise SystemExit("the header does not open with a comment")
    return text[:text.index("*/")].splitlines()


def program(lines):
    """The indented lines, with the empty lines between them."""
    code = [line[len(MARGIN):] if line.startswith(MARGIN) else "" if line == " *" else None
            for line in lines]
    first = next((i for i, line in enumerate(code) if line), None)
    if first is None:
        raise SystemExit("the header's opening comment has no program in it")
    end = next((i for i, line in enumerate(code) if i > first and line is None), len(code))
    return "\n".join(code[first:end]).rstrip() + "\n"


header, target = map(pathlib.Path, sys.argv[1:])
target.write_text(program(opening_comment(header.read_text())))
