"""Walks through the program as someone with a screen reader does, and then again with nothing but a keyboard."""

import pathlib
import shutil
import sys

from changes import NAME, attention, category, creation, news, properties, selection, texts, trash
from drafts import ends_with_edits, ends_with_edits_while_others_work, finds_edits, tells_what_it_loses
from first_start import failure, onboarding, opens_at_once, preparation, settles
from program import BACKTAB, DOWN, END, ESCAPE, HOME, LEFT, MENU, RETURN, RIGHT, SPACE, UNAVAILABLE, Program
from starts import speaks_without_window, starts_again
from together import together, types


def shell(program, names):
    program.sees("radio button", "Bibliothèque", states={"checked"})
    program.sees("radio button", "À réparer", "Corbeille", missing={"checked"})
    program.sees("label", "VORNEL", "Tout est à jour")
    program.sees("text", "Rechercher une compétence", states={"editable", "focusable"})
    program.sees("push button", "Synchroniser", description=UNAVAILABLE)
    program.sees("push button", "Actualiser", "Nouvelle compétence", description="")
    program.sees("list", "Compétences")
    half = len(names) // 2
    program.sees("list item", *names[:half])
    program.type(END)
    program.sees("list item", *names[half:])
    program.wait("no card without a skill",
                 lambda nodes: nodes and all(node.name in names for node in nodes if node.role == "list item"))
    program.sees_page()
    program.type(HOME)
    program.sees("list item", names[0], states={"focused"})
    program.type(MENU)
    program.sees("popup menu", names[0])
    program.sees("menu item", "Ouvrir", "Sélectionner", "Copier le chemin", "Placer dans la corbeille")
    program.type(ESCAPE)
    program.sees("list item", names[0], states={"focused"})


def destinations(program):
    for name, title in [("À réparer", "Tout est synchronisé"), ("Corbeille", "La corbeille est vide")]:
        program.press(name, "radio button")
        program.sees("radio button", name, states={"checked"})
        program.sees("radio button", "Bibliothèque", missing={"checked"})
        program.sees("label", title)
        program.sees_page()
    program.press("Bibliothèque", "radio button")
    skill = program.sees("list item", "migration-sql")
    skill.act("Press")
    program.sees("push button", "Synchroniser", description="")
    program.sees("push button", "Enregistrer", description=UNAVAILABLE)
    program.sees("push button", "Claude, à jour", "Codex, à jour", "Catégorie, Autre", "Retour à la bibliothèque")
    program.sees("list item", "SKILL.md", "scripts", "verifier-migration.sql")
    program.sees("label", "ENREGISTRÉ")
    program.sees_page()
    types(program, "x")
    program.press("Bibliothèque", "radio button")
    program.sees("dialog", "Enregistrer les modifications\u00a0?")
    program.press("Ne pas enregistrer")
    program.sees("push button", "Synchroniser", description=UNAVAILABLE)


def by_keyboard(program):
    program.sees("push button", "Continuer")
    # The way on from a page: keys, or a button. A button that led to the first or the last page is gone there, and
    # must not take the keyboard with it.
    for page, keys, button in [(1, [SPACE], None), (2, [RETURN], None), (3, [LEFT], None),
                               (2, [SPACE], "Étape précédente"), (1, [RIGHT, RIGHT, RIGHT], None),
                               (4, [SPACE], "Étape suivante"), (5, [SPACE], "Étape précédente"),
                               (4, [RETURN], "Continuer")]:
        program.sees("label", f"Étape {page} sur 5")
        program.focused()
        if button:
            program.tab_to(button)
        program.type(*keys)
    program.sees("label", "2 DOUBLONS")
    program.focused()
    first = program.tab_to("Codex")
    program.type(SPACE)
    settles(program, 0, "Codex", "Claude")
    program.tab_to("Claude", first)
    program.type(RETURN)
    settles(program, 1, "Claude", "Codex")
    program.tab_to("Ouvrir la bibliothèque")
    program.type(RETURN)
    program.sees("alert message", "PRÊT")
    place, _ = program.focused()
    program.type(DOWN)
    program.focused_beyond(place)
    editor_by_keyboard(program)
    categories_by_keyboard(program)
    program.tab_to("Nouvelle compétence")
    program.type(SPACE)
    program.sees("text", "Nom", states={"focused"})
    program.type(ESCAPE)
    program.sees("push button", "Nouvelle compétence", states={"focused"})
    program.tab_to("Bibliothèque")
    program.type(DOWN, SPACE)
    program.sees("label", "Tout est synchronisé")
    program.type(DOWN, SPACE)
    program.sees("label", "La corbeille est vide")
    program.tab_to("Rechercher dans la corbeille")
    program.type(*map(ord, "zzz"))
    program.sees("push button", "Effacer")
    program.sees_page()
    program.type(ESCAPE)
    program.tab_to("Corbeille")


