#!/usr/bin/env python3
"""Ends a rich module after each of its characters.

    tests/check_truncation.py --program build/kivuxl [--step N]

Every beginning of the module up to its `end module;` must be refused with exit status 1 and a
counted report in which the usage text of the module stands once, and nothing may be written.  With
--step only each N-th beginning is tried.
"""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

MODULE = pathlib.Path(__file__).resolve().parent / "cases" / "matrix-no-option" / "input"
END = b"end module;"
LIMIT = 30  # seconds that a run may take
PASSED_ON = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")


def fault(program, folder, text):
    """What is wrong with the run on that text, or None."""
    source = folder / "m.uil"
    source.write_bytes(text)
    values = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
    run = subprocess.run([program, "-stub", "-wrap", "m.uil"], cwd=folder, env=values, check=False,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=LIMIT)
    lines = run.stderr.decode().splitlines()
    usages = sum(line.startswith("  syntax: expected module ") for line in lines)
    if run.returncode != 1 or not lines or not lines[-1].startswith("Total of "):
        return "status %d, %r" % (run.returncode, run.stderr[-300:])
    if usages != 1:
        return "the usage of the module %d times" % usages
    written = sorted(set(os.listdir(folder)) - {source.name})
    return "written: " + ", ".join(written) if written else None


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the program under test")
    parser.add_argument("--step", type=int, default=1, help="leave beginnings out")
    options = parser.parse_args()
    program = os.path.abspath(options.program)
    (path,) = MODULE.iterdir()
    text = path.read_bytes()
    failed = 0
    lengths = range(0, text.rindex(END) + len(END), options.step)
    with tempfile.TemporaryDirectory(prefix="kivuxl-truncation-") as folder:
        for length in lengths:
            found = fault(program, pathlib.Path(folder), text[:length])
            if found is not None:
                failed += 1
                print("the first %d characters: %s" % (length, found))
    print("%d of %d beginnings failed" % (failed, len(lengths)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
