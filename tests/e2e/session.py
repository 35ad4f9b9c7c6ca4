# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""The program on a desktop of its own, and the tests' view of it."""

import glob
import json
import os
import shutil
import subprocess
import tempfile
import unittest

from desktop import Desktop
from leaks import is_of_key_copies
from waiting import Gone, wait_for

EXECUTABLE = os.environ["QUORVEX_PROGRAM"]
COMPANION = os.environ["QUORVEX_COMPANION"]
SAMPLES = os.environ["QUORVEX_SAMPLES"]
DOCUMENTS = os.environ["QUORVEX_DOCUMENTS"]
INSTALLED = "QUORVEX_INSTALLED" in os.environ  # the program stays where it is, and its files in its user's own folder
PARAMETERS = ("Weight", "Period", "Shift", "Decay")
CYCLES = range(1, 11)
CHARTS = ("Daily quotes chart", "Component cycles chart", "Composite estimate cycle chart", "Residual chart")


class Program:
    """A running Quorvex."""

    def __init__(self, desktop, executable, name="Quorvex"):
        """The name is that of its output among those of other programs."""
        self.executable = executable
        self.name = name
        self._desktop = desktop
        self._cells = None
        # The user of the desktop may not be able to read the checkout.
        leaks = shutil.copy2(os.path.join(os.path.dirname(os.path.abspath(__file__)), "leaks.supp"), desktop.folder)
        os.chmod(leaks, 0o644)
        environment = dict(desktop.environment, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           LSAN_OPTIONS=f"suppressions={leaks}:print_suppressions=0")
        self.process = desktop.start([executable], name, env=environment)
        self.root = wait_for(self._find_root, "the program on the accessibility bus")
        self.main = wait_for(self.root.children, "the main window")[0]
        wait_for(lambda: self.main.has("active"), "the main window's activation")

    def _find_root(self):
        if self.process.poll() is not None:
            raise AssertionError("The program ended at its start: " + self.errors())
        return self._desktop.bus.root_of(self.process.pid)

    def errors(self):
        return self._desktop.errors_of(self.name)

    # Windows and menus

    def window(self, title):
        """The window of this title over the main one, once it is the active one."""
        def find():
            for window in self.root.children():
                if window != self.main and window.name == title and window.has("active"):
                    return window
            raise Gone("the windows are " + ", ".join(repr(window.name) for window in self.root.children()))
        return wait_for(find, f"the window {title!r}")

    def bring_to_front(self, title):
        """The window of this title, whichever program was in front."""
        self._desktop.activate(self.process.pid, title)
        return self.window(title)

    def wait_for_main(self):
        """Waits until the main window is the active one again, with no dialog left over it."""
        wait_for(lambda: self.main.has("active") and not self.showing_dialogs(), "the main window on its own")

    def showing_dialogs(self):
        return [window for window in self.root.children() if window != self.main and window.has("showing")]

    def choose(self, *names, window=None):
        """Opens a menu after the other and chooses the item at the end."""
        inside = (window or self.main).find("menu bar")
        for name in names[:-1]:
            item = wait_for(lambda: self._item(inside, name), f"the menu {name!r}")
            item.act("ShowMenu")
            inside = item.children()[0]
        wait_for(lambda: self._item(inside, names[-1]), f"the menu item {names[-1]!r}").act()

    @staticmethod
    def _item(menu, name):
        return next((item for item in menu.children() if item.name == name and item.has("showing", "enabled")), None)

    def press_button(self, window, name):
        window.find("push button", name).act()

    def answer(self, title, button):
        """Presses a button of the message box of this title. Returns the box's text."""
        box = self.window(title)
        text = self._text_of(box)
        self.press_button(box, button)
        return text

    def answer_next(self, title, text, button):
        """Presses a button of the message box with this text, which may follow another one of its title."""
        wait_for(lambda: self._text_of(self.window(title)) == text, f"a box that says {text!r}")
        self.press_button(self.window(title), button)

    @staticmethod
    def _text_of(box):
        return "\n".join(label.name for label in box.find_all("label") if label.name)

    # Main window

    def cell(self, cycle, parameter):
        return self.main.find("text", f"Cycle {cycle} {parameter}")

    def grid(self):
        """The texts of the grid, a list for each cycle."""
        if self._cells is None:  # they stay as long as the window does, and finding them takes a while
            self._cells = {cell.name: cell for cell in self.main.find_all("text")}
        return [[self._cells[f"Cycle {cycle} {parameter}"].text for parameter in PARAMETERS] for cycle in CYCLES]

    def chart(self, name):
        return self.main.find("chart", name)

    def chart_descriptions(self):
        return [self.chart(name).description for name in CHARTS]

    def open_quotes(self, name):
        self.choose("File", "Open")
        self.choose_file("Open Quote File", name)
        self.wait_for_main()

    def choose_table(self, path):
        """Shows the table in the import window by the first chart's context menu."""
        self.chart(CHARTS[0]).focus()
        self._desktop.press("Menu", "i")
        chooser = wait_for(self.showing_dialogs, "the file chooser")[0]
        wait_for(lambda: chooser.has("active"), "the file chooser's activation")
        self._desktop.press("ctrl+a")
        self._desktop.type(path)
        self._desktop.press("Return")
        return self.wait_for_table(path)

    def wait_for_table(self, path):
        """The import window with this table, read to its end."""
        window = self.window(f"Quorvex - Import - [{os.path.basename(path)}]")
        wait_for(lambda: not window.find_all("progress bar"), "the end of the reading")
        return window

    def open_parameters(self, name):
        self.choose("Parameters", "Open")
        self.choose_file("Open Cycle Parameter File", name)
        self.wait_for_main()

    def choose_file(self, title, name):
        chooser = self.window(title)
        self._desktop.click(wait_for(lambda: chooser.find("list item", name), f"{name} in the list"))
        wait_for(lambda: chooser.find("push button", "OK").has("enabled"), "an OK button that can be used")
        self.press_button(chooser, "OK")

    def end(self):
        """Waits for the program's end. Returns its exit status."""
        return self.process.wait(30)


