# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Waiting for what another process does."""

import time


class Gone(Exception):
    """What was asked is not there, or no more."""


def wait_for(condition, what, seconds=20.0):
    """Returns the first result of the condition that is true. A condition that finds something Gone is not met yet."""
    deadline = time.monotonic() + seconds
    while True:
        try:
            result = condition()
            reason = ""
        except Gone as gone:
            result = None
            reason = f" ({gone})"
        if result:
            return result
        if time.monotonic() > deadline:
            raise AssertionError(f"Waited {seconds:g} s in vain for: {what}{reason}")
        time.sleep(0.01)
