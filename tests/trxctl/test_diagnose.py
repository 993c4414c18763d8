"""trxctl diagnose: every problem provoked for real."""

import os
import pathlib
import plistlib
import signal
import unittest

from host import TRXCTL, HostTest

NOBODY = 65534
RULE = "70-trx-selva.rules"
RULE_FOLDERS = ["/etc/udev/rules.d", "/run/udev/rules.d", "/usr/local/lib/udev/rules.d",
                "/usr/lib/udev/rules.d", "/lib/udev/rules.d"]
RELOAD = "sudo udevadm control --reload && sudo udevadm trigger"


class Diagnose(HostTest):
    def diagnose(self, code, *words, **options):
        """The checks by name; of several of a name the first that has a problem."""
        result = self.run_host("diagnose", "--json", *words, **options)
        self.assertEqual((result.code, result.err), (code, ""), result)
        self.assertEqual((result.json["code"], result.json["ok"]), (code, code == 0))
        checks = {}
        for check in result.json["checks"]:
            self.assertEqual(check["ok"], "hint" not in check)
            if checks.setdefault(check["check"], check)["ok"]:
                checks[check["check"]] = check
        return checks

    def assert_problem(self, check, kind, message, hint):
        self.assertEqual((check["ok"], check["kind"]), (False, kind), check)
        self.assertIn(message, check["message"])
        self.assertIn(hint, check["hint"])

    def as_nobody(self):
        """Options that run trxctl as an ordinary user."""
        self.config.chmod(0o755)
        if os.geteuid() != 0:
            return {}
        return {"user": NOBODY, "group": NOBODY, "extra_groups": []}

    def test_all_well(self):
        result = self.done("diagnose")
        names = [line.split(":")[0] for line in result.out.splitlines()]
        self.assertEqual(names, ["ok       USB", "ok       maker", "ok       mixer",
                                 "ok       node", "ok       access", "ok       node",
                                 "ok       access", "ok       answer", "ok       session bus",
                                 "ok       Preferences folder", "ok       settings files",
                                 "ok       installation", "ok       autoapply"])
        self.assertEqual(set(self.diagnose(0)), {
            "USB", "maker", "mixer", "node", "access", "answer", "session bus",
            "Preferences folder", "settings files", "installation", "autoapply"})

    def test_problem_is_a_line_with_what_to_do(self):
        self.unplug_all()
        result = self.run_host("diagnose")
        self.assertEqual((result.code, result.err), (4, ""))
        self.assertIn("problem  mixer: no mixer is connected\n"
                      "  hint: connect a mixer by USB, switch it on, and try another cable or port\n",
                      result.out)

    def test_changes_nothing(self):
        self.done("diagnose")
        self.assertNotIn(" OUT ", self.mixer("log"))
        self.assertFalse((self.config / "orvikaudio").exists())

    def test_system_that_shows_no_usb(self):
        (self.config / "sys").mkdir()
        self.env["UMOCKDEV_DIR"] = str(self.config)
        checks = self.diagnose(1)
        self.assert_problem(checks["USB"], "failed", "/sys/bus/usb/devices cannot be read",
                            "a container needs its /sys")
        self.assertNotIn("mixer", checks)

    def test_system_without_any_usb_device(self):
        (self.config / "sys/bus/usb/devices").mkdir(parents=True)
        self.env["UMOCKDEV_DIR"] = str(self.config)
        self.assert_problem(self.diagnose(1)["USB"], "failed", "no USB device at all",
                            "switched on in the firmware")

    def test_no_mixer(self):
        self.unplug_all()
        checks = self.diagnose(4)
        self.assert_problem(checks["mixer"], "no_mixer", "no mixer is connected", "switch it on")
        self.assertTrue(checks["USB"]["ok"] and checks["maker"]["ok"])
        self.assertNotIn("access", checks)

    def test_other_product_of_the_maker(self):
        self.unplug_all()
        unit = self.mixer("plug", "4f52:0020").split()[0]
        self.addCleanup(self.mixer, "unplug", unit)
        self.assert_problem(self.diagnose(4)["maker"], "no_mixer", "(4f52:0020)",
                            "connect a mixer of the TRX-SELVA family")

    def test_other_product_beside_a_mixer_is_no_problem(self):
        unit = self.mixer("plug", "4f52:0020").split()[0]
        self.addCleanup(self.mixer, "unplug", unit)
        self.assertIn("(4f52:0020)", self.diagnose(0)["maker"]["message"])

    def test_node_missing(self):
        bus, address = self.place(1)
        node = pathlib.Path(os.environ["UMOCKDEV_DIR"]) / f"dev/bus/usb/{bus:03}/{address:03}"
        aside = node.with_name("aside")
        node.rename(aside)
        self.addCleanup(aside.rename, node)
        self.assert_problem(self.diagnose(7)["node"], "no_access",
                            f"/dev/bus/usb/{bus:03}/{address:03}", "plug the mixer out and in")

    def test_refused(self):
        self.mixer("fault", 1, "refuse")
        checks = self.diagnose(7)
        self.assert_problem(checks["access"], "no_access", "No such device or address",
                            "plug the mixer out and in")
        self.assertTrue(checks["answer"]["ok"])

    def test_no_permission(self):
        self.mixer("fault", 1, "deny")
        installed = [folder for folder in RULE_FOLDERS if os.path.exists(f"{folder}/{RULE}")]
        check = self.diagnose(7, **self.as_nobody())["access"]
        self.assert_problem(check, "no_access", RULE, RELOAD)
        if installed:
            self.assertIn(f"is installed in {', '.join(installed)}", check["message"])
        else:
            self.assertIn("is not installed", check["message"])
            rule = pathlib.Path(TRXCTL).resolve().parents[1] / "packaging" / RULE
            self.assertTrue(rule.is_file())
            self.assertEqual(check["hint"], f"run: sudo cp {rule} /etc/udev/rules.d/ && {RELOAD}")

    def test_held_by_another_program(self):
        self.mixer("fault", 1, "hold")
        bus, address = self.place(1)
        self.assert_problem(self.diagnose(7, unprivileged=True)["access"], "no_access",
                            "is held by another program",
                            f"lsof /dev/bus/usb/{bus:03}/{address:03}")

    def test_no_answer(self):
        self.mixer("fault", 1, "stall")
        self.assert_problem(self.diagnose(1)["answer"], "failed",
                            f"{self.described(1)}, refuses a request",
                            "switch the mixer off and on again")

    def test_no_session_bus(self):
        self.env.pop("DBUS_SESSION_BUS_ADDRESS")
        self.env["XDG_RUNTIME_DIR"] = str(self.config)
        self.assert_problem(self.diagnose(1)["session bus"], "failed", "there is none",
                            "dbus-run-session")

    def test_session_bus_that_hangs(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self.bus_address()
        self.start_bus().send_signal(signal.SIGSTOP)
        self.assert_problem(self.diagnose(1)["session bus"], "failed", "it does not answer",
                            "log out and in again")

    def test_folder_that_may_not_be_made(self):
        options = self.as_nobody()
        self.config.chmod(0o555)
        # Nor is the bus for anybody else, so that is the first problem.
        self.assert_problem(self.diagnose(1, **options)["Preferences folder"], "not_stored",
                            f"{self.config}: Permission denied", "make that folder writable")

    def test_file_in_the_place_of_the_folder(self):
        (self.config / "orvikaudio").write_text("a file where the folder should be")
        self.assert_problem(self.diagnose(8)["Preferences folder"], "not_stored",
                            "orvikaudio: Not a directory", "remove what is in its place")

    def test_folder_that_is_there(self):
        self.store({"MaxLevel": 1})
        checks = self.diagnose(0)
        self.assertEqual(checks["Preferences folder"]["message"],
                         str(self.config / "orvikaudio/Preferences"))
        self.assertEqual(checks["settings files"]["message"], "1 file in good order")

    def test_broken_settings_file(self):
        self.store({}, "TRX-LUMEN")
        for contents in ("no property list", "<plist><array/></plist>", ""):
            self.settings_file("TRX-LUMEN").write_text(contents)
            self.assert_problem(self.diagnose(1)["settings files"], "failed",
                                "TRX-LUMENautosetup.plist: is no property list", "remove it")
        self.assertTrue(self.diagnose(0, "--model", "TRX-SELVA")["settings files"]["ok"])

    def level(self):
        """The boost level as the library answers it; 3 when nothing is stored."""
        return self.done("boost", "--json").json["current"]["index"]

    def files(self):
        return self.diagnose(0)["settings files"]["message"]

    def grow(self, size):
        """Makes the settings file that large, to the byte, and changes nothing it says."""
        contents = self.settings_file().read_bytes()
        self.settings_file().write_bytes(contents + b"\n" * (size - len(contents)))

    def test_large_list_that_the_library_reads(self):
        for size in (100_000, 4 * 1024 * 1024):
            self.store({"MaxLevel": 0})
            self.grow(size)
            self.assertEqual((self.level(), self.files()), (0, "1 file in good order"), size)

    def test_list_that_is_too_large_for_the_library(self):
        self.store({"MaxLevel": 0})
        self.grow(4 * 1024 * 1024 + 1)
        self.assertEqual(self.level(), 3)
        self.assert_keeps_from_storing("is too large for settings")

    def assert_keeps_from_storing(self, message):
        """Nothing is read from the settings file or stored, and diagnose says why."""
        before = self.settings_file().read_bytes()
        self.assertEqual(self.level(), 3)
        self.assertEqual(self.run_host("boost", "-10").code, 8)
        self.assertEqual(self.settings_file().read_bytes(), before)
        self.assert_problem(self.diagnose(1)["settings files"], "failed", message,
                            "nothing is stored in its place; remove it")

    def store_levels(self, count):
        """Stores a list with so many dictionaries and arrays in one another."""
        inner = 1
        for level in range(count - 1):
            inner = [inner] if level % 2 == 0 else {"inner": inner}
        self.store({"MaxLevel": 0, "Theirs": inner})

    def test_list_that_is_nested_as_deep_as_the_library_reads(self):
        self.store_levels(126)
        self.assertEqual((self.level(), self.files()), (0, "1 file in good order"))

    def test_list_that_is_nested_too_deeply_for_the_library(self):
        self.store_levels(127)
        self.assert_keeps_from_storing("its lists are nested too deeply for settings")

    def test_binary_list_that_the_library_reads(self):
        self.store({})
        self.settings_file().write_bytes(plistlib.dumps({"MaxLevel": 0}, fmt=plistlib.FMT_BINARY))
        self.assertEqual((self.level(), self.files()), (0, "1 file in good order"))

    def test_binary_list_that_ends_too_early(self):
        self.store({})
        self.settings_file().write_text("bplist00garbage")
        self.assertEqual(self.level(), 3)
        self.assert_problem(self.diagnose(1)["settings files"], "failed", "is no property list",
                            "remove it")

    def test_broken_list_that_is_binary_or_large(self):
        self.store({})
        for contents in (b"bplist00" + b"garbage" * 10, b"garbage" * 10_000):
            self.settings_file().write_bytes(contents)
            self.assert_problem(self.diagnose(1)["settings files"], "failed", "is no property list", "remove it")

    def test_list_that_takes_more_memory_than_settings(self):
        self.store({})
        # Each array names the next one thirty times.
        arrays = [bytes([0xAF, 0x10, 30]) + bytes([number + 2] * 30) for number in range(20)]
        objects = [bytes([0xD1, 1, 2]), b"\x51k", *arrays[1:], b"\x09"]
        offsets = [8 + sum(map(len, objects[:number])) for number in range(len(objects))]
        trailer = bytes(6) + bytes([2, 1]) + b"".join(
            number.to_bytes(8, "big") for number in (len(objects), 0, offsets[-1] + 1))
        self.settings_file().write_bytes(
            b"bplist00" + b"".join(objects) + b"".join(at.to_bytes(2, "big") for at in offsets) + trailer)
        self.assert_keeps_from_storing("is too large for settings")

    def test_default_that_is_stored_is_in_good_order(self):
        self.store({"MaxLevel": 3})
        self.assertEqual(self.files(), "1 file in good order")

    def test_stored_number_that_is_no_choice(self):
        self.store({"MaxLevel": 9})
        self.assert_problem(self.diagnose(1)["settings files"], "failed",
                            f"{self.settings_file()}: the boost level stored is 9, "
                            "which is no boost level", 'choose one: trxctl boost "-19 dB"')

    def test_probe_leaves_nothing_behind(self):
        self.store({"MaxLevel": 1})
        self.diagnose(0)
        self.assertEqual([file.name for file in self.settings_file().parent.iterdir()],
                         [self.settings_file().name])

    def test_settings_without_a_configuration_variable(self):
        self.env.pop("XDG_CONFIG_HOME")
        self.env["HOME"] = str(self.config)
        self.config /= ".config"
        self.store({"MaxLevel": 1})
        checks = self.diagnose(0)
        self.assertEqual(checks["settings files"]["message"], "1 file in good order")
        self.assertEqual(checks["Preferences folder"]["message"],
                         str(self.config / "orvikaudio/Preferences"))

    def test_settings_file_that_may_not_be_read(self):
        self.store({})
        for folder in (self.config / "orvikaudio", self.config / "orvikaudio/Preferences"):
            folder.chmod(0o777)
        self.settings_file().chmod(0)
        self.assert_problem(self.diagnose(1, **self.as_nobody())["settings files"], "failed",
                            "cannot be read: Permission denied", "readable for this user")

    def test_unreadable_settings_that_were_kept(self):
        self.store({"MaxLevel": 0, "Output1": 7})
        for folder in (self.config / "orvikaudio", self.config / "orvikaudio/Preferences"):
            folder.chmod(0o777)
        options = self.as_nobody()
        for _ in range(2):
            self.settings_file().chmod(0)
            self.run_host("boost", "-10", **options)
        file = self.settings_file()
        kept = [f"{file}.unreadable", f"{file}.unreadable-2"]
        self.assertEqual(sorted(map(str, file.parent.iterdir())), [str(file), *kept])
        self.assertEqual(self.stored(), {"MaxLevel": 1})
        self.assert_problem(self.diagnose(1, **options)["settings files"], "failed",
                            f"are kept in {kept[0]}, {kept[1]}", f"rename it to {file}")
        self.assertIn("1 file in good order", self.run_host("diagnose", **options).out)
        for name in kept:
            os.unlink(name)
        self.assertEqual(self.diagnose(0)["settings files"]["message"], "1 file in good order")

    def test_folder_in_the_place_of_a_settings_file(self):
        self.settings_file().mkdir(parents=True)
        self.assert_problem(self.diagnose(1)["settings files"], "failed", "is no file", "remove it")

    def test_nothing_installed(self):
        self.env["TRX_SYSTEM_ROOT"] = str(self.config)
        self.assert_problem(self.diagnose(1)["installation"], "failed",
                            "the version of the library are missing", "TRX_SYSTEM_ROOT")

    def test_the_first_problem_decides(self):
        self.unplug_all()
        self.env["TRX_SYSTEM_ROOT"] = str(self.config)
        self.assertFalse(self.diagnose(4)["installation"]["ok"])


if __name__ == "__main__":
    unittest.main()
