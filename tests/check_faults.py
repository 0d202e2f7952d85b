#!/usr/bin/env python3
"""Lets everything fail that can fail during a translation, one thing after the other.

    tests/check_faults.py --program build/kivuxl --calls build/tests/libfault_calls.so
                          --memory build/tests/libfault_memory.so [--step N] PART...

A module with include files is translated with stubs, wrapper, main procedure, listing and progress
messages, into a folder in which an older version of every unit stands.  In run k the k-th call of a
family fails (the library of faults/calls.cpp), the k-th allocation does (faults/memory.cpp), or a
signal comes with the k-th call, for k = 1, 2, 3 ... until a run has fewer; with --step for each
N-th k, beginning with another one in each walk.  After each run:

    the exit status is 0 only if every unit, the listing and standard output are whole and right;
    otherwise it is 1 and something stands on standard error, or the process has died by the signal;
    each unit is wholly the old one or wholly the new one;
    nothing is left in the temporary directory or beside the units.

The parts:

    files     opening, closing, linking, renaming, looking at and reading files
    writes    a full disk, once and from then on, input and output errors, short writing
    signals   SIGINT, SIGTERM and SIGKILL; the last may leave temporary files, no half units
    memory    allocations, one and from then on all
    together  two runs at once, into one folder and into two, one of them ended by a signal

What went wrong is printed, and the exit status is 1 then.
"""

import argparse
import errno
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent / "examples"
SOURCES = ("settings.uil", "settings_values.uih", "settings_lists.uih")
LIMIT = 30  # seconds that a run may take
FOREVER = 1 << 30
MOST = 1000  # calls of a family: an end for a program that makes ever more of them
KILLED = -signal.SIGKILL
# The run goes on without a listing when it says so.
NO_LISTING = b"kivuxl: Error opening listing file list.\n"
PASSED_ON = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")

# Family, error number (0: half is done), and whether it fails from then on or once.
FILE_FAULTS = (
    ("open", errno.EMFILE, False), ("open", errno.EMFILE, True), ("open", errno.EACCES, False),
    ("close", errno.EIO, False), ("close", errno.EIO, True),
    ("link", errno.EIO, False), ("link", errno.ENOSPC, True), ("link", errno.EXDEV, False),
    ("rename", errno.EIO, False), ("rename", errno.EACCES, True),
    ("status", errno.EACCES, False), ("status", errno.EACCES, True),
    ("read", errno.EIO, False), ("read", errno.EIO, True), ("read", 0, False), ("read", 0, True),
    ("random", errno.ENOSYS, False), ("random", errno.EIO, True),
    ("size", errno.EIO, False), ("mode", errno.EPERM, False), ("mode", errno.EPERM, True),
    ("control", errno.EMFILE, False), ("control", errno.EMFILE, True),
    ("seek", errno.EIO, False),
)
WRITE_FAULTS = (
    ("write", errno.ENOSPC, False), ("write", errno.ENOSPC, True), ("write", errno.EIO, False),
    ("write", 0, False), ("write", 0, True),
)
SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGKILL)
# Links that are refused: units are copied into place.
COPIED = "link,1,%d,%d;" % (FOREVER, errno.EXDEV)


def contents(folder):
    """What the files of a folder hold, by name."""
    return {path.name: path.read_bytes() for path in folder.iterdir()}


def old_version(name):
    return b"-- an old version of %s\n" % name.encode()


class Run:
    """A process under way in a place, with its streams in files."""

    def __init__(self, place, environment, out="out"):
        self.place, self.out = place, out
        place.report.unlink(missing_ok=True)
        values = {"LC_ALL": "C", "TZ": "UTC", "SOURCE_DATE_EPOCH": "0", "TMPDIR": str(place.tmp)}
        values.update({name: os.environ[name] for name in PASSED_ON if name in os.environ})
        values.update(environment, KIVUXL_FAULTS_REPORT=str(place.report))
        command = [place.program, "-stub", "-wrap", "-main", "-verbose", "-v", "list", "-dir", out,
                   "settings.uil"]
        with open(place.stdout, "wb") as stdout, open(place.stderr, "wb") as stderr:
            self.process = subprocess.Popen(command, cwd=place.work, env=values, stdout=stdout,
                                            stderr=stderr, stdin=subprocess.DEVNULL)

    def wait(self):
        """The exit status, below 0 for a signal, or None when it hangs."""
        try:
            return self.process.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
            return None


