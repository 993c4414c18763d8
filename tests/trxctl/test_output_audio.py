"""trxctl output: where the computer plays each channel."""

import unittest

from host import HostTest

CHOICES = ["CH1", "CH2", "AUX"]


class Listing(HostTest):
    def test_all_channels(self):
        self.assertEqual(self.done("output").out,
                         "TRX-SELVA output audio\n  channel 1  CH1 (default)\n"
                         "  channel 2  CH2 (default)\n  channel 3  AUX (default)\n")

    def test_one_channel(self):
        self.store({"Input1": 2})
        self.assertEqual(self.done("output", "2").out,
                         "TRX-SELVA output audio channel 2: AUX\n  1  CH1\n  2  CH2\n* 3  AUX\n")

    def test_json(self):
        self.assertEqual(self.done("output", "3", "--json").json, {
            "model": "TRX-SELVA", "setting": "output", "channel": 3, "settable": True,
            "current": {"index": 2, "text": "AUX", "stored": False},
            "choices": [{"index": i, "text": text} for i, text in enumerate(CHOICES)]})

    def test_stored_number_out_of_range_has_no_text(self):
        self.store({"Input0": 3})
        listed = self.run_host("output", "1", "--json").json
        self.assertEqual(listed["current"], {"index": 3, "text": None, "stored": True})


class Setting(HostTest):
    def test_by_text_by_number_and_by_beginning(self):
        for word in ("AUX", "aux", "a", "3"):
            self.mixer("log", "clear")
            result = self.done("output", "2", word, "--json").json
            self.assertEqual((result["channel"], result["index"], result["text"]), (2, 2, "AUX"))
            self.assertEqual(self.sent("mixer input"), [(1, "0204"), (2, "0204")])
        self.assertEqual(self.stored(), {"Input1": 2})

    def test_again(self):
        self.store({"Input1": 2})
        self.assertIn("channel 2 sent again: AUX.\n", self.done("output", "2", "--again").out)
        self.assertEqual(self.sent("mixer input"), [(1, "0204"), (2, "0204")])

    def test_again_does_not_send_a_number_that_is_no_choice(self):
        # 3 would reach into the choices of the next channel, and 20 beyond all of them.
        for number in (3, 20):
            self.store({"Input0": number})
            self.assert_fails(3, ["output", "1", "--again"],
                              f"the stored number {number} is no output audio choice, "
                              "so nothing was sent",
                              'another program stored it; choose one: trxctl output 1 "AUX"')
        self.assert_nothing_sent()


class Default(HostTest):
    def test_is_sent_and_not_stored(self):
        self.store({"Input1": 2})
        self.assertEqual(self.done("output", "2", "--default").out,
                         "TRX-SELVA output audio channel 2 set to its default for now: CH2.\n"
                         "This holds for now only. Nothing is stored; the stored choice is still "
                         "AUX. Back to it: trxctl output 2 --again\nSent to 2 of 2 connected mixers.\n")
        self.assertEqual(self.stored(), {"Input1": 2})
        self.assertEqual(self.sent("mixer input"), [(1, "0201"), (2, "0201")])

    def test_json(self):
        self.store({"Input1": 2})
        result = self.done("output", "2", "--default", "--json").json
        self.assertEqual((result["action"], result["index"], result["text"], result["stored"]),
                         ("default", 1, "CH2", {"index": 2, "text": "AUX"}))

    def test_without_a_mixer_nothing_is_done(self):
        watching = self.start_host("watch", "--json")
        watching.line()
        self.unplug_all()
        self.assert_fails(4, ["output", "2", "--default"],
                          "no mixer is connected, so nothing was sent",
                          "connect a mixer and switch it on, then try again")
        self.run_host("boost", "1")
        events = [watching.json_line() for _ in range(3)]
        self.assertEqual([event["event"] for event in events], ["unplugged", "unplugged", "change"])
        self.assertEqual(events[-1]["setting"], "boost")

    def test_needs_a_channel(self):
        self.assert_fails(2, ["output", "--default"], "--default needs a channel",
                          "name the channel first, such as 1")

    def test_other_settings_have_none(self):
        self.assert_fails(2, ["boost", "--default"], 'unknown option "--default"',
                          "see trxctl boost --help")


class Refusing(HostTest):
    def test_unknown_channel(self):
        for word in ("0", "4", "AUX"):
            self.assert_fails(3, ["output", word], f'"{word}" is no channel of TRX-SELVA output '
                              "audio", "choose one of 1, 2, 3")

    def test_beginning_of_several_and_unknown(self):
        self.assert_fails(3, ["output", "1", "ch"],
                          '"ch" could be more than one output audio choice',
                          'write a little more of it: "CH1", "CH2"')
        self.assertEqual(self.run_host("output", "1", "4", "--json").json["error"]["choices"],
                         CHOICES)

    def test_other_models(self):
        for model in ("TRX-Arden", "TRX-VOLT", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW"):
            self.assert_fails(3, ["output", "--model", model], f"{model} has no output audio",
                              "models that have one: TRX-SELVA; name one: "
                              "trxctl output --model TRX-SELVA")


if __name__ == "__main__":
    unittest.main()
