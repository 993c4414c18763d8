"""Runs hosts with the installed library, on one software mixer and a private session bus.

Each host must reach the mixer, be called back, and end as its documentation says.
"""

import os
import pathlib
import plistlib
import re
import select
import subprocess
import sys
import tempfile
import time
import unittest

INSTALLATION = pathlib.Path(os.environ["INSTALLATION"])
LIBRARY_FOLDER = pathlib.Path(os.environ["LIBRARY_FOLDER"])
EXAMPLES = pathlib.Path(os.environ["EXAMPLES"])
BUILT_BY_BUILD_LINE = pathlib.Path(os.environ["BUILT_BY_BUILD_LINE"])
BUILT_BY_CMAKE = pathlib.Path(os.environ["BUILT_BY_CMAKE"])
TRX_MIXER_CTL = os.environ["TRX_MIXER_CTL"]
VALGRIND = os.environ["VALGRIND"]
PATIENCE = 60  # seconds until a test that waits gives up

MENU_WITH_FIRST_STORED = """\
* 0  CH1 Control Tone PHONO
  1  CH1 Control Tone LINE
  2  Post CH1 Fader
  3  Cross Fader A
  4  Cross Fader B
  5  MIC
  6  AUX
  7  REC OUT
"""


def mixer(*words):
    """The simulator's answer to a command."""
    return subprocess.run([TRX_MIXER_CTL, *words], check=True, capture_output=True, text=True,
                          timeout=PATIENCE).stdout


class Running:
    """A host that runs until its input ends."""

    def __init__(self, command, env):
        self.process = subprocess.Popen(command, env=env, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE)
        self._text = b""

    def line(self):
        """The next line that the host writes."""
        deadline = time.monotonic() + PATIENCE
        while b"\n" not in self._text:
            ready, _, _ = select.select([self.process.stdout], [], [],
                                        max(0, deadline - time.monotonic()))
            data = os.read(self.process.stdout.fileno(), 4096) if ready else b""
            if not data:
                raise AssertionError(f"no further line, only {self._text!r}")
            self._text += data
        line, self._text = self._text.split(b"\n", 1)
        return line.decode()

    def type(self, keys):
        self.process.stdin.write(keys)
        self.process.stdin.flush()

    def end_of_input(self):
        """Ends the input. Returns the host's exit code and its remaining output."""
        self.process.stdin.close()
        code = self.process.wait(PATIENCE)
        return code, self._text + self.process.stdout.read()

    def stop(self):
        self.process.kill()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


class HostTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.settings_file = pathlib.Path(
            folder.name, "orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist")
        # Texts come from the real place of the installation, not from the configured one.
        self.env = dict(os.environ, XDG_CONFIG_HOME=folder.name,
                        TRX_SYSTEM_ROOT=str(INSTALLATION / "share/orvikaudio"),
                        LC_ALL="en_GB.UTF-8", LANGUAGE="")
        mixer("log", "clear")

    def installed(self, program):
        """The command for a host, which must have been linked to the installed library."""
        env = dict(self.env, LD_LIBRARY_PATH=str(LIBRARY_FOLDER))
        linked = subprocess.run(["ldd", str(program)], env=env, check=True, capture_output=True,
                                text=True).stdout
        found = re.search(r"libTRX-SELVASetup\.so\.1 => (\S+)", linked)
        self.assertIsNotNone(found, linked)
        self.assertEqual(pathlib.Path(found[1]).parent.resolve(), LIBRARY_FOLDER.resolve())
        return [str(program)]

    def run_host(self, command):
        env = dict(self.env, LD_LIBRARY_PATH=str(LIBRARY_FOLDER))
        return subprocess.run(command, env=env, capture_output=True, text=True, timeout=PATIENCE)

    def start(self, command):
        host = Running(command, dict(self.env, LD_LIBRARY_PATH=str(LIBRARY_FOLDER)))
        self.addCleanup(host.stop)
        self.assertEqual(host.line(), "ready")
        return host

    def assert_on_the_wire(self, *requests):
        """The mixer got exactly these requests: wValue and wIndex of writes, "read" and wIndex of reads."""
        seen = []
        for line in mixer("log").splitlines():
            fields = re.match(r"unit 1  (IN|OUT) .* wValue (\w{4})  wIndex (\w{4}) ", line)
            self.assertIsNotNone(fields, line)
            seen.append(("read" if fields[1] == "IN" else fields[2], fields[3]))
        self.assertEqual(seen, list(requests))

    def assert_stored(self, settings):
        self.assertEqual(plistlib.loads(self.settings_file.read_bytes()), settings)

    def assert_sets_the_level_and_hears_of_it(self, command):
        ended = self.run_host(command)
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr),
                         (0, "boost level is now -10 dB\n", ""))
        self.assert_on_the_wire(("0200", "8003"))
        self.assert_stored({"MaxLevel": 1})


