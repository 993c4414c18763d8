"""Compares the library's exports and the constants of its headers with the descriptions beside this file.

The descriptions are what hosts that are already built rely on. Whoever means to change the interface runs scripts/abi-update.
"""

import difflib
import functools
import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

from describe import describe

LIBRARY = os.environ["LIBRARY"]
CONSTANTS = os.environ["CONSTANTS"]
HEADERS = pathlib.Path(os.environ["HEADERS"])
HERE = pathlib.Path(__file__).parent
LIBRARY_DESCRIPTION = HERE / "TRX-SELVASetup.abi"
CONSTANTS_DESCRIPTION = HERE / "Constants.abi"

ADVICE = "\nThe exported interface is not as described. If that is meant, run scripts/abi-update.\n"


@functools.cache
def described_anew(library):
    """A file with the description of the built library."""
    file = tempfile.NamedTemporaryFile("w", suffix=".abi")
    file.write(describe(library))
    file.flush()
    return file


def differences(description, library):
    """The differences from the description. abidiff explains a change but ignores some, such as another name for a type."""
    built = described_anew(library).name
    compared = subprocess.run(["abidiff", "--harmless", str(description), built],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    meaning = compared.stdout if compared.returncode != 0 else ""
    lines = difflib.unified_diff(pathlib.Path(description).read_text().splitlines(),
                                 pathlib.Path(built).read_text().splitlines(), "described", "built", lineterm="")
    return meaning + "\n".join(lines)


class Interface(unittest.TestCase):
    def assert_as_described(self, description, library):
        found = differences(description, library)
        if found:
            self.fail(ADVICE + found)

    def test_of_the_library_is_as_described(self):
        self.assert_as_described(LIBRARY_DESCRIPTION, LIBRARY)

    def test_of_the_constants_is_as_described(self):
        self.assert_as_described(CONSTANTS_DESCRIPTION, CONSTANTS)

    def test_has_the_types_of_every_function(self):
        library = xml.etree.ElementTree.parse(LIBRARY_DESCRIPTION)
        exported = [entry.get("name") for entry in library.iterfind("elf-function-symbols/elf-symbol")]
        typed = [entry.get("name") for entry in library.iterfind("abi-instr/function-decl")]
        self.assertIn("ORV_GetProductId", exported)
        self.assertEqual(typed, exported)

    def test_has_no_constant_that_the_description_leaves_out(self):
        declared = set()
        for header in HEADERS.rglob("*.h"):
            declared |= set(re.findall(r"^\s*(ORV_\w+) = ", header.read_text(), re.MULTILINE))
        described = {entry.get("name") for entry in
                     xml.etree.ElementTree.parse(CONSTANTS_DESCRIPTION).iter("enumerator")}
        self.assertIn("ORV_SUCCESS", declared)
        self.assertEqual(declared, described)


class Change(unittest.TestCase):
    """Changes to the interface that must be detected. The tests change the description instead, in the opposite direction."""

    def setUp(self):
        self.library = xml.etree.ElementTree.parse(LIBRARY_DESCRIPTION)
        self.constants = xml.etree.ElementTree.parse(CONSTANTS_DESCRIPTION)

    def assert_noticed(self, description, library, words):
        with tempfile.NamedTemporaryFile(suffix=".abi") as file:
            description.write(file.name)
            noticed = differences(file.name, library)
            self.assertTrue(re.search(words, noticed), noticed[:2000])

    def function(self, name):
        return self.library.find(f"abi-instr/function-decl[@name='{name}']")

    def remove_from_description(self, function):
        self.library.find("abi-instr").remove(self.function(function))
        symbols = self.library.find("elf-function-symbols")
        symbols.remove(symbols.find(f"elf-symbol[@name='{function}']"))

    def rename_in_description(self, function, name):
        entry = self.function(function)
        for attribute in ("name", "mangled-name", "elf-symbol-id"):
            entry.set(attribute, entry.get(attribute).replace(function, name))
        self.library.find(f"elf-function-symbols/elf-symbol[@name='{function}']").set("name", name)

    def test_an_added_function(self):
        self.remove_from_description("ORV_GetProductId")
        self.assert_noticed(self.library, LIBRARY, r"1 Added function\b(?s:.*)ORV_GetProductId")

    def test_a_removed_function(self):
        self.rename_in_description("ORV_GetProductId", "ORV_Removed")
        self.assert_noticed(self.library, LIBRARY, r"1 Removed, (?s:.*)ORV_Removed")

    def test_an_added_parameter(self):
        entry = self.function("ORV_SetBoostLevelIndex")
        entry.remove(entry.findall("parameter")[1])
        self.assert_noticed(self.library, LIBRARY, "parameter 2 of type 'typedef uint32_t' was added")

    def test_another_type_of_parameter(self):
        parameters = self.function("ORV_GetMidiChannelText").findall("parameter")
        parameters[1].set("type-id", parameters[3].get("type-id"))
        self.assert_noticed(self.library, LIBRARY, "parameter 2 of type .* changed")

    def test_another_type_under_a_name(self):
        unsigned = self.library.find("abi-instr/typedef-decl[@name='ProductId']").get("type-id")
        self.library.find("abi-instr/typedef-decl[@name='StatusCode']").set("type-id", unsigned)
        self.assert_noticed(self.library, LIBRARY, "underlying type 'typedef uint32_t' changed")

    def test_another_name_for_a_type(self):
        self.library.find("abi-instr/typedef-decl[@name='StatusCode']").set("name", "ResultCode")
        self.assert_noticed(self.library, LIBRARY, r'\n-.* name="ResultCode"(?s:.*)\n\+.* name="StatusCode"')

    def test_another_argument_of_a_callback(self):
        callback = self.library.find("abi-instr/function-type")
        callback.remove(callback.find("parameter"))
        self.assert_noticed(self.library, LIBRARY, "parameter .* was added")

    def test_another_version_of_a_function(self):
        entry = self.function("ORV_GetProductId")
        entry.set("elf-symbol-id", "ORV_GetProductId@@TRX_SELVASETUP_0.9")
        self.library.find("elf-function-symbols/elf-symbol[@name='ORV_GetProductId']").set(
            "version", "TRX_SELVASETUP_0.9")
        self.assert_noticed(self.library, LIBRARY, "ORV_GetProductId@@TRX_SELVASETUP_0.9")

    def test_another_name_of_the_library(self):
        self.library.getroot().set("soname", "libTRX-SELVASetup.so.0")
        self.assert_noticed(self.library, LIBRARY, "SONAME changed from 'libTRX-SELVASetup.so.0'")

    def test_another_value_of_a_constant(self):
        self.constants.find(".//enumerator[@name='ORV_BAD_ARGUMENT']").set("value", "99")
        self.assert_noticed(self.constants, CONSTANTS, "ORV_BAD_ARGUMENT' from value '99' to '102'")

    def test_an_added_constant(self):
        values = self.constants.find(".//enum-decl[2]")
        values.remove(values.find("enumerator[@name='ORV_NOT_CONNECTED']"))
        self.assert_noticed(self.constants, CONSTANTS, "1 enumerator insertion(?s:.*)ORV_NOT_CONNECTED")

    def test_debug_information_that_is_missing(self):
        with tempfile.TemporaryDirectory() as folder:
            stripped = pathlib.Path(folder, "stripped.so")
            subprocess.run(["strip", "-o", stripped, LIBRARY], check=True)
            with self.assertRaisesRegex(ValueError, "no debug information"):
                describe(str(stripped))


if __name__ == "__main__":
    unittest.main()
