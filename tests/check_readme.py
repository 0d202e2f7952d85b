#!/usr/bin/env python3
"""Runs what README.md shows and compares it with what README.md says comes out.

usage: tests/check_readme.py --program build/kivuxl

The first `uil` block is the module, the first `sh` block the command, `files` the names written,
`ada` the unit named before it, and `report` a command with the report that it prints.
"""
import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BAD_MODULE = """module bad
object
    p : XmLabel { arguments { XmNwidth = 'wide'; }; };
end module;
"""


def block(text, language):
    found = re.search(r"^```" + language + r"\n(.*?)^```$", text, re.S | re.M)
    if not found:
        sys.exit(f"README.md has no {language} block")
    return found.group(1)


def run(program, command, folder):
    environment = dict(os.environ, LC_ALL="C", PATH=f"{program.parent}:{os.environ['PATH']}")
    return subprocess.run(command, shell=True, cwd=folder, env=environment, text=True,
                          capture_output=True, timeout=60, check=False)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, type=pathlib.Path)
    program = parser.parse_args().program.resolve()
    text = (ROOT / "README.md").read_text(encoding="utf-8")
    faults = []

    def compare(what, expected, actual):
        if expected != actual:
            faults.append(f"{what}: README.md shows\n{expected}\nbut the program gives\n{actual}")

    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "demo.uil").write_text(block(text, "uil"), encoding="utf-8")
        result = run(program, block(text, "sh").strip(), folder)
        compare("exit status", 0, result.returncode)
        compare("streams", "", result.stdout + result.stderr)
        written = "".join(f"{path.name}\n" for path in sorted(folder.iterdir())
                          if path.name != "demo.uil")
        compare("files", block(text, "files"), written)
        unit = folder / "demo_cbproc.adb"
        compare(unit.name, block(text, "ada"), unit.read_text() if unit.exists() else "")

    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "bad.uil").write_text(BAD_MODULE, encoding="utf-8")
        command, report = block(text, "report").split("\n", 1)
        result = run(program, command.removeprefix("$ "), folder)
        compare("exit status of the report", 1, result.returncode)
        compare("report", report, result.stderr)

    print("\n\n".join(faults) or "README.md shows what the program does")
    sys.exit(1 if faults else 0)


main()
