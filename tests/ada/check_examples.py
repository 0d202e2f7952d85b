#!/usr/bin/env python3
"""Makes a program of each module of examples/.

Those that the table below names compile as they are; the others have faults that exceptions.py
knows, which are mended first. All are linked.
"""

import argparse
import concurrent.futures
import pathlib
import subprocess
import sys
import tempfile

import exceptions
import units as ada
from kit import build_kit

JOBS = 2
EXAMPLES = ada.ROOT / "examples"
WITHOUT_FAULTS = {"browser", "editor", "hello", "settings"}


def translate(program, module, folder):
    subprocess.run([program, f"-I{EXAMPLES}", "-gnat", "-stub", "-wrap", "-main", "-dir", folder,
                    EXAMPLES / f"{module}.uil"], check=True)
    return ada.divide_all(path.read_text(encoding=ada.ENCODING)
                          for path in pathlib.Path(folder).iterdir())


def make(program, compiler, kit, module):
    """The faults of one example, and complaints about it."""
    with tempfile.TemporaryDirectory() as folder:
        units = translate(program, module, folder)
    outcomes = [ada.examine(compiler, units, root, ada.ADA_95, exceptions.FAULTS)
                for root in ada.roots(units)]
    met = set().union(*(outcome.met for outcome in outcomes))
    complaints = [f"{module}: {error}" for outcome in outcomes for error in outcome.unknown]
    units = ada.mend(units, [fault for fault in exceptions.FAULTS if fault.name in met])
    with tempfile.TemporaryDirectory() as folder:
        complaint = ada.build(units, f"{module}_main", kit, folder)
    return met, complaints + ([f"{module}: {complaint}"] if complaint else [])


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the translator")
    parser.add_argument("--cache", required=True, help="a folder that keeps the compiler's answers")
    options = parser.parse_args()
    program = str(pathlib.Path(options.program).resolve())
    cache = pathlib.Path(options.cache).resolve()
    compiler, kit = ada.Compiler(cache / "answers"), build_kit(cache)
    modules = sorted(path.stem for path in EXAMPLES.glob("*.uil"))
    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        ends = list(pool.map(lambda module: make(program, compiler, kit, module), modules))
    complaints = []
    for module, (met, found) in zip(modules, ends):
        print(f"{module}: {', '.join(sorted(met)) or 'compiles as it is'}")
        complaints += found
        if bool(met) == (module in WITHOUT_FAULTS):
            complaints.append(f"{module}: the table of examples without faults says otherwise")
    print("\n".join(complaints))
    return 1 if complaints or not modules else 0


if __name__ == "__main__":
    sys.exit(main())
