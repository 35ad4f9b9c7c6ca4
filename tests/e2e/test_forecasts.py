# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The test of forecasts in its window: asked for by mouse and by keyboard, cancelled, saved."""

import os
import subprocess
import unittest

from session import COMPANION, Session
from waiting import wait_for

COMPOSITE = "Composite estimate cycle chart"
TITLE = "Quorvex - Test Forecast - [Wheat.txt]"


class Forecasts(Session):
    def shorten(self):
        """Few days are tested soon."""
        with open(os.path.join(self.folder, "Wheat.txt"), "r+", encoding="ascii") as file:
            days = file.readlines()[:130]
            file.seek(0)
            file.truncate()
            file.writelines(days)

    def evaluate(self):
        """What the companion says of the same quotes and cycles."""
        command = [COMPANION, "evaluate", "Wheat.txt", "--parameters", "Wheat.dat"]
        return subprocess.run(command, cwd=self.folder, check=True, capture_output=True, timeout=60, text=True).stdout

    def test_window(self):
        program = self.start()
        self.shorten()
        expected = self.evaluate()
        program.open_quotes("Wheat.txt")
        program.open_parameters("Wheat.dat")
        self.cancel_a_test()
        self.require_report(expected)
        self.require_the_same_for_the_forecast(expected)
        program.choose("File", "Exit")
        self.require_end(program)

    def choose_by_mouse(self):
        """In the context menu of the composite."""
        self.desktop.click(self.program.chart(COMPOSITE), button=3)
        self.desktop.press("t")
        return self.program.window(TITLE)

    @staticmethod
    def wait_for_result(window):
        wait_for(lambda: not window.find_all("progress bar"), "the end of the test", seconds=60)

    def cancel_a_test(self):
        window = self.choose_by_mouse()
        self.assertEqual(window.find("progress bar").name, "Test")
        self.desktop.click(window.find("push button", "Cancel"))
        self.program.wait_for_main()

    def require_report(self, expected):
        """The window shows what the companion prints, and saves the same."""
        window = self.choose_by_mouse()
        self.wait_for_result(window)
        verdict, description = expected.split("\n\n")[:2]
        self.assertEqual([label.name for label in window.find_all("label")][:2], [verdict, description])
        verdicts = window.find("table", "Verdict by Model").cell_texts()
        self.assertEqual([f"{model}: {words}" for model, words in verdicts],
                         [line.strip() for line in expected.split("\nVerdict\n")[1].splitlines()])
        self.assertTrue(window.find("chart", "Forecast test chart").description.startswith(verdict))
        self.desktop.press("alt+g")
        figures = wait_for(lambda: window.find("table", "Figures"), "the figures").cell_texts()
        table = expected.split("\n\n")[2].splitlines()[1:]
        self.assertEqual([" ".join(row).split() for row in figures], [line.split() for line in table])
        self.save_as(window, "report.txt")
        with open(os.path.join(self.folder, "report.txt"), encoding="utf-8", newline="") as file:
            self.assertEqual(file.read(), expected)
        self.save_as(window, "plot.svg")
        with open(os.path.join(self.folder, "plot.svg"), encoding="utf-8") as file:
            self.assertIn("25 days ahead", file.read())
        self.desktop.press("Return")
        self.program.wait_for_main()

    def save_as(self, window, name):
        self.program.choose("File", "Save As...", window=window)
        self.program.window("Save Forecast Test")
        self.desktop.press("ctrl+a")
        self.desktop.type(name)
        self.desktop.press("Return")
        path = os.path.join(self.folder, name)
        wait_for(lambda: os.path.exists(path) and self.program.window(TITLE), f"the file {name}")

    def require_the_same_for_the_forecast(self, expected):
        """By keyboard, from the chart of the forecast window."""
        self.program.choose("Forecast")
        forecast = self.program.window("Quorvex Forecast - [Wheat.txt]")
        forecast.find("chart", "Forecast chart").focus()
        self.desktop.press("Menu", "t")
        window = self.program.window(TITLE)
        self.wait_for_result(window)
        self.assertEqual(window.find_all("label")[0].name, expected.split("\n\n", maxsplit=1)[0])
        self.desktop.press("Escape")
        self.program.window("Quorvex Forecast - [Wheat.txt]")
        self.desktop.press("Escape")
        self.program.wait_for_main()


if __name__ == "__main__":
    unittest.main()
