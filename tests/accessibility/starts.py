"""What a start does when there is a window already, and what one without a screen or with a mistake says."""

import os
import subprocess
import sys

from program import PATIENCE, Program
from window import window_count


def starts_again(executable, program, folder):
    """A second start on the same folders leaves the window to the first, and ends."""
    with Program(executable, folder) as second:
        status = second.process.wait(PATIENCE)
    if (status, window_count()) != (0, 1):
        sys.exit(f"The second start ended with {status}, and {window_count()} windows are open")
    program.sees_page()


def speaks_without_window(executable):
    screenless = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "QT_QPA_PLATFORM")}
    for arguments, environment, status, answer in [
        ([], screenless, 1, "Aucun écran n’est disponible."),
        (["--version"], screenless, 0, ""),
        (["--gallery", "--autre", "mot"], os.environ, 64, "Argument inconnu\u00a0: --autre\n"),
    ]:
        end = subprocess.run([executable, *arguments], env=environment, capture_output=True, text=True,
                             timeout=PATIENCE, check=False)
        if end.returncode != status or not end.stderr.startswith(answer):
            sys.exit(f"{arguments} ended with {end.returncode} and {end.stderr!r}")
