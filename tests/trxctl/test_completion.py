"""Completion of words: what trxctl answers, and what bash, zsh and fish make of it."""

import os
import subprocess
import unittest

import shells
from host import LEVELS, MODELS, PATIENCE, TRXCTL, HostTest
from shells import COMPLETIONS, TAB


class Candidates(HostTest):
    def candidates(self, *words):
        """The candidates for the last of the words, without what is said of them."""
        return [line.split("\t")[0] for line in self.done("complete", *words).out.splitlines()]

    def test_commands(self):
        commands = self.candidates("")
        self.assertEqual(commands[:4], ["input", "output", "boost", "midi"])
        self.assertEqual(commands[-9:], ["status", "watch", "reapply", "autoapply", "reset", "profile",
                                         "diagnose", "versions", "models"])
        self.assertEqual(self.candidates("--json", "re"), ["reapply", "reset"])

    def test_commands_say_what_they_are(self):
        self.assertEqual(self.done("complete", "bo").out,
                         "boost\tShow or set the boost level of the mixer's USB audio output\n")

    def test_models(self):
        self.assertEqual(self.candidates("--model", ""), MODELS)
        self.assertEqual(self.candidates("boost", "--model", "trx-l"), ["TRX-LUMEN"])

    def test_options(self):
        self.assertEqual(self.candidates("watch", "--t"), ["--timeout", "--timestamps"])
        self.assertEqual(self.candidates("output", "1", "--d"), ["--dry-run", "--default"])
        self.assertEqual(self.candidates("boost", "--d"), ["--dry-run"])

    def test_languages(self):
        self.assertEqual(self.candidates("input", "1", "0", "--language", "ger"), ["German"])

    def test_channels(self):
        self.assertEqual(self.candidates("input", ""), ["1", "2", "3"])
        self.assertEqual(self.candidates("input", "--model", "TRX-HALDEN", ""),
                         ["1", "2", "3", "4", "5"])
        self.assertEqual(self.candidates("input", "--model=trx-arden", ""), ["1", "2", "3", "4"])
        self.assertEqual(self.candidates("output", "--model", "TRX-VOLT", ""), [])
        self.assertEqual(self.candidates("input", "--model", "ard", ""), ["1", "2", "3", "4"])

    def test_choices(self):
        self.assertEqual(self.candidates("input", "2", "c"),
                         ["CH2 Control Tone PHONO", "CH2 Control Tone LINE", "Cross Fader A",
                          "Cross Fader B"])
        self.assertEqual(self.candidates("output", "3", ""), ["CH1", "CH2", "AUX"])
        self.assertEqual(self.candidates("boost", ""), LEVELS)
        self.assertEqual(self.candidates("midi", "--model", "TRX-VOLT", "CH 1"),
                         ["CH 1", "CH 10", "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"])

    def test_choices_with_a_dash_before_the_options(self):
        self.assertEqual(self.candidates("boost", "-1"), ["-10 dB", "-15 dB", "-19 dB"])
        self.assertEqual(self.candidates("boost", "-")[:5],
                         ["-5 dB", "-10 dB", "-15 dB", "-19 dB", "--help"])

    def test_choices_that_the_model_does_not_take_are_not_offered(self):
        self.assertEqual(self.candidates("input", "1", "--model", "TRX-LUMEN", ""), [])

    def test_words_as_the_shell_has_them(self):
        self.assertEqual(self.candidates("input", "2", '"REC O'), ["REC OUT"])
        self.assertEqual(self.candidates("input", "2", "REC\\ O"), ["REC OUT"])

    def test_nothing_behind_a_whole_choice(self):
        self.assertEqual(self.candidates("boost", "-10 dB", ""), [])

    def test_words_that_make_no_sense_have_no_candidates(self):
        for words in (["equalizer", "x"], ["input", "99", ""], ["input", "x", ""],
                      ["boost", "--model", "nobody", ""], ["boost", "--model", "trx", ""]):
            self.assertEqual(self.candidates(*words), [], words)

    def test_sends_and_stores_nothing(self):
        self.candidates("boost", "")
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())


class InShell:
    """What every shell must do; each shell is one class below."""

    def setUp(self):
        super().setUp()
        self.shell = type(self).start(self.env, self.config)
        self.addCleanup(self.shell.stop)

    def assert_completes(self, keys, shown, *words):
        self.shell.complete(keys, shown)
        self.assertEqual(self.shell.words(), ["trxctl", *words], keys)

    def test_command(self):
        self.assert_completes("trxctl diag", "nose", "diagnose")

    def test_text_with_a_dash_in_front(self):
        self.assert_completes("trxctl boost -19", "dB", "boost", "-19 dB")

    def test_text_with_blanks(self):
        self.assert_completes("trxctl input 2 RE", "OUT", "input", "2", "REC OUT")

    def test_text_with_blanks_in_quotes(self):
        self.assert_completes('trxctl input 2 "Post C', "Fader", "input", "2", "Post CH2 Fader")

    def test_text_with_blanks_begun_with_escapes(self):
        self.assert_completes("trxctl input 2 Post\\ C", "Fader", "input", "2", "Post CH2 Fader")

    def test_options_and_models(self):
        self.shell.complete("trxctl midi --mod", "el")
        self.assert_completes("TRX-V", "OLT", "midi", "--model", "TRX-VOLT")


class Listing:
    """What a second press of the key shows."""

    def test_several_candidates_are_listed(self):
        self.shell.type("trxctl boost -1" + TAB + TAB)
        listed = self.shell.wait_for("-19").replace("\\", "")
        self.assertIn("-10 dB", listed)
        self.assertIn("-15 dB", listed)


class Bash(InShell, Listing, HostTest):
    start = staticmethod(shells.bash)


class Zsh(InShell, Listing, HostTest):
    start = staticmethod(shells.zsh)


class Fish(InShell, HostTest):
    start = staticmethod(shells.fish)

    def asked(self, line):
        """What fish would offer for a line."""
        folder = os.path.dirname(TRXCTL)
        env = {name: value for name, value in self.env.items() if name != "LD_PRELOAD"}
        return subprocess.run(
            ["fish", "--no-config", "-c", f"set PATH {folder} $PATH; "
             f"source {COMPLETIONS}/trxctl.fish; complete -C '{line}'"],
            env=env, text=True, stdout=subprocess.PIPE, check=True, timeout=PATIENCE).stdout

    def test_several_candidates_are_listed(self):
        self.assertEqual(self.asked("trxctl boost -1"), "-10 dB\n-15 dB\n-19 dB\n")

    def test_candidates_come_with_what_they_are(self):
        self.assertEqual(self.asked("trxctl diag"),
                         "diagnose\tTell why a mixer is not found or cannot be used\n")


if __name__ == "__main__":
    unittest.main()
