# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""What a screen reader sees and can do: the objects of a program on the accessibility bus.

Nothing is cached: every question goes to the program, so an answer is never older than the question.
"""

from gi.repository import Gio, GLib

from waiting import Gone

ROOT_PATH = "/org/a11y/atspi/accessible/root"
ANSWER_MILLISECONDS = 20000
# Calls that wait for their answers at the same time; a bus may refuse more than this.
CALLS_AT_ONCE = 100

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

    def call_all(self, methods):
        """The answers of methods, given as the arguments of call(): none waits for the answer to the one before."""
        answers = []
        for start in range(0, len(methods), CALLS_AT_ONCE):
            answers += self._call_at_once(methods[start:start + CALLS_AT_ONCE])
        return answers

    def _call_at_once(self, methods):
        results = {}
        for number, (owner, path, interface, method, *rest) in enumerate(methods):
            parameters = GLib.Variant(rest[0], tuple(rest[1:])) if rest else None
            self._connection.call(owner, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE,
                                  ANSWER_MILLISECONDS, None,
                                  lambda _, result, number: results.__setitem__(number, result), number)
        while len(results) < len(methods):
            GLib.MainContext.default().iteration(True)
        try:
            return [self._connection.call_finish(results[number]).unpack() for number in range(len(methods))]
        except GLib.Error as error:
            raise Gone(f"one of {len(methods)} objects: {error.message}") from error

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

    def _method(self, interface, method, *arguments):
        return self.owner, self.path, "org.a11y.atspi." + interface, method, *arguments

    def _getter(self, interface, name):
        return (self.owner, self.path, "org.freedesktop.DBus.Properties", "Get", "(ss)", "org.a11y.atspi." + interface,
                name)

    def _call(self, interface, method, *arguments):
        return self._bus.call(*self._method(interface, method, *arguments))

    def _property(self, interface, name):
        return self._bus.call(*self._getter(interface, name))[0]

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
        return self._children_of(self._call("Accessible", "GetChildren"))

    def _children_of(self, answer):
        return [Accessible(self._bus, owner, path) for owner, path in answer[0]]

    def _roles_inside(self):
        """Every object inside this one with its role, in the order in which they are read out. The cells of a table
        stay out: there may be thousands."""
        children = {}
        roles = {}
        level = [self]
        while level:
            answers = self._bus.call_all([outer._method("Accessible", "GetChildren") for outer in level])
            children.update((outer, self._children_of(answer)) for outer, answer in zip(level, answers))
            inner = [child for outer in level for child in children[outer]]
            answers = self._bus.call_all([child._method("Accessible", "GetRoleName") for child in inner])
            roles.update((child, answer[0]) for child, answer in zip(inner, answers))
            level = [child for child in inner if roles[child] != "table"]

        def in_order(outer):
            for child in children.get(outer, []):
                yield child, roles[child]
                yield from in_order(child)
        return list(in_order(self))

    def has(self, *states):
        return self._are_set(self._call("Accessible", "GetState"), states)

    @staticmethod
    def _are_set(answer, states):
        low, high = answer[0]
        return all((low | high << 32) >> STATES[state] & 1 for state in states)

    def _those_with(self, accessibles, *states):
        answers = self._bus.call_all([each._method("Accessible", "GetState") for each in accessibles])
        return [each for each, answer in zip(accessibles, answers) if self._are_set(answer, states)]

    def find_all(self, role, name=None, showing=True):
        found = [inner for inner, inner_role in self._roles_inside() if inner_role == role]
        if name is not None:
            answers = self._bus.call_all([inner._getter("Accessible", "Name") for inner in found])
            found = [inner for inner, answer in zip(found, answers) if answer[0] == name]
        return self._those_with(found, "showing") if showing else found

    def focused(self):
        """The object inside this one that has the focus."""
        found = self._those_with([inner for inner, _ in self._roles_inside()], "focused")
        if not found:
            raise Gone("nothing has the focus")
        return found[0]

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

    def row_count(self):
        return self._property("Table", "NRows")

    def cell_texts(self):
        """The texts of a table, a list for each row."""
        rows, columns = self.row_count(), self._property("Table", "NColumns")
        answers = self._bus.call_all([self._method("Table", "GetAccessibleAt", "(ii)", row, column)
                                      for row in range(rows) for column in range(columns)])
        cells = [Accessible(self._bus, *answer[0]) for answer in answers]
        texts = [answer[0] for answer in self._bus.call_all([cell._getter("Accessible", "Name") for cell in cells])]
        return [texts[first:first + columns] for first in range(0, len(texts), columns)]

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
