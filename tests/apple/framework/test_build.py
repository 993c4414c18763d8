"""What the build of a Mac would run, read from its build files."""

import json
import plistlib
import unittest

from mac_build import BUILD, SOURCE, commands, preset

LIBRARY = "lib/TRX-SELVASetup.framework/Versions/A/TRX-SELVASetup"


def words_of(target):
    """The last command for a target: the one that links it."""
    return commands(target)[-1].split()


class Build(unittest.TestCase):
    def assert_follows(self, words, option, value):
        self.assertIn((option, value), list(zip(words, words[1:])))

    def test_preset_is_for_a_mac(self):
        macos = preset("macos")
        self.assertEqual(macos["condition"],
                         {"type": "equals", "lhs": "${hostSystemName}", "rhs": "Darwin"})
        self.assertEqual(macos["binaryDir"], "${sourceDir}/build/${presetName}")

    def test_library_is_linked_for_its_place(self):
        words = words_of(LIBRARY)
        self.assertIn("-dynamiclib", words)
        self.assert_follows(words, "-install_name",
                            "/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/TRX-SELVASetup")
        self.assert_follows(words, "-compatibility_version", "1.0.0")
        self.assert_follows(words, "-current_version", "1.0.0")
        self.assertIn(f"-Wl,-exported_symbols_list,{BUILD}/Framework/TRX-SELVASetup.exp", words)
        for framework in ["CoreFoundation", "Foundation", "IOKit"]:
            self.assert_follows(words, "-framework", framework)

    def test_everything_is_for_both_processors(self):
        for target in [LIBRARY, "bin/trxctl"]:
            words = words_of(target)
            self.assert_follows(words, "-arch", "arm64")
            self.assert_follows(words, "-arch", "x86_64")
            self.assertIn("-mmacosx-version-min=10.15", words)

    def test_code_of_macos_is_compiled_and_none_of_linux(self):
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        sources = [entry["file"].removeprefix(f"{SOURCE}/") for entry in entries]
        self.assertIn("Framework/Class/USB/Apple/USBDevice.cpp", sources)
        self.assertIn("Framework/Class/Platform/Apple/NotificationCentre.mm", sources)
        self.assertIn("Tools/client/Apple/StoredSettings.mm", sources)
        self.assertEqual([one for one in sources if "/Linux/" in one], [])
        self.assertEqual({one.split("/")[0] for one in sources}, {"Framework", "Tools"})

    def test_references_are_counted_by_hand_and_names_are_hidden(self):
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        for entry in entries:
            words = entry["command"].split()
            if entry["file"].endswith(".mm"):
                self.assertIn("-fno-objc-arc", words, entry["file"])
            if "/Framework/" in entry["file"]:
                self.assertIn("-fvisibility=hidden", words, entry["file"])
            self.assertIn("-std=c++20", words, entry["file"])

    def test_program_is_linked_with_the_framework_of_the_build(self):
        words = words_of("bin/trxctl")
        self.assertIn(LIBRARY, words)
        self.assertFalse([word for word in words if "rpath" in word])

    def test_installation_puts_framework_and_program_into_place(self):
        script = (BUILD / "Framework/cmake_install.cmake").read_text()
        self.assertIn('file(INSTALL DESTINATION "/Library/Frameworks" TYPE DIRECTORY FILES '
                      f'"{BUILD}/lib/TRX-SELVASetup.framework"', script)
        script = (BUILD / "Tools/trxctl/cmake_install.cmake").read_text()
        self.assertIn('file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/bin" TYPE EXECUTABLE '
                      f'FILES "{BUILD}/bin/trxctl"', script)

    def test_launch_agent_starts_with_the_match_of_a_mixer(self):
        agent = BUILD / "Tools/trxctl/com.orvikaudio.trx-reapply.plist"
        contents = plistlib.loads(agent.read_bytes())
        self.assertEqual(contents["ProgramArguments"],
                         ["/usr/local/bin/trxctl", "reapply", "--plugged", "plug-event"])
        self.assertEqual(contents["LaunchEvents"]["com.apple.iokit.matching"], {
            "com.orvikaudio.mixer": {"IOProviderClass": "IOUSBDevice", "idVendor": 0x4F52,
                                     "idProduct": 0x001F, "IOMatchLaunchStream": True}})
        script = (BUILD / "Tools/trxctl/cmake_install.cmake").read_text()
        self.assertIn(f'"/Library/LaunchAgents" TYPE FILE FILES "{agent}"', script)

    def test_installation_changes_nothing_that_was_signed(self):
        for folder in ["Framework", "Tools/trxctl"]:
            script = (BUILD / folder / "cmake_install.cmake").read_text()
            self.assertNotIn("install_name_tool", script)
