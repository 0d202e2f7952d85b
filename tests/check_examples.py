#!/usr/bin/env python3
"""Translates each module of examples/ and looks that it is accepted without a word.

usage: tests/check_examples.py --program build/kivuxl

Each module is translated in a fresh directory that holds a copy of examples/, as one would do it
from the top of the tree. The exit status must be 0, both streams empty, and exactly the files of
the table below written. A module that the table lacks is a fault, and so is a case in
cases/example-<name>/ whose input is no longer what examples/ holds.
"""
import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
OPTIONS = ["-stub", "-wrap", "-main", "-dir", "out"]
INCLUDES = ["-Iexamples"]  # these modules include files that stand beside them

# What `-stub -wrap -main` writes for a module of that name that has callbacks.
UNITS = (
    "{}.ads",
    "{}_callbacks.adb", "{}_callbacks.ads",
    "{}_cbinst.ads",
    "{}_cbproc.adb", "{}_cbproc.ads",
    "{}_client_data.adb", "{}_client_data.ads",
    "{}_main.adb",
    "{}_uil.adb", "{}_uil.ads",
)

# The module, further options, the names of the files written.
EXAMPLES = (
    ("browser", [], UNITS),
    ("catalogue", INCLUDES, UNITS),
    ("dialogs", [], UNITS),
    ("editor", [], UNITS),
    ("hello", [], UNITS),
    ("settings", INCLUDES, UNITS),
    ("telephone", [], UNITS),
)


def files_below(folder):
    """The names and contents of all files in a directory."""
    return {str(path.relative_to(folder)): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def translate(program, module, options, units, top):
    """Runs one translation below an empty directory and returns what was wrong with it."""
    work, temporary = top / "work", top / "tmp"
    shutil.copytree(ROOT / "examples", work / "examples")
    (work / "out").mkdir()
    temporary.mkdir()
    before = files_below(top)
    environment = dict(os.environ, LC_ALL="C", TMPDIR=str(temporary))
    result = subprocess.run([program, *OPTIONS, *options, f"examples/{module}.uil"], cwd=work,
                            env=environment, text=True, capture_output=True, timeout=60,
                            check=False)
    faults = []
    if result.returncode != 0:
        faults.append(f"exit status {result.returncode}")
    if result.stdout or result.stderr:
        faults.append("not silent:\n" + result.stdout + result.stderr)
    after = files_below(top)
    changed = {name for name in before.keys() | after.keys()
               if before.get(name) != after.get(name)}
    expected = {"work/out/" + unit.format(module) for unit in units}
    faults += [f"not written: {name}" for name in sorted(expected - changed)]
    faults += [f"written or changed: {name}" for name in sorted(changed - expected)]
    faults += [f"empty: {name}" for name in sorted(expected & changed) if not after.get(name)]
    return [f"{module}: {fault}" for fault in faults]


def stale_cases():
    """The inputs of cases about an example that differ from the example."""
    return [f"{path.relative_to(ROOT)} is not the same as examples/{path.name}"
            for path in sorted(ROOT.glob("tests/cases/example-*/input/*"))
            if not (ROOT / "examples" / path.name).is_file()
            or path.read_bytes() != (ROOT / "examples" / path.name).read_bytes()]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, type=pathlib.Path)
    program = parser.parse_args().program.resolve()

    faults = stale_cases()
    there = {path.stem for path in (ROOT / "examples").glob("*.uil")}
    known = {module for module, _, _ in EXAMPLES}
    faults += [f"examples/{name}.uil is not in the table" for name in sorted(there - known)]
    for module, options, units in EXAMPLES:
        with tempfile.TemporaryDirectory() as name:
            faults += translate(program, module, options, units, pathlib.Path(name))

    print("\n".join(faults) or f"all {len(EXAMPLES)} examples are accepted")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
