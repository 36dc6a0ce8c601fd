"""The second day: assistants go on working in their folders. What they write is imported, adopted, merged or set aside, at
the command line and in the window, and no text that anyone has written is missing at the end."""

import json
import pathlib
import shutil
import subprocess
import sys

from program import Program
from second_day_window import day_in_window
from together import CommandLine


class Texts:
    """All that anyone has written in the assistants' folders so far."""

    def __init__(self, folder):
        self.folder = folder
        self.written = {}
        self.note()

    def note(self):
        for assistant in ("claude", "codex"):
            self.written.update(files_below(self.folder / assistant))

    def require_all(self):
        found = set(files_below(self.folder))
        lost = [str(place) for text, place in self.written.items() if text not in found]
        if lost:
            sys.exit("\n".join(["Texts that are nowhere any more:", *lost]))


def files_below(folder):
    """The texts of all files, whatever their names are; of each, a place where it stands."""
    return {path.read_bytes(): path for path in folder.rglob("*") if path.is_file() and not path.is_symlink()}


class Assistants:
    """What two assistants do in the folders from which they read skills."""

    def __init__(self, folder):
        self.folder = folder
        slugs = sorted(path.name for path in (folder / "workspace/skills").iterdir())
        self.adopted, self.merged, self.linked = slugs[:3]
        self.new = "bilan-de-la-semaine"

    def work(self):
        new = self.folder / "claude" / self.new
        new.mkdir()
        (new / "SKILL.md").write_text("---\nname: Bilan de la semaine\n---\n\nTrois points.\n", encoding="utf-8")

        copy = self.folder / "codex" / self.adopted
        append(copy / "SKILL.md", "\nUne remarque de Codex.\n")
        (copy / "exemples.md").write_text("Deux exemples.\n", encoding="utf-8")

        claude, codex = (self.folder / name / self.merged / "SKILL.md" for name in ("claude", "codex"))
        claude.write_text("<!-- relu par Claude -->\n" + claude.read_text(encoding="utf-8"), encoding="utf-8")
        append(codex, "\nUne conclusion de Codex.\n")

        copy = self.folder / "codex" / self.linked
        append(copy / "SKILL.md", "\nÉcrit avant l’installation.\n")
        (copy / "node_modules").mkdir()
        (copy / "node_modules/outil").symlink_to("/usr/bin/env")

    def require_taken_over(self):
        skills = self.folder / "workspace/skills"
        for skill, text in [(self.new, "Trois points."), (self.adopted, "Une remarque de Codex."),
                            (self.merged, "<!-- relu par Claude -->"), (self.merged, "Une conclusion de Codex.")]:
            assert text in (skills / skill / "SKILL.md").read_text(encoding="utf-8"), (skill, text)
        assert (self.folder / "claude" / self.adopted / "exemples.md").exists(), "installed for the other assistant"


def append(path, text):
    with path.open("a", encoding="utf-8") as file:
        file.write(text)


def first_day(skills, folder):
    """The assistants' folders as a user has them before VORNEL."""
    folder.mkdir()
    for assistant in ("claude", "codex"):
        shutil.copytree(skills / assistant, folder / assistant, copy_function=shutil.copyfile)
        for path in (folder / assistant, *(folder / assistant).rglob("*")):
            path.chmod(0o755 if path.is_dir() else 0o644)
    return folder


def day_at_command_line(terminal, assistants, texts):
    def status(code):
        return subprocess.run([*terminal.command, "status"], capture_output=True, text=True, check=False)

    assistants.work()
    texts.note()
    found = status(1)
    assert found.returncode == 1, found
    assert found.stdout.endswith("1 nouvelle compétence chez Claude\n"), found.stdout
    terminal.run("import")
    terminal.run("adopt", assistants.adopted, "codex")
    merged = json.loads(terminal.run("merge", assistants.merged, "--json"))
    assert merged["conflicts"] == [], merged
    terminal.run("set-aside", assistants.linked, "codex")
    settled = status(0)
    assert settled.returncode == 0 and settled.stdout.endswith("Tout est à jour\n"), settled


def main(executable, command_line, skills, scratch):
    skills, scratch = pathlib.Path(skills), pathlib.Path(scratch)
    folder = first_day(skills, scratch / "terminal")
    terminal = CommandLine(command_line, folder)
    texts = Texts(folder)
    terminal.run("import", "--prefer", "claude")
    assistants = Assistants(folder)
    day_at_command_line(terminal, assistants, texts)
    assistants.require_taken_over()
    texts.require_all()

    folder = first_day(skills, scratch / "window")
    texts = Texts(folder)
    with Program(executable, folder) as program:
        program.takes_keyboard()
        assistants = day_in_window(program, lambda: Assistants(folder), texts)
        program.close()
    assistants.require_taken_over()
    texts.require_all()
    print("Nothing that an assistant wrote is lost.")


if __name__ == "__main__":
    main(*sys.argv[1:])
