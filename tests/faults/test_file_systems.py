# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""The companion saves on file systems as they are: full, read-only, gone, with odd names, links and pipes.

QUORVEX_COMPANION names the program. As root a small file system of its own is mounted; others get by with limits and
rights."""

import os
import resource
import subprocess
import tempfile
import threading
import time
import unittest

COMPANION = os.environ["QUORVEX_COMPANION"]
OLD = b"what was there before\r\n"
SMALL = 16 * 1024  # bytes of a small disk
LONGEST = 255  # bytes of a name


def table(days):
    head = "Date,Open,High,Low,Close,Volume,Open Interest\n"
    return head + "".join(f"20{year:02}-{month:02}-{day:02},{day}.25,{day + 1},{day},{day}.5,100,200\n"
                          for year in range(1, 1 + days // 336 + 1) for month in range(1, 13)
                          for day in range(1, 29))


def run(arguments, folder, **settings):
    return subprocess.run([COMPANION, *arguments], cwd=folder, env={**os.environ, "LC_ALL": "C"}, capture_output=True,
                          timeout=60, check=False, **settings)


class FileSystems(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = os.path.realpath(temporary.name)
        self.write("table.csv", table(300).encode())

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def write(self, name, content):
        with open(self.path(name), "wb") as file:
            file.write(content)

    def read(self, name):
        with open(os.path.join(os.fsencode(self.folder), os.fsencode(name)), "rb") as file:
            return file.read()

    def require_refused(self, result, told):
        self.assertNotEqual(result.returncode, 0)
        self.assertRegex(result.stderr, rb"\Aquorvex-cli: .*" + told + rb"\n\Z")

    def require_saved(self, result, name):
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertRegex(self.read(name), rb"\A01/01/01, ")

    def mount(self, *options):
        """A file system of its own at "disk", if that is allowed."""
        os.mkdir(self.path("disk"))
        mounted = subprocess.run(["mount", "-t", "tmpfs", *options, "tmpfs", self.path("disk")], check=False,
                                 capture_output=True).returncode == 0
        if mounted:
            self.addCleanup(subprocess.run, ["umount", self.path("disk")], check=True)
        return mounted

    def test_a_full_one_keeps_the_old_file(self):
        is_mounted = self.mount("-o", f"size={SMALL}")
        self.write("disk/quotes.txt", OLD)

        def limit():
            if not is_mounted:
                resource.setrlimit(resource.RLIMIT_FSIZE, (SMALL // 4, SMALL // 4))

        self.require_refused(run(["import", "table.csv", "-o", "disk/quotes.txt", "--days", "500"], self.folder,
                                 preexec_fn=limit, restore_signals=False), b"Disk full")
        self.assertEqual(self.read("disk/quotes.txt"), OLD)
        self.assertEqual(sorted(set(os.listdir(self.path("disk"))) - {"quotes.txt~"}), ["quotes.txt"])

    def test_a_full_device_is_told(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([COMPANION, "import", "table.csv", "-o", "-"], cwd=self.folder, stdout=full,
                                    stderr=subprocess.PIPE, env={**os.environ, "LC_ALL": "C"}, timeout=60, check=False)
        self.require_refused(result, b"Disk full")

    def test_a_read_only_one_keeps_the_old_file(self):
        is_mounted = self.mount()
        self.write("disk/quotes.txt", OLD)
        if is_mounted:
            subprocess.run(["mount", "-o", "remount,ro", self.path("disk")], check=True)
        else:
            os.chmod(self.path("disk"), 0o555)
            self.addCleanup(os.chmod, self.path("disk"), 0o755)
        for command in (["import", "table.csv", "-o", "disk/quotes.txt"],
                        ["convert", "csi", "table.csv", "disk/quotes.txt"]):
            self.require_refused(run(command, self.folder), b"Permission denied")
            self.assertEqual(self.read("disk/quotes.txt"), OLD)
        self.assertEqual(os.listdir(self.path("disk")), ["quotes.txt"])

    def test_a_current_folder_that_is_gone_is_told(self):
        os.mkdir(self.path("gone"))

        def leave():
            os.chdir(self.path("gone"))
            os.rmdir(self.path("gone"))

        result = run(["import", self.path("table.csv"), "-o", "quotes.txt"], self.folder, preexec_fn=leave)
        self.require_refused(result, b"Path not found")
        self.assertEqual(os.listdir(self.folder), ["table.csv"])

    def test_the_longest_name_has_no_room_for_a_backup(self):
        name = "n" * (LONGEST - 4) + ".txt"
        self.require_saved(run(["import", "table.csv", "-o", name], self.folder), name)
        self.write(name, OLD)
        result = run(["import", "table.csv", "-o", name], self.folder)
        self.require_refused(result, b"Bad file name or number")
        self.assertEqual(self.read(name), OLD)
        self.assertEqual(sorted(os.listdir(self.folder)), sorted([name, "table.csv"]))

    def test_a_name_that_is_no_utf8_is_one_like_others(self):
        name = b"\xfc\xff.txt"
        self.require_saved(run(["import", "table.csv", "-o", name], self.folder), name)
        again = run(["analyse", name], self.folder)
        self.assertEqual(again.returncode, 0, again.stderr)

    def test_links_lead_to_the_file_that_is_replaced(self):
        os.mkdir(self.path("far"))
        for target, links in (("far/one.txt", ["one.txt"]), ("far/two.txt", ["second.txt", "first.txt"]),
                              ("far/new.txt", ["dangling.txt"])):
            following = target
            for link in links:
                os.symlink(following, self.path(link))
                following = link
            if target != "far/new.txt":
                self.write(target, OLD)
            self.require_saved(run(["import", "table.csv", "-o", links[-1]], self.folder), target)
            self.assertTrue(all(os.path.islink(self.path(link)) for link in links))
            if target != "far/new.txt":
                self.assertEqual(self.read(target + "~"), OLD)

    def test_links_in_a_circle_are_told(self):
        os.symlink("b.txt", self.path("a.txt"))
        os.symlink("a.txt", self.path("b.txt"))
        for command in (["import", "table.csv", "-o", "a.txt"], ["analyse", "a.txt"]):
            self.require_refused(run(command, self.folder), b"Bad file name or number")
        self.assertEqual(os.readlink(self.path("a.txt")), "b.txt")

    def test_a_slow_pipe_gives_what_a_file_gives(self):
        os.mkfifo(self.path("pipe"))

        def feed():
            with open(self.path("pipe"), "wb", buffering=0) as pipe:
                content = self.read("table.csv")
                for start in range(0, len(content), 1000):
                    pipe.write(content[start:start + 1000])
                    time.sleep(0.002)

        feeder = threading.Thread(target=feed, daemon=True)
        feeder.start()
        result = run(["import", "pipe", "-o", "slow.txt"], self.folder)
        feeder.join(timeout=10)
        self.require_saved(result, "slow.txt")
        self.require_saved(run(["import", "table.csv", "-o", "fast.txt"], self.folder), "fast.txt")
        self.assertEqual(self.read("slow.txt"), self.read("fast.txt"))


if __name__ == "__main__":
    unittest.main()
