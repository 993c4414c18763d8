"""trxctl midi of a TRX-VOLT, and the key mode that no model offers."""

import unittest

from host import MODELS, HostTest

VOLT = ["--model", "TRX-VOLT"]
CHANNELS = [f"CH {number}" for number in range(1, 17)]


class Midi(HostTest):
    def stored(self, model="TRX-VOLT"):
        return super().stored(model)

    def store(self, settings, model="TRX-VOLT"):
        super().store(settings, model)

    def test_list_counts_as_people_do(self):
        self.store({"MidiChannel": 9})
        lines = self.done("midi", *VOLT).out.splitlines()
        self.assertEqual((lines[0], lines[1], lines[10], lines[16]),
                         ("TRX-VOLT MIDI channel: CH 10", "   1  CH 1", "* 10  CH 10",
                          "  16  CH 16"))

    def test_list_in_json(self):
        self.assertEqual(self.done("midi", "--json", *VOLT).json, {
            "model": "TRX-VOLT", "setting": "midi", "settable": True,
            "current": {"index": 0, "text": "CH 1", "stored": False},
            "choices": [{"index": i, "text": text} for i, text in enumerate(CHANNELS)]})

    def test_number_is_that_of_the_channel(self):
        for number, index, value in (("1", 0, "0000"), ("10", 9, "0900"), ("16", 15, "0f00")):
            self.mixer("log", "clear")
            self.assertEqual(self.done("midi", number, "--json", *VOLT).json["index"], index)
            self.assertEqual(self.stored(), {"MidiChannel": index})
            self.assertEqual(self.sent("MIDI channel"), [(1, value), (2, value)])

    def test_by_text(self):
        for word in ("CH 10", "ch10", "ch 10"):
            self.assertEqual(self.done_with_notes("midi", word, *VOLT).out,
                             "TRX-VOLT MIDI channel set to CH 10.\n"
                             "Sent to 2 of 2 connected mixers.\n")

    def test_refused(self):
        for word in ("0", "17", "CH 17"):
            result = self.run_host("midi", word, "--json", *VOLT)
            self.assertEqual((result.code, result.json["error"]["choices"]), (3, CHANNELS), word)
            self.assertTrue(result.json["error"]["hint"].endswith("or a number from 1 to 16"))
        self.assert_nothing_sent()

    def test_again(self):
        self.store({"MidiChannel": 3})
        self.assertIn("MIDI channel sent again: CH 4.\n", self.done_with_notes("midi", "--again", *VOLT).out)
        self.assertEqual(self.sent("MIDI channel"), [(1, "0300"), (2, "0300")])

    def test_again_reaches_the_first_four_only(self):
        self.store({"MidiChannel": 4})
        self.assert_fails(3, ["midi", "--again", *VOLT],
                          "the stored MIDI channel is CH 5; only CH 1 to CH 4 can be sent again, "
                          "so nothing was sent",
                          'set it anew instead: trxctl midi "CH 5" --model TRX-VOLT')
        self.assert_nothing_sent()

    def test_without_a_mixer_the_hint_is_one_that_works(self):
        self.unplug_all()
        for number, hint in (("4", "trxctl midi --again --model TRX-VOLT"),
                             ("5", 'trxctl midi "CH 5" --model TRX-VOLT')):
            self.assertTrue(self.done_with_notes("midi", number, *VOLT).err.endswith(
                f"hint: once a mixer is connected, send it with: {hint}\n"))

    def test_other_models(self):
        for model in MODELS:
            if model == "TRX-VOLT":
                continue
            self.assert_fails(3, ["midi", "3", "--model", model], f"{model} has no MIDI channel",
                              "models that have one: TRX-VOLT; name one: "
                              "trxctl midi 3 --model TRX-VOLT")
        self.assert_nothing_sent()


class KeyMode(HostTest):
    def test_no_model_offers_one(self):
        for model in MODELS:
            self.assert_fails(3, ["keymode", "--model", model], f"{model} has no key mode",
                              "no model offers a key mode")

    def test_is_not_in_the_help(self):
        self.assertNotIn("keymode", self.done("--help").out)


if __name__ == "__main__":
    unittest.main()
