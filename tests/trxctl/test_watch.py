"""trxctl watch: changes made by other processes, as they are announced."""

import json
import signal
import subprocess
import time
import unittest

from host import LEVELS, MODELS, PATIENCE, HostTest

STARTED = f"Watching {', '.join(MODELS)}; end with Ctrl-C."
NO_BUS = ["There is no session bus, so no change can be seen yet; waiting for one.",
          "hint: run trxctl in a desktop session, or everything together under dbus-run-session"]


def announce(name, **numbers):
    """Announces a change as another program does."""
    entries = ",".join(f"{key},{value}" for key, value in numbers.items())
    subprocess.run(["dbus-send", "--session", "--type=signal", "/com/orvikaudio/Setup",
                    "com.orvikaudio.Setup.Changed", f"string:{name}",
                    f"dict:string:int32:{entries}"], check=True)


class Changes(HostTest):
    def watch(self, *words):
        watching = self.start_host("watch", *words)
        self.started = watching.line()
        return watching

    def test_prints_the_change_of_another_process(self):
        watching = self.watch()
        self.assertEqual(self.started, STARTED)
        self.done("boost", "-10")
        self.assertEqual(watching.line(), "TRX-SELVA boost level: -10 dB")

    def test_prints_each_change_in_order_also_without_a_difference(self):
        watching = self.watch("--json")
        for index in (0, 0, 1, 2, 2, 3):
            self.done("boost", str(index + 1))
        self.assertEqual([watching.json_line()["index"] for _ in range(6)], [0, 0, 1, 2, 2, 3])

    def test_two_watchers_both_see_it(self):
        first, second = self.watch(), self.watch()
        self.done("boost", "1")
        for watching in (first, second):
            self.assertEqual(watching.line(), "TRX-SELVA boost level: -5 dB")

    def test_every_model(self):
        watching = self.watch("--json")
        for index, model in enumerate(MODELS):
            self.run_host("boost", str(index % 4 + 1), "--model", model)
            self.assertEqual(watching.json_line(), {
                "event": "change", "model": model, "setting": "boost",
                "index": index % 4, "text": LEVELS[index % 4]})

    def test_only_the_model_named(self):
        watching = self.watch("--model", "trx-volt")
        self.assertEqual(self.started, "Watching TRX-VOLT; end with Ctrl-C.")
        self.done("boost", "1")
        self.run_host("boost", "2", "--model", "TRX-VOLT")
        self.assertEqual(watching.line(), "TRX-VOLT boost level: -10 dB")

    def test_settings_with_channels(self):
        watching = self.watch("--json")
        for name, setting, text in (("InputAudio", "input", "Post CH2 Fader"),
                                    ("OutputAudio", "output", "AUX")):
            announce(f"TRX-SELVA {name} Change", ProductID=11, Channel=1, Index=2)
            # Channels count from 1 for people.
            self.assertEqual(watching.json_line(), {
                "event": "change", "model": "TRX-SELVA", "setting": setting, "channel": 2,
                "index": 2, "text": text})

    def test_setting_with_a_channel_as_text(self):
        watching = self.watch()
        announce("TRX-LUMEN InputAudio Change", ProductID=6, Channel=0, Index=3)
        self.assertEqual(watching.line(), "TRX-LUMEN input audio channel 1: Cross Fader A")

    def test_texts_of_every_model(self):
        watching = self.watch()
        for model, number, channel, text in (("TRX-Arden", 0, 3, "CH4 Timecode CD/LINE"),
                                             ("TRX-VOLT", 1, 2, "Post CH2 Fader"),
                                             ("TRX-HALDEN", 5, 4, "Post AUX Fader"),
                                             ("TRX-LUMEN", 6, 2, "Post CH1 Fader"),
                                             ("TRX-MORROW", 8, 1, "CH2 Control Tone LINE"),
                                             ("TRX-SELVA", 11, 0, "CH1 Control Tone LINE")):
            announce(f"{model} InputAudio Change", ProductID=number, Channel=channel, Index=1)
            self.assertEqual(watching.line(), f"{model} input audio channel {channel + 1}: {text}")

    def test_changes_made_with_trxctl_itself(self):
        watching = self.watch()
        self.done("input", "2", "rec")
        self.done("output", "1", "aux")
        self.done("output", "1", "--default")
        self.run_host("midi", "10", "--model", "TRX-VOLT")
        self.assertEqual([watching.line() for _ in range(4)],
                         ["TRX-SELVA input audio channel 2: REC OUT",
                          "TRX-SELVA output audio channel 1: AUX",
                          "TRX-SELVA output audio channel 1: CH1",
                          "TRX-VOLT MIDI channel: CH 10"])

    def test_channel_that_the_model_does_not_have(self):
        watching = self.watch()
        announce("TRX-SELVA OutputAudio Change", ProductID=11, Channel=3, Index=0)
        self.assertEqual(watching.line(), "TRX-SELVA output audio channel 4: choice number 1")

    def test_midi_channel(self):
        watching = self.watch("--json")
        announce("TRX-VOLT MidiChannel Change", ProductID=1, Index=9)
        change = watching.json_line()
        self.assertEqual(change, {"event": "change", "model": "TRX-VOLT", "setting": "midi",
                                  "index": 9, "text": "CH 10"})

    def test_number_that_is_no_choice(self):
        watching, plain = self.watch("--json"), self.watch()
        announce("TRX-SELVA BoostLevel Change", ProductID=11, Index=9)
        self.assertEqual(watching.json_line(), {
            "event": "change", "model": "TRX-SELVA", "setting": "boost", "index": 9, "text": None})
        self.assertEqual(plain.line(), "TRX-SELVA boost level: choice number 10")

    def test_sending_again_is_no_change(self):
        watching = self.watch()
        self.done("boost", "--again")
        self.done("boost", "2")
        self.assertEqual(watching.line(), "TRX-SELVA boost level: -10 dB")

    def test_first_json_line_tells_what_is_watched(self):
        self.watch("--json")
        self.assertEqual(json.loads(self.started),
                         {"event": "watching", "models": MODELS, "session_bus": True})


