"""The framework as a Mac finds it, but for the compiled library."""

import os
import plistlib
import pathlib
import subprocess
import tempfile
import unittest

from mac_build import BUNDLE

LANGUAGES = ["Dutch", "English", "French", "German", "Italian", "Japanese", "Spanish",
             "ko", "pt", "ru", "zh_CN", "zh_TW"]
KEYS = ["WARNING", "WARNING1", "WARNING2", "WARNING3"]
RESOURCES = BUNDLE / "Versions/A/Resources"


class Layout(unittest.TestCase):
    def test_nothing_but_links_lies_outside_the_version(self):
        self.assertEqual(sorted(os.listdir(BUNDLE)),
                         ["Headers", "Modules", "Resources", "TRX-SELVASetup", "Versions"])
        self.assertEqual(sorted(os.listdir(BUNDLE / "Versions")), ["A", "Current"])
        for name in ["Headers", "Modules", "Resources", "TRX-SELVASetup"]:
            self.assertEqual(os.readlink(BUNDLE / name), "Versions/Current/" + name)
        self.assertEqual(os.readlink(BUNDLE / "Versions/Current"), "A")

    def test_version_holds_headers_modules_and_resources(self):
        version = BUNDLE / "Versions/A"
        self.assertEqual(sorted(os.listdir(version)), ["Headers", "Modules", "Resources"])
        self.assertEqual(sorted(os.listdir(version / "Headers")), ["Diagnostics.h", "TRX-SELVASetup.h"])
        self.assertEqual(os.listdir(version / "Modules"), ["module.modulemap"])
        self.assertEqual(sorted(os.listdir(RESOURCES)),
                         sorted(["Info.plist"] + [name + ".lproj" for name in LANGUAGES]))

    def test_information_names_the_bundle_and_its_versions(self):
        with open(BUNDLE / "Resources/Info.plist", "rb") as file:
            self.assertEqual(plistlib.load(file), {
                "CFBundleDevelopmentRegion": "English",
                "CFBundleExecutable": "TRX-SELVASetup",
                "CFBundleIdentifier": "com.orvikaudio.TRX-SELVASetup",
                "CFBundleInfoDictionaryVersion": "6.0",
                "CFBundleName": "TRX-SELVASetup",
                "CFBundlePackageType": "FMWK",
                "CFBundleShortVersionString": "1.0",
                "CFBundleVersion": "1.0.0"})

    def test_every_language_has_the_four_texts(self):
        for language in LANGUAGES:
            with self.subTest(language):
                folder = RESOURCES / (language + ".lproj")
                self.assertEqual(os.listdir(folder), ["Localizable.strings"])
                with open(folder / "Localizable.strings", "rb") as file:
                    texts = plistlib.load(file)
                self.assertEqual(sorted(texts), KEYS)
                self.assertTrue(all(isinstance(text, str) and text for text in texts.values()))


class Module(unittest.TestCase):
    def compile(self, source, *options):
        """What clang says to a source that uses the framework; the modules that it made."""
        with tempfile.TemporaryDirectory() as cache:
            result = subprocess.run(
                [os.environ["CLANG"], "-fsyntax-only", "-x", "c", "-std=c11", "-Wall", "-Wextra",
                 "-Werror", "-F", BUNDLE.parent, "-fmodules", "-fimplicit-module-maps",
                 f"-fmodules-cache-path={cache}", *options, "-"],
                input=source, text=True, stderr=subprocess.PIPE, check=False)
            made = {path.name.split("-")[0] for path in pathlib.Path(cache).rglob("*.pcm")}
        return result.returncode, result.stderr, made

    def test_header_is_used_as_a_module(self):
        code, errors, made = self.compile(
            "#include <TRX-SELVASetup/TRX-SELVASetup.h>\n"
            "StatusCode connected(void) { return ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA); }\n")
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(made, {"TRX_SELVASetup"})

    def test_header_for_diagnostics_is_in_the_same_module(self):
        code, errors, made = self.compile(
            "#include <TRX-SELVASetup/Diagnostics.h>\n"
            "StatusCode end(void) { return ORV_ObserveRequests(0, 0); }\n"
            "StatusCode connected(void) { return ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA); }\n")
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(made, {"TRX_SELVASetup"})

    def test_text_is_a_string_of_core_foundation(self):
        code, errors, made = self.compile(
            "#include <TRX-SELVASetup/TRX-SELVASetup.h>\n"
            "CFStringRef text;\n"
            "StatusCode version(void) { return ORV_GetLibraryVersionText(11, &text); }\n",
            "-target", "x86_64-apple-macos11", "-ffreestanding",
            "-isystem", os.environ["SOURCE"] + "/tests/apple/iokit/include")
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(made, {"TRX_SELVASetup"})

    def test_header_of_linux_is_not_there(self):
        code, errors, _ = self.compile("#include <TRX-SELVASetup/EventLoop.h>\n")
        self.assertEqual(code, 1)
        self.assertIn("'TRX-SELVASetup/EventLoop.h' file not found", errors)
