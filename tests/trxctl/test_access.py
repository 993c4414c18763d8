"""Mixers that the system keeps from an ordinary user, and what trxctl advises."""

import unittest

from host import HostTest

RULE_HINT = ("the udev rule that comes with the library lets the user at the desk open mixers; "
             "trxctl diagnose tells what to type")
BUSY_HINT = "end the program that holds the mixer, then try again"


class Access(HostTest):
    def keep_away(self, kind):
        self.mixer("fault", 1, kind)
        self.mixer("fault", 2, kind)

    def assert_kept_away(self, kind, reason, hint):
        self.keep_away(kind)
        first = min((1, 2), key=self.place)
        self.assert_fails(7, ["boost", "--again"],
                          f"nothing was sent: {self.described(first)}, "
                          f"may not be opened ({reason})", hint, unprivileged=True)
        self.assert_nothing_sent()
        self.assertIn(f"hint: {hint}\n", self.done(unprivileged=True).out)
        shown = self.done("--json", unprivileged=True).json
        self.assertEqual([(mixer["accessible"], mixer["reason"]) for mixer in shown["mixers"]],
                         [(False, reason), (False, reason)])

    def test_no_permission(self):
        self.assert_kept_away("deny", "Permission denied", RULE_HINT)

    def test_held_by_another_program(self):
        self.assert_kept_away("hold", "Device or resource busy", BUSY_HINT)

    def test_settings_are_stored_all_the_same(self):
        self.keep_away("deny")
        result = self.run_host("boost", "-10", "--json", unprivileged=True)
        self.assertEqual((result.code, result.json["sent_to"]), (7, 0))
        self.assertEqual([mixer["result"] for mixer in result.json["mixers"]],
                         ["no_permission", "no_permission"])
        self.assertEqual(self.stored(), {"MaxLevel": 1})


if __name__ == "__main__":
    unittest.main()
