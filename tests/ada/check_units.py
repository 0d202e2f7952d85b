#!/usr/bin/env python3
"""Compiles every Ada unit that the cases and the examples write.

    tests/ada/check_units.py --program build/kivuxl --cache build/ada-units

Each command of tests/cases is run as its case runs it, and each module of examples/ is translated.
Whatever Ada comes out, under whatever name, is compiled against the packages of ada/: as Ada 95
where the options ask for it and else as Ada 83. Units that the user has to supply, such as the body
of the callbacks, are the stubs that the translator writes.

The errors must be those that exceptions.py knows, and each of its entries must still be met. Where
an entry says how the fault is mended, the unit is mended and compiled again, so that one fault does
not hide another.
"""

import argparse
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import shutil
import signal
import sys
import tempfile
import types

import exceptions
import units as ada

sys.path.insert(0, str(ada.ROOT / "tests"))
import run_case  # pylint: disable=wrong-import-position

JOBS = 2
CASE_LIMIT = 60  # seconds for one run of the translator
COLUMN_ONE = re.compile(rb"^(package|procedure|function|generic)\b", re.M)
# Cases whose listing takes a unit's place, so that no complete text is there to compile.
WITHOUT_A_UNIT = {"hostile-listing-is-a-unit"}
# A module that stands in for one that a main procedure names.
STAND_IN = "module {}\\nobject stand_in : XmForm {{}};\\nend module;\\n"


# -- Running the translator -----------------------------------------------------------------------


def example_runs(top, folder):
    """A case for each example and each of the two languages."""
    os.symlink(folder, os.path.join(top, "input"))
    runs = []
    for module in sorted(folder.glob("*.uil")):
        for options in ("-gnat", "-ada83"):
            runs.append(types.SimpleNamespace(
                name=f"example {module.stem} {options}", folder=top, environment=[],
                command=f"kivuxl {options} -I. -stub -wrap -main {module.name}"))
    return runs


def case_runs(folder):
    folders = {path.name: path for path in folder.iterdir() if path.is_dir()}
    for name in WITHOUT_A_UNIT:
        del folders[name]
    runs = []
    for _, path in sorted(folders.items()):
        case = run_case.Case(str(path))
        runs.append(types.SimpleNamespace(name=path.name, folder=case.folder,
                                          environment=case.environment, command=case.command))
    return runs


def written(run, command, program):
    """The Ada texts that a command writes into files or, without a filter, to standard output."""
    # What a filter leaves of a unit is none: the command is taken up to there.
    command = command.split(" | ")[0]
    top = tempfile.mkdtemp(prefix="kivuxl-ada-")
    try:
        place = run_case.Place(top, types.SimpleNamespace(program=program, stack=None, locale=None))
        environment = place.environment(run)
        run_case.prepare(run, place, environment, CASE_LIMIT)
        before = run_case.snapshot(place.scratch)
        streams = [os.path.join(place.streams, name) for name in ("stdout", "stderr")]
        if run_case.run_shell(["-c", command], place, environment, streams, CASE_LIMIT) is None:
            raise run_case.BadCase(f"{run.name}: still running after {CASE_LIMIT} seconds")
        after = run_case.snapshot(place.scratch)
        texts = [after[name][1] for name in run_case.changes(before, after)
                 if after.get(name, ("",))[0] == "file"]
        if ";" not in command:
            texts.append(run_case.read(streams[0]))
        return [text.decode(ada.ENCODING) for text in texts if COLUMN_ONE.search(text)]
    finally:
        run_case.make_removable(top)
        shutil.rmtree(top)


def words_of(run):
    """The words of a command and of the configuration files that it names."""
    words = shlex.split(run.command, posix=True)
    for position, word in enumerate(words[:-1]):
        # What stands elsewhere is a device or the like.
        path = pathlib.Path(run.folder, "input", words[position + 1].lstrip("/"))
        if word == "-cfg" and path.is_file():
            words += path.read_text(encoding=ada.ENCODING).split()
    return words


def mode_of(words):
    """Ada 95 or Ada 83, as the translator decides it from its options."""
    if "-gnat" in words:
        return ada.ADA_95
    if "-vads" in words or "-adaworld" in words:
        return ada.ADA_83
    last = [word for word in words if word in ("-ada95", "-ada83")][-1:]
    return ada.ADA_95 if last == ["-ada95"] else ada.ADA_83


def supply(run, units, program):
    """Adds the units that the user has to supply, made by the translator."""
    stubs = ada.divide_all(written(run, run.command.replace("kivuxl", "kivuxl -stub -wrap", 1),
                                   program))
    found = True
    while found:
        found = {file: stubs[file] for name in ada.missing_units(units)
                 for file in (name + ".ads", name + ".adb") if file in stubs}
        units.update(found)
    for name in ada.missing_units(units):
        if re.fullmatch(r"[a-z][a-z0-9_]*", name):
            units.update(stand_in(name, "".join(units.values()), program))


