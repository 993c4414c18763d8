"""trxctl reapply --plugged: what a user has stored, sent to one mixer, with one line about it."""

import ctypes
import unittest

from host import HostTest

# Of the system, for what the C library has no functions.
LANDLOCK_CREATE_RULESET, LANDLOCK_RESTRICT_SELF = 444, 446
NEVER_MADE = ctypes.c_uint64(1 << 11)  # block devices
NO_NEW_PRIVILEGES = 38
MOST_LAYERS = 16


def use_up_landlock():
    """Leaves a process as on a system without Landlock: the kernel takes no more layers of rules."""
    library = ctypes.CDLL(None, use_errno=True)
    library.prctl(NO_NEW_PRIVILEGES, 1, 0, 0, 0)
    rules = library.syscall(LANDLOCK_CREATE_RULESET, ctypes.byref(NEVER_MADE), 8, 0)
    results = [library.syscall(LANDLOCK_RESTRICT_SELF, rules, 0) for _ in range(MOST_LAYERS + 1)]
    assert results == [0] * MOST_LAYERS + [-1], results


class Plugged(HostTest):
    def device(self, unit):
        """The folder of a unit below /sys."""
        return f"/sys/bus/usb/devices/1-{unit}"

    def line(self, unit, code=0, **options):
        """What a run for a unit says, without the mixer's name."""
        result = self.run_host("reapply", "--plugged", self.device(unit), **options)
        self.assertEqual((result.code, result.err), (code, ""), result)
        named = f"{self.described(unit)}: "
        self.assertTrue(result.out.startswith(named) and result.out.count("\n") == 1, result)
        return result.out.removeprefix(named).removesuffix("\n")

    def test_sends_what_is_stored_to_this_mixer_only(self):
        self.store({"MaxLevel": 1, "Input1": 2})
        self.assertEqual(self.line(2), "sent output audio channel 2 AUX, boost level -10 dB")
        self.assertEqual(self.levels_sent(), [(2, "0200")])
        self.assertEqual(self.sent("mixer input"), [(2, "0204")])
        self.assertEqual(self.mixer("log").count(" OUT "), 2)

    def test_two_mixers_get_everything_once(self):
        self.store({"MaxLevel": 1})
        self.assertEqual([self.line(unit) for unit in (1, 2)], ["sent boost level -10 dB"] * 2)
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_without_landlock_mixers_of_the_same_model_get_it_too(self):
        self.store({"MaxLevel": 1})
        self.assertEqual(self.line(1, preexec_fn=use_up_landlock), "sent boost level -10 dB")
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_without_landlock_nothing_is_sent_beside_another_model(self):
        unit = int(self.mixer("plug", "TRX-VOLT").split()[0])
        self.addCleanup(self.mixer, "unplug", unit)
        self.store({"MaxLevel": 1})
        bus, address = self.place(unit)
        self.assertEqual(self.line(1, 9, preexec_fn=use_up_landlock),
                         f"nothing was sent: this system cannot keep TRX-VOLT (bus {bus}, address "
                         f"{address}), another model, from getting it too")
        self.assert_nothing_sent()

    def test_sends_nothing_when_nothing_is_stored(self):
        self.assertEqual(self.line(1),
                         "nothing was sent: this user has stored nothing for TRX-SELVA")
        self.assert_nothing_sent()

    def test_default_is_not_sent_unless_it_is_stored(self):
        self.store({"MaxLevel": 3})
        self.assertEqual(self.line(1), "sent boost level -19 dB")
        self.assertEqual(self.levels_sent(), [(1, "0000")])

    def test_model_is_that_of_the_product_name(self):
        unit = int(self.mixer("plug", "TRX-VOLT").split()[0])
        self.addCleanup(self.mixer, "unplug", unit)
        self.store({"MaxLevel": 2}, "TRX-VOLT")
        self.store({"MaxLevel": 0})
        result = self.done("reapply", "--plugged", self.device(unit))
        self.assertRegex(result.out, r"^TRX-VOLT .*: sent boost level -15 dB\n$")
        self.assertEqual(self.levels_sent(), [(unit, "0100")])

    def test_model_of_the_environment_has_no_say(self):
        self.store({"MaxLevel": 1})
        self.env["TRXCTL_MODEL"] = "TRX-VOLT"
        self.assertEqual(self.line(1), "sent boost level -10 dB")

    def test_says_what_was_not_sent_and_why(self):
        self.store({"MaxLevel": 1, "Input1": 5})
        self.assertEqual(self.line(1), "sent boost level -10 dB; not sent: output audio channel 2 "
                         "(the stored number 5 is no output audio choice)")

    def test_mixer_that_takes_nothing(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 1, "stall")
        self.assertEqual(self.line(1, 9), "not sent: boost level (the mixer refused it)")

    def test_other_mixer_that_takes_nothing_does_not_matter(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 2, "stall")
        self.assertEqual(self.line(1), "sent boost level -10 dB")
        self.assertEqual(self.levels_sent(), [(1, "0200")])

    def test_mixer_unplugged_while_permission_is_waited_for(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 1, "deny")
        named = self.described(1)
        running = self.start_denied(1)
        self.assertFalse(running.has_line(1))
        self.unplug(1)
        self.assertEqual(running.line(), f"{named}: nothing was sent: it was unplugged")
        self.assertEqual(running.end().code, 4)

    def test_permission_that_comes_later_is_waited_for(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 1, "deny")
        running = self.start_denied(1)
        self.assertFalse(running.has_line(1))
        self.mixer("clear", 1)
        self.assertEqual(running.line(), f"{self.described(1)}: sent boost level -10 dB")
        self.assertEqual(running.end().code, 0)
        self.assertEqual(self.levels_sent(), [(1, "0200")])

    def start_denied(self, unit):
        """Starts a run of a user who has to heed permissions."""
        return self.start_host("reapply", "--plugged", self.device(unit), unprivileged=True)

    def test_permission_that_does_not_come_is_given_up(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 1, "deny")
        self.assertEqual(self.line(1, 7, unprivileged=True),
                         "nothing was sent: it may not be opened (Permission denied)")
        self.assert_nothing_sent()

    def test_mixer_that_cannot_be_opened_for_another_reason_is_not_waited_for(self):
        self.store({"MaxLevel": 1})
        self.mixer("fault", 1, "refuse")
        self.assertEqual(self.line(1, 7),
                         "nothing was sent: it may not be opened (No such device or address)")

    def test_names_of_a_device(self):
        self.store({"MaxLevel": 1})
        bus, address = self.place(1)
        for device in (self.device(1), "/sys/bus/usb/devices/1-1:1.0",
                       f"/dev/bus/usb/{bus:03}/{address:03}"):
            self.mixer("log", "clear")
            self.done("reapply", "--plugged", device)
            self.assertEqual(self.levels_sent(), [(1, "0200")], device)

    def test_device_that_is_no_mixer(self):
        for device in ("/sys/bus/usb/devices/usb1", "/sys/bus/usb/devices/1-77", "/dev/null", ""):
            self.assert_fails(4, ["reapply", "--plugged", device],
                              f'no mixer is connected at "{device}"',
                              "name the folder of a connected mixer below /sys, or its device file")

    def test_goes_with_no_other_choice(self):
        self.assert_fails(2, ["reapply", "--plugged", self.device(1), "--model", "VOLT"],
                          "--plugged takes the model from the mixer", "leave out --model")
        self.assertEqual(
            self.run_host("reapply", "--plugged", self.device(1), "--dry-run").code, 2)

    def test_stores_and_announces_nothing(self):
        self.store({"MaxLevel": 1})
        before = sorted(self.config.rglob("*"))
        watch = self.start_host("watch")
        watch.line()
        self.line(1)
        self.done("boost", "2")
        self.assertEqual(watch.line(), "TRX-SELVA boost level: -10 dB")
        self.assertFalse(watch.has_line(0))
        self.assertEqual(sorted(self.config.rglob("*")), before)

    def test_json(self):
        self.store({"MaxLevel": 1, "Input1": 5})
        bus, address = self.place(1)
        self.assertEqual(self.done("reapply", "--plugged", self.device(1), "--json").json, {
            "mixer": {"product": "TRX-SELVA", "bus": bus, "address": address, "serial": "SIM00001"},
            "result": "sent",
            "sent": [{"setting": "boost", "index": 1, "text": "-10 dB", "stored": True}],
            "not_sent": [{"setting": "output", "channel": 2, "index": 5, "text": None, "stored": True,
                          "reason": "the stored number 5 is no output audio choice"}],
            "message": "sent boost level -10 dB; not sent: output audio channel 2 "
                       "(the stored number 5 is no output audio choice)"})


if __name__ == "__main__":
    unittest.main()
