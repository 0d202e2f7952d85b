#!/usr/bin/env python3
"""Checks that whatever the program can write is shown, and that doc/conformance.md is true.

    tests/check_conformance.py [--root FOLDER] [--build FOLDER] [--texts]

1. Every text of the sources (templates, messages, usage, tables), cut at its format directives,
   must stand in an expected file of a case or in a text that a unit test asserts, and so must each
   of its lines as a whole, with something for each directive.  What cannot is listed below with
   the reason; an entry that has become needless is a fault too.
2. Every row of doc/conformance.md names its proof in its last cell: `unit: Suite.Test`,
   `case: folder` or `test: name`, each of which must exist.  Where the first cell of a table is a
   message or a text, each proof must show it; where it is an option, each proof must use it.
3. Every message, usage text and option of the sources must have a row.
4. With --build, each proof must have passed in the last run of ctest in that folder, and that run
   must be no older than the program.

Prints the faults and the counts; the exit status is 1 when there are faults.  --texts prints
instead the messages of the sources with the cases and unit tests that show them.
"""

import argparse
import collections
import pathlib
import re
import sys

from c_texts import arguments, literals

RECORD = pathlib.Path("doc") / "conformance.md"

# Texts that no test can show, with the reason.
UNSHOWN = {
    "two rows for one kind": "a static_assert",
    "transientShell": "compared with the class of a shell, never written",
    "#rrrrggggbbbb": "stands for its length only",
    ".kivut": "the name of a file that lives for an instant beside a unit",
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-":
        "the letters of such a name",
    "btnvfr": "the letters behind the backslashes, which a unit test shows one by one",
}

DIRECTIVE = re.compile(r"%[-+ 0#]*(?:\d+|\*)?(?:\.(?:\d+|\*))?(?:hh|ll|[hlzjt])?[a-zA-Z]|%%")
# So many tests that did not run are named.
MANY = 20
# Calls of unit tests whose texts are input, not what is expected.
INPUT_CALLS = re.compile(
    r"\b(?:Put|PutLines|PutListing|ParseText|TokensOf|Open|FilesOpen|Declare|Define|Inline"
    r"|Automatic|Reference|Ref|Argument|Callback|Invoke|Reason|Procedure|Shell|ShellOption|Font"
    r"|Segment)\s*\(")
# Options that may have their argument in the same word.
JOINED_OPTIONS = ("-I", "-spec", "-body")
# Where the reporting functions have their text.
REPORTS = {"ErrorMessage": 1, "ErrorFormat": 1, "FatalErrorMessage": 0, "FatalErrorFormat": 0,
           "LexicalError": 2, "UilPrintf": 1, "NameFault": -1, "RegisterAdaName": -1,
           "std::printf": 0, "std::fprintf": 1}


def read(path):
    return path.read_text("latin-1")


def fragments(text):
    """The pieces of a format that say something."""
    return [piece for piece in DIRECTIVE.split(text)
            if len(piece.strip()) >= 3 and re.search("[A-Za-z]", piece)]


def source_files(root):
    return [path for path in sorted((root / "src").iterdir())
            if path.suffix in (".cpp", ".h", ".l", ".y")]


def source_texts(root):
    """The texts of the sources, each with the file that has it first."""
    texts = {}
    for path in source_files(root):
        for text in literals(read(path)):
            texts.setdefault(text, path.name)
    return texts


def expected_files(case):
    return [path for path in [case / "stdout", case / "stderr", *sorted(case.glob("expected/**/*"))]
            if path.is_file()]


def case_texts(root):
    """What each case expects, all its files in one."""
    return {case.name: "\0".join(read(path) for path in expected_files(case))
            for case in sorted((root / "tests" / "cases").glob("*")) if case.is_dir()}


def without_inputs(text):
    """C text without the arguments of the calls that only feed the program."""
    kept, last = [], 0
    for call in INPUT_CALLS.finditer(text):
        if call.start() >= last:
            kept.append(text[last:call.end()])
            last = call.end() + sum(len(each) for each in arguments(text, call.end()))
    return "".join(kept) + text[last:]


