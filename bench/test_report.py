"""What scripts/bench does with its figures, and that it still measures: on figures that are given, and in a run so short that its
times mean nothing.

Everything below runs inside trx-mixer-sim and dbus-run-session, which the test command starts.
"""

import contextlib
import io
import os
import pathlib
import tempfile
import unittest
from unittest import mock

import report

AROUND = ("# What a call costs\n\nBefore.\n\n", "\nAfter.\n")


def costs(**given):
    """The costs of two operations: (calls, instructions, time) each."""
    return {kind: {name.replace("_", "-"): figures[i] for name, figures in given.items()}
            for i, kind in enumerate(("calls", "instructions", "time"))}


class Figures(unittest.TestCase):
    def setUp(self):
        self.table = report.Table()

    def test_of_a_promise_kept(self):
        self.table.ratio(costs(libusb=(2400, 4_400_000, 500), set=(100, 110_000, 25)), "libusb", "set", "≥ 10", "udev")
        self.assertEqual(self.table.missed, [])
        self.assertEqual(self.table.rows[2:], [
            "| a request with libusb from cold | a level set on 1 of 12 devices | 24.00 (2400 : 100) | 40.00 | 20.00 | ≥ 10 | udev |"])

    def test_of_a_time_below_what_is_promised(self):
        self.table.ratio(costs(libusb=(2400, 1_090_000, 500), set=(100, 110_000, 25)), "libusb", "set", "≥ 10", "")
        self.assertEqual(self.table.missed, ["libusb against set: instructions 9.91, promised ≥ 10"])

    def test_of_instructions_and_a_time_above_what_is_promised(self):
        self.table.ratio(costs(get=(4, 130, 121), get_libplist=(3, 100, 100)), "get", "get-libplist", "≤ 1.2", "")
        self.assertEqual(self.table.missed, ["get against get-libplist: instructions 1.30, promised ≤ 1.2",
                                             "get against get-libplist: time 1.21, promised ≤ 1.2"])

    def test_of_system_calls_above_the_floor(self):
        self.table.ratio(costs(walk=(51, 9000, 100), walk_floor=(40, 10, 100)), "walk", "walk-floor", "≤ 1.25", "")
        self.assertEqual(self.table.missed, ["walk against walk-floor: calls 1.27, promised ≤ 1.25"])


class Page(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.page, self.picture = (pathlib.Path(folder.name, name) for name in ("page.md", "growth.svg"))
        self.page.write_text(AROUND[0] + report.BEGIN + "\nOld figures.\n\n" + report.END + AROUND[1])

    def test_of_a_page_without_a_place(self):
        self.page.write_text("No place.\n")
        with self.assertRaises(RuntimeError):
            report.rewrite(self.page, "Figures.")
        self.assertEqual(self.page.read_text(), "No place.\n")

    def measured(self):
        """What a very short run complains of."""
        complaints = io.StringIO()
        short = mock.patch.multiple(report, REPETITIONS=1, MEASURED_FOR=0.001, WHOLE_PROCESS_RUNS=1,
                                    DEVICES=(1, 2, 4), UNITS=(1, 2, 4))
        with short, contextlib.redirect_stdout(io.StringIO()), contextlib.redirect_stderr(complaints):
            failed = report.main(self.page, self.picture)
        missed = [line for line in complaints.getvalue().splitlines() if line.startswith("missed: ")]
        self.assertEqual(failed, 1 if missed else 0)
        return missed

    def test_of_a_whole_run(self):
        if "LD_PRELOAD" in os.environ:
            # Without the right to mount, no figures are better than wrong ones.
            with self.assertRaises(SystemExit):
                self.measured()
            self.assertIn("Old figures.", self.page.read_text())
            return
        missed = self.measured()
        self.assertEqual([line for line in missed if ": calls " in line or ": instructions " in line], [])
        written = self.page.read_text()
        self.assertTrue(written.startswith(AROUND[0] + report.BEGIN))
        self.assertTrue(written.endswith(report.END + AROUND[1]))
        self.assertNotIn("Old figures.", written)
        for ours, theirs, *_ in report.RATIOS:
            self.assertRegex(written, rf"\| {report.NAMES[ours]} \| {report.NAMES[theirs]} \|[^\n]*\d")
        self.assertRegex(written, r"a walk, with devices: 3 further system calls for each; correlation")
        self.assertIn("</svg>", self.picture.read_text())