def editor_by_keyboard(program):
    program.type(RETURN)
    program.sees("text", "Instructions de la compétence", states={"focused"})
    for name in ("SKILL.md", "Catégorie, Autre", "Plus d’actions", "Retour à la bibliothèque"):
        program.tab_to(name, key=BACKTAB)  # a tab is part of the text
    program.type(SPACE)
    program.sees("list", "Compétences")


def categories_by_keyboard(program):
    program.tab_to("Gérer les catégories")
    program.type(SPACE)
    program.sees("dialog", "Catégories")
    program.type(END, HOME, RETURN)
    program.sees("text", "Nom", states={"focused"})
    for name in ("Choisir une autre couleur", "Supprimer", "Annuler"):
        program.tab_to(name)
    program.type(SPACE)
    program.tab_to("Fermer")
    program.type(SPACE)
    program.sees("push button", "Gérer les catégories", states={"focused"})


def library(demo, folder):
    """A copy of the demonstration library in a new folder, and the names of its skills."""
    folder.mkdir()
    for side in ("claude", "codex"):
        shutil.copytree(demo / side, folder / side)
    skills = [path for path in demo.glob("c*/*/SKILL.md") if " " not in path.parent.name]
    names = {path.read_text(encoding="utf-8").split("name: ")[1].split("\n")[0] for path in skills}
    assert len(names) == 12
    return folder, sorted(names)


def main(executable, command_line, demo, folder):
    demo, folder = pathlib.Path(demo), pathlib.Path(folder)
    speaks_without_window(executable)
    first, names = library(demo, folder / "first")
    with Program(executable, first) as program:
        program.takes_keyboard()
        onboarding(program)
        preparation(program)
        program.sees("alert message", "PRÊT")
        texts(program)
        shell(program, names)
        destinations(program)
        creation(program)
        properties(program)
        program.press("Retour à la bibliothèque")
        category(program)
        selection(program, "compte-rendu-reunion", "maquette-vers-composants")
        trash(program, "compte-rendu-reunion", "maquette-vers-composants")
        attention(program, first)
        news(program, first)
        program.close()
    with Program(executable, first) as program:
        opens_at_once(program)
        program.takes_keyboard()
        program.sees("list item", NAME, states={"focused"})
        starts_again(executable, program, first)
        together(program, command_line, first)
        program.press("Bibliothèque", "radio button")
        ends_with_edits(program, first)
    with Program(executable, first) as program:
        program.takes_keyboard()
        finds_edits(program, first)
        ends_with_edits_while_others_work(program, first)
    errors = folder / "errors"
    with errors.open("w") as file, Program(executable, first, errors=file) as program:
        program.takes_keyboard()
        tells_what_it_loses(program, first, errors)
    with Program(executable, library(demo, folder / "overlapping")[0], workspace="claude/workspace") as program:
        program.takes_keyboard()
        failure(program)
        program.close()
    with Program(executable, library(demo, folder / "keyboard")[0]) as program:
        program.takes_keyboard()
        by_keyboard(program)
        program.close()
    print("Everything that shows can be read out and reached.")


main(*sys.argv[1:])
