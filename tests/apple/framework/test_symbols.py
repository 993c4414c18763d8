"""The names that the framework exports."""

import os
import re
import unittest

from mac_build import BUILD, SOURCE, run


def declared():
    header = SOURCE / "include/TRX-SELVASetup/Diagnostics.h"  # which includes the other
    text = run(os.environ["CLANG"], "-E", "-P", "-x", "c", "-I", SOURCE / "include", header)
    return re.findall(r"\b(ORV_\w+)\s*\(", text)


def listed():
    return (BUILD / "Framework/TRX-SELVASetup.exp").read_text().splitlines()


class Symbols(unittest.TestCase):
    def test_list_names_every_declared_function_once(self):
        self.assertEqual(sorted(listed()), sorted("_" + name for name in declared()))

    def test_list_names_no_function_of_linux(self):
        self.assertIn("_ORV_GetProductId", listed())
        self.assertNotIn("_ORV_DispatchNotifications", listed())

    def test_library_of_the_same_sources_defines_what_is_listed(self):
        text = run(os.environ["NM"], "-D", "--defined-only", os.environ["LIBRARY"])
        defined = {"_" + name for name in re.findall(r" T (ORV_\w+)", text)}
        self.assertEqual(defined, set(listed()))
