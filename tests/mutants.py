#!/usr/bin/env python3
"""Changes the sources at some places, one at a time, and counts which changes the tests notice.

    tests/mutants.py --build build/mutants [--seed N] [--count N] [--jobs N] [--only TEXT]
                     [--unseen]

The build directory holds everything compiled as it is; scripts/mutants makes it.  Each change is
made to a copy of a source; the copy alone is compiled, and linked in front of the libraries with
the objects of the unit tests and of the quick cases.  A change is noticed when a test fails,
crashes or hangs.  One that does not compile is no change: another takes its place.

There are four kinds of changes, and as many of each:

    text        one character of a text or of a character constant, an escape included
    order       two neighbouring lines of a text, rows of a table or calls that write to one stream
                change places; of other calls the order can seldom be seen
    constant    a number becomes larger by one
    comparison  the opposite for == and !=, the bound included or left out for the others

The exit status is 0 when 98 % of the changes are noticed.  Changes that nobody can see are listed
in UNSEEN, with the reason; they are not made.  --unseen makes them instead, all of one kind at once,
and its exit status is 0 when no test fails.
"""

import argparse
import collections
import concurrent.futures
import itertools
import json
import os
import pathlib
import random
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

WANTED_PERCENT = 98
ROOT = pathlib.Path(__file__).resolve().parent.parent
KINDS = ("text", "order", "constant", "comparison")

# Tables that are searched for a key which each row has for itself: the order of the rows cannot be
# seen.
KEYED_TABLES = {"paired_args", "odd_trans", "kPopupClasses", "kFamilies", "kShellSuffixes",
                "kCopies", "kConversions", "kShellBySuffix", "kShellNameSuffix",
                "get_child_fn_name", "get_child_arg_name"}

