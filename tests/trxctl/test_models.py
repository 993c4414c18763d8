"""--model: which models are served, how they are named, and that each has settings of its own."""

import unittest

from host import MODELS, HostTest

SERVED = ", ".join(MODELS)


class Models(HostTest):
    def test_default_is_trx_selva(self):
        self.assertEqual(self.done("boost", "--json").json["model"], "TRX-SELVA")

    def test_environment_names_one_unless_the_command_line_does(self):
        self.env["TRXCTL_MODEL"] = "volt"
        self.assertEqual(self.done("boost", "--json").json["model"], "TRX-VOLT")
        listed = self.done("boost", "--json", "--model", "lumen").json
        self.assertEqual(listed["model"], "TRX-LUMEN")

    def test_each_served_model_has_its_own_level(self):
        for index, model in enumerate(MODELS):
            self.run_host("--model", model, "boost", str(index % 4 + 1))
            self.assertEqual(self.stored(model), {"MaxLevel": index % 4})
        for index, model in enumerate(MODELS):
            listed = self.done("boost", "--model", model, "--json").json
            self.assertEqual((listed["model"], listed["current"]["index"]), (model, index % 4))

    def test_level_of_any_model_reaches_the_connected_mixers(self):
        for model in MODELS:
            self.mixer("log", "clear")
            result = self.done_with_notes("boost", "-5", "--model", model)
            self.assertEqual(result.err.count(f", is no {model}; for its own settings use "
                                              "--model TRX-SELVA\n"),
                             0 if model == "TRX-SELVA" else 2)
            self.assertEqual(self.levels_sent(), [(1, "0300"), (2, "0300")], model)

    def test_name_in_any_case_and_between_other_words(self):
        for name in ("trx-lumen", "my TRX-Lumen mixer"):
            self.assertEqual(self.done("boost", "--json", "--model", name).json["model"],
                             "TRX-LUMEN")

    def test_last_of_several_counts(self):
        listed = self.done("--model", "TRX-VOLT", "boost", "--json", "--model", "TRX-LUMEN").json
        self.assertEqual(listed["model"], "TRX-LUMEN")

    def test_known_by_name_only(self):
        for name in ("TRX-BRISK", "TRC-FENNO", "TRX-CIRRUS"):
            self.assert_fails(3, ["boost", "-10", "--model", name],
                              f"{name} is known by name only; it has no settings here",
                              f"choose one of {SERVED}")
        self.assert_nothing_sent()

    def test_beginning_of_a_name_with_or_without_the_family(self):
        for name, model in (("volt", "TRX-VOLT"), ("V", "TRX-VOLT"), ("trx-v", "TRX-VOLT"),
                            ("Ard", "TRX-Arden"), ("TRX-ARD", "TRX-Arden"), ("selva", "TRX-SELVA")):
            self.assertEqual(self.done("boost", "--json", "--model", name).json["model"], model)

    def test_beginning_of_several_names(self):
        for name in ("t", "TRX", "trx-"):
            self.assert_fails(3, ["boost", "-10", "--model", name],
                              f'"{name}" could be more than one mixer model',
                              f"write a little more of it: {SERVED}")
        self.assert_nothing_sent()
        error = self.run_host("--json", "--model", "trx").json["error"]
        self.assertEqual(error["choices"], MODELS)

    def test_unknown(self):
        for name in ("", "equalizer", "brisk"):
            self.assert_fails(3, ["--model", name], f'"{name}" names no mixer model',
                              f"choose one of {SERVED}")

    def test_unknown_but_near(self):
        self.assert_fails(3, ["--model", "trx-sleva"], '"trx-sleva" names no mixer model',
                          f"did you mean TRX-SELVA? Otherwise choose one of {SERVED}")

    def test_unknown_but_near_without_the_family(self):
        for name, model in (("vlot", "TRX-VOLT"), ("Ardne", "TRX-Arden"), ("olt", "TRX-VOLT")):
            self.assert_fails(3, ["--model", name], f'"{name}" names no mixer model',
                              f"did you mean {model}? Otherwise choose one of {SERVED}")

    def test_json_lists_the_served_models(self):
        error = self.run_host("--json", "--model", "TRX-BRISK").json["error"]
        self.assertEqual((error["code"], error["kind"], error["choices"]),
                         (3, "refused", MODELS))


class ConnectedModel(HostTest):
    """What is connected decides which model is meant when none is named."""

    def plug(self, model):
        unit = self.mixer("plug", model).split()[0]
        self.addCleanup(self.mixer, "unplug", unit)

    def test_mixers_that_agree(self):
        self.unplug_all()
        self.plug("TRX-VOLT")
        self.assertEqual(self.done("midi", "10", "--json").json["model"], "TRX-VOLT")
        self.assertEqual(self.done("--model", "selva", "boost", "--json").json["model"], "TRX-SELVA")
        self.env["TRXCTL_MODEL"] = "TRX-LUMEN"
        self.assertEqual(self.done("boost", "--json").json["model"], "TRX-LUMEN")

    def test_mixers_that_do_not_agree(self):
        self.plug("TRX-VOLT")
        result = self.run_host("boost", "-10")
        self.assertEqual(result.out.splitlines()[0], "TRX-SELVA boost level set to -10 dB.")
        self.assertRegex(result.err, r"^warning: TRX-VOLT \(bus \d+, address \d+\), serial \w+, is no "
                                     r"TRX-SELVA; for its own settings use --model TRX-VOLT\n$")

    def test_no_mixer(self):
        self.unplug_all()
        self.assertEqual(self.done("boost", "--json").json["model"], "TRX-SELVA")


if __name__ == "__main__":
    unittest.main()
