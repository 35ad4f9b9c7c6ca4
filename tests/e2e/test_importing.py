# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""A vendor's table becomes the open contract, and is brought up to date, by keyboard and by mouse."""

import csv
import os
import subprocess
import unittest

from session import CHARTS, COMPANION, SAMPLES, Session
from waiting import wait_for

DRAG_SOURCE = os.environ["QUORVEX_DRAG_SOURCE"]
HEAD = ("Time", "Last", "Open", "High", "Low", "Volume", "Open Int")


class Importing(Session):
    def write_table(self, name, days):
        """The first days of the sample as a vendor has them: with a head, in other columns, the newest day first."""
        path = os.path.join(self.folder, name)
        with open(os.path.join(SAMPLES, "Wheat.txt"), encoding="ascii", newline="") as quotes:
            rows = [[field.strip() for field in row] for row in csv.reader(quotes) if row][:days]
        with open(path, "w", encoding="ascii", newline="") as file:
            table = csv.writer(file, delimiter=";")
            table.writerow(HEAD)
            for date, opening, high, low, close, volume, interest in reversed(rows):
                table.writerow((date, close, opening, high, low, volume, interest))
        self.desktop.hand_over(path)
        return path

    def require_open(self, name, days):
        self.program.wait_for_main()
        self.wait_until_equal(lambda: self.program.main.name, f"Quorvex - [{self.folder}/{name}]", "the caption")
        wait_for(lambda: f" {days} days" in self.program.chart(CHARTS[0]).description, f"a chart of {days} days")

    def import_by_companion(self, path):
        command = [COMPANION, "import", path, "-o", "-"]
        return subprocess.run(command, check=True, capture_output=True, timeout=60).stdout

    def require_quotes(self, name, table):
        with open(os.path.join(self.folder, name), "rb") as file:
            self.assertEqual(file.read(), self.import_by_companion(table))

    def test_a_file_dragged_from_another_program_is_open_two_steps_later(self):
        program = self.start()
        table = self.write_table("winter.csv", 40)
        self.desktop.drag_file(DRAG_SOURCE, table, program.chart(CHARTS[0]))
        window = program.wait_for_table(table)
        self.desktop.click(window.find("push button", "Import"))
        self.require_open("winter.txt", 40)
        self.require_quotes("winter.txt", table)
        program.choose("File", "Exit")
        self.require_end(program)

    def test_window(self):
        program = self.start()
        first = self.write_table("winter.csv", 40)
        window = self.program.choose_table(first)
        boxes = {box.description: box.name for box in window.find_all("combo box") if "Column" in box.description}
        roles = ("date", "close", "open", "high", "low", "volume", "open interest")
        self.assertEqual(boxes, {f"Column {number}  {head}": role
                                 for number, (head, role) in enumerate(zip(HEAD, roles), 1)})
        result = next(label.name for label in window.find_all("label") if "Quote file: " in label.name)
        self.assertIn("40 rows, newest first: 40 days", result)
        self.desktop.press("Return")
        self.require_open("winter.txt", 40)
        self.require_quotes("winter.txt", first)
        self.update_by_mouse()
        program.choose("File", "Exit")
        self.require_end(program)

    def update_by_mouse(self):
        second = self.write_table("spring.csv", 45)
        window = self.program.choose_table(second)
        self.desktop.press("alt+n")
        self.desktop.type("winter.txt")
        wait_for(lambda: window.find("push button", "Update").has("enabled"), "a file to be brought up to date")
        self.desktop.click(window.find("push button", "Update"))
        self.require_open("winter.txt", 45)
        self.require_quotes("winter.txt", second)
        self.assertTrue(os.path.exists(os.path.join(self.folder, "winter.txt~")))


if __name__ == "__main__":
    unittest.main()
