# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""What is chosen in the preferences, and how long it lasts."""

import os
import unittest

from session import Session
from waiting import wait_for

START, END = "05/01/19", "09/30/19"


class Settings(Session):
    def preferences(self):
        self.program.choose("Preferences")
        return self.program.window("Quorvex - Program Preferences")

    def leave(self, window):
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()

    @staticmethod
    def type_into(window, name, text):
        window.find("text", name).set_text(text)

    def choose(self, window, name, text):
        """Types one of a list's texts into its box and takes it with Enter."""
        field = window.find("text", name)
        field.focus()
        wait_for(lambda: field.has("focused"), f"the focus on {name!r}")
        field.set_text(text)
        self.desktop.press("Return")

    @staticmethod
    def texts(window):
        return {field.name: field.text for field in window.find_all("text")}

    def quotes_chart(self):
        return self.program.chart_descriptions()[0]

    def require_defaults(self):
        self.assertRegex(self.quotes_chart(), r"^Daily bar chart .* last close 520\.25\. 3-day moving average")
        window = self.preferences()
        texts = self.texts(window)
        self.assertEqual((texts["Chart Type"], texts["Moving Average Index"], texts["Currency Format"]),
                         ("Daily Bar Chart", "3", "####0.00"))
        self.leave(window)

    def change(self, window):
        self.type_into(window, "Chart Type", "Candlestick Chart")
        self.type_into(window, "Moving Average Index", "9")
        self.type_into(window, "Currency Format", "####0.0")

    def require_changes(self):
        self.assertRegex(self.quotes_chart(), r"^Candlestick chart .* last close 520\.3\. 9-day moving average")

    def exit_and_start_again(self):
        executable = self.program.executable
        self.program.choose("File", "Exit")
        self.require_end(self.program)
        self.start(executable).open_quotes("Wheat.txt")

    def test_saved_settings_last_and_others_do_not(self):
        self.start().open_quotes("Wheat.txt")
        self.require_defaults()

        window = self.preferences()
        self.change(window)
        self.leave(window)
        self.require_changes()  # at once
        self.assertFalse(os.path.exists(os.path.join(self.folder, "Quorvex.INI")))
        self.exit_and_start_again()
        self.require_defaults()

        window = self.preferences()
        self.change(window)
        self.program.choose("File", "Save Settings", window=window)
        wait_for(lambda: os.path.exists(os.path.join(self.folder, "Quorvex.INI")), "the INI file")
        self.leave(window)
        self.require_changes()
        self.exit_and_start_again()
        self.require_changes()
        self.assertEqual(self.texts(window := self.preferences())["Currency Format"], "####0.0")
        self.leave(window)
        self.program.choose("File", "Exit")
        self.require_end(self.program)

    def properties(self):
        """The figures of the properties window, by their names."""
        self.program.choose("File", "Properties")
        window = self.program.window("Quorvex - Quote Data Set Properties")
        figures = {label.description: label.name for label in window.find_all("label") if label.description}
        self.program.press_button(window, "Exit")
        self.program.wait_for_main()
        return figures

    def correlation(self, expected):
        self.program.choose("Correlation")
        text = self.program.answer(expected["Correlation"]["title"], "OK")
        self.program.wait_for_main()
        return text

    def estimates(self):
        self.program.choose("Forecast")
        window = self.program.window("Quorvex Forecast - [Wheat.txt]")
        lines = [item.name for item in window.find("list", "Estimated Values").find_all("list item", showing=False)]
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()
        return lines

    def require_everything_of(self, expected, span):
        """All windows speak of the days that the companion analysed."""
        self.assertIn(span, self.quotes_chart())
        for description in self.program.chart_descriptions()[1:]:
            self.assertIn(span, description)
        labels = {"Start Date": "lblStartDate", "End Date": "lblEndDate", "No. of Quotes": "lblNumQuotes",
                  "Open": "lblOpen", "High": "lblHigh", "Low": "lblLow", "Close": "lblClose",
                  "Range": "lblRange", "Mean": "lblMean"}
        figures = self.properties()
        self.assertEqual({name: figures[name] for name in labels},
                         {name: expected["Properties"][label] for name, label in labels.items()})
        self.assertEqual(self.correlation(expected), expected["Correlation"]["message"])
        self.assertEqual(self.estimates(), expected["Forecast"]["List2"])

    def test_a_date_range_narrows_everything_and_can_be_undone(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        program.open_parameters("Wheat.dat")
        parameters = ["--parameters", os.path.join(self.folder, "Wheat.dat")]
        whole = self.analyse(*parameters)
        narrowed = self.analyse(*parameters, "--start", START, "--end", END)
        self.assertLess(narrowed["WorkingCount"], whole["WorkingCount"])
        self.require_everything_of(whole, "250 days, 11/06/18 to 11/05/19")

        window = self.preferences()
        self.choose(window, "Start Date", START)
        self.choose(window, "End Date", END)
        count = window.find("text", "Number of Quotes")
        self.wait_until_equal(lambda: count.text, str(narrowed["WorkingCount"]), "the number of quotes")
        self.leave(window)
        self.require_everything_of(narrowed, f"{narrowed['WorkingCount']} days, {START} to {END}")

        window = self.preferences()
        program.choose("File", "Restore Defaults", window=window)
        self.wait_until_equal(lambda: self.texts(window)["Start Date"], "11/06/18", "the first day")
        self.leave(window)
        self.require_everything_of(whole, "250 days, 11/06/18 to 11/05/19")


if __name__ == "__main__":
    unittest.main()
