# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Where the program keeps its files when it was installed for everybody."""

import os
import unittest

from session import EXECUTABLE, INSTALLED, Session
from waiting import wait_for

SAMPLES = {"CrudeOil.dat", "CrudeOil.txt", "Gold.txt", "Wheat.dat", "Wheat.txt"}
DOCUMENTS = {"CommoditySymbols.rtf", "ConvertCustom.rtf", "Quorvex-Index.rtf", "Quorvex-QuickStart.rtf",
             "Quorvex-ReadMe.rtf"}


class Folders(Session):
    def install_for_everybody(self):
        """Puts the program into a folder that its user cannot write, if it is not in one."""
        if INSTALLED:
            os.rmdir(self.folder)
            return EXECUTABLE
        executable = self.install(samples=False)
        for path in (executable, self.folder):
            os.chmod(path, 0o555)
            if self.desktop.user is not None:
                os.chown(path, 0, 0)
        return executable

    def offered_files(self):
        """The names that File > Open lists."""
        self.program.choose("File", "Open")
        chooser = self.program.window("Open Quote File")
        items = wait_for(lambda: chooser.find_all("list item"), "the quote files in the list")
        names = {item.name for item in items}
        self.program.press_button(chooser, "Cancel")
        self.program.wait_for_main()
        return names

    def read(self, item):
        """The help window shows the document that lies in the folder."""
        self.program.choose("Help", item)
        window = self.program.window("Quorvex Help")
        self.assertIn("Quorvex", window.find("text", "Help document").text)
        self.program.choose("File", "Exit", window=window)
        self.program.wait_for_main()

    def exit(self):
        self.program.choose("File", "Exit")
        self.require_end(self.program)

    def test_the_first_start_fills_a_folder_of_the_users_own(self):
        own = os.path.join(self.desktop.environment["XDG_DATA_HOME"], "Quorvex")
        executable = self.install_for_everybody()
        self.assertFalse(os.path.exists(own))
        program = self.start(executable)
        self.assertEqual(set(os.listdir(own)), SAMPLES | DOCUMENTS)
        self.read("Read Me")
        self.assertEqual(self.offered_files(), {"CrudeOil.txt", "Gold.txt", "Wheat.txt"})
        program.open_quotes("Wheat.txt")
        self.assertEqual(program.main.name, f"Quorvex - [{own}{os.sep}Wheat.txt]")
        self.exit()

        os.remove(os.path.join(own, "Gold.txt"))
        self.start(executable)
        self.assertEqual(self.offered_files(), {"CrudeOil.txt", "Wheat.txt"}, "after the second start")
        self.exit()


if __name__ == "__main__":
    unittest.main()
