# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""A user who does anything in any order, and knows what the main window must show after each deed.

QUORVEX_ACTIONS says how many deeds, QUORVEX_SEED which. The companion works out what parameter files and fits must give.
"""

import contextlib
import json
import math
import os
import random
import re
import subprocess
import unittest

from session import CHARTS, COMPANION, CYCLES, SAMPLES, Session
from waiting import wait_for

ACTIONS = int(os.environ.get("QUORVEX_ACTIONS", "25"))
SEED = int(os.environ.get("QUORVEX_SEED", "1"))

CONTRACTS = ("CrudeOil.txt", "Gold.txt", "Wheat.txt")
EMPTY = [["0"] * 4 for _ in CYCLES]
FITS = ("One Cycle", "Two Cycles", "Three Cycles")
PARAMETER_FILE = "random.dat"
# Those that Escape closes, and whether they want quotes.
WINDOWS = ((("Preferences",), False), (("Legend",), False), (("Help", "Read Me"), False),
           (("Help", "About Quorvex"), False), (("File", "Properties"), True))


def percentages(cycles):
    """What reading the grid once makes of weights that add up to 99 or 101."""
    weights = [int(row[0]) for row in cycles]
    whole = max(sum(weights), 1)
    return [[str(math.floor(100 * weight / whole + 0.5)), *row[1:]] for weight, row in zip(weights, cycles, strict=True)]


def random_row(dice):
    """Weights below 1 and periods below 2 are none of a cycle; whole numbers stay what they are."""
    return [str(dice.randint(1, 100)), str(dice.randint(2, 200)), str(dice.randint(-99, 99)), str(dice.randint(0, 9))]


def random_cycles(dice):
    used = dice.randint(1, len(CYCLES))
    return [random_row(dice) if cycle <= used else ["0"] * 4 for cycle in CYCLES]


class RandomUse(Session):
    def setUp(self):
        super().setUp()
        self.dice = random.Random(SEED)
        self.contract = None
        self.cycles = EMPTY
        self.done = []

    def has_weights(self):
        return any(row[0] != "0" for row in self.cycles)

    def analyse_contract(self, *arguments):
        command = [COMPANION, "analyse", os.path.join(self.folder, self.contract), *arguments, "--json"]
        return json.loads(subprocess.run(command, check=True, capture_output=True, timeout=60).stdout)

    def require_quotes_first(self):
        self.assertEqual(self.program.answer("Quorvex", "OK"), "Please use File Open option to load a quote data file")

    # The deeds

    def open_contract(self):
        self.contract = self.dice.choice(CONTRACTS)
        self.program.open_quotes(self.contract)

    def close_contract(self):
        if self.contract is not None:
            self.program.choose("File", "Close")
            self.contract = None

    def fit(self):
        item = self.dice.choice(FITS)
        self.program.choose("Parameters", "Automate", item)
        if self.contract is None:
            self.require_quotes_first()
        else:
            self.cycles = self.analyse_contract("--automate", str(FITS.index(item) + 1))["Grid"]

    def open_parameters(self):
        if self.contract is None:
            return
        path = os.path.join(self.folder, PARAMETER_FILE)
        with open(path, "w", encoding="ascii") as file:
            file.writelines(", ".join(row) + "\r\n" for row in random_cycles(self.dice))
        self.desktop.hand_over(path)
        self.program.open_parameters(PARAMETER_FILE)
        self.cycles = self.analyse_contract("--parameters", path)["Grid"]

    def clear_parameters(self):
        self.program.choose("Parameters", "New")
        if self.has_weights():
            button = self.dice.choice(("No", "Cancel"))
            self.program.answer("Save Parameter File", button)
            self.cycles = self.cycles if button == "Cancel" else EMPTY

    def tell_correlation(self):
        self.program.choose("Correlation")
        if self.contract is None:
            self.require_quotes_first()
            return
        wait_for(self.program.showing_dialogs, "the correlation")
        title = self.program.showing_dialogs()[0].name
        text = self.program.answer(title, "OK")
        if self.has_weights():
            self.assertRegex(text, r"[0-9.]+%")

    def look_into_a_window(self):
        names, wants_quotes = self.dice.choice(WINDOWS)
        if wants_quotes and self.contract is None:
            return
        self.done.append(names[-1])
        self.program.choose(*names)
        wait_for(lambda: any(window.has("active") for window in self.program.showing_dialogs()), f"a window of {names}")
        self.desktop.press("Escape")

    def look_into_the_editor(self):
        if self.contract is not None:
            self.program.choose("File", "Edit")
            window = self.program.window(f"Quorvex - Edit - [{self.contract}]")
            self.program.choose("File", "Exit", window=window)

    def resize(self):
        width, height = self.dice.randint(700, 1270), self.dice.randint(500, 980)
        title = re.escape(self.program.main.name)
        self.desktop.xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowsize", str(width), str(height))

    def wander(self):
        """Keys that go from field to field."""
        self.desktop.press(*self.dice.choices(("Tab", "shift+Tab", "Up", "Down", "Home", "End"), k=5))

    # What must be there

    def require_state(self):
        program = self.program
        program.wait_for_main()
        title = "Quorvex" if self.contract is None else f"Quorvex - [{self.folder}{os.sep}{self.contract}]"
        self.wait_until_equal(lambda: program.main.name, title, "the caption")
        shown = self.wait_for_grid()
        self.assertIn(shown, (self.cycles, percentages(self.cycles)))
        self.cycles = shown
        if self.contract is None:
            self.assertEqual(program.chart(CHARTS[0]).description, "No quote file is open.")
            return
        cycles = "".join(f"Cycle {cycle}: weight {row[0]}, period {row[1]}. "
                         for cycle, row in enumerate(self.cycles, 1) if row[0] != "0")
        wait_for(lambda: cycles in program.chart(CHARTS[1]).description, "the cycles in their chart: " + cycles)

    def wait_for_grid(self):
        """A command reads the grid once at most."""
        expected = (self.cycles, percentages(self.cycles))
        with contextlib.suppress(AssertionError):  # the caller shows the difference
            wait_for(lambda: self.program.grid() in expected, "the grid")
        return self.program.grid()

    def require_samples(self):
        for name in os.listdir(SAMPLES):
            with open(os.path.join(SAMPLES, name), "rb") as before, open(os.path.join(self.folder, name), "rb") as after:
                self.assertEqual(before.read(), after.read(), name)
        left = [name for name in os.listdir(self.folder) if name.endswith((".tmp", ".edits"))]
        self.assertEqual(left, [])

    def test_any_deeds_in_any_order(self):
        deeds = (self.open_contract, self.open_contract, self.close_contract, self.fit, self.open_parameters,
                 self.open_parameters, self.clear_parameters, self.tell_correlation, self.look_into_a_window,
                 self.look_into_the_editor, self.resize, self.wander)
        self.start()
        for _ in range(ACTIONS):
            deed = self.dice.choice(deeds)
            self.done.append(deed.__name__)
            try:
                deed()
                self.require_state()
            except AssertionError as error:
                raise AssertionError(f"Seed {SEED}, after {', '.join(self.done)}") from error
        print(f"{ACTIONS} deeds, seed {SEED}", flush=True)
        self.program.choose("File", "Exit")
        self.require_end(self.program)
        self.require_samples()


if __name__ == "__main__":
    unittest.main()
