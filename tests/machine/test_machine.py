"""What only a whole machine shows: the installed packages at work with systemd, udev, logind and users who log in.

All cases share one machine, in the order of their names; each begins without mixers and with nothing stored."""

import os
import pathlib
import re
import sys
import time
import unittest

import machine

LOGS = pathlib.Path(os.environ.get("MACHINE_LOGS", "."))
PACKAGES = pathlib.Path(os.environ["PACKAGES"])

WIRE = re.compile(r"unit (\d+) +OUT .* wValue ([0-9a-f]{4}) .*  (\S[^\d\n]*)$", re.M)
BOOST = "USB output level"
SENT = "sent boost level -10 dB"


class Machine(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.box = machine.Machine(sorted(PACKAGES.glob("*.deb")), LOGS / "console.log")
        cls.addClassCleanup(cls.box.end)
        cls.wait_for_login("dj")
        cls.box.install_packages()
        # It is still there when its package is gone.
        cls.box.run("cp /usr/bin/trx-mixer-ctl /root/ctl; "
                    "systemd-run --unit=mixers --property=Environment=HOME=/root trx-mixer-sim --usbip --units 0")
        cls.box.wait_for("/root/ctl units", "the software mixers")

    # --- What happens on the desk -----------------------------------------------------------------------------------

    def setUp(self):
        self.unplug_all()
        self.box.run("rm -rf /home/*/.config; /root/ctl log clear")
        self.settle()
        self.before = {user: len(self.all_lines(user)) for user in ("dj", "eva", "remote")}

    def unplug_all(self):
        for row in self.units():
            if row[3] == "plugged":
                self.box.run(f"/root/ctl unplug {row[0]}")

    def units(self):
        return [line.split() for line in self.box.run("/root/ctl units").splitlines()]

    def plug(self, kind="TRX-SELVA"):
        """Plugs in a new mixer, and gives its number."""
        return int(self.box.run(f"/root/ctl plug {kind}").split()[0])

    def address(self, unit):
        """Where a plugged unit is, such as 001/004."""
        return next(row[4] for row in self.units() if row[0] == str(unit))

    def folder(self, unit):
        """The folder of a plugged unit below /sys."""
        bus, address = self.address(unit).split("/")
        return self.box.run("grep -lx " + str(int(address)) + " $(grep -lx " + str(int(bus)) +
                            " /sys/bus/usb/devices/*/busnum | sed s/busnum/devnum/)").rpartition("/")[0]

    def sent(self, request=BOOST):
        """The values that mixers were sent by requests of a name: which mixer, which value; by mixer."""
        return sorted((int(unit), value) for unit, value, name in WIRE.findall(self.box.run("/root/ctl log"))
                      if name == request)

    def described(self, unit):
        bus, address = self.address(unit).split("/")
        return f"TRX-SELVA (bus {int(bus)}, address {int(address)}), serial SIM{unit:05}"

    # --- What users do and see --------------------------------------------------------------------------------------

    @classmethod
    def wait_for_login(cls, user):
        cls.box.wait_for(f"test -S /run/user/$(id -u {user})/bus && systemctl is-active user@$(id -u {user})",
                         f"{user} to be logged in")

    def store(self, user="dj", level=2):
        self.box.run_as(user, f"trxctl boost {level}")
        self.box.run("/root/ctl log clear")

    def all_lines(self, user):
        return self.box.run(f"journalctl --quiet --output=cat --identifier=trx-reapply _UID=$(id -u {user})").splitlines()

    def settle(self):
        """Waits until nothing is left to be started."""
        self.box.run("udevadm settle")
        for user in ("dj", "eva", "remote"):
            if self.box.tried(f"systemctl is-active --quiet user@$(id -u {user})")[0] == 0:
                self.box.wait_for(f"runuser -u {user} -- env XDG_RUNTIME_DIR=/run/user/$(id -u {user}) "
                                  "systemctl --user list-jobs | grep 'No jobs'", f"{user}'s manager to have nothing to do")

    def runs(self, count, user="dj"):
        """The lines about all runs of this case, which must be so many."""
        if count:
            end = time.monotonic() + machine.PATIENCE
            while len(self.all_lines(user)) < self.before[user] + count and time.monotonic() < end:
                time.sleep(0.2)
        self.settle()
        lines = self.all_lines(user)[self.before[user]:]
        self.assertEqual(len(lines), count, lines)
        return lines

    def assert_reapplied(self, *units, user="dj", value="0200", text=SENT):
        """Each of the units has got what is stored, once, with one line."""
        self.assertEqual(sorted(self.runs(len(units), user)),
                         sorted(f"{self.described(unit)}: {text}" for unit in units))
        self.assertEqual(self.sent(), [(unit, value) for unit in units])
        self.box.run("/root/ctl log clear")
        self.before[user] += len(units)

    def log_out(self):
        self.box.run("systemctl stop getty@tty1; loginctl terminate-user dj || true")
        self.box.wait_for("! systemctl is-active --quiet user@$(id -u dj)", "dj to be logged out")

    def log_in(self):
        self.box.run("systemctl start getty@tty1")
        self.wait_for_login("dj")

    # --- The right to open a mixer ----------------------------------------------------------------------------------

    def test_access_is_the_seats(self):
        unit = self.plug()
        self.settle()
        self.assertIn("user:dj:rw-", self.box.run(f"getfacl /dev/bus/usb/{self.address(unit)}"))
        self.box.run_as("dj", "trxctl boost 2")
        self.assertEqual(self.sent(), [(unit, "0200")])
        status, said = self.box.tried_as("eva", "trxctl boost --again")
        self.assertEqual((status, said), (
            7, f"trxctl: error: nothing was sent: {self.described(unit)}, may not be opened (Permission denied)\n"
               "hint: the udev rule that comes with the library lets the user at the desk open mixers; "
               "trxctl diagnose tells what to type\n"))
        self.assertEqual(self.sent(), [(unit, "0200")])

    def test_audio_driver_stays_bound(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        self.assertEqual(self.box.run(f"basename $(readlink {self.folder(unit)}/*:1.0/driver)"), "snd-usb-audio\n")

    # --- Sent again, once for each reason ---------------------------------------------------------------------------

    def test_reapply_at_plug_in(self):
        self.store()
        self.assert_reapplied(self.plug())

    def test_reapply_at_each_plug_in(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        for _ in range(2):
            self.box.run(f"/root/ctl unplug {unit}")
            self.settle()
            self.box.run(f"/root/ctl replug {unit}")
            self.assert_reapplied(unit)

    def test_reapply_after_a_power_cycle(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        address = self.address(unit)
        self.box.run(f"/root/ctl unplug {unit}; /root/ctl replug {unit}")
        self.assertNotEqual(self.address(unit), address)
        self.assert_reapplied(unit)

    def test_reapply_to_two_at_once(self):
        self.store()
        first, second = self.plug(), self.plug()
        self.assert_reapplied(first, second)

    def test_reapply_after_two_come_back_at_once(self):
        self.store()
        units = self.plug(), self.plug()
        self.assert_reapplied(*units)
        self.box.run(" ".join(f"/root/ctl unplug {unit};" for unit in units))
        self.settle()
        self.box.run(" ".join(f"/root/ctl replug {unit} &" for unit in units) + " wait")
        self.assert_reapplied(*units)

    def test_reapply_at_login(self):
        self.store()
        self.log_out()
        unit = self.plug()
        self.log_in()
        self.assert_reapplied(unit)
        self.log_out()
        self.log_in()
        self.assert_reapplied(unit)

    def test_reapply_after_the_system_forbids_and_allows(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        folder = self.folder(unit)
        self.box.run(f"echo 0 >{folder}/authorized; udevadm settle")
        self.box.run(f"echo 1 >{folder}/authorized")
        self.assert_reapplied(unit)

    def test_reapply_after_a_suspend(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        # The virtual host controller refuses to sleep, as it has a mixer; all that runs before and after a suspend does run.
        self.box.tried("systemctl suspend")
        self.assert_reapplied(unit)

    def test_reapply_once_the_user_has_the_seat(self):
        self.box.run_as("eva", "trxctl boost 3")
        unit = self.plug()
        self.runs(1)
        self.before["dj"] += 1
        self.box.run("systemctl start getty@tty2")
        self.addCleanup(self.box.run, "systemctl stop getty@tty2; loginctl terminate-user eva")
        self.addCleanup(self.box.run, "loginctl activate $(loginctl list-sessions --no-legend | awk '$3 == \"dj\" {print $1; exit}')")
        self.wait_for_login("eva")
        self.assertEqual(self.runs(1, "eva"), [
            f"{self.described(unit)}: nothing was sent: it may not be opened (Permission denied)"])
        self.before["eva"] += 1
        self.box.run("loginctl activate $(loginctl list-sessions --no-legend | awk '$3 == \"eva\" {print $1; exit}')")
        self.assert_reapplied(unit, user="eva", value="0100", text="sent boost level -15 dB")

    def test_user_without_a_seat_is_told_once(self):
        self.box.run_as("remote", "trxctl boost 2")
        unit = self.plug()
        self.settle()
        for number in (1, 2):
            self.box.run(f"systemd-run --unit=remote-{number} --property=PAMName=login --uid=remote sleep infinity")
            self.addCleanup(self.box.run, f"systemctl stop remote-{number}")
            self.wait_for_login("remote")
        self.assertEqual(self.runs(1, "remote"), [
            f"{self.described(unit)}: nothing was sent: mixers are for the user at the machine, and this user is not"])
        self.assertEqual(self.box.run_as("remote", "systemctl --user list-units --failed --no-legend 'trx-*'"), "")
        self.assertEqual(self.sent(), [])

    def test_reapply_of_nothing_stored(self):
        unit = self.plug()
        self.assertEqual(self.runs(1), [
            f"{self.described(unit)}: nothing was sent: this user has stored nothing for TRX-SELVA"])
        self.assertEqual(self.sent(), [])

    def test_reapply_turned_off(self):
        self.store()
        self.assertIn("plugged in: off\n", self.box.run_as("dj", "trxctl autoapply off"))
        unit = self.plug()
        # Else the result is "no" from the beginning.
        self.box.wait_for("runuser -u dj -- env XDG_RUNTIME_DIR=/run/user/$(id -u dj) systemctl --user show --all "
                          "--property=ConditionTimestampMonotonic 'trx-reapply@*.service' | grep 'Monotonic=[1-9]'",
                          "the condition of the unit to be looked at")
        self.assertEqual((self.runs(0), self.sent()), ([], []))
        self.box.run_as("dj", "trxctl autoapply on")
        self.box.run(f"/root/ctl unplug {unit}; /root/ctl replug {unit}")
        self.assert_reapplied(unit)

    # --- What it says about itself ----------------------------------------------------------------------------------

    def test_state_and_last_run(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        lines = self.box.run_as("dj", "trxctl autoapply").splitlines()
        self.assertEqual(lines[0], "Sending the stored settings when a mixer is plugged in: on")
        self.assertRegex(lines[1], rf"^Last run: \S+ \S+  {re.escape(self.described(unit))}: {SENT}$")
        self.assertEqual(len(lines), 2)
        said = self.box.run_as("dj", "trxctl diagnose")
        self.assertTrue(said.endswith("ok       autoapply: a mixer that is plugged in gets the stored settings\n"), said)

    def test_diagnose_names_what_is_missing(self):
        for file, message in (
                ("/usr/lib/systemd/user/trx-reapply@.service", "the unit trx-reapply@.service is not installed"),
                ("/usr/lib/udev/rules.d/71-trx-reapply.rules", "the udev rule 71-trx-reapply.rules is not installed")):
            self.box.run(f"mv {file} /root/aside")
            _, said = self.box.tried_as("dj", "trxctl diagnose")
            self.box.run(f"mv /root/aside {file}")
            self.assertIn(f"problem  autoapply: sending at plug-in cannot work: {message}\n", said)

    def test_watch_sees_plug_and_unplug(self):
        self.box.run("rm -f /run/watched; systemd-run --unit=watch --collect --uid=dj --property=StandardOutput=file:/run/watched "
                     "--setenv=XDG_RUNTIME_DIR=/run/user/$(id -u dj) --setenv=HOME=/home/dj trxctl watch --json")
        self.addCleanup(self.box.run, "systemctl stop watch")
        self.box.wait_for("grep '\"watching\"' /run/watched", "the watch to begin")
        unit = self.plug()
        bus, address = map(int, self.address(unit).split("/"))
        place = f'"product":"TRX-SELVA","bus":{bus},"address":{address},"serial":"SIM{unit:05}"'
        self.box.wait_for(f"grep -F '{{\"event\":\"plugged\",{place}}}' /run/watched", "the plug to be seen")
        self.box.run(f"/root/ctl unplug {unit}")
        self.box.wait_for(f"grep -F '{{\"event\":\"unplugged\",{place}}}' /run/watched", "the unplug to be seen")

    def test_setup_application_opens_its_window_and_follows(self):
        self.box.run("systemd-run --unit=display --collect --uid=dj Xvfb :9 -screen 0 1280x1024x24")
        self.addCleanup(self.box.run, "systemctl stop display")
        self.box.wait_for("test -S /tmp/.X11-unix/X9", "the display")
        self.box.run("systemd-run --unit=window --collect --uid=dj --setenv=DISPLAY=:9 --setenv=HOME=/home/dj "
                     "--setenv=XDG_RUNTIME_DIR=/run/user/$(id -u dj) --setenv=LC_ALL=C.UTF-8 trx-setup")
        self.addCleanup(self.box.run, "systemctl stop window")
        self.box.wait_for("runuser -u dj -- env DISPLAY=:9 xwininfo -root -tree | grep 'TRX Setup'", "the window")
        self.assertNotIn(" IN ", self.box.run("/root/ctl log"))
        unit = self.plug()
        # It asks the mixer that it sees.
        self.box.wait_for(f"/root/ctl log | grep '^unit {unit} '", "the window to see the mixer")
        self.assertEqual(self.box.run("systemctl is-active window"), "active\n")

    # --- The end ----------------------------------------------------------------------------------------------------

    def test_zz_removed_packages_leave_nothing(self):
        self.store()
        unit = self.plug()
        self.assert_reapplied(unit)
        self.box.run("dpkg --purge $(for file in /packages/*.deb; do dpkg-deb --field $file Package; done)")
        self.box.run(f"/root/ctl unplug {unit}")
        self.settle()
        # The system's own rules name links after the sound card, and udev forgets them some time after the mixer has gone.
        self.assertEqual(self.box.run("find /usr /etc /run/systemd /run/udev /var/lib/systemd /var/lib/dpkg/info "
                                      "-path /run/udev/links -prune -o '(' -iname '*trx*' -o -iname '*orvik*' ')' -print"), "")
        self.box.run(f"/root/ctl replug {unit}")
        self.assertEqual((self.runs(0), self.sent()), ([], []))
        self.assertEqual(self.box.run_as("dj", "systemctl --user daemon-reload; "
                                               "systemctl --user list-units --all --no-legend 'trx-*'"), "")
        self.assertNotIn("user:dj", self.box.run(f"getfacl /dev/bus/usb/{self.address(unit)}"))


def main():
    begin = time.monotonic()
    program = unittest.main(verbosity=2, exit=False, argv=[sys.argv[0], *sys.argv[1:]])
    result = program.result
    failed = len(result.failures) + len(result.errors)
    summary = (f"On a whole Debian in QEMU: {result.testsRun} cases in {time.monotonic() - begin:.0f} s, "
               f"{'all passed' if not failed else f'{failed} FAILED'}\n")
    (LOGS / "summary.txt").write_text(summary, encoding="utf-8")
    print(summary, end="")
    return 0 if result.wasSuccessful() and result.testsRun else 1


if __name__ == "__main__":
    sys.exit(main())
