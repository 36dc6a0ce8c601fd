"""An unsaved text outlives the program, which ends in order when it is asked to by a signal."""

import json
import signal
import sys

from changes import NAME
from program import PATIENCE
from together import types


def ends_with_edits(program, folder):
    program.sees("list item", NAME).act("Press")
    types(program, "q")
    program.process.send_signal(signal.SIGTERM)
    status = program.process.wait(PATIENCE)
    kept = [json.loads(path.read_text(encoding="utf-8"))["text"] for path in drafts(folder)]
    if status != 0 or len(kept) != 1 or not kept[0].startswith("q"):
        sys.exit(f"The program ended with {status}, and keeps {kept}")


def finds_edits(program, folder):
    program.sees("list item", NAME).act("Press")

    def tells(node):
        return node.role == "alert message" and node.name.startswith("Texte non enregistré du ")

    program.wait("the text that was found", lambda nodes: any(map(tells, nodes)))
    program.sees("label", "MODIFIÉ")
    program.sees_page()
    program.press("Abandonner")
    program.sees("label", "ENREGISTRÉ")
    program.wait("no draft any more", lambda _: not drafts(folder))


def drafts(folder):
    return list((folder / "workspace/.vornel/drafts").glob("*.json"))