# Changes of which nothing can be seen, by the reason: (expression for the source, kind, expression
# for the lines after the change, without the blanks around them).  The latter expression may begin
# with the line before those.  Each entry names a change that is made, or the run ends at once.
UNSEEN = {
    "all texts are spread alike": [
        ("Hash.cpp", "constant", r"hash \^= hash >> 3[34];"),
        ("Hash.cpp", "constant", r"return static_cast<std::uint32_t>\(hash >> 33\);"),
        ("Hash.cpp", "constant", r"std::uint64_t word = 1;"),
        ("Hash.cpp", "comparison", r"for \(std::size_t i = 0; i <= length - sizeof\(word\); .*"),
        ("Hash.cpp", "comparison", r"if \(length <= sizeof\(word\)\) \{"),
    ],
    "without an index nobody asks for the tag": [
        ("Hash.cpp", "constant", r"return table.index.compare == nullptr \? 1 : .*"),
    ],
    "the index only grows sooner": [
        ("(Hash|List).cpp", "constant", r"if \(index.(count|used) < index.size / 3\) \{"),
    ],
    "walking and the index find the same": [
        ("List.cpp", "constant", r"constexpr std::uint32_t kIndexedLength = 17;.*"),
        ("List.cpp", "comparison", r"if \(list->nitems < kIndexedLength \|\| .*"),
    ],
    "the text has the length that was counted before": [
        ("Emit.cpp", "constant", r"std::vsnprintf\(text.data\(\), text.size\(\) \+ 2, .*"),
    ],
    "what has no room is written at once": [
        ("Emit.cpp", "constant", r"constexpr std::size_t kUnitText(Size|s) = (\d+ << )?\d+;.*"),
    ],
    "a stream without a buffer has none of any size": [
        ("Emit.cpp", "constant", r"if \(.* && std::setvbuf\(file, nullptr, _IONBF, 1\) == 0\) \{"),
    ],
    "what just fits may as well stand behind a flush": [
        ("Emit.cpp", "comparison", r"if \(buffer != nullptr && room >= .*"),
    ],
    "what just fits may as well pass, behind a flush": [
        ("Emit.cpp", "comparison", r"return buffer == nullptr \|\| room >= kUnitTextSize \? .*"),
    ],
    "a prefix has no more than eight characters": [
        ("Listing.cpp", "text", r'prefix = std::string_view\(" {9}"\)\.substr\(.*'),
        ("Listing.cpp", "constant", r'prefix = std::string_view\(" {10}"\)\.substr\(1, .*'),
    ],
    "a file is read on until it ends": [
        ("Files.cpp", "constant",
         r"constexpr (int|std::size_t) k(ScannerBufferSize|CopyBlock) = \d+;"),
    ],
    "it is room, not length": [
        ("Alloc.cpp", "constant", r"const std::size_t size = std::strlen\(str\) \+ 2;"),
        ("AdaWideCharacter.cpp", "constant",
         r"std::vector<wchar_t> wide\(std::strlen\(text\) \+ 2\);"),
        ("Listing.cpp", "constant", r"result.reserve\(.*EncodedLength\(text, length\)\) \+ 4\);"),
        ("Listing.cpp", "constant", r"std::array<char, 5> octal\{\};"),
        ("AdaString.cpp", "constant", r"constexpr std::size_t kTypicalExtra = 65;"),
        ("Alloc.cpp", "constant", r"std::array<SizeClass, kLargestSmall / kUnit \+ 2> classes;"),
        ("Listing.cpp", "constant", r"std::array<char, 25> prefix\{\};"),
        ("Listing.cpp", "constant", r"constexpr std::size_t kDateSize = 257;.*"),
        ("Listing.cpp", "constant", r"const std::int64_t need = .*length \+ 2;"),
        ("Model.cpp", "constant", r"char \*copy = .*ModelAllocate\(text.size\(\) \+ 2\)\);"),
        ("Initialize.cpp", "constant", r".*\(ModelAllocate\(\(count \+ 2\) \* sizeof.*"),
        ("ParseModule.cpp", "constant", r"constexpr std::size_t kLongestNumber = 401;.*"),
        ("ParseValues.cpp", "constant",
         r"const std::size_t capacity = (3 \* length \+ 1|2 \* length \+ 2);"),
    ],
    "the size is rounded up to 12 in any case": [
        ("Listing.cpp", "constant",
         r"auto \*text = static_cast<char \*>\(_SmartMalloc\(2, &size\)\);"),
        ("Scanner.cpp", "constant", r"lit_buffer = .*\(_SmartMalloc\(2, &lit_bufsiz\)\);"),
    ],
    "the allocation sets it, and without memory the run ends": [
        ("Listing.cpp", "constant", r"std::size_t size = 1;"),
    ],
    "a line only grows sooner": [
        ("Listing.cpp", "constant", r".*std::max\(need, std::int64_t\{line->maxlen\} \* 3\).*"),
    ],
    "the bound only keeps sums of lengths within an int": [
        ("Listing.cpp", "constant",
         r"return .*\(std::min<std::size_t>\(text.size\(\), INT_MAX / 5\)\);"),
    ],
    "both are rounded up to 8": [
        ("Alloc.cpp", "constant", r"size = std::max<std::size_t>\(size, 2\);"),
    ],
    "the size is set behind it": [
        ("Alloc.cpp", "constant", r".*: new \(run_next\) PageHeader\{nullptr, nullptr, 1\};"),
    ],
    "the size is set when the page is taken": [
        ("Alloc.cpp", "constant", r"PageHeader \*first = PageCreate\(.*, 1\);"),
    ],
    "so many pages are only asked for together": [
        ("Alloc.cpp", "constant",
         r"constexpr std::size_t kRunPages = kSanitized \? (1 : 17|2 : 16);.*"),
    ],
    "it is set before it is asked": [
        ("Files.cpp", "constant", r"std::size_t count = 1;"),
    ],
    "takes a line of 2 GB": [
        ("Listing.cpp", "comparison", r"if \(need >= kLongest\) \{"),
        ("Listing.cpp", "constant", r"constexpr std::int64_t kLongest = INT_MAX - 65;.*"),
    ],
    "the numbers only differ from each other": [
        ("AdaWidgetProcs.cpp", "constant", r"static std::uint32_t widget_table_number = 1;.*"),
    ],
    "no list in a list is missing": [
        ("WidgetUtils.cpp", "constant", r"if \(source == nullptr\) \{\n\s*return 1;"),
        ("WidgetUtils.cpp", "constant", r"items = list == nullptr \? 1 : list->note / kCountUnit;"),
    ],
    "only a sanitizer looks at what is hidden": [
        ("Alloc.cpp", "constant", r"ALLOC_HIDE\(page \+ 2, room\);"),
        ("Alloc.cpp", "constant", r"constexpr std::size_t kRedZone = kSanitized \? 17 : 0;.*"),
    ],
    "no system has as much": [
        ("Alloc.cpp", "comparison", r"if \(size >= SIZE_MAX - 19\) \{"),
        ("Alloc.cpp", "constant", r"if \(size > SIZE_MAX - 20\) \{"),
        ("Alloc.cpp", "comparison",
         r"if \(room >= SIZE_MAX - sizeof\(PageHeader\) - kPageSize\) \{"),
    ],
    "the ring itself has no blocks": [
        ("Alloc.cpp", "constant", r"PageHeader ring = \{&ring, &ring, 1\};"),
    ],
    "the next node of the key is then looked for in vain": [
        ("List.cpp", "constant", r"slot = \{node, tag, 2\};"),
    ],
    "that bit is set in every note": [
        ("WidgetUtils.cpp", "constant", r"return \{list, list->first, 0, 1\};"),
    ],
    "every negative number is without end": [
        ("Alloc.cpp", "constant", r"(long )?allocations_left = (fails_once \? )?-2.*"),
    ],
    "any number above what is allowed will do": [
        ("TreeCheck.cpp", "constant",
         r"(sum->|static_cast).*std::min\(.*kMax(Hierarchy|ControlDepth) \+ 2\).*"),
        ("WidgetUtils.cpp", "constant",
         r"constexpr std::uint32_t kTooMany = kMaxFlatItems \+ 2;.*"),
    ],
    "takes a text of 2 GB": [
        ("Scanner.cpp", "comparison", r"if \(need >= INT_MAX\) \{"),
    ],
    "every number above 1 says as much": [
        ("Options.cpp", "constant", r"constexpr int kVerbose = 3;"),
    ],
    "the part from the end on is empty, too": [
        ("Types.cpp", "comparison", r"return from > text.size\(\) \? std::string_view\(\)"),
    ],
    "a copy of a list without items has none either": [
        ("WidgetUtils.cpp", "constant", r".*\n\s*return ListLength\(source\) == 1;"),
    ],
    "the first to be asked for is found in either case": [
        ("Emit.cpp", "constant", r"static EmitBuffer \*recent = &unit_texts\[1\].buffer;"),
    ],
    "only a sanitizer sees the one byte more that is read": [
        ("Hash.cpp", "constant", r"const std::size_t size = std::strlen\(key\) \+ 2;"),
    ],
    "no line begins with a blank": [
        ("ConfigFile.cpp", "constant", r"for \(std::size_t i = 2; i < line.size\(\); \+\+i\) \{"),
    ],
    "the zero byte behind the line is no option": [
        ("ConfigFile.cpp", "comparison",
         r"for \(std::size_t i = 1; i <= line.size\(\); \+\+i\) \{"),
    ],
    "nobody asks for the kind of a shell": [
        ("WidgetUtils.cpp", "constant", r"auto \*info = ModelNew<Kivu_ShellInfo>\(1\);"),
    ],
    "a name that is legal as it stands is left so with or without a copy": [
        ("WidgetUtils.cpp", "comparison", r"for \(; \*name == '\\0'; \+\+name\) \{"),
    ],
    "what was read whole was read without an error": [
        ("Files.cpp", "comparison", r"if \(count <= size && std::ferror\(file->fp\) != 0\) \{"),
    ],
    "when both sides are equal the sum is the largest number": [
        ("WidgetUtils.cpp", "comparison", r"total = below >= kLargestCount - total \? .*"),
        ("AdaWidgetProcs.cpp", "comparison",
         r"return size >= largest - offset \? largest : offset .*"),
    ],
    "a copy of the list has the same items": [
        ("WidgetUtils.cpp", "comparison", r"return items == 0 \|\| \(items < kMaxFlatItems && .*"),
    ],
    "the zero byte behind the name is not kept": [
        ("WidgetUtils.cpp", "comparison",
         r"for \(std::size_t i = 0; i <= name->size\(\); \+\+i\) \{"),
    ],
    "a row as long as that stays so": [
        ("Listing.cpp", "comparison", r"if \(row.size\(\) <= column \+ part.size\(\)\) \{"),
    ],
    "nobody asks for the node before": [
        ("List.cpp", "comparison", r"\*prev = found != list->traverse \? .*"),
    ],
    "what a line of a file uses up is not counted": [
        ("Options.cpp", "constant",
         r"(ErrorMessage\(.*cannot contain -cfg|std::for_each\(.*Generics).*"
         r"\n\s*return 1;"),
    ],
    "behind the last word nothing is left to be lost": [
        ("Options.cpp", "constant", r"if \(words.rest.empty\(\)\) \{\n\s*return 1;"),
    ],
    "two top-level objects have names that differ in more than case": [
        ("AdaWidgets.cpp", "constant",
         r".*SafeStrcmp\(record->rec, current_top_level->name, case_sensitive \? 1 : 1\).*"),
    ],
    "no block begins at an odd address": [
        ("Alloc.cpp", "constant", r"const std::uintptr_t offset = .* & \(kPageSize - 2\);"),
    ],
    "the scanner then goes back by itself": [
        ("lex.l", "constant", r"\[\+-\]\?.*LessExponent\(\).*"),
    ],
    "every number but 0 says that case counts": [
        ("(AdaWidgetProcs|AdaWidgets|Hash|List|WidgetUtils).cpp", "constant",
         r".*SafeStrcmp\(.*(, 2|\? 2 : 0)\).*"),
    ],
    "a run begins with a reset": [
        ("Convert.cpp", "constant", r"static int error_count = 1;.*"),
    ],
    "a row without a column is made longer by its number": [
        ("Listing.cpp", "constant", r"return std::string\(.*\(std::max\(width, 1\)\), ' '\);"),
    ],
    "nothing is dropped left of column 0": [
        ("Listing.cpp", "comparison", r"if \(start <= 0\) \{"),
        ("Listing.cpp", "constant", r"if \(start < 1\) \{"),
    ],
    "a single character may take the way of a line's end": [
        ("Listing.cpp", "constant", r"if \(line == nullptr \|\| length <= 1 .*"),
    ],
    "the scanner only asks whether it is 0": [
        ("lex.l", "constant", r'extern "C" int yywrap\(\) \{ .* \? 2 : 0; \}'),
    ],
    "a font and a font set are copied alike": [
        ("ParseValues.cpp", "comparison", r"return font.kind != FONT \? FontCopy\(.*"),
    ],
    "it is set in either case": [
        ("WidgetUtils.cpp", "constant", r"std::uint32_t items = 1;"),
    ],
    "the compiler looks at the rows, which are right": [
        ("AdaValues.cpp", "constant", r"constexpr bool EachKindHasItsRow.*\n.*row = 1; .*"),
        ("AdaValues.cpp", "comparison", r"constexpr bool EachKindHasItsRow.*\n.*row <= kOther; .*"),
    ],
    "the last row stands for all other kinds": [
        ("AdaValues.cpp", "constant", r"\{1, nullptr, .*"),
    ],
    "the compiler looks at the order, which is right": [
        ("Expression.cpp", "comparison", r"SINGLE_FLOAT_NUMBER <= FLOAT_NUMBER\);"),
    ],
    "a name without a function or a constant is answered like one that is not in the table": [
        ("WidgetUtils.cpp", "text", r'\{"\w+", nullptr\},'),
    ],
    "the loop before ends behind 2": [
        ("Driver.cpp", "comparison", r"if \(descriptor > 0\) \{"),
        ("Driver.cpp", "constant", r"if \(descriptor >= 1\) \{"),
    ],
    "the main source, opened before, would have 0": [
        ("Convert.cpp", "comparison", r"listing_fp = descriptor <= 0 \? nullptr : .*"),
        ("Convert.cpp", "constant", r"listing_fp = descriptor < 1 \? nullptr : .*"),
        ("Convert.cpp", "comparison", r"if \(listing_fp == nullptr && descriptor > 0\) \{"),
        ("Convert.cpp", "constant", r"if \(listing_fp == nullptr && descriptor >= 1\) \{"),
    ],
    "the temporary file, opened before, would have 0": [
        ("Output.cpp", "comparison", r"open\(beside.c_str\(\), .*\n\s*if \(descriptor <= 0\) \{"),
        ("Output.cpp", "constant", r"open\(beside.c_str\(\), .*\n\s*if \(descriptor < 1\) \{"),
    ],
    "the system makes no file whose name is as long as that": [
        ("Output.cpp", "comparison",
         r"if \(entry == nullptr \|\| name.size\(\) > entry->text.size\(\)\) \{"),
    ],
    "the mask is put back at once": [
        ("Output.cpp", "constant", r"const mode_t mask = umask\(1\);"),
    ],
    "the name beside a file may begin with a letter of it": [
        ("Output.cpp", "constant", r"std::string name = path.substr\(0, path.rfind\('/'\) \+ 2\);"),
    ],
    "no temporary name is that short": [
        ("Output.cpp", "constant", r"if \(entry.text\[1\] != '\\0'\) \{"),
    ],
    "a word is no two of them": [
        ("Options.cpp", "order",
         r'\{"-\w+", OptionMatch::kExact, .*,\s+\{"-\w+", OptionMatch::kE.*'),
    ],
    "the two parts of such a row do not overlap": [
        ("Listing.cpp", "order", r"RowPut\(row, .*;\s+RowPut\(row, .*;"),
    ],
}

