"""The manual page: well made, and telling the same as the help."""

import os
import pathlib
import re
import subprocess
import unittest

from host import HostTest

MANUAL = os.environ["TRXCTL_MANUAL"]


def rendered():
    """The page as text, without overstriking."""
    done = subprocess.run(["mandoc", "-T", "ascii", MANUAL], check=True, stdout=subprocess.PIPE)
    return re.sub(".\b", "", done.stdout.decode())


def section(name):
    return re.search(rf"^{name}\n(.*?)(?=^\S)", rendered(), re.S | re.M).group(1)


class Manual(HostTest):
    def test_is_well_made(self):
        done = subprocess.run(["mandoc", "-T", "lint", "-W", "warning", MANUAL], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        self.assertEqual((done.returncode, done.stdout), (0, ""))

    def test_commands_are_those_of_the_help(self):
        helped = re.search(r"^Commands:\n(.*?)\n\n", self.done("--help").out, re.S | re.M).group(1)
        commands = [line.split()[0] for line in helped.splitlines()]
        self.assertEqual(re.findall(r"^     ([a-z]+)\b", section("COMMANDS"), re.M)[:len(commands)],
                         commands)

    def test_exit_codes_are_those_of_the_help(self):
        helped = self.done("--help").out.split("Exit codes:\n")[1]
        codes = [tuple(line.split(maxsplit=1)) for line in helped.splitlines()]
        text = " ".join(section("EXIT STATUS").split())
        for code, meaning in codes:
            self.assertIn(f"{code} {meaning}", text)
        self.assertEqual(len(re.findall(r"^     \d", section("EXIT STATUS"), re.M)), len(codes))

    def test_options_are_those_of_the_help(self):
        text = rendered()
        source = pathlib.Path(MANUAL).read_text(encoding="ascii")
        commands = re.findall(r"^\.It Cm (\w+)", source, re.M)
        for words in [[]] + [[command] for command in commands]:
            for option in re.findall(r"^  (?:-h,)?(--[a-z]+)", self.done(*words, "--help").out,
                                     re.M):
                self.assertIn(option, text, words)


if __name__ == "__main__":
    unittest.main()
