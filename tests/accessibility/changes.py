"""What a user does to the skills of a library, from the creation of one to its end."""

import shutil

from program import BACKTAB, RETURN, UNAVAILABLE

NAME = "Essai de marche"
MENDED_BY_TEXTS = "«\u00a0Reprendre du SKILL.md\u00a0» corrigerait la description de 2 nouvelles compétences."


def creation(program):
    fill_in(program)
    program.sees("label", "Prête à être créée.")
    program.sees("form", "Nouvelle compétence", description="Formulaire valide")
    program.sees_page()
    program.press("Créer")
    program.sees("alert message", "CRÉÉE")
    program.sees("label", NAME, "ENREGISTRÉ")

    # The same once more: the sheet says what is wrong.
    fill_in(program)
    program.sees("alert message", "Une compétence porte déjà cet identifiant.")
    program.sees_page()
    program.press("Annuler")
    program.press("Abandonner")
    closes(program)


def fill_in(program):
    program.press("Nouvelle compétence")
    program.sees("dialog", "Nouvelle compétence")
    program.sees("text", "Nom", states={"focused", "editable"})
    program.sees("push button", "Créer", description=UNAVAILABLE)
    program.sees("label", "Le nom est requis.")
    program.type(*map(ord, NAME))


def properties(program):
    """One more tag for the skill that is open, and then no longer."""
    program.press("Propriétés")
    program.sees("panel", "Propriétés")
    program.sees("text", "Nom", states={"focused", "editable"})
    program.sees("push button", "Enregistrer les propriétés", description=UNAVAILABLE)
    program.tab_to("Mots-clés")
    program.type(*map(ord, "marche"), RETURN)
    program.sees("push button", "Retirer marche")
    program.sees_page()
    program.press("Enregistrer les propriétés")
    program.sees("alert message", "PROPRIÉTÉS MODIFIÉES")
    program.tab_to("Identifiant")
    program.sees("label", "Révision\u00a0: 2")
    program.tab_to("Nom", key=BACKTAB)
    program.press("Retirer marche")
    program.press("Enregistrer les propriétés")
    program.tab_to("Identifiant")
    program.sees("label", "Révision\u00a0: 3")
    program.press("Fermer les propriétés")


def category(program):
    program.press("Gérer les catégories")
    program.sees("dialog", "Catégories")
    program.sees("list item", "Autre, 12 compétences", description="Catégorie par défaut")
    program.sees_page()
    program.press("Nouvelle")
    program.sees("label", "NOUVELLE CATÉGORIE")
    program.sees_page()
    program.press("Annuler")
    program.press("Fermer")
    closes(program)


def selection(program, *names):
    program.press("Sélectionner")
    for name in names:
        program.sees("list item", name).act("Press")
    program.sees("label", f"{len(names)} sélectionnées")
    program.sees_page()
    matures(program, len(names))
    program.press("Supprimer")
    program.sees("dialog", f"Placer {len(names)} compétences dans la corbeille ?")
    program.press("Placer dans la corbeille")
    program.sees("alert message", f"{len(names)} DÉPLACÉES")
    closes(program)


def matures(program, count):
    """Another maturity for the selected skills."""
    program.press("Propriétés…")
    program.sees("dialog", f"Propriétés de {count} compétences")
    program.sees("push button", "Catégorie, Inchangée", states={"focused"})
    program.sees("radio button", "Inchangée", states={"checked"})
    program.press("Prêt", "radio button")
    program.sees("radio button", "Prêt", states={"checked"})
    program.sees_page()
    program.press(f"Modifier {count} compétences")
    program.sees("alert message", "PROPRIÉTÉS MODIFIÉES")
    closes(program)


def trash(program, restored, deleted):
    program.press("Corbeille", "radio button")
    program.sees("heading", "CORBEILLE")
    program.sees("label", "2 éléments")
    program.sees("list item", restored, deleted)
    program.sees_page()
    program.sees("push button", "Supprimer définitivement", description=deleted)
    program.sees("push button", "Restaurer", description=restored).act()
    program.sees("dialog", f"Restaurer « {restored} » ?")
    program.press("Restaurer")
    program.sees("label", "1 élément")
    closes(program)


def attention(program, folder):
    missing, drifted = "audit-accessibilite", "tests-de-charge"
    shutil.rmtree(folder / "claude/audit-accessibilite")
    (folder / "codex/tests-de-charge/SKILL.md").write_text("edited in place", encoding="utf-8")
    program.press("Actualiser")
    program.press("À réparer", "radio button")
    program.sees("heading", "À RÉPARER")
    program.sees("label", "2 compétences")
    program.sees_page()
    says(program, missing, "Mise à jour nécessaire", "Claude\u00a0: copie manquante")
    says(program, drifted, "Mise à jour nécessaire", "Codex a modifié 1 fichier")

    program.sees("push button", "Synchroniser", description=missing).act()
    program.sees("label", "1 compétence")


def texts(program):
    """Assistants will read two of the imported descriptions otherwise than the import has."""
    program.sees("alert message", MENDED_BY_TEXTS)
    program.sees("push button", "Reprendre…")
    program.sees_page()
    ignores(program)


def ignores(program):
    program.press("Ignorer")
    program.wait("no word of it any more", lambda nodes: nodes and not any(node.name == "Ignorer" for node in nodes))


def news(program, folder):
    made = folder / "claude/trouvaille"
    made.mkdir()
    (made / "SKILL.md").write_text("made since", encoding="utf-8")
    program.press("Actualiser")

    def tells(node):
        below = {child.name for child in node.branch() if child.role == "push button"}
        return node.name == "1 nouvelle compétence chez Claude" and below == {"Importer…", "Ignorer"}

    program.wait("the new skill with its buttons", lambda nodes: any(map(tells, nodes)))
    program.sees_page()
    ignores(program)
    shutil.rmtree(made)


def says(program, skill, *texts):
    """Waits until the row of this skill is read out with all of these texts."""

    def does(node):
        return node.role == "list item" and node.name == skill and all(text in node.description for text in texts)

    program.wait(f"{skill!r} with {texts}", lambda nodes: any(map(does, nodes)))


def closes(program):
    program.wait("no dialog any more", lambda nodes: nodes and not any(node.role == "dialog" for node in nodes))