# A literal, a comment, a preprocessor line, or any one character.
TOKEN = re.compile(
    r'R"(?P<mark>\w*)\((?P<raw>.*?)\)(?P=mark)"|"(?P<text>(?:[^"\\\n]|\\.)*)"|'
    r"'(?P<character>(?:[^'\\\n]|\\.)*)'|//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*|.",
    re.DOTALL | re.MULTILINE)
# What a character of a text is looked at as: an escape is one, a format's directive stays whole.
PIECE = re.compile(r"\\[0-7]{1,3}|\\x[0-9a-fA-F]+|\\.|%[-+ #0-9.*l]*[a-zA-Z%]|.", re.DOTALL)

Mutant = collections.namedtuple("Mutant", "kind path start end new")


# -- Where something can be changed ---------------------------------------------------------------


def regions(text):
    """The spans of all literals' contents, of the raw ones among them, and of the bare code;
    comments are in none."""
    literals, raws, code = [], [], []
    start = None
    for match in TOKEN.finditer(text):
        kind = match.lastgroup
        if kind is None and len(match[0]) == 1:
            start = match.start() if start is None else start
            continue
        if start is not None:
            code.append((start, match.start()))
            start = None
        if kind is not None:
            literals.append(match.span(kind))
        if kind == "raw":
            raws.append(match.span(kind))
    if start is not None:
        code.append((start, len(text)))
    return literals, raws, code


