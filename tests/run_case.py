#!/usr/bin/env python3
"""Runs end-to-end cases: folders with a command line, its input and everything that comes out.

    tests/run_case.py --program build/kivuxl tests/cases/NAME...

A case is a folder that holds

    command      one line, as typed in a shell, that begins with `kivuxl`
    status       the expected exit status, above 128 for a signal as in a shell
    stdout       the expected standard output; absent: empty
    stderr       the expected standard error; absent: empty
    files        the names of all files that the run writes or changes, one a line, sorted as bytes,
                 relative to the scratch directory; absent: none.  A name of a file that the run
                 removes has a "-" in front, a new directory ends in "/".
    input/       what stands in the scratch directory before the run
    expected/    what some of the files in `files` hold after the run
    environment  lines NAME=value, or NAME alone to unset it
    setup        a shell script that is run in the scratch directory after `input/` was copied there,
                 for what cannot stand in a folder: empty directories, FIFOs, odd names and modes

The command runs in the scratch directory, a fresh one for each run, through `sh -c`, with the
program under test found as `kivuxl` by the search path, without input, under LC_ALL=C and TZ=UTC,
without HOME.  TMPDIR names a fresh directory, which must be empty after the run.  A run may take 60
seconds.  With --stack it gets a stack of that many KiB, so that recursion on the input is found.
With --locale it runs under that locale instead, which must stand in the directory that the variable
KIVUXL_LOCALES names; without that variable the exit status is 77.  All contents are compared as
bytes; what differs is printed as a unified diff, expected lines with "-".  The exit status is 0 when
every case passes.

Expected files are written by hand: nothing here can write them.
"""

import argparse
import difflib
import os
import re
import resource
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time

PARTS = {"command", "status", "stdout", "stderr", "files", "input", "expected", "environment",
         "setup"}
# Set by the build's test runner for instrumented programs; harmless to others.
PASSED_ON = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
# Signals that ask this program to stop.
STOPS = (signal.SIGTERM, signal.SIGHUP)


class BadCase(Exception):
    """The case itself cannot be used, whatever the program does."""


def read(path):
    with open(path, "rb") as file:
        return file.read()


def read_if_there(path):
    return read(path) if os.path.lexists(path) else b""


def shown(text):
    """Bytes as printable text."""
    return text.decode("utf-8", "backslashreplace")


def lines_of(text):
    """The lines of a text, each with its newline; one that lacks it says so, as diff does."""
    lines = re.findall(rb"[^\n]*\n|[^\n]+", text)
    if lines and not lines[-1].endswith(b"\n"):
        lines[-1] += b"\n\\ No newline at end of file\n"
    return lines


def difference(name, expected, actual):
    """A unified diff of two texts that are not the same."""
    label = os.fsencode(name)
    diff = difflib.diff_bytes(difflib.unified_diff, lines_of(expected), lines_of(actual),
                              label + b" (expected)", label + b" (actual)", lineterm=b"\n")
    return shown(b"".join(diff))


# -- The case -------------------------------------------------------------------------------------


class Case:
    """What the files of a case folder say."""

    def __init__(self, folder):
        self.folder = folder
        if not os.path.isdir(folder):
            raise BadCase("not a folder")
        unknown = sorted(set(os.listdir(folder)) - PARTS)
        if unknown:
            raise BadCase("no part of a case: " + ", ".join(unknown))
        self.command = self._command()
        self.status = self._status()
        self.stdout = read_if_there(self._part("stdout"))
        self.stderr = read_if_there(self._part("stderr"))
        self.files = self._files()
        self.expected = self._expected()
        self.environment = self._environment()

    def _part(self, name):
        return os.path.join(self.folder, name)

    def _required(self, name):
        if not os.path.isfile(self._part(name)):
            raise BadCase("has no file `%s`" % name)
        return os.fsdecode(read(self._part(name)))

    def _command(self):
        command = self._required("command")
        if command.endswith("\n"):
            command = command[:-1]
        if "\n" in command:
            raise BadCase("`command` is more than one line")
        if not re.match(r"kivuxl(\s|$)", command):
            raise BadCase("`command` does not begin with kivuxl")
        return command

    def _status(self):
        text = self._required("status").strip()
        if not re.fullmatch(r"[0-9]{1,3}", text):
            raise BadCase("`status` is not a number")
        return int(text)

    def _files(self):
        names = read_if_there(self._part("files")).split(b"\n")
        if names[-1] == b"":
            names.pop()
        if b"" in names:
            raise BadCase("`files` has an empty line")
        if names != sorted(set(names)):
            raise BadCase("`files` is not sorted, or names a file twice")
        return [os.fsdecode(name) for name in names]

    def _expected(self):
        """The expected contents by name."""
        top = self._part("expected")
        contents = {}
        for folder, _, names in os.walk(top):
            for name in names:
                path = os.path.join(folder, name)
                contents[os.path.relpath(path, top)] = read(path)
        strangers = sorted(set(contents) - set(self.files))
        if strangers:
            raise BadCase("in expected/ but not in `files`: " + ", ".join(strangers))
        return contents

    def _environment(self):
        """Pairs of name and value, the value None where the name is to be unset."""
        pairs = []
        for line in os.fsdecode(read_if_there(self._part("environment"))).split("\n"):
            name, is_set, value = line.partition("=")
            if line and not re.fullmatch(r"[A-Za-z_][A-Za-z0-9_]*", name):
                raise BadCase("`environment`: not a name: %s" % name)
            if line:
                pairs.append((name, value if is_set else None))
        return pairs