class Place:
    """Where a run happens, and what is right there."""

    def __init__(self, top, program):
        self.program = program
        self.work, self.tmp = top / "work", top / "tmp"
        self.units = self.work / "out"
        self.stdout, self.stderr, self.report = top / "stdout", top / "stderr", top / "report"
        for folder in (top, self.work, self.tmp, self.units):
            folder.mkdir()
        for name in SOURCES:
            shutil.copy(EXAMPLES / name, self.work)
        self.old, self.new, self.progress = {}, {}, b""
        self.old_listing, self.listing = b"", b""

    def learn(self):
        """Notes what comes out when nothing fails."""
        if Run(self, {}).wait() != 0 or self.stderr.read_bytes() != b"":
            raise SystemExit("the run without faults fails:\n" + self.stderr.read_text())
        self.new = contents(self.units)
        self.old = {name: old_version(name) for name in self.new}
        self.listing = (self.work / "list").read_bytes()
        self.old_listing = b"an old, longer listing\n" + self.listing
        self.progress = self.stdout.read_bytes()

    def restore(self):
        """Puts everything back to the state before a run."""
        for folder in (self.tmp, self.units):
            for path in folder.iterdir():
                path.unlink()
        for name, text in self.old.items():
            (self.units / name).write_bytes(text)
        (self.work / "list").write_bytes(self.old_listing)

    def met(self):
        """Whether the last run came to its fault."""
        return self.report.exists() and self.report.read_bytes().startswith(b"F")

    def unit_faults(self):
        """What is wrong with the units, whatever the exit status."""
        found = contents(self.units)
        faults = ["missing: " + name for name in self.old if name not in found]
        faults += ["left beside the units: " + name for name in found if name not in self.old]
        faults += ["neither old nor new: " + name for name, text in found.items()
                   if name in self.old and text not in (self.old[name], self.new[name])]
        return faults

    def listing_faults(self, status):
        """A listing that stays is a whole one."""
        path = self.work / "list"
        right = [self.old_listing, self.listing]
        if status == 0 and self.stderr.read_bytes() == NO_LISTING:
            right = [self.old_listing]
        elif status == 0:
            right = [self.listing]
        elif not path.exists():
            return []
        return [] if path.exists() and path.read_bytes() in right else ["a wrong listing"]

    def success_faults(self):
        faults = ["exit status 0, but not new: " + name for name, text in
                  sorted(contents(self.units).items()) if text != self.new.get(name)]
        if self.stdout.read_bytes() != self.progress:
            faults.append("exit status 0, but standard output is wrong")
        return faults

    def faults(self, status, number):
        """What is wrong after a run that met a fault, or a signal by that number."""
        faults = self.unit_faults()
        left = sorted(path.name for path in self.tmp.iterdir())
        if number == signal.SIGKILL:
            faults = [fault for fault in faults if not fault.startswith("left beside")]
        else:
            faults += ["left in the temporary directory: " + name for name in left]
            faults += self.listing_faults(status)
        if status is None:
            faults.append("still running after %d seconds" % LIMIT)
        elif number:
            if status != -number:
                faults.append("not ended by signal %d but with status %d" % (number, status))
        elif status == 0:
            faults += self.success_faults()
        elif status != 1:
            faults.append("status %d" % status)
        elif not re.fullmatch(rb"(kivuxl: [^\n]+\n)+", self.stderr.read_bytes()):
            faults.append("status 1, but standard error is no message")
        return faults


