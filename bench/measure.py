#!/usr/bin/env python3
"""Measures kivuxl beside other programs and prints the table; bench/table builds them and calls it.

usage: bench/measure.py kivuxl folder-of-the-other-programs
"""
import math
import pathlib
import re
import subprocess
import sys
import tempfile

OPTIONS = ["-gnat", "-stub", "-wrap", "-main"]
SIZES = [100, 1000, 10000, 100000]
GROWTH = (10000, 100000)
STARTS = 200    # runs of what takes a millisecond
SECONDS = 6.0   # a measurement is repeated for so long, 3 times at least and 30 times at most
PATIENCE = 300  # seconds after which a run is given up
GENERATOR = pathlib.Path(__file__).with_name("make_module.py")
HEAD = """\
| widgets | kivuxl | output | widgets/s | memory | uil | memory | plain | of uil | of plain |
|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|"""


class Failed(Exception):
    """The program did not end with status 0; the text says how."""


def is_enough(runs):
    """Whether a command that took so long has been run often enough."""
    if not runs:
        return False
    if runs[0][0] >= SECONDS or len(runs) >= 30:
        return True
    return len(runs) >= 3 and sum(run[0] for run in runs) >= SECONDS


class Measure:
    """Runs commands under build/bench/measured."""

    def __init__(self, measured):
        self.measured = measured

    def once(self, command, folder):
        """Runs a command; returns its processor seconds and its peak memory in KiB."""
        result = subprocess.run([self.measured, *command], cwd=folder, capture_output=True,
                                text=True, check=True)
        status, seconds, memory = result.stdout.split()
        if status == "124":
            raise Failed(f"over {PATIENCE} s")
        if status != "0":
            raise Failed("crashes" if int(status) > 128 else f"status {status}")
        return float(seconds), int(memory)

    def fresh(self, command):
        """Runs a command in an empty directory; what it writes there is removed."""
        with tempfile.TemporaryDirectory() as folder:
            return self.once(command, folder)

    def best(self, commands):
        """The least seconds and memory of several runs of each command, or how it failed; one is
        enough of a command that is slow.  The commands take turns, so that what else the machine
        does at a time meets all of them."""
        runs = [[] for _ in commands]
        failures = [None for _ in commands]
        while waiting := [i for i, taken in enumerate(runs)
                          if failures[i] is None and not is_enough(taken)]:
            for i in waiting:
                try:
                    runs[i].append(self.fresh(commands[i]))
                except Failed as failure:
                    failures[i] = failure
        return [failure or (min(run[0] for run in taken), min(run[1] for run in taken))
                for failure, taken in zip(failures, runs)]

    def start(self, command):
        """The least seconds of many short runs."""
        with tempfile.TemporaryDirectory() as folder:
            return min(self.once(command, folder)[0] for _ in range(STARTS))

    def sizes(self, command):
        """The sizes of the files that the command writes."""
        with tempfile.TemporaryDirectory() as folder:
            self.once(command, folder)
            return [path.stat().st_size for path in pathlib.Path(folder).iterdir()]


def instructions(command):
    with tempfile.TemporaryDirectory() as folder:
        result = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                                 *command], cwd=folder, capture_output=True, text=True, check=True)
    return int(re.search(r"refs:\s*([\d,]+)", result.stderr)[1].replace(",", ""))


def make_module(folder, count):
    module = folder / f"bench_{count}.uil"
    with module.open("w", encoding="utf-8") as file:
        subprocess.run([sys.executable, GENERATOR, str(count)], stdout=file, check=True)
    return module


def in_seconds(seconds):
    return f"{seconds:.3f} s" if seconds < 1 else f"{seconds:.2f} s"


def in_mb(kib):
    return f"{kib * 1024 / 1e6:.1f} MB"


def row(count, module, measure, kivuxl, plain):
    """One line of the table."""
    command = [kivuxl, *OPTIONS, str(module)]
    sizes = measure.sizes(command)
    own, copy, other = measure.best([
        command, [plain, str(module), ".", *map(str, sizes)],
        ["timeout", str(PATIENCE), "uil", "-o", "module.uid", str(module)]])
    for result in (own, copy):
        if isinstance(result, Failed):
            raise result
    seconds, memory = own
    plain_seconds = copy[0]
    uil, of_uil = [str(other), ""], ""
    if not isinstance(other, Failed):
        uil, of_uil = [in_seconds(other[0]), in_mb(other[1])], f"{seconds / other[0]:.3f}"
    cells = [f"{count:,}", in_seconds(seconds), f"{sum(sizes) / seconds / 1e6:.0f} MB/s",
             f"{count / seconds:,.0f}", in_mb(memory), *uil, in_seconds(plain_seconds), of_uil,
             f"{seconds / plain_seconds:.1f}"]
    return "| " + " | ".join(cells) + " |"


def print_growth(modules, kivuxl):
    counts = [instructions([kivuxl, *OPTIONS, str(modules[size])]) for size in GROWTH]
    exponent = math.log(counts[1] / counts[0]) / math.log(GROWTH[1] / GROWTH[0])
    print(f"instructions: {counts[0] / 1e6:,.0f} million for {GROWTH[0]:,} widgets, "
          f"{counts[1] / 1e6:,.0f} million for {GROWTH[1]:,}: exponent {exponent:.3f}")


def print_starts(folder, measure, kivuxl, empty):
    trivial = folder / "trivial.uil"
    trivial.write_text("module trivial\nend module;\n", encoding="utf-8")
    nothing = measure.start([empty])
    usage = measure.start([kivuxl, "-help"])
    module = measure.start([kivuxl, str(trivial)])
    print(f"start-up: a program that does nothing {nothing * 1e3:.1f} ms, kivuxl -help "
          f"{usage * 1e3:.1f} ms, kivuxl with an empty module {module * 1e3:.1f} ms")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__.split("\n\n")[1].strip())
    kivuxl, others = (pathlib.Path(name).resolve() for name in sys.argv[1:])
    measure = Measure(str(others / "measured"))
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        modules = {count: make_module(folder, count) for count in SIZES}
        print(HEAD)
        for count, module in modules.items():
            print(row(count, module, measure, str(kivuxl), str(others / "plain_copy")), flush=True)
        print()
        print_starts(folder, measure, str(kivuxl), str(others / "empty_program"))
        print_growth(modules, str(kivuxl))


main()
