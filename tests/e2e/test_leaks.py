# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Which report of the sanitizer is passed over."""

import unittest

from leaks import is_of_key_copies

HEAD = """
=================================================================
==15904==ERROR: LeakSanitizer: detected memory leaks

"""
END = """
SUMMARY: AddressSanitizer: 88 byte(s) leaked in 1 allocation(s).
"""
FROM_NEW = "allocated from:\n    #0 0x557741e13f2d in operator new(unsigned long) (/home/ann/Quorvex+0xdef2d)\n"
QT_GUI = "    #1 0x7fd953038128  (/lib/x86_64-linux-gnu/libQt6Gui.so.6+0x42e128) (BuildId: 8d8f5549)\n"
OWN = "    #1 0x557741e20000 in quorvex::editor::Begin() /home/ann/src/editor/Begin.cpp:12:3\n"


def leak(bytes_, objects, caller, kind="Direct"):
    return f"{kind} leak of {bytes_} byte(s) in {objects} object(s) {FROM_NEW}{caller}"


class Leaks(unittest.TestCase):
    def test_copies_of_keys_are_passed_over(self):
        self.assertTrue(is_of_key_copies(HEAD + leak(88, 1, QT_GUI) + END))
        self.assertTrue(is_of_key_copies(HEAD + leak(264, 3, QT_GUI) + "\n" + leak(26, 1, OWN, "Indirect") + END))

    def test_everything_else_counts(self):
        self.assertFalse(is_of_key_copies(""))
        self.assertFalse(is_of_key_copies("QPainter::begin: Paint device returned engine == 0\n"))
        self.assertFalse(is_of_key_copies(HEAD + leak(96, 1, QT_GUI) + END))
        self.assertFalse(is_of_key_copies(HEAD + leak(88, 2, QT_GUI) + END))
        self.assertFalse(is_of_key_copies(HEAD + leak(88, 1, OWN) + END))
        self.assertFalse(is_of_key_copies(HEAD + leak(88, 1, OWN + QT_GUI.replace("#1", "#2")) + END))
        self.assertFalse(is_of_key_copies(HEAD + leak(88, 1, QT_GUI) + "\n" + leak(88, 1, OWN) + END))
        self.assertFalse(is_of_key_copies("QObject: a warning\n" + HEAD + leak(88, 1, QT_GUI) + END))


if __name__ == "__main__":
    unittest.main()
