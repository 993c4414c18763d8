"""trxctl autoapply: sending at plug-in, turned off and on."""

import unittest

from host import HostTest

WHY = "there is no systemd user manager in this session, and it is what starts the sending"


class AutoApply(HostTest):
    def off_file(self):
        return self.config / "orvikaudio/Preferences/com.orvikaudio.autoapply-off"

    def test_is_on_unless_turned_off(self):
        self.assertEqual(self.done("autoapply").out.splitlines()[0],
                         "Sending the stored settings when a mixer is plugged in: on")
        self.assertFalse((self.config / "orvikaudio").exists())

    def test_off_and_on(self):
        for _ in range(2):
            self.assertEqual(self.done("autoapply", "off").out.splitlines()[0],
                             "Sending the stored settings when a mixer is plugged in: off")
            self.assertTrue(self.off_file().is_file())
        for _ in range(2):
            self.assertIn("plugged in: on\n", self.done("autoapply", "on").out)
            self.assertFalse(self.off_file().exists())

    def test_off_holds_for_a_run(self):
        self.store({"MaxLevel": 1})
        self.done("autoapply", "off")
        said = self.done("reapply", "--plugged", "/sys/bus/usb/devices/1-1").out
        self.assertIn(": nothing was sent: sending at plug-in is turned off\n", said)
        self.assert_nothing_sent()
        self.done("autoapply", "on")
        self.done("reapply", "--plugged", "/sys/bus/usb/devices/1-1")
        self.assertEqual(self.levels_sent(), [(1, "0200")])

    def test_off_leaves_what_a_user_asks_for(self):
        self.store({"MaxLevel": 1})
        self.done("autoapply", "off")
        self.done("reapply")
        self.assertEqual(self.levels_sent(), [(1, "0200"), (2, "0200")])

    def test_says_why_it_cannot_work(self):
        self.assertIn(f"It cannot work here: {WHY}.\n", self.done("autoapply").out)

    def test_says_so_without_a_bus_too(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.config}/none"
        self.assertIn(f"It cannot work here: {WHY}.\n", self.done("autoapply").out)

    def test_json(self):
        self.assertEqual(self.done("autoapply", "off", "--json").json,
                         {"on": False, "works": False, "obstacle": WHY, "last_run": None})

    def test_other_words_are_refused(self):
        self.assert_fails(2, ["autoapply", "maybe"], '"maybe" is neither on nor off',
                          "write trxctl autoapply on, or trxctl autoapply off")

    def test_choice_that_cannot_be_stored(self):
        (self.config / "orvikaudio").write_text("no folder")
        self.assert_fails(8, ["autoapply", "off"], "the choice could not be stored: Not a directory",
                          "trxctl diagnose tells what is wrong and what to do")

    def test_diagnose_tells_the_state(self):
        def check():
            checks = self.done("diagnose", "--json").json["checks"]
            return [one for one in checks if one["check"] == "autoapply"]

        self.assertEqual(check(), [{"check": "autoapply", "ok": True,
                                    "message": f"sending at plug-in does not work here: {WHY}"}])
        self.done("autoapply", "off")
        self.assertEqual(check(), [{"check": "autoapply", "ok": True,
                                    "message": "sending at plug-in is turned off"}])

    def test_completion(self):
        self.assertEqual(self.done("complete", "autoapply", "").out, "off\non\n")


if __name__ == "__main__":
    unittest.main()
