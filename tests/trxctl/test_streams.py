"""Where the output goes: closed, full, a terminal, and texts that could steer it."""

import os
import pty
import unittest

from host import TRXCTL, HostTest

HINT = "the command itself may have been carried out; look at where the output goes"
ESCAPE = "\033["


class Waiting(HostTest):
    """What a person at a terminal sees while a mixer does not answer."""

    def test_tells_what_it_waits_for(self):
        self.mixer("fault", 1, "no-reply")
        self.unplug(2)
        ours, its = pty.openpty()
        try:
            result = self.run_host("boost", "-10", stderr=its)
            shown = os.read(ours, 65536).decode()
        finally:
            os.close(ours)
            os.close(its)
        self.assertEqual(result.code, 9)
        bus, address = self.place(1)
        self.assertRegex(shown, rf"^\rWaiting for TRX-SELVA \(bus {bus}, address {address}\), for \d "
                                r"s at most\033\[K")
        # Nothing of it stays.
        self.assertIn("\r\033[K", shown)
        self.assertIn(f"{self.described(1)}, did not answer", shown)

    def test_says_nothing_where_nobody_sees_it(self):
        self.mixer("fault", 1, "no-reply")
        self.assertNotIn("Waiting", self.run_host("boost", "-10").err)


class Failing(HostTest):
    def assert_output_fails(self, words, reason, **options):
        result = self.run_host(*words, **options)
        self.assertEqual(result.code, 6, result)
        self.assertEqual(result.err,
                         f"trxctl: error: cannot write the output: {reason}\nhint: {HINT}\n")

    def test_full(self):
        for words in ([], ["boost"], ["boost", "1"], ["watch"], ["--help"], ["--version"],
                      ["--json"], ["boost", "--json"], ["watch", "--json"]):
            with open("/dev/full", "wb") as full:
                self.assert_output_fails(words, "No space left on device", stdout=full)

    def test_closed(self):
        for words in ([], ["boost"], ["--json"], ["watch"]):
            self.assert_output_fails(words, "Bad file descriptor", preexec_fn=lambda: os.close(1))

    def test_setting_is_done_and_the_mixers_are_untouched_by_the_text(self):
        self.assert_output_fails(["boost", "-10"], "Bad file descriptor",
                                 preexec_fn=lambda: os.close(1))
        self.assertEqual(self.stored(), {"MaxLevel": 1})
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_pipe_without_a_reader(self):
        reader, writer = os.pipe()
        os.close(reader)
        result = self.run_host("boost", stdout=writer)
        # Like other programs, it ends quietly when nobody reads on.
        self.assertEqual((result.code, result.err), (6, ""))
        os.close(writer)

    def test_json_error_that_cannot_be_written_goes_to_standard_error(self):
        with open("/dev/full", "wb") as full:
            result = self.run_host("bost", "--json", stdout=full)
        self.assertEqual((result.code, result.err),
                         (2, 'trxctl: error: unknown command "bost"\nhint: did you mean boost?\n'))

    def test_closed_standard_error_does_not_change_the_outcome(self):
        result = self.run_host("boost", "loud", preexec_fn=lambda: os.close(2))
        self.assertEqual((result.code, result.out), (3, ""))
        result = self.run_host("boost", "-10", preexec_fn=lambda: os.close(2))
        self.assertEqual(result.code, 0)
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_everything_closed(self):
        result = self.run_host("boost", "-10", preexec_fn=lambda: os.closerange(0, 3))
        self.assertEqual(result.code, 6)
        self.assertEqual(self.stored(), {"MaxLevel": 1})


class Emphasis(HostTest):
    def on_terminal(self, *words, **variables):
        """What trxctl writes to a terminal."""
        ours, its = pty.openpty()
        self.run_host(*words, env=dict(self.env, **variables), stdout=its, stderr=its)
        os.close(its)
        text = b""
        try:
            while data := os.read(ours, 4096):
                text += data
        except OSError:
            pass  # The terminal ends so once nobody has it open any more.
        os.close(ours)
        return text.decode().replace("\r\n", "\n")

    def test_on_a_terminal(self):
        text = self.on_terminal("boost")
        self.assertIn("\033[1mTRX-SELVA boost level\033[0m: -19 dB (default)\n", text)
        self.assertIn("* \033[1m4  -19 dB\033[0m\n", text)
        self.assertIn("\033[1;31merror:\033[0m", self.on_terminal("bost"))

    def test_none_when_the_user_wants_none(self):
        for variables in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertEqual(self.on_terminal("boost", **variables), self.done("boost").out)
            self.assertNotIn(ESCAPE, self.on_terminal("bost", **variables))

    def test_empty_no_color_is_none(self):
        self.assertIn(ESCAPE, self.on_terminal("boost", NO_COLOR=""))

    def test_none_in_json(self):
        self.assertNotIn(ESCAPE, self.on_terminal("boost", "--json"))

    def test_none_in_a_pipe(self):
        self.assertNotIn("\033", self.done("boost").out + self.run_host("bost").err)


class Steering(HostTest):
    def test_words_of_the_user_do_not_steer_the_terminal(self):
        for words in (["boost", "\033[2Jx"], ["\033[2Jx"], ["--model", "\033[2Jx"]):
            result = self.run_host(*words)
            self.assertNotIn("\033", result.err)
            self.assertIn('"?[2Jx"', result.err)

    def test_message_stays_one_line(self):
        self.assertEqual(self.run_host("boost", "a\nb").err.count("\n"), 2)


if __name__ == "__main__":
    unittest.main()