def other_character(character):
    """What a character becomes, one that is no mere respelling; None when it stays."""
    if len(character) > 1:
        return {"\\n": "\\t", "\\t": "\\n", '\\"': "'"}.get(character)
    if character == " ":
        return ""
    if character.isdigit():
        return str((int(character) + 1) % 10)
    if character.isalpha():
        return "q" if character not in "qQ" else "k"
    return "_" if character != "_" else "-"


def text_mutants(path, text, literals):
    for start, end in literals:
        line = text[text.rfind("\n", 0, start) + 1:start]
        # The compiler looks at these, or counts their characters.
        if "static_assert" in line or line.endswith('sizeof "'):
            continue
        for piece in PIECE.finditer(text, start, end):
            other = other_character(piece[0])
            # Whichever blank of several goes, the same is left.
            if other is not None and not (other == "" and text.startswith(" ", piece.end())):
                yield Mutant("text", path, *piece.span(), other)


LITERAL_LINE = re.compile(r'[ \t]+("(?:[^"\\]|\\.)*")(?:_\w+)?[,;)]*$')
ROW_LINE = re.compile(r"[ \t]+(\{.*\}),?(?:[ \t]*//.*)?$")
TABLE = re.compile(r".*\b(\w+)\[\] = \{$")
CALL_LINE = re.compile(
    r"[ \t]+((?:std::)?[A-Za-z_][A-Za-z_0-9]*\((?:file|stream|row)\b.*\);)$")


