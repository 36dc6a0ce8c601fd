"""The first start: the welcome, the import, and what happens when nothing can be opened."""

import sys

from program import UNAVAILABLE

COLLISIONS = ["relecture-de-code", "revue-de-securite"]


def story(program, step):
    program.sees("label", f"Étape {step + 1} sur 5")
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
    program.sees("list item", "Mes Essais, Claude, porte un nom qui n’est pas un identifiant valide",
                 "brouillon-sans-fichier, Codex, ne contient pas de fichier SKILL.md")
    program.sees_page()

    # A press on what can't be pressed does nothing; had it opened the library, the choices would be gone.
    program.sees("push button", "Ouvrir la bibliothèque", description=UNAVAILABLE).act()
    for index, (chosen, other) in enumerate([("Claude", "Codex"), ("Codex", "Claude")]):
        program.sees("push button", "Ouvrir la bibliothèque", description=UNAVAILABLE)
        choices(program, chosen)[index].act()
        settles(program, index, chosen, other)
    choices(program, "Claude")[1].act()  # a change of mind
    settles(program, 1, "Claude", "Codex")
    settles(program, 0, "Claude", "Codex")
    program.sees("label", "Prêt à commencer.")
    program.press("Ouvrir la bibliothèque")


def settles(program, index, chosen, other):
    def is_settled(_):
        yes, no = choices(program, chosen)[index], choices(program, other)[index]
        said = (yes.description, "checked" in yes.states, no.description, "checked" in no.states)
        return said == ("sélectionné", True, "non sélectionné", False)

    program.wait(f"{chosen} chosen for {COLLISIONS[index]}", is_settled)


def choices(program, name):
    """The radio buttons of this name, a collision's each."""

    def all_of(nodes):
        found = [node for node in nodes if node.role == "radio button" and node.name == name]
        return found if len(found) == len(COLLISIONS) else None

    return program.wait(f"a choice of {name} for each collision", all_of)


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
