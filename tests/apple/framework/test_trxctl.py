"""trxctl over Foundation: real processes of a user with a daemon that carries notifications, and software mixers in the
registry that the double of IOKit shows."""

import json
import os
import pathlib
import plistlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

PATIENCE = 60


class TrxctlTest(unittest.TestCase):
    def setUp(self):
        # The paths of sockets must be short.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="trx-", dir="/tmp"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        for name in ["Library/Preferences", "Defaults"]:
            (self.folder / name).mkdir(parents=True)
        configuration = self.folder / "GNUstep.conf"
        configuration.write_text("GNUSTEP_USER_CONFIG_FILE=.none\n"
                                 f"GNUSTEP_USER_DEFAULTS_DIR={self.folder}/Defaults\n"
                                 f"GNUSTEP_USER_DIR_LIBRARY={self.folder}/Library\n")
        self.env = os.environ | {"GNUSTEP_CONFIG_FILE": str(configuration),
                                 "GNUSTEP_STRING_ENCODING": "NSUTF8StringEncoding",
                                 "TEMP": str(self.folder),
                                 "TRX_ACCEPTANCE_REGISTRY": str(self.folder / "control.registry"),
                                 "TRX_SYSTEM_ROOT": os.environ["SYSTEM_ROOT"]}
        self.settings = (self.folder /
                         "Library/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist")
        self.start([os.environ["GDNC"], "--no-fork"])
        self.wait_for(lambda: any((self.folder / "NSMessagePort/names").glob("*")))

    def wait_for(self, condition):
        deadline = time.monotonic() + PATIENCE
        while not condition():
            self.assertLess(time.monotonic(), deadline, "what was waited for does not come")
            time.sleep(0.02)

    def start(self, command, **options):
        process = subprocess.Popen(command, env=self.env, text=True, **options)
        self.addCleanup(self.end, process)
        return process

    def end(self, process):
        process.terminate()
        process.wait(PATIENCE)
        for stream in [process.stdout, process.stderr]:
            if stream is not None:
                stream.close()

    def plug(self, units):
        """Software mixers, for as long as the test runs."""
        control = self.folder / "control"
        self.start([os.environ["TRX_MIXER_REGISTRY"], "--units", str(units),
                    "--control", str(control), "--", "sleep", "infinity"])
        self.wait_for(control.exists)
        self.env["TRX_MIXER_SIM_CONTROL"] = str(control)

    def trxctl(self, *words):
        """Its exit code and what it writes."""
        result = subprocess.run([os.environ["TRXCTL"], *words], env=self.env, text=True,
                                capture_output=True, timeout=PATIENCE, check=False)
        return result.returncode, result.stdout, result.stderr

    def watch(self, *words):
        watch = self.start([os.environ["TRXCTL"], "watch", *words], stdout=subprocess.PIPE,
                           stderr=subprocess.PIPE)
        return watch, watch.stdout.readline()

    def log(self):
        return subprocess.run([os.environ["TRX_MIXER_CTL"], "log"], env=self.env, text=True,
                              stdout=subprocess.PIPE, check=True).stdout


class Settings(TrxctlTest):
    def test_choice_reaches_the_mixers_and_the_settings_file(self):
        self.plug(2)
        self.assertEqual(self.trxctl("boost", "2"), (
            0,
            "TRX-SELVA boost level set to -10 dB.\n"
            "Sent to 2 of 2 connected mixers.\n", ""))
        self.assertEqual(self.log().count("wValue 0200  wIndex 8003  wLength 0"), 2)
        with open(self.settings, "rb") as file:
            self.assertEqual(plistlib.load(file), {"MaxLevel": 1})

    def test_choice_that_cannot_be_stored_is_told(self):
        self.plug(1)
        self.settings.parent.rmdir()
        self.settings.parent.touch()
        code, out, err = self.trxctl("boost", "2")
        self.assertEqual((code, out), (8, "TRX-SELVA boost level set to -10 dB.\n"
                                          "Sent to 1 of 1 connected mixer.\n"))
        # Before it stands what GNUstep itself has to say.
        self.assertTrue(err.endswith(
            "trxctl: error: the boost level could not be stored: "
            f"{self.settings.parent}: Not a directory\n"
            "hint: trxctl diagnose tells what is wrong and what to do\n"), err)

    def test_settings_are_shown_without_a_mixer(self):
        self.plug(0)
        self.assertEqual(self.trxctl(), (
            0,
            "No mixer is connected.\n"
            "\n"
            "TRX-SELVA settings\n"
            "  input audio channel 1   CH1 Control Tone PHONO (default)\n"
            "  input audio channel 2   CH2 Control Tone PHONO (default)\n"
            "  input audio channel 3   REC OUT (default)\n"
            "  output audio channel 1  CH1 (default)\n"
            "  output audio channel 2  CH2 (default)\n"
            "  output audio channel 3  AUX (default)\n"
            "  boost level             -19 dB (default)\n", ""))

    def test_mixers_are_seen_but_not_told_apart(self):
        self.plug(2)
        code, out, err = self.trxctl()
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(out.splitlines()[:2], [
            "Connected mixers", "  at least one, but the system does not tell which"])

    def test_model_is_recognised_in_another_case(self):
        self.plug(0)
        code, out, err = self.trxctl("midi", "--model", "my trx-volt")
        self.assertEqual((code, err), (0, ""))
        self.assertIn("TRX-VOLT MIDI channel", out)

    def test_versions_are_read_from_the_installation(self):
        self.plug(0)
        self.assertEqual(self.trxctl("versions"), (
            0,
            "TRX-SELVA versions\n"
            "  package             1.0.0\n"
            "  driver              not installed\n"
            "  setup application   1.0.0\n"
            "  library             1.0.0\n", ""))


