"""The manual pages of the simulator's programs: well made, and saying the same as the help."""

import os
import re
import subprocess
import unittest

SIMULATOR = os.environ["TRX_MIXER_SIM"]
CONTROL = os.environ["TRX_MIXER_CTL"]
PAGES = {SIMULATOR: os.environ["SIMULATOR_MANUAL"], CONTROL: os.environ["CONTROL_MANUAL"]}


def output(*command):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout


def source(program):
    with open(PAGES[program], encoding="ascii") as page:
        return page.read()


def section(program, name):
    return re.search(rf"^\.Sh {name}\n(.*?)(?=^\.Sh|\Z)", source(program), re.S | re.M).group(1)


def entries(name):
    """The words that begin the entries of a section of trx-mixer-ctl's page."""
    return re.findall(r"^\.It Cm ([a-z-]+)", section(CONTROL, name), re.M)


def helped(heading):
    """The usage lines below a heading of trx-mixer-ctl's help."""
    text = re.search(rf"^{heading}.*\n((?:  .*\n)+)", output(CONTROL, "help"), re.M).group(1)
    return [line.split("  ")[1] for line in text.splitlines()]


class Manual(unittest.TestCase):
    def test_is_well_made(self):
        for page in PAGES.values():
            done = subprocess.run(["mandoc", "-T", "lint", "-W", "warning", page], text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
            self.assertEqual((done.returncode, done.stdout), (0, ""))

    def test_has_the_options_of_the_help(self):
        for program in PAGES:
            options = re.findall(r"^  (?:-h,)?(--[a-z-]+)", output(program, "--help"), re.M)
            self.assertIn("--control", options)
            described = re.findall(r"^\.It (?:Fl h , )?Fl (-[a-z-]+)", source(program), re.M)
            self.assertEqual({"-" + option for option in described}, set(options))

    def test_has_the_exit_codes_of_the_help(self):
        for program in PAGES:
            documented = re.search(r"^Exit codes: (.*)", output(program, "--help"), re.S | re.M).group(1)
            self.assertEqual(set(re.findall(r"\b\d+\b", section(program, "EXIT STATUS"))),
                             set(re.findall(r"\b\d+\b", documented)))

    def test_of_the_simulator_has_every_model(self):
        models = re.search(r"mixer model \((.*?)\)", output(SIMULATOR, "--help")).group(1)
        self.assertEqual(re.findall(r"^\.It (\S+) Ta \d$", source(SIMULATOR), re.M),
                         models.split(", "))

    def test_of_the_client_has_every_command(self):
        self.assertEqual(entries("COMMANDS"),
                         [usage.split()[0] for usage in helped("Commands")])

    def test_of_the_client_has_every_setting(self):
        self.assertEqual(entries("SETTINGS"), [usage.split()[2] for usage in helped("Settings")])

    def test_of_the_client_has_every_fault_and_request(self):
        faults = [usage.split()[2] for heading in ("Faults of requests", "Faults of opening")
                  for usage in helped(heading)]
        self.assertEqual(entries("FAULTS"), faults)
        requests = re.search(r"^Requests: (.*)", output(CONTROL, "help"), re.M).group(1)
        page = re.search(r"^The requests are\n(.*?) \.$", section(CONTROL, "FAULTS"), re.S | re.M)
        words = [word for word in re.findall(r"[a-z][a-z-]+", page.group(1)) if word != "and"]
        self.assertEqual(words, requests.split(", "))


if __name__ == "__main__":
    unittest.main()
