# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The program by keyboard alone."""

import os
import unittest

from session import CHARTS, CYCLES, PARAMETERS, Session
from waiting import Gone, wait_for

CELLS = [f"Cycle {cycle} {parameter}" for parameter in PARAMETERS for cycle in CYCLES]


class Keyboard(Session):
    def press(self, *keys):
        self.desktop.press(*keys)

    def focused(self):
        """The object that has the focus in the active window."""
        for window in self.program.root.children():
            if window.has("active"):
                return window.focused()
        raise Gone("no window is active")

    def wait_for_focus(self, name):
        wait_for(lambda: self.focused().name == name, f"the focus on {name!r}")

    def tab_to(self, name):
        for _ in range(len(CELLS) + len(CHARTS) + 6):
            try:
                if self.focused().name == name:
                    return
            except Gone:
                pass  # nothing has it before the first Tab
            self.press("Tab")
        self.fail(f"Tab never comes to {name!r}")

    def open_quotes(self, name):
        self.press("alt+f", "o")
        chooser = self.program.window("Open Quote File")
        self.assertFalse(chooser.find("push button", "OK").has("enabled"), "OK with nothing chosen")
        names = [item.name for item in wait_for(lambda: chooser.find_all("list item"), "the quote files")]
        self.press(*["Down"] * (names.index(name) + 1))
        wait_for(lambda: chooser.find("label", name), "the chosen name in its label")
        self.press("Return")
        self.program.wait_for_main()

    def tool_tip(self):
        for window in self.program.root.children():
            if window.role == "tool tip" and window.has("showing"):
                return window.name
        raise Gone("no tool tip shows")

    def test_the_focus_follows_reading_order(self):
        self.start()
        self.tab_to("Open")
        for name in ["Close", "Edit", "Convert", "Print", "Properties", *CELLS, *CHARTS, "Open"]:
            self.press("Tab")
            self.wait_for_focus(name)

    def test_an_analysis(self):
        program = self.start()
        self.open_quotes("Wheat.txt")
        self.type_cycles()
        self.read_a_chart()
        self.forecast()
        self.clear()
        self.press("alt+f", "x")
        self.require_end(program)

    def type_cycles(self):
        self.tab_to("Cycle 1 Weight")
        self.desktop.type("1")
        self.press("Down")
        self.desktop.type("12.6")
        self.press("Up", "Tab")
        self.wait_for_focus("Cycle 2 Weight")
        self.desktop.type("3")
        self.press("Return")
        self.desktop.type("30")
        self.press("alt+r")
        self.wait_until_equal(lambda: [row[:2] for row in self.program.grid()[:2]], [["25", "13"], ["75", "30"]],
                              "the weights in percent, the periods as whole numbers")

    def read_a_chart(self):
        self.tab_to("Composite estimate cycle chart")
        self.press("End")
        wait_for(lambda: self.tool_tip().startswith("11/05/19"), "the values of the last day")
        self.press("Left")
        wait_for(lambda: self.tool_tip().startswith("11/04/19"), "the values of the day before")
        self.assertIn("Composite: ", self.tool_tip())
        self.press("Menu", "a")  # Save Image As...
        self.program.window("Save Image As")
        picture = os.path.join(self.folder, "composite.png")
        self.desktop.type(picture)
        self.press("Return")
        self.program.wait_for_main()
        with open(picture, "rb") as file:
            self.assertEqual(file.read(8), b"\x89PNG\r\n\x1a\n")

    def forecast(self):
        self.press("alt+c")
        self.program.window("Quorvex - Coefficient of Correlation")
        self.press("Return")
        self.program.wait_for_main()
        self.press("alt+o")
        window = self.program.window("Quorvex Forecast - [Wheat.txt]")
        self.assertEqual(self.focused().find_all("list item", showing=False)[0].name.split()[0], "226")
        self.press("alt+f", "x")
        self.program.wait_for_main()
        self.press("alt+o")
        self.program.window(window.name)
        self.press("Escape")
        self.program.wait_for_main()

    def clear(self):
        for key, weights in (("Escape", ["25", "75"]), ("alt+n", ["0", "0"])):
            self.press("alt+p", "n")
            self.program.window("Save Parameter File")
            self.press(key)
            self.program.wait_for_main()
            self.wait_until_equal(lambda: [row[0] for row in self.program.grid()[:2]], weights,
                                  f"the weights after {key}")


if __name__ == "__main__":
    unittest.main()
