# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""What a screen reader sees and can do: the objects of a program on the accessibility bus.

Nothing is cached: every question goes to the program, so an answer is never older than the question.
"""

from gi.repository import Gio, GLib

from waiting import Gone

ROOT_PATH = "/org/a11y/atspi/accessible/root"
ANSWER_MILLISECONDS = 20000

# Numbers of the states on the bus.
STATES = {
    "active": 1,
    "checked": 4,
    "editable": 7,
    "enabled": 8,
    "focusable": 11,
    "focused": 12,
    "modal": 16,
    "selected": 23,
    "sensitive": 24,
    "showing": 25,
}


class AccessibilityBus:
    """The connection to the accessibility bus of a session."""

    def __init__(self, session_address):
        session = self._connect(session_address)
        answer = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                                   GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, ANSWER_MILLISECONDS, None)
        session.close_sync(None)
        self._connection = self._connect(answer.unpack()[0])

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags
        return Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    def close(self):
        self._connection.close_sync(None)

    def call(self, owner, path, interface, method, signature=None, *arguments):
        """The answers of a method, as a tuple."""
        parameters = GLib.Variant(signature, arguments) if signature else None
        try:
            answer = self._connection.call_sync(owner, path, interface, method, parameters, None,
                                                Gio.DBusCallFlags.NONE, ANSWER_MILLISECONDS, None)
        except GLib.Error as error:
            raise Gone(f"{interface}.{method} of {path}: {error.message}") from error
        return answer.unpack()

    def tell(self, owner, path, interface, method, signature, *arguments):
        """Calls a method without waiting for its end: opening a modal window lasts until it is closed."""
        message = Gio.DBusMessage.new_method_call(owner, path, interface, method)
        message.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
        message.set_body(GLib.Variant(signature, arguments))
        self._connection.send_message(message, Gio.DBusSendMessageFlags.NONE)

    def announcements_of(self, accessible):
        """A routine that tells how often the object has told a new name since: screen readers wait for that."""
        self.call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
                  "(sass)", "object:property-change:accessible-name", [], "")
        heard = []
        self._connection.signal_subscribe(
            accessible.owner, "org.a11y.atspi.Event.Object", "PropertyChange", accessible.path, "accessible-name",
            Gio.DBusSignalFlags.NONE, lambda *event: heard.append(event))

        def count():
            while GLib.MainContext.default().iteration(False):
                pass
            return len(heard)
        return count

    def root_of(self, process_id):
        """The program of this process, or None as long as it has not come to the bus."""
        registry = Accessible(self, "org.a11y.atspi.Registry", ROOT_PATH)
        for program in registry.children():
            try:
                owner = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                  "GetConnectionUnixProcessID", "(s)", program.owner)[0]
            except Gone:
                continue  # a program that has just ended
            if owner == process_id:
                return program
        return None


class Accessible:
    """One object: a window, a control, an item of a list."""

    def __init__(self, bus, owner, path):
        self._bus = bus
        self.owner = owner
        self.path = path

    def __eq__(self, other):
        return isinstance(other, Accessible) and (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))

    def _call(self, interface, method, signature=None, *arguments):
        return self._bus.call(self.owner, self.path, "org.a11y.atspi." + interface, method, signature, *arguments)

    def _property(self, interface, name):
        return self._bus.call(self.owner, self.path, "org.freedesktop.DBus.Properties", "Get", "(ss)",
                              "org.a11y.atspi." + interface, name)[0]

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def description(self):
        return self._property("Accessible", "Description")

    @property
    def role(self):
        return self._call("Accessible", "GetRoleName")[0]

    def children(self):
        return [Accessible(self._bus, owner, path) for owner, path in self._call("Accessible", "GetChildren")[0]]

    def descendants(self):
        """Every object inside this one, in the order in which they are read out."""
        for child in self.children():
            yield child
            yield from child.descendants()

    def has(self, *states):
        low, high = self._call("Accessible", "GetState")[0]
        return all((low | high << 32) >> STATES[state] & 1 for state in states)

    def find_all(self, role, name=None, showing=True):
        return [inner for inner in self.descendants()
                if inner.role == role and name in (None, inner.name) and (not showing or inner.has("showing"))]

    def find(self, role, name=None, showing=True):
        found = self.find_all(role, name, showing)
        if len(found) != 1:
            raise Gone(f"{len(found)} objects of role '{role}' named {name!r}")
        return found[0]

    @property
    def text(self):
        length = self._property("Text", "CharacterCount")
        return self._call("Text", "GetText", "(ii)", 0, length)[0]

    def set_text(self, text):
        if not self._call("EditableText", "SetTextContents", "(s)", text)[0]:
            raise AssertionError(f"{self.name!r} takes no text")

    def focus(self):
        self._call("Component", "GrabFocus")

    def extents(self):
        """Left, top, width and height on the screen."""
        return self._call("Component", "GetExtents", "(u)", 0)[0]

    def actions(self):
        count = self._property("Action", "NActions")
        return [self._call("Action", "GetName", "(i)", index)[0] for index in range(count)]

    def act(self, action="Press"):
        """Starts the action; it may open a window and last until that is closed."""
        self._bus.tell(self.owner, self.path, "org.a11y.atspi.Action", "DoAction", "(i)",
                       self.actions().index(action))
