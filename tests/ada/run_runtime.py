#!/usr/bin/env python3
"""Runs translated programs on an X server without a screen, and uses them as a user would.

    tests/ada/run_runtime.py --program build/kivuxl --cache build/ada-kit tests/ada/runtime/NAME...

A test is a folder that holds

    *.uil        the modules
    *.adb, *.ads the bodies of the callbacks, and what else the program needs; a file takes the
                 place of a generated one of the same name
    *.xbm        bitmaps, which the program finds by their names
    options      optional: a line for each run of kivuxl, the words after its name; without it
                 -gnat -stub -wrap -main MODULE.uil for the one module
    script       what the user does and what must be seen then, a line each:

        says TEXT            the next line that the program prints is this one, from first to last
        click WIDGET [N]     presses and releases button N (1) in the widget's middle
        press WIDGET [N]     presses only
        release WIDGET [N]   moves there and releases
        key NAME...          strikes keys, by the names that xdotool takes
        type TEXT            types a text
        focus                gives the keyboard to the window under the pointer
        ink CHARACTER #RRGGBB    what the character stands for in pictures
        area WIDGET #RRGGBB  the widget shows nothing but this colour, without its outermost 3
        picture WIDGET       somewhere in the widget is the picture of the rows below, each with two
                             blanks in front; a character without an ink is any other colour
        ends                 the program ends with status 0 and prints nothing more; always last

Programs call Probe.Listen once (runtime_support/), which tells this driver where a widget is as
soon as it can be seen, and when everything has been drawn; so nothing here waits for time to pass.
What a program prints on standard error counts as printed. Compiled programs are kept in the cache
by the hash of all that they were made from.
"""

import argparse
import contextlib
import os
import pathlib
import re
import select
import shutil
import struct
import subprocess
import sys
import tempfile
import time

from kit import HASH_LENGTH, Failure, build_kit, hash_of, locked, run, units_of

HERE = pathlib.Path(__file__).resolve().parent
SUPPORT = HERE / "runtime_support"
LIMIT = 60  # seconds for one answer, line or end
EDGE = 3  # pixels of a widget's outline


class Ended(Failure):
    """The program is no longer there to answer."""


# -- Building -------------------------------------------------------------------------------------


def translate(program, test, folder):
    """Fills the folder with the generated units and the test's own."""
    options = test / "options"
    if options.exists():
        lines = options.read_text(encoding="ascii").splitlines()
    else:
        lines = [f"-gnat -stub -wrap -main {path.name}" for path in test.glob("*.uil")]
    for line in lines:
        said = run([program, "-dir", folder, *line.split()], test)
        if said:
            raise Failure(f"kivuxl {line} says\n{said}")
    for path in units_of(folder):
        # A suffix with a point in it makes a child unit, whose file GNAT expects under this name.
        path.rename(folder / (path.stem.replace(".", "-") + path.suffix))
    for path in units_of(test):
        shutil.copy(path, folder)


def compile_units(folder, kit, result):
    """Makes a program of the folder's units, named after its main procedure, in folder `result`."""
    mains = [path.stem for path in units_of(folder) if path.suffix == ".adb"
             and b"xtr5.appmainloop" in path.read_bytes().lower()]
    if len(mains) != 1:
        raise Failure(f"{len(mains)} main procedures")
    run(["gnatmake", "-q", "-O0", f"-aI{kit}", f"-aO{kit}", mains[0]], folder)
    unfinished = result.with_suffix(".unfinished")
    shutil.rmtree(unfinished, ignore_errors=True)
    unfinished.mkdir()
    shutil.copy(folder / mains[0], unfinished)
    unfinished.rename(result)


def build_program(program, test, cache):
    """The compiled program of a test, from the cache if it is there."""
    kit = build_kit(cache, SUPPORT)
    programs = cache / "programs"
    with tempfile.TemporaryDirectory(prefix="kivuxl-ada-") as name:
        folder = pathlib.Path(name)
        translate(program, test, folder)
        result = programs / f"{test.name}-{hash_of(units_of(folder), kit.name)}"
        with locked(programs / f"{test.name}.lock"):
            if not result.exists():
                for old in programs.glob(test.name + "-" + "?" * HASH_LENGTH):
                    shutil.rmtree(old)
                compile_units(folder, kit, result)
    return next(result.iterdir())


# -- The X server ---------------------------------------------------------------------------------


