# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""Each opening, reading, writing, flushing, closing, renaming, holding and shortening of a file that a command of the
companion does fails once, with each error that it can tell.

QUORVEX_COMPANION names the program, QUORVEX_FAILING_CALLS the library that lets a call fail."""

import errno
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "batch"))
from many_contracts import write_contracts  # noqa: E402

COMPANION = os.environ["QUORVEX_COMPANION"]
LIBRARY = os.environ["QUORVEX_FAILING_CALLS"]

SHORT = 0  # a single byte is read or written
ERRORS = {
    "open": (errno.EACCES, errno.ENOENT, errno.ENOSPC, errno.EINTR),
    "read": (errno.EIO, errno.EINTR, SHORT),
    "write": (errno.ENOSPC, errno.EIO, errno.EINTR, SHORT),
    "fsync": (errno.ENOSPC, errno.EIO, errno.EINTR),
    "close": (errno.ENOSPC, errno.EIO, errno.EINTR),
    "rename": (errno.EROFS, errno.ENOSPC),
    "flock": (errno.EINTR,),
    "truncate": (errno.EIO, errno.EINTR),
}
READING = ("open", "read", "close")
DRAWING = (*READING, "write", "fsync", "rename")
SAVING = (*DRAWING, "flock")
FEW = {call: {errors[0], SHORT if SHORT in errors else errors[-1]} for call, errors in ERRORS.items()}
HARMLESS = (errno.EINTR, SHORT)  # what is interrupted or done in part is gone on with
MOST_CALLS = 2000
OLD = "what was there before\r\n"
WHOLE_PAGE = "a whole PDF file"


class Faults(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        place = os.path.realpath(temporary.name)
        self.folder, self.prepared, self.mark = (os.path.join(place, name) for name in ("work", "prepared", "mark"))
        write_contracts(self.prepared, 2, days=30, bad=False)
        with open(os.path.join(self.prepared, "table.csv"), "w", encoding="ascii") as file:
            file.write("Date,Open,High,Low,Close,Volume,Open Interest\n")
            file.writelines(f"2001-02-{day:02},{day}.25,{day + 1},{day},{day}.5,100,200\n" for day in range(1, 29))

    def renew(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.copytree(self.prepared, self.folder)

    def run_companion(self, arguments, **failing):
        environment = {**os.environ, "PRELOAD_FOLDER": self.folder + os.sep, "FAILING_MARK": self.mark, "LC_ALL": "C", **failing}
        if failing:
            environment["LD_PRELOAD"] = LIBRARY
        return subprocess.run([COMPANION, *arguments], cwd=self.folder, env=environment, capture_output=True, text=True,
                              timeout=60, check=False)

    def read(self, name):
        try:
            with open(os.path.join(self.folder, name), encoding="latin-1", newline="") as file:
                content = file.read()
        except FileNotFoundError:
            return None
        # The fonts of a PDF file come in any order: what counts is that its end is there.
        return WHOLE_PAGE if content.startswith("%PDF") and content.endswith("%%EOF\n") else content

    def require_all(self, arguments, name, calls, tried=None):
        """Of a command that makes these calls, and writes a file of that name, if any."""
        self.renew()
        whole = self.run_companion(arguments)
        self.assertEqual(whole.returncode, 0, whole.stderr)
        fresh = self.read(name) if name else None
        before = self.read_prepared(name) if name else None
        failed = set()
        for call, errors in (tried or ERRORS).items():
            for error in errors:
                for number in range(MOST_CALLS):
                    self.renew()
                    if os.path.exists(self.mark):
                        os.remove(self.mark)
                    run = self.run_companion(arguments, FAILING_CALL=call, FAILING_NUMBER=str(number),
                                             FAILING_ERROR=str(error))
                    case = (arguments[0], call, errno.errorcode.get(error, "short"), number)
                    with self.subTest(case=case):
                        self.require_one(run, whole, error, name, before, fresh)
                    if not os.path.exists(self.mark):
                        break
                    self.require_next(arguments, whole, name, fresh, case)
                    failed.add(call)
                else:
                    self.fail(f"{call} is called without end")
        self.assertEqual(failed, set(calls))

    def read_prepared(self, name):
        path = os.path.join(self.prepared, name)
        if not os.path.exists(path):
            return None
        with open(path, encoding="latin-1", newline="") as file:
            return file.read()

    def require_one(self, run, whole, error, name, before, fresh):
        self.assertGreaterEqual(run.returncode, 0, "it died")
        if error in HARMLESS:
            self.assertEqual(run.returncode, 0, run.stderr)
        if run.returncode == 0:
            self.assertEqual(run.stdout, whole.stdout)
            if name:
                self.assertEqual(self.read(name), fresh)
        else:
            told = "Disk full" if error == errno.ENOSPC else "not found" if error == errno.ENOENT else "Permission denied"
            self.assertRegex(run.stderr + run.stdout + (self.read(name) or "" if name else ""), told)
            self.assertRegex(run.stderr, r"\A(quorvex-cli: .+\n)+\Z")
            if before is not None:
                self.assertIn(before, (self.read(name), self.read(name + "~")), "what was there before")
        self.assertEqual([entry for entry in os.listdir(self.folder) if entry.endswith(".tmp")], [])

    def require_next(self, arguments, whole, name, fresh, case):
        """Nothing that a fault leaves is in the way of the next run."""
        if name and self.read_prepared(name) is not None and self.read(name) == fresh:
            return  # an update that is done already
        again = self.run_companion(arguments)
        self.assertEqual((again.returncode, again.stdout), (0, whole.stdout), (case, again.stderr))
        if name:
            self.assertEqual(self.read(name), fresh, case)

    def write_old(self, name):
        with open(os.path.join(self.prepared, name), "w", encoding="ascii", newline="") as file:
            file.write(OLD)

    def test_analyse(self):
        self.require_all(["analyse", "C0000000.txt", "--automate", "2"], None, READING, FEW)

    def test_batch(self):
        self.require_all(["batch", ".", "--automate", "2", "--jobs", "1"], None, READING, FEW)

    def test_batch_into_a_file(self):
        self.require_all(["batch", "C0000000.txt", "C0000001.txt", "--automate", "2", "--jobs", "1", "-o", "out.csv"],
                         "out.csv", [*READING, "write", "fsync", "flock", "truncate"])

    def test_search(self):
        self.write_old("model.dat")
        self.require_all(["search", "C0000000.txt", "--cycles", "1", "-o", "model.dat", "--force"], "model.dat", SAVING,
                         FEW)

    def test_import(self):
        self.write_old("new.txt")
        self.require_all(["import", "table.csv", "-o", "new.txt"], "new.txt", SAVING)

    def test_update(self):
        self.require_all(["import", "table.csv", "--into", "C0000000.txt", "--replace"], "C0000000.txt", SAVING)

    def test_check(self):
        self.require_all(["check", "C0000000.txt"], None, READING, FEW)

    def test_convert(self):
        self.write_old("out.txt")
        with open(os.path.join(self.prepared, "vendor.csv"), "w", encoding="ascii") as file:
            file.writelines(f"200201{day:02},1145.00,1150.00,1140.00,1148.00,25000,400000\n" for day in range(1, 31))
        self.require_all(["convert", "csi", "vendor.csv", "out.txt"], "out.txt", DRAWING)

    def test_pages(self):
        for command in ("print", "list"):
            self.write_old("page.pdf")
            self.require_all([command, "C0000000.txt", "-o", "page.pdf"], "page.pdf", DRAWING, FEW)

    def test_evaluate(self):
        write_contracts(self.prepared, 1, days=130, bad=False)
        self.write_old("plot.svg")
        self.require_all(["evaluate", "C0000000.txt", "--every", "20", "--surrogates", "9", "--jobs", "1", "--plot",
                          "plot.svg"], "plot.svg", DRAWING, FEW)

    def test_search_tells(self):
        self.require_all(["search", "C0000000.txt", "--cycles", "1", "--json"], None, READING, FEW)

    def test_parameter_file(self):
        with open(os.path.join(self.prepared, "model.dat"), "w", encoding="ascii") as file:
            file.write("60, 20, 5, 0\r\n40, 9, 0, 0\r\n")
        self.require_all(["analyse", "C0000000.txt", "--parameters", "model.dat", "--json"], None, READING, FEW)

    def test_chart(self):
        for form in ("svg", "json"):
            self.write_old("chart." + form)
            self.require_all(["chart", "C0000000.txt", "--automate", "1", "-o", "chart." + form], "chart." + form,
                             DRAWING, FEW)


if __name__ == "__main__":
    unittest.main()
