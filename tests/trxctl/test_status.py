"""trxctl status, versions and models: what they print of mixers, software and models."""

import unittest

from host import MODELS, HostTest

# Which status each model tells: certify level, firmware, selectors, Serato.
TELLS = {"TRX-Arden": (False, False, 4, True), "TRX-VOLT": (False, False, 2, False),
         "TRX-HALDEN": (True, False, 4, True), "TRX-LUMEN": (True, False, 4, True),
         "TRX-MORROW": (True, False, 4, True), "TRX-SELVA": (True, True, 4, True)}


class Status(HostTest):
    def setUp(self):
        super().setUp()
        for unit in (1, 2):
            self.mixer("set", unit, "certify", 7)
            self.mixer("set", unit, "firmware", 0x0102)
            self.mixer("set", unit, "serato", 1)
            for channel, value in enumerate((6, 5, 0, 7)):
                self.mixer("set", unit, "selector", channel, value)

    def tearDown(self):
        for unit in (1, 2):
            self.mixer("set", unit, "serato", 0)
            for channel in range(4):
                self.mixer("set", unit, "selector", channel, 0)
        super().tearDown()

    def test_text(self):
        self.assertEqual(self.done("status").out,
                         "TRX-SELVA mixer status\n"
                         "  certify level       7\n"
                         "  firmware            258 (0x0102)\n"
                         "  input selector 1    6, USB (first port)\n"
                         "  input selector 2    5\n"
                         "  input selector 3    0\n"
                         "  input selector 4    7, USB (second port)\n"
                         "  Serato              active\n"
                         "Mixers\n" + "".join(f"  {self.described(unit)}: answers\n"
                                               for unit in sorted((1, 2), key=self.place)) +
                         "The firmware is that of the first mixer, the rest that of the last.\n")

    def test_every_model_tells_what_it_has(self):
        for model, (certify, firmware, selectors, serato) in TELLS.items():
            printed = self.done("status", "--json", "--model", model).json
            level = 0 if model == "TRX-HALDEN" else 7
            self.assertEqual(printed["certify_level"], level if certify else None, model)
            self.assertEqual(printed["firmware"], 258 if firmware else None, model)
            self.assertEqual(printed["serato"], True if serato else None, model)
            self.assertEqual(printed["input_selectors"],
                             [{"channel": i + 1, "position": position}
                              for i, position in enumerate((6, 5, 0, 7)[:selectors])], model)
            self.assertEqual(len(printed["mixers"]), 2)

    def test_one_mixer_needs_no_remark(self):
        self.unplug(2)
        self.assertNotIn(" of ", self.done("status").out)

    def test_no_answer(self):
        for unit in (1, 2):
            self.mixer("fault", unit, "stall")
        result = self.run_host("status")
        self.assertEqual(result.code, 1)
        for line in ("certify level       no answer", "firmware            no answer",
                     "input selector 1    no answer", "Serato              no answer",
                     f"{self.described(1)}: refused it", f"{self.described(2)}: refused it"):
            self.assertIn(f"  {line}\n", result.out)
        printed = self.run_host("status", "--json").json
        self.assertEqual((printed["certify_level"], printed["firmware"], printed["serato"]), (None,) * 3)
        self.assertEqual([one["position"] for one in printed["input_selectors"]], [None] * 4)
        self.assertEqual([mixer["result"] for mixer in printed["mixers"]], ["refused"] * 2)

    def test_position_out_of_range(self):
        for unit in (1, 2):
            self.mixer("set", unit, "selector", 0, 9)
        self.assertIn("  input selector 1    9 (no position)\n", self.done("status").out)
        self.assertIsNone(self.done("status", "--json").json["input_selectors"][0]["position"])

    def test_without_a_mixer(self):
        self.unplug_all()
        self.assert_fails(4, ["status"], "no mixer is connected, so there is no status to read",
                          "connect a mixer and switch it on, then try again")

    def test_without_access(self):
        for unit in (1, 2):
            self.mixer("fault", unit, "refuse")
        self.assertEqual(self.run_host("status", "--json").json["error"]["kind"], "no_access")

    def test_changes_nothing(self):
        self.done("status")
        self.assertNotIn(" OUT ", self.mixer("log"))
        self.assertIsNone(self.stored())


class Versions(HostTest):
    def test_installed(self):
        version = self.done("--version").out.split()[1]
        self.assertEqual(self.done("versions").out,
                         "TRX-SELVA versions\n"
                         f"  package             {version}\n"
                         "  driver              not installed (Linux needs none)\n"
                         f"  setup application   {version}\n"
                         f"  library             {version}\n")

    def test_json(self):
        version = self.done("--version").out.split()[1]
        self.assertEqual(self.done("versions", "--json").json,
                         {"model": "TRX-SELVA", "package": version, "driver": None,
                          "setup_application": version, "library": version})

    def test_library_and_package_serve_every_model(self):
        for model in MODELS:
            printed = self.done("versions", "--json", "--model", model).json
            self.assertIsNotNone(printed["library"], model)
            self.assertEqual(printed["setup_application"] is None, model != "TRX-SELVA")

    def test_nothing_installed(self):
        self.env["TRX_SYSTEM_ROOT"] = str(self.config)
        self.assertEqual(self.done("versions").out.count("not installed"), 4)
        self.assertEqual(list(self.done("versions", "--json").json.values()),
                         ["TRX-SELVA", None, None, None, None])


class Models(HostTest):
    def test_what_each_accepts(self):
        listed = self.done("models", "--json").json["models"]
        accepted = {model["model"]: (
            model["product_id"],
            [(one["setting"], one.get("channels"), one["settable"]) for one in model["settings"]
             if one["setting"] in ("input", "output", "boost", "midi")],
            model["raw_input_channels"], model["status"]) for model in listed}
        boost = ("boost", None, True)
        selectors = "input_selectors"
        self.assertEqual(accepted, {
            "TRX-Arden": (0, [("input", 4, False), boost], 4, [selectors, "serato"]),
            "TRX-VOLT": (1, [("input", 3, False), boost, ("midi", None, True)], 3, [selectors]),
            "TRX-HALDEN": (5, [("input", 5, False), boost], 5,
                           [selectors, "certify_level", "serato"]),
            "TRX-LUMEN": (6, [("input", 3, False), boost], 5,
                          [selectors, "certify_level", "serato"]),
            "TRX-MORROW": (8, [("input", 3, False), boost], 5,
                           [selectors, "certify_level", "serato"]),
            "TRX-SELVA": (11, [("input", 3, True), ("output", 3, True), boost], 5,
                          [selectors, "certify_level", "firmware", "serato"])})

    def test_text_of_one(self):
        text = self.done("models", "--model", "TRX-VOLT").out
        self.assertTrue(text.startswith(
            "TRX-VOLT\n"
            "  input audio, 3 channels (to be read; to be set by raw values only)\n"
            "  boost level\n"
            "  MIDI channel\n"), text)
        self.assertTrue(text.endswith("  raw input values, 3 channels\n"
                                      "  status: input selectors\n"), text)

    def test_names_all(self):
        text = self.done("models").out
        self.assertEqual([line for line in text.splitlines() if not line.startswith(" ")], MODELS)


if __name__ == "__main__":
    unittest.main()