class Server:
    """An X server whose screen is a file in the form of xwd(1)."""

    def __init__(self, folder):
        self.screen = os.path.join(folder, "Xvfb_screen0")
        # Keys do not repeat however long they are held; the server stays when its last client goes.
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-r",
             "-noreset", "-fbdir", folder],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        # The server picks a free number and writes it when it takes connections.
        number = self.process.stdout.readline().strip()
        if not number:
            raise Failure("Xvfb does not start")
        self.environment = {"PATH": os.environ["PATH"], "DISPLAY": f":{number}", "LC_ALL": "C",
                            "HOME": folder}
        # Users are slower than this one, who never means a double click.
        with open(os.path.join(folder, ".Xdefaults"), "w", encoding="ascii") as resources:
            resources.write("*multiClickTime: 1\n")

    def user(self, *words):
        """Moves the pointer, presses buttons, strikes keys."""
        return run(["xdotool", *map(str, words)], HERE, self.environment)

    def pixels(self, place):
        """The rows of an area, each a list of #rrggbb."""
        with open(self.screen, "rb") as file:
            content = file.read()
        header = struct.unpack(">25I", content[:100])
        start = header[0] + 12 * header[19]
        row_size = header[12]
        if (header[7], header[11]) != (0, 32):
            raise Failure("the screen is not 32 bits a pixel, least byte first")
        x, y, width, height = place
        rows = []
        for row in range(y, y + height):
            first = start + row * row_size + 4 * x
            values = struct.unpack_from(f"<{width}I", content, first)
            rows.append([f"#{value & 0xffffff:06x}" for value in values])
        return rows

    def end(self):
        self.process.terminate()
        self.process.wait()
        self.process.stdout.close()


# -- The program ----------------------------------------------------------------------------------


