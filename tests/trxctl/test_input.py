"""trxctl input: what the computer records on each channel."""

import unittest

from host import HostTest

FIRST = ["CH1 Control Tone PHONO", "CH1 Control Tone LINE", "Post CH1 Fader", "Cross Fader A",
         "Cross Fader B", "MIC", "AUX", "REC OUT"]
SECOND = ["CH2 Control Tone PHONO", "CH2 Control Tone LINE", "Post CH2 Fader", "Cross Fader A",
          "Cross Fader B", "MIC", "AUX", "REC OUT"]
THIRD = ["REC OUT", "Post CH1 Fader", "Post CH2 Fader", "Cross Fader A", "Cross Fader B", "MIC",
         "AUX"]
# How many choices each channel has, and which is current when none is stored.
LISTS = {"TRX-Arden": ([8, 8, 8, 8], [3, 3, 3, 3]),
         "TRX-VOLT": ([2, 2, 6], [1, 1, 5]),
         "TRX-HALDEN": ([8, 8, 8, 8, 9], [0, 0, 0, 0, 0]),
         "TRX-LUMEN": ([8, 8, 7], [0, 0, 0]),
         "TRX-MORROW": ([8, 8, 7], [0, 0, 0]),
         "TRX-SELVA": ([8, 8, 7], [0, 0, 0])}
# How many channels take a raw value; the first source code that the first and the last refuse.
RAW = {"TRX-Arden": (4, 16, 16), "TRX-VOLT": (3, 4, 16), "TRX-HALDEN": (5, 16, 16),
       "TRX-LUMEN": (5, 16, 16), "TRX-MORROW": (5, 16, 16), "TRX-SELVA": (5, 16, 16)}
NO_MIXER = ("No mixer is connected, so your choice has not reached one yet. Connect the mixer by "
            "USB, switch it on and set the input selector of this channel to USB. Then make your "
            "choice again.")


class Listing(HostTest):
    def test_all_channels(self):
        self.store({"Output1": 7})
        self.assertEqual(self.done("input").out,
                         "TRX-SELVA input audio\n"
                         "  channel 1  CH1 Control Tone PHONO (default)\n"
                         "  channel 2  REC OUT\n"
                         "  channel 3  REC OUT (default)\n")

    def test_one_channel(self):
        self.store({"Output1": 7})
        self.assertEqual(self.done("input", "2").out,
                         "TRX-SELVA input audio channel 2: REC OUT\n" +
                         "".join(f"  {index + 1}  {text}\n"
                                 for index, text in enumerate(SECOND[:7])) +
                         "* 8  REC OUT\n")

    def test_choices_of_each_channel_in_json(self):
        listed = self.done("input", "--json").json
        self.assertEqual(list(listed), ["model", "setting", "settable", "channels"])
        for channel, (entry, texts) in enumerate(zip(listed["channels"], (FIRST, SECOND, THIRD))):
            self.assertEqual(entry, {
                "channel": channel + 1, "current": {"index": 0, "text": texts[0], "stored": False},
                "choices": [{"index": i, "text": text} for i, text in enumerate(texts)]})

    def test_one_channel_in_json(self):
        listed = self.done("input", "3", "--json").json
        self.assertEqual(list(listed),
                         ["model", "setting", "channel", "settable", "current", "choices"])
        self.assertEqual((listed["channel"], listed["settable"]), (3, True))

    def test_every_model_has_its_own_channels_and_choices(self):
        for model, (counts, current) in LISTS.items():
            result = self.run_host("input", "--json", "--model", model)
            self.assertEqual((result.code, result.err), (0, ""))
            channels = result.json["channels"]
            self.assertEqual([len(channel["choices"]) for channel in channels], counts, model)
            self.assertEqual([channel["current"]["index"] for channel in channels], current, model)
            self.assertEqual(result.json["settable"], model == "TRX-SELVA")
            for channel in channels:
                texts = [choice["text"] for choice in channel["choices"]]
                self.assertEqual(len(set(texts)), len(texts), model)

    def test_texts_of_other_models(self):
        for model, channel, index, text in (("TRX-Arden", 2, 1, "CH2 Timecode LINE"),
                                            ("TRX-VOLT", 3, 4, "MIC / AUX Post EQ"),
                                            ("TRX-HALDEN", 5, 8, "MIC"),
                                            ("TRX-LUMEN", 3, 6, "AUX"),
                                            ("TRX-MORROW", 1, 6, "AUX")):
            listed = self.done("input", str(channel), "--json", "--model", model).json
            self.assertEqual(listed["choices"][index]["text"], text, model)

    def test_list_that_can_only_be_read_says_so(self):
        result = self.run_host("input", "1", "--model", "TRX-LUMEN")
        self.assertEqual((result.code, result.err),
                         (0, "hint: TRX-LUMEN takes no choice from this list; "
                             "see trxctl input --help for --raw\n"))

    def test_stored_number_out_of_range(self):
        self.store({"Output2": 7})
        result = self.run_host("input", "3")
        self.assertTrue(result.out.startswith(
            "TRX-SELVA input audio channel 3: 7 (stored, but no input audio choice)\n"), result)
        self.assertEqual(result.err, "hint: another program stored it; choose one: "
                                     'trxctl input 3 "AUX"\n')


