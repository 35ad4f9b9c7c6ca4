# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The window shows what the companion computes, for random parameter files.

QUORVEX_PARAMETER_FILES says how many, QUORVEX_SEED which.
"""

import json
import os
import random
import subprocess
import unittest

from session import COMPANION, Session

FILES = int(os.environ.get("QUORVEX_PARAMETER_FILES", "12"))
SEED = int(os.environ.get("QUORVEX_SEED", "1"))
NAME = "random.dat"

# Weights whose percentages change when they are scaled once more.
SCALED_TWICE = [[57, 20, 3, 0], [2, 31, -7, 0], [66, 45, 12, 0]]


def random_weight(dice):
    kind = dice.random()
    if kind < 0.75:
        return dice.randint(0, 100)
    if kind < 0.9:
        return round(dice.uniform(0, 100), 2)
    return dice.choice([0, 0.4, -5, 100.4, 150])


def random_cycle(dice):
    period = dice.choice([dice.randint(2, 200), round(dice.uniform(2, 60), 1), 0])
    shift = dice.choice([dice.randint(-99, 99), round(dice.uniform(-20, 20), 1), 0])
    return [random_weight(dice), period, shift, dice.randint(0, 9)]


def random_cycles(dice):
    return [random_cycle(dice) for _ in range(dice.choice([1, 2, 3, 3, 3, 4, 5, 10]))]


class Agreement(Session):
    def expect(self, cycles):
        """Writes the parameter file. Returns what the companion finds with it."""
        path = os.path.join(self.folder, NAME)
        with open(path, "w", encoding="ascii") as file:
            file.writelines(", ".join(map(str, cycle)) + "\r\n" for cycle in cycles)
        self.desktop.hand_over(path)
        command = [COMPANION, "analyse", os.path.join(self.folder, "Wheat.txt"), "--parameters", path, "--json"]
        result = subprocess.run(command, check=False, capture_output=True, text=True, timeout=60)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return json.loads(result.stdout)

    def clear(self):
        """Parameters > New: a file leaves the cycles behind its last line as they were."""
        program = self.program
        has_weights = sum(float(row[0]) for row in program.grid()) != 0
        program.choose("Parameters", "New")
        if has_weights:
            program.answer("Save Parameter File", "No")
            program.wait_for_main()
        self.wait_until_equal(program.grid, [["0"] * 4] * 10, "an empty grid")

    def require_correlation(self, expected):
        program = self.program
        program.choose("Correlation")
        program.window(expected["Correlation"]["title"])
        self.assertEqual(program.grid(), expected["Grid"])
        self.assertEqual(program.answer(expected["Correlation"]["title"], "OK"), expected["Correlation"]["message"])
        program.wait_for_main()

    def require_forecast(self, expected):
        program = self.program
        program.choose("Forecast")
        if expected["Forecast"] is None:
            self.assertEqual(program.answer("Quorvex", "OK"),
                             "Insufficient cycle parameters data to create forecast values")
        else:
            window = program.window("Quorvex Forecast - [Wheat.txt]")
            for name, lines in (("Previous Closes", "List1"), ("Estimated Values", "List2")):
                shown = [item.name for item in window.find("list", name).find_all("list item", showing=False)]
                self.assertEqual(shown, expected["Forecast"][lines], name)
            program.choose("File", "Exit", window=window)
        program.wait_for_main()

    def test_random_parameter_files(self):
        dice = random.Random(SEED)
        program = self.start()
        program.open_quotes("Wheat.txt")
        for number in range(FILES):
            cycles = random_cycles(dice) if number else SCALED_TWICE
            with self.subTest(number=number, cycles=cycles):
                expected = self.expect(cycles)
                self.clear()
                program.open_parameters(NAME)
                self.wait_until_equal(program.grid, expected["Grid"], "the cycles of the file in the grid")
                self.require_correlation(expected)
                self.require_forecast(expected)
        print(f"{FILES} parameter files compared, seed {SEED}", flush=True)
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
