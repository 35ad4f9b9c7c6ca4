# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Vendors' files turned into quote files in the converters' windows, and the result analysed."""

import os
import unittest

from session import Session
from waiting import wait_for

UTILITY = "Data Conversion Utility"


class Converting(Session):
    def setUp(self):
        super().setUp()
        self.executable = self.install()
        with open(os.path.join(self.folder, "Wheat.txt"), encoding="ascii") as file:
            self.quotes = [line.split(", ") for line in file.read().splitlines()]

    def write(self, name, lines):
        """Puts a vendor's file into the program's folder. Returns its path."""
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="ascii", newline="\r\n") as file:
            file.writelines(line + "\n" for line in lines)
        self.desktop.hand_over(path)
        return path

    def open_converter(self, item, caption):
        self.program.choose("File", "Convert", item)
        return self.program.window(f"{UTILITY} - {caption}")

    def convert(self, window, frame, source, destination):
        window.find("text", frame).set_text(source)
        window.find("text", "Veltrano Destination File Name").set_text(destination)
        self.program.press_button(window, "Convert")

    def leave(self, window):
        wait_for(lambda: window.has("active"), "the converter")
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()

    def test_an_export_becomes_the_quotes_it_was_made_of(self):
        program = self.start(self.executable)
        program.open_quotes("Wheat.txt")
        original = program.chart_descriptions()
        source = self.write("export.csv", (f"20{date[6:]}{date[:2]}{date[3:5]},{','.join(fields)}"
                                           for date, *fields in self.quotes))
        destination = os.path.join(self.folder, "Converted.txt")
        window = self.open_converter("Commodity Systems, Inc.", "Commodity Systems, Inc.")
        self.convert(window, "CSI Source File Name", source, destination)
        self.assertEqual(program.answer(UTILITY, "OK"), f"Data file {destination} created successfully")
        self.leave(window)
        program.open_quotes("Converted.txt")
        self.assertEqual(program.main.name, f"Quorvex - [{destination}]")
        self.assertEqual(program.chart_descriptions(), original)
        with open(destination, encoding="ascii") as file:
            self.assertEqual([line.split(", ") for line in file.read().splitlines()], self.quotes)
        program.choose("File", "Exit")
        self.require_end(program)

    def test_a_bad_record_is_told_and_leaves_nothing(self):
        program = self.start(self.executable)
        lines = [f"W,Z2019,{date[6:]}{date[:2]}{date[3:5]},{','.join(fields)}" for date, *fields in self.quotes]
        lines[41] = lines[41].rpartition(",")[0]
        source = self.write("download.txt", lines)
        destination = os.path.join(self.folder, "Bad.txt")
        window = self.open_converter("Barchart", "Barchart Files")
        button = next(button for button in window.find_all("radio button") if button.name.startswith("G Format"))
        button.act("Toggle" if "Toggle" in button.actions() else "Press")
        wait_for(lambda: button.has("checked"), "the layout G")
        self.convert(window, "Barchart Source File Name", source, destination)
        self.assertEqual(program.answer(UTILITY, "OK"), "Wrong number of fields!")
        program.answer_next(UTILITY, f"Invalid record at line 42 in\nfile {source}", "OK")
        self.assertFalse(os.path.exists(destination))
        self.leave(window)
        program.choose("File", "Exit")
        self.require_end(program)

    def test_a_browsed_file_is_previewed_and_the_help_explains_it(self):
        program = self.start(self.executable)
        source = self.write("own.csv", (",".join(fields) for fields in self.quotes))
        destination = os.path.join(self.folder, "Own.txt")
        program.press_button(program.main, "Convert")  # the image of the tool strip
        window = program.window(f"{UTILITY} - Custom Files")
        self.program.press_button(window, "Browse")
        dialog = wait_for(lambda: next((inner for inner in program.showing_dialogs()
                                        if inner not in (window, program.main)), None), "the file dialog")
        wait_for(lambda: dialog.has("active"), "the file dialog's activation")
        self.desktop.type(source)
        self.desktop.press("Return")
        preview = wait_for(lambda: window.find("text", "Source File Contents"), "the preview")
        self.wait_until_equal(lambda: preview.text.splitlines()[:1], [",".join(self.quotes[0])], "the first line")
        self.assertEqual(window.find("text", "Custom Source File Name").text, source)

        self.program.choose("Help", window=window)
        help_window = program.window("Quorvex Help")
        self.assertIn("Custom", help_window.find("text", "Help document").text)
        program.choose("File", "Exit", window=help_window)

        wait_for(lambda: window.has("active"), "the converter")
        self.convert(window, "Custom Source File Name", source, destination)
        self.assertEqual(program.answer(UTILITY, "OK"), f"Data file {destination} created successfully")
        self.leave(window)
        program.open_quotes("Own.txt")
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
