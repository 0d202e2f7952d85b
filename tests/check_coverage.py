#!/usr/bin/env python3
"""Checks that the cases show every message about the source that the program can give.

    tests/check_coverage.py [--root FOLDER]

Taken from the sources are the usage texts of the grammar's error alternatives (ParseUsage.cpp) and
every text that is reported as a warning, a syntax error or an error; each must be printed by at least one case, on
a line of its `stderr` with the prefix of its kind.  There must also be a `syntax-*` folder for each
alternative of the grammar that holds the `error` token.  What no case shows is printed, and the
exit status is 1 then.

Texts that no source can provoke are listed below with the reason.  One that a case shows after all
is reported too, so that the list cannot go stale.
"""

import argparse
import collections
import pathlib
import re
import sys

from c_texts import arguments, c_tokens, literals

PREFIXES = {"kSyntax": "  syntax: expected ", "kError": "   error: ", "kWarning": " warning: "}

OUT_OF_REACH = {
    "Operator ~ not defined for type of expression":
        "the scanner replaces the character",
    "Cannot generate auto-fetch code for top-level widget %s":
        "given when the report has been printed",
    "Cannot use %s as module name because it conflicts with %s":
        "the module's name is the first of all",
}


def reported_texts(text):
    """Pairs (kind, format) of what a source file reports by ErrorFormat and ErrorMessage, or hands
    to the functions of the parser that report a name.

    A text that comes in a variable may be any literal of the file that has words in it.
    """
    handed_on = set()
    for call in re.finditer(r"\bError(?:Format|Message)\s*\(", text):
        kind, *rest = arguments(text, call.end())
        if kind in PREFIXES and rest:
            for literal in literals(rest[0]):
                yield kind, literal
            if '"' not in rest[0]:
                handed_on.add(kind)
    for call in re.finditer(r"\b(?:NameFault|RegisterAdaName)\s*\(", text):
        for literal in literals(arguments(text, call.end())[-1]):
            yield "kError", literal
    fatal = [literal for call in re.finditer(r"\bFatalError(?:Format|Message)\s*\(", text)
             for literal in literals(arguments(text, call.end())[0])]
    for kind in sorted(handed_on):
        for literal in literals(text):
            if " " in literal and literal not in fatal:
                yield kind, literal


def pattern(kind, text):
    """A regular expression for the lines of a report that show a format."""
    parts = re.split(r"(%[-0-9.]*[a-z]|%%)", text)
    wild = {"d": r"-?\d+", "s": r".*", "%": "%"}
    return re.compile(re.escape(PREFIXES[kind]) + "".join(
        wild[part[-1]] if part.startswith("%") else re.escape(part) for part in parts))


def grammar_alternatives(text):
    """The alternatives of a grammar's rules as lists of symbols, actions left out."""
    rules = re.split(r"^%%[ \t]*$", text, flags=re.MULTILINE)[1]
    depth, plain = 0, []
    for token in c_tokens(rules):
        if token == "{":
            depth += 1
        if depth == 0:
            plain.append("CHARACTER" if token.startswith("'") else token)
        if token == "}":
            depth -= 1
    for rule in "".join(plain).split(";"):
        if ":" in rule:
            for alternative in rule.split(":", 1)[1].split("|"):
                yield alternative.split()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", type=pathlib.Path,
                        default=pathlib.Path(__file__).resolve().parent.parent)
    root = parser.parse_args().root
    sources = root / "src"
    cases = root / "tests" / "cases"

    grammar = (sources / "uil.y").read_text("latin-1")
    alternatives = sum("error" in each for each in grammar_alternatives(grammar))
    syntax_cases = len([each for each in cases.glob("syntax-*") if each.is_dir()])

    wanted = collections.OrderedDict()
    for path in [*sorted(sources.glob("*.cpp")), sources / "uil.y", sources / "lex.l"]:
        for kind, text in reported_texts(path.read_text("latin-1")):
            wanted.setdefault((kind, text), path.name)
    for text in {*literals((sources / "ParseUsage.cpp").read_text("latin-1"))} - {""}:
        wanted.setdefault(("kSyntax", text), "ParseUsage.cpp")

    shown = set()
    for path in cases.glob("*/stderr"):
        shown.update(path.read_text("latin-1").split("\n"))

    faults = []
    if alternatives == 0:
        faults.append("uil.y: no error alternative found")
    if syntax_cases < alternatives:
        faults.append(f"{alternatives} error alternatives, but {syntax_cases} cases syntax-*")
    for (kind, text), source in wanted.items():
        expression = pattern(kind, text)
        seen = any(expression.fullmatch(line) for line in shown)
        if seen and text in OUT_OF_REACH:
            faults.append(f"{source}: shown although listed as out of reach: {text}")
        elif not seen and text not in OUT_OF_REACH:
            faults.append(f"{source}: no case shows {PREFIXES[kind].strip()} {text}")
    for text in OUT_OF_REACH:
        if text not in [each for _, each in wanted]:
            faults.append(f"listed as out of reach, but nowhere reported: {text}")

    for fault in faults:
        print(fault)
    print(f"{alternatives} error alternatives, {syntax_cases} syntax cases, {len(wanted)} texts, "
          f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