def asserted(text):
    """The texts that a unit test expects, all in one."""
    return "\0".join(literals(without_inputs(text)))


def unit_texts(root):
    """What each file of unit tests asserts."""
    return {path.name: asserted(read(path))
            for path in sorted((root / "tests" / "unit").glob("*"))
            if path.suffix in (".cpp", ".h")}


# -- 1. Texts ------------------------------------------------------------------------------------


def line_pattern(line):
    """A regular expression for the lines that a line of a format gives."""
    wild = {"d": r"-?\d+", "u": r" *\d+", "c": ".", "o": "[0-7]+", "x": "[0-9a-f]+", "%": "%"}
    pattern, last = "", 0
    for match in DIRECTIVE.finditer(line):
        pattern += re.escape(line[last:match.start()]) + wild.get(match[0][-1], ".*")
        last = match.end()
    return re.compile(pattern + re.escape(line[last:]))


def unshown_lines(text, lines):
    """The lines of a format that no line shows whole, though its pieces stand here and there."""
    for line in text.split("\n"):
        pieces = fragments(line)
        if pieces and pieces != [line]:
            longest = max(pieces, key=len)
            pattern = line_pattern(line)
            if not any(longest in each and pattern.search(each) for each in lines):
                yield line


def unshown_texts(root, exceptions):
    shown = "\0".join([*case_texts(root).values(), *unit_texts(root).values()])
    lines = set(re.split("[\n\0]", shown))
    faults, needed, count = [], set(), 0
    for text, source in source_texts(root).items():
        missing = [piece for piece in fragments(text) if piece not in shown]
        needed.update(missing)
        faults += [f"{source}: no test shows {piece!r}"
                   for piece in missing if piece not in exceptions]
        count += len(fragments(text))
        if not missing:
            faults += [f"{source}: no line shows {line!r} whole"
                       for line in unshown_lines(text, lines)]
    faults += [f"listed as not shown, but shown or gone: {text!r}"
               for text in exceptions if text not in needed]
    return faults, count


# -- 2. The record -------------------------------------------------------------------------------

Row = collections.namedtuple("Row", "line sort first texts proofs rest")
PROOF = re.compile(r"\b(unit|case|test): ([\w.-]+)")
UNREACHABLE = re.compile(r"unreachable: \S.*")
CODE = re.compile(r"(`+) ?(.+?) ?\1(?!`)")


def cells(line):
    """The cells of a row of a table; a bar behind a backslash parts no cells."""
    return [cell.strip().replace("\\|", "|")
            for cell in re.split(r"(?<!\\)\|", line.strip().strip("|"))]


def record_rows(text):
    """The rows of the tables of the record; the sort of a row is the first heading of its table."""
    rows, sort = [], None
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if not line.startswith("|"):
            sort = None
        elif sort is None:
            sort = cells(line)[0]
        elif not re.fullmatch(r"[|\s:-]+", line):
            row = cells(line)
            texts = [match[2] for match in CODE.finditer(row[0])]
            rows.append(Row(number + 1, sort, row[0], texts, PROOF.findall(row[-1]),
                            re.sub(r"[, ]*" + PROOF.pattern, "", row[-1])))
    return rows


def written(text):
    """A text as it stands in the record."""
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t").strip(" ")


def unwritten(text):
    return re.sub(r"\\(.)", lambda match: {"n": "\n", "t": "\t"}.get(match[1], match[1]), text)


UNIT_TEST = re.compile(r"^TEST(?:_F)?\((\w+),\s*(\w+)\) \{(.*?)(?:^|(?<=; ))\}$",
                       re.DOTALL | re.MULTILINE)