class Setting(HostTest):
    def setUp(self):
        super().setUp()
        for unit in (1, 2):
            for channel in (0, 1, 2):
                self.mixer("set", unit, "selector", channel, 6)
        self.mixer("log", "clear")

    def assert_sets(self, channel, words, index, value):
        self.mixer("log", "clear")
        result = self.done("input", str(channel), *words, "--json").json
        self.assertEqual((result["channel"], result["index"]), (channel, index), words)
        self.assertNotIn("warning", result)
        self.assertEqual(self.stored()[f"Output{channel - 1}"], index)
        self.assertEqual(self.sent("mixer output"), [(1, value), (2, value)], words)

    def test_by_text_by_number_and_by_beginning_in_any_case(self):
        self.assert_sets(2, ["REC OUT"], 7, "020a")
        self.assert_sets(2, ["rec"], 7, "020a")
        self.assert_sets(2, ["rec", "out"], 7, "020a")
        self.assert_sets(1, ["ch1controltoneline"], 1, "0100")
        self.assert_sets(1, ["cross fader b"], 4, "0108")
        self.assert_sets(3, ["POST CH2"], 2, "0312")
        self.assert_sets(3, ["7"], 6, "030d")

    def test_by_a_word_of_it(self):
        self.assert_sets(1, ["phono"], 0, "0103")
        self.assert_sets(1, ["fader", "post"], 2, "0106")

    def test_says_what_was_set(self):
        self.assertEqual(self.done("input", "2", "rec").out,
                         "TRX-SELVA input audio channel 2 set to REC OUT.\n"
                         "Sent to 2 of 2 connected mixers.\n")

    def test_json(self):
        self.assertEqual(list(self.done("input", "2", "rec", "--json").json),
                         ["model", "setting", "channel", "action", "index", "text", "stored",
                          "status", "connected", "sent_to", "mixers", "announced"])

    def test_again(self):
        self.store({"Output1": 7})
        self.assertEqual(self.done("input", "2", "--again").out,
                         "TRX-SELVA input audio channel 2 sent again: REC OUT.\n"
                         "Sent to 2 of 2 connected mixers.\n")
        self.assertEqual(self.sent("mixer output"), [(1, "020a"), (2, "020a")])

    def test_again_does_not_send_a_number_that_is_no_choice(self):
        # 9 would reach into the choices of the next channel.
        self.store({"Output0": 9})
        self.assert_fails(3, ["input", "1", "--again"],
                          "the stored number 9 is no input audio choice, so nothing was sent",
                          'another program stored it; choose one: trxctl input 1 "REC OUT"')
        self.assert_nothing_sent()

    def test_without_a_mixer_is_stored_all_the_same(self):
        self.unplug_all()
        result = self.done_with_notes("input", "2", "rec")
        self.assertEqual(result.out + result.err,
                         "TRX-SELVA input audio channel 2 set to REC OUT.\n"
                         "No mixer is connected; the setting is stored anyway.\n"
                         "hint: once a mixer is connected, send it with: trxctl input 2 --again\n")


