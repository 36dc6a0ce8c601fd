"""Walks through the program as someone with a screen reader does, and then again with nothing but a keyboard."""

import os
import pathlib
import shutil
import subprocess
import sys
import time

from tree import Atspi, GLib, application, drain, read
from window import Window

PATIENCE = 30  # seconds that anything may take; the sanitizers make the program slow

STORIES = [
    ("BIBLIOTHÈQUE", "Tout au même\nendroit.", "Vos compétences restent organisées."),
    ("REPÈRES", "Trouvez ce qu’il\nvous faut.", "Une carte. Un rôle. Un état."),
    ("À JOUR", "Toujours\ndisponible.", "Vos assistants partagent la même version."),
    ("PROTÉGÉ", "Rien ne\ndisparaît.", "Historique. Corbeille. Restauration."),
]
COLLISIONS = ["relecture-de-code", "revue-de-securite"]
UNAVAILABLE = "indisponible"
TAB, RETURN, ESCAPE, SPACE = 0xFF09, 0xFF0D, 0xFF1B, 0x20
HOME, LEFT, RIGHT, DOWN, END = 0xFF50, 0xFF51, 0xFF53, 0xFF54, 0xFF57


class Program:
    """The program in its window, with its settings and its library in a folder."""

    def __init__(self, executable, folder, workspace="workspace"):
        environment = dict(
            os.environ,
            XDG_CONFIG_HOME=str(folder / "settings"),
            VORNEL_WORKSPACE_PATH=str(folder / workspace),
            VORNEL_CLAUDE_SKILLS_PATH=str(folder / "claude"),
            VORNEL_CODEX_SKILLS_PATH=str(folder / "codex"),
        )
        environment.pop("VORNEL_TEST_MODE", None)  # its settings don't outlive the process
        self.process = subprocess.Popen([executable], env=environment)

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
            drain()
            source = application(self.process.pid)
            return [node for node in read(source) if node.is_showing] if source else []
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

        for name in names:
            expected = f"{role} {name!r} {description or ''} with {states}, without {missing}"
            found = self.wait(expected, lambda nodes: [node for node in nodes if match(node, name)])
        return found[-1]

    def sees_page(self):
        """Nothing that shows, no control and no mere decoration, is read out without a name, nor has it the focus."""
        self.wait("a name on everything", lambda nodes: nodes and all(node.name.strip() for node in nodes))
        self.focused()

    def act(self, node):
        node.act(node.actions[0])

    def press(self, name, role="push button"):
        self.act(self.sees(role, name, description="" if role == "push button" else None))

    def choices(self, name):
        """The radio buttons of this name, a collision's each."""

        def all_of(nodes):
            found = [node for node in nodes if node.role == "radio button" and node.name == name]
            return found if len(found) == len(COLLISIONS) else None

        return self.wait(f"a choice of {name} for each collision", all_of)

    def focused(self):
        """The innermost object with the keyboard: its place in the tree and itself. It must show, and have a name."""

        def innermost(nodes):
            found = [(i, node) for i, node in enumerate(nodes) if "focused" in node.states]
            return found[-1] if found and found[-1][1].name.strip() else None

        return self.wait("a named object with the keyboard", innermost)

    def type(self, *keys):
        for key in keys:
            Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)

    def tab_to(self, name, after=-1):
        """Goes forward to an object of this name, below the place `after` in the tree, and returns its place."""
        seen = set()
        place, node = self.focused()
        while node.name != name or place <= after:
            if place in seen:
                sys.exit(f"The tab key goes round without coming to {name!r}")
            seen.add(place)
            self.type(TAB)
            self.wait("the keyboard elsewhere", lambda nodes: self.focused()[0] != place)
            place, node = self.focused()
        return place

    def close(self):
        with Window() as window:
            window.close()
        status = self.process.wait(PATIENCE)
        if status != 0:
            sys.exit(f"The program ended with {status} when its window was closed")


def story(program, step):
    label, title, subtitle = STORIES[step]
    program.sees("label", f"Étape {step + 1} sur 5", "VORNEL", label, title, subtitle)
    program.sees("push button", "Étape précédente", description="" if step else UNAVAILABLE)
    program.sees("push button", "Étape suivante", "Continuer", description="")
    program.sees_page()


def onboarding(program):
    for step, way in enumerate(["Continuer", "Étape suivante", "Étape suivante", "Continuer"]):
        story(program, step)
        program.press(way)
    program.press("Étape précédente")
    story(program, 3)
    program.press("Continuer")


def preparation(program):
    program.sees("label", "Étape 5 sur 5", "PRÉPARATION", "VORNEL rassemble vos compétences existantes.")
    program.sees("label", "10 COMPÉTENCES", "2 DOUBLONS", "2 IGNORÉES")
    program.sees("panel", *COLLISIONS)
    program.sees("push button", "Étape suivante", "Ouvrir la bibliothèque", description=UNAVAILABLE)
    program.sees_page()

    program.press("2 dossiers ignorés")
    program.sees("list item", "Mes Essais, Claude, le nom du dossier n’est pas un slug valide",
                 "brouillon-sans-fichier, Codex, ne contient pas de fichier SKILL.md")
    program.sees_page()

    # A press on what can't be pressed does nothing; had it opened the library, the choices would be gone.
    program.act(program.sees("push button", "Ouvrir la bibliothèque", description=UNAVAILABLE))
    for index, (chosen, other) in enumerate([("Claude", "Codex"), ("Codex", "Claude")]):
        program.sees("push button", "Ouvrir la bibliothèque", description=UNAVAILABLE)
        program.act(program.choices(chosen)[index])
        settles(program, index, chosen, other)
    program.act(program.choices("Claude")[1])  # a change of mind
    settles(program, 1, "Claude", "Codex")
    settles(program, 0, "Claude", "Codex")
    program.sees("label", "Prêt à commencer.")
    program.press("Ouvrir la bibliothèque")


