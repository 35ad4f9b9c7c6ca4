# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The chart page where no printer is installed."""

import os
import unittest

from session import Session

SAVED = "No printer is installed. The page was saved as\n"


class Printing(Session):
    def pages(self):
        return sorted(name for name in os.listdir(self.folder) if name.endswith(".pdf"))

    def require_page(self, name):
        """A box names the file, which is a whole one."""
        path = os.path.join(self.folder, name)
        self.program.answer_next("Quorvex", SAVED + path, "OK")
        with open(path, "rb") as file:
            content = file.read()
        self.assertTrue(content.startswith(b"%PDF-") and content.endswith(b"%%EOF\n"), name)

    def test_a_loaded_file_is_printed_twice_and_an_empty_chart_once(self):
        program = self.start()
        program.open_quotes("Wheat.txt")
        program.choose("File", "Print")
        self.require_page("Wheat chart.pdf")
        self.require_page("Wheat chart (2).pdf")
        program.wait_for_main()

        program.choose("File", "Close")
        self.wait_until_equal(lambda: program.main.name, "Quorvex", "the caption without a file")
        program.press_button(program.main, "Print")
        self.assertEqual(program.answer("Quorvex - Print Chart", "OK"), "Please load a quote data file")
        self.require_page("Quorvex chart.pdf")
        program.wait_for_main()
        self.assertEqual(self.pages(), ["Quorvex chart.pdf", "Wheat chart (2).pdf", "Wheat chart.pdf"])
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
