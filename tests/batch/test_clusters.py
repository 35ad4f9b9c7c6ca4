# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""Runs the commands of docs/clusters.md as they stand there, and kills a worker.

QUORVEX_COMPANION names the program, QUORVEX_CLUSTERS the document."""

import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from many_contracts import write_contracts

COMPANION = os.environ["QUORVEX_COMPANION"]
CONTRACTS = 60


def commands(chapter):
    """The indented lines of the chapter."""
    with open(os.environ["QUORVEX_CLUSTERS"], encoding="utf-8") as file:
        text = file.read().split("\n## " + chapter + "\n")[1].split("\n## ")[0]
    return [line.strip() for line in text.splitlines() if line.startswith("    ")]


class Clusters(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.folder = self.temporary.name
        write_contracts(os.path.join(self.folder, "quotes"), CONTRACTS, days=60)
        path = os.path.dirname(COMPANION) + os.pathsep + os.environ["PATH"]
        self.environment = {**os.environ, "PATH": path, "HOME": self.folder, "LC_ALL": "C"}

    def run_shell(self, command):
        return subprocess.run(["sh", "-c", command], cwd=self.folder, env=self.environment, capture_output=True, text=True,
                              check=False)

    def read(self, name):
        with open(os.path.join(self.folder, name), encoding="utf-8") as file:
            return file.read().splitlines()

    def test_xargs_and_parallel(self):
        self.run_shell("quorvex-cli batch quotes --automate 2 --format jsonl > all.jsonl")
        xargs, parallel = commands("xargs and GNU parallel")
        self.run_shell(xargs)
        self.assertEqual(sorted(self.read("results.jsonl")), sorted(self.read("all.jsonl")))
        if not shutil.which("parallel"):
            self.skipTest("GNU parallel is not installed")
        self.run_shell(parallel)
        self.assertEqual(self.read("results.jsonl"), self.read("all.jsonl"))

    def test_a_worker_that_dies(self):
        self.run_shell("quorvex-cli batch quotes --automate 2 > all.csv")
        make, split, work, head, tail = commands("A worker that dies")
        self.run_shell(make + "; " + split)
        self.assertEqual(len(os.listdir(os.path.join(self.folder, "lists"))), 4)
        # One dies in the middle of its third file; its list is held back, so that it cannot be done before.
        dying = subprocess.Popen([COMPANION, "batch", "--files-from", "-", "--automate", "2", "--jobs", "1", "-o",
                                  "results/ab.csv"], cwd=self.folder, stdin=subprocess.PIPE, text=True)
        names = self.read("lists/ab")
        dying.stdin.write("\n".join(names[:3]) + "\n")
        dying.stdin.flush()
        result = os.path.join(self.folder, "results", "ab.csv")
        while not os.path.exists(result) or len(self.read("results/ab.csv")) < 3:
            time.sleep(0.01)
        dying.send_signal(signal.SIGKILL)
        dying.communicate()
        self.assertLess(len(self.read("results/ab.csv")), len(names) + 1)
        with open(result, "a", encoding="utf-8") as file:
            file.write("quotes/C00")  # as much as it had written of the next line
        run = self.run_shell(" && ".join((work, head, tail)))
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(sorted(self.read("results.csv")), sorted(self.read("all.csv")))
        self.assertEqual(self.run_shell(work).returncode, 0)  # there is nothing left to do


if __name__ == "__main__":
    unittest.main()
