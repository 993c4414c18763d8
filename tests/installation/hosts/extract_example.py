"""Writes the C program that a page shows to a file: the page's only block of C.

extract_example.py PAGE PROGRAM
"""

import pathlib
import re
import sys

page, target = map(pathlib.Path, sys.argv[1:])
programs = re.findall(r"^```c\n(.*?)^```$", page.read_text(), re.DOTALL | re.MULTILINE)
if len(programs) != 1:
    raise SystemExit(f"{page}: {len(programs)} blocks of C, not one")
target.write_text(programs[0])
