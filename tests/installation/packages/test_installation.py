"""Installs the Debian packages in a minimal Debian, uses what they promise, and removes them again."""

import gzip
import os
import plistlib
import re
import unittest

import debian_root
import package_files
from package_files import DEVELOPMENT, LIBRARY, NAMES, SETUP, SIMULATOR, TOOLS

VERSION = os.environ["VERSION"]
TRIPLET = os.environ["TRIPLET"]
LANGUAGES = ["Dutch", "English", "French", "German", "Italian", "Japanese", "Spanish", "ko", "pt", "ru",
             "zh_CN", "zh_TW"]
FRAMEWORK = "usr/share/orvikaudio/Library/Frameworks/TRX-SELVASetup.framework"
SETUP_INFO = "usr/share/orvikaudio/Applications/Orvik/TRX-SELVA/TRX-SELVA Setup.app/Contents/Info.plist"
DOCUMENTATION = f"usr/share/doc/{DEVELOPMENT}"

FILES = {
    LIBRARY: [
        f"usr/lib/{TRIPLET}/libTRX-SELVASetup.so.1",
        "usr/lib/udev/rules.d/70-trx-selva.rules",
        "usr/share/orvikaudio/System/Library/CoreServices/SystemVersion.plist",
        "usr/share/orvikaudio/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist",
        f"{FRAMEWORK}/Resources/Info.plist",
        *[f"{FRAMEWORK}/Resources/{language}.lproj/Localizable.strings" for language in LANGUAGES]],
    DEVELOPMENT: [
        "usr/include/TRX-SELVASetup/TRX-SELVASetup.h",
        "usr/include/TRX-SELVASetup/Diagnostics.h",
        "usr/include/TRX-SELVASetup/EventLoop.h",
        f"usr/lib/{TRIPLET}/libTRX-SELVASetup.so",
        f"usr/lib/{TRIPLET}/pkgconfig/TRX-SELVASetup.pc",
        f"usr/lib/{TRIPLET}/cmake/TRX-SELVASetup/TRX-SELVASetupConfig.cmake",
        f"usr/lib/{TRIPLET}/cmake/TRX-SELVASetup/TRX-SELVASetupConfigVersion.cmake",
        f"{DOCUMENTATION}/README.md",
        f"{DOCUMENTATION}/docs/host-writers.md",
        f"{DOCUMENTATION}/docs/examples/poll-host.c",
        f"{DOCUMENTATION}/html/index.html",
        f"{DOCUMENTATION}/html/TRX-SELVASetup_8h.html"],
    TOOLS: [
        "usr/bin/trxctl",
        "usr/lib/udev/rules.d/71-trx-reapply.rules",
        "usr/lib/systemd/user/trx-reapply@.service",
        "usr/lib/systemd/user/trx-reapply@.path",
        "usr/lib/systemd/system/trx-resume.service",
        "usr/libexec/trx-selva/trx-resume",
        "usr/share/man/man1/trxctl.1.gz",
        "usr/share/bash-completion/completions/trxctl",
        "usr/share/zsh/vendor-completions/_trxctl",
        "usr/share/fish/vendor_completions.d/trxctl.fish"],
    SETUP: [
        "usr/bin/trx-setup",
        "usr/share/man/man1/trx-setup.1.gz",
        "usr/share/applications/trx-setup.desktop",
        "usr/share/metainfo/com.orvikaudio.TrxSetup.metainfo.xml",
        "usr/share/icons/hicolor/scalable/apps/trx-setup.svg",
        SETUP_INFO],
    SIMULATOR: [
        "usr/bin/trx-mixer-sim",
        "usr/bin/trx-mixer-ctl",
        "usr/share/man/man1/trx-mixer-sim.1.gz",
        "usr/share/man/man1/trx-mixer-ctl.1.gz"],
}


class PackagesTest(unittest.TestCase):
    def setup_program(self):
        """The program that the installation calls its setup application."""
        return plistlib.loads((self.root.path / SETUP_INFO).read_bytes())["CFBundleExecutable"]


