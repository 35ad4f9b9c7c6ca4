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

    def wait_for_status(self, window, text):
        """Until the status line says so: what a screen reader is told."""
        self.wait_until_equal(lambda: window.find("status bar").name, text, "the status line")

    def wait_for_editor(self, window):
        wait_for(lambda: window.has("active"), "the editor")

    def close_box(self, window, title, key="Return"):
        """Answers the box of this title by a key. Returns its text."""
        box = self.program.window(title)
        text = "\n".join(label.name for label in box.find_all("label") if label.name)
        self.desktop.press(key)
        self.wait_for_editor(window)
        return text

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
        self.wait_for_editor(window)
        program.choose("Edit", "Delete Row", window=window)
        self.assertEqual(program.answer("Delete Row", "Yes"), f"Delete row no. {DAYS + 1}?")
        self.wait_for_editor(window)
        program.choose("File", "Print", window=window)
        listing = os.path.join(self.folder, "Wheat listing.pdf")
        self.assertEqual(program.answer("Quorvex", "OK"),
                         "No printer is installed. The page was saved as\n" + listing)
        self.assertGreater(os.path.getsize(listing), 1000)
        self.wait_for_editor(window)
        self.assertEqual(self.lines("Wheat.txt"), before)
        self.type_last_close("513")
        program.choose("File", "Save", window=window)
        changed = [*before[:DAYS - 1], before[DAYS - 1].replace("520.25", "513.00"), ""]
        self.wait_until_equal(lambda: self.lines("Wheat.txt"), changed, "the saved file")
        self.wait_for_status(window, f"{DAYS} rows saved to Wheat.txt")
        self.leave(window)
        program.choose("File", "Exit")
        self.require_end(program)

    def test_an_edit_by_keys_alone_keeps_every_character(self):
        press, write = self.desktop.press, self.desktop.type
        program = self.start()
        program.open_quotes("Wheat.txt")
        before = self.lines("Wheat.txt")
        press("alt+f", "e")
        window = program.window("Quorvex - Edit - [Wheat.txt]")
        press("ctrl+End")
        write("1")  # a cell editor is open from here on, whenever a menu is opened
        press("alt+e", "a")
        self.wait_until_equal(lambda: window.find("table").row_count(), DAYS + 1, "the rows")
        write("11/08/19\t521\t522.5\t519\t5x")
        press("alt+f", "s")  # the Close is a number, but for what follows it
        self.wait_for_status(window, f"Not saved: row {DAYS + 1}, Close is not a number")
        write("520.75")
        press("alt+e", "h")
        self.close_box(window, "Quorvex - Edit Help")
        press("Home")
        write("soon")
        press("alt+f", "s")
        self.assertEqual(self.close_box(window, "Edit - Invalid Data Entry"),
                         f"Invalid data entry on row {DAYS + 1}")
        self.wait_for_status(window, f"Not saved: row {DAYS + 1}, Date is not a date")
        write("11/08/19")
        press("alt+f", "s")
        self.wait_for_status(window, f"{DAYS + 1} rows saved to Wheat.txt")
        added = "11/08/19, 521.00, 522.50, 519.00, 520.75, 0, 0"
        self.assertEqual(self.lines("Wheat.txt"), [*before[:DAYS], added, ""])
        press("ctrl+Home")
        write("9")
        press("alt+e", "d")
        self.assertEqual(self.close_box(window, "Delete Row"), "Delete row no. 1?")
        write("01/02/18")
        press("alt+f", "s")
        self.wait_for_status(window, f"{DAYS} rows saved to Wheat.txt")
        self.assertEqual(self.lines("Wheat.txt")[0].split(",")[0], "01/02/18")
        press("alt+f", "x")
        program.wait_for_main()
        press("alt+f", "x")
        self.require_end(program)

    def test_a_save_that_is_not_permitted_says_so_without_a_box(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        before = self.lines("Wheat.txt")
        window = self.edit("Wheat.txt")
        self.type_last_close("513")
        os.chmod(os.path.join(self.folder, "Wheat.txt"), 0o444)
        announcements = self.desktop.bus.announcements_of(window.find("status bar"))
        program.choose("File", "Save", window=window)
        self.wait_for_status(window, "Not saved: Permission denied")
        self.wait_until_equal(announcements, 1, "the announcement to screen readers")
        self.assertTrue(window.has("active"), "a box was shown")
        self.assertEqual(self.lines("Wheat.txt"), before)
        self.leave(window)
        program.choose("File", "Exit")
        self.require_end(program)


    def test_what_was_typed_survives_a_kill(self):
        press = self.desktop.press
        executable = self.install()
        program = self.start(executable)
        program.open_quotes("Wheat.txt")
        before = self.lines("Wheat.txt")
        self.edit("Wheat.txt")
        self.type_last_close("513")
        press("Up", "Left")
        for price in ("530", "777"):
            self.desktop.type(price)
            press("Return")
        press("ctrl+z")
        kept = os.path.join(self.folder, "Wheat.txt.edits")

        def has_undone():
            with open(kept, encoding="utf-8") as file:
                return file.read().count("\nedit\n") == 4
        wait_for(lambda: os.path.exists(kept) and has_undone(), "the kept edits")
        self.desktop.type("12")  # is still being typed when the program dies
        program.process.kill()
        program.process.wait()
        program = self.start(executable)
        program.open_quotes("Wheat.txt")
        self.assertEqual(self.lines("Wheat.txt"), before)
        window = self.edit("Wheat.txt")
        self.wait_for_status(window, "Edits of these quotes were not saved. Restore Unsaved Edits in the context menu "
                                     "of the cells brings them back.")
        press("shift+F10", "s")
        self.wait_for_status(window, "Unsaved edits restored")
        program.choose("File", "Save", window=window)
        self.wait_for_status(window, f"{DAYS} rows saved to Wheat.txt")
        after = self.lines("Wheat.txt")
        self.assertEqual(after[:DAYS - 2], before[:DAYS - 2])
        self.assertEqual(after[DAYS - 2].split(", ")[3], "530.00")
        self.assertEqual(after[DAYS - 1], before[DAYS - 1].replace("520.25", "513.00"))
        self.assertFalse(os.path.exists(kept))
        self.leave(window)
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