def raw_lines(text, raws):
    """The start and end of each whole line of a raw literal, by the line's start."""
    lines = {}
    for start, end in raws:
        start = text.find("\n", start, end) + 1
        while start > 0 and (stop := text.find("\n", start, end)) >= 0:
            lines[start] = stop
            start = stop + 1
    return lines


def order_mutants(path, text, raws):
    """Two neighbouring lines of one kind and one indentation."""
    inside = raw_lines(text, raws)
    previous = None
    keyed = False
    offset = 0
    for line in text.split("\n"):
        here = None
        if offset in inside and line != "":
            here = (None, len(line) - len(line.lstrip()), offset, inside[offset])
        for shape in () if here else (LITERAL_LINE, ROW_LINE, CALL_LINE):
            match = shape.match(line)
            if match:
                here = (shape, len(line) - len(line.lstrip()), offset + match.start(1),
                        offset + match.end(1))
                break
        if here is None or here[0] is not ROW_LINE:
            table = TABLE.match(line)
            keyed = table[1] in KEYED_TABLES if table else keyed and line != ""
        if here and previous and here[:2] == previous[:2] and not (here[0] is ROW_LINE and keyed):
            first, second = text[slice(*previous[2:])], text[slice(*here[2:])]
            between = text[previous[3]:here[2]]
            if first != second:
                yield Mutant("order", path, previous[2], here[3], second + between + first)
        previous = here
        offset += len(line) + 1


