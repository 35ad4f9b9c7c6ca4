# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""A desktop of the test's own: screen, window manager, session bus, accessibility bus."""

import configparser
import os
import re
import shutil
import subprocess
import tempfile

from accessible import AccessibilityBus
from frames import frame_of
from waiting import wait_for

A11Y_SERVICE = "/usr/share/dbus-1/services/org.a11y.Bus.service"

BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={folder}/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

# Permissions bind ordinary users only, and programs are run by them: an administrator's tests run as nobody.
ORDINARY_USER = 65534

# A program under assistive technology hands each key to the accessibility bus and does what it means when it comes back,
# after 100 ms at the latest; a shortcut works at once. An Alt that comes back after its shortcut has opened a menu closes
# that. Nobody is that quick at a keyboard.
HOLD_SECONDS = "0.15"


class Desktop:
    """Runs from its construction until close()."""

    def __init__(self, width=1280, height=1024, scale=1):
        """A screen of this size in pixels, so many of which make one of a program's."""
        self.scale = scale
        self._processes = []
        self.user = ORDINARY_USER if os.geteuid() == 0 else None
        self.folder = tempfile.mkdtemp(prefix="quorvex-desktop-")
        os.chmod(self.folder, 0o755)
        try:
            self._start(width, height)
        except BaseException:
            self.close()
            raise

    def _start(self, width, height):
        self.environment = self._make_environment()
        self.environment["DISPLAY"] = self._start_screen(width, height)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
        self.start(["openbox", "--sm-disable"], "openbox")
        wait_for(lambda: self.xdotool("get_num_desktops", check=False).returncode == 0, "the window manager")
        self.bus = AccessibilityBus(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def _make_environment(self):
        """Little of the environment outside: neither its desktop nor its settings."""
        kept = ("PATH", "LANG", "LC_ALL", "LOCPATH", "TZ", "ASAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
        environment["QT_SCALE_FACTOR"] = str(self.scale)
        environment["CUPS_SERVER"] = "/nowhere"  # no test prints on a printer of the machine
        for variable, name in (("HOME", "home"), ("XDG_RUNTIME_DIR", "runtime"), ("XDG_DATA_HOME", "data"),
                               ("XDG_CONFIG_HOME", "config"), ("XDG_CACHE_HOME", "cache"), ("TMPDIR", "tmp")):
            environment[variable] = self.make_folder(name)
        return environment

    def make_folder(self, name):
        """An empty folder that belongs to the user of the desktop."""
        folder = os.path.join(self.folder, name)
        os.mkdir(folder, 0o700)
        self.hand_over(folder)
        return folder

    def hand_over(self, path):
        """Makes the file or folder one of the user of the desktop."""
        if self.user is not None:
            os.chown(path, self.user, self.user)

    def start(self, command, name, **options):
        """Starts a program on this desktop; its output goes into files of this name in the desktop's folder."""
        ownership = {} if self.user is None else {"user": self.user, "group": self.user, "extra_groups": []}
        options.setdefault("env", self.environment)
        with open(self.output_file(name), "wb") as output, open(self.error_file(name), "wb") as errors:
            process = subprocess.Popen(command, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=output,
                                       stderr=errors, **ownership, **options)
        self._processes.append(process)
        return process

    def output_file(self, name):
        return os.path.join(self.folder, name + ".out")

    def error_file(self, name):
        return os.path.join(self.folder, name + ".err")

    def errors_of(self, name):
        with open(self.error_file(name), encoding="utf-8", errors="replace") as file:
            return file.read()

    def _start_screen(self, width, height):
        return ":" + self._start_announcing("Xvfb", lambda number: [
            "Xvfb", "-displayfd", str(number), "-screen", "0", f"{width}x{height}x24", "-dpi", "96",
            "-nolisten", "tcp", "-noreset"])

    def _start_bus(self):
        services = os.path.join(self.folder, "services")
        os.mkdir(services)
        service = configparser.ConfigParser()
        service.optionxform = str
        service.read(A11Y_SERVICE)
        service.remove_option("D-BUS Service", "SystemdService")
        with open(os.path.join(services, "org.a11y.Bus.service"), "w", encoding="utf-8") as file:
            service.write(file, space_around_delimiters=False)
        configuration = os.path.join(self.folder, "bus.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(BUS_CONFIGURATION.format(folder=self.make_folder("session"), services=services))
        return self._start_announcing("dbus-daemon", lambda number: [
            "dbus-daemon", "--config-file", configuration, "--nofork", "--nopidfile", f"--print-address={number}"])

    def _start_announcing(self, name, command):
        """Starts a server that writes where it is reached to a descriptor, once it is. Returns what it wrote."""
        reading, writing = os.pipe()
        try:
            self.start(command(writing), name, pass_fds=[writing])
        finally:
            os.close(writing)
        with os.fdopen(reading) as lines:
            line = lines.readline().strip()  # ends without a line when the server does
        if not line:
            raise AssertionError(f"{name} did not start: " + self.errors_of(name))
        return line

    def frame(self, title):
        """Left, top, width and height of the window of this title with the frame that the window manager gave it."""
        window = int(self.xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)}$").stdout.split()[0])
        return frame_of(self.environment["DISPLAY"], window)

    def activate(self, pid, title):
        """Brings the process's window of this title to the front."""
        self.xdotool("search", "--all", "--onlyvisible", "--pid", str(pid), "--name", f"^{re.escape(title)}$",
                     "windowactivate", "--sync")

    def xdotool(self, *arguments, check=True):
        return subprocess.run(["xdotool", *arguments], env=self.environment, check=check, capture_output=True,
                              text=True, timeout=30)

    def press(self, *keys):
        """Presses keys, or chords such as alt+f, one after the other, whoever has the focus."""
        arguments = []
        for key in keys:
            if key.startswith("alt+"):
                arguments += ["keydown", "alt", "sleep", HOLD_SECONDS, "key", key.removeprefix("alt+"), "keyup", "alt"]
            else:
                arguments += ["key", key]
        self.xdotool(*arguments)

    def type(self, text):
        self.xdotool("type", text)

    def click(self, accessible, button=1):
        self.xdotool("mousemove", *self._middle(accessible), "click", str(button))

    def _middle(self, accessible):
        left, top, width, height = accessible.extents()
        return str(self.scale * (left + width // 2)), str(self.scale * (top + height // 2))

    def drag_file(self, program, path, accessible):
        """Drags a file of another program's, the executable of which is given, and drops it there."""
        source = self.start([program, path, "0", "0"], "source")
        wait_for(lambda: self.xdotool("search", "--all", "--onlyvisible", "--pid", str(source.pid), "--name", "",
                                      check=False).returncode == 0, "the window to drag from")
        self.xdotool("mousemove", "20", "20", "mousedown", "1", "mousemove", "26", "26", "sleep", HOLD_SECONDS)
        self.xdotool("mousemove", *self._middle(accessible), "sleep", HOLD_SECONDS, "mousemove_relative", "2", "2")
        try:
            wait_for(lambda: self._output_of("source").endswith("may be dropped\n"), "a place that takes the file")
        finally:
            self.xdotool("mouseup", "1")

    def _output_of(self, name):
        with open(self.output_file(name), encoding="utf-8") as file:
            return file.read()

    def close(self):
        """Ends everything that was started, the last first."""
        if hasattr(self, "bus"):
            self.bus.close()
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
