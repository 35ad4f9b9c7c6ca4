# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""One whole analysis in the program's windows, as somebody who listens to them would run it."""

import os
import re
import unittest

from session import CHARTS, Session

NO_QUOTES = "Please use File Open option to load a quote data file"
EMPTY_CHARTS = ["No quote file is open.", "No cycle is active.", "No cycle is active.", "No quote file is open."]
ZEROS = [["0"] * 4] * 10
NUMBER = r"-?[0-9]+\.[0-9]*"
SPAN = "250 days, 11/06/18 to 11/05/19"


class Analysis(Session):
    def require_descriptions(self, patterns):
        for chart, description, pattern in zip(CHARTS, self.program.chart_descriptions(), patterns, strict=True):
            self.assertRegex(description, f"^{pattern}$", chart)

    @staticmethod
    def cycles_pattern(expected):
        weights = "".join(rf"Cycle {cycle}: weight {row[0]}, period {row[1]}\. "
                          for cycle, row in enumerate(expected["Grid"][:3], 1))
        return rf"3 component cycles over {SPAN}\. {weights}Lowest {NUMBER}, highest {NUMBER}\."

    @staticmethod
    def curve_pattern(expected, name):
        curve = expected[name][:expected["WorkingCount"]]
        return rf"Lowest {min(curve):.1f}, highest {max(curve):.1f}, last value {curve[-1]:.1f}\."

    def require_forecast(self, expected):
        """The forecast window shows what the companion computes."""
        self.program.choose("Forecast")
        window = self.program.window("Quorvex Forecast - [Wheat.txt]")
        self.assertEqual(self.lines(window, "Previous Closes"), expected["List1"])
        self.assertEqual(self.lines(window, "Estimated Values"), expected["List2"])
        self.assertEqual(len(expected["List1"]), 25)
        self.assertEqual(len(expected["List2"]), 25)
        self.assertRegex(
            window.find("chart", "Forecast chart").description,
            r"^Forecast chart: quotes of 25 days from 10/01/19 to 11/05/19, then a forecast of 25 days from "
            rf"11/06/19 to 12/10/19\. Lowest value {NUMBER}, highest {NUMBER}\. Last close 520\.25\. "
            rf"Last forecast value {expected['Values'][-1]:.2f}\.$")
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()

    @staticmethod
    def lines(window, name):
        return [item.name for item in window.find("list", name).find_all("list item", showing=False)]

    def test_from_the_start_to_the_exit(self):
        program = self.start()
        self.assertEqual(program.main.name, "Quorvex")
        self.assertEqual(program.grid(), ZEROS)
        self.assertEqual(program.chart_descriptions(), EMPTY_CHARTS)
        self.open_a_quote_file()
        self.fit_three_cycles()
        self.read_parameters()
        self.clear_parameters()
        self.close_the_quote_file()
        program.choose("File", "Exit")
        self.require_end(program)

    def open_a_quote_file(self):
        program = self.program
        program.open_quotes("Wheat.txt")
        self.assertEqual(program.main.name, f"Quorvex - [{self.folder}{os.sep}Wheat.txt]")
        self.require_descriptions([
            rf"Daily bar chart of {SPAN}\. Lowest 418\.50, highest 557\.25, last close 520\.25\. "
            rf"3-day moving average, last value {NUMBER}\.",
            r"No cycle is active\.", r"No cycle is active\.", r"No cycle is active\."])
        program.choose("Forecast")
        self.assertEqual(program.answer("Quorvex", "OK"),
                         "Insufficient cycle parameters data to create forecast values")
        program.wait_for_main()

    def fit_three_cycles(self):
        program = self.program
        expected = self.analyse("--automate", "3")
        self.assertGreater(int(expected["Grid"][2][0]), 0)
        before = program.chart_descriptions()
        program.choose("Parameters", "Automate", "Three Cycles")
        self.wait_until_equal(program.grid, expected["Grid"], "three fitted cycles in the grid")
        self.require_descriptions([
            re.escape(before[0]), self.cycles_pattern(expected),
            rf"Composite estimate cycle over {SPAN}\. {self.curve_pattern(expected, 'CompositeCurve')}",
            rf"Residual, moving average minus composite cycle, over {SPAN}\. "
            rf"{self.curve_pattern(expected, 'ResidualCurve')}"])
        program.choose("Correlation")
        correlation = expected["Correlation"]
        self.assertEqual(program.answer(correlation["title"], "OK"), correlation["message"])
        program.wait_for_main()
        self.require_forecast(expected["Forecast"])
        self.assertEqual(program.grid(), expected["Grid"])

    def read_parameters(self):
        program = self.program
        fitted = program.chart_descriptions()
        program.open_parameters("Wheat.dat")
        expected = self.analyse("--parameters", os.path.join(self.folder, "Wheat.dat"))
        self.wait_until_equal(program.grid, expected["Grid"], "the cycles of the file in the grid")
        self.assertEqual([row[0] for row in expected["Grid"]], ["50", "30", "20"] + ["0"] * 7)
        read = program.chart_descriptions()
        self.assertEqual(read[0], fitted[0])
        for index in (1, 2, 3):
            self.assertNotEqual(read[index], fitted[index], CHARTS[index])
        self.require_forecast(expected["Forecast"])

    def clear_parameters(self):
        program = self.program
        read = program.grid()
        for button, grid in (("Cancel", read), ("No", ZEROS)):
            program.choose("Parameters", "New")
            self.assertEqual(program.answer("Save Parameter File", button), "Save current cycle parameters data?")
            program.wait_for_main()
            self.wait_until_equal(program.grid, grid, "the grid after " + button)
        self.assertEqual(program.chart_descriptions()[1:3], ["No cycle is active."] * 2)

    def close_the_quote_file(self):
        program = self.program
        program.choose("File", "Close")
        self.wait_until_equal(lambda: program.main.name, "Quorvex", "the caption without a file")
        self.assertEqual(program.chart_descriptions(), EMPTY_CHARTS)
        for command in (["Forecast"], ["Correlation"], ["Parameters", "Automate", "One Cycle"]):
            program.choose(*command)
            self.assertEqual(program.answer("Quorvex", "OK"), NO_QUOTES)
            program.wait_for_main()


if __name__ == "__main__":
    unittest.main()
