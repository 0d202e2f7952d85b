"""Generated Ada as the compiler takes it: divided into units, compiled, mended, compiled again.

The tests of this folder share it. A run of the translator leaves files whose names follow from its
options; GNAT wants one unit a file, named after the unit. So what was written is divided into units
first, and each unit is compiled in a folder of its own together with the units that it names.

`gcc -gnatc` checks all of a unit and writes no object. What it says is kept under a hash of all
that it depends on: the texts, the packages of ada/, the compiler and its options.
"""

import hashlib
import json
import os
import pathlib
import re
import subprocess
import tempfile

from kit import KIT

ROOT = KIT.parent

LIMIT = 300  # seconds for one unit
ENCODING = "latin-1"  # any byte is a character, and GNAT reads it so, too

ADA_83 = "-gnat83"
ADA_95 = "-gnat95"

KIT_UNITS = frozenset(path.stem for path in KIT.glob("*.ads"))
# Units of the language itself that generated text names.
LANGUAGE_UNITS = frozenset({"unchecked_deallocation"})

# -- Units ----------------------------------------------------------------------------------------

_START = re.compile(r"^(package body|package|procedure|function)\b[ \t]*([^\s(;]*)", re.M)
_TOKEN = re.compile(r"\"[^\"\n]*\"|'.'|--[^\n]*|\w+|[();]")
_END = re.compile(r"^end\b.*$", re.M)
_WITH = re.compile(r"^with\s+([^;(]*);", re.M)


def _first_end(text, position):
    """Where a unit's declaration ends: at its semicolon, or with "end" at the start of a line.

    Returns the place and whether the unit has an `is` that does not introduce an instantiation.
    """
    depth, instance = 0, False
    for token in _TOKEN.finditer(text, position):
        word = token.group().lower()
        depth += (word == "(") - (word == ")")
        if word == ";" and depth <= 0:
            return token.end(), False
        if word == "new":
            instance = True
        elif word == "is" and depth <= 0:
            following = _TOKEN.search(text, token.end())
            if not instance and not (following and following.group().lower() == "new"):
                end = _END.search(text, token.end())
                return (end.end() if end else len(text)), True
    return len(text), False


def file_name(unit):
    """The name of a unit's file without its suffix; a child unit has a point in its name."""
    return unit.lower().replace(".", "-")


def divide(text):
    """The units of a text, by the names of the files that GNAT looks for."""
    units, position = {}, 0
    while start := _START.search(text, position):
        end, has_body = _first_end(text, start.end())
        kind, name = start.groups()
        is_body = kind == "package body" or (kind in ("procedure", "function") and has_body)
        units[file_name(name) + (".adb" if is_body else ".ads")] = \
            text[position:end].strip("\n") + "\n"
        position = end
    return units


def divide_all(texts):
    """The units of several texts."""
    units = {}
    for text in texts:
        units.update(divide(text))
    return units


def named_units(text):
    """The names in the context clauses of a unit, as of files."""
    return [file_name(name.strip()) for names in _WITH.findall(text) for name in names.split(",")]


def missing_units(units):
    """The names that the units have in their context clauses and that nobody has written."""
    known = {name[:-4] for name in units} | KIT_UNITS | LANGUAGE_UNITS
    return sorted({name for text in units.values() for name in named_units(text)} - known)


def roots(units):
    """The units to compile so that all are: a specification comes with its body."""
    return [name for name in sorted(units) if not (name.endswith(".ads") and
                                                   name[:-1] + "b" in units)]


def with_needed(units, root):
    """The units that the compiler reads when it compiles one of them."""
    needed, todo = {}, [root]
    while todo:
        name = todo.pop()
        if name in needed or name not in units:
            continue
        needed[name] = units[name]
        if name.endswith(".adb"):
            todo.append(name[:-1] + "s")
        todo.append(name.rpartition("-")[0] + ".ads")
        for other in named_units(units[name]):
            # A procedure without a specification of its own is its body.
            todo.append(other + (".ads" if other + ".ads" in units else ".adb"))
    return needed


# -- Compiling ------------------------------------------------------------------------------------

# What ends a row for the compiler.
_ROW_END = re.compile("\r\n|[\n\r\v\f]")

# Checks only; one line a message, however long; no warnings.
COMMAND = ("gcc", "-c", "-x", "ada", "-gnatc", "-gnatws", "-gnatj9999")

_MESSAGE = re.compile(r"([^:\n]+):(\d+):(\d+): (?:error: )?(.*)")


class Error:
    """One message of the compiler about one place."""

    def __init__(self, file, row, message, text):
        self.file, self.row, self.message, self.text = file, row, message, text

    def __str__(self):
        return f"{self.file}:{self.row}: {self.message}\n    {self.text.strip()}"