class Watch(TrxctlTest):
    def test_change_of_another_process_is_told(self):
        self.plug(1)
        watch, start = self.watch("--count", "1", "--timeout", str(PATIENCE))
        self.assertEqual(start, "Watching TRX-Arden, TRX-VOLT, TRX-HALDEN, TRX-LUMEN, TRX-MORROW,"
                                " TRX-SELVA; end with Ctrl-C.\n")
        self.assertEqual(self.trxctl("boost", "2")[0], 0)
        out, err = watch.communicate(timeout=PATIENCE)
        self.assertEqual((watch.returncode, out, err),
                         (0, "TRX-SELVA boost level: -10 dB\n", ""))

    def test_start_names_no_bus_in_json(self):
        self.plug(0)
        _, start = self.watch("--json", "--model", "TRX-SELVA")
        self.assertEqual(json.loads(start), {"event": "watching", "models": ["TRX-SELVA"]})

    def test_time_over_ends_it(self):
        self.plug(0)
        watch, _ = self.watch("--timeout", "0.5")
        _, err = watch.communicate(timeout=PATIENCE)
        self.assertEqual(watch.returncode, 5)
        self.assertIn("the time is over; 0 changes seen", err)

    def test_signal_ends_it(self):
        self.plug(0)
        for number in [signal.SIGINT, signal.SIGTERM]:
            with self.subTest(number.name):
                watch, _ = self.watch()
                watch.send_signal(number)
                self.assertEqual(watch.wait(PATIENCE), 0)

    def test_reader_that_goes_ends_it(self):
        self.plug(0)
        watch, _ = self.watch()
        watch.stdout.close()
        self.assertEqual(watch.wait(PATIENCE), 6)
        watch.stdout = None


class Plugged(TrxctlTest):
    """What the launch agent runs, with the product name that would come from launchd's event."""

    def plugged(self, product):
        self.env["PRODUCT_OF_PLUG_EVENT"] = product
        return self.trxctl("reapply", "--plugged", "plug-event")

    def test_what_is_stored_is_sent(self):
        self.plug(1)
        self.trxctl("boost", "2")
        before = self.log()
        self.assertEqual(self.plugged("TRX-SELVA"), (0, "TRX-SELVA: sent boost level -10 dB\n", ""))
        self.assertEqual(self.log().count("wValue 0200"), before.count("wValue 0200") + 1)

    def test_nothing_is_sent_when_turned_off(self):
        self.plug(1)
        self.trxctl("boost", "2")
        self.trxctl("autoapply", "off")
        before = self.log()
        self.assertEqual(self.plugged("TRX-SELVA"), (
            0, "TRX-SELVA: nothing was sent: sending at plug-in is turned off\n", ""))
        self.assertEqual(self.log(), before)

    def test_event_that_launchd_does_not_have(self):
        code, out, err = self.trxctl("reapply", "--plugged", "plug-event")
        self.assertEqual((code, out), (4, ""))
        self.assertIn('no mixer is connected at "plug-event"', err)


class Diagnose(TrxctlTest):
    def diagnose(self):
        code, out, err = self.trxctl("diagnose", "--json")
        self.assertEqual(err, "")
        return code, {check["check"]: check for check in json.loads(out)["checks"]}

    def test_all_well(self):
        self.plug(1)
        self.assertEqual(self.trxctl("diagnose"), (
            0,
            "ok       mixer: at least one is connected\n"
            "ok       answer: the mixers that may be opened answer a request\n"
            f"ok       Preferences folder: {self.settings.parent}\n"
            "ok       settings files: none stored yet\n"
            "ok       installation: library 1.0.0, package 1.0.0\n"
            "ok       autoapply: sending at plug-in does not work here: the launch agent "
            "com.orvikaudio.trx-reapply is not installed, and it is what starts the sending\n", ""))

    def test_no_mixer(self):
        self.plug(0)
        code, checks = self.diagnose()
        self.assertEqual(code, 4)
        self.assertEqual(checks["mixer"]["message"], "no mixer is connected")
        self.assertNotIn("answer", checks)

    def test_settings_file_in_use_and_one_that_is_none(self):
        self.plug(1)
        self.settings.write_bytes(plistlib.dumps({"MaxLevel": 1}))
        self.assertEqual(self.diagnose()[1]["settings files"]["message"], "1 file in good order")
        self.settings.write_text("nonsense {")
        code, checks = self.diagnose()
        self.assertEqual(code, 1)
        self.assertEqual(checks["settings files"]["message"],
                         f"{self.settings}: is no property list with a dictionary in it")

    def test_missing_installation(self):
        self.plug(1)
        self.env["TRX_SYSTEM_ROOT"] = str(self.folder / "nothing")
        code, checks = self.diagnose()
        self.assertEqual(code, 1)
        self.assertEqual(checks["installation"]["message"],
                         "the files with the version of the library are missing")
        self.assertIn("install the framework again", checks["installation"]["hint"])