class Ending(HostTest):
    def test_signals_end_it_well(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            watching = self.start_host("watch")
            watching.line()
            watching.signal(number)
            result = watching.end()
            self.assertEqual((result.code, result.out, result.err), (0, "", ""), number)

    def test_after_so_many_changes(self):
        watching = self.start_host("watch", "--count", "2")
        watching.line()
        for index in (0, 1, 2):
            self.done("boost", str(index + 1))
        result = watching.end()
        self.assertEqual((result.code, result.err), (0, ""))
        self.assertEqual(result.out.splitlines(),
                         ["TRX-SELVA boost level: -5 dB", "TRX-SELVA boost level: -10 dB"])

    def test_after_some_time(self):
        result = self.run_host("watch", "--timeout", "0.05")
        self.assertEqual((result.code, result.out), (5, STARTED + "\n"))
        self.assertEqual(result.err,
                         "trxctl: error: the time is over; 0 changes seen\n"
                         "hint: give more time with --timeout, or leave it out to wait without end\n")

    def test_count_reached_in_time(self):
        watching = self.start_host("watch", "--count", "1", "--timeout", "20")
        watching.line()
        self.done("boost", "1")
        self.assertEqual(watching.end().code, 0)

    def test_time_over_before_the_count(self):
        watching = self.start_host("watch", "--json", "--count", "2", "--timeout", "1")
        watching.line()
        self.done("boost", "1")
        self.assertEqual(watching.json_line()["event"], "change")
        result = watching.end()
        self.assertEqual((result.code, result.err), (5, ""))
        self.assertEqual((result.json["error"]["kind"], result.json["error"]["message"]),
                         ("timed_out", "the time is over; 1 change seen"))

    def test_when_the_reader_of_its_output_goes_away(self):
        watching = self.start_host("watch")
        watching.line()
        watching.close_output()
        result = watching.end()
        self.assertEqual((result.code, result.err), (6, ""))


class Plugging(HostTest):
    def test_mixers_are_told_when_they_are_unplugged_and_plugged_in(self):
        plain, watching = self.start_host("watch"), self.start_host("watch", "--json")
        plain.line()
        watching.line()
        gone = self.described(1)
        bus, address = self.place(1)
        self.mixer("unplug", 1)
        self.assertEqual(plain.line(), f"{gone}: unplugged")
        self.assertEqual(watching.json_line(), {
            "event": "unplugged", "product": "TRX-SELVA", "bus": bus, "address": address,
            "serial": "SIM00001"})
        self.mixer("replug", 1)
        self.assertEqual(plain.line(), f"{self.described(1)}: plugged in")
        self.assertEqual(watching.json_line()["event"], "plugged")


class Timestamps(HostTest):
    def test_begin_each_line(self):
        watching = self.start_host("watch", "--timestamps")
        watching.line()
        self.done("boost", "1")
        self.assertRegex(watching.line(), r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}[+-]\d{4}  "
                                          r"TRX-SELVA boost level: -5 dB$")

    def test_json(self):
        watching = self.start_host("watch", "--timestamps", "--json")
        watching.line()
        self.done("boost", "1")
        self.assertRegex(watching.json_line()["time"], r"^\d{4}-\d\d-\d\dT")