class Compiler:
    """GNAT with a folder where its answers are kept."""

    def __init__(self, cache):
        self.cache = pathlib.Path(cache)
        self.cache.mkdir(parents=True, exist_ok=True)
        self.started = 0
        self.used = set()
        version = subprocess.run(["gcc", "-v"], capture_output=True, text=True, check=True).stderr
        kit = b"".join(path.name.encode() + path.read_bytes()
                       for path in sorted(KIT.glob("*.ad[bs]")))
        self.base = hashlib.sha256((version + " ".join(COMMAND)).encode() + kit)

    def _answer(self, units, root, mode):
        """Compiles and returns what the compiler said, or an empty text when all is well."""
        self.started += 1
        with tempfile.TemporaryDirectory(prefix="kivuxl-ada-") as folder:
            # Names may hold anything, a slash too; only those without are found by name.
            files = {name: name.replace("/", "_slash_") for name in units}
            for name, file in files.items():
                pathlib.Path(folder, file).write_text(units[name], encoding=ENCODING)
            done = subprocess.run([*COMMAND, mode, f"-I{KIT}", "./" + files[root]],
                                  cwd=folder, capture_output=True, encoding=ENCODING,
                                  timeout=LIMIT, check=False)
        said = done.stderr + done.stdout
        return said or f"status {done.returncode}" if done.returncode != 0 else ""

    def compile(self, units, root, mode):
        """The errors of one unit, from the cache when it has been compiled before."""
        needed = with_needed(units, root)
        digest = self.base.copy()
        digest.update(json.dumps([mode, root, sorted(needed.items())]).encode())
        kept = self.cache / digest.hexdigest()
        self.used.add(kept.name)
        try:
            said = kept.read_text(encoding=ENCODING)
        except FileNotFoundError:
            said = self._answer(needed, root, mode)
            # Written beside it first: another test may be reading.
            part = kept.with_name(f".{kept.name}.{os.getpid()}")
            part.write_text(said, encoding=ENCODING)
            part.replace(kept)
        return _errors(said, needed, root)


def _errors(said, units, root):
    """The compiler's words as errors; when there are words there is at least one."""
    errors, places = [], set()
    for line in said.splitlines():
        match = _MESSAGE.fullmatch(line)
        # Further words about the same place are explanations.
        if not match or match.groups()[:3] in places:
            continue
        places.add(match.groups()[:3])
        file, row, _, message = match.groups()
        # Guesses stand behind the message or in a line of their own.
        message = re.split(r"(?:^|, )possible misspelling of", message)[0]
        if not message:
            continue
        file = file.removeprefix("./").replace("_slash_", "/")
        rows = _ROW_END.split(units.get(file, ""))
        text = rows[int(row) - 1] if int(row) <= len(rows) else ""
        errors.append(Error(file, int(row), message, text))
    return errors or ([Error(root, 1, said, "")] if said else [])


# -- Known faults ---------------------------------------------------------------------------------

MOST_ROUNDS = 6  # a syntax fault hides others, so mending goes in rounds


class Outcome:
    """What came of one unit."""

    def __init__(self, units):
        self.units = units  # as compiled last
        self.met = set()  # names of the known faults
        self.mended = True  # whether it compiled in the end
        self.messages = set()  # of the compiler, about known faults and others
        self.unknown = []  # errors that no known fault explains


def mend(units, faults):
    """The units without some faults."""
    for fault in faults:
        if fault.mend is not None:
            units = {name: fault.mend(text) for name, text in units.items()}
    return divide_all(units.values())


def _same_root(units, root, before):
    """The root's name after mending, which may have changed it, or nothing."""
    if root in units:
        return root
    names, old = list(units), list(before)
    return names[old.index(root)] if len(names) == len(old) else None


def examine(compiler, units, root, mode, known):
    """Compiles a unit; while only known faults are found, mends them and compiles again.

    A fault can hide others, of this unit and of those that depend on it: what stays hidden is only
    what stands beside a fault that cannot be mended.
    """
    units = with_needed(units, root)
    outcome = Outcome(units)
    for _ in range(MOST_ROUNDS):
        errors = compiler.compile(units, root, mode)
        if not errors:
            return outcome
        outcome.messages.update(error.message for error in errors)
        found = []
        for error in errors:
            fault = next((fault for fault in known if fault.explains(error)), None)
            if fault is None:
                outcome.unknown.append(error)
            elif fault not in found:
                found.append(fault)
        outcome.met.update(fault.name for fault in found)
        if outcome.unknown:
            break
        mended = mend(units, found)
        root = _same_root(mended, root, units)
        if root is None or mended == units:
            break
        outcome.units = units = mended
    outcome.mended = False
    return outcome


# -- Programs -------------------------------------------------------------------------------------


def build(units, main, kit, folder):
    """Makes a program in a folder; what the compiler or the linker says when it cannot be made."""
    for name, text in units.items():
        pathlib.Path(folder, name).write_text(text, encoding=ENCODING)
    done = subprocess.run(["gnatmake", "-q", f"-I{kit}", main], cwd=folder, capture_output=True,
                          encoding=ENCODING, timeout=LIMIT, check=False)
    return done.stderr + done.stdout if done.returncode != 0 else ""
