"""The window and the command line on one workspace: each shows what the other did, and neither overwrites it."""

import json
import subprocess

from changes import says

NAME, SLUG = "Venue d’ailleurs", "venue-d-ailleurs"


class CommandLine:
    """The command line on the folders of a window."""

    def __init__(self, executable, folder):
        places = [("--workspace", "workspace"), ("--claude", "claude"), ("--codex", "codex")]
        self.command = [executable, *(word for option, place in places for word in (option, str(folder / place)))]

    def run(self, *arguments, text=None):
        done = subprocess.run([*self.command, *arguments], input=text, capture_output=True, text=True, check=True)
        return done.stdout

    def save(self, text):
        revision = json.loads(self.run("--json", "show", SLUG))["manifest"]["revision"]
        self.run("save", SLUG, "--expect", str(revision), "--file", "-", text=text)


def together(program, executable, folder):
    terminal = CommandLine(executable, folder)
    terminal.run("create", SLUG, "--name", NAME, "--category", "development")  # which comes first
    program.press("Actualiser")
    program.sees("list item", NAME).act("Press")
    types(program, "a")
    program.sees("label", "MODIFIÉ")

    terminal.save("d’ailleurs\n")
    program.press("Enregistrer")
    program.sees("alert message", "Cette compétence a été modifiée ailleurs depuis son ouverture. Votre texte est encore ici.")
    assert text_of(folder) == "d’ailleurs\n", "what was saved elsewhere stays"
    program.press("Recharger")
    program.sees("label", "ENREGISTRÉ")
    types(program, "b")
    program.press("Enregistrer")
    program.sees("alert message", "ENREGISTRÉE")
    assert sorted(text_of(folder)) == sorted("bd’ailleurs\n")

    terminal.run("trash", SLUG)
    program.press("Retour à la bibliothèque")
    program.press("Actualiser")
    program.press("Corbeille", "radio button")
    says(program, NAME, "Mise à la corbeille")
    terminal.run("empty-trash")
    program.press("Actualiser")
    program.sees("label", "La corbeille est vide")


def types(program, text):
    program.sees("text", "Instructions de la compétence").act("SetFocus")
    program.sees("text", "Instructions de la compétence", states={"focused"})
    program.type(*map(ord, text))
    program.sees("label", "Modifications non enregistrées")


def text_of(folder):
    return (folder / "workspace/skills" / SLUG / "SKILL.md").read_text(encoding="utf-8")
