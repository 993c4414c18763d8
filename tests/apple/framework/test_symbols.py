"""The names that the framework exports."""

import os
import re
import unittest

from mac_build import SOURCE, run

OF_LINUX = {"ORV_GetNotificationDescriptor", "ORV_DispatchNotifications"}


def declared():
    header = SOURCE / "include/TRX-SELVASetup/Diagnostics.h"  # which includes the other
    text = run(os.environ["CLANG"], "-E", "-P", "-x", "c", "-I", SOURCE / "include", header)
    return re.findall(r"\b(ORV_\w+)\s*\(", text)


def listed():
    return (SOURCE / "Framework/TRX-SELVASetup.exp").read_text().splitlines()


class Symbols(unittest.TestCase):
    def test_list_names_every_declared_function_once(self):
        self.assertEqual(len(listed()), 50)
        self.assertEqual(sorted(listed()), sorted("_" + name for name in declared()))

    def test_list_is_that_of_linux_without_the_event_loop(self):
        text = (SOURCE / "Framework/TRX-SELVASetup.map").read_text()
        of_linux = set(re.findall(r"\bORV_\w+(?=;)", text))
        self.assertEqual(len(of_linux), 52)
        self.assertEqual(set(listed()), {"_" + name for name in of_linux - OF_LINUX})

    def test_library_of_the_same_sources_defines_what_is_listed(self):
        text = run(os.environ["NM"], "-D", "--defined-only", os.environ["LIBRARY"])
        defined = {"_" + name for name in re.findall(r" T (ORV_\w+)", text)}
        self.assertEqual(defined, set(listed()))
