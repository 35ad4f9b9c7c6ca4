# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The leak that is Qt's and not the program's.

Under assistive technology Qt copies each key for the accessibility bus and passes the copy on when the bus answers. When
the window that the key was for has gone by then, nobody frees the copy. It is a QKeyEvent of 88 bytes from QtGui, whose
routine for it has no name in the library: a suppression for the sanitizer could name all of QtGui and nothing less.
"""

import re

KEY_BYTES = 88

# What the address sanitizer writes when leaks are all that it found.
REPORT = re.compile(r"\n?=+\n==\d+==ERROR: LeakSanitizer: detected memory leaks\n\n(.*\n)\nSUMMARY: AddressSanitizer: .*\n",
                    re.DOTALL)
FROM_QT_GUI = re.compile(r"Direct leak of (\d+) byte\(s\) in (\d+) object\(s\) allocated from:\n"
                         r" +#0 \S+ in operator new\(unsigned long\) .*\n"
                         r" +#1 \S+ +\(\S*/libQt6Gui\.so\.\S+\)")


def is_of_key_copies(errors):
    """Whether the errors are a report of leaked copies of keys, with what hangs on them, and of nothing else."""
    report = REPORT.fullmatch(errors)
    if report is None:
        return False
    leaks = [leak for leak in report[1].split("\n\n") if not leak.startswith("Indirect leak of ")]
    found = [FROM_QT_GUI.match(leak) for leak in leaks]
    return all(match and int(match[1]) == KEY_BYTES * int(match[2]) for match in found)
