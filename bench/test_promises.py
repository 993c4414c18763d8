"""What docs/performance.md promises, as far as it can be counted: system calls and instructions, no times.

Everything below runs inside trx-mixer-sim and dbus-run-session, which the test command starts.
"""

import os
import unittest

import counts
import desk


class Promise(unittest.TestCase):
    def setUp(self):
        folder = desk.make_settings()
        self.addCleanup(folder.cleanup)
        desk.plug(mixers=1, strangers=11)

    def assert_at_most(self, limit, counter, operation, against):
        ours, theirs = counter(operation), counter(against)
        print(f"{operation} {ours:g}, {against} {theirs:g}: {ours / theirs:.3f}, at most {limit}")
        self.assertGreater(theirs, 0)
        self.assertLessEqual(ours / theirs, limit)

    def assert_at_least(self, limit, counter, operation, against):
        theirs, ours = counter(operation), counter(against)
        print(f"{operation} {theirs:g}, {against} {ours:g}: {theirs / ours:.3f}, at least {limit}")
        self.assertGreater(ours, 0)
        self.assertGreaterEqual(theirs / ours, limit)

    def assert_grows_evenly(self, costs):
        """Costs at 4, 8 and 16: each further one costs the same. Gives how much."""
        first, second = (costs[8] - costs[4]) / 4, (costs[16] - costs[8]) / 8
        print(f"{costs}: {first:g}, then {second:g} for each further one")
        self.assertGreater(first, 0)
        self.assertLessEqual(abs(second - first), first / 50)
        return second


class SystemCalls(Promise):
    def assert_no_more_than(self, limit, operation):
        # What the simulator loads into programs makes several calls of one.
        if "LD_PRELOAD" not in os.environ:
            self.assertLessEqual(counts.system_calls(operation), limit, operation)

    def test_of_a_walk(self):
        self.assert_at_most(1.15, counts.system_calls, "walk", "walk-floor")

    def test_of_a_level_sent_again(self):
        self.assert_at_most(1.15, counts.system_calls, "send-again", "send-again-floor")
        self.assert_no_more_than(52, "send-again")

    def test_of_a_set(self):
        self.assert_at_most(1.15, counts.system_calls, "set", "set-floor")
        self.assert_no_more_than(65, "set")


class Growth(Promise):
    def test_of_a_walk_with_devices(self):
        calls, floor, instructions = {}, {}, {}
        for devices in (4, 8, 16):
            desk.plug(mixers=1, strangers=devices - 1)
            calls[devices] = counts.system_calls("walk")
            floor[devices] = counts.system_calls("walk-floor")
            instructions[devices] = counts.instructions("walk")
        self.assertLessEqual(self.assert_grows_evenly(calls), 1.25 * self.assert_grows_evenly(floor))
        self.assert_grows_evenly(instructions)

    def test_of_a_set_with_units_at_the_same_devices(self):
        calls = {}
        for units in (4, 8, 16):
            desk.plug(mixers=units, strangers=16 - units)
            calls[units] = counts.system_calls("send-again")
        # For each unit, the floor has the request itself.
        floor = (counts.system_calls("send-again-floor") - counts.system_calls("get-floor")
                 - counts.system_calls("walk-floor"))
        each = self.assert_grows_evenly(calls)
        self.assertLessEqual(each, 1.15 * floor)
        if "LD_PRELOAD" not in os.environ:
            self.assertLessEqual(each, 8)

    def test_of_reading_an_announcement_with_its_entries(self):
        self.assert_grows_evenly({hundreds: counts.instructions(f"announce-read-{hundreds}00")
                                  for hundreds in (4, 8, 16)})


class Instructions(Promise):
    def test_of_a_getter(self):
        self.assert_at_most(1.2, counts.instructions, "get", "get-libplist")

    def test_of_an_announcement(self):
        self.assert_at_most(1.3, counts.instructions, "announce", "announce-sd-bus")

    def test_of_reading_an_announcement(self):
        self.assert_at_most(1.3, counts.instructions, "announce-read", "announce-read-sd-bus")

    def test_of_a_request_with_libusb_from_cold(self):
        for ours in ("send-again", "set"):
            self.assert_at_least(30, counts.instructions, "libusb", ours)

    def test_of_trxctl_as_a_whole_process(self):
        """15 ms on a processor that carries out no more than one instruction in a nanosecond."""
        total = counts.counted([counts.PROGRAMS / "trxctl", "boost", "1"], counts.callgrind, accepted=counts.STORED)
        print(f"trxctl boost 1: {total} instructions, at most 15000000")
        self.assertLessEqual(total, 15_000_000)