class Installed(PackagesTest):
    @classmethod
    def setUpClass(cls):
        cls.root = debian_root.DebianRoot("minimal")
        cls.addClassCleanup(cls.root.remove)
        cls.root.install(package_files.files(*NAMES))

    def said(self, *command):
        return self.root.run(*command).stdout

    def files_of(self, package):
        """The files of a package; dpkg also says which of them another package diverts."""
        return [line for line in self.said("dpkg", "--listfiles", package).splitlines() if line.startswith("/")]

    def test_every_promised_file_is_there_and_belongs_to_its_package(self):
        for package, files in FILES.items():
            owned = self.said("dpkg", "--listfiles", package).splitlines()
            for file in files + [f"usr/share/doc/{package}/copyright", f"usr/share/doc/{package}/changelog.gz"]:
                with self.subTest(package=package, file=file):
                    self.assertTrue((self.root.path / file).is_file())
                    self.assertIn(f"/{file}".replace("Resources/", "Versions/A/Resources/")
                                  if FRAMEWORK in file else f"/{file}", owned)

    def test_every_file_belongs_to_root_and_nobody_else_may_change_it(self):
        for package in NAMES:
            for file in self.files_of(package)[1:]:
                about = (self.root.path / file[1:]).lstat()
                with self.subTest(file=file):
                    self.assertEqual((about.st_uid, about.st_gid), (0, 0))
                    if not (self.root.path / file[1:]).is_symlink():
                        self.assertEqual(about.st_mode & 0o022, 0)

    def test_files_are_as_they_were_packed(self):
        self.assertEqual(self.said("dpkg", "--verify", *NAMES), "")

    def test_the_changelog_begins_with_this_version(self):
        for package in NAMES:
            with gzip.open(self.root.path / f"usr/share/doc/{package}/changelog.gz", "rt") as changelog:
                self.assertRegex(changelog.readline(), rf"^trx-selvasetup \({re.escape(VERSION)}\) ")

    def test_trxctl_tells_its_version(self):
        self.assertEqual(self.said("trxctl", "--version"), f"trxctl {VERSION}\n")

    def test_versions_are_read_from_the_built_in_system_root(self):
        self.assertEqual(self.said("trxctl", "versions"),
                         "TRX-SELVA versions\n"
                         f"  package             {VERSION}\n"
                         "  driver              not installed (Linux needs none)\n"
                         f"  setup application   {VERSION}\n"
                         f"  library             {VERSION}\n")

    def test_the_setup_application_is_trx_setup(self):
        self.assertEqual(self.setup_program(), "trx-setup")

    def test_the_window_opens_and_asks_the_mixer(self):
        # No desktop, no session bus, no folder of the user's own: the window has to do without.
        said = self.said("trx-mixer-sim", "--", "sh", "-ec", "QT_QPA_PLATFORM=offscreen trx-setup & window=$!; "
                         "until trx-mixer-ctl log | grep 'firmware'; do kill -0 $window; sleep 0.1; done; kill $window")
        self.assertIn("unit 1  IN ", said)

    def test_menu_entry_and_icon_name_what_is_installed(self):
        entry = (self.root.path / "usr/share/applications/trx-setup.desktop").read_text(encoding="utf-8")
        self.assertIn("\nExec=trx-setup\n", entry)
        self.assertIn("\nIcon=trx-setup\n", entry)

    def test_software_centres_show_this_version(self):
        described = (self.root.path / "usr/share/metainfo/com.orvikaudio.TrxSetup.metainfo.xml").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r'<release version="([^"]+)"', described)[0], VERSION)

    def test_a_mixer_is_set_without_anything_from_elsewhere(self):
        self.root.run("mkdir", "--mode=1777", "--parents", "/tmp/home")
        said = self.said("trx-mixer-sim", "--units", "2", "--", "trxctl", "boost", "-10")
        self.assertIn("Sent to 2 of 2 connected mixers.\n", said)

    def test_the_library_is_the_only_one_of_its_name_that_the_linker_knows(self):
        known = re.findall(r"libTRX-SELVASetup.* => (\S+)", self.said("ldconfig", "--print-cache"))
        self.assertEqual(known, [f"/lib/{TRIPLET}/libTRX-SELVASetup.so.1", f"/lib/{TRIPLET}/libTRX-SELVASetup.so"])

    def test_development_files_go_with_the_very_same_library_only(self):
        depends = self.said("dpkg-query", "--show", "--showformat=${Depends}", DEVELOPMENT)
        self.assertEqual(depends, f"{LIBRARY} (= {VERSION})")

    def test_libraries_of_two_architectures_may_be_installed_together(self):
        for package in (LIBRARY, DEVELOPMENT):
            self.assertEqual(
                self.said("dpkg-query", "--show", "--showformat=${Multi-Arch}", package), "same")


class Removed(PackagesTest):
    def setUp(self):
        self.root = debian_root.DebianRoot("minimal")
        self.addCleanup(self.root.remove)

    def installed_packages(self):
        return self.root.run("dpkg-query", "--show", "--showformat=${Package} ${db:Status-Status}\\n").stdout

    def test_packages_leave_nothing_behind(self):
        packages, contents = self.installed_packages(), self.root.contents()
        self.root.install(package_files.files(*NAMES))
        self.assertNotEqual(self.root.contents(), contents)
        self.root.run("trxctl", "versions")
        self.root.run("apt-get", "purge", "--yes", "--autoremove", *NAMES)
        self.assertEqual(self.installed_packages(), packages)
        left = self.root.contents()
        self.assertEqual({name: look for name, look in left.items() if contents.get(name) != look}, {})
        self.assertEqual([name for name in contents if name not in left], [])
        self.assertNotIn("TRX-SELVASetup", self.root.run("ldconfig", "--print-cache").stdout)

    def files_of_ours(self):
        return {name: look for name, look in self.root.contents().items() if re.search("trx|orvik", name, re.IGNORECASE)}

    def test_without_trx_setup_the_setup_application_is_trxctl(self):
        others = [name for name in NAMES if name != SETUP]
        self.root.install(package_files.files(*others))
        self.assertEqual(self.setup_program(), "trxctl")
        before = self.files_of_ours()
        self.root.install(package_files.files(SETUP))
        self.assertEqual(self.setup_program(), "trx-setup")
        self.root.run("apt-get", "purge", "--yes", "--autoremove", SETUP)
        self.assertEqual(self.setup_program(), "trxctl")
        self.assertEqual(self.files_of_ours(), before)
        self.assertIn(f"setup application   {VERSION}\n", self.root.run("trxctl", "versions").stdout)


if __name__ == "__main__":
    debian_root.become_root()
    unittest.main(verbosity=2)