def stand_in(name, users, program):
    """The package of another module that a main procedure names."""
    bare = types.SimpleNamespace(folder=os.devnull, environment=[])
    own_package = re.search(rf"\b{name}\.widgets\.", users, re.I)
    module = name if own_package else name.removesuffix("_uil")
    options = "" if own_package or module != name else "-ng widgets -sfx"
    return ada.divide_all(written(
        bare, f"printf '{STAND_IN.format(module)}' > m.uil && kivuxl {options} -w m.uil", program))


def units_of(run, program):
    """The mode and the units of one run."""
    mode = mode_of(words_of(run))
    units = ada.divide_all(written(run, run.command, program))
    own = sorted(units)
    if ada.missing_units(units):
        supply(run, units, program)
    return mode, units, own


def digest_of(run, program_digest):
    """A hash of all that the outcome of a run depends on."""
    digest = hashlib.sha256(program_digest)
    digest.update(pathlib.Path(__file__).read_bytes() + run.command.encode())
    digest.update(json.dumps(run.environment).encode())
    for name in ("input", "setup"):
        path = os.path.join(run.folder, name)
        if os.path.isdir(path):
            contents = run_case.snapshot(os.path.realpath(path))
            digest.update(repr(sorted(contents.items())).encode())
        elif os.path.isfile(path):
            digest.update(run_case.read(path))
    return digest.hexdigest()


def cached_units(arguments):
    """units_of, kept in a file. Runs in a process of its own."""
    run, program, kept = arguments
    if kept.exists():
        return json.loads(kept.read_text(encoding="ascii"))
    signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGCHLD])
    result = units_of(run, program)
    kept.write_text(json.dumps(result), encoding="ascii")
    return result


# -- Compiling what came out ----------------------------------------------------------------------


class Task:
    """One unit to compile, and the runs that write it."""

    def __init__(self, units, root, mode):
        self.units, self.root, self.mode = units, root, mode
        self.runs = []


def tasks_of(runs, results):
    """One task for each different unit among different others."""
    tasks = {}
    for run, (mode, units, own) in zip(runs, results):
        for root in ada.roots({name: units[name] for name in own}):
            needed = ada.with_needed(units, root)
            key = (mode, root, tuple(sorted(needed.items())))
            tasks.setdefault(key, Task(needed, root, mode)).runs.append(run.name)
    return list(tasks.values())


def complaints_of(task, outcome):
    title = f"{task.runs[0]}: {task.root} ({task.mode})"
    if len(task.runs) > 1:
        title += f" and {len(task.runs) - 1} others"
    if outcome.met:
        title += ", beside " + ", ".join(sorted(outcome.met))
    return [f"{title}\n  {error}" for error in outcome.unknown]


def check(runs, program, cache, known):
    """The complaints, and a summary."""
    cache = pathlib.Path(cache).resolve()
    compiler = ada.Compiler(cache / "answers")
    outcomes = cache / "runs"
    outcomes.mkdir(exist_ok=True)
    program_digest = hashlib.sha256(pathlib.Path(program).read_bytes()).digest()
    kept = [outcomes / digest_of(run, program_digest) for run in runs]
    with concurrent.futures.ProcessPoolExecutor(JOBS) as pool:
        results = list(pool.map(cached_units, [(run, program, file)
                                               for run, file in zip(runs, kept)]))
    tasks = tasks_of(runs, results)
    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        ends = list(pool.map(lambda task: ada.examine(compiler, task.units, task.root, task.mode,
                                                      known), tasks))
    complaints = [text for task, end in zip(tasks, ends) for text in complaints_of(task, end)]
    met = collections.Counter(name for end in ends for name in end.met)
    complaints += [f"exceptions.py: {fault.name} explains no error any more"
                   for fault in known if fault.name not in met]
    complaints += filter(None, (fault.lost_template() for fault in known))
    _forget(cache / "answers", compiler.used)
    _forget(outcomes, {file.name for file in kept})
    units = sum(len(own) for _, _, own in results)
    clean = sum(not end.met and not end.unknown for end in ends)
    mended = sum(bool(end.met) and end.mended for end in ends)
    lines = [f"{units} units of {sum(bool(own) for _, _, own in results)} runs, "
             f"{len(tasks)} different compilations, {compiler.started} of them now",
             f"{clean} compile, {mended} compile when mended, "
             f"{len(tasks) - clean - mended} do not"]
    lines += [f"  {met[fault.name]:4} {fault.name}" for fault in known]
    return complaints, lines


def _forget(folder, used):
    """Removes what no run has asked for."""
    for path in folder.iterdir():
        if path.name not in used:
            path.unlink(missing_ok=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the translator")
    parser.add_argument("--cache", required=True, help="a folder that keeps the compiler's answers")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as top:
        runs = case_runs(ada.ROOT / "tests" / "cases") + example_runs(top, ada.ROOT / "examples")
        known = [fault for fault in exceptions.FAULTS if fault.in_cases]
        complaints, lines = check(runs, options.program, options.cache, known)
    print("\n".join(complaints + lines))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
