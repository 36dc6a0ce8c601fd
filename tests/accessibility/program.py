"""The running program, as someone with a screen reader and a keyboard meets it: what it says, and what can be done."""

import os
import subprocess
import sys
import time

from tree import GLib, application, read, type_key
from window import Window

PATIENCE = 30  # seconds that anything may take, on a machine with much else to do
UNAVAILABLE = "indisponible"
TAB, BACKTAB, RETURN, ESCAPE, SPACE, DELETE = 0xFF09, 0xFE20, 0xFF0D, 0xFF1B, 0x20, 0xFFFF
HOME, LEFT, RIGHT, DOWN, END, MENU = 0xFF50, 0xFF51, 0xFF53, 0xFF54, 0xFF57, 0xFF67
BACKSPACE, F8 = 0xFF08, 0xFFC5


def focus(nodes):
    """The innermost object with the keyboard and its place in the tree; None unless it has a name."""
    found = [(i, node) for i, node in enumerate(nodes) if "focused" in node.states]
    return found[-1] if found and found[-1][1].name.strip() else None


class Program:
    """The program in its window, with its settings and its library in a folder."""

    def __init__(self, executable, folder, workspace="workspace", errors=None):
        environment = dict(
            os.environ,
            XDG_CONFIG_HOME=str(folder / "settings"),
            VORNEL_WORKSPACE_PATH=str(folder / workspace),
            VORNEL_CLAUDE_SKILLS_PATH=str(folder / "claude"),
            VORNEL_CODEX_SKILLS_PATH=str(folder / "codex"),
        )
        environment.pop("VORNEL_TEST_MODE", None)  # its settings don't outlive the process
        self.process = subprocess.Popen([os.path.abspath(executable)], cwd=os.environ["HOME"],  # as from a desktop
                                        env=environment, stderr=errors)
        self.source = None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()

    def takes_keyboard(self):
        def is_active(nodes):
            with Window() as window:
                window.focus()
            return any("active" in node.states for node in nodes)

        self.wait("an active window", is_active)

    def showing(self):
        """What is to be seen, or nothing while the tree changes under the reader."""
        try:
            self.source = self.source or application(self.process.pid)
            return read(self.source) if self.source else []
        except GLib.Error:
            return []

    def wait(self, what, condition):
        end = time.monotonic() + PATIENCE
        while True:
            nodes = self.showing()
            found = condition(nodes)
            if found:
                return found
            status = self.process.poll()
            if status is not None:
                sys.exit(f"The program ended with {status}, before: {what}")
            if time.monotonic() > end:
                sys.exit("\n".join([f"Not to be found: {what}. Showing instead:", *map(str, nodes)]))
            time.sleep(0.02)

    def sees(self, role, *names, states=(), missing=(), description=None):
        """Waits until objects with these names show, and returns the last of them."""

        def match(node, name):
            return (
                node.role == role
                and node.name == name
                and node.states.issuperset(states)
                and node.states.isdisjoint(missing)
                and description in (None, node.description)
            )

        def all_of(nodes):
            found = [[node for node in nodes if match(node, name)] for name in names]
            return found[-1][-1] if all(found) else None

        return self.wait(f"{role} {names} {description or ''} with {states}, without {missing}", all_of)

    def sees_page(self):
        """Nothing that shows, no control and no mere decoration, is read out without a name, nor has it the focus."""
        self.wait("a name on everything, and a keyboard",
                  lambda nodes: focus(nodes) and all(node.name.strip() for node in nodes))

    def press(self, name, role="push button"):
        self.sees(role, name, description="" if role == "push button" else None).act()

    def focused(self):
        """The innermost object with the keyboard: its place in the tree and itself. It must show, and have a name."""
        return self.wait("a named object with the keyboard", focus)

    def focused_beyond(self, place):
        """The same, once the keyboard has left this place."""
        return self.wait("the keyboard elsewhere",
                         lambda nodes: (found := focus(nodes)) and found[0] != place and found)

    def type(self, *keys):
        for key in keys:
            type_key(key)

    def type_with_control(self, key):
        type_key(key, with_control=True)

    def tab_to(self, name, after=-1, key=TAB):
        """Goes from stop to stop to an object of this name, below the place `after` in the tree; returns its place."""
        seen = set()
        place, node = self.focused()
        while node.name != name or place <= after:
            if place in seen:
                sys.exit(f"The tab key goes round without coming to {name!r}")
            seen.add(place)
            self.type(key)
            place, node = self.focused_beyond(place)
        return place

    def close(self):
        with Window() as window:
            window.close()
        status = self.process.wait(PATIENCE)
        if status != 0:
            sys.exit(f"The program ended with {status} when its window was closed")
