"""What every installed program and library has against errors in it being used by others, as the files say it."""

import functools
import os
import pathlib
import re
import subprocess
import unittest

ENDBR64 = b"\xf3\x0f\x1e\xfa"
MOST_IN_START_FILES = 2

INSTALLATION = pathlib.Path(os.environ["INSTALLATION"])


@functools.cache
def installed():
    """All programs and libraries of the installation, each once."""
    files = (path for path in INSTALLATION.rglob("*") if path.is_file() and not path.is_symlink())
    return [path for path in files if path.read_bytes()[:4] == b"\x7fELF"]


@functools.cache
def read(path, *options):
    return subprocess.run([os.environ["READELF"], "--wide", *options, path], check=True, text=True,
                          stdout=subprocess.PIPE).stdout


def called(path):
    """The functions that a file calls in others."""
    return set(re.findall(r" UND (\w+)", read(path, "--dyn-syms")))


class Hardening(unittest.TestCase):
    def test_is_looked_for_in_the_library_and_in_the_programs(self):
        names = {path.name for path in installed()}
        self.assertLessEqual({"trxctl", "trx-mixer-sim", "trx-mixer-ctl"}, names)
        self.assertTrue(any(name.startswith("libTRX-SELVASetup.so.") for name in names), names)

    def test_lies_anywhere_in_memory(self):
        for path in installed():
            self.assertRegex(read(path, "--file-header"), r"Type: +DYN ", path.name)

    def test_has_a_stack_that_cannot_be_run(self):
        for path in installed():
            self.assertRegex(read(path, "--program-headers"), r"GNU_STACK .* RW +0x", path.name)

    def test_has_no_writable_table_of_functions(self):
        for path in installed():
            self.assertIn("GNU_RELRO", read(path, "--program-headers"), path.name)
            self.assertRegex(read(path, "--dynamic"), r"\(FLAGS(_1)?\) .*\b(BIND_)?NOW\b", path.name)

    def test_watches_its_stack(self):
        for path in installed():
            self.assertIn("__stack_chk_fail", called(path), path.name)

    def test_checks_the_sizes_of_buffers_that_it_knows(self):
        checked = {path.name for path in installed()
                   if any(re.fullmatch(r"__\w+_chk", name) for name in called(path))}
        self.assertTrue(any(name.startswith("libTRX-SELVASetup.so.") for name in checked), checked)
        self.assertIn("trx-mixer-sim", checked)

    @unittest.skipUnless(os.environ["PROCESSOR"] == "x86_64", "other processors have other means")
    def test_begins_each_function_that_may_be_jumped_to_with_a_landing_place(self):
        # The file as a whole is marked only where the C library's own start files are, which Debian's are not.
        for path in installed():
            self.assertGreater(path.read_bytes().count(ENDBR64), MOST_IN_START_FILES, path.name)
