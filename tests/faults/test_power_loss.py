# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""The power fails behind each call that a command of the companion makes: what is on the disk then is enough.

The calls of a real run are recorded and done again up to each of them on a model of a disk. What was not flushed may
be there, in part, or not: of the folder what was done first, of a file the front part of each writing.

QUORVEX_COMPANION names the program, QUORVEX_RECORDED_CALLS the library that writes its calls down."""

import itertools
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "batch"))
from many_contracts import write_contracts  # noqa: E402

COMPANION = os.environ["QUORVEX_COMPANION"]
LIBRARY = os.environ["QUORVEX_RECORDED_CALLS"]


class Disk:
    """Files and names, each as the system shows them and as they were flushed last."""

    def __init__(self, folder):
        self.folder_inode = str(os.stat(folder).st_ino)
        self.names = {}
        self.flushed_names = {}
        self.pending = []  # what the names were behind each change that is not flushed
        self.contents = {}  # by inode: what the file held at each moment since it was flushed, the first as it was then
        for name in os.listdir(folder):
            path = os.path.join(folder, name)
            inode = str(os.stat(path).st_ino)
            with open(path, "rb") as file:
                self.contents[inode] = [file.read()]
            self.names[name] = inode
        self.flushed_names = dict(self.names)

    def do(self, call, *fields):
        getattr(self, "do_" + call)(*fields)

    def rename_entries(self):
        self.pending.append(dict(self.names))

    def change(self, inode, content):
        self.contents[inode].append(content)

    def do_open(self, inode, name):
        self.contents[inode] = [b""]
        self.names[name] = inode
        self.rename_entries()

    def do_empty(self, inode):
        self.change(inode, b"")

    def do_write(self, inode, offset, text):
        before, place, added = self.contents[inode][-1], int(offset), bytes.fromhex(text)
        for length in (len(added) // 2, len(added)):
            self.change(inode, before[:place] + added[:length] + before[place + length:])

    def do_fsync(self, inode):
        if inode == self.folder_inode:
            self.flushed_names, self.pending = dict(self.names), []
        else:
            self.contents[inode] = self.contents[inode][-1:]

    def do_rename(self, old, new):
        self.names[new] = self.names.pop(old)
        self.rename_entries()

    def do_unlink(self, name):
        del self.names[name]
        self.rename_entries()

    def do_truncate(self, name, length):
        inode = self.names[name]
        self.change(inode, self.contents[inode][-1][:int(length)])

    def shown(self):
        return {name: self.contents[inode][-1] for name, inode in self.names.items()}

    def after_power_loss(self):
        """Every folder, as names and their contents, that may be found."""
        for names in [self.flushed_names, *self.pending]:
            choices = [self.contents[inode] for inode in names.values()]
            for contents in itertools.product(*choices):
                yield dict(zip(names, contents))


class PowerLoss(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        place = os.path.realpath(temporary.name)
        self.folder, self.record = os.path.join(place, "work"), os.path.join(place, "record")
        self.sources = os.path.join(place, "sources")
        write_contracts(self.sources, 4, days=200, bad=False)
        self.write("table.csv", "Date,Open,High,Low,Close,Volume,Open Interest\n" + "".join(
            f"2002-02-{day:02},{day}.25,{day + 1},{day},{day}.5,100,200\n" for day in range(1, 29)))
        self.write("vendor.txt", "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n" * 3000)
        os.mkdir(self.folder)

    def write(self, name, text):
        with open(os.path.join(self.sources, name), "w", encoding="ascii", newline="") as file:
            file.write(text)

    def source(self, name):
        return os.path.join(self.sources, name)

    def read_folder(self):
        contents = {}
        for name in os.listdir(self.folder):
            with open(os.path.join(self.folder, name), "rb") as file:
                contents[name] = file.read()
        return contents

    def calls_of(self, arguments):
        environment = {**os.environ, "LC_ALL": "C", "LD_PRELOAD": LIBRARY, "PRELOAD_FOLDER": self.folder + os.sep,
                       "RECORDED_CALLS": self.record}
        run = subprocess.run([COMPANION, *arguments], cwd=self.folder, env=environment, capture_output=True,
                             text=True, timeout=60, check=False)
        self.assertEqual(run.returncode, 0, run.stderr)
        with open(self.record, encoding="utf-8") as file:
            return [line.rstrip("\n").split("\t") for line in file]

    def require_all(self, arguments, name, is_enough, is_kept=True):
        """Of a command that writes a file of that name: whether a folder is enough is asked with what the file
        held before and will hold."""
        before = self.read_folder()
        disk = Disk(self.folder)
        calls = self.calls_of(arguments)
        after = self.read_folder()
        self.assertGreater(len(calls), 3)
        moments = 0
        for call in [None, *calls]:
            if call is not None:
                disk.do(*call)
            for found in disk.after_power_loss():
                moments += 1
                self.assertTrue(is_enough(found, before.get(name), after[name]), (call and call[:2], found.keys()))
        self.assertEqual(disk.shown(), after, "the record is not what was done")
        for found in disk.after_power_loss():  # what the command said was done is on the disk
            self.assertEqual(found[name], after[name])
            if is_kept and before.get(name):
                self.assertEqual(found[name + "~"], before[name])
        return moments

    def require_replacing(self, arguments, name):
        """The name holds the one content or the other, whole, and what stands behind it is whole."""
        older = self.read_folder().get(name + "~")

        def is_enough(found, before, after):
            return found.get(name) in (before, after) and found.get(name + "~") in (older, before)

        self.assertGreater(self.require_all(arguments, name, is_enough), 10)

    def copy(self, source, name):
        shutil.copyfile(self.source(source), os.path.join(self.folder, name))

    def test_a_new_file(self):
        self.require_replacing(["import", self.source("table.csv"), "-o", "new.txt"], "new.txt")

    def test_a_file_that_is_replaced(self):
        self.copy("C0000000.txt", "quotes.txt")
        self.require_replacing(["import", self.source("table.csv"), "-o", "quotes.txt"], "quotes.txt")

    def test_a_file_that_is_replaced_again(self):
        self.copy("C0000000.txt", "quotes.txt")
        self.copy("C0000001.txt", "quotes.txt~")
        self.require_replacing(["import", self.source("table.csv"), "-o", "quotes.txt"], "quotes.txt")

    def test_a_file_that_is_brought_up_to_date(self):
        self.copy("C0000000.txt", "quotes.txt")
        self.require_replacing(["import", self.source("table.csv"), "--into", "quotes.txt"], "quotes.txt")

    def test_a_model(self):
        self.copy("C0000001.txt", "model.dat")
        self.require_replacing(
            ["search", self.source("C0000000.txt"), "--cycles", "1", "-o", "model.dat", "--force"], "model.dat")

    def test_a_converted_file(self):
        """It is written piece by piece: while that is under way, what it held stands behind the mark."""
        def is_enough(found, before, after):
            return found.get("out.txt") in (before, after) or found.get("out.txt~") == before

        self.copy("C0000000.txt", "out.txt")
        self.require_all(["convert", "csi", self.source("vendor.txt"), "out.txt"], "out.txt", is_enough)

    def batch(self, count):
        names = [self.source(f"C{number:07}.txt") for number in range(count)]
        return ["batch", *names, "--automate", "1", "--jobs", "1", "-o", "out.csv"]

    def require_growing(self, arguments, least):
        """Lines that were there stay; the last one may be there in part."""
        def is_enough(found, _, after):
            return after.startswith(found.get("out.csv", b"")) and len(found.get("out.csv", b"")) >= least

        self.require_all(arguments, "out.csv", is_enough, is_kept=False)

    def test_results(self):
        self.require_growing(self.batch(3), 0)

    def test_results_that_are_gone_on_with(self):
        self.calls_of(self.batch(2))
        os.remove(self.record)
        out = os.path.join(self.folder, "out.csv")
        with open(out, "ab") as file:
            file.write(b"/half/of/a/li")
        lines = self.read_folder()["out.csv"].rsplit(b"\n", 1)[0] + b"\n"
        half = self.read_folder()["out.csv"]

        def is_enough(found, _, after):
            return found["out.csv"] == half or (after.startswith(found["out.csv"]) and found["out.csv"].startswith(lines))

        self.require_all([*self.batch(4), "--resume"], "out.csv", is_enough, is_kept=False)


if __name__ == "__main__":
    unittest.main()