# -- The run --------------------------------------------------------------------------------------


class Place:
    """The private directories of one run."""

    def __init__(self, top, options):
        self.stack = options.stack
        self.locale = options.locale
        self.scratch = os.path.join(top, "scratch")
        self.temporary = os.path.join(top, "tmp")
        self.streams = os.path.join(top, "streams")
        self.bin = os.path.join(top, "bin")
        for folder in (self.temporary, self.streams, self.bin):
            os.mkdir(folder)
        os.symlink(os.path.abspath(options.program), os.path.join(self.bin, "kivuxl"))

    def environment(self, case):
        values = {
            "LC_ALL": "C",
            "TZ": "UTC",
            "TMPDIR": self.temporary,
            "PATH": self.bin + ":/usr/local/bin:/usr/bin:/bin",
        }
        for name in PASSED_ON:
            if name in os.environ:
                values[name] = os.environ[name]
        if self.locale is not None:
            values.update(locale_environment(self.locale))
        for name, value in case.environment:
            if value is None:
                values.pop(name, None)
            else:
                values[name] = value
        return values


def locale_environment(name):
    return {"LC_ALL": name, "LOCPATH": os.environ["KIVUXL_LOCALES"]}


def has_locale(name):
    """Whether programs find the locale; one that they do not find is the C locale to them."""
    probe = "import locale; locale.setlocale(locale.LC_ALL, '')"
    return subprocess.run([sys.executable, "-c", probe], stderr=subprocess.DEVNULL, check=False,
                          env=locale_environment(name)).returncode == 0


def wait_for(process, limit):
    """Waits until the process has ended, without taking its status, so that its id stays its own.

    Returns False when `limit` seconds pass first.  SIGCHLD must be blocked.
    """
    deadline = time.monotonic() + limit
    while os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOHANG | os.WNOWAIT) is None:
        left = deadline - time.monotonic()
        if left <= 0:
            return False
        signal.sigtimedwait([signal.SIGCHLD], left)
    return True


def run_shell(words, place, environment, streams, limit):
    """Runs a shell in a process group of its own.

    Returns its exit status, as a shell gives it, or None when the limit was passed.  Nothing of the
    group outlives the call.
    """
    out, err = streams
    # A request to stop waits until the process is known here, or it would outlive this program.
    signal.pthread_sigmask(signal.SIG_BLOCK, STOPS)
    with open(out, "wb") as stdout, open(err, "wb") as stderr:
        process = subprocess.Popen(["/bin/sh"] + words, cwd=place.scratch, env=environment,
                                   stdin=subprocess.DEVNULL, stdout=stdout, stderr=stderr,
                                   start_new_session=True, umask=0o022,
                                   preexec_fn=lambda: prepare_child(place.stack))
    try:
        signal.pthread_sigmask(signal.SIG_UNBLOCK, STOPS)
        in_time = wait_for(process, limit)
    finally:
        # Also when this program is told to stop; the leader's id is still its own.
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except (ProcessLookupError, PermissionError):
            pass
        status = process.wait()
    if not in_time:
        return None
    return 128 - status if status < 0 else status


def stop(number, _):
    """A signal handler that lets everything be cleaned up on the way out."""
    sys.exit(128 + number)


def prepare_child(stack):
    signal.pthread_sigmask(signal.SIG_UNBLOCK, [signal.SIGCHLD, *STOPS])
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    if stack is not None:
        resource.setrlimit(resource.RLIMIT_STACK, (stack * 1024, stack * 1024))


def describe(path):
    """What a name stands for: equal before and after when the run left it alone."""
    status = os.lstat(path)
    if stat.S_ISLNK(status.st_mode):
        return ("link", os.readlink(path))
    if stat.S_ISREG(status.st_mode):
        try:
            return ("file", read(path))
        except PermissionError:
            return ("unreadable file", status.st_size, status.st_mtime_ns)
    return (stat.S_IFMT(status.st_mode),)


