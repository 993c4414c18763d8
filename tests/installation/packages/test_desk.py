"""The Debian packages in use: an unprivileged user builds hosts in C and C++ with them and runs them on software mixers; shells,
man and udev find their files."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

import debian_root
import package_files

PROJECT = pathlib.Path(os.environ["PROJECT"])
VERSION = os.environ["VERSION"]
WARNINGS = "-Wall -Wextra -Wpedantic -Werror"
USER = "dj"

MIXER = "/sys/devices/pci0000:00/0000:00:14.0/usb1/1-1"


class Desk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = debian_root.DebianRoot("desk")
        cls.addClassCleanup(cls.root.remove)
        cls.root.install(package_files.files(*package_files.NAMES))
        cls.root.run("useradd", "--create-home", "--home-dir", "/tmp/home", USER)
        sources = cls.root.path / "tmp/consumer"
        shutil.copytree(PROJECT / "tests/installation/packages/consumer", sources)
        subprocess.run([sys.executable, "-B", PROJECT / "tests/installation/hosts/extract_example.py",
                        PROJECT / "README.md", sources / "host.c"], check=True)
        cls.root.run("chown", "--recursive", USER, "/tmp/consumer")

    def as_user(self, script):
        """The output of a shell script that the user runs."""
        return self.root.run("sh", "-ec", script, user=USER).stdout

    def with_a_mixer(self, host):
        """What a host prints that is run with a mixer, and what crossed the wire."""
        said = self.as_user(f"rm -rf /tmp/home/.config; cd /tmp/home; dbus-run-session -- "
                            f"trx-mixer-sim --wire-log /tmp/home/wire -- {host} 2>/tmp/home/errors; cat wire")
        return re.sub(r"  ->.*", "", said).splitlines()

    def test_a_host_in_c_is_built_by_pkg_config(self):
        self.as_user("cd /tmp/consumer; mkdir -p by-pkg-config; "
                     f"cc -std=c11 {WARNINGS} -o by-pkg-config/host-in-c host.c "
                     "$(pkg-config --cflags --libs TRX-SELVASetup)")
        self.assertEqual(self.with_a_mixer("/tmp/consumer/by-pkg-config/host-in-c"), [
            "boost level is now -10 dB",
            "unit 1  OUT  40 03  wValue 0200  wIndex 8003  wLength 0"])

    def test_a_host_in_cxx_is_built_by_pkg_config(self):
        self.as_user("cd /tmp/consumer; mkdir -p by-pkg-config; "
                     f"c++ -std=c++17 {WARNINGS} -o by-pkg-config/host-in-c++ host.cpp "
                     "$(pkg-config --cflags --libs TRX-SELVASetup)")
        self.assertEqual(self.with_a_mixer("/tmp/consumer/by-pkg-config/host-in-c++ 0"), [
            "boost level is now -5 dB",
            "unit 1  OUT  40 03  wValue 0300  wIndex 8003  wLength 0"])

    def test_hosts_in_both_languages_are_built_by_find_package(self):
        self.as_user(f"cmake -S /tmp/consumer -B /tmp/consumer/by-cmake -DCMAKE_C_FLAGS='{WARNINGS}' "
                     f"-DCMAKE_CXX_FLAGS='{WARNINGS}'; cmake --build /tmp/consumer/by-cmake")
        self.assertEqual(self.with_a_mixer("/tmp/consumer/by-cmake/host-in-c"), [
            "boost level is now -10 dB",
            "unit 1  OUT  40 03  wValue 0200  wIndex 8003  wLength 0"])
        self.assertEqual(self.with_a_mixer("/tmp/consumer/by-cmake/host-in-c++ 3"), [
            "boost level is now -19 dB",
            "unit 1  OUT  40 03  wValue 0000  wIndex 8003  wLength 0"])

    def test_another_major_version_is_not_taken_for_this_one(self):
        (self.root.path / "tmp/consumer/later").mkdir()
        (self.root.path / "tmp/consumer/later/CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(later LANGUAGES C)\n"
            "find_package(TRX-SELVASetup 2.0 REQUIRED)\n")
        tried = self.root.run("cmake", "-S", "/tmp/consumer/later", "-B", "/tmp/later", check=False)
        self.assertNotEqual(tried.returncode, 0)
        self.assertIn(f"TRX-SELVASetupConfig.cmake, version: {VERSION}", tried.stdout)

    def test_man_shows_the_pages(self):
        for program in ("trxctl", "trx-setup", "trx-mixer-sim", "trx-mixer-ctl"):
            shown = self.as_user(f"man {program}")
            self.assertRegex(shown, rf"(?m)^NAME\n +{program} [-–—]+ \w")

    def test_bash_completes_what_it_loads_by_itself(self):
        said = self.root.run("bash", "-c", ". /usr/share/bash-completion/bash_completion; "
                             "_completion_loader trxctl; complete -p trxctl", user=USER, check=False).stdout
        self.assertRegex(said, r"^complete .*-F \w+ .*trxctl\n$")

    def test_udev_lets_the_user_at_the_desk_open_a_mixer(self):
        said = self.root.run("trx-mixer-sim", "--", "udevadm", "test", MIXER).stdout
        self.assertIn("Reading rules file: /usr/lib/udev/rules.d/70-trx-selva.rules", said)
        self.assertNotRegex(said, r"70-trx-selva\.rules:\d+ (Invalid|Unknown)")
        self.assertRegex(said, r"(?m)^CURRENT_TAGS=.*:uaccess:")

    def test_udev_has_the_users_manager_send_what_is_stored(self):
        said = self.root.run("trx-mixer-sim", "--", "udevadm", "test", f"{MIXER}/1-1:1.0").stdout
        self.assertNotRegex(said, r"71-trx-reapply\.rules:\d+ (Invalid|Unknown)")
        self.assertRegex(said, r"(?m)^CURRENT_TAGS=.*:systemd:")
        self.assertRegex(said, r"(?m)^SYSTEMD_USER_WANTS=trx-reapply@\.service$")
        for other in (MIXER, f"{MIXER}/1-1:1.1"):
            said = self.root.run("trx-mixer-sim", "--", "udevadm", "test", other).stdout
            self.assertNotIn("SYSTEMD_USER_WANTS", said, other)


if __name__ == "__main__":
    debian_root.become_root()
    unittest.main(verbosity=2)