class Warning(HostTest):
    def setUp(self):
        super().setUp()
        for unit in (1, 2):
            self.mixer("set", unit, "selector", 0, 0)
            self.mixer("set", unit, "port", 0, 0)

    def warning(self, *words):
        return self.done("input", "1", "1", "--json", *words).json["warning"]

    def test_stands_behind_the_success_and_is_one(self):
        result = self.done_with_notes("input", "1", "1")
        lines = result.out.splitlines() + result.err.splitlines()
        self.assertEqual(lines[:2], ["TRX-SELVA input audio channel 1 set to "
                                     "CH1 Control Tone PHONO.",
                                     "Sent to 2 of 2 connected mixers."])
        self.assertTrue(lines[2].startswith("warning: Your choice has been sent to the mixer, but "
                                            "the input selector of this channel is not set to USB."))
        self.assertEqual((len(lines), self.stored()), (3, {"Output0": 0}))

    def test_none_when_the_selector_is_right(self):
        for unit in (1, 2):
            self.mixer("set", unit, "selector", 0, 7)
        answer = self.done("input", "1", "1", "--json").json
        self.assertNotIn("warning", answer)
        self.assertEqual(answer["status"], 100)

    def test_none_for_a_signal_that_passes_no_selector(self):
        self.unplug_all()
        for channel, choice in (("1", "3"), ("3", "1")):
            answer = self.done("input", channel, choice, "--json").json
            self.assertNotIn("warning", answer)
            # Programs get the library's answer as it is.
            self.assertEqual(answer["status"], 101)

    def test_json_has_the_status_of_the_library(self):
        self.assertEqual(self.done("input", "1", "1", "--json").json["status"], 101)
        self.assertEqual(self.done("input", "1", "--raw", "3", "--json").json["status"], 101)

    def test_fits_the_port(self):
        for unit in (1, 2):
            self.mixer("set", unit, "port", 1, 0)
        self.assertIn("second USB port", self.warning())

    def test_in_the_language_of_the_user(self):
        self.env["LANGUAGE"] = "de"
        self.env["LC_ALL"] = "en_US.UTF-8"
        self.assertIn("Eingangswahlschalter", self.warning())
        self.assertIn("input selector", self.warning("--language", "English"))

    def test_in_the_language_named(self):
        for name in ("German", "ger", "de", "3"):
            self.assertIn("Eingangswahlschalter", self.warning("--language", name))
        self.assertIn("input selector", self.warning("--language", "99"))
        for number in range(12):
            self.assertTrue(self.warning("--language", str(number)), number)

    def test_unknown_language_is_refused_before_anything_is_done(self):
        result = self.run_host("input", "1", "1", "--language", "Latin", "--json")
        self.assertEqual((result.code, result.err), (3, ""))
        self.assertEqual(result.json["error"]["message"], '"Latin" is no language')
        self.assertEqual(len(result.json["error"]["choices"]), 12)
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())

    def test_without_a_mixer(self):
        self.unplug_all()
        self.assertEqual(self.warning(), NO_MIXER)

    def test_not_installed(self):
        self.env["TRX_SYSTEM_ROOT"] = str(self.config)
        self.assertEqual(self.warning(), "The input selector of this channel may keep the choice "
                                         "from taking effect.")


