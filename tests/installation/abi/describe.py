"""Describes what shared libraries export: functions, their types and their versions.

describe.py LIBRARY DESCRIPTION [LIBRARY DESCRIPTION]...

No paths, no lines, and all files of the source put together, so that a description is the same wherever the library is built
and changes only if the interface does.
"""

import subprocess
import sys
import xml.etree.ElementTree

ABIDW = ["abidw", "--exported-interfaces-only", "--drop-private-types", "--drop-undefined-syms",
         "--type-id-style", "hash", "--no-architecture", "--no-corpus-path", "--no-comp-dir-path",
         "--no-show-locs", "--no-elf-needed", "--no-parameter-names", "--no-write-default-sizes"]


def place(entry):
    """Types first, by what they are, then the functions by name."""
    return entry.tag == "function-decl", entry.tag, entry.get("name", ""), entry.get("id", "")


def describe(library):
    corpus = xml.etree.ElementTree.fromstring(
        subprocess.run([*ABIDW, library], check=True, capture_output=True, text=True).stdout)
    files = corpus.findall("abi-instr")
    if not files:
        raise ValueError(f"{library} has no debug information")
    # A type that is in several files has the same text in each.
    entries = {xml.etree.ElementTree.tostring(entry).strip(): entry for file in files for entry in file}
    for file in files:
        corpus.remove(file)
    whole = xml.etree.ElementTree.SubElement(
        corpus, "abi-instr", {"address-size": files[0].get("address-size"), "path": "interface",
                              "language": "LANG_C_plus_plus"})
    whole.extend(sorted(entries.values(), key=place))
    xml.etree.ElementTree.indent(corpus)
    return xml.etree.ElementTree.tostring(corpus, encoding="unicode") + "\n"


if __name__ == "__main__":
    for library, description in zip(sys.argv[1::2], sys.argv[2::2]):
        text = describe(library)
        with open(description, "w") as file:
            file.write(text)
