# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Takes the pictures of the README from the real program. The folder for them is the one argument."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

from desktop import Desktop
from session import DOCUMENTS, SAMPLES, EXECUTABLE, Program
from waiting import wait_for

# Name, size of the window in pixels of the screen, scale.
SIZES = (("", 1100, 800, 1), ("-1920x1080", 1920, 1080, 1), ("-3840x2160", 3840, 2160, 2))
CHART_TYPES = (("bars", "Daily Bar Chart"), ("candlesticks", "Candlestick Chart"), ("line", "Line Chart"))


CONVERT = ("File", "Convert")
UTILITY = "Data Conversion Utility - "

# Name of the picture, menu item that closes the window, its title, and the menu item that opens it.
SECONDARY_WINDOWS = (
    ("editor", ("File", "Exit"), "Quorvex - Edit - [Wheat.txt]", "File", "Edit"),
    ("convert-csi", ("File", "Exit"), UTILITY + "Commodity Systems, Inc.", *CONVERT, "Commodity Systems, Inc."),
    ("convert-barchart", ("File", "Exit"), UTILITY + "Barchart Files", *CONVERT, "Barchart"),
    ("convert-custom", ("File", "Exit"), UTILITY + "Custom Files", *CONVERT, "Custom"),
    ("properties", None, "Quorvex - Quote Data Set Properties", "File", "Properties"),
    ("preferences", ("File", "Exit"), "Quorvex - Program Preferences", "Preferences"),
    ("legend", ("Exit",), "Quorvex - Legend", "Legend"),
    ("help", ("File", "Exit"), "Quorvex Help", "Help", "Quick Start"),
    ("about", None, "About Quorvex", "Help", "About Quorvex"),
)


class Studio:
    """The program with the three best cycles of a real contract, on a screen of its own."""

    def __init__(self, width, height, scale, chart_type):
        self.desktop = Desktop(width + 40, height + 80, scale)
        folder = tempfile.mkdtemp(prefix="Quorvex-", dir=self.desktop.folder)
        self.desktop.hand_over(folder)
        executable = shutil.copy2(EXECUTABLE, folder)
        for source in (SAMPLES, DOCUMENTS):
            for name in os.listdir(source):
                self.desktop.hand_over(shutil.copy2(os.path.join(source, name), folder))
        with open(os.path.join(folder, "Quorvex.INI"), "w", encoding="ascii", newline="\r\n") as settings:
            settings.write(f"[Globals]\nChartType={chart_type}\n")
        self.program = Program(self.desktop, executable)
        self.resize(width, height)

    def resize(self, width, height):
        """Gives the window's client area, menu bar included, this size."""
        identifier = self.window_number("Quorvex")
        self.desktop.xdotool("windowsize", "--sync", identifier, str(width), str(height))
        self.desktop.xdotool("windowmove", "--sync", identifier, "10", "40")

    def window_number(self, title):
        found = wait_for(lambda: self.desktop.xdotool("search", "--onlyvisible", "--name", f"^{title}", check=False)
                         .stdout.split(), f"the window {title!r} on the screen")
        return found[-1]

    def analyse(self):
        self.program.choose("File", "Open")
        self.program.choose_file("Open Quote File", "Wheat.txt")
        self.program.wait_for_main()
        window = self.find_best_cycles()
        self.program.press_button(window, "OK")
        self.program.wait_for_main()
        wait_for(lambda: self.program.cell(3, "Weight").text != "0", "three cycles")

    def find_best_cycles(self):
        """The window that looks for them, when it has found them. A cycle may be as long as the series."""
        self.program.chart("Composite estimate cycle chart").focus()
        self.desktop.press("Menu", "f")
        window = self.program.window("Quorvex - Find Best Cycles - [Wheat.txt]")
        self.desktop.press("alt+l")
        self.desktop.type("250")
        wait_for(lambda: window.find("spin box", "Longest Period").text == "250 days", "the longest period")
        wait_for(lambda: not window.find_all("progress bar"), "the end of the search")
        return window

    def test_forecast(self):
        self.program.chart("Composite estimate cycle chart").focus()
        self.desktop.press("Menu", "t")
        window = self.program.window("Quorvex - Test Forecast - [Wheat.txt]")
        wait_for(lambda: not window.find_all("progress bar"), "the end of the test")

    def import_table(self):
        """The window that imports a table: the sample as a vendor has it, the newest day first."""
        path = os.path.join(self.desktop.folder, "ZW_daily.csv")
        with open(os.path.join(SAMPLES, "Wheat.txt"), encoding="ascii") as quotes:
            rows = [line.replace(" ", "").strip().split(",") for line in quotes]
        with open(path, "w", encoding="ascii") as table:
            table.write("Symbol,Time,Last,Open,High,Low,Change,Volume,Open Int\n")
            for date, opening, high, low, close, volume, interest in reversed(rows):
                change = float(close) - float(opening)
                table.write(f"ZW,{date},{close},{opening},{high},{low},{change:+.2f},{volume},{interest}\n")
            table.write("Downloaded from a vendor\n")
        self.desktop.hand_over(path)
        self.program.choose_table(path)

    def take(self, title, path):
        """A picture of the window alone, without the window manager's frame."""
        subprocess.run(["import", "-window", self.window_number(title), path], env=self.desktop.environment,
                       check=True)

    def close(self):
        self.desktop.close()


def take_main_windows(folder):
    for size_name, width, height, scale in SIZES:
        for chart_name, chart_type in CHART_TYPES:
            studio = Studio(width, height, scale, chart_type)
            try:
                studio.analyse()
                studio.take("Quorvex", os.path.join(folder, f"main-{chart_name}{size_name}.png"))
                if size_name == "" and chart_name == "bars":
                    take_dialogs(studio, folder)
            finally:
                studio.close()


def take_dialogs(studio, folder):
    program = studio.program
    program.choose("Correlation")
    program.window("Quorvex - Coefficient of Correlation")
    studio.take("Quorvex - Coefficient", os.path.join(folder, "correlation.png"))
    program.answer("Quorvex - Coefficient of Correlation", "OK")
    program.wait_for_main()
    program.choose("Forecast")
    forecast = program.window("Quorvex Forecast - [Wheat.txt]")
    studio.take("Quorvex Forecast", os.path.join(folder, "forecast.png"))
    program.choose("File", "Exit", window=forecast)
    program.wait_for_main()
    studio.find_best_cycles()
    studio.take("Quorvex - Find Best Cycles", os.path.join(folder, "find-cycles.png"))
    studio.desktop.press("Escape")
    program.wait_for_main()
    studio.test_forecast()
    studio.take("Quorvex - Test Forecast", os.path.join(folder, "test-forecast.png"))
    studio.desktop.press("Escape")
    program.wait_for_main()
    studio.import_table()
    studio.take("Quorvex - Import", os.path.join(folder, "import.png"))
    studio.desktop.press("Escape")
    program.wait_for_main()
    for picture, exit_item, title, *command in SECONDARY_WINDOWS:
        program.choose(*command)
        window = program.window(title)
        studio.take(re.escape(title), os.path.join(folder, picture + ".png"))
        if exit_item:
            program.choose(*exit_item, window=window)
        else:
            studio.desktop.press("Escape")
        program.wait_for_main()


if __name__ == "__main__":
    take_main_windows(os.path.abspath(sys.argv[1]))