NUMBER = re.compile(r"(?<![\w.])(\d+)(?=[uUlL]*\b(?!\.))")
COMPARISON = re.compile(r"(?<= )(==|!=|<=|>=|<|>)(?= )")
OPPOSITES = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}


def code_mutants(path, text, code):
    for start, end in code:
        for match in NUMBER.finditer(text, start, end):
            if "static_assert" not in text[text.rfind("\n", 0, match.start()):match.start()]:
                yield Mutant("constant", path, *match.span(1), str(int(match[1], 0) + 1)
                             if match[1] == "0" or match[1][0] != "0" else match[1] + "1")
        for match in COMPARISON.finditer(text, start, end):
            if "static_assert" not in text[text.rfind("\n", 0, match.start()):match.start()]:
                yield Mutant("comparison", path, *match.span(1), OPPOSITES[match[1]])


def mutants_of(path, text):
    literals, raws, code = regions(text)
    yield from text_mutants(path, text, literals)
    yield from order_mutants(path, text, raws)
    yield from code_mutants(path, text, code)


def lines_around(mutant, text):
    """The number of the first line that a change touches, and those lines before and after it."""
    start = text.rfind("\n", 0, mutant.start) + 1
    end = text.find("\n", mutant.end)
    before = text[start:end]
    after = text[start:mutant.start] + mutant.new + text[mutant.end:end]
    return text.count("\n", 0, start) + 1, before, after


def unseen_entry(mutant, text):
    """The entry of UNSEEN that names the change, or None."""
    number, _, after = lines_around(mutant, text)
    with_previous = text.split("\n")[number - 2].strip() + "\n" + after.strip()
    for entry in itertools.chain(*UNSEEN.values()):
        name, kind, lines = entry
        if mutant.kind == kind and re.fullmatch(name, mutant.path.name) and (
                re.fullmatch(lines, after.strip()) or re.fullmatch(lines, with_previous)):
            return entry
    return None


def places_of(texts, unseen):
    """The changes of each kind; with `unseen` those that UNSEEN names, else all others."""
    places = collections.defaultdict(list)
    named = set()
    for path, text in texts.items():
        for mutant in mutants_of(path, text):
            entry = unseen_entry(mutant, text)
            named.add(entry)
            if (entry is not None) == unseen:
                places[mutant.kind].append(mutant)
    return places, [entry for entry in itertools.chain(*UNSEEN.values()) if entry not in named]


# -- Building and running -------------------------------------------------------------------------


