#!/usr/bin/env python3
"""Compiles the units of the modules beside this file against the packages of ada/.

Every name that a generated unit can take from the Ada packages is used by one of the modules, so
each has to be there and to fit.  The generated text has faults that its users know and correct
before they compile; the same corrections are made here, and a correction that finds nothing to
correct is a failure, too.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
KIT = HERE.parents[1] / "ada"


def _widgets_of_post(match):
    return re.sub(r"\bself\b", "widgets( index )", match.group(0))


# What is wrong, how it is found, and what is put there.
CORRECTIONS = {
    "no context clause for XK": (r"\A(?=(?s:.*)\bXK\.K_)", "with XK;\n"),
    "no variable self in a post procedure":
        (r"(?s)  procedure kivu_post_(\w+)\([^;)]*;[^;)]*;[^;)]*\) is\n(?=(?:(?!end kivu_post).)*"
         r"\bself\b).*?  end kivu_post_\1;\n", _widgets_of_post),
    "a parenthesis that nothing opens": (r"& ASCII\.LF \);", "& ASCII.LF;"),
}


def correct(folder):
    """Corrects all units of the folder; the names of the corrections made."""
    made = set()
    for path in folder.glob("*.ad[bs]"):
        text = path.read_text(encoding="ascii")
        for name, (pattern, replacement) in CORRECTIONS.items():
            text, count = re.subn(pattern, replacement, text)
            if count > 0:
                made.add(name)
        path.write_text(text, encoding="ascii")
    return made


def run(command, folder):
    """The output of a failed command, or nothing."""
    done = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
    return "" if done.returncode == 0 else f"{command}:\n{done.stdout}{done.stderr}"


def check_module(program, module):
    """The complaints about one module and the corrections that it needed."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        complaint = run([program, "-gnat", "-stub", "-wrap", "-main", str(module)], folder)
        if complaint:
            return complaint, set()
        made = correct(folder)
        units = sorted(folder.glob("*.adb")) or sorted(folder.glob("*.ads"))
        return "".join(run(["gcc", "-c", "-gnatc", f"-I{KIT}", unit.name], folder)
                       for unit in units), made


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the translator")
    program = str(pathlib.Path(parser.parse_args().program).resolve())
    modules = sorted(HERE.glob("*.uil"))
    complaints, made = [], set()
    for module in modules:
        complaint, corrections = check_module(program, module)
        made |= corrections
        if complaint:
            complaints.append(f"{module.name}: {complaint}")
    complaints += [f"not found: {name}" for name in CORRECTIONS if name not in made]
    if not modules:
        complaints.append("no modules")
    print("\n".join(complaints) or f"{len(modules)} modules compiled")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
