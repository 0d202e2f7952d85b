#!/usr/bin/env python3
"""Shows each limit of the generated Ada that doc/limits.md tells of, and the way round it.

    tests/ada/check_limits.py --program build/kivuxl --cache build/ada-limits

A folder of limits/ is named after the limit and holds

    shows.uil       a module that meets the limit; the module's name is `limit`
    way-round.uil   one that says the same and does not, where there is such a way
    options         the translator's options, "-gnat -stub -wrap -main" when absent
    shows.stderr    what the translator says; without anything further it writes nothing
    shows.says      what the program `look` prints when run; otherwise GNAT refuses the text
    way-round.says  what `look` prints with the other module; otherwise all its units must compile
    *.adb           own units that take the place of generated ones; those in a folder way-round/
                    belong to the other module only, and so does a file of options
    faults          other entries of exceptions.py that the module meets beside its own; they are
                    mended before a program is made

A limit of the last kind has its name from exceptions.py, whose entry says how GNAT refuses it; and
nothing else may be refused. doc/limits.md must have a message that is seen under its heading. Programs run on an X server without a screen; a last line "status N"
tells of one that ends otherwise than with 0. `limits/screen.ads` is there for all of them.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import exceptions
import units as ada
from check_creation import run_with_server
from kit import build_kit

HERE = pathlib.Path(__file__).resolve().parent
LIMITS = HERE / "limits"
DOCUMENT = ada.ROOT / "doc" / "limits.md"
OPTIONS = "-gnat -stub -wrap -main"


def read(path, default=""):
    return path.read_text(encoding="utf-8") if path.exists() else default


def translate(program, limit, module):
    """The mode, the units and the messages of one module."""
    options = read(limit / module / "options", read(limit / "options", OPTIONS)).split()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        shutil.copy(limit / f"{module}.uil", folder / "limit.uil")
        done = subprocess.run([program, *options, "limit.uil"], cwd=folder, capture_output=True,
                              encoding=ada.ENCODING, env={**os.environ, "LC_ALL": "C"}, check=False)
        texts = [path.read_text(encoding=ada.ENCODING)
                 for path in sorted(folder.iterdir()) if path.name != "limit.uil"]
    units = ada.divide_all([*texts, done.stdout])
    for folder in (LIMITS, limit, limit / module):
        units.update((own.name, own.read_text(encoding=ada.ENCODING))
                     for own in folder.glob("*.ad[bs]"))
    mode = ada.ADA_95 if {"-gnat", "-ada95"} & set(options) else ada.ADA_83
    return mode, units, done.stderr


def refused(compiler, mode, units):
    """The names of the faults that GNAT finds, and complaints about what is no known fault."""
    outcomes = [ada.examine(compiler, units, root, mode, exceptions.FAULTS)
                for root in ada.roots(units)]
    return (set().union(*(outcome.met for outcome in outcomes)),
            [str(error) for outcome in outcomes for error in outcome.unknown],
            set().union(*(outcome.messages for outcome in outcomes)))


def told(limit):
    """The messages that the document has under a limit's heading; None when it has no heading."""
    _, heading, section = read(DOCUMENT).partition(f": `tests/ada/limits/{limit.name}/`\n")
    section = re.split(r"(?m)^##", section)[0]
    return re.findall(r"(?m)^    (.*)$", section) if heading else None


def same_but_for_numbers(line, lines):
    def plain(text):
        return re.sub(r"\d+", "0", text)
    return plain(line) in {plain(other) for other in lines}


def check_told(limit, lines):
    """Complaints about messages in the document, of which `lines` must have one."""
    messages = told(limit)
    if messages is None:
        return ["doc/limits.md does not tell of it"]
    wrong = [message for message in messages for fault in exceptions.FAULTS
             if fault.name == limit.name and not fault.message.fullmatch(message)]
    if lines and not any(same_but_for_numbers(message, lines) for message in messages):
        wrong += ["doc/limits.md has none of the messages: " + "; ".join(sorted(lines))]
    return wrong


def seen(units, kit):
    """What the program `look` prints, or why there is none."""
    with tempfile.TemporaryDirectory() as folder:
        if complaint := ada.build(units, "look", kit, folder):
            return complaint
        try:
            return "\n".join(run_with_server(os.path.join(folder, "look"))) + "\n"
        except subprocess.CalledProcessError as error:
            return f"{error.stdout}status {error.returncode}\n"


def compare(what, expected, actual):
    return [] if expected == actual else [f"{what}: expected\n{expected}but got\n{actual}"]


def check_module(program, tools, limit, module, expected):
    """The complaints about one module, which must have the expected faults, and its messages."""
    compiler, kit = tools
    mode, units, said = translate(program, limit, module)
    complaints = compare(f"{module}: messages", read(limit / f"{module}.stderr"), said)
    if (says := limit / f"{module}.says").exists():
        faults = read(limit / "faults").split()
        units = ada.mend(units, [fault for fault in exceptions.FAULTS if fault.name in faults])
        return complaints + compare(module, read(says), seen(units, kit)), set()
    if not expected and (limit / f"{module}.stderr").exists():
        return complaints, {line.strip() for line in said.splitlines()}
    own = {name: text for name, text in units.items() if not (LIMITS / name).exists()}
    met, unknown, messages = refused(compiler, mode, own)
    complaints += [f"{module}: {text}" for text in unknown]
    complaints += compare(f"{module}: faults", f"{sorted(expected)}\n", f"{sorted(met)}\n")
    return complaints, messages


def check_limit(program, tools, limit):
    known = {fault.name for fault in exceptions.FAULTS}
    faults = set(read(limit / "faults").split()) | {limit.name} & known
    complaints, messages = check_module(program, tools, limit, "shows", faults)
    complaints += check_told(limit, messages)
    if (not any((limit / f"shows.{end}").exists() for end in ("says", "stderr")) and
            limit.name not in known):
        complaints.append("exceptions.py has no such entry")
    if (limit / "way-round.uil").exists():
        complaints += check_module(program, tools, limit, "way-round", set())[0]
    return [f"{limit.name}: {complaint}" for complaint in complaints]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the translator")
    parser.add_argument("--cache", required=True, help="a folder that keeps the compiler's answers")
    parser.add_argument("limits", nargs="*", help="names of limits; all of them when absent")
    options = parser.parse_args()
    program = str(pathlib.Path(options.program).resolve())
    cache = pathlib.Path(options.cache).resolve()
    tools = ada.Compiler(cache / "answers"), build_kit(cache)
    limits = sorted(path for path in LIMITS.iterdir() if path.is_dir() and
                    (not options.limits or path.name in options.limits))
    complaints = [text for limit in limits for text in check_limit(program, tools, limit)]
    names = {limit.name for limit in limits}
    if not options.limits:
        complaints += [f"limits/ does not show {fault.name}" for fault in exceptions.FAULTS
                       if fault.name not in names]
    print("\n".join(complaints) or f"{len(limits)} limits shown")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
