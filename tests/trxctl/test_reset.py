"""trxctl reset: stored settings back to their defaults, after a question."""

import os
import pty
import subprocess
import unittest

from host import PATIENCE, TRXCTL, HostTest

QUESTION = (b"  boost level: -10 dB -> -19 dB\r\n"
            b"Set these back to their defaults? [y/N]")


class Reset(HostTest):
    def test_sets_back_what_is_stored(self):
        self.store({"MaxLevel": 1, "Output1": 7})
        self.assertEqual(self.done("reset", "--yes").out,
                         "TRX-SELVA settings set back\n"
                         "  input audio channel 2: REC OUT -> CH2 Control Tone PHONO\n"
                         "  boost level: -10 dB -> -19 dB\n"
                         "Sent to 2 of 2 connected mixers.\n")
        self.assertEqual(self.stored(), {"MaxLevel": 3, "Output1": 0})
        self.assertEqual(self.levels_sent(), [(1, "0000"), (2, "0000")])

    def test_nobody_to_ask(self):
        self.store({"MaxLevel": 1})
        self.assert_fails(2, ["reset"], "reset asks first, and there is no terminal to ask on",
                          "add --yes, or --dry-run to see what would be set back")
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_dry_run_changes_nothing(self):
        self.store({"MaxLevel": 1})
        answer = self.done("reset", "--dry-run", "--json").json
        self.assertEqual(answer["reset"], [
            {"setting": "boost", "index": 3, "text": "-19 dB",
             "before": {"index": 1, "text": "-10 dB"}}])
        self.assert_nothing_sent()
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_nothing_to_set_back(self):
        self.assertEqual(self.done("reset").out, "TRX-SELVA: all settings are at their defaults.\n")


class Question(HostTest):
    """The question to a person at a terminal."""

    def setUp(self):
        super().setUp()
        self.store({"MaxLevel": 1})
        self.ours, its = pty.openpty()
        self.addCleanup(os.close, self.ours)
        self.reset = subprocess.Popen([TRXCTL, "reset"], env=self.env, stdin=its,
                                      stdout=subprocess.PIPE, stderr=its)
        os.close(its)
        self.addCleanup(self.reset.stdout.close)
        self.addCleanup(self.reset.wait)
        self.addCleanup(self.reset.kill)

    def shown_until(self, text):
        """What the terminal shows until a text is there."""
        shown = b""
        while text not in shown:
            shown += os.read(self.ours, 4096)
        return shown

    def answer(self, word):
        """Waits for the question and types an answer; gives exit code and standard output."""
        self.assertIn(QUESTION, self.shown_until(b"[y/N]"))
        # Nothing is done before the answer.
        self.assertEqual(self.stored(), {"MaxLevel": 1})
        self.assert_nothing_sent()
        os.write(self.ours, word + b"\n")
        out, _ = self.reset.communicate(timeout=PATIENCE)
        return self.reset.returncode, out.decode()

    def test_yes(self):
        self.assertEqual(self.answer(b"y"), (0, "TRX-SELVA settings set back\n"
                                                "  boost level: -10 dB -> -19 dB\n"
                                                "Sent to 2 of 2 connected mixers.\n"))
        self.assertEqual(self.stored(), {"MaxLevel": 3})
        self.assertEqual(self.levels_sent(), [(1, "0000"), (2, "0000")])

    def assert_keeps_all(self, word):
        self.assertEqual(self.answer(word), (3, ""))
        self.assertIn(b"nothing was set back", self.shown_until(b"answer y to set it back"))
        self.assertEqual(self.stored(), {"MaxLevel": 1})
        self.assert_nothing_sent()

    def test_no(self):
        self.assert_keeps_all(b"n")

    def test_return_alone_is_a_no(self):
        self.assert_keeps_all(b"")


if __name__ == "__main__":
    unittest.main()