class WithoutBus(HostTest):
    def setUp(self):
        super().setUp()
        self.env.pop("DBUS_SESSION_BUS_ADDRESS")
        self.env["XDG_RUNTIME_DIR"] = str(self.config)

    def test_says_so_and_waits_on(self):
        watching = self.start_host("watch")
        self.assertEqual(watching.line(), STARTED)
        self.assertEqual([watching.line("stderr"), watching.line("stderr")], NO_BUS)
        watching.signal(signal.SIGTERM)
        self.assertEqual(watching.end().code, 0)

    def test_json(self):
        result = self.run_host("watch", "--json", "--timeout", "0.05")
        first, last = (json.loads(line) for line in result.out.splitlines())
        self.assertEqual((first["event"], first["session_bus"]), ("watching", False))
        self.assertEqual((last["error"]["code"], result.code, result.err), (5, 5, ""))

    def test_sees_changes_once_there_is_one(self):
        watching = self.start_host("watch")
        watching.line()
        # Where a login session has its bus, and this one had none until now.
        self.start_bus()
        deadline = time.monotonic() + PATIENCE
        lines = []
        while "TRX-SELVA boost level: -10 dB" not in lines and time.monotonic() < deadline:
            self.run_host("boost", "-10")
            while watching.has_line(0.1):
                lines.append(watching.line())
        self.assertEqual(set(lines), {"The session bus is back.", "TRX-SELVA boost level: -10 dB"})

    def test_settings_are_set_all_the_same(self):
        result = self.done_with_notes("boost", "-10")
        self.assertEqual(result.err,
                         "note: there is no session bus, so no other program knows of it\n")
        self.assertIs(self.done("boost", "-10", "--json").json["announced"], False)
        self.assertEqual(self.stored(), {"MaxLevel": 1})
        self.assertEqual(self.levels_sent(), [(1, "0200"), (1, "0200"), (2, "0200"), (2, "0200")])


class DyingBus(HostTest):
    def setUp(self):
        super().setUp()
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self.bus_address()

    def test_watch_tells_when_it_goes_and_comes(self):
        bus = self.start_bus()
        watching = self.start_host("watch", "--json")
        self.assertIs(watching.json_line()["session_bus"], True)
        bus.kill()
        self.assertEqual(watching.json_line(), {"event": "session_bus", "reached": False})
        (self.config / "bus").unlink()
        self.start_bus()
        self.assertEqual(watching.json_line(), {"event": "session_bus", "reached": True})

    def test_bus_that_does_not_answer_is_told(self):
        bus = self.start_bus()
        bus.send_signal(signal.SIGSTOP)
        result = self.done_with_notes("boost", "-10")
        self.assertEqual(result.err,
                         "note: the session bus does not answer, so no other program knows of it\n")


if __name__ == "__main__":
    unittest.main()