def unit_tests(root):
    """The unit tests, each with what it asserts: its own texts, and those that its file holds for
    all of its tests."""
    tests = {}
    for path in sorted((root / "tests" / "unit").glob("*.cpp")):
        text = read(path)
        shared = asserted(UNIT_TEST.sub("", text))
        for test in UNIT_TEST.finditer(text):
            tests[f"{test[1]}.{test[2]}"] = asserted(test[3]) + "\0" + shared
    return tests


def other_tests(root):
    lists = [read(path) for path in sorted((root / "tests").glob("**/CMakeLists.txt"))]
    return {name for text in lists for name in re.findall(r"add_test\(NAME\s+([\w.]+)", text)}


def used_options(case):
    """The words of a case's command line and of its input files, which may be options."""
    words = read(case / "command").split()
    for path in sorted(case.glob("input/**/*")):
        if path.is_file():
            words += read(path).split()
    return words


class Proofs:
    """What the tests of a tree show."""

    def __init__(self, root):
        self.root = root
        self.cases = case_texts(root)
        self.units = unit_tests(root)
        self.others = other_tests(root)

    def exists(self, sort, name):
        known = {"unit": self.units, "case": self.cases, "test": self.others}
        return name in known[sort]

    def shows(self, sort, name, text):
        if sort == "test":
            return True
        shown = (self.cases if sort == "case" else self.units)[name]
        return all(piece in shown for piece in fragments(unwritten(text)))

    def uses(self, sort, name, option):
        if sort == "case":
            words = used_options(self.root / "tests" / "cases" / name)
        elif sort == "unit":
            words = self.units[name].replace("\0", " ").split()
        else:
            return True
        joined = option in JOINED_OPTIONS
        return any(word == option or joined and word.startswith(option) for word in words)


def row_faults(row, proofs):
    where = f"{RECORD}:{row.line}"
    faults = []
    unreachable = not row.proofs and UNREACHABLE.fullmatch(row.rest)
    if not unreachable and (not row.proofs or row.rest):
        faults.append(f"{where}: no proof, or something else beside it: {row.first}")
    for sort, name in row.proofs:
        if not proofs.exists(sort, name):
            faults.append(f"{where}: there is no {sort} {name}")
            continue
        for text in row.texts if row.sort in ("message", "text") else []:
            if not proofs.shows(sort, name, text):
                faults.append(f"{where}: {sort} {name} does not show {text}")
        for text in row.texts if row.sort == "option" else []:
            if not proofs.uses(sort, name, text.split()[0]):
                faults.append(f"{where}: {sort} {name} does not use {text}")
    return faults


def record_faults(root, rows):
    proofs = Proofs(root)
    return [fault for row in rows for fault in row_faults(row, proofs)]


# -- 3. What must have a row -----------------------------------------------------------------------


def has_words(text):
    return re.match(r"[A-Z(<\[-].* \S|[a-z]\S+ \S", text) is not None and "\n    " not in text


def reported_texts(text):
    """The texts of a source that are reported.  Where a call has its text in a variable, that may
    be any text of the file that has words in it."""
    found, handed_on = [], False
    for call in re.finditer(r"(?<![\w:])((?:std::)?\w+)\s*\(", text):
        if call[1] not in REPORTS or text.endswith("void ", 0, call.start()):
            continue
        given = arguments(text, call.end())
        if call[1] == "std::fprintf" and given[0] not in ("stderr", "stream"):
            continue
        place = REPORTS[call[1]]
        if place < len(given):
            found += literals(given[place])
            handed_on |= not any(fragments(each) for each in literals(given[place]))
    if handed_on:
        found += [each for each in literals(text) if has_words(each)]
    return [each for each in dict.fromkeys(found) if fragments(each)]


def messages(root):
    """Every message, with the file that reports it."""
    result = {}
    for path in source_files(root):
        if path.suffix == ".h" or path.name in ("Emit.cpp", "Usage.cpp", "Listing.cpp"):
            continue
        for text in reported_texts(read(path)):
            result.setdefault(text, path.name)
    for name in ("ParseUsage.cpp", "Options.cpp", "ConfigFile.cpp"):
        path = root / "src" / name
        if path.exists():
            for text in literals(read(path)):
                if has_words(text):
                    result.setdefault(text, name)
    return result


