"""trxctl below a prefix that the system does not search finds its library and its udev rule, wherever the prefix is moved to.

Everything below runs inside trx-mixer-sim and dbus-run-session, which the test command starts.
"""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

PREFIX = pathlib.Path(os.environ["PREFIX"])
RULE = "70-trx-selva.rules"
RULE_FOLDERS = ["/etc/udev/rules.d", "/run/udev/rules.d", "/usr/local/lib/udev/rules.d",
                "/usr/lib/udev/rules.d", "/lib/udev/rules.d"]
# As root without the powers of root, an ordinary user's view.
WITHOUT_POWERS = ["setpriv", "--bounding-set=-all", "--"] if os.geteuid() == 0 else []


def run(*words, **environment):
    """How a command ended; the loader is told of no other libraries."""
    env = {name: value for name, value in os.environ.items() if name != "LD_LIBRARY_PATH"}
    return subprocess.run([str(word) for word in words], env=env | environment, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True, timeout=60, check=False)


class Moved(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.settings = folder.name
        self.prefix = pathlib.Path(folder.name).resolve() / "moved"
        shutil.copytree(PREFIX, self.prefix, symlinks=True)
        self.trxctl = self.prefix / "bin/trxctl"

    def test_the_program_looks_for_its_library_relative_to_itself(self):
        said = run(os.environ["READELF"], "--wide", "--dynamic", self.trxctl).stdout
        self.assertRegex(said, r"\(RUNPATH\) +Library runpath: \[\$ORIGIN/\.\./lib[^:\]]*\]\n")

    def test_it_runs_with_the_library_that_was_moved_with_it(self):
        loaded = run(self.trxctl, LD_TRACE_LOADED_OBJECTS="1").stdout
        library = re.search(r"libTRX-SELVASetup\.so\.1 => (\S+)", loaded)[1]
        self.assertTrue(pathlib.Path(library).resolve().is_relative_to(self.prefix), library)
        ended = run(self.trxctl, "boost", "-10", XDG_CONFIG_HOME=self.settings)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertIn("Sent to 1 of 1 connected mixer", ended.stdout)

    def test_a_mixer_that_may_not_be_opened_is_answered_with_the_command_for_its_rule(self):
        control = os.environ["TRX_MIXER_CTL"]
        self.assertEqual(run(control, "fault", "1", "deny").returncode, 0)
        self.addCleanup(run, control, "clear", "1")
        said = run(*WITHOUT_POWERS, self.trxctl, "diagnose", XDG_CONFIG_HOME=self.settings).stdout
        rule = self.prefix / "lib/udev/rules.d" / RULE
        self.assertTrue(rule.is_file())
        if any(os.path.exists(f"{folder}/{RULE}") for folder in RULE_FOLDERS):
            self.assertNotIn("sudo cp", said)
        else:
            self.assertIn(f"  hint: run: sudo cp {rule} /etc/udev/rules.d/ && sudo udevadm control --reload && "
                          "sudo udevadm trigger\n", said)


if __name__ == "__main__":
    unittest.main()
