"""Prints the entries of an XML property list, one a line, each with its type.

An independent reader for what the library has written; it refuses the binary encoding.
"""

import plistlib
import sys


def shown(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, int):
        return f"integer {value}"
    if isinstance(value, float):
        return f"real {value!r}"
    if isinstance(value, str):
        return f"text {ascii(value)}"
    if isinstance(value, bytes):
        return f"data <{value.hex()}>"
    if isinstance(value, list):
        return "[" + ", ".join(shown(member) for member in value) + "]"
    if isinstance(value, dict):
        return "{" + ", ".join(f"{key}: {shown(member)}" for key, member in value.items()) + "}"
    return f"date {value.isoformat()}"


with open(sys.argv[1], "rb") as file:
    root = plistlib.load(file, fmt=plistlib.FMT_XML)
for key in sorted(root):
    print(f"{ascii(key)[1:-1]}: {shown(root[key])}")
