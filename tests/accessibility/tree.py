"""The accessibility tree of a running program, read over AT-SPI as a screen reader reads it.

Each answer is a message of its own, and a tree takes hundreds: they are all asked for before the first is awaited.
"""

import functools

from gi.repository import Gio, GLib

DESKTOP = "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"
KEYBOARD = "org.a11y.atspi.Registry", "/org/a11y/atspi/registry/deviceeventcontroller"
ACCESSIBLE, ACTION = "org.a11y.atspi.Accessible", "org.a11y.atspi.Action"

# In the order of the bits in which an object tells them.
STATES = """invalid active armed busy checked collapsed defunct editable enabled expandable expanded focusable focused
    has-tooltip horizontal iconified modal multi-line multiselectable opaque pressed resizable selectable selected
    sensitive showing single-line stale transient vertical visible manages-descendants indeterminate required truncated
    animated invalid-entry supports-autocompletion selectable-text is-default visited checkable has-popup
    read-only""".split()

PROPERTY = "org.freedesktop.DBus.Properties", "Get"
TEXTS = {
    "role": (ACCESSIBLE, "GetRoleName"),
    "name": (*PROPERTY, GLib.Variant("(ss)", (ACCESSIBLE, "Name"))),
    "description": (*PROPERTY, GLib.Variant("(ss)", (ACCESSIBLE, "Description"))),
}


def connect():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
    as_client = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, as_client, None, None)


bus = connect()


def ask(source, interface, method, arguments=None):
    """What one object answers; `source` is the name of its program on the bus, and its place there."""
    answer = bus.call_sync(*source, interface, method, arguments, None, Gio.DBusCallFlags.NONE, -1, None).unpack()
    return answer[0] if answer else None


class Node:
    """One object of the tree, as it was when the tree was read; without texts, unless it showed."""

    def __init__(self, source, depth=0):
        self.source = source
        self.depth = depth
        self.role = self.name = self.description = ""
        self.states = set()
        self.children = []

    @property
    def is_showing(self):
        return "showing" in self.states

    def branch(self):
        """The object and all below it, in the order in which they are read out."""
        yield self
        for child in self.children:
            yield from child.branch()

    def actions(self):
        count = ask(self.source, *PROPERTY, GLib.Variant("(ss)", (ACTION, "NActions")))
        return [ask(self.source, ACTION, "GetName", GLib.Variant("(i)", (i,))) for i in range(count)]

    def act(self, name=None):
        """Does what has this name, or else what comes first."""
        index = self.actions().index(name) if name else 0
        ask(self.source, ACTION, "DoAction", GLib.Variant("(i)", (index,)))

    def __str__(self):
        description = f" ({self.description})" if self.description else ""
        return f"{'  ' * self.depth}{self.role} {self.name!r}{description} [{', '.join(sorted(self.states))}]"


class Reading:
    """The object at `source` and all below it, each asked as soon as it is known."""

    def __init__(self, source):
        self.awaited, self.failure = 0, None
        self.top = Node(source)
        self.visit(self.top)
        while self.awaited:
            GLib.MainContext.default().iteration(True)
        if self.failure:
            raise self.failure

    def visit(self, node):
        def take_states(words):
            bits = words[0] | words[1] << 32
            node.states = {state for bit, state in enumerate(STATES) if bits >> bit & 1}
            for field, question in TEXTS.items() if node.is_showing else ():
                self.ask(node, functools.partial(setattr, node, field), *question)

        def take_children(sources):
            node.children = [Node(source, node.depth + 1) for source in sources]
            for child in node.children:
                self.visit(child)

        self.ask(node, take_states, ACCESSIBLE, "GetState")
        self.ask(node, take_children, ACCESSIBLE, "GetChildren")

    def ask(self, node, take, interface, method, arguments=None):
        def answered(_, result):
            self.awaited -= 1
            try:
                take(bus.call_finish(result).unpack()[0])
            except GLib.Error as error:
                self.failure = error

        self.awaited += 1
        bus.call(*node.source, interface, method, arguments, None, Gio.DBusCallFlags.NONE, -1, None, answered)


def application(pid):
    """The source of the program with this id, or None as long as it isn't known to AT-SPI."""
    for source in ask(DESKTOP, ACCESSIBLE, "GetChildren"):
        owner = GLib.Variant("(s)", source[:1])
        if ask(("org.freedesktop.DBus", "/"), "org.freedesktop.DBus", "GetConnectionUnixProcessID", owner) == pid:
            return source
    return None


def read(source):
    """What shows at and below `source`, in the order in which it is read out."""
    return [node for node in Reading(source).top.branch() if node.is_showing]


def type_key(symbol, with_control=False):
    """Types the key of this X symbol, as a keyboard would, or holds the control key meanwhile."""
    control, press, release, press_and_release = 37, 0, 1, 3
    events = [(symbol, press_and_release)]
    if with_control:
        events = [(control, press), *events, (control, release)]
    for key, kind in events:
        event = GLib.Variant("(isu)", (key, "", kind))
        ask(KEYBOARD, "org.a11y.atspi.DeviceEventController", "GenerateKeyboardEvent", event)
