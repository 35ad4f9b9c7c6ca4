# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""Companions that write the same files at the same time.

QUORVEX_COMPANION names the program."""

import datetime
import os
import subprocess
import tempfile
import unittest

COMPANION = os.environ["QUORVEX_COMPANION"]
WRITERS = 8
ROUNDS = 5
HEAD = "Date,Open,High,Low,Close,Volume,Open Interest\n"


def table(first, count):
    """A table of so many days from this one on, counted from the year 2001 on."""
    days = (datetime.date(2001, 1, 1) + datetime.timedelta(days=first + day) for day in range(count))
    return HEAD + "".join(f"{day},10.25,11,10,10.5,100,200\n" for day in days)


class TwoAtOnce(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = temporary.name
        self.quotes = os.path.join(self.folder, "quotes.txt")

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="ascii", newline="") as file:
            file.write(text)
        return path

    def lines(self, name="quotes.txt"):
        with open(os.path.join(self.folder, name), encoding="ascii", newline="") as file:
            return file.read().splitlines()

    def run_at_once(self, commands):
        started = [subprocess.Popen([COMPANION, *command], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
                   for command in commands]
        for process in started:
            _, errors = process.communicate(timeout=60)
            self.assertEqual((process.returncode, errors), (0, b""))

    def require_no_remains(self, *names):
        entries = set(os.listdir(self.folder)) - {f"table{writer}.csv" for writer in range(WRITERS)}
        self.assertEqual(entries, set(names))

    def test_days_that_are_brought_in_at_once_are_all_there(self):
        """Each writer brings in a day of its own in each round, into the same file."""
        start = self.write("table0.csv", table(0, 30))
        subprocess.run([COMPANION, "import", start, "-o", self.quotes], check=True, capture_output=True, timeout=60)
        for round_ in range(ROUNDS):
            tables = [self.write(f"table{writer}.csv", table(30 + round_ * WRITERS + writer, 1))
                      for writer in range(WRITERS)]
            # The first days of a round may come last.
            self.run_at_once([["import", path, "--into", self.quotes] for path in tables])
            self.assertEqual(len(self.lines()), 30 + (round_ + 1) * WRITERS)
            self.assertEqual(len(self.lines("quotes.txt~")), len(self.lines()) - 1)
        dates = [datetime.datetime.strptime(line.split(",")[0], "%m/%d/%y") for line in self.lines()]
        self.assertEqual(dates, sorted(set(dates)))
        self.require_no_remains("quotes.txt", "quotes.txt~")

    def test_of_files_that_replace_each_other_the_last_two_are_whole(self):
        texts = []
        tables = [self.write(f"table{writer}.csv", table(writer * 100, 30 + writer)) for writer in range(WRITERS)]
        for path in tables:
            alone = os.path.join(self.folder, "alone.txt")
            subprocess.run([COMPANION, "import", path, "-o", alone], check=True, capture_output=True, timeout=60)
            texts.append(self.lines("alone.txt"))
        for name in ("alone.txt", "alone.txt~"):
            os.remove(os.path.join(self.folder, name))
        for _ in range(ROUNDS):
            self.run_at_once([["import", path, "-o", self.quotes] for path in tables])
            self.assertIn(self.lines(), texts)
            self.assertIn(self.lines("quotes.txt~"), texts)
            self.assertNotEqual(self.lines(), self.lines("quotes.txt~"))
        self.require_no_remains("quotes.txt", "quotes.txt~")


if __name__ == "__main__":
    unittest.main()
