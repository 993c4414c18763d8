"""trxctl reapply: everything that is stored, sent once more."""

import unittest

from host import HostTest

VOLT = ["--model", "TRX-VOLT"]


class Reapply(HostTest):
    def test_sends_everything_stored(self):
        self.store({"Output0": 2, "Output1": 7, "Output2": 1, "Input0": 2, "Input1": 0, "Input2": 1,
                    "MaxLevel": 1})
        lines = self.done("reapply").out.splitlines()
        self.assertEqual(lines[:8], ["TRX-SELVA settings sent again",
                                     "  input audio channel 1: Post CH1 Fader",
                                     "  input audio channel 2: REC OUT",
                                     "  input audio channel 3: Post CH1 Fader",
                                     "  output audio channel 1: AUX",
                                     "  output audio channel 2: CH1",
                                     "  output audio channel 3: CH2",
                                     "  boost level: -10 dB"])
        self.assertEqual(lines[-1], "Sent to 2 of 2 connected mixers.")
        for request, values in (("mixer output", ["0106", "020a", "0311"]),
                                ("mixer input", ["0104", "0200", "0301"]),
                                ("USB output level", ["0200"])):
            self.assertEqual(self.sent(request),
                             [(unit, value) for unit in (1, 2) for value in values])

    def test_sends_the_defaults_when_nothing_is_stored(self):
        self.done("reapply")
        self.assertEqual(self.levels_sent(), [(1, "0000"), (2, "0000")])
        self.assertIsNone(self.stored())

    def test_says_what_could_not_be_sent_and_why(self):
        self.store({"Output1": 9, "MaxLevel": 1})
        result = self.run_host("reapply")
        self.assertEqual((result.code, result.err), (
            3, "Not sent: input audio channel 2: the stored number 9 is no input audio choice\n"
               "trxctl: error: not every stored setting can be sent again\n"
               "hint: choose those anew that were not sent\n"))
        self.assertIn("  boost level: -10 dB\n", result.out)
        self.assertTrue(result.out.endswith("Sent to 2 of 2 connected mixers.\n"), result)
        self.assertEqual(self.sent("mixer output"),
                         [(1, "0103"), (1, "030a"), (2, "0103"), (2, "030a")])

    def test_json(self):
        self.store({"Input1": 5})
        result = self.run_host("reapply", "--json")
        self.assertEqual((result.code, result.err), (3, ""))
        self.assertEqual(list(result.json), ["model", "sent", "not_sent", "connected", "sent_to",
                                             "mixers", "error"])
        self.assertEqual([one["setting"] for one in result.json["sent"]][:6],
                         ["input", "input", "input", "output", "output", "boost"])
        self.assertEqual(result.json["sent"][0],
                         {"setting": "input", "channel": 1, "index": 0,
                          "text": "CH1 Control Tone PHONO", "stored": False})
        self.assertEqual(result.json["not_sent"], [
            {"setting": "output", "channel": 2, "index": 5, "text": None, "stored": True,
             "reason": "the stored number 5 is no output audio choice"}])

    def test_midi_channel_that_cannot_be_sent_again(self):
        self.store({"MidiChannel": 9}, "TRX-VOLT")
        result = self.run_host("reapply", *VOLT)
        self.assertEqual(result.code, 3)
        self.assertIn("Not sent: MIDI channel: the stored MIDI channel is CH 10; only CH 1 to CH 4 "
                      "can be sent again\n", result.err)

    def test_what_the_model_cannot_take_is_no_news(self):
        self.store({"MidiChannel": 2}, "TRX-VOLT")
        result = self.done("reapply", "--json", *VOLT).json
        self.assertEqual([one["setting"] for one in result["sent"]][:2], ["boost", "midi"])
        self.assertEqual(result["not_sent"], [])
        for model in ("TRX-Arden", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW"):
            answer = self.done("reapply", "--json", "--model", model).json
            self.assertEqual([one for one in answer["sent"] if "channel" in one], [], model)
            self.assertEqual((answer["sent"][0]["setting"], answer["not_sent"]), ("boost", []))

    def test_mixer_that_takes_nothing(self):
        self.mixer("fault", 1, "stall")
        result = self.run_host("reapply", "--json")
        self.assertEqual((result.code, result.json["sent_to"], result.json["error"]["kind"]),
                         (9, 1, "partly_sent"))

    def test_dry_run_sends_nothing(self):
        self.store({"MaxLevel": 1})
        text = self.done("reapply", "--dry-run").out
        self.assertTrue(text.startswith("TRX-SELVA settings that would be sent\n"), text)
        self.assertIn("  boost level: -10 dB\n", text)
        self.assert_nothing_sent()

    def test_without_a_mixer(self):
        self.unplug_all()
        self.assert_fails(4, ["reapply"], "no mixer is connected, so nothing was sent",
                          "connect a mixer and switch it on, then try again")

    def test_without_access(self):
        for unit in (1, 2):
            self.mixer("fault", unit, "refuse")
        self.assertEqual(self.run_host("reapply", "--json").json["error"]["kind"], "no_access")


if __name__ == "__main__":
    unittest.main()
