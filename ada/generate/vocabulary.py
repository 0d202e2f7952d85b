"""The translator's own tables, read from its sources.

What the generated units can name is decided by the tables of Vocabulary.cpp, WidgetUtils.cpp and
AdaClassRecName.cpp.  Each row there stands on one line (a call of the table's maker function, or a
pair in braces), so patterns are enough to read it; a table that has lost its shape yields too few
rows, which is an error here.
"""

import re


def _text(sources, name):
    return (sources / name).read_text(encoding="ascii")


def _rows(text, maker, least):
    rows = re.findall(r'^ +%s\("(\w+)"' % maker, text, re.MULTILINE)
    if len(rows) < least:
        raise ValueError(f"only {len(rows)} rows of {maker}")
    return rows


def _table(text, name):
    """The pairs of a table of two columns; what is null in the source is None."""
    found = re.search(r"%s\[\] = \{\n(.*?)\n\};" % name, text, re.DOTALL)
    pairs = re.findall(r'\{"(\w+)", (?:nullptr|"(\w+)")', found.group(1))
    return {key: value or None for key, value in pairs}


def _auto_children(text):
    """The child's UIL name and the names of the groups of classes that create it."""
    rows = re.findall(r'AutoChild\("(\w+)", "\w+", ([\w, ]+)\)', text)
    array = r"constexpr auto (k\w+)\s*=\s*std::to_array<const char \*>\(\{(.*?)\}\)"
    groups = dict(re.findall(array, text, re.DOTALL))
    return [(child, [parent for group in names.split(", ")
                     for parent in re.findall(r'"(\w+)"', groups[group])])
            for child, names in rows]


class Vocabulary:
    """All rows that can reach the text of a generated unit, in the order of the sources."""

    def __init__(self, sources):
        text = _text(sources, "Vocabulary.cpp")
        utils = _text(sources, "WidgetUtils.cpp")
        self.classes = _rows(text, "Class", 58)
        self.arguments = re.findall(r'^ +Argument\("(\w+)", (\w+)\)', text, re.MULTILINE)
        if len(self.arguments) < 306:
            raise ValueError(f"only {len(self.arguments)} arguments")
        self.reasons = _rows(text, "Reason", 45)
        self.constants = [(name, int(value)) for name, value in
                          re.findall(r'^ +Integer\("(\w+)", (\d+)\)', text, re.MULTILINE)]
        if len(self.constants) < 128:
            raise ValueError(f"only {len(self.constants)} constants")
        self.auto_children = _auto_children(text)
        self.child_functions = _table(utils, "get_child_fn_name")
        self.child_constants = _table(utils, "get_child_arg_name")
        self.odd_classes = re.findall(r'\{"(\w+)", "(\w+)", "(\w+)\."\}',
                                      _text(sources, "AdaClassRecName.cpp"))


def create_function(name, gadget=""):
    """Which function a unit calls for an object of that class: its first two letters are dropped,
    whatever they are, so that the names of the shells come out maimed."""
    return "Create" + name[2:] + gadget


def class_object(name, odd_classes):
    """The package and the object that a unit names for a class record name."""
    for uil_name, ada_object, package in odd_classes:
        if name.lower() == uil_name:
            return package, ada_object
    ending = "class" if name.lower().endswith("gadget") else "widgetclass"
    return "xm1_2_2", (name[2:] if name[:2].lower() == "xm" else name) + ending