class HostOfTheReadme(HostTest):
    """The program that README.md shows."""

    def test_built_with_the_build_line_it_sets_the_level_and_hears_of_it(self):
        self.assert_sets_the_level_and_hears_of_it(self.installed(BUILT_BY_BUILD_LINE / "my-host"))

    def test_built_with_find_package_it_sets_the_level_and_hears_of_it(self):
        self.assert_sets_the_level_and_hears_of_it(self.installed(BUILT_BY_CMAKE / "my-host"))


class HostThatExits(HostTest):
    def test_may_still_set_a_level_from_what_it_does_at_exit(self):
        program = self.installed(BUILT_BY_BUILD_LINE / "exit-host")
        # Its log is no error: valgrind also warns about system calls that are newer than it is.
        log = pathlib.Path(self.env["XDG_CONFIG_HOME"], "valgrind.log")
        done = self.run_host([VALGRIND, "--error-exitcode=9", f"--log-file={log}", *program])
        self.assertEqual((done.returncode, done.stderr), (0, ""), log.read_text())
        self.assertEqual([line.split("->")[0].strip() for line in mixer("log").splitlines()],
                         ["unit 1  OUT  40 03  wValue 0200  wIndex 8003  wLength 0",
                          "unit 1  OUT  40 03  wValue 0100  wIndex 8003  wLength 0"])


class HostThatUnloads(HostTest):
    def test_keeps_the_texts_that_it_was_given(self):
        done = self.run_host([str(BUILT_BY_BUILD_LINE / "unloading-host")])
        self.assertEqual((done.returncode, done.stdout), (0, "-10 dB\n"))


class HostInPython(HostTest):
    def test_it_sets_the_level_and_hears_of_it(self):
        self.assert_sets_the_level_and_hears_of_it([sys.executable, str(EXAMPLES / "python-host.py")])


class EventLoopTests:
    """What the host named `name` does on each event loop."""

    def start_host(self):
        return self.start(self.installed(BUILT_BY_BUILD_LINE / self.name))

    def test_it_sends_what_is_typed_and_hears_of_it(self):
        host = self.start_host()
        host.type(b"0\n")
        self.assertEqual(host.line(), "boost level: -5 dB")
        self.assert_on_the_wire(("0300", "8003"))
        self.assert_stored({"MaxLevel": 0})
        self.assertEqual(host.end_of_input(), (0, b""))

    def test_it_sends_the_stored_settings_to_a_mixer_that_is_plugged_in(self):
        self.run_host([str(BUILT_BY_BUILD_LINE / "input-host"), "5"])
        self.run_host([str(BUILT_BY_BUILD_LINE / "my-host")])
        host = self.start_host()
        mixer("unplug", "1")
        mixer("log", "clear")
        mixer("replug", "1")
        self.assertEqual(host.line(), "settings sent to the new mixer")
        self.assert_on_the_wire(("0109", "8002"), ("0100", "8016"),
                                ("0203", "8002"), ("0201", "8016"),
                                ("030a", "8002"), ("0304", "8016"),
                                ("0200", "8003"))
        self.assertEqual(host.end_of_input(), (0, b""))