class Program:
    """A running program, its lines and its answers."""

    def __init__(self, path, environment):
        self.process = subprocess.Popen([path], env=environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.unread = b""
        self.printed = []
        self.answers = []

    def _read(self, wanted):
        """Waits for one more line and sorts it in; False at the end of the output."""
        deadline = time.monotonic() + LIMIT
        while b"\n" not in self.unread:
            left = deadline - time.monotonic()
            if left <= 0 or not select.select([self.process.stdout], [], [], left)[0]:
                raise Failure(f"no {wanted} within {LIMIT} seconds; printed: {self.printed}")
            piece = os.read(self.process.stdout.fileno(), 65536)
            if not piece:
                return False
            self.unread += piece
        line, self.unread = self.unread.split(b"\n", 1)
        text = line.decode("utf-8", "backslashreplace")
        if text.startswith("probe: "):
            self.answers.append(text.removeprefix("probe: "))
        else:
            self.printed.append(text)
        return True

    def next_line(self):
        while not self.printed:
            if not self._read("line"):
                return None
        return self.printed.pop(0)

    def ask(self, question):
        try:
            self.process.stdin.write(question.encode() + b"\n")
            self.process.stdin.flush()
        except BrokenPipeError as error:
            raise Ended(f"ended before it was asked: {question}") from error
        while not self.answers:
            if not self._read(f"answer to: {question}"):
                raise Ended(f"ended instead of answering: {question}; printed: {self.printed}")
        return self.answers.pop(0)

    def settle(self):
        """Waits until the program has nothing left to do, or has ended: the script says which."""
        with contextlib.suppress(Ended):
            self.ask("rest")

    def place(self, widget):
        """Left, top, width and height of a widget on the screen, once it is drawn."""
        answer = self.ask(f"where {widget}").removeprefix(f"where {widget} ")
        return tuple(map(int, answer.split()))

    def end(self):
        self.process.kill()
        self.process.wait()
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.stdout.close()


# -- The script -----------------------------------------------------------------------------------


def middle(place):
    x, y, width, height = place
    return x + width // 2, y + height // 2


def shown(rows, inks):
    """An area as a picture, for the message."""
    signs = {colour: sign for sign, colour in inks.items()}
    return "\n".join("    " + "".join(signs.get(colour, ".") for colour in row) for row in rows)


def matches(picture, rows, top, left, inks):
    known = set(inks.values())
    for wanted, row in zip(picture, rows[top:]):
        for sign, colour in zip(wanted, row[left:]):
            if colour != inks[sign] if sign in inks else colour in known:
                return False
    return True


class Script:
    """One run of a test's script."""

    def __init__(self, program, server):
        self.program = program
        self.server = server
        self.inks = {}

    def button(self, words, *actions):
        widget, number = (words + ["1"])[:2]
        x, y = middle(self.program.place(widget))
        self.server.user("mousemove", x, y)
        for action in actions:
            self.program.settle()
            self.server.user(action, number)

    def do_click(self, words, _):
        self.button(words, "mousedown", "mouseup")

    def do_press(self, words, _):
        self.button(words, "mousedown")

    def do_release(self, words, _):
        self.button(words, "mouseup")

    def do_key(self, words, _):
        for chord in words:
            keys = chord.split("+")
            for action, order in (("keydown", keys), ("keyup", keys[::-1])):
                for key in order:
                    self.program.settle()
                    self.server.user(action, key)

    def do_type(self, words, _):
        self.program.settle()
        self.server.user("type", " ".join(words))

    def do_focus(self, *_):
        self.program.settle()
        found = re.search("WINDOW=(.*)", self.server.user("getmouselocation", "--shell"))
        self.server.user("windowfocus", "--sync", found.group(1))

    def do_ink(self, words, _):
        sign, colour = words
        self.inks[sign] = colour

    def do_says(self, words, _):
        wanted, line = " ".join(words), self.program.next_line()
        if line is None:
            raise Failure(f"ended instead of saying: {wanted}")
        if line != wanted:
            raise Failure(f"says     {line}\nexpected {wanted}")

    def do_area(self, words, _):
        widget, colour = words
        x, y, width, height = self.program.place(widget)
        rows = self.server.pixels((x + EDGE, y + EDGE, width - 2 * EDGE, height - 2 * EDGE))
        strange = {pixel for row in rows for pixel in row} - {colour}
        if strange or not rows:
            raise Failure(f"{widget} shows {', '.join(sorted(strange))}, expected {colour}")

    def do_picture(self, words, picture):
        widget = words[0]
        rows = self.server.pixels(self.program.place(widget))
        height, width = len(picture), max(map(len, picture))
        if not any(matches(picture, rows, top, left, self.inks)
                   for top in range(len(rows) - height + 1)
                   for left in range(len(rows[0]) - width + 1)):
            raise Failure(f"{widget} does not show the picture, but\n{shown(rows, self.inks)}")

    def do_ends(self, *_):
        line = self.program.next_line()
        if line is not None:
            raise Failure(f"says, but should end: {line}")
        status = self.program.process.wait(LIMIT)
        if status != 0:
            raise Failure(f"ends with status {status}")


def commands_of(path):
    """The script's lines as (number, words, rows below)."""
    commands = []
    for number, line in enumerate(path.read_text(encoding="ascii").splitlines(), 1):
        if line.startswith("  "):
            commands[-1][2].append(line.removeprefix("  "))
        elif line and not line.startswith("#"):
            commands.append((number, line.split(" "), []))
    if not commands or commands[-1][1] != ["ends"]:
        raise Failure(f"{path.name} does not end in `ends`")
    return commands


def play(path, program, server):
    script = Script(program, server)
    for number, (verb, *words), rows in commands_of(path):
        action = getattr(script, f"do_{verb}", None)
        if action is None:
            raise Failure(f"{path.name}:{number}: no such command: {verb}")
        try:
            action(words, rows)
        except Failure as failure:
            raise Failure(f"{path.name}:{number}: {verb}: {failure}") from failure


def check(program, test, cache):
    if not (test / "script").is_file():
        raise Failure("has no file `script`")
    path = build_program(program, test, cache)
    with tempfile.TemporaryDirectory(prefix="kivuxl-screen-") as folder:
        server = Server(folder)
        try:
            bitmaps = {"XBMLANGPATH": f"{test}/%B"}
            running = Program(path, server.environment | bitmaps)
            try:
                play(test / "script", running, server)
            except Failure as failure:
                picture = cache / f"{test.name}.xwd"
                shutil.copy(server.screen, picture)
                raise Failure(f"{failure}\nthe screen: {picture}") from failure
            finally:
                running.end()
        finally:
            server.end()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, type=pathlib.Path, help="the translator")
    parser.add_argument("--cache", required=True, type=pathlib.Path,
                        help="where compiled packages and programs are kept")
    parser.add_argument("tests", nargs="+", type=pathlib.Path, metavar="test", help="a test folder")
    options = parser.parse_args()
    failed = 0
    for test in options.tests:
        start = time.monotonic()
        try:
            check(options.program.resolve(), test.resolve(), options.cache.resolve())
            print(f"ok {test.name} ({time.monotonic() - start:.1f} s)")
        except Failure as failure:
            failed += 1
            print(f"FAILED {test.name}\n{failure}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
