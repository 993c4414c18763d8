"""The stored inputs of a fuzz target: one file with a line for each.

    corpus.py unpack FILE FOLDER OTHER...   makes a file of each line for libFuzzer, and FOLDER.inputs, which lists them and others
    corpus.py pack FOLDER FILE              adds a line for each file of the folder that FILE does not have yet

A line is the input with its bytes as in a Python literal: \\n, \\x00, \\\\. A line that begins with "# " says what those below
it are.
"""

import pathlib
import sys


def line_of(contents):
    line = "".join(chr(byte) if 32 <= byte < 127 and byte != 92 else
                   {10: "\\n", 92: "\\\\"}.get(byte, f"\\x{byte:02x}") for byte in contents)
    return line.replace("#", "\\x23", 1) if line.startswith("# ") else line


def contents_of(line):
    return line.encode("ascii").decode("unicode_escape").encode("latin-1")


def inputs(file):
    return [contents_of(line) for line in file.read_text(encoding="ascii").splitlines() if not line.startswith("# ")]


def unpack(file, folder, *others):
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    for number, contents in enumerate(inputs(file)):
        (folder / f"{number:04}").write_bytes(contents)
    every = [*sorted(folder.iterdir()), *others]
    folder.with_name(folder.name + ".inputs").write_text(",".join(map(str, every)), encoding="utf-8")


def pack(folder, file):
    known = set(inputs(file))
    new = {path.read_bytes() for path in folder.iterdir()} - known
    with open(file, "a", encoding="ascii") as lines:
        for contents in sorted(new):
            lines.write(line_of(contents) + "\n")


if __name__ == "__main__":
    {"unpack": unpack, "pack": pack}[sys.argv[1]](*map(pathlib.Path, sys.argv[2:]))