class Session(unittest.TestCase):
    """Tests of programs that start with nothing but the sample files in their folder."""

    SCREEN = (1280, 1024)
    maxDiff = None  # a sanitizer's report is shown whole

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop(*cls.SCREEN)
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = self.make_own_folder() if INSTALLED else tempfile.mkdtemp(prefix="program-", dir=self.desktop.folder)
        self.desktop.hand_over(self.folder)

    def make_own_folder(self):
        """The folder of the user's own for an installed program, as new and empty."""
        own = os.path.join(self.desktop.environment["XDG_DATA_HOME"], "Quorvex")
        if os.path.exists(own):
            shutil.rmtree(own)
        os.mkdir(own)
        return own

    def install(self, samples=True):
        """Puts the program, unless it is installed, with the sample files and help documents into the test's folder.
        Returns the path of its executable."""
        executable = EXECUTABLE
        if not INSTALLED:
            executable = shutil.copy2(EXECUTABLE, self.folder)
            os.chmod(executable, 0o755)
        if samples:
            for file in glob.glob(os.path.join(SAMPLES, "*")) + glob.glob(os.path.join(DOCUMENTS, "*")):
                self.desktop.hand_over(shutil.copy2(file, self.folder))
        return executable

    def start(self, executable=None, name="Quorvex"):
        self.program = Program(self.desktop, executable or self.install(), name)
        self.addCleanup(self._stop, self.program)
        return self.program

    @staticmethod
    def _stop(program):
        if program.process.poll() is None:
            program.process.kill()
            program.process.wait()

    def require_end(self, program):
        """The program ends as one without a fault: with status 0, having complained about nothing."""
        status = program.end()
        errors = program.errors()
        if status == 1 and is_of_key_copies(errors):  # the sanitizer's status
            return
        self.assertEqual(errors, "", "on standard error")
        self.assertEqual(status, 0)

    def analyse(self, *arguments):
        """What the companion finds in the Wheat sample."""
        command = [COMPANION, "analyse", os.path.join(SAMPLES, "Wheat.txt"), *arguments, "--json"]
        return json.loads(subprocess.run(command, check=True, capture_output=True, timeout=60).stdout)

    def wait_until_equal(self, get, expected, what):
        """Waits until the routine gives the value; when it does not, shows the difference."""
        try:
            wait_for(lambda: get() == expected, what, seconds=10)
        except AssertionError:
            self.assertEqual(get(), expected, what)
