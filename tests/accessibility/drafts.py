"""An unsaved text outlives the program, which ends in order when it is asked to by a signal."""

import contextlib
import fcntl
import json
import os
import signal
import sys

from changes import NAME
from program import PATIENCE
from together import types


def ends_with_edits(program, folder):
    program.sees("list item", NAME).act("Press")
    types(program, "q")
    ends(program, [signal.SIGTERM], {0})
    keeps(folder, "q")


def finds_edits(program, folder):
    program.sees("list item", NAME).act("Press")
    sees_found(program)
    program.sees("label", "MODIFIÉ")
    program.sees_page()
    program.press("Abandonner")
    program.sees("label", "ENREGISTRÉ")
    program.wait("no draft any more", lambda _: not drafts(folder))


def ends_with_edits_while_others_work(program, folder):
    """An operation waits for another program, and so would the end of this one; a second signal ends it at once."""
    types(program, "w")
    with held(folder / "workspace/.vornel"):
        program.press("Actualiser")
        program.sees("label", "Opération en cours")
        ends(program, [signal.SIGINT, signal.SIGTERM], {-signal.SIGINT, -signal.SIGTERM})
    keeps(folder, "w")


def tells_what_it_loses(program, folder, errors):
    program.sees("list item", NAME).act("Press")
    sees_found(program)
    (folder / "workspace/.vornel/drafts").rename(folder / "drafts")
    (folder / "workspace/.vornel/drafts").write_text("not a folder")
    types(program, "k")
    ends(program, [signal.SIGINT], {1})
    told = errors.read_text(encoding="utf-8")
    if f"Le texte non enregistré de «\u00a0{NAME}\u00a0» n’a pas pu être gardé. Ce n’est pas un dossier" not in told:
        sys.exit(f"The program ended with a text that it could not keep, and told: {told!r}")


def sees_found(program):
    def tells(node):
        return node.role == "alert message" and node.name.startswith("Texte non enregistré du ")

    program.wait("the text that was found", lambda nodes: any(map(tells, nodes)))


def ends(program, signals, statuses):
    for each in signals:
        program.process.send_signal(each)
    status = program.process.wait(PATIENCE)
    if status not in statuses:
        sys.exit(f"The program ended with {status} after {signals}")


def keeps(folder, letter):
    """The one draft holds a letter that the saved text doesn't."""
    kept = [json.loads(path.read_text(encoding="utf-8"))["text"] for path in drafts(folder)]
    if len(kept) != 1 or letter not in kept[0]:
        sys.exit(f"The program has ended, and keeps {kept}")


@contextlib.contextmanager
def held(folder):
    lock = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    fcntl.flock(lock, fcntl.LOCK_EX)
    try:
        yield
    finally:
        os.close(lock)


def drafts(folder):
    return list((folder / "workspace/.vornel/drafts").glob("*.json"))
