"""What the toolkit's C headers say.

The headers are read by the C compiler: once as preprocessed text with its macros, which tells what
is declared at all, and once by a small program that prints the values of all names asked for.
"""

import os
import re
import subprocess
import tempfile

# The private ones declare class objects that the vocabulary can name.
INCLUDES = (
    "Xm/XmAll.h",
    "Xm/TearOffBP.h",
    "Xm/ExtObjectP.h",
    "Xm/DropSMgrP.h",
    "Xm/SashP.h",
    "X11/IntrinsicP.h",
    "X11/ShellP.h",
    "X11/VendorP.h",
)
KEYSYMS = "X11/keysymdef.h"


def _compiler():
    return os.environ.get("CC", "cc").split()


def _preprocess(text):
    run = subprocess.run([*_compiler(), "-E", "-P", "-dD", "-x", "c", "-"], input=text,
                         capture_output=True, text=True, check=True)
    return run.stdout


def _includes():
    return "".join(f"#include <{name}>\n" for name in INCLUDES)


def _run_program(text):
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "values.c")
        program = os.path.join(folder, "values")
        with open(source, "w", encoding="ascii") as file:
            file.write(text)
        subprocess.run([*_compiler(), "-o", program, source, "-lXm", "-lXt", "-lX11"], check=True)
        run = subprocess.run([program], capture_output=True, text=True, check=True)
    return run.stdout.splitlines()


class Headers:
    """The names that the headers declare."""

    def __init__(self):
        self.text = _preprocess(_includes())
        self.names = set(re.findall(r"[A-Za-z_]\w*", self.text))
        self.class_objects = sorted(set(re.findall(r"extern\s+WidgetClass\s+(\w+)\s*;", self.text)))

    def has_function(self, name):
        return re.search(r"\b%s\s*\(" % name, self.text) is not None

    def values(self, strings, integers):
        """The values of the names that there are: two dictionaries.  It links the class objects,
        too, so that one that the library lacks does not go unseen."""
        strings = [name for name in strings if name in self.names]
        integers = [name for name in integers if name in self.names]
        lines = [f'  printf("%s\\n", {name});\n' for name in strings]
        lines += [f'  printf("%ld\\n", (long)({name}));\n' for name in integers]
        lines += [f"  if ({name} == NULL) return 1;\n" for name in self.class_objects]
        printed = _run_program("#include <stdio.h>\n" + _includes() + "int main(void) {\n" +
                               "".join(lines) + "  return 0;\n}\n")
        if len(printed) != len(strings) + len(integers):
            raise ValueError("unexpected output of the program that prints values")
        split = len(strings)
        return (dict(zip(strings, printed[:split])),
                dict(zip(integers, map(int, printed[split:]))))


def read_keysyms():
    """Each keysym of X11/keysymdef.h with its value, in the order of the file, all groups of it."""
    plain = _preprocess(f"#include <{KEYSYMS}>\n")
    path = subprocess.run([*_compiler(), "-E", "-x", "c", "-"], input=f"#include <{KEYSYMS}>\n",
                          capture_output=True, text=True, check=True).stdout
    file = re.search(r'"([^"]+/keysymdef\.h)"', path).group(1)
    with open(file, encoding="utf-8") as source:
        groups = re.findall(r"^#ifdef (XKB?_\w+)$", source.read(), re.MULTILINE)
    text = _preprocess("".join(f"#define {group} 1\n" for group in groups) +
                       f"#include <{KEYSYMS}>\n") + plain
    keysyms = {}
    for name, value in re.findall(r"^#define XK_(\w+)\s+(0x[0-9a-fA-F]+|XK_\w+)", text,
                                  re.MULTILINE):
        keysyms[name] = keysyms[value[3:]] if value.startswith("XK_") else int(value, 16)
    if len(keysyms) < 2000:
        raise ValueError(f"only {len(keysyms)} keysyms")
    return keysyms
