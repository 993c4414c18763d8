"""trxctl boost: listing, setting, sending again."""

import unittest

from host import LEVELS, HostTest

HINT_OTHER = "plug the mixer out and in again, then try again"
CHOICES_HINT = ('choose one of "-5 dB", "-10 dB", "-15 dB", "-19 dB", '
                "or a number from 1 to 4")


class Listing(HostTest):
    def test_nothing_stored_shows_the_quietest_level_as_current(self):
        self.assertEqual(self.done("boost").out,
                         "TRX-SELVA boost level: -19 dB (default)\n"
                         "  1  -5 dB\n"
                         "  2  -10 dB\n"
                         "  3  -15 dB\n"
                         "* 4  -19 dB\n")

    def test_stored_level_is_told_from_the_default(self):
        self.assertEqual(self.done("boost", "--json").json["current"],
                         {"index": 3, "text": "-19 dB", "stored": False})
        self.store({"MaxLevel": 3})
        self.assertIn("boost level: -19 dB\n", self.done("boost").out)
        self.assertEqual(self.done("boost", "--json").json["current"],
                         {"index": 3, "text": "-19 dB", "stored": True})

    def test_marks_the_stored_level(self):
        self.store({"MaxLevel": 1})
        self.assertIn("* 2  -10 dB\n  3  -15 dB\n", self.done("boost").out)

    def test_json(self):
        self.store({"MaxLevel": 2})
        self.assertEqual(self.done("boost", "--json").json, {
            "model": "TRX-SELVA",
            "setting": "boost",
            "settable": True,
            "current": {"index": 2, "text": "-15 dB", "stored": True},
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
                             {"index": number, "text": None, "stored": True})


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
            self.assert_sets([str(index + 1)], index)

    def test_with_a_minus_sign(self):
        self.assert_sets(["\u221210"], 1)

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
        self.done("boost", "1")
        self.assertEqual(self.stored(), {"MaxLevel": 0, "Output1": 7, "Theirs": "kept"})

    def test_without_a_mixer_says_so_and_stores_all_the_same(self):
        self.unplug_all()
        result = self.done_with_notes("boost", "-10")
        self.assertEqual(result.out, "TRX-SELVA boost level set to -10 dB.\n"
                                     "No mixer is connected; the setting is stored anyway.\n")
        self.assertEqual(result.err,
                         "hint: once a mixer is connected, send it with: trxctl boost --again\n")
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_without_a_mixer_json(self):
        self.unplug_all()
        self.assertEqual(self.done("boost", "-10", "--json").json, {
            "model": "TRX-SELVA", "setting": "boost", "action": "set", "index": 1,
            "text": "-10 dB", "stored": True, "status": 100, "connected": False, "sent_to": 0,
            "mixers": [], "announced": True})

    def assert_not_taken_by_first(self, reason, outcome, accessible):
        """One mixer does not take it: it is named, counted out, and the other is reached."""
        result = self.run_host("boost", "-15")
        self.assertEqual((result.code, result.out), (9, "TRX-SELVA boost level set to -15 dB.\n"
                                                        "Sent to 1 of 2 connected mixers.\n"))
        self.assertTrue(result.err.startswith(
            f"trxctl: error: {self.described(1)}, {reason}; the setting is stored\nhint: "), result)
        answer = self.run_host("boost", "-15", "--json")
        self.assertEqual((answer.code, answer.err), (9, ""))
        self.assertEqual((answer.json["sent_to"], answer.json["error"]["kind"]), (1, "partly_sent"))
        results = {(mixer["bus"], mixer["address"]): (mixer["result"], mixer["accessible"])
                   for mixer in answer.json["mixers"]}
        self.assertEqual(results, {self.place(1): (outcome, accessible),
                                   self.place(2): ("taken", True)})
        self.assertEqual(self.stored(), {"MaxLevel": 2})

    def test_mixer_that_stalls(self):
        self.mixer("fault", 1, "stall")
        self.assert_not_taken_by_first("refused it", "refused", True)

    def test_mixer_that_does_not_open(self):
        self.mixer("fault", 1, "refuse")
        self.assert_not_taken_by_first("may not be opened (No such device or address)", "gone",
                                       False)
        self.assertEqual(self.levels_sent(), [(2, "0100"), (2, "0100")])

    def test_all_refused_is_stored_all_the_same(self):
        for unit in (1, 2):
            self.mixer("fault", unit, "refuse")
        result = self.run_host("boost", "-10")
        self.assertEqual((result.code, result.out), (7, "TRX-SELVA boost level set to -10 dB.\n"
                                                        "Sent to 0 of 2 connected mixers.\n"))
        self.assertIn("; the setting is stored\n", result.err)
        self.assertEqual(self.stored(), {"MaxLevel": 1})

    def test_dry_run_sends_and_stores_nothing(self):
        self.assertEqual(self.done("boost", "-10", "--dry-run").out,
                         "TRX-SELVA boost level would be sent: -10 dB.\n"
                         "Connected mixers: 2. Nothing was sent or stored.\n")
        answer = self.done("boost", "-10", "--dry-run", "--json").json
        self.assertEqual((answer["dry_run"], answer["index"], len(answer["mixers"])), (True, 1, 2))
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())


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
        for word in ("loud", "-20 dB", "0", "7", "-0", "0x1", ""):
            self.assert_refused([word], f'"{word}" is no boost level', CHOICES_HINT)

    def test_names_what_was_probably_meant(self):
        for word, meant in (("10", "-10 dB"), ("10 dB", "-10 dB"), ("5", "-5 dB")):
            self.assert_refused([word], f'"{word}" is no boost level',
                                f'did you mean "{meant}"? Otherwise {CHOICES_HINT}')

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
        result = self.run_host("boost", "-10")
        self.assertEqual((result.code, result.out), (8, "TRX-SELVA boost level set to -10 dB.\n"
                                                        "Sent to 2 of 2 connected mixers.\n"))
        self.assertEqual(result.err,
                         "trxctl: error: the boost level could not be stored: "
                         f"{self.config}/orvikaudio: Not a directory\n"
                         "hint: trxctl diagnose tells what is wrong and what to do\n")
        answer = self.run_host("boost", "-10", "--json").json
        self.assertEqual((answer["error"]["kind"], answer["stored"], answer["sent_to"]),
                         ("not_stored", False, 2))
        self.assertEqual(len(answer["mixers"]), 2)


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
        self.assertEqual(list(result), ["model", "setting", "action", "index", "text", "stored",
                                        "status", "connected", "sent_to", "mixers"])
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
        first = min((1, 2), key=self.place)
        self.assert_fails(7, ["boost", "--again"],
                          f"nothing was sent: {self.described(first)}, "
                          "may not be opened (No such device or address)", HINT_OTHER)
        self.assertEqual(self.run_host("boost", "--again", "--json").json["error"]["kind"],
                         "no_access")

    def test_one_mixer_refused(self):
        self.mixer("fault", 1, "refuse")
        result = self.run_host("boost", "--again")
        self.assertEqual(result.code, 9)
        self.assertIn("Sent to 1 of 2 connected mixers.\n", result.out)

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
