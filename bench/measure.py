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
SECONDS = 3.0   # a measurement is repeated for so long, 3 times at least and 30 times at most
PATIENCE = 300  # seconds after which a run is given up
GENERATOR = pathlib.Path(__file__).with_name("make_module.py")
HEAD = """\
| widgets | kivuxl | output | widgets/s | memory | uil | memory | plain | of uil | of plain |
|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|"""


class Failed(Exception):
    """The program did not end with status 0; the text says how."""


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

    def best(self, command):
        """The least seconds and memory of several runs; one is enough of a command that is slow."""
        runs = [self.fresh(command)]
        while runs[0][0] < SECONDS and (len(runs) < 3 or (
                sum(run[0] for run in runs) < SECONDS and len(runs) < 30)):
            runs.append(self.fresh(command))
        return min(run[0] for run in runs), min(run[1] for run in runs)

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
    seconds, memory = measure.best(command)
    plain_seconds, _ = measure.best([plain, str(module), ".", *map(str, sizes)])
    try:
        uil_seconds, uil_memory = measure.best(["timeout", str(PATIENCE), "uil", "-o", "module.uid",
                                                str(module)])
        uil, of_uil = [in_seconds(uil_seconds), in_mb(uil_memory)], f"{seconds / uil_seconds:.3f}"
    except Failed as failure:
        uil, of_uil = [str(failure), ""], ""
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
