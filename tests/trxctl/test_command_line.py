"""Help, version, and command lines that cannot be understood."""

import unittest

from host import HostTest

COMMANDS = ["input", "output", "boost", "midi", "status", "watch", "reapply", "reset", "profile",
            "diagnose", "versions", "models"]


class Help(HostTest):
    def test_overview_teaches_commands_examples_and_exit_codes(self):
        text = self.done("--help").out
        for line in ("Usage: trxctl [OPTIONS] [COMMAND]\n",
                     "  boost             Show or set the boost level",
                     "  watch             Print each change",
                     "  --model NAME      The mixer model (default: that of the mixers)\n",
                     '  trxctl boost "-10 dB"            set it on every connected mixer\n',
                     "  0  done\n",
                     "  1  the system did not give what the program needs\n",
                     "  2  the command line was not understood\n",
                     "  3  the model or the choice was refused\n",
                     "  4  no mixer is connected and nothing could be done without one\n",
                     "  5  the time given with --timeout is over\n",
                     "  6  the output could not be written\n",
                     "  7  mixers are connected, but none of them could be opened\n",
                     "  8  the setting could not be stored\n",
                     "  9  a connected mixer did not take it\n"):
            self.assertIn(line, text)

    def test_fits_a_terminal(self):
        for words in ([], *([command] for command in COMMANDS)):
            for line in self.done(*words, "--help").out.splitlines():
                self.assertLessEqual(len(line), 80, line)

    def test_each_command_has_examples(self):
        for command in COMMANDS:
            text = self.done(command, "--help").out
            self.assertIn(f"Usage: trxctl {command} ", text)
            self.assertRegex(text, f"Examples:\n  trxctl {command}[ \n]")

    def test_short_form(self):
        self.assertEqual(self.done("-h").out, self.done("--help").out)

    def test_changes_nothing(self):
        self.done("boost", "-10", "--help")
        self.assert_nothing_sent()

    def test_as_a_command(self):
        self.assertEqual(self.done("help").out, self.done("--help").out)
        self.assertEqual(self.done("help", "boost").out, self.done("boost", "--help").out)

    def test_json(self):
        self.assertEqual(self.done("--json", "--help").json, {"help": self.done("--help").out})


class Version(HostTest):
    def test_text(self):
        self.assertRegex(self.done("--version").out, r"^trxctl \d+\.\d+\.\d+\n$")

    def test_json(self):
        version = self.done("--version").out.split()[1]
        self.assertEqual(self.done("--json", "--version").json,
                         {"name": "trxctl", "version": version})


class NotUnderstood(HostTest):
    def test_unknown_command_suggests_the_nearest(self):
        for given, meant in (("bost", "boost"), ("wach", "watch"), ("BOOTS", "boost")):
            self.assert_fails(2, [given], f'unknown command "{given}"', f"did you mean {meant}?")

    def test_unknown_command_unlike_any_other(self):
        self.assert_fails(2, ["equalizer"], 'unknown command "equalizer"', "see trxctl --help")

    def test_unknown_option_suggests_the_nearest(self):
        self.assert_fails(2, ["--jsno"], 'unknown option "--jsno"', "did you mean --json?")
        self.assert_fails(2, ["boost", "--agian"], 'unknown option "--agian"',
                          "did you mean --again?")

    def test_option_of_another_command_is_not_suggested(self):
        self.assert_fails(2, ["boost", "--conut", "1"], 'unknown option "--conut"',
                          "see trxctl boost --help")

    def test_word_before_a_command(self):
        self.assert_fails(2, ["set", "boost", "1"], 'unknown command "set"',
                          "did you mean trxctl boost 1?")
        self.assert_nothing_sent()

    def test_flag_with_a_value(self):
        for word, flag in (("--json=true", "--json"), ("--json=", "--json"),
                           ("--again=no", "--again")):
            self.assert_fails(2, ["boost", word], f"{flag} takes no value", f"write {flag} alone")
        self.assert_nothing_sent()

    def test_word_too_many(self):
        self.assert_fails(2, ["watch", "boost"], '"boost" is not expected after "watch"',
                          "see trxctl watch --help")

    def test_option_without_its_value(self):
        self.assert_fails(2, ["--model"], "--model needs a value", "see trxctl --help")
        self.assert_fails(2, ["watch", "--count"], "--count needs a value",
                          "see trxctl watch --help")

    def test_count_that_is_no_count(self):
        for word in ("0", "-1", "1.5", "many"):
            self.assert_fails(2, ["watch", "--count", word],
                              f'--count: "{word}" is no whole number above 0',
                              "see trxctl watch --help")

    def test_timeout_that_is_no_time(self):
        for word in ("0", "-0.5", "nan", "soon"):
            self.assert_fails(2, ["watch", "--timeout", word],
                              f'--timeout: "{word}" is no number above 0',
                              "see trxctl watch --help")

    def test_json(self):
        result = self.run_host("bost", "--json")
        self.assertEqual((result.code, result.err), (2, ""))
        self.assertEqual(result.json, {"error": {
            "code": 2, "kind": "usage", "message": 'unknown command "bost"',
            "hint": "did you mean boost?", "choices": ["boost"]}})

    def test_json_without_a_suggestion_has_no_choices(self):
        self.assertEqual(list(self.run_host("--json", "watch", "boost").json["error"]),
                         ["code", "kind", "message", "hint"])

    def test_bytes_that_are_no_text_stay_valid_json(self):
        self.assertIn("no boost level",
                      self.run_host("--json", "boost", b"\xff\xfe").json["error"]["message"])


if __name__ == "__main__":
    unittest.main()