def options(root):
    path = root / "src" / "Options.cpp"
    texts = literals(read(path)) if path.exists() else []
    return [text for text in dict.fromkeys(texts) if re.fullmatch(r"-[A-Za-z]\w*", text)]


def missing_rows(root, rows):
    have = {text for row in rows if row.sort in ("message", "text") for text in row.texts}
    have_options = {text.split()[0] for row in rows if row.sort == "option" for text in row.texts}
    faults, count = [], 0
    for text, source in messages(root).items():
        count += 1
        if written(text) not in have:
            faults.append(f"{source}: no row for the message `{written(text)}`")
    for option in options(root):
        count += 1
        if option not in have_options:
            faults.append(f"Options.cpp: no row for the option {option}")
    return faults, count


# -- 4. The last run -------------------------------------------------------------------------------


def run_results(log):
    """What the log of a run of ctest tells: name of a test, and whether it has passed.  A test that
    runs several unit tests tells of each.  One that was skipped has not run."""
    results = {}
    for block in re.split(r"(?m)^\d+/\d+ Testing: ", log)[1:]:
        if "\n[  SKIPPED ] " not in block:
            results[block.split("\n", 1)[0].strip()] = "\nTest Passed." in block
        for verdict, name in re.findall(r"(?m)^\[ +(OK|FAILED) +\] ([\w.]+)", block):
            results[name] = verdict == "OK"
    return results


def run_faults(rows, results):
    names = dict.fromkeys(f"case.{name}" if sort == "case" else name
                          for row in rows for sort, name in row.proofs)
    left_out = [name for name in names if name not in results]
    faults = [f"did not run in the last run: {name}" for name in left_out[:MANY]]
    if len(left_out) > MANY:
        faults.append(f"nor did {len(left_out) - MANY} others")
    return faults + [f"failed in the last run: {name}"
                     for name in names if not results.get(name, True)]


def last_run_faults(build, rows):
    # The log is read, and ctest not asked: asking it for its tests empties the log.
    log = build / "Testing" / "Temporary" / "LastTest.log"
    if not log.exists():
        return [f"no test has run in {build}"]
    for program in (build / "kivuxl", *build.glob("tests/**/unit_tests*")):
        if program.is_file() and log.stat().st_mtime < program.stat().st_mtime:
            return [f"{program} is newer than the last run of the tests"]
    return run_faults(rows, run_results(read(log)))


# -- All together ----------------------------------------------------------------------------------


def print_texts(root):
    """For whoever writes rows: each message and the cases and files of unit tests that show it."""
    proofs = Proofs(root)
    for text, source in messages(root).items():
        print(f"{source}: {written(text)}")
        for sort, names in (("case", proofs.cases), ("unit", proofs.units)):
            shown = [name for name in names if proofs.shows(sort, name, written(text))]
            print(f"    {sort}: {' '.join(shown)}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", type=pathlib.Path,
                        default=pathlib.Path(__file__).resolve().parent.parent)
    parser.add_argument("--build", type=pathlib.Path)
    parser.add_argument("--texts", action="store_true")
    given = parser.parse_args()
    if given.texts:
        print_texts(given.root)
        return 0

    rows = record_rows((given.root / RECORD).read_text("utf-8"))
    faults, texts = unshown_texts(given.root, UNSHOWN)
    faults += record_faults(given.root, rows)
    missing, wanted = missing_rows(given.root, rows)
    faults += missing
    if given.build:
        faults += last_run_faults(given.build, rows)
    for fault in faults:
        print(fault)
    proofs = {proof for row in rows for proof in row.proofs}
    print(f"{texts} texts, {wanted} messages and options, {len(rows)} rows, {len(proofs)} proofs, "
          f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
