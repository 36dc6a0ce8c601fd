"""The accessibility tree of a running program, read over AT-SPI as a screen reader reads it."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Atspi.set_timeout(5000, 30000)  # milliseconds to answer in, and to start in: a sanitised program is slow


class Node:
    """One object of the tree, as it was when the tree was read."""

    def __init__(self, source, depth):
        self.source = source
        self.depth = depth
        self.name = source.get_name()
        self.role = source.get_role_name()
        self.description = source.get_description()
        self.states = {state.value_nick for state in source.get_state_set().get_states()}
        self.child_count = source.get_child_count()
        action = source.get_action_iface()
        self.actions = [action.get_action_name(i) for i in range(action.get_n_actions())] if action else []

    @property
    def is_showing(self):
        return "showing" in self.states

    def act(self, name):
        self.source.get_action_iface().do_action(self.actions.index(name))

    def __str__(self):
        description = f" ({self.description})" if self.description else ""
        actions = f" <{', '.join(self.actions)}>" if self.actions else ""
        return f"{'  ' * self.depth}{self.role} {self.name!r}{description} [{', '.join(sorted(self.states))}]{actions}"


def application(pid):
    """The program with this id, or None as long as it isn't known to AT-SPI."""
    drain()
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(i)
        if child is not None and child.get_process_id() == pid:
            # What a client remembers is stale until its main loop runs, and this one has none.
            child.set_cache_mask(Atspi.Cache.NONE)
            return child
    return None


def read(source, depth=0):
    """The objects below `source` and itself, in the order in which they are read out."""
    node = Node(source, depth)
    nodes = [node]
    for i in range(node.child_count):
        child = source.get_child_at_index(i)
        if child is not None:
            nodes += read(child, depth + 1)
    return nodes


def drain():
    """Handles what AT-SPI has sent in the meantime."""
    while GLib.MainContext.default().iteration(False):
        pass
