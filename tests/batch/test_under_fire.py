# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""Kills batch at random moments and lets it go on, interrupts it, and compares with unbroken runs.

QUORVEX_COMPANION names the program, QUORVEX_CONTRACTS says of how many files (300), QUORVEX_KILLS how often it is killed
(6), QUORVEX_FORMATS in which formats: with 100,000 files the objects take 11 GB, so that only "-k killed -k has_its_line"
with "csv" makes sense."""

import os
import random
import re
import signal
import subprocess
import tempfile
import time
import unittest

from many_contracts import is_bad, write_contracts

COMPANION = os.environ["QUORVEX_COMPANION"]
CONTRACTS = int(os.environ.get("QUORVEX_CONTRACTS", "300"))
KILLS = int(os.environ.get("QUORVEX_KILLS", "6"))
FORMATS = os.environ.get("QUORVEX_FORMATS", "csv,jsonl").split(",")


def start(*arguments, **options):
    return subprocess.Popen([COMPANION, "batch", *arguments], stderr=subprocess.PIPE, text=True, **options)


def wait_for_lines(path):
    while not os.path.exists(path) or not os.path.getsize(path):
        time.sleep(0.001)


class UnderFire(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.quotes = os.path.join(cls.temporary.name, "quotes")
        write_contracts(cls.quotes, CONTRACTS)
        cls.whole, cls.seconds = {}, {}
        for form in FORMATS:
            cls.whole[form], cls.seconds[form] = cls.unbroken(form)

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    @classmethod
    def out(cls, name):
        return os.path.join(cls.temporary.name, name)

    @classmethod
    def arguments(cls, form, name, jobs="2"):
        return [cls.quotes, "--automate", "2", "--format", form, "--jobs", jobs, "-o", cls.out(name)]

    @classmethod
    def unbroken(cls, form, jobs="2"):
        begin = time.monotonic()
        process = start(*cls.arguments(form, "unbroken", jobs))
        process.communicate()
        seconds = time.monotonic() - begin
        assert process.returncode == 1, process.returncode
        with open(cls.out("unbroken"), "rb") as file:
            return file.read(), seconds

    def start_unending(self, name):
        """A run of all files that then waits for more names, and has written some lines."""
        process = start("--files-from", "-", *self.arguments("jsonl", name)[1:], stdin=subprocess.PIPE)
        process.stdin.write("".join(os.path.join(self.quotes, file) + "\n" for file in sorted(os.listdir(self.quotes))))
        process.stdin.flush()
        wait_for_lines(self.out(name))
        return process

    def read(self, name):
        with open(self.out(name), "rb") as file:
            return file.read()

    def test_every_file_has_its_line(self):
        lines = self.whole["csv"].decode().splitlines()[1:]
        self.assertEqual(len(lines), CONTRACTS)
        for number, line in enumerate(lines):
            path, message = line.split(",")[:2]
            self.assertEqual(path, os.path.join(self.quotes, f"C{number:07}.txt"))
            self.assertEqual(message.startswith("A minimum of 25 daily quotes"), is_bad(number), line)
        for form, heads in (("csv", 1), ("jsonl", 0)):
            self.assertEqual(self.whole.get(form, b"").count(b"\n"), CONTRACTS + heads if form in FORMATS else 0)

    def test_bytes_are_the_same_with_any_number_of_jobs(self):
        for form in FORMATS:
            for jobs in ("1", "8"):
                self.assertEqual(self.unbroken(form, jobs)[0], self.whole[form], (form, jobs))

    def test_killed_and_resumed_it_comes_to_the_same(self):
        generator = random.Random(time.time_ns())
        for form in FORMATS:
            name = "killed." + form
            killed = 0
            ended = 1 + signal.SIGKILL
            while ended != 1:
                process = start(*self.arguments(form, name), "--resume")
                if killed < KILLS:
                    time.sleep(generator.uniform(0, 1.2 * self.seconds[form] / KILLS))
                    process.kill()
                    killed += 1
                _, errors = process.communicate()
                ended = process.returncode
                self.assertIn(ended, (1, -signal.SIGKILL), errors)
                if os.path.exists(self.out(name)):
                    self.assertTrue(self.whole[form].startswith(self.read(name)), errors)
            self.assertEqual(self.read(name), self.whole[form])
            print(f"{form}: {killed} times killed, {CONTRACTS} files")

    def test_an_interruption_leaves_whole_lines(self):
        for number, sent in enumerate((signal.SIGINT, signal.SIGTERM)):
            name = f"interrupted{number}"
            process = self.start_unending(name)
            process.send_signal(sent)
            process.wait(60)  # with its names still open
            _, errors = process.communicate()
            left = self.read(name)
            self.assertEqual(process.returncode, 130)
            self.assertTrue(left.endswith(b"\n"))
            self.assertTrue(self.whole["jsonl"].startswith(left))
            self.assertRegex(errors, f"quorvex-cli: Interrupted: {left.count(bytes([10]))} files; ")
            process = start(*self.arguments("jsonl", name), "--resume")
            process.communicate()
            self.assertEqual(self.read(name), self.whole["jsonl"])

    def test_one_run_at_a_time_writes_a_file(self):
        first = self.start_unending("shared")
        for resume in ([], ["--resume"]):
            second = start(*self.arguments("jsonl", "shared"), *resume)
            _, errors = second.communicate()
            self.assertEqual((second.returncode, errors),
                             (3, f"quorvex-cli: {self.out('shared')}: Another run is writing it\n"))
        first.communicate()
        self.assertEqual(self.read("shared"), self.whole["jsonl"])

    def test_messages_do_not_get_into_the_file(self):
        """Though standard error is closed, and its number free for the file."""
        command = ["sh", "-c", '"$@" 2>&-', "sh", COMPANION, "batch", *self.arguments("jsonl", "closed")]
        self.assertEqual(subprocess.run(command, check=False).returncode, 1)
        self.assertEqual(self.read("closed"), self.whole["jsonl"])

    def test_a_full_disk_is_no_success(self):
        with open("/dev/full", "wb") as full:
            process = start(self.quotes, stdout=full)
            _, errors = process.communicate()
        self.assertEqual(process.returncode, 3)
        self.assertIn("quorvex-cli: standard output: Disk full\n", errors)

    def test_python_reads_the_objects_as_documented(self):
        with open(os.environ["QUORVEX_FORMAT"], encoding="utf-8") as file:
            program = file.read().split("```python\n")[1].split("```")[0]
        with open(self.out("results.jsonl"), "wb") as file:
            file.write(self.whole["jsonl"])
            file.write(subprocess.run([COMPANION, "batch", self.quotes, "--format", "jsonl"], check=False,
                                      capture_output=True).stdout)  # without cycles, and so without a correlation
        run = subprocess.run(["python3", "-c", program], cwd=self.temporary.name, capture_output=True, text=True,
                             check=True)
        self.assertEqual(run.stdout.count("A minimum of 25"), 2 * sum(map(is_bad, range(CONTRACTS))))

    def test_names_come_and_lines_go_through_pipes(self):
        process = subprocess.Popen([COMPANION, "batch", "--files-from", "-", "--format", "jsonl"], stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, bufsize=1)
        for number in range(5):  # each line is there before the next name is
            process.stdin.write(os.path.join(self.quotes, f"C{number:07}.txt") + "\n")
            self.assertIn(f"C{number:07}.txt", process.stdout.readline())
        process.send_signal(signal.SIGINT)  # while it waits for names
        self.assertEqual(process.wait(10), 130)
        self.assertRegex(process.stderr.read(), re.escape("Interrupted: 5 files; 0 with a message"))
        for stream in (process.stdin, process.stdout, process.stderr):
            stream.close()


if __name__ == "__main__":
    unittest.main()
