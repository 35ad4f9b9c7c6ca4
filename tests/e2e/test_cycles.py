# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The best cycles of a contract, found and kept by keyboard alone."""

import re
import unittest

from session import Session
from waiting import wait_for

COMPOSITE = "Composite estimate cycle chart"


class BestCycles(Session):
    def choose_in_chart(self, letter):
        self.program.chart(COMPOSITE).focus()
        self.desktop.press("Menu", letter)

    def test_found_written_and_read_again(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        expected = self.analyse("--search", "3", "--min-swing", "20")
        self.find_best_cycles()
        self.wait_until_equal(program.grid, expected["Grid"], "the cycles that were found, in the grid")
        curve = expected["CompositeCurve"][:expected["WorkingCount"]]
        self.assertEqual(
            program.chart(COMPOSITE).description,
            f"Composite estimate cycle over 250 days, 11/06/18 to 11/05/19. Lowest {min(curve):.1f}, "
            f"highest {max(curve):.1f}, last value {curve[-1]:.1f}.")
        self.desktop.press("alt+c")
        correlation = program.answer(expected["Correlation"]["title"], "OK")
        self.assertEqual(correlation, expected["Correlation"]["message"])
        self.assertGreater(float(re.search(r"([0-9.]+)%", correlation)[1]), 50)
        program.wait_for_main()
        self.write_and_read(expected["Grid"])
        program.choose("File", "Exit")
        self.require_end(program)

    def find_best_cycles(self):
        self.choose_in_chart("f")
        window = self.program.window("Quorvex - Find Best Cycles - [Wheat.txt]")
        wait_for(lambda: window.find("push button", "OK").has("enabled"), "a model to take")
        self.desktop.press("Return")
        self.program.wait_for_main()

    def write_and_read(self, grid):
        self.choose_in_chart("w")
        self.program.window("Write Parameter File")
        self.desktop.press("ctrl+a")
        self.desktop.type("found")
        self.desktop.press("Return")
        self.program.wait_for_main()
        self.program.choose("Parameters", "New")
        self.program.answer("Save Parameter File", "No")
        self.program.wait_for_main()
        self.program.open_parameters("found.dat")
        self.wait_until_equal(self.program.grid, grid, "the cycles of the file")


if __name__ == "__main__":
    unittest.main()
