#!/usr/bin/env python3
"""Measures kivuxl beside other programs and prints the table; bench/table builds them and calls it.

usage: bench/measure.py kivuxl plain_copy empty_program
"""
import math
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

OPTIONS = ["-gnat", "-stub", "-wrap", "-main"]
SIZES = [100, 1000, 10000, 100000]
GROWTH = (10000, 100000)
STARTS = 200   # runs of what takes a millisecond
SECONDS = 3.0  # a measurement is repeated for so long, 3 times at least and 30 times at most
PATIENCE = 300  # seconds after which a run of uil is given up
GENERATOR = pathlib.Path(__file__).with_name("make_module.py")
HEAD = """\
| widgets | kivuxl | output | widgets/s | memory | uil | memory | plain | of uil | of plain |
|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|"""


class Failed(Exception):
    """The program did not end with status 0; the text says how."""


def run_once(command, folder):
    """Runs a command; returns its seconds and its peak memory in KiB."""
    start = time.perf_counter()
    with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL) as child:
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
    seconds = time.perf_counter() - start
    if child.returncode != 0:
        how = "crashes" if child.returncode < 0 else "fails"
        raise Failed(f"{how} ({child.returncode})")
    return seconds, usage.ru_maxrss


def best(command, least=3):
    """The least time and memory of several runs, each in an empty directory."""
    runs = []
    while len(runs) < least or (sum(run[0] for run in runs) < SECONDS and len(runs) < 30):
        with tempfile.TemporaryDirectory() as folder:
            runs.append(run_once(command, folder))
    return min(run[0] for run in runs), min(run[1] for run in runs)


def best_of_uil(module):
    """The same for uil, which is slow with large modules and may crash; once is enough then."""
    command = ["timeout", str(PATIENCE), "uil", "-o", "module.uid", str(module)]
    with tempfile.TemporaryDirectory() as folder:
        first = run_once(command, folder)
    return first if first[0] > SECONDS else best(command)


def best_start(command):
    """The least seconds of many short runs."""
    with tempfile.TemporaryDirectory() as folder:
        return min(run_once(command, folder)[0] for _ in range(STARTS))


def written_sizes(command):
    """The sizes of the files that the command writes."""
    with tempfile.TemporaryDirectory() as folder:
        run_once(command, folder)
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


def row(count, module, kivuxl, plain):
    """One line of the table."""
    command = [kivuxl, *OPTIONS, str(module)]
    sizes = written_sizes(command)
    total = sum(sizes)
    seconds, memory = best(command)
    plain_seconds, _ = best([plain, str(module), ".", *map(str, sizes)])
    try:
        uil_seconds, uil_memory = best_of_uil(module)
        uil = [in_seconds(uil_seconds), in_mb(uil_memory)]
        of_uil = f"{seconds / uil_seconds:.3f}"
    except Failed as failure:
        uil, of_uil = [str(failure), ""], ""
    cells = [f"{count:,}", in_seconds(seconds), f"{total / seconds / 1e6:.0f} MB/s",
             f"{count / seconds:,.0f}", in_mb(memory), *uil, in_seconds(plain_seconds), of_uil,
             f"{seconds / plain_seconds:.1f}"]
    return "| " + " | ".join(cells) + " |"


def print_growth(modules, kivuxl):
    counts = [instructions([kivuxl, *OPTIONS, str(modules[size])]) for size in GROWTH]
    exponent = math.log(counts[1] / counts[0]) / math.log(GROWTH[1] / GROWTH[0])
    print(f"instructions: {counts[0] / 1e6:,.0f} million for {GROWTH[0]:,} widgets, "
          f"{counts[1] / 1e6:,.0f} million for {GROWTH[1]:,}: exponent {exponent:.3f}")


def print_starts(folder, kivuxl, empty):
    trivial = folder / "trivial.uil"
    trivial.write_text("module trivial\nend module;\n", encoding="utf-8")
    nothing = best_start([empty])
    usage = best_start([kivuxl, "-help"])
    module = best_start([kivuxl, str(trivial)])
    print(f"start-up: a program that does nothing {nothing * 1e3:.1f} ms, kivuxl -help "
          f"{usage * 1e3:.1f} ms, kivuxl with an empty module {module * 1e3:.1f} ms")


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__.split("\n\n")[1].strip())
    kivuxl, plain, empty = (str(pathlib.Path(name).resolve()) for name in sys.argv[1:])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        modules = {count: make_module(folder, count) for count in SIZES}
        print(HEAD)
        for count, module in modules.items():
            print(row(count, module, kivuxl, plain), flush=True)
        print()
        print_starts(folder, kivuxl, empty)
        print_growth(modules, kivuxl)


main()