def settles(program, index, chosen, other):
    def is_settled(_):
        yes, no = program.choices(chosen)[index], program.choices(other)[index]
        said = (yes.description, "checked" in yes.states, no.description, "checked" in no.states)
        return said == ("sélectionné", True, "non sélectionné", False)

    program.wait(f"{chosen} chosen for {COLLISIONS[index]}", is_settled)


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


def destinations(program):
    for name, title in [("À réparer", "Tout est synchronisé"), ("Corbeille", "La corbeille est vide")]:
        program.press(name, "radio button")
        program.sees("radio button", name, states={"checked"})
        program.sees("radio button", "Bibliothèque", missing={"checked"})
        program.sees("label", title)
        program.sees_page()
    program.press("Bibliothèque", "radio button")
    skill = program.sees("list item", "Migration SQL")
    skill.act("Press")
    program.sees("push button", "Synchroniser", description="")
    program.sees("push button", "Enregistrer", description=UNAVAILABLE)
    program.sees("push button", "Claude, à jour", "Codex, à jour", "Catégorie, Autre", "Retour à la bibliothèque")
    program.sees("list item", "SKILL.md", "scripts", "verifier-migration.sql")
    program.sees("label", "ENREGISTRÉ")
    program.sees_page()
    program.sees("text", "Instructions de la compétence", states={"editable"}).act("SetFocus")
    program.sees("text", "Instructions de la compétence", states={"focused"})
    program.type(ord("x"))
    program.sees("label", "MODIFIÉ", "Modifications non enregistrées")
    program.press("Bibliothèque", "radio button")
    program.sees("dialog", "Enregistrer les modifications\u00a0?")
    program.press("Ne pas enregistrer")
    program.sees("push button", "Synchroniser", description=UNAVAILABLE)


def creation(program):
    program.press("Nouvelle compétence")
    program.sees("dialog", "Nouvelle compétence")
    program.sees("text", "Nom", states={"editable"})
    program.sees_page()
    program.press("Annuler")
    program.wait("no dialog any more", lambda nodes: nodes and not any(node.role == "dialog" for node in nodes))


def search(program):
    program.sees("text", "Rechercher une compétence").act("SetFocus")
    program.sees("text", "Rechercher une compétence", states={"focused"})
    program.type(*map(ord, "zzz"))
    program.sees("label", "Aucun résultat")
    program.sees_page()
    program.press("Effacer")
    program.sees("list item", "Migration SQL")


def opens_at_once(program):
    def library(nodes):
        if any(node.name.startswith("Étape") for node in nodes):
            sys.exit("The second start welcomes the user anew")
        return any(node.role == "radio button" and node.name == "Bibliothèque" for node in nodes)

    program.wait("the library", library)


def failure(program):
    program.sees("label", "VORNEL a rencontré un problème", "Indisponible",
                 "Chemin invalide (overlappingRoots).")
    program.sees("push button", "Réessayer", description="")
    program.sees_page()


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
    program.sees("alert", "PRÊT")
    place, _ = program.focused()
    program.type(DOWN)
    program.wait("the keyboard on the next skill", lambda nodes: program.focused()[0] != place)
    program.tab_to("Nouvelle compétence")
    program.type(SPACE)
    program.sees("text", "Nom", states={"focused"})
    program.type(ESCAPE)
    program.sees("push button", "Nouvelle compétence", states={"focused"})
    program.tab_to("Bibliothèque")
    program.type(DOWN, DOWN, SPACE)
    program.sees("label", "La corbeille est vide")
    program.tab_to("Rechercher une compétence")
    program.type(*map(ord, "zzz"))
    program.sees("push button", "Effacer")
    program.type(ESCAPE)
    program.tab_to("Corbeille")


def library(demo, folder):
    """A copy of the demonstration library in a new folder, and the names of its skills."""
    folder.mkdir()
    for side in ("claude", "codex"):
        shutil.copytree(demo / side, folder / side)
    skills = [path for path in demo.glob("c*/*/SKILL.md") if " " not in path.parent.name]
    names = {path.read_text(encoding="utf-8").split("name: ")[1].split("\n")[0] for path in skills}
    assert len(names) == 12
    return folder, sorted(names)


def main(executable, demo, folder):
    demo, folder = pathlib.Path(demo), pathlib.Path(folder)
    first, names = library(demo, folder / "first")
    with Program(executable, first) as program:
        program.takes_keyboard()
        onboarding(program)
        preparation(program)
        program.sees("alert", "PRÊT")
        shell(program, names)
        destinations(program)
        creation(program)
        search(program)
        program.close()
    with Program(executable, first) as program:
        opens_at_once(program)
        program.takes_keyboard()
        shell(program, names)
        program.close()
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
