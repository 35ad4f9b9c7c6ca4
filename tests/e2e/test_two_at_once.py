# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Two programs and a companion at work on the same folder: what one saves the others neither mix up nor lose."""

import os
import subprocess
import unittest

from session import COMPANION, Session
from waiting import wait_for

DAYS = 250
EDITOR = "Quorvex - Edit - [Wheat.txt]"


class TwoAtOnce(Session):
    def setUp(self):
        super().setUp()
        self.one = self.start(name="one")
        self.two = self.start(self.one.executable, name="two")

    def path(self, name):
        return os.path.join(self.folder, name)

    def read(self, name):
        with open(self.path(name), encoding="ascii", newline="") as file:
            return file.read()

    def open_editor(self, program):
        self.desktop.activate(program.process.pid, program.main.name)
        program.wait_for_main()
        program.open_quotes("Wheat.txt")
        program.choose("File", "Edit")
        return program.window(EDITOR)

    def save_last_close(self, program, price):
        window = program.bring_to_front(EDITOR)
        self.desktop.press("ctrl+End", "Left", "Left")
        self.desktop.type(price)
        self.desktop.press("Return")
        program.choose("File", "Save", window=window)
        wait_for(lambda: window.find("status bar").name == f"{DAYS} rows saved to Wheat.txt", "the saving")

    @staticmethod
    def with_last_close(text, price):
        rest, last = text[:-2].rsplit("\r\n", 1)
        return f"{rest}\r\n{last.replace('520.25', price)}\r\n"

    def leave_all(self):
        for program in (self.one, self.two):
            program.process.terminate()
            program.process.wait(30)
            self.assertEqual(program.errors(), "")

    def import_next_day(self):
        table = "Date,Open,High,Low,Close,Volume,Open Interest\n2019-11-06,520,521,519,520.5,10,20\n"
        subprocess.run([COMPANION, "import", "-", "--into", self.path("Wheat.txt")], input=table.encode("ascii"),
                       check=True, capture_output=True, timeout=60)

    def test_what_another_one_has_saved_stays_beside(self):
        before = self.read("Wheat.txt")
        for program in (self.one, self.two):
            self.open_editor(program)
        self.save_last_close(self.one, "512.5")
        first = self.with_last_close(before, "512.50")
        self.assertEqual((self.read("Wheat.txt"), self.read("Wheat.txt~")), (first, before))
        self.save_last_close(self.two, "514")
        second = self.with_last_close(before, "514.00")
        self.assertEqual((self.read("Wheat.txt"), self.read("Wheat.txt~")), (second, first))
        self.import_next_day()
        third = self.read("Wheat.txt")
        self.assertEqual(third.splitlines()[:DAYS], second.splitlines())
        self.assertEqual(len(third.splitlines()), DAYS + 1)
        self.assertEqual(self.read("Wheat.txt~"), second)
        self.save_last_close(self.one, "515")
        self.assertEqual(self.read("Wheat.txt~"), third)
        self.leave_all()

    def test_what_one_types_and_does_not_save_is_not_the_other_ones(self):
        for program, price in ((self.one, "531.13"), (self.two, "541.37")):
            self.open_editor(program)
            self.desktop.press("ctrl+End", "Left", "Left")
            self.desktop.type(price)
            self.desktop.press("Return")
        def kept():
            return [self.read(name) for name in os.listdir(self.folder) if ".edits" in name]

        wait_for(lambda: len(kept()) == 2, "the edits of both, kept")
        for price in ("531.13", "541.37"):
            self.assertEqual(sum(price in text for text in kept()), 1, kept())
        self.leave_all()

    def save_preferences(self, program, chart_type):
        self.desktop.activate(program.process.pid, program.main.name)
        program.wait_for_main()
        program.choose("Preferences")
        window = program.window("Quorvex - Program Preferences")
        window.find("text", "Chart Type").set_text(chart_type)
        program.choose("File", "Save Settings", window=window)
        wait_for(lambda: os.path.exists(self.path("Quorvex.INI")) and chart_type in self.read("Quorvex.INI"),
                 "the settings")
        program.choose("File", "Exit", window=window)
        program.wait_for_main()

    def test_the_settings_are_those_that_were_saved_last_and_the_others_stay_beside(self):
        self.save_preferences(self.one, "Candlestick Chart")
        first = self.read("Quorvex.INI")
        self.save_preferences(self.two, "Line Chart")
        self.assertEqual(self.read("Quorvex.INI"), first.replace("Candlestick Chart", "Line Chart"))
        self.assertEqual(self.read("Quorvex.INI~"), first)
        self.leave_all()


if __name__ == "__main__":
    unittest.main()
