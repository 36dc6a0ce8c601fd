"""Prints the table on the window of benchmarks/README.md: medians of ratios between starts that follow each other
closely. Ends with status 1 when a ratio passes its limit."""

import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

BUILD = Path(sys.argv[1])
EMPTY_WINDOW = [BUILD / "benchmarks/EmptyWindow/vornel-empty-window"]
VORNEL = [BUILD / "VORNELApp/vornel", "--end-after-first-frame"]
DEMO = Path(__file__).parent.parent / "demo"
ROUNDS = 49
FRAME = 16  # milliseconds


class Home:
    """A home of its own: the programs write settings and caches, and must not meet those of a person."""

    def __init__(self, folder, is_used):
        self.is_used = is_used
        self.workspace = folder / "workspace"
        for assistant in ("claude", "codex"):
            shutil.copytree(DEMO / assistant, folder / assistant)
        for name in ("cache", "config", "runtime"):
            (folder / name).mkdir(mode=0o700)
        self.environment = {"XDG_RUNTIME_DIR": str(folder / "runtime")} | os.environ | {
            "HOME": str(folder),
            "XDG_CACHE_HOME": str(folder / "cache"),
            "XDG_CONFIG_HOME": str(folder / "config"),
            "VORNEL_WORKSPACE_PATH": str(self.workspace),
            "VORNEL_CLAUDE_SKILLS_PATH": str(folder / "claude"),
            "VORNEL_CODEX_SKILLS_PATH": str(folder / "codex"),
        }
        if is_used:
            (folder / "config/com.brindlecove.vornel.ini").write_text(
                "[General]\ncom.brindlecove.vornel.onboarding.completed.v3=true\n")
            subprocess.run([BUILD / "VORNELCommand/vornelctl", "import", "--prefer", "claude"],
                           env=self.environment, check=True, stdout=subprocess.DEVNULL)

    def start(self, program):
        """Seconds from the start of a program to its end, and its peak resident mebibytes."""
        if not self.is_used:
            shutil.rmtree(self.workspace, ignore_errors=True)
        begin = time.perf_counter()
        process = subprocess.Popen(program, env=self.environment)
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.perf_counter() - begin
        if status != 0:
            raise subprocess.CalledProcessError(os.waitstatus_to_exitcode(status), program)
        return seconds, usage.ru_maxrss / 1024

    def ratios(self):
        """How many times the empty window's time and memory a start of the application takes."""
        self.start(EMPTY_WINDOW)
        self.start(VORNEL)
        rounds = []
        for _ in range(ROUNDS):
            empty = self.start(EMPTY_WINDOW)
            rounds.append([vornel / least for vornel, least in zip(self.start(VORNEL), empty)])
        return map(statistics.median, zip(*rounds))


def milliseconds(benchmark, chosen):
    """What each of a program's chosen benchmarks takes."""
    output = subprocess.run(
        [BUILD / "benchmarks" / benchmark, f"--benchmark_filter={chosen}", "--benchmark_format=json"],
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    return [run["real_time"] for run in json.loads(output)["benchmarks"]]


def main():
    with tempfile.TemporaryDirectory() as folder:
        used_time, used_memory = Home(Path(folder) / "used", True).ratios()
        new_time, new_memory = Home(Path(folder) / "new", False).ratios()
    strokes = milliseconds("vornel-library-benchmark", "^keyStroke/")
    changes = milliseconds("vornel-screen-benchmark", ".")
    letters = milliseconds("vornel-editor-benchmark", ".")

    rows = [
        ("start to the first frame, library of the demonstration", "the empty window", used_time, 1.5),
        ("its peak memory", "the same", used_memory, 2),
        ("very first start to the first frame", "the same", new_time, 1.5),
        ("its peak memory", "the same", new_memory, 2),
        (f"the slowest of {len(strokes)} key strokes in the search, 10,000 skills", f"a frame of {FRAME} ms",
         max(strokes) / FRAME, 1),
        (f"the slowest of {len(changes)} changes of page, filter or search in its screen, 2,000 skills", "the same",
         max(changes) / FRAME, 1),
        (f"the slowest of {len(letters)} key strokes in the editor, a text of 1 MiB", "the same", max(letters) / FRAME, 1),
    ]
    print("| work | beside | measured | must reach |")
    print("|---|---|---|---|")
    for work, beside, measured, limit in rows:
        print(f"| {work} | {beside} | {measured:.2f} times | at most {limit:.2f} times |")
    sys.exit(any(measured > limit for _, _, measured, limit in rows))


main()