class Raw(HostTest):
    def test_value_on_the_wire(self):
        self.done("input", "2", "--raw", "5", "--group", "0")
        self.assertEqual(self.sent("mixer output"), [(1, "1205"), (2, "1205")])
        self.mixer("log", "clear")
        self.done("input", "1", "--raw", "0x0A")
        self.assertEqual(self.sent("mixer output"), [(1, "010a"), (2, "010a")])
        self.assertIsNone(self.stored())

    def test_answer(self):
        self.assertEqual(self.done("input", "2", "--raw", "5").out,
                         "TRX-SELVA input audio channel 2 sent raw: source 5, group -1.\n"
                         "Nothing is stored.\nSent to 2 of 2 connected mixers.\n")
        result = self.done("input", "2", "--raw", "5", "--group", "3", "--json").json
        self.assertEqual((result["action"], result["channel"], result["source"], result["group"]),
                         ("raw", 2, 5, 3))

    def test_warning(self):
        self.assertIn("warning", self.done("input", "1", "--raw", "0", "--json").json)

    def test_every_model_takes_its_channels_and_sources(self):
        for model, (channels, first, last) in RAW.items():
            for channel, refused in ((1, first), (channels, last)):
                words = ["input", str(channel), "--model", model, "--raw"]
                self.assertEqual(self.run_host(*words, str(refused - 1)).code, 0, words)
                self.assert_fails(3, [*words, str(refused)],
                                  f'"{refused}" is no source code of {model} input audio '
                                  f"channel {channel}", f"choose a number from 0 to {refused - 1}")
            result = self.run_host("input", str(channels + 1), "--raw", "5", "--model", model,
                                   "--json")
            self.assertEqual((result.code, result.json["error"]["choices"]),
                             (3, [str(number + 1) for number in range(channels)]))

    def test_without_a_mixer(self):
        self.unplug_all()
        self.assert_fails(4, ["input", "1", "--raw", "5"],
                          "no mixer is connected, so nothing was sent",
                          "connect a mixer and switch it on, then try again")


class Refusing(HostTest):
    def test_unknown_channel(self):
        for word in ("0", "4", "-1", "REC OUT", "1.0"):
            self.assert_fails(3, ["input", word, "0"],
                              f'"{word}" is no channel of TRX-SELVA input audio',
                              "choose one of 1, 2, 3")
        self.assert_nothing_sent()

    def test_unknown_choice(self):
        error = self.run_host("input", "3", "8", "--json").json["error"]
        self.assertEqual((error["message"], error["choices"]),
                         ('"8" is no input audio choice', THIRD))

    def test_beginning_of_several(self):
        self.assert_fails(3, ["input", "1", "cross"],
                          '"cross" could be more than one input audio choice',
                          'write a little more of it: "Cross Fader A", "Cross Fader B"')

    def test_models_whose_list_can_only_be_read(self):
        for model, last in (("TRX-Arden", 15), ("TRX-VOLT", 3), ("TRX-HALDEN", 15),
                            ("TRX-LUMEN", 15), ("TRX-MORROW", 15)):
            for words in (["0"], ["--again"]):
                self.assert_fails(3, ["input", "1", *words, "--model", model],
                                  f"{model} takes no input audio choice from the list; "
                                  "that works for TRX-SELVA",
                                  "send a raw value instead: trxctl input 1 --raw SOURCE "
                                  f"--model {model}, with a SOURCE from 0 to {last}")
        self.assert_nothing_sent()

    def test_contradictions(self):
        self.assert_fails(2, ["input", "1", "1", "--again"], '--again and "1" do not go together',
                          "leave out all but one of them")
        self.assert_fails(2, ["input", "1", "--raw", "1", "--again"],
                          "--again and --raw do not go together", "leave out all but one of them")
        self.assert_fails(2, ["input", "--again"], "--again needs a channel",
                          "name the channel first, such as 1")
        self.assert_fails(2, ["input", "1", "--group", "1"], "--group goes with --raw only",
                          "add --raw SOURCE")
        self.assert_fails(2, ["input", "1", "--raw", "1", "--group", "15"],
                          '--group: "15" is no number from -1 to 14', "see trxctl input --help")


if __name__ == "__main__":
    unittest.main()
