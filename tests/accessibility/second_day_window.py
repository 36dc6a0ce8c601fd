"""The second day in the window: nobody asks it to look anew."""

import json

from changes import closes, says

LAST_STEP = "Étape 5 sur 5"


def day_in_window(program, begin_day, texts):
    first_start(program)
    assistants = begin_day()
    assistants.work()
    texts.note()
    imports(program)
    program.press("À réparer", "radio button")
    program.sees("label", "3 compétences")
    adopts(program, name_of(assistants, assistants.adopted))
    merges(program, name_of(assistants, assistants.merged))
    sets_aside(program, name_of(assistants, assistants.linked))
    program.sees("label", "VORNEL", "Tout est à jour")
    return assistants


def first_start(program):
    for step in range(1, 5):
        program.sees("label", f"Étape {step} sur 5")
        program.press("Continuer")
    program.sees("label", LAST_STEP)
    for choice in program.wait("what the scan has found", collisions):
        choice.act()
    program.sees("label", "Prêt à commencer.")
    program.press("Ouvrir la bibliothèque")
    program.sees("alert message", "PRÊT")


def collisions(nodes):
    """The version of Claude for each collision."""
    return [node for node in nodes if node.role == "radio button" and node.name == "Claude"]


def imports(program):
    program.sees("alert message", "1 nouvelle compétence chez Claude")
    program.press("Importer…")
    program.sees("label", "Prêt à commencer.")
    program.sees_page()
    program.press("Importer")
    program.wait("no notice any more",
                 lambda nodes: nodes and not any(node.role == "alert message" and "nouvelle" in node.name for node in nodes))
    closes(program)


def adopts(program, name):
    says(program, name, "Mise à jour nécessaire", "Codex a modifié 2 fichiers")
    program.sees("push button", "Adopter…", description=name).act()
    program.sees("dialog", "Différences avec les copies")
    program.sees_page()
    program.sees("push button", "Adopter la version de Codex").act()
    program.sees("alert message", "ADOPTÉE")
    closes(program)


def merges(program, name):
    says(program, name, "Mise à jour nécessaire", "Claude a modifié 1 fichier, Codex 1")
    program.sees("push button", "Adopter…", description=name).act()
    program.sees("push button", "Fusionner").act()
    program.sees("alert message", "FUSIONNÉE")
    closes(program)


def sets_aside(program, name):
    program.sees("push button", "Mettre de côté", description=f"{name}, Codex").act()
    closes(program)


def name_of(assistants, slug):
    manifest = assistants.folder / "workspace/skills" / slug / "vornel.json"
    return json.loads(manifest.read_text(encoding="utf-8"))["displayName"]
