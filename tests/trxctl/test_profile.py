"""trxctl profile: settings kept under a name, loaded again, and carried to another computer."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

from host import TRXCTL, HostTest

CHOSEN = {"Output0": 2, "Output1": 7, "Output2": 2, "Input0": 2, "Input1": 0, "Input2": 1,
          "MaxLevel": 1}
OTHER = {"Output0": 3, "Output1": 7, "Output2": 2, "Input0": 2, "Input1": 0, "Input2": 1,
         "MaxLevel": 2}
ROWS = ("  input audio channel 1: Post CH1 Fader\n"
        "  input audio channel 2: REC OUT\n"
        "  input audio channel 3: Post CH2 Fader\n"
        "  output audio channel 1: AUX\n"
        "  output audio channel 2: CH1\n"
        "  output audio channel 3: CH2\n"
        "  boost level: -10 dB\n")
GET_ANEW = ("it was changed or damaged; export it once more where it comes from, "
            "or save it anew")
REPLACE = "choose another name, or replace it with --replace"
CHOOSE_NAME = "a name is 1 to 80 bytes long, in UTF-8, without line breaks and control characters"


class ProfileTest(HostTest):
    def profiles(self):
        return self.config / "orvikaudio" / "Profiles"

    def names(self):
        return [one["profile"] for one in self.done("profile", "--json").json["profiles"]]

    def files(self):
        """The files of all profiles with what is in them."""
        folder = self.profiles()
        return {file.name: file.read_bytes() for file in folder.iterdir()} if folder.exists() else {}

    def save(self, name, settings=None, model="TRX-SELVA"):
        """A profile of these settings, made as a user makes it."""
        if settings is not None:
            self.store(settings, model)
        self.done("profile", "save", name, "--model", model)

    def write(self, content, name="from-elsewhere.json"):
        """A file that came from elsewhere."""
        file = self.config / name
        file.write_bytes(content if isinstance(content, bytes) else
                         (content if isinstance(content, str) else json.dumps(content)).encode())
        return str(file)

    def assert_stored(self, settings, model="TRX-SELVA"):
        """A profile has every setting of its model; only these matter here."""
        self.assertEqual(settings, {key: self.stored(model)[key] for key in settings})

    def refused(self, words, message, hint, code=3):
        """Runs trxctl, which must fail and leave everything as it was."""
        stored = self.stored()
        files = self.files()
        self.assert_fails(code, words, message, hint)
        self.assertEqual(self.run_host(*words, "--json").json["error"]["message"], message)
        self.assert_nothing_sent()
        self.assertEqual((self.stored(), self.files()), (stored, files))


class SavingAndLooking(ProfileTest):
    def test_none(self):
        for words in (["profile"], ["profile", "list"]):
            result = self.run_host(*words)
            self.assertEqual((result.code, result.out), (0, "There is no profile.\n"))
            self.assertEqual(result.err, "hint: save what is stored: trxctl profile save NAME\n")
        self.assertEqual(self.done("profile", "list", "--json").json, {"profiles": []})
        self.assertFalse(self.profiles().exists())

    def test_what_is_stored_is_saved(self):
        self.store(CHOSEN)
        self.assertRegex(self.done("profile", "save", "Friday club").out,
                         r'^Saved \d+ settings of TRX-SELVA as the profile "Friday club"\.\n$')
        self.assertTrue(self.done("profile", "show", "Friday club").out.startswith(
            'TRX-SELVA profile "Friday club", equal to what is stored\n' + ROWS))
        self.assert_nothing_sent()
        self.assertEqual(self.stored(), CHOSEN)

    def test_the_file_is_as_documented(self):
        self.save("Friday", CHOSEN)
        file = self.profiles() / "%46riday.json"
        self.assertEqual([file], list(self.profiles().iterdir()))
        text = file.read_text(encoding="utf-8")
        self.assertTrue(text.startswith('{\n  "format": 1,\n  "name": "Friday",\n'
                                        '  "model": "TRX-SELVA",\n  "settings": [\n'), text)
        self.assertEqual(json.loads(text)["settings"][:7], [
            {"setting": "input", "channel": 1, "index": 2, "text": "Post CH1 Fader"},
            {"setting": "input", "channel": 2, "index": 7, "text": "REC OUT"},
            {"setting": "input", "channel": 3, "index": 2, "text": "Post CH2 Fader"},
            {"setting": "output", "channel": 1, "index": 2, "text": "AUX"},
            {"setting": "output", "channel": 2, "index": 0, "text": "CH1"},
            {"setting": "output", "channel": 3, "index": 1, "text": "CH2"},
            {"setting": "boost", "index": 1, "text": "-10 dB"}])

    def test_the_folder_is_the_user_s_alone(self):
        self.save("gig")
        self.assertEqual(self.profiles().stat().st_mode & 0o777, 0o700)

    def test_the_default_is_saved_where_nothing_is_stored(self):
        self.save("fresh")
        settings = self.done("profile", "show", "fresh", "--json").json["settings"]
        self.assertEqual([one["index"] for one in settings[:7]], [0, 0, 0, 0, 1, 2, 3])
        self.assertIsNone(self.stored())

    def test_only_what_the_model_takes_from_a_list_is_saved(self):
        self.save("volt", {"MidiChannel": 9, "MaxLevel": 0}, "TRX-VOLT")
        shown = self.done("profile", "show", "volt", "--json").json
        settings = shown.pop("settings")
        self.assertEqual(shown, {"profile": "volt", "model": "TRX-VOLT", "equals_stored": True})
        self.assertEqual(settings[:2], [{"setting": "boost", "index": 0, "text": "-5 dB"},
                                        {"setting": "midi", "index": 9, "text": "CH 10"}])

    def test_a_stored_number_that_is_no_choice_is_not_saved(self):
        self.store({"MaxLevel": 7})
        self.refused(["profile", "save", "gig"],
                     "the stored number 7 is no boost level, so nothing was saved",
                     "choose one first: trxctl boost")

    def test_a_name_is_taken_once(self):
        self.save("gig", CHOSEN)
        self.store(OTHER)
        self.refused(["profile", "save", "gig"], 'there is already a profile "gig"', REPLACE)
        self.assertFalse(self.done("profile", "show", "gig", "--json").json["equals_stored"])
        self.done("profile", "save", "gig", "--replace")
        self.assertTrue(self.done("profile", "show", "gig", "--json").json["equals_stored"])
        self.assertEqual(len(list(self.profiles().iterdir())), 1)

    def test_list_marks_what_equals_the_stored_settings(self):
        self.save("b club", OTHER)
        self.save("a bar", CHOSEN)
        self.save("volt", {"MaxLevel": 0}, "TRX-VOLT")
        self.assertEqual(self.done("profile", "list").out,
                         "Profiles\n* TRX-SELVA   a bar\n  TRX-SELVA   b club\n"
                         "* TRX-VOLT    volt\n")
        self.done("boost", "3")
        self.assertEqual(self.done("profile", "list", "--json").json, {"profiles": [
            {"profile": "a bar", "model": "TRX-SELVA", "equals_stored": False},
            {"profile": "b club", "model": "TRX-SELVA", "equals_stored": False},
            {"profile": "volt", "model": "TRX-VOLT", "equals_stored": True}]})
        self.assertEqual(self.done("profile", "list", "--model", "volt").out,
                         "Profiles\n* TRX-VOLT    volt\n")

    def test_what_cannot_be_loaded_is_listed_and_deleted(self):
        self.save("gig", CHOSEN)
        (self.profiles() / "gig.json").write_text("{")
        self.assertEqual(self.done("profile").out,
                         'Profiles\n  cannot be loaded: the profile "gig" is not JSON\n')
        self.assertEqual(self.done("profile", "--json").json["profiles"], [
            {"profile": "gig", "model": None, "equals_stored": False,
             "error": 'the profile "gig" is not JSON'}])
        self.done("profile", "delete", "gig")
        self.assertEqual(self.names(), [])

    def test_a_file_named_for_another_profile(self):
        self.save("gig", CHOSEN)
        os.rename(self.profiles() / "gig.json", self.profiles() / "copy.json")
        message = ('the profile "copy" cannot be used, because the file kept for it holds the '
                   'profile "gig"')
        self.assertEqual(self.done("profile").out, f"Profiles\n  cannot be loaded: {message}\n")
        self.refused(["profile", "load", "copy"], message,
                     "import the file under the name that you want: "
                     "trxctl profile import FILE --name NAME")
        self.done("profile", "import", str(self.profiles() / "copy.json"), "--name", "copy",
                  "--replace")
        self.assertTrue(self.done("profile", "show", "copy", "--json").json["equals_stored"])

    def test_only_files_of_profiles_are_listed(self):
        self.save("gig")
        (self.profiles() / "notes.txt").write_text("no profile")
        (self.profiles() / ".profile-17-0").write_text("{")
        (self.profiles() / "folder.json").mkdir()
        self.assertEqual(self.names(), ["gig"])

    def test_a_name_that_there_is_not(self):
        self.save("Friday club")
        self.refused(["profile", "show", "Friday clup"], 'there is no profile "Friday clup"',
                     'did you mean "Friday club"?')
        for action in ("load", "delete"):
            self.refused(["profile", action, "x"], 'there is no profile "x"',
                         "see what there is: trxctl profile list")
        error = self.run_host("profile", "load", "x", "--json").json["error"]
        self.assertEqual(error["choices"], ["Friday club"])

    def test_without_a_home(self):
        env = {name: value for name, value in self.env.items()
               if name not in ("HOME", "XDG_CONFIG_HOME")}
        # A user that the system has no account for.
        words = ["setpriv", "--reuid=54321", "--clear-groups", TRXCTL, "profile", "list"]
        if os.geteuid() != 0:
            self.skipTest("only root can become a user without an account")
        done = subprocess.run(words, env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              text=True, check=False)
        self.assertEqual(done.returncode, 1)
        self.assertIn("there is no folder for profiles", done.stderr)


class Names(ProfileTest):
    def test_names_of_any_characters(self):
        names = sorted(["Friday club", "friday club", "a/b", "../up", ".", "..", "%41", "A", "a",
                        "O'Hara's \"best\"", "-19 dB", "list", "save", "a\\b", "*", " x ",
                        "Café", "Cafe\u0301", "夜のクラブ", "🎧", "x.json", "ß" * 40, "z" * 80])
        for name in names:
            self.done("profile", "save", "--", name)
        self.assertEqual(self.names(), names)
        files = [one.name for one in self.profiles().iterdir()]
        self.assertEqual(len({name.lower() for name in files}), len(names))
        for file in files:
            self.assertTrue(file.isascii() and len(file) <= 255, file)
        for name in names:
            self.assertEqual(self.done("profile", "show", "--json", "--", name).json["profile"],
                             name)
            self.done("profile", "delete", "--", name)
        self.assertEqual(list(self.profiles().iterdir()), [])

    def test_names_that_none_can_have(self):
        for name, message in (
                ("", "a profile needs a name"),
                ("  ", "a profile needs a name"),
                ("a" * 81, f'"{"a" * 81}" is too long for the name of a profile'),
                ("a\nb", '"a?b" has characters in it that the name of a profile cannot have'),
                ("a\x1bb", '"a?b" has characters in it that the name of a profile cannot have')):
            self.refused(["profile", "save", name], message, CHOOSE_NAME)
        for name in (b"\xff", b"\xc0\xaf", b"\xed\xa0\x80", b"\xf4\x90\x80\x80", b"\xc3",
                     "\u0085".encode()):
            result = self.run_host("profile", "save", os.fsdecode(name), "--json")
            self.assertEqual(result.code, 3, name)
            self.assertIn("has characters in it that", result.json["error"]["message"])
        self.assertFalse(self.profiles().exists())

    def test_rename(self):
        self.save("gig", CHOSEN)
        self.assertEqual(self.done("profile", "rename", "gig", "Gig").out,
                         'Renamed the profile "gig" to "Gig".\n')
        self.assertEqual(self.names(), ["Gig"])
        self.assertTrue(self.done("profile", "show", "Gig", "--json").json["equals_stored"])

    def test_rename_to_a_name_that_is_taken(self):
        self.save("gig", CHOSEN)
        self.save("club", OTHER)
        self.refused(["profile", "rename", "gig", "club"], 'there is already a profile "club"',
                     REPLACE)
        self.assertEqual(
            self.done("profile", "rename", "gig", "club", "--replace", "--json").json,
            {"profile": "club", "action": "rename", "renamed_from": "gig"})
        self.assertEqual(self.names(), ["club"])
        self.store(CHOSEN)
        self.assertTrue(self.done("profile", "show", "club", "--json").json["equals_stored"])

    def test_rename_to_its_own_name_loses_nothing(self):
        self.save("gig", CHOSEN)
        self.refused(["profile", "rename", "gig", "gig", "--replace"],
                     'there is already a profile "gig"', REPLACE)


class Loading(ProfileTest):
    def setUp(self):
        super().setUp()
        self.save("gig", CHOSEN)
        self.store(OTHER)

    def test_sends_stores_and_says_what_every_mixer_took(self):
        loaded = self.done("profile", "load", "gig").out
        self.assertTrue(loaded.startswith('TRX-SELVA profile "gig" loaded\n' + ROWS), loaded)
        self.assertTrue(loaded.endswith("\nSent to 2 of 2 connected mixers.\n"), loaded)
        self.assert_stored(CHOSEN)
        for request, values in (("mixer output", ["0106", "020a", "0312"]),
                                ("mixer input", ["0104", "0200", "0301"]),
                                ("USB output level", ["0200"])):
            self.assertEqual(self.sent(request),
                             [(unit, value) for unit in (1, 2) for value in values])

    def test_everything_is_sent_even_if_nothing_differs(self):
        self.store(CHOSEN)
        self.done("profile", "load", "gig")
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_announces_each_setting(self):
        watch = self.start_host("watch", "--json", "--count", "7")
        watch.json_line()
        self.done("profile", "load", "gig")
        changes = [watch.json_line() for _ in range(7)]
        self.assertEqual([(one["setting"], one.get("channel"), one["index"]) for one in changes],
                         [("input", 1, 2), ("input", 2, 7), ("input", 3, 2), ("output", 1, 2),
                          ("output", 2, 0), ("output", 3, 1), ("boost", None, 1)])

    def test_json(self):
        result = self.done("profile", "load", "gig", "--json").json
        self.assertEqual(list(result), ["profile", "model", "action", "settings"])
        self.assertEqual((result["profile"], result["model"], result["action"]),
                         ("gig", "TRX-SELVA", "load"))
        boost = result["settings"][6]
        self.assertEqual({name: boost[name] for name in ("setting", "index", "text", "stored",
                                                         "status", "connected", "sent_to")},
                         {"setting": "boost", "index": 1, "text": "-10 dB", "stored": True,
                          "status": 100, "connected": True, "sent_to": 2})
        self.assertEqual(len(boost["mixers"]), 2)

    def test_a_mixer_that_does_not_take_it_is_not_counted(self):
        self.mixer("fault", 1, "refuse")
        result = self.run_host("profile", "load", "gig")
        self.assertIn("Sent to 1 of 2 connected mixers.\n", result.out)
        self.assert_stored(CHOSEN)
        self.assertEqual(self.levels_sent(), [(2, "0200")])
        settings = self.run_host("profile", "load", "gig", "--json").json["settings"]
        self.assertEqual({one["sent_to"] for one in settings}, {1})

    def test_dry_run_shows_the_difference_and_does_nothing(self):
        self.assertEqual(self.done("profile", "load", "gig", "--dry-run").out,
                         'TRX-SELVA profile "gig" would change what is stored:\n'
                         "  input audio channel 1: Cross Fader A -> Post CH1 Fader\n"
                         "  boost level: -15 dB -> -10 dB\n"
                         "Nothing was sent or stored.\n")
        result = self.done("profile", "load", "gig", "--dry-run", "--json").json
        self.assertEqual(result, {
            "profile": "gig", "model": "TRX-SELVA", "action": "dry-run", "changes": [
                {"setting": "input", "channel": 1, "index": 2, "text": "Post CH1 Fader",
                 "stored": {"index": 3, "text": "Cross Fader A"}},
                {"setting": "boost", "index": 1, "text": "-10 dB",
                 "stored": {"index": 2, "text": "-15 dB"}}]})
        self.assert_nothing_sent()
        self.assertEqual(self.stored(), OTHER)
        self.store(CHOSEN)
        self.assertEqual(self.done("profile", "load", "gig", "--dry-run").out,
                         'TRX-SELVA profile "gig" equals what is stored.\n'
                         "Nothing was sent or stored.\n")

    def test_without_a_mixer_it_is_stored_all_the_same(self):
        self.unplug_all()
        result = self.run_host("profile", "load", "gig", "--json")
        self.assertEqual(result.code, 0)
        self.assert_stored(CHOSEN)
        self.assertEqual({one["connected"] for one in result.json["settings"]}, {False})

    def test_warnings_are_collected(self):
        self.save("tones", dict(CHOSEN, Output0=0, Output1=1))
        result = self.run_host("profile", "load", "tones", "--language", "en")
        self.assertEqual(result.code, 0, result)
        self.assertEqual(result.err.count("warning: "), 1, result)
        self.assertTrue(result.err.startswith(
            "warning: input audio channel 1, input audio channel 2: Your choice has been sent"),
            result)
        settings = self.run_host("profile", "load", "tones", "--json").json["settings"]
        self.assertEqual([one.get("channel") for one in settings if "warning" in one], [1, 2])

    def test_another_model_than_the_one_named_is_refused(self):
        for action in ("load", "show"):
            self.refused(["profile", action, "gig", "--model", "volt"],
                         'the profile "gig" is for TRX-SELVA, not for TRX-VOLT',
                         "leave out --model: a profile is loaded for its own model")
        self.done("profile", "load", "gig", "--model", "selva")

    def test_variable_for_the_model_does_not_decide_for_a_profile(self):
        self.env["TRXCTL_MODEL"] = "volt"
        self.assertEqual(self.done("profile", "show", "gig", "--json").json["model"], "TRX-SELVA")
        listed = self.done("profile", "list", "--json").json["profiles"]
        self.assertIn(("gig", "TRX-SELVA"), [(one["profile"], one["model"]) for one in listed])
        self.assertEqual(self.done("profile", "load", "gig", "--json").json["model"], "TRX-SELVA")
        self.assert_stored(CHOSEN)
        self.assertIsNone(self.stored("TRX-VOLT"))

    def test_settings_of_another_model(self):
        self.save("volt", {"MidiChannel": 9, "MaxLevel": 0}, "TRX-VOLT")
        self.store({"MidiChannel": 1}, "TRX-VOLT")
        self.run_host("profile", "load", "volt")
        self.assert_stored({"MidiChannel": 9, "MaxLevel": 0}, "TRX-VOLT")
        self.assertEqual(self.stored(), OTHER)

    def test_what_could_not_be_stored_is_told(self):
        preferences = self.config / "orvikaudio" / "Preferences"
        for file in preferences.iterdir():
            file.unlink()
        preferences.rmdir()
        preferences.write_text("in the way")
        result = self.run_host("profile", "load", "gig")
        self.assertEqual(result.code, 8, result)
        self.assertIn("could not be stored: input audio channel 1, ", result.err)
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])
        settings = self.run_host("profile", "load", "gig", "--json").json["settings"]
        # What is the default is what the library answers with, stored or not.
        self.assertFalse(settings[6]["stored"])


class Checks(ProfileTest):
    """Everything is checked before anything is sent or kept, in a load and in an import."""

    BOOST = {"setting": "boost", "index": 1, "text": "-10 dB"}
    INPUT = {"setting": "input", "channel": 1, "index": 2, "text": "Post CH1 Fader"}

    def profile(self, *settings, **members):
        return {"format": 1, "name": "gig", "model": "TRX-SELVA", "settings": list(settings),
                **members}

    def assert_both_refuse(self, content, predicate, hint=GET_ANEW):
        file = self.write(content)
        self.refused(["profile", "import", file], f'"{file}" {predicate}', hint)
        self.profiles().mkdir(parents=True, exist_ok=True)
        (self.profiles() / "gig.json").write_bytes(pathlib.Path(file).read_bytes())
        for words in (["profile", "load", "gig"], ["profile", "load", "gig", "--dry-run"]):
            self.refused(words, f'the profile "gig" {predicate}', hint)
        (self.profiles() / "gig.json").unlink()

    def test_what_is_good_passes(self):
        file = self.write(self.profile(self.INPUT, self.BOOST))
        self.assertEqual(self.done("profile", "import", file).out,
                         'Imported the profile "gig" for TRX-SELVA.\n')
        self.assert_nothing_sent()
        self.assertIsNone(self.stored())
        self.done("profile", "load", "gig")
        self.assertEqual(self.stored(), {"Output0": 2, "MaxLevel": 1})

    def test_model(self):
        for name in ("TRX-BRISK", "trx-selva", "X1", ""):
            self.assert_both_refuse(self.profile(self.BOOST, model=name),
                                    f'is for the model "{name}", which has no settings here',
                                    "see which models have: trxctl models")

    def test_setting(self):
        see = "see what the model takes: trxctl models --model TRX-SELVA"
        for name in ("equalizer", "midi", "keymode"):
            self.assert_both_refuse(
                self.profile(self.INPUT, {"setting": name, "index": 0, "text": "CH 1"}),
                f'sets "{name}", which TRX-SELVA does not have', see)
        self.assert_both_refuse(
            self.profile(self.INPUT, model="TRX-LUMEN"),
            "sets the input audio, for which TRX-LUMEN takes no choice from the list",
            "see what the model takes: trxctl models --model TRX-LUMEN")

    def test_channel(self):
        for channel in (0, -1, 4, 4294967297):
            self.assert_both_refuse(
                self.profile(self.BOOST, dict(self.INPUT, channel=channel)),
                f"sets channel {channel} of the input audio, which TRX-SELVA does not have",
                "see what the model takes: trxctl models --model TRX-SELVA")
        self.assert_both_refuse(self.profile(dict(self.BOOST, channel=1)),
                                "names a channel of the boost level, which has none")
        self.assert_both_refuse(
            self.profile({"setting": "input", "index": 2, "text": "Post CH1 Fader"}),
            'lacks "channel"')

    def test_text(self):
        self.assert_both_refuse(
            self.profile(self.INPUT, dict(self.BOOST, text="-11 dB")),
            'sets the boost level to "-11 dB", which is no boost level of TRX-SELVA',
            "see what there is to choose from: trxctl boost")

    def test_text_and_number_that_disagree(self):
        for index in (2, -1, 4, 4294967297, 9223372036854775807):
            self.assert_both_refuse(
                self.profile(self.INPUT, dict(self.BOOST, index=index)),
                f'sets the boost level to "-10 dB" and to number {index}, which is another choice '
                "or none", "see what there is to choose from: trxctl boost")

    def test_numbers(self):
        for index in ("1.0", "1e0", '"1"', "true", "null", "18446744073709551615",
                      "184467440737095516160", "[1]"):
            text = json.dumps(self.profile(self.BOOST)).replace('"index": 1', f'"index": {index}')
            self.assert_both_refuse(text, 'has "index" that is no whole number')
        self.assert_both_refuse('{"format": 1e999}', "is not JSON")

    def test_the_same_twice(self):
        self.assert_both_refuse(self.profile(self.INPUT, self.BOOST, dict(self.INPUT)),
                                "sets the input audio channel 1 twice")
        self.assert_both_refuse(
            json.dumps(self.profile(self.BOOST))[:-1] + ', "model": "TRX-VOLT"}',
            'has "model" twice in one object')

    def test_format(self):
        for number in (2, 0, -1, 999):
            self.assert_both_refuse(
                {"format": number}, f"is in format {number}; this trxctl knows format 1 only",
                f"a newer trxctl may know it; this one is {self.done('--version').out.strip()}")

    def test_members(self):
        for name in ("format", "name", "model", "settings"):
            content = self.profile(self.BOOST)
            del content[name]
            self.assert_both_refuse(content, f'lacks "{name}"')
        self.assert_both_refuse(self.profile(self.BOOST, name=1), 'has "name" that is no text')
        self.assert_both_refuse(self.profile(settings={}), 'has "settings" that is no list')
        self.assert_both_refuse(self.profile(), "holds no setting")
        for content in ([], [1], "1", "null"):
            self.assert_both_refuse(content, "has something else where an object belongs")
        self.assert_both_refuse(self.profile(1), "has something else where an object belongs")

    def test_size(self):
        text = json.dumps(self.profile(self.BOOST))
        largest = text + " " * (1024 * 1024 - len(text))
        self.done("profile", "import", self.write(largest))
        self.done("profile", "delete", "gig")
        self.assert_both_refuse(largest + " ", "is larger than 1 MiB")
        self.refused(["profile", "import", "/dev/zero"], '"/dev/zero" is larger than 1 MiB',
                     GET_ANEW)

    def test_nesting(self):
        deepest = self.profile(self.BOOST)
        deepest["more"] = 1
        for _ in range(15):
            deepest["more"] = [deepest["more"]]
        self.done("profile", "import", self.write(deepest))
        self.done("profile", "delete", "gig")
        self.assert_both_refuse(dict(deepest, more=[deepest["more"]]), "is nested too deeply")
        self.assert_both_refuse("[" * 500000, "is nested too deeply")
        self.assert_both_refuse('{"a":' * 100000, "is nested too deeply")

    def test_text_that_is_none(self):
        for content in (b"\xff\xfe{\x00}\x00", b'{"name": "\xff"}', b'{"name": "\xed\xa0\x80"}'):
            self.assert_both_refuse(content, "is not text in UTF-8")
        for content in ("", "gig", '{"format": 1', "{}{}", '{"name": "\\ud800"}', "{'a': 1}"):
            self.assert_both_refuse(content, "is not JSON")

    def test_names_in_a_file(self):
        for name in ("", "a\nb", "a" * 81):
            file = self.write(self.profile(self.BOOST, name=name))
            self.assertEqual(self.run_host("profile", "import", file).code, 3)
        self.assertEqual(self.names(), [])


class Carrying(ProfileTest):
    def file(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        return pathlib.Path(folder.name) / "Friday.json"

    def test_to_another_computer_in_another_language(self):
        self.save("Friday", CHOSEN)
        file = self.file()
        german = dict(self.env, LANGUAGE="de", LC_ALL="de_DE.UTF-8")
        self.assertEqual(self.done("profile", "export", "Friday", str(file), env=german).out,
                         f'Exported the profile "Friday" to "{file}".\n')
        self.assertEqual(list(file.parent.iterdir()), [file])

        with tempfile.TemporaryDirectory() as other:
            japanese = dict(self.env, LANGUAGE="ja", LC_ALL="ja_JP.UTF-8", XDG_CONFIG_HOME=other)
            self.assertEqual(
                self.done("profile", "import", str(file), "--json", env=japanese)
                .json["settings"][6], {"setting": "boost", "index": 1, "text": "-10 dB"})
            self.done("profile", "load", "Friday", env=japanese)
            self.assertEqual(self.done("profile", "list", env=japanese).out,
                             "Profiles\n* TRX-SELVA   Friday\n")

    def test_members_that_are_not_known_are_kept(self):
        self.save("gig", CHOSEN)
        content = json.loads((self.profiles() / "gig.json").read_text())
        content["name"] = "more"
        content["comment"] = {"for": ["Friday", 1.5, None]}
        content["settings"][0]["why"] = "louder"
        self.done("profile", "import", self.write(content))
        self.done("profile", "load", "more")
        self.done("profile", "rename", "more", "renamed")
        self.done("profile", "export", "renamed", str(self.config / "out.json"))
        self.done("profile", "import", str(self.config / "out.json"), "--name", "third")
        content["name"] = "third"
        self.assertEqual(json.loads((self.profiles() / "third.json").read_text()), content)

    def test_import_never_overwrites_without_a_word(self):
        self.save("gig", CHOSEN)
        file = self.file()
        self.done("profile", "export", "gig", str(file))
        self.save("other", OTHER)
        self.done("profile", "save", "gig", "--replace")
        self.refused(["profile", "import", str(file)], 'there is already a profile "gig"', REPLACE)
        self.refused(["profile", "import", str(file), "--name", "other"],
                     'there is already a profile "other"', REPLACE)
        self.assertTrue(self.done("profile", "show", "gig", "--json").json["equals_stored"])
        self.done("profile", "import", str(file), "--replace")
        self.assertFalse(self.done("profile", "show", "gig", "--json").json["equals_stored"])

    def test_export_never_overwrites_without_a_word(self):
        self.save("gig", CHOSEN)
        file = self.file()
        file.write_text("precious")
        self.refused(["profile", "export", "gig", str(file)], f'there is already a file "{file}"',
                     REPLACE)
        self.assertEqual(file.read_text(), "precious")
        self.done("profile", "export", "gig", str(file), "--replace")
        self.assertEqual(file.read_bytes(), (self.profiles() / "gig.json").read_bytes())

    def test_export_to_what_is_no_file(self):
        self.save("gig", CHOSEN)
        for place, reason in ((self.config, "Is a directory"), ("/dev/null", "Invalid argument"),
                              (self.config / "no" / "x", "No such file or directory")):
            self.refused(["profile", "export", "gig", str(place), "--replace"],
                         f'"{place}" cannot be written: {reason}',
                         "see that the folder is there, that you may write to it and that there "
                         "is space", code=1)
        self.assertTrue(pathlib.Path("/dev/null").is_char_device())

    def test_import_of_no_file(self):
        for place, reason in ((self.config, "Is a directory"),
                              (self.config / "none", "No such file or directory")):
            self.refused(["profile", "import", str(place)], f'"{place}" cannot be read: {reason}',
                         "see that it is there and that you may read it", code=1)

    def test_import_from_a_pipe(self):
        self.save("gig", CHOSEN)
        self.done("profile", "export", "gig", str(self.config / "x"))
        self.done("profile", "delete", "gig")
        with subprocess.Popen(["cat", self.config / "x"], stdout=subprocess.PIPE) as cat:
            done = subprocess.run([TRXCTL, "profile", "import", "/dev/stdin"], env=self.env,
                                  stdin=cat.stdout, stdout=subprocess.DEVNULL, check=True)
        self.assertEqual((done.returncode, self.names()), (0, ["gig"]))

    def test_a_profile_behind_a_link_stays_behind_it(self):
        self.save("gig", CHOSEN)
        kept = self.config / "kept.json"
        os.rename(self.profiles() / "gig.json", kept)
        (self.profiles() / "gig.json").symlink_to(kept)
        self.save("other", OTHER)
        self.done("profile", "save", "gig", "--replace")
        self.assertTrue((self.profiles() / "gig.json").is_symlink())
        self.assertTrue(self.done("profile", "show", "gig", "--json").json["equals_stored"])

    def test_no_space_is_told_and_the_old_profile_stays(self):
        self.save("gig", CHOSEN)
        self.store(OTHER)
        # No file may grow beyond this, as on a disk that is full.
        limited = ["bash", "-c", 'ulimit -f 0; trap "" XFSZ; exec "$@"', "bash", TRXCTL]
        done = subprocess.run([*limited, "profile", "save", "gig", "--replace"], env=self.env,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                              check=False)
        self.assertEqual(done.returncode, 1, done)
        self.assertIn("cannot be written: File too large", done.stderr)
        self.assertEqual([one.name for one in self.profiles().iterdir()], ["gig.json"])
        self.store(CHOSEN)
        self.assertTrue(self.done("profile", "show", "gig", "--json").json["equals_stored"])


class CommandLine(ProfileTest):
    def candidates(self, *words):
        return [line.split("\t")[0] for line in self.done("complete", *words).out.splitlines()]

    def test_completion(self):
        self.assertEqual(self.candidates("profile", ""),
                         ["list", "save", "show", "load", "delete", "rename", "export", "import"])
        self.assertEqual(self.candidates("profile", "load", ""), [])
        for name in ("Friday", "free", "O'Hara"):
            self.save(name)
        self.assertEqual(self.candidates("profile", "load", "f"), ["Friday", "free"])
        self.assertEqual(self.candidates("profile", "delete", "O\\'h"), ["O'Hara"])
        for action in ("show", "rename", "export"):
            self.assertEqual(self.candidates("profile", action, ""), ["Friday", "O'Hara", "free"])
            self.assertEqual(self.candidates("profile", action, "free", ""), [])
        self.assertEqual(self.candidates("profile", "save", ""), [])
        self.assertEqual(self.candidates("profile", "load", "free", "--d"), ["--dry-run"])
        self.assertEqual(self.candidates("profile", "import", "--n"), ["--name"])

    def test_mistakes_in_the_command_line(self):
        see = "see trxctl profile --help"
        self.refused(["profile", "save"], "NAME is required", see, code=2)
        self.refused(["profile", "rename", "a"], "NAME is required", see, code=2)
        self.refused(["profile", "lod", "a"], '"lod" is not expected after "profile"', see, code=2)
        self.refused(["profile", "load", "a", "b"], '"b" is not expected after "profile"', see,
                     code=2)
        self.refused(["profile", "import", "a", "--replac"], 'unknown option "--replac"',
                     "did you mean --replace?", code=2)

    def test_a_flag_takes_no_value(self):
        result = self.run_host("profile", "save", "gig", "--replace=no")
        self.assertEqual((result.code, result.out), (2, ""), result)
        self.assertEqual(self.names(), [])

    def test_help_of_each(self):
        for action in self.candidates("profile", ""):
            self.assertIn(f"Usage: trxctl profile {action} [OPTIONS]",
                          self.done("profile", action, "--help").out)


if __name__ == "__main__":
    unittest.main()
