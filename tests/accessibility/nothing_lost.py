"""A user who loses nothing: edits a skill, has an assistant edit its copy, synchronises over that, looks at what was
replaced, takes one file of it back, undoes and redoes. No text that anybody wrote is missing at the end."""

import json
import pathlib
import sys

from changes import closes
from program import Program
from second_day import Texts, append, first_day
from second_day_window import first_start
from together import types

REMARK, EXAMPLES = "\nUne remarque de Codex.\n", "Deux exemples.\n"


class Skill:
    """A skill of a library, and its copies."""

    def __init__(self, folder, slug):
        self.folder, self.slug = folder, slug
        manifest = folder / "workspace/skills" / slug / "vornel.json"
        self.name = json.loads(manifest.read_text(encoding="utf-8"))["displayName"]

    def holds(self, place, file):
        return (self.folder / place / self.slug / file).exists()

    def require(self, is_there):
        places = ("workspace/skills", "claude", "codex")
        found = [place for place in places if self.holds(place, "exemples.md")]
        assert found == (list(places) if is_there else []), found


def edits(program, skill):
    program.sees("list item", skill.name).act("Press")
    types(program, "v")
    program.type_with_control(ord("z"))
    program.sees("label", "ENREGISTRÉ")
    program.type_with_control(ord("y"))
    program.sees("label", "Modifications non enregistrées")
    program.press("Enregistrer")
    program.sees("alert message", "ENREGISTRÉE")


def assistant_edits(skill, texts):
    copy = skill.folder / "codex" / skill.slug
    append(copy / "SKILL.md", REMARK)
    (copy / "exemples.md").write_text(EXAMPLES, encoding="utf-8")
    texts.note()


def synchronizes_over_it(program):
    program.sees("push button", "Codex, copie modifiée")
    program.sees("push button", "Synchroniser").act()
    program.sees("dialog", "Différences avec les copies")
    program.sees_page()
    program.sees("push button", "Synchroniser").act()
    closes(program)
    program.sees("push button", "Codex, à jour")


def looks_at_what_was_replaced(program):
    program.press("Historique")
    program.sees("panel", "Historique")
    replaced = program.wait("what was replaced", lambda nodes: [
        node for node in nodes if node.role == "list item" and node.name.startswith("modifié par Codex, remplacé aujourd’hui")])
    replaced[0].act("Press")
    program.sees("list item", "SKILL.md, modifié", "exemples.md, supprimé")
    program.sees_page()


def takes_a_file_back(program, skill):
    program.sees("list item", "exemples.md, supprimé").act("Press")
    program.sees("push button", "Reprendre ce fichier", description="Lui seul revient à cette version").act()
    program.sees("alert message", "FICHIER REPRIS")
    skill.require(True)
    program.press("Annuler la dernière action (Ctrl+Z)")
    program.sees("alert message", "ANNULÉ\u00a0: RETOUR")
    skill.require(False)
    program.press("Rétablir la dernière action (Ctrl+Y)")
    program.sees("alert message", "RÉTABLI\u00a0: RETOUR")
    skill.require(True)


def main(executable, _, skills, scratch):
    folder = first_day(pathlib.Path(skills), pathlib.Path(scratch) / "window")
    texts = Texts(folder)
    with Program(executable, folder) as program:
        program.takes_keyboard()
        first_start(program)
        skill = Skill(folder, sorted(path.name for path in (folder / "workspace/skills").iterdir())[0])
        edits(program, skill)
        assistant_edits(skill, texts)
        synchronizes_over_it(program)
        looks_at_what_was_replaced(program)
        takes_a_file_back(program, skill)
        program.close()
    texts.require_all()
    print("Nothing that anybody wrote is lost.")


if __name__ == "__main__":
    main(*sys.argv[1:])
