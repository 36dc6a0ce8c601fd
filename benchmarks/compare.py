"""Prints the table of benchmarks/README.md: medians of ratios between runs that follow each other closely."""

import json
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

BUILD = Path(sys.argv[1])
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
    def vornelctl(command):
        return [BUILD / "VORNELCommand/vornelctl", command]

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
            _, openssl = small.benchmark("openSslSha256")
            for files in (1, 4):
                _, snapshot = small.benchmark(f"snapshotOfLargeFiles/{files}")
                note(f"snapshot{files}", snapshot["bytes_per_second"] / openssl["bytes_per_second"])
        memory = large.peak_memory()

    median = {name: statistics.median(values) for name, values in ratios.items()}
    print("| work | beside | measured | must reach |")
    print("|---|---|---|---|")
    print(f"| `reload`, 500 skills | two threads that only open, read and hash the same"
          f" {bare_run['files']:.0f} files | {median['bare']:.2f} times | at most 1.25 times |")
    print(f"| the same | `diff -rq` of both pairs | {median['diff']:.2f} times | under 1 |")
    print(f"| the same | `rsync -rnc` of both pairs | {median['rsync']:.2f} times | under 1 |")
    print(f"| `reload`, 5,000 skills | `reload`, 500 skills, per skill | {median['scale']:.2f} times"
          f" | at most 1.10 times |")
    print(f"| snapshot of four files of 24 MiB | OpenSSL's SHA-256 from memory, one thread"
          f" | {100 * median['snapshot4']:.0f} % of its speed | at least 90 % |")
    print(f"| snapshot of one file of 24 MiB | the same | {100 * median['snapshot1']:.0f} % of its speed | |")
    print(f"| peak memory of an overview, 5,000 skills | | {memory:.0f} MiB | under 96 MiB |")


main()
