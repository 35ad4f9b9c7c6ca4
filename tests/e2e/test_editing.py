# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""A contract corrected, extended and listed in the quote editor, as somebody at the keyboard does it."""

import os
import unittest

from session import Session
from waiting import wait_for

DAYS = 250


class Editing(Session):
    def edit(self, name):
        self.program.choose("File", "Edit")
        return self.program.window(f"Quorvex - Edit - [{name}]")

    def leave(self, window):
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()

    def lines(self, name):
        with open(os.path.join(self.folder, name), encoding="ascii", newline="") as file:
            return file.read().split("\r\n")

    def type_last_close(self, price):
        """Goes to the Close of the last day and types over it."""
        self.desktop.press("ctrl+End", "Left", "Left")
        self.desktop.type(price)
        self.desktop.press("Return")

    def save_as(self, window, name):
        self.program.choose("File", "Save As...", window=window)
        box = self.program.window("Save As...")
        box.find("text").set_text(name)
        self.program.press_button(box, "OK")
        wait_for(lambda: os.path.exists(os.path.join(self.folder, name)), f"the file {name}")

    def last_close(self):
        return self.program.chart_descriptions()[0].split("last close ")[1].split(". ")[0]

    def test_a_correction_is_saved_under_another_name_and_opened(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        window = self.edit("Wheat.txt")
        self.type_last_close("512.5")
        self.save_as(window, "Edited.txt")
        self.leave(window)
        self.assertEqual(program.main.name, f"Quorvex - [{self.folder}{os.sep}Edited.txt]")
        self.assertEqual(self.last_close(), "520.25")  # the quotes in memory are still those of the old file
        before, after = self.lines("Wheat.txt"), self.lines("Edited.txt")
        self.assertEqual(after[:DAYS - 1], before[:DAYS - 1])
        self.assertEqual(after[DAYS - 1], before[DAYS - 1].replace("520.25", "512.50"))
        self.assertEqual(after[DAYS:], [""])
        program.open_quotes("Edited.txt")
        self.assertEqual(self.last_close(), "512.50")
        program.choose("File", "Exit")
        self.require_end(program)

    def test_rows_are_appended_refused_and_deleted_and_the_listing_is_printed(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        before = self.lines("Wheat.txt")
        window = self.edit("Wheat.txt")
        program.choose("Edit", "Append Row", window=window)
        program.choose("File", "Save", window=window)
        self.assertEqual(program.answer("Edit - Invalid Data Entry", "OK"),
                         f"Invalid data entry on row {DAYS + 1}")
        self.assertEqual(self.lines("Wheat.txt"), before)
        wait_for(lambda: window.has("active"), "the editor")
        program.choose("Edit", "Delete Row", window=window)
        self.assertEqual(program.answer("Delete Row", "Yes"), f"Delete row no. {DAYS + 1}?")
        wait_for(lambda: window.has("active"), "the editor")
        program.choose("File", "Print", window=window)
        listing = os.path.join(self.folder, "Wheat listing.pdf")
        self.assertEqual(program.answer("Quorvex", "OK"),
                         "No printer is installed. The page was saved as\n" + listing)
        self.assertGreater(os.path.getsize(listing), 1000)
        wait_for(lambda: window.has("active"), "the editor")
        self.assertEqual(self.lines("Wheat.txt"), before)
        self.type_last_close("513")
        program.choose("File", "Save", window=window)
        changed = [*before[:DAYS - 1], before[DAYS - 1].replace("520.25", "513.00"), ""]
        self.wait_until_equal(lambda: self.lines("Wheat.txt"), changed, "the saved file")
        self.leave(window)
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