class HostOnPoll(EventLoopTests, HostTest):
    name = "poll-host"

    def test_it_hears_what_another_process_sets(self):
        host = self.start_host()
        self.run_host([str(BUILT_BY_BUILD_LINE / "input-host"), "7"])
        self.assertEqual(host.line(), "recording channel 1: REC OUT")
        self.run_host([str(BUILT_BY_BUILD_LINE / "my-host")])
        self.assertEqual(host.line(), "boost level: -10 dB")
        self.assertEqual(host.end_of_input(), (0, b""))

    def test_without_a_session_bus_it_sends_and_stores_all_the_same(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        host = self.start_host()
        host.type(b"0\n")
        self.assertEqual(host.end_of_input(), (0, b""))
        self.assert_on_the_wire(("0300", "8003"))
        self.assert_stored({"MaxLevel": 0})


class HostOnGLib(EventLoopTests, HostTest):
    name = "glib-host"

    def test_it_hears_what_is_announced_without_the_library(self):
        host = self.start_host()
        subprocess.run(["sh", "-e", str(EXAMPLES / "announce.sh")], check=True, timeout=PATIENCE)
        self.assertEqual(host.line(), "boost level: -15 dB")
        self.assert_on_the_wire()
        self.assertEqual(host.end_of_input(), (0, b""))


class HostOnQt(EventLoopTests, HostTest):
    name = "qt-host"


class HostThatReports(HostTest):
    def report(self):
        return self.run_host(self.installed(BUILT_BY_BUILD_LINE / "report-host")).stdout

    def test_it_prints_who_took_the_setting_and_where_it_is_stored(self):
        self.assertRegex(self.report(), "^bus 1, address [0-9]+: done\n"
                                        f"taken by 1\nstored in {re.escape(str(self.settings_file))}\n$")

    def test_it_prints_that_the_mixer_refused(self):
        mixer("fault", "1", "stall")
        self.addCleanup(mixer, "clear", "1")
        self.assertRegex(self.report(), "^bus 1, address [0-9]+: refused\ntaken by 0\nstored in ")


class HostWithInputMenu(HostTest):
    def choose(self, *words):
        return self.run_host(self.installed(BUILT_BY_BUILD_LINE / "input-host") + list(words))

    def test_it_lists_the_choices_and_marks_the_stored_one(self):
        listed = self.choose()
        self.assertEqual((listed.returncode, listed.stdout), (0, MENU_WITH_FIRST_STORED))
        self.choose("5")
        self.assertIn("  0  CH1 Control Tone PHONO\n", self.choose().stdout)
        self.assertIn("* 5  MIC\n", self.choose().stdout)

    def test_it_shows_the_warning_when_the_selector_stands_elsewhere(self):
        mixer("set", "1", "selector", "0", "5")
        chosen = self.choose("1")
        self.assertEqual(chosen.returncode, 0)
        self.assertEqual(
            chosen.stdout.removeprefix(MENU_WITH_FIRST_STORED),
            "Your choice has been sent to the mixer, but the input selector of this channel is not "
            "set to USB. Turn it to the USB position for the port this computer is connected to.\n")
        self.assert_on_the_wire(("0100", "8002"), ("read", "8002"), ("read", "8006"))
        self.assert_stored({"Output0": 1})

    def test_it_shows_no_warning_when_the_selector_stands_right(self):
        mixer("set", "1", "selector", "0", "6")
        self.assertEqual(self.choose("1").stdout, MENU_WITH_FIRST_STORED)
        self.assert_on_the_wire(("0100", "8002"), ("read", "8002"))

    def test_it_ends_with_1_for_a_number_that_is_no_choice(self):
        self.assertEqual(self.choose("8").returncode, 1)
        self.assert_on_the_wire()
        self.assertFalse(self.settings_file.exists())


if __name__ == "__main__":
    unittest.main()
