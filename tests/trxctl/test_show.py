"""trxctl without a command: the connected mixers and the settings."""

import unittest

from host import HostTest


class Show(HostTest):
    def test_text(self):
        self.store({"MaxLevel": 1, "Output1": 7})
        lines = self.done().out.splitlines()
        self.assertEqual(lines[0], "Connected mixers")
        for line, (bus, address) in zip(lines[1:3], sorted([self.place(1), self.place(2)])):
            self.assertRegex(line, rf"^  TRX-SELVA \(bus {bus}, address {address}\), serial \S+$")
        self.assertEqual(lines[3:12], ["", "TRX-SELVA settings",
                                       "  input audio channel 1   CH1 Control Tone PHONO (default)",
                                       "  input audio channel 2   REC OUT",
                                       "  input audio channel 3   REC OUT (default)",
                                       "  output audio channel 1  CH1 (default)",
                                       "  output audio channel 2  CH2 (default)",
                                       "  output audio channel 3  AUX (default)",
                                       "  boost level             -10 dB"])

    def test_json(self):
        self.store({"MaxLevel": 1})
        shown = self.done("--json").json
        self.assertEqual(list(shown), ["model", "product_id", "connected", "mixers", "settings"])
        self.assertEqual((shown["model"], shown["product_id"], shown["connected"]),
                         ("TRX-SELVA", 11, True))
        self.assertEqual([(mixer["bus"], mixer["address"]) for mixer in shown["mixers"]],
                         sorted([self.place(1), self.place(2)]))
        for mixer in shown["mixers"]:
            self.assertEqual(list(mixer), ["product", "bus", "address", "serial", "accessible"])
            self.assertEqual((mixer["product"], mixer["accessible"]), ("TRX-SELVA", True))
        self.assertNotEqual(shown["mixers"][0]["serial"], shown["mixers"][1]["serial"])
        self.assertEqual([(one["setting"], one.get("channel")) for one in shown["settings"][:7]],
                         [("input", 1), ("input", 2), ("input", 3), ("output", 1), ("output", 2),
                          ("output", 3), ("boost", None)])
        self.assertEqual(shown["settings"][4],
                         {"setting": "output", "channel": 2, "index": 1, "text": "CH2",
                          "stored": False})
        self.assertEqual(shown["settings"][6], {"setting": "boost", "index": 1, "text": "-10 dB", "stored": True})

    def test_settings_are_those_of_the_model(self):
        self.store({"MaxLevel": 0}, "TRX-VOLT")
        shown = self.done("--json", "--model", "TRX-VOLT").json
        self.assertEqual((shown["model"], shown["product_id"]), ("TRX-VOLT", 1))
        self.assertEqual(shown["settings"][:5], [
            {"setting": "input", "channel": 1, "index": 1, "text": "CH1 Timecode CD", "stored": False},
            {"setting": "input", "channel": 2, "index": 1, "text": "CH2 Timecode CD", "stored": False},
            {"setting": "input", "channel": 3, "index": 5, "text": "REC OUT", "stored": False},
            {"setting": "boost", "index": 0, "text": "-5 dB", "stored": True},
            {"setting": "midi", "index": 0, "text": "CH 1", "stored": False}])

    def test_no_mixer(self):
        self.unplug_all()
        self.assertTrue(self.done().out.startswith(
            "No mixer is connected.\n\nTRX-SELVA settings\n"))
        shown = self.done("--json").json
        self.assertEqual((shown["connected"], shown["mixers"]), (False, []))

    def test_one_mixer_gone(self):
        self.unplug(1)
        mixer, = self.done("--json").json["mixers"]
        self.assertEqual((mixer["bus"], mixer["address"]), self.place(2))

    def test_other_devices_are_no_mixers(self):
        for ids in ("4f52:0020", "1234:001f"):
            unit = self.mixer("plug", ids).split()[0]
            self.addCleanup(self.mixer, "unplug", unit)
        self.assertEqual(len(self.done("--json").json["mixers"]), 2)

    def test_refused_mixer(self):
        self.mixer("fault", 1, "refuse")
        bus, address = self.place(1)
        lines = self.done().out.splitlines()
        refused, = [line for line in lines if "may not be opened" in line]
        self.assertRegex(refused, rf"^  TRX-SELVA \(bus {bus}, address {address}\), serial \S+: "
                                  r"may not be opened \(No such device or address\)$")
        self.assertEqual(lines[3], "hint: plug the mixer out and in again, then try again")
        for mixer in self.done("--json").json["mixers"]:
            place = (mixer["bus"], mixer["address"])
            self.assertEqual(mixer["accessible"], place == self.place(2))

    def test_stored_number_out_of_range(self):
        self.store({"MaxLevel": 9})
        self.assertIn("  boost level             9 (stored, but no boost level)\n",
                      self.done_with_notes().out)
        self.assertEqual(self.done("--json").json["settings"][6],
                         {"setting": "boost", "index": 9, "text": None, "stored": True})

    def test_settings_file_that_cannot_be_used_is_told(self):
        self.store({})
        self.settings_file().write_text("no property list")
        self.assertEqual(self.done_with_notes().err,
                         f"warning: {self.settings_file()} cannot be used, so the defaults are "
                         "shown; trxctl diagnose tells why\n")

    def test_sends_nothing_to_the_mixers(self):
        self.done()
        self.assert_nothing_sent()


if __name__ == "__main__":
    unittest.main()
