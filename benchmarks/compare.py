"""Prints the table of benchmarks/README.md: medians of ratios between runs that follow each other closely."""

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
VORNELCTL = BUILD / "VORNELCommand/vornelctl"
ROUNDS = 9


class Library:
    """A workspace of sample skills with both target copies, in a folder of its own."""

    def __init__(self, folder, count):
        self.count = count
        self.roots = [folder / name for name in ("workspace", "claude", "codex")]
        names = ("VORNEL_WORKSPACE_PATH", "VORNEL_CLAUDE_SKILLS_PATH", "VORNEL_CODEX_SKILLS_PATH")
        self.environment = os.environ | dict(zip(names, map(str, self.roots)))
        subprocess.run([BUILD / "benchmarks/vornel-sample-library", self.roots[1], str(count)], check=True)
        subprocess.run(self.vornelctl("import"), env=self.environment, check=True, stdout=subprocess.DEVNULL)

    @staticmethod
    def vornelctl(*words):
        return [VORNELCTL, *words]

    def seconds_of(self, *words):
        """Seconds that a command takes on this library."""
        return seconds(*self.vornelctl(*words), env=self.environment, stdout=subprocess.DEVNULL)

    def benchmark(self, name):
        """Seconds of one iteration, and the counters, of a benchmark on this library."""
        output = subprocess.run(
            [BUILD / "benchmarks/vornel-benchmarks", f"--benchmark_filter=^{name}/", "--benchmark_format=json"],
            env=self.environment, check=True, capture_output=True).stdout
        run = json.loads(output)["benchmarks"][0]
        return run["real_time"] * {"ms": 1e-3, "s": 1}[run["time_unit"]], run

    def seconds_of_pairs(self, program):
        """Seconds that a program takes to compare the canonical folders with both copies."""
        start = time.perf_counter()
        for copy in self.roots[1:]:
            subprocess.run([*program, f"{self.roots[0]}/skills/", f"{copy}/"], stdout=subprocess.DEVNULL)
        return time.perf_counter() - start

    def peak_memory(self):
        """Peak resident mebibytes of a process that makes one overview."""
        with open(os.devnull, "w") as nowhere:
            process = subprocess.Popen(self.vornelctl("status"), env=self.environment, stdout=nowhere)
            return os.wait4(process.pid, 0)[2].ru_maxrss / 1024


def seconds(*command, **options):
    """Seconds that a command takes."""
    start = time.perf_counter()
    subprocess.run(command, check=True, **options)
    return time.perf_counter() - start


class Assistants:
    """The assistants' folders with sample skills, before anything is imported. Each measurement has files of its own, and
    none is removed before the end: a file system looks for room more slowly after that."""

    def __init__(self, folder, count, holders):
        self.folder = folder
        self.holders = holders
        subprocess.run([BUILD / "benchmarks/vornel-sample-library", folder / "sample", str(count)], check=True)
        for name in holders:
            shutil.copytree(folder / "sample", folder / name)
        subprocess.run("sync", check=True)

    def seconds_of_copy(self):
        """Seconds until copies of the holders' folders are on the disk."""
        sources = [self.folder / name for name in self.holders]
        (self.folder / "copies").mkdir()
        return seconds("cp", "-r", *sources, self.folder / "copies") + seconds("sync")

    def seconds_of_import(self):
        roots = [word for name in ("workspace", "claude", "codex") for word in (f"--{name}", self.folder / name)]
        return seconds(VORNELCTL, *roots, "import", stdout=subprocess.DEVNULL)


def import_costs(folder):
    """How many times a copy of the same files an import costs, when both assistants hold the skills or only one."""
    costs = {}
    for number in range(ROUNDS):
        for holders in (("claude", "codex"), ("claude",)):
            place = folder / f"import-{number}-{len(holders)}"
            place.mkdir()
            assistants = Assistants(place, 500, holders)
            costs.setdefault(len(holders), []).append(
                assistants.seconds_of_import() / assistants.seconds_of_copy())
    return {holders: statistics.median(values) for holders, values in costs.items()}


def main():
    with tempfile.TemporaryDirectory() as folder:
        small = Library(Path(folder) / "small", 500)
        large = Library(Path(folder) / "large", 5000)
        ratios = {}

        def note(name, value):
            ratios.setdefault(name, []).append(value)

        for _ in range(ROUNDS):
            bare, bare_run = small.benchmark("bareOpenReadHash")
            reload, _ = small.benchmark("reload")
            note("bare", reload / bare)
            note("diff", reload / small.seconds_of_pairs(["diff", "-rq"]))
            note("rsync", reload / small.seconds_of_pairs(["rsync", "-rnc"]))
            many, _ = large.benchmark("reload")
            again, _ = small.benchmark("reload")
            note("scale", (many / large.count) / ((reload + again) / 2 / small.count))
            note("sync", large.seconds_of("sync", "--all") / large.seconds_of("status"))
            _, openssl = small.benchmark("openSslSha256")
            for files in (1, 4):
                _, snapshot = small.benchmark(f"snapshotOfLargeFiles/{files}")
                note(f"snapshot{files}", snapshot["bytes_per_second"] / openssl["bytes_per_second"])
        memory = large.peak_memory()
        imports = import_costs(Path(folder))

    median = {name: statistics.median(values) for name, values in ratios.items()}
    print("| work | beside | measured | must reach |")
    print("|---|---|---|---|")
    print(f"| `reload`, 500 skills | two threads that only open, read and hash the same"
          f" {bare_run['files']:.0f} files | {median['bare']:.2f} times | at most 1.25 times |")
    print(f"| the same | `diff -rq` of both pairs | {median['diff']:.2f} times | under 1 |")
    print(f"| the same | `rsync -rnc` of both pairs | {median['rsync']:.2f} times | under 1 |")
    print(f"| `reload`, 5,000 skills | `reload`, 500 skills, per skill | {median['scale']:.2f} times"
          f" | at most 1.10 times |")
    print(f"| `sync --all`, 5,000 skills that are in sync | `status` | {median['sync']:.2f} times | at most 3 times |")
    print(f"| snapshot of four files of 24 MiB | OpenSSL's SHA-256 from memory, one thread"
          f" | {100 * median['snapshot4']:.0f} % of its speed | at least 90 % |")
    print(f"| snapshot of one file of 24 MiB | the same | {100 * median['snapshot1']:.0f} % of its speed | |")
    print(f"| import of 500 skills that both assistants hold | `cp -r` of both folders, then `sync`"
          f" | {imports[2]:.2f} times | at most 3 times |")
    print(f"| import of 500 skills that one holds, which the other gets, too | `cp -r` of the one folder, then `sync`"
          f" | {imports[1]:.2f} times | |")
    print(f"| peak memory of an overview, 5,000 skills | | {memory:.0f} MiB | under 96 MiB |")


main()
