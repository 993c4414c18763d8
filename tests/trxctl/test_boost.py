"""trxctl boost: listing, setting, sending again."""

import unittest

from host import LEVELS, HostTest

HINT_OTHER = "plug the mixer out and in again, then try again"
CHOICES_HINT = ('choose one of "-5 dB", "-10 dB", "-15 dB", "-19 dB", '
                "or a number from 0 to 3")


class Listing(HostTest):
    def test_nothing_stored_shows_the_quietest_level_as_current(self):
        self.assertEqual(self.done("boost").out,
                         "TRX-SELVA boost level: -19 dB\n"
                         "  0  -5 dB\n"
                         "  1  -10 dB\n"
                         "  2  -15 dB\n"
                         "* 3  -19 dB\n")

    def test_marks_the_stored_level(self):
        self.store({"MaxLevel": 1})
        self.assertIn("* 1  -10 dB\n  2  -15 dB\n", self.done("boost").out)

    def test_json(self):
        self.store({"MaxLevel": 2})
        self.assertEqual(self.done("boost", "--json").json, {
            "model": "TRX-SELVA",
            "setting": "boost",
            "settable": True,
            "current": {"index": 2, "text": "-15 dB"},
            "choices": [{"index": index, "text": text} for index, text in enumerate(LEVELS)]})

    def test_listing_sends_and_stores_nothing(self):
        self.done("boost")
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())

    def test_stored_number_out_of_range_is_shown_with_a_hint(self):
        self.store({"MaxLevel": 9})
        result = self.run_host("boost")
        self.assertEqual(result.code, 0)
        self.assertEqual(result.out.splitlines()[0],
                         "TRX-SELVA boost level: 9 (stored, but no boost level)")
        self.assertNotIn("*", result.out)
        self.assertEqual(result.err, "hint: another program stored it; choose one: "
                                     'trxctl boost "-19 dB"\n')

    def test_stored_number_out_of_range_has_no_text_in_json(self):
        for number in (4, -1):
            self.store({"MaxLevel": number})
            self.assertEqual(self.done("boost", "--json").json["current"],
                             {"index": number, "text": None})


class Setting(HostTest):
    def assert_sets(self, words, index):
        self.store({"MaxLevel": (index + 1) % 4})
        result = self.done("boost", *words, "--json").json
        self.assertEqual((result["index"], result["text"]), (index, LEVELS[index]), words)
        self.assertEqual(self.stored(), {"MaxLevel": index}, words)

    def test_by_text(self):
        for index, text in enumerate(LEVELS):
            self.assert_sets([text], index)

    def test_by_text_in_any_case_and_spacing(self):
        for text in ("-10 DB", "-10 Db", "-10dB", "-10db", " -10 dB "):
            self.assert_sets([text], 1)

    def test_by_text_in_two_words(self):
        self.assert_sets(["-10", "dB"], 1)

    def test_by_index(self):
        for index in range(4):
            self.assert_sets([str(index)], index)

    def test_by_beginning(self):
        self.assert_sets(["-5"], 0)
        self.assert_sets(["-10"], 1)
        self.assert_sets(["-15 d"], 2)
        self.assert_sets(["-19"], 3)

    def test_behind_a_double_dash(self):
        result = self.done("boost", "--json", "--", "-10").json
        self.assertEqual(result["index"], 1)

    def test_options_may_stand_before_and_behind(self):
        for words in (["--json", "boost", "-10", "--model", "TRX-SELVA"],
                      ["boost", "--json", "-10"],
                      ["--model=TRX-SELVA", "boost", "-10", "--json"]):
            self.assertEqual(self.done(*words).json["index"], 1, words)

    def test_says_what_was_set_and_to_how_many_mixers(self):
        self.assertEqual(self.done("boost", "-10").out,
                         "TRX-SELVA boost level set to -10 dB.\n"
                         "Sent to 2 of 2 connected mixers.\n")
        self.unplug(2)
        self.assertIn("Sent to 1 of 1 connected mixer.\n", self.done("boost", "-10").out)

    def test_reaches_every_mixer(self):
        self.done("boost", "-10")
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_keeps_what_other_programs_stored(self):
        self.store({"MaxLevel": 3, "Output1": 7, "Theirs": "kept"})
        self.done("boost", "0")
        self.assertEqual(self.stored(), {"MaxLevel": 0, "Output1": 7, "Theirs": "kept"})

    def test_without_a_mixer_says_so_and_stores_all_the_same(self):
        self.unplug_all()
        self.assertEqual(self.done("boost", "-10").out,
                         "TRX-SELVA boost level set to -10 dB.\n"
                         "No mixer is connected; the setting is stored all the same.\n"
                         "hint: once a mixer is connected, send it with: trxctl boost --again\n")
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_without_a_mixer_json(self):
        self.unplug_all()
        self.assertEqual(self.done("boost", "-10", "--json").json, {
            "model": "TRX-SELVA", "setting": "boost", "action": "set", "index": 1,
            "text": "-10 dB", "connected": False, "sent_to": 0, "mixers": []})

    def test_refused_mixer_is_named_and_the_other_reached(self):
        self.mixer("fault", 1, "refuse")
        lines = self.done("boost", "-15").out.splitlines()
        self.assertEqual(lines[1], "Sent to 1 of 2 connected mixers.")
        bus, address = self.place(1)
        self.assertEqual(lines[2:],
                         [f"Not sent to TRX-SELVA (bus {bus}, address {address}), "
                          "which may not be opened: No such device or address",
                          "hint: " + HINT_OTHER])
        self.assertEqual(self.levels_sent(), [(2, "0100")])

    def test_refused_mixer_json(self):
        self.mixer("fault", 2, "refuse")
        result = self.done("boost", "-15", "--json").json
        self.assertEqual((result["connected"], result["sent_to"]), (True, 1))
        by_place = {(mixer["bus"], mixer["address"]): mixer for mixer in result["mixers"]}
        self.assertEqual(by_place[self.place(2)]["accessible"], False)
        self.assertEqual(by_place[self.place(2)]["reason"], "No such device or address")
        self.assertEqual(by_place[self.place(1)]["accessible"], True)
        self.assertNotIn("reason", by_place[self.place(1)])

    def test_all_refused_is_stored_all_the_same(self):
        self.mixer("fault", 1, "refuse")
        self.mixer("fault", 2, "refuse")
        self.assertIn("Sent to 0 of 2 connected mixers.\n", self.done("boost", "-15").out)
        self.assertEqual(self.stored(), {"MaxLevel": 2})


