"""A user who edits another file of a skill than its text, gives all of them to others, and takes them back from there once
the skill was deleted: with nothing but a keyboard."""

import pathlib
import sys
import zipfile

from changes import closes
from program import BACKTAB, DELETE, DOWN, ESCAPE, MENU, RETURN, SPACE, TAB, Program
from second_day import first_day
from second_day_window import first_start

SLUG, FILE = "audit-accessibilite", "references/grille-de-controle.md"
PLACES = "workspace/skills", "claude", "codex"


def goes_down_to(program, name):
    while program.focused()[1].name != name:
        place, _ = program.focused()
        program.type(DOWN)
        program.focused_beyond(place)


def edits(program, folder):
    """The skill of the card that has the keyboard."""
    program.type(RETURN)
    program.sees("text", "Instructions de la compétence", states={"focused"})
    program.tab_to("SKILL.md", key=BACKTAB)  # a tab is part of the text
    goes_down_to(program, pathlib.Path(FILE).name)
    program.type(RETURN)
    program.sees("text", f"Contenu de {FILE}")
    program.sees_page()
    program.tab_to(f"Contenu de {FILE}")
    program.type(*map(ord, "relu "))
    program.sees("label", "MODIFIÉ")
    program.type_with_control(ord("s"))
    program.sees("alert message", "ENREGISTRÉE")
    require_edit(folder)
    program.type(ESCAPE)
    program.sees("list item", SLUG, states={"focused"})


def require_edit(folder):
    for place in PLACES:
        text = (folder / place / SLUG / FILE).read_text(encoding="utf-8")
        assert text.startswith("relu "), (place, text)


def exports(program):
    """The same skill. Without a desktop, Qt's own dialog asks where; its field for the name has none to be read out."""
    program.type(MENU)
    program.sees("menu item", "Exporter…")
    goes_down_to(program, "Exporter…")
    program.type(RETURN)
    program.sees("dialog", "Exporter dans une archive", states={"focused"})
    program.type(TAB, TAB, TAB)
    program.sees("push button", "Exporter", states={"focused"})
    program.type(SPACE)
    program.sees("dialog", "L’archive est écrite")
    program.sees_page()
    program.type(ESCAPE)
    closes(program)
    with zipfile.ZipFile(pathlib.Path.home() / f"{SLUG}.zip") as archive:
        assert archive.read(f"{SLUG}/{FILE}").startswith(b"relu "), archive.namelist()


def agrees(program, question):
    """To what is asked, where the way back has the keyboard first."""
    program.sees("dialog", question)
    program.sees("push button", "Annuler", states={"focused"})
    program.type(TAB, RETURN)
    closes(program)


def deletes(program, folder):
    """The same skill, for good."""
    program.type(DELETE)
    agrees(program, "Placer cette compétence dans la corbeille ?")
    program.sees("alert message", "CORBEILLE")
    program.tab_to("Corbeille")
    program.type(RETURN)
    program.sees("heading", "CORBEILLE")
    program.tab_to(SLUG)
    program.type(DELETE)
    agrees(program, f"Supprimer définitivement « {SLUG} » ?")
    program.sees("label", "La corbeille est vide")
    left = [place for place in PLACES if (folder / place / SLUG).exists()]
    assert not left, left


def adds(program, folder):
    """What was exported, from where it was written."""
    program.tab_to("Bibliothèque")
    program.type(RETURN)
    program.sees("list", "Compétences")
    program.type_with_control(ord("o"))
    program.sees("menu item", "Des archives…")
    program.type(ord("d"))
    program.sees("menu item", "Des archives…", states={"focused"})
    program.type(RETURN)
    program.sees("dialog", "Archives de compétences")
    program.sees("label", f"{SLUG}.zip")
    program.type(RETURN)
    program.sees("dialog", "Ajouter des compétences")
    program.sees("label", "Cette compétence sera ajoutée.")
    program.sees("push button", "Ajouter", states={"focused"})
    program.sees_page()
    program.type(RETURN)
    program.sees("alert message", "AJOUTÉE")
    closes(program)
    require_edit(folder)


def main(executable, _, skills, scratch):
    folder = first_day(pathlib.Path(skills), pathlib.Path(scratch) / "window")
    with Program(executable, folder) as program:
        program.takes_keyboard()
        first_start(program)
        program.sees("list item", SLUG, states={"focused"})
        edits(program, folder)
        exports(program)
        deletes(program, folder)
        adds(program, folder)
        program.close()
    print("A file is edited, and its skill comes back from an archive with it.")


main(*sys.argv[1:])