def snapshot(top):
    """Everything below a directory, by relative name; names of directories end in "/"."""
    found = {}
    for folder, folders, names in os.walk(top):
        for name in folders + names:
            path = os.path.join(folder, name)
            is_folder = name in folders and not os.path.islink(path)
            found[os.path.relpath(path, top) + ("/" if is_folder else "")] = describe(path)
    return found


def changes(before, after):
    """The names of what a run wrote or changed, and with "-" of what it removed, sorted."""
    names = [name for name in after if before.get(name) != after[name]]
    names += ["-" + name for name in before if name not in after]
    return sorted(names, key=os.fsencode)


def prepare(case, place, environment, limit):
    """Fills the scratch directory."""
    source = os.path.join(case.folder, "input")
    if os.path.isdir(source):
        shutil.copytree(source, place.scratch, symlinks=True)
    else:
        os.mkdir(place.scratch)
    setup = os.path.join(case.folder, "setup")
    if os.path.lexists(setup):
        streams = [os.path.join(place.streams, name) for name in ("setup.out", "setup.err")]
        status = run_shell(["-e", os.path.abspath(setup)], place, environment, streams, limit)
        if status != 0:
            raise BadCase("`setup` failed with status %s\n%s" %
                          (status, shown(read(streams[0]) + read(streams[1]))))


# -- The comparison -------------------------------------------------------------------------------


def joined(names):
    return b"".join(os.fsencode(name) + b"\n" for name in names)


def compare_contents(case, place):
    """The faults of the files whose contents are expected."""
    faults = []
    for name, expected in sorted(case.expected.items()):
        path = os.path.join(place.scratch, name)
        if not os.path.isfile(path):
            faults.append("%s: not written\n" % name)
        else:
            actual = read(path)
            if actual != expected:
                faults.append(difference(name, expected, actual))
    return faults


def run_case(case, place, limit):
    """Runs a case and returns what was wrong, as printable texts."""
    environment = place.environment(case)
    prepare(case, place, environment, limit)
    before = snapshot(place.scratch)
    streams = [os.path.join(place.streams, name) for name in ("stdout", "stderr")]
    status = run_shell(["-c", case.command], place, environment, streams, limit)

    faults = []
    if status is None:
        faults.append("still running after %g seconds\n" % limit)
    elif status != case.status:
        faults.append("status %d, expected %d\n" % (status, case.status))
    written = changes(before, snapshot(place.scratch))
    for name, expected, actual in (("stdout", case.stdout, read(streams[0])),
                                   ("stderr", case.stderr, read(streams[1])),
                                   ("files", joined(case.files), joined(written))):
        if actual != expected:
            faults.append(difference(name, expected, actual))
    faults += compare_contents(case, place)
    left = sorted(os.listdir(place.temporary))
    if left:
        faults.append("left behind: %s\n" % ", ".join(left))
    return faults


def make_removable(top):
    """Lets rmtree into directories that a case has closed."""
    for folder, folders, _ in os.walk(top):
        for name in folders:
            path = os.path.join(folder, name)
            if not os.path.islink(path):
                os.chmod(path, 0o700)


def faults_of(folder, options):
    """Everything wrong with one case."""
    top = tempfile.mkdtemp(prefix="kivuxl-case-")
    try:
        return run_case(Case(folder), Place(top, options), options.limit)
    except BadCase as bad:
        return ["bad case: %s\n" % bad]
    finally:
        make_removable(top)
        shutil.rmtree(top)


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the program under test")
    parser.add_argument("--limit", type=float, default=60, help="seconds that a run may take")
    parser.add_argument("--stack", type=int, help="KiB of stack that a run gets")
    parser.add_argument("--locale", help="the locale of the runs")
    parser.add_argument("cases", nargs="+", metavar="case", help="a case folder")
    options = parser.parse_args()
    if not os.access(options.program, os.X_OK) or os.path.isdir(options.program):
        parser.error("not a program: " + options.program)
    if options.locale is not None and "KIVUXL_LOCALES" not in os.environ:
        print("skipped: KIVUXL_LOCALES is not set")
        return 77
    if options.locale is not None and not has_locale(options.locale):
        parser.error("no such locale: " + options.locale)
    sys.stdout.reconfigure(errors="backslashreplace")
    signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGCHLD])
    for number in STOPS:
        signal.signal(number, stop)

    failed = 0
    for folder in options.cases:
        name = os.path.basename(os.path.normpath(folder))
        faults = faults_of(folder, options)
        print("%s %s" % ("FAILED" if faults else "ok", name))
        for fault in faults:
            print(fault, end="" if fault.endswith("\n") else "\n")
        failed += bool(faults)
    if len(options.cases) > 1:
        print("%d of %d cases failed" % (failed, len(options.cases)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
