"""Settings on a disk that is full: a small file system in memory, filled to its end."""

import os
import subprocess
import unittest

from host import PATIENCE, TRXCTL, HostTest, Result

# Mounts of the command's own; a user keeps its number, which the session bus asks for.
OWN_MOUNTS = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-current-user", "--keep-caps"]) + ["--"]
WITH_FULL_DISK = """
    mount -t tmpfs -o size=16k,mode=0700 none "$0" || exit 99
    mkdir "$0/Preferences" || exit 99
    cat >"$0/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist" || exit 99
    cat /dev/zero >"$0/filler" 2>/dev/null && exit 99
    "$@"
    code=$?
    echo "left: $(ls -A "$0/Preferences")" >&2
    exit $code
"""
FILE = "com.orvikaudio.TRX-SELVAautosetup.plist"


class FullDisk(HostTest):
    def setUp(self):
        super().setUp()
        self.library_folder = self.config / "orvikaudio"
        self.library_folder.mkdir()
        self.store({"MaxLevel": 2})

    def run_on_full_disk(self, *words):
        """Runs trxctl where no byte more can be stored, and gives what it left beside what it said."""
        with self.settings_file().open("rb") as stored:
            done = subprocess.run([*OWN_MOUNTS, "sh", "-c", WITH_FULL_DISK, self.library_folder, TRXCTL, *words],
                                  env=self.env, stdin=stored, capture_output=True, text=True, timeout=PATIENCE, check=False)
        return Result(done.returncode, done.stdout, done.stderr)

    def test_what_cannot_be_stored_is_sent_and_the_reason_is_the_systems(self):
        result = self.run_on_full_disk("boost", "--", "-10")
        self.assertEqual((result.code, result.out),
                         (8, "TRX-SELVA boost level set to -10 dB.\nSent to 2 of 2 connected mixers.\n"))
        self.assertEqual(result.err,
                         "trxctl: error: the boost level could not be stored: "
                         f"{self.library_folder}/Preferences: No space left on device\n"
                         "hint: trxctl diagnose tells what is wrong and what to do\n"
                         f"left: {FILE}\n")
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_json_says_that_it_is_not_stored(self):
        shown = self.run_on_full_disk("boost", "--json", "--", "-10").json
        self.assertEqual((shown["stored"], shown["sent_to"]), (False, 2))
        self.assertEqual((shown["error"]["kind"], shown["error"]["code"]), ("not_stored", 8))

    def test_diagnose_finds_it_and_leaves_nothing(self):
        result = self.run_on_full_disk("diagnose")
        self.assertEqual(result.code, 8)
        self.assertIn("No space left on device\n  hint: delete what is not needed on that disk\n", result.out)
        self.assertEqual(result.err, f"left: {FILE}\n")


if __name__ == "__main__":
    unittest.main()
