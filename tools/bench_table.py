#!/usr/bin/env python3
"""Runs the benchmarks and prints one table of their figures beside their yardsticks and targets.

Usage: bench_table.py FOLDER [NAME...]: the executables' folder, and the benchmarks to run (all of them). Of each figure
the median of its repetitions stands. Prints the lines of a benchmark as it ends, and ends with 1 if a target is missed
or something could not be measured.

A target is a counter of the benchmark: `ratio_at_most` beside its yardstick, `ms_at_most` of the processor's time (of
the clock's, if the benchmark says so), `MB_at_most` and `percent_at_most` of its counters `MB` and `percent`.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
MILLISECONDS = {"s": 1e3, "ms": 1, "us": 1e-3, "ns": 1e-6}
# What the benchmarks' library adds to a name.
ADDED = re.compile(r"/(real_time|process_time|manual_time|(iterations|repeats|min_time):[^/]*)")


def programs(folder):
    """The benchmarks by their names: how each is called."""
    known = {path.name.removeprefix("bench_"): [str(path)] for path in sorted(folder.glob("bench_*"))}
    for script in sorted((ROOT / "bench").glob("*/*.py")):
        known["program_" + script.stem] = [sys.executable, str(script), str(folder)]
    return known


def run(command):
    """What a program prints; ends with its complaint if it fails."""
    ended = subprocess.run(command, capture_output=True, text=True)
    if ended.returncode:
        sys.exit(f"{command[0]}: {ended.stderr}")
    return ended.stdout


def measured(command):
    """The benchmarks of a program as its JSON tells them."""
    if command[0] == sys.executable:
        return json.loads(run(command))["benchmarks"]
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        run([*command, f"--benchmark_out={out.name}", "--benchmark_out_format=json"])
        return json.loads(pathlib.Path(out.name).read_text(encoding="utf-8"))["benchmarks"]


def medians(benchmarks):
    """The median of each benchmark by its name, in the order of its program; what failed has an `error_message`."""

    def place(one):
        return one.get("family_index", 0), one.get("per_family_instance_index", 0)

    found = {}
    for one in sorted(benchmarks, key=place):
        name = ADDED.sub("", one.get("run_name", one["name"]))
        if one.get("error_occurred") or one.get("aggregate_name", "median") == "median":
            found[name] = one
    return found


def milliseconds(one, field="real_time"):
    return one[field] * MILLISECONDS[one["time_unit"]]


def shown(value):
    return f"{value:.3g}" if value < 100 else f"{value:.0f}"


class Table:
    """Prints its lines as they come and counts those that aren't met."""

    FORM = "{:36} {:>12} {:>12} {:>7} {:>12}  {}"

    def __init__(self):
        self.missed = 0
        self.unmeasured = 0
        print(self.FORM.format("", "figure", "yardstick", "ratio", "target", ""))

    def line(self, name, figure, yardstick="", ratio="", target="", met=None):
        verdict = {None: "", True: "met", False: "MISSED"}[met]
        self.missed += met is False
        print(self.FORM.format(name, figure, yardstick, ratio, target, verdict).rstrip(), flush=True)

    def failure(self, name, message):
        self.unmeasured += 1
        print(f"{name:36} not measured: {message}", flush=True)

    def pair(self, name, ours, bare):
        ratio = milliseconds(ours) / milliseconds(bare)
        most = ours.get("ratio_at_most")
        self.line(name, shown(milliseconds(ours)) + " ms", shown(milliseconds(bare)) + " ms", f"{ratio:.2f}",
                  f"{most:g} times" if most else "", ratio <= most if most else None)

    def time(self, name, one):
        figure = milliseconds(one, "real_time" if "/real_time" in one["run_name"] else "cpu_time")
        most = one.get("ms_at_most")
        self.line(name, shown(figure) + " ms", target=f"{most:g} ms" if most else "",
                  met=figure <= most if most else None)

    def amount(self, name, one, unit):
        figure, most = one[unit], one[unit + "_at_most"]
        self.line(name, f"{figure:.0f} {unit}", target=f"{most:g} {unit}", met=figure <= most)

    def add(self, found):
        for name, one in found.items():
            if "error_message" in one:
                self.failure(name, one["error_message"])
                continue
            title = name.replace(".ours", "")
            bare = found.get(name.replace(".ours", ".bare"), {})
            if ".ours" in name and "error_message" not in bare:
                self.pair(title, one, bare)
            elif ".bare" not in name and "cpu_time" in one and "percent" not in one:
                self.time(title, one)
            if "MB" in one:
                self.amount("memory: " + title, one, "MB")
            if "percent" in one:
                self.amount(title, one, "percent")


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    known = programs(folder)
    table = Table()
    for name in sys.argv[2:] or known:
        print(f"-- {name}", flush=True)
        table.add(medians(measured(known[name])))
    print(f"\n{table.missed} missed, {table.unmeasured} not measured")
    return 1 if table.missed or table.unmeasured else 0


if __name__ == "__main__":
    sys.exit(main())