class Refusing(HostTest):
    def assert_refused(self, words, message, hint):
        self.assert_fails(3, ["boost", *words], message, hint)
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())

    def test_beginning_of_several_levels(self):
        self.assert_refused(["-1"], '"-1" could be more than one boost level',
                            'write a little more of it: "-10 dB", "-15 dB", "-19 dB"')
        self.assert_refused(["-"], '"-" could be more than one boost level',
                            'write a little more of it: "-5 dB", "-10 dB", "-15 dB", "-19 dB"')

    def test_unknown_words(self):
        for word in ("loud", "-20 dB", "10 dB", "4", "-0", "1.0", "0x1", ""):
            self.assert_refused([word], f'"{word}" is no boost level', CHOICES_HINT)

    def test_number_beyond_all_numbers(self):
        self.assert_refused(["99999999999999999999"],
                            '"99999999999999999999" is no boost level', CHOICES_HINT)

    def test_json_lists_what_would_have_been_right(self):
        ambiguous = self.run_host("boost", "-1", "--json")
        self.assertEqual((ambiguous.code, ambiguous.err), (3, ""))
        self.assertEqual(ambiguous.json, {"error": {
            "code": 3, "kind": "refused",
            "message": '"-1" could be more than one boost level',
            "hint": 'write a little more of it: "-10 dB", "-15 dB", "-19 dB"',
            "choices": ["-10 dB", "-15 dB", "-19 dB"]}})
        self.assertEqual(self.run_host("boost", "9", "--json").json["error"]["choices"], LEVELS)

    def test_settings_that_cannot_be_stored(self):
        (self.config / "orvikaudio").write_text("a file where the folder should be")
        self.assert_fails(8, ["boost", "-10"],
                          "the boost level was sent to 2 mixers, but could not be stored",
                          "the folder orvikaudio in ~/.config (or in $XDG_CONFIG_HOME) "
                          "must be writable")
        self.assertEqual(self.run_host("boost", "-10", "--json").json["error"]["kind"],
                         "not_stored")


class Again(HostTest):
    def test_sends_the_stored_level(self):
        self.store({"MaxLevel": 0})
        self.assertEqual(self.done("boost", "--again").out,
                         "TRX-SELVA boost level sent again: -5 dB.\n"
                         "Sent to 2 of 2 connected mixers.\n")
        self.assertEqual(self.levels_sent(), [(1, "0300"), (2, "0300")])
        self.assertEqual(self.stored(), {"MaxLevel": 0})

    def test_sends_the_default_when_nothing_is_stored(self):
        self.done("boost", "--again")
        self.assertEqual(self.levels_sent(), [(1, "0000"), (2, "0000")])
        self.assertIsNone(self.stored())

    def test_json(self):
        result = self.done("boost", "--again", "--json").json
        self.assertEqual(list(result), ["model", "setting", "action", "index", "text", "connected",
                                        "sent_to", "mixers"])
        self.assertEqual((result["action"], result["index"], result["sent_to"]), ("again", 3, 2))

    def test_without_a_mixer(self):
        self.unplug_all()
        self.assert_fails(4, ["boost", "--again"], "no mixer is connected, so nothing was sent",
                          "connect a mixer and switch it on, then try again")
        self.assertEqual(self.run_host("boost", "--again", "--json").json["error"]["kind"],
                         "no_mixer")

    def test_all_mixers_refused(self):
        self.mixer("fault", 1, "refuse")
        self.mixer("fault", 2, "refuse")
        bus, address = min(self.place(1), self.place(2))
        self.assert_fails(7, ["boost", "--again"],
                          f"nothing was sent: TRX-SELVA (bus {bus}, address {address}) "
                          "may not be opened (No such device or address)", HINT_OTHER)
        self.assertEqual(self.run_host("boost", "--again", "--json").json["error"]["kind"],
                         "no_access")

    def test_one_mixer_refused(self):
        self.mixer("fault", 1, "refuse")
        self.assertIn("Sent to 1 of 2 connected mixers.\n", self.done("boost", "--again").out)

    def test_stored_number_out_of_range_is_not_sent(self):
        self.store({"MaxLevel": 7})
        self.assert_fails(3, ["boost", "--again"],
                          "the stored number 7 is no boost level, so nothing was sent",
                          "another program stored it; choose one: "
                          'trxctl boost "-19 dB"')
        self.assert_nothing_sent()

    def test_with_a_choice_is_a_contradiction(self):
        self.assert_fails(2, ["boost", "-10", "--again"],
                          '--again and "-10" do not go together',
                          "leave out all but one of them")
        self.assert_nothing_sent()


if __name__ == "__main__":
    unittest.main()
