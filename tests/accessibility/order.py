"""A user who puts an imported library in order, with nothing but a keyboard: descriptions are taken from the texts, skills
get a category and a tag, what an assistant would stumble over is found and mended, and a skill is duplicated."""

import json
import pathlib
import sys

from changes import MENDED_BY_TEXTS, closes
from program import BACKSPACE, BACKTAB, DOWN, END, ESCAPE, F8, HOME, RETURN, RIGHT, SPACE, Program
from second_day import first_day
from second_day_window import first_start
from together import CommandLine

SKILLS, FAULTY = ["audit-accessibilite", "compte-rendu-reunion"], "maquette-vers-composant"
CATEGORY, TAG = "Qualité", "relu"


def takes_descriptions(program):
    program.sees("alert message", MENDED_BY_TEXTS)
    program.tab_to("Reprendre…")
    program.sees_page()
    program.type(RETURN)
    program.sees("dialog", "Propriétés de 2 compétences")
    program.sees("check box", "Reprendre du SKILL.md", states={"checked"})
    program.sees_page()
    changes(program, 2)


def classifies(program):
    program.type(HOME, SPACE, RIGHT, SPACE)
    program.sees("label", f"{len(SKILLS)} sélectionnées")
    program.tab_to("Propriétés…")
    program.type(RETURN)
    program.sees("push button", "Catégorie, Inchangée", states={"focused"})
    chooses(program, CATEGORY)
    program.sees("push button", f"Catégorie, {CATEGORY}", states={"focused"})
    program.tab_to("Mots-clés à ajouter")
    program.type(*map(ord, TAG), RETURN)
    program.sees("push button", f"Retirer {TAG}")
    changes(program, len(SKILLS))
    program.type(ESCAPE)
    program.wait("the end of the selection",
                 lambda nodes: nodes and not any(node.name == "Terminer la sélection" for node in nodes))


def chooses(program, name):
    """Opens the menu of the button that has the keyboard, and takes this item of it."""
    program.type(RETURN)
    program.sees("menu item", name)
    while program.focused()[1].name != name:
        place, _ = program.focused()
        program.type(DOWN)
        program.focused_beyond(place)
    program.type(RETURN)


def changes(program, count):
    program.tab_to(f"Modifier {count} compétences")
    program.type(RETURN)
    program.sees("alert message", "PROPRIÉTÉS MODIFIÉES")
    closes(program)


def mends(program):
    """The one mistake is a letter too many at the end of a line."""
    program.tab_to("Compétences à corriger\u00a0: 1")
    program.type(SPACE)
    program.wait("the faulty skill alone",
                 lambda nodes: len([node for node in nodes if node.role == "list item" and FAULTY in node.name]) == 1
                 and not any(node.name in SKILLS for node in nodes))
    program.tab_to(f"{FAULTY}s")
    program.type(RETURN)
    program.sees("text", "Instructions de la compétence", states={"focused"})
    program.sees("push button", "1 erreur, 1 conseil")
    program.sees_page()
    program.type(F8, END, BACKSPACE)
    program.sees("push button", "1 conseil")
    program.type_with_control(ord("s"))
    program.sees("alert message", "ENREGISTRÉE")


def duplicates(program):
    program.tab_to("Plus d’actions", key=BACKTAB)
    chooses(program, "Dupliquer…")
    program.sees("dialog", f"Dupliquer «\u00a0{FAULTY}s\u00a0»")
    program.sees("text", "Identifiant", states={"focused"})
    program.sees_page()
    program.type(RETURN)
    program.sees("alert message", "DUPLIQUÉE")
    closes(program)


def requires(terminal):
    skills = {skill["slug"]: skill for skill in json.loads(terminal.run("list", "--json"))}
    for slug in SKILLS:
        assert (skills[slug]["category"], skills[slug]["tags"]) == ("quality", [TAG]), skills[slug]
    assert skills["veille-technique"]["summary"].startswith("Rassemble et trie"), skills["veille-technique"]
    assert skills["tri-des-tickets"]["summary"].startswith("Qualifie les tickets"), skills["tri-des-tickets"]
    assert f"{FAULTY}-copie" in skills, sorted(skills)
    terminal.run("check", FAULTY)  # which would fail with errors


def main(executable, command_line, skills, scratch):
    folder = first_day(pathlib.Path(skills), pathlib.Path(scratch) / "window")
    with Program(executable, folder) as program:
        program.takes_keyboard()
        first_start(program)
        takes_descriptions(program)
        classifies(program)
        mends(program)
        duplicates(program)
        program.close()
    requires(CommandLine(command_line, folder))
    print("The library is in order.")


if __name__ == "__main__":
    main(*sys.argv[1:])
