"""The window as a screen reader meets it, over the accessibility bus, on a real display."""

import unittest

import desktop
from desktop import DesktopTest, click, reader, wait_until


def setUpModule():
    desktop.start_display()


class ScreenReader(DesktopTest):
    def test_every_control_has_a_name_and_is_of_its_kind(self):
        window = self.start()
        window.wait_for("radio button", "USB 1 plays to: CH1")
        focusable = reader().StateType.FOCUSABLE
        found = []
        for part in window.everything():
            states = part.get_state_set()
            if states.contains(focusable) and states.contains(reader().StateType.SHOWING):
                found.append((part.get_role_name(), part.get_name()))
        self.assertEqual([name for name in found if not name[1]], [])
        for channel in (1, 2, 3):
            for choice in ("CH1", "CH2", "AUX"):
                self.assertIn(("radio button", f"USB {channel} plays to: {choice}"), found)
        for level in ("-19 dB", "-15 dB", "-10 dB", "-5 dB"):
            self.assertIn(("radio button", f"Boost level: {level}"), found)
        self.assertEqual([role for role, _ in found].count("combo box"), 3)

    def test_the_drawing_is_described_in_words(self):
        window = self.start()
        [drawing] = [part for part in window.everything() if part.get_name() == "TRX-SELVA" and part.get_description()]
        self.assertIn("USB 1 records CH1 Control Tone PHONO.", drawing.get_description())
        self.assertIn("USB 3 plays to AUX.", drawing.get_description())

    def test_a_list_is_labelled_and_tells_its_value(self):
        window = self.start()
        lists = [part for part in window.everything() if part.get_role_name() == "combo box"]
        labelled = reader().RelationType.LABELLED_BY
        told = []
        for part in lists:
            for relation in part.get_relation_set():
                if relation.get_relation_type() == labelled:
                    told.append((relation.get_target(0).get_name(), part.get_name()))
        self.assertEqual(told, [("USB 1 records", "CH1 Control Tone PHONO"), ("USB 2 records", "CH2 Control Tone PHONO"),
                                ("USB 3 records", "REC OUT")])

    def test_a_warning_is_told(self):
        self.mixer("set", 1, "selector", 0, 1)
        window = self.start()
        title = "The input selector of CH1 is not on USB"
        line = window.wait_for("push button", title)
        self.assertIn("Turn it to the USB position", line.get_description())

    def test_a_click_on_what_is_read_reaches_the_mixer(self):
        window = self.start()
        click(window.wait_for("radio button", "USB 2 plays to: AUX"))
        wait_until("it is sent", lambda: self.written() == ["1 0204 8016"])

    def test_two_windows_follow_each_other(self):
        first, second = self.start(), self.start()
        click(second.wait_for("radio button", "USB 1 plays to: AUX"))
        checked = reader().StateType.CHECKED
        for window in (first, second):
            chosen = window.wait_for("radio button", "USB 1 plays to: AUX")
            wait_until("AUX is chosen", lambda part=chosen: part.get_state_set().contains(checked))
        self.assertEqual(self.written(), ["1 0104 8016"])

    def test_what_another_program_sets_is_told(self):
        window = self.start()
        self.trxctl("output", "1", "AUX")
        wait_until("it is told", lambda: any("set by another program" in part.get_name() for part in window.everything()))


if __name__ == "__main__":
    unittest.main()