class Check:
    """The walks, and what they have found."""

    def __init__(self, options, top):
        self.options = options
        self.place = Place(top, options.program)
        self.place.learn()
        self.found = 0
        self.runs = 0
        self.walks = 0

    def complain(self, title, faults):
        if faults:
            self.found += 1
            print("FAILED %s" % title)
            for fault in faults:
                print("    " + fault)
            print("    standard error: %r" % self.place.stderr.read_bytes()[:400])

    def one(self, title, environment, number=0):
        """One run; returns whether the fault came at all."""
        self.place.restore()
        status = Run(self.place, environment).wait()
        self.runs += 1
        met = self.place.met()
        if met:
            self.complain(title, self.place.faults(status, number))
        else:
            self.complain(title + " (without a fault)", self.place.faults(status, 0) +
                          ([] if status == 0 else ["status %s" % status]))
        return met

    def walk(self, title, rule, number=0):
        """Runs with the rule at the first call, the second, ... until a run has fewer calls."""
        self.walks += 1
        call = 1 + self.walks % self.options.step
        while call < MOST:
            environment = {"LD_PRELOAD": self.options.calls, "KIVUXL_FAULTS": rule(call)}
            if not self.one("%s, call %d" % (title, call), environment, number):
                break
            call += self.options.step
        print("%s: up to call %d" % (title, call - 1))
        if (call == 1 and self.options.step == 1) or call >= MOST:
            self.complain(title, ["the walk has no calls or no end"])

    def walk_errors(self, faults, also=""):
        for family, action, onwards in faults:
            self.walk("%s%s, %s%s" % (family, " (copied)" if also else "",
                                      errno.errorcode.get(action, "by half"),
                                      " from then on" if onwards else ""),
                      lambda call, f=family, a=action, o=onwards:
                      also + "%s,%d,%d,%d;" % (f, call, FOREVER if o else call, a))

    def files(self):
        self.walk_errors(FILE_FAULTS)
        self.walk_errors([("open", errno.ENOSPC, False), ("close", errno.EIO, False),
                          ("read", errno.EIO, False), ("rename", errno.EIO, False),
                          ("control", errno.EMFILE, False)], COPIED)

    def writes(self):
        self.walk_errors(WRITE_FAULTS)
        self.walk_errors(WRITE_FAULTS[:2], COPIED)

    def signals(self):
        for number in SIGNALS:
            self.walk(number.name,
                      lambda call, n=number: "any,%d,%d,-%d;" % (call, call, n), number)
        number = signal.SIGTERM
        self.walk("SIGTERM (copied)", lambda call: COPIED + "any,%d,%d,-%d;" % (call, call, number),
                  number)

    def memory(self):
        environment = {"LD_PRELOAD": self.options.memory, "KIVUXL_MEMORY": "0,0"}
        Run(self.place, environment).wait()
        count = int(self.place.report.read_bytes())
        numbers = range(1, count + 1, self.options.step)
        for onwards in (False, True):
            title = "allocation %%d of %d%s" % (count, " and all others" if onwards else "")
            for number in numbers:
                environment["KIVUXL_MEMORY"] = "%d,%d" % (number, FOREVER if onwards else number)
                if not self.one(title % number, environment):
                    self.complain(title % number, ["it did not fail"])
        print("memory: %d of %d allocations" % (len(numbers), count))

    def together(self):
        """Another run, whose module differs, goes on beside the one that the signal ends."""
        other = Place(self.place.work.parent / "other", self.options.program)
        values = other.work / "settings_values.uih"
        values.write_bytes(re.sub(rb": [0-9]+;", b": 77;", values.read_bytes()))
        other.learn()
        if other.new == self.place.new or other.new.keys() != self.place.new.keys():
            self.complain("two runs at once", ["the modules do not differ as they should"])
        for shared in (True, False):
            for call in range(1, MOST, 7 * self.options.step):
                if not self.pair(other, call, shared):
                    break

    def pair(self, other, call, shared):
        """A run that ends at that call, and another that does not; whether the first one did."""
        number = signal.SIGTERM
        self.place.restore()
        other.restore()
        rule = "any,%d,%d,-%d;" % (call, call, number)
        one = Run(self.place, {"LD_PRELOAD": self.options.calls, "KIVUXL_FAULTS": rule})
        two = Run(other, {}, str(self.place.units) if shared else "out")
        statuses = one.wait(), two.wait()
        self.runs += 1
        met = self.place.met()
        faults = [] if statuses == (-number if met else 0, 0) else ["statuses %s, %s" % statuses]
        for place in (self.place, other):
            faults += ["left in a temporary directory: " + path.name
                       for path in place.tmp.iterdir()]
        if shared:
            found = contents(self.place.units)
            faults += ["not whole: " + name for name in self.place.new
                       if found.get(name) not in (self.place.new[name], other.new[name])]
            faults += ["left behind: " + name for name in found if name not in self.place.new]
        else:
            faults += self.place.unit_faults() + other.faults(statuses[1], 0)
        self.complain("two runs at once, call %d" % call, faults)
        return met


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the program under test")
    parser.add_argument("--calls", required=True, help="the library of faults/calls.cpp")
    parser.add_argument("--memory", default="", help="the library of faults/memory.cpp")
    parser.add_argument("--step", type=int, default=1, help="leave calls and allocations out")
    parser.add_argument("parts", nargs="+", metavar="part",
                        choices=("files", "writes", "signals", "memory", "together"))
    options = parser.parse_args()
    for name in ("program", "calls", "memory"):
        path = getattr(options, name)
        setattr(options, name, path and os.path.abspath(path))
    with tempfile.TemporaryDirectory(prefix="kivuxl-faults-") as top:
        check = Check(options, pathlib.Path(top) / "one")
        for part in options.parts:
            getattr(check, part)()
    print("%d runs, %d failed" % (check.runs, check.found))
    return 1 if check.found else 0


if __name__ == "__main__":
    sys.exit(main())
