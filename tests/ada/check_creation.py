#!/usr/bin/env python3
"""Runs every creation function of package Xm1_2_2 on an X server without a screen.

The program every_creation prints the class of each widget; here stands which class it has to be.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
KIT = HERE.parents[1] / "ada"
FUNCTIONS = 64
LIMIT = 120  # seconds

# The class of what is created where the function's name does not say it.
CLASSES = {
    "BulletinBoardDialog": "XmBulletinBoard",
    "ErrorDialog": "XmMessageBox",
    "FileSelectionDialog": "XmFileSelectionBox",
    "FormDialog": "XmForm",
    "InformationDialog": "XmMessageBox",
    "MenuBar": "XmRowColumn",
    "MessageDialog": "XmMessageBox",
    "OptionMenu": "XmRowColumn",
    "PopupMenu": "XmRowColumn",
    "PromptDialog": "XmSelectionBox",
    "PulldownMenu": "XmRowColumn",
    "QuestionDialog": "XmMessageBox",
    "RadioBox": "XmRowColumn",
    "ScrolledList": "XmList",
    "ScrolledText": "XmText",
    "SelectionDialog": "XmSelectionBox",
    "TemplateDialog": "XmMessageBox",
    "WarningDialog": "XmMessageBox",
    "WorkArea": "XmRowColumn",
    "WorkingDialog": "XmMessageBox",
    # The shells, whose names lack their first two letters.
    "Shell": "WMShell",
    "ansientShell": "TransientShell",
    "ell": "Shell",
    "errideShell": "OverrideShell",
    "ndorShell": "VendorShell",
    "pLevelShell": "TopLevelShell",
    "plicationShell": "ApplicationShell",
}


def expected_line(function):
    thing = function.removeprefix("Create")
    return f"{function} it {CLASSES.get(thing, 'Xm' + thing.replace('GadgetGadget', 'Gadget'))}"


def build(folder):
    subprocess.run(["gnatmake", "-q", f"-I{KIT}", str(HERE / "every_creation.adb")], cwd=folder,
                   check=True, timeout=LIMIT)
    return folder / "every_creation"


def run_with_server(program):
    """The program's lines.  The server picks a free number and writes it when it is ready."""
    with subprocess.Popen(["Xvfb", "-displayfd", "1", "-nolisten", "tcp"], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True) as server:
        try:
            number = server.stdout.readline().strip()
            run = subprocess.run([program], env={**os.environ, "DISPLAY": f":{number}"},
                                 stdout=subprocess.PIPE, text=True, check=True, timeout=LIMIT)
        finally:
            server.terminate()
    return run.stdout.splitlines()


def main():
    with tempfile.TemporaryDirectory() as folder:
        lines = run_with_server(build(pathlib.Path(folder)))
    wrong = [line for line in lines if line != expected_line(line.split()[0])]
    for line in wrong:
        print(f"{line}, expected {expected_line(line.split()[0])}")
    print(f"{len(lines)} functions")
    return 1 if wrong or len(lines) != FUNCTIONS else 0


if __name__ == "__main__":
    sys.exit(main())