# A changed program may want everything.
LIMITED = ("nice", "-n", "10", "prlimit", "--core=0", "--as=%d" % (4 << 30),
           "--fsize=%d" % (1 << 28), "--")


def run(command, limit, **options):
    """The exit status, None after `limit` seconds, and the output of a command."""
    with subprocess.Popen([*LIMITED, *command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, start_new_session=True, **options) as process:
        try:
            output, _ = process.communicate(timeout=limit)
            status = process.returncode
        except subprocess.TimeoutExpired:
            output, status = b"", None
        # Whatever the process has started and left.
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
    return status, output.decode("utf-8", "backslashreplace")


class Builder:
    """Makes and tries changed programs."""

    CASES = "All/Cases.*:CaseRunner.*"

    def __init__(self, build):
        self.build = build.resolve()
        entries = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {entry["file"]: entry for entry in entries}
        self.objects = sorted(
            str(path) for target in ("unit_tests", "quick_cases")
            for path in (self.build / "tests" / "CMakeFiles" / (target + ".dir")).rglob("*.o"))
        self.limits = [120, 120, 240]

    def compiled(self, source, place):
        """Compiles a changed copy; the object, or None when that fails."""
        generated = {"uil.y": "uil.tab.cpp", "lex.l": "lex.yy.cpp"}.get(source.name)
        copy = place / source.name
        if generated:
            entry = self.commands[str(self.build / "generated" / generated)]
            tool = ["bison"] if source.suffix == ".y" else ["flex"]
            if run([*tool, "-o", str(place / generated), str(copy)], 60)[0] != 0:
                return None
            copy = place / generated
        else:
            entry = self.commands[str(source)]
        words = shlex.split(entry["command"])
        words[words.index("-o") + 1] = str(place / "changed.o")
        words[words.index("-c") + 1] = str(copy)
        status, _ = run(words, 120, cwd=entry["directory"])
        return place / "changed.o" if status == 0 else None

    def linked(self, changed, place):
        """The tests with these objects in front of the libraries."""
        program = place / "tests"
        status, output = run(
            ["g++", "-fuse-ld=gold", "-fsanitize=bounds", "-o", str(program),
             *map(str, changed), *self.objects,
             str(self.build / "libtranslator.a"), str(self.build / "libfoundation.a"),
             "-lgtest", "-lgtest_main", "-pthread"], 300)
        if status != 0:
            sys.exit("cannot link:\n" + output)
        return program

    def fault_noticed(self, program, place, module):
        """How the tests notice that something is wrong with the module, or None.  Its own unit
        tests come first: they take the shortest time."""
        temporary = place / "tmp"
        temporary.mkdir()
        # Memory that has been given back does not keep its contents.
        environment = dict(os.environ, TMPDIR=str(temporary), LC_ALL="C", TZ="UTC",
                           MALLOC_PERTURB_="165", GLIBC_TUNABLES="glibc.malloc.tcache_count=0")
        own = module + "*.*"
        for step, limit in zip((own, self.CASES, "-" + self.CASES + ":" + own), self.limits):
            status, output = run([str(program), "--gtest_brief=1", "--gtest_fail_fast",
                                  "--gtest_filter=" + step], limit, cwd=place, env=environment)
            if status is None:
                return "hang"
            if status != 0:
                failed = re.search(r"\[  FAILED  \] ([^\s,]+)", output)
                return failed[1] if failed else "status %d" % status
        return None

    def calibrate(self):
        """Tries the program as it is, which must pass, and sets the limits by its time."""
        with tempfile.TemporaryDirectory(prefix="kivuxl-mutants-") as name:
            place = pathlib.Path(name)
            start = time.monotonic()
            fault = self.fault_noticed(self.linked([], place), place, "List")
            if fault:
                sys.exit("the tests fail without a change: " + fault)
            took = time.monotonic() - start
        self.limits = [20 + 5 * took, 20 + 5 * took, 20 + 10 * took]
        return took

    def tried(self, mutant, text):
        """False when the change does not compile, else how it is noticed, or None."""
        place = pathlib.Path(tempfile.mkdtemp(prefix="kivuxl-mutants-"))
        try:
            changed = text[:mutant.start] + mutant.new + text[mutant.end:]
            (place / mutant.path.name).write_text(changed, "utf-8")
            compiled = self.compiled(mutant.path, place)
            if compiled is None:
                return False
            return self.fault_noticed(self.linked([compiled], place), place, mutant.path.stem)
        finally:
            shutil.rmtree(place, ignore_errors=True)


def unseen_noticed(builder, mutants, texts):
    """How it is noticed when all these changes are made, or None."""
    changed = {}
    for path in {mutant.path for mutant in mutants}:
        # From the end on, and only one of several at one place.
        text, start = texts[path], len(texts[path])
        for mutant in sorted((each for each in mutants if each.path == path),
                             key=lambda each: -each.start):
            if mutant.end <= start:
                text, start = text[:mutant.start] + mutant.new + text[mutant.end:], mutant.start
        changed[path] = text
    with tempfile.TemporaryDirectory(prefix="kivuxl-mutants-") as name:
        place = pathlib.Path(name)
        objects = []
        for path, text in changed.items():
            (place / path.stem).mkdir()
            (place / path.stem / path.name).write_text(text, "utf-8")
            objects.append(builder.compiled(path, place / path.stem))
            if objects[-1] is None:
                sys.exit("cannot compile what UNSEEN makes of " + path.name)
        return builder.fault_noticed(builder.linked(objects, place), place, "List")


# -- The whole ------------------------------------------------------------------------------------


def try_some(builder, queue, count, texts, survivors, lock):
    """Takes mutants of one kind until `count` have compiled; the number of those."""
    made = 0
    for mutant in queue:
        result = builder.tried(mutant, texts[mutant.path])
        if result is False:
            continue
        made += 1
        number, before, after = lines_around(mutant, texts[mutant.path])
        with lock:
            print("%-8s %s:%d: %s: %s" % ("ok" if result else "SURVIVED", mutant.path.name, number,
                                          mutant.kind, result or after.strip()), flush=True)
            if not result:
                survivors.append((mutant, number, before, after))
        if made == count:
            break
    return made


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--only", default="", metavar="TEXT")
    parser.add_argument("--unseen", action="store_true")
    options = parser.parse_args()

    paths = [path for path in sorted((ROOT / "src").iterdir())
             if path.suffix in (".cpp", ".y", ".l") and path.name != "main.cpp"
             and options.only in path.name]
    texts = {path: path.read_text("utf-8") for path in paths}
    places, stale = places_of(texts, options.unseen)
    if stale and not options.only:
        sys.exit("UNSEEN names no change:\n" + "\n".join(map(str, stale)))
    chosen = random.Random(options.seed)
    for kind in KINDS:
        chosen.shuffle(places[kind])
    print("seed %d; %s" % (options.seed, ", ".join(
        "%d places for %s" % (len(places[kind]), kind) for kind in KINDS)), flush=True)

    builder = Builder(options.build)
    print("without a change: %.0f s" % builder.calibrate(), flush=True)
    if options.unseen:
        found = {kind: unseen_noticed(builder, places[kind], texts) for kind in KINDS}
        for kind in KINDS:
            print("%-10s %3d changes that nobody can see: %s" % (
                kind, len(places[kind]), found[kind] or "no test fails"))
        return 1 if any(found.values()) else 0
    survivors, lock = [], threading.Lock()
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        runs = [pool.submit(try_some, builder, iter(places[kind]),
                            (options.count + index) // len(KINDS), texts, survivors, lock)
                for index, kind in enumerate(KINDS)]
        made = sum(each.result() for each in runs)

    for mutant, number, before, after in sorted(survivors):
        print("\n%s:%d: %s" % (mutant.path.relative_to(ROOT), number, mutant.kind))
        for sign, lines in (("-", before), ("+", after)):
            print("\n".join(sign + line for line in lines.split("\n")))
    noticed = made - len(survivors)
    rate = 100 * noticed / made if made else 0
    print("\n%d of %d changes noticed, %.1f %% (seed %d)" % (noticed, made, rate, options.seed))
    return 0 if rate >= WANTED_PERCENT else 1


if __name__ == "__main__":
    sys.exit(main())
