# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Where windows stand with the frames that a window manager gives them."""

import unittest

from session import Session
from waiting import wait_for


class Placing(Session):
    def require_in_the_middle(self, title):
        def is_in_the_middle():
            left, top, width, height = self.desktop.frame(title)
            right, bottom = (side - end for side, end in zip(self.SCREEN, (left + width, top + height)))
            return abs(left - right) <= 4 and abs(top - bottom) <= 4
        try:
            wait_for(is_in_the_middle, f"{title!r} in the middle", seconds=10)
        except AssertionError:
            self.fail(f"The frame of {title!r} has the place and size {self.desktop.frame(title)}")

    def test_windows_stand_in_the_middle_the_first_time_and_later(self):
        program = self.start()
        self.require_in_the_middle("Quorvex")
        for names, title in ((("Help", "About Quorvex"), "About Quorvex"),
                             (("Preferences",), "Quorvex - Program Preferences"),
                             (("File", "Open"), "Open Quote File")):
            for _ in range(2):
                program.choose(*names)
                program.window(title)
                self.require_in_the_middle(title)
                self.desktop.press("Escape")
                program.wait_for_main()
        program.choose("File", "Exit")
        self.require_end(program)


if __name__ == "__main__":
    unittest.main()
