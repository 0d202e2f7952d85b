#!/usr/bin/env python3
"""Writes the Ada packages Xm1_2_2, Xmdef and XK, and the test modules that use every name of them.

  generate.py            writes the files
  generate.py --check    writes nothing; says which files are not what would be written (status 1)

The names come from the translator's tables (vocabulary.py), everything that is known about them
from the toolkit's headers (headers.py).  A name that the headers lack is written all the same,
with its documented text, and listed in a comment of its package.
"""

import argparse
import difflib
import pathlib
import sys

sys.dont_write_bytecode = True  # the source tree stays clean

import modules
from headers import Headers, read_keysyms
from vocabulary import Vocabulary, class_object, create_function

ROOT = pathlib.Path(__file__).resolve().parents[2]

HEAD = """\
--  Made by ada/generate/generate.py; not to be changed by hand.
"""

# Ada 2012 by pragma, so that units that are compiled as Ada 83 can use the package.
PRAGMA = "pragma Ada_2012;\n\n"

MOST_LINES = 40  # of a difference that --check shows

RESERVED = set("""abort abs abstract accept access aliased all and array at begin body case constant
declare delay delta digits do else elsif end entry exception exit for function generic goto if in
interface is limited loop mod new not null of or others out overriding package pragma private
procedure protected raise range record rem renames requeue return reverse select separate some
subtype synchronized tagged task terminate then type until use when while with xor""".split())

GADGETS = ("XmArrowButton", "XmCascadeButton", "XmLabel", "XmPushButton", "XmSeparator",
           "XmToggleButton")

# Classes that C has no creation function for: a shell is created as a popup of any widget, the
# tear-off button as an ordinary child.
SHELL_OBJECTS = {
    "ApplicationShell": "applicationShellWidgetClass",
    "OverrideShell": "overrideShellWidgetClass",
    "Shell": "shellWidgetClass",
    "TopLevelShell": "topLevelShellWidgetClass",
    "TransientShell": "transientShellWidgetClass",
    "VendorShell": "vendorShellWidgetClass",
    "WMShell": "wmShellWidgetClass",
}
CHILD_OBJECTS = {"XmTearOffButton": "xmTearOffButtonWidgetClass"}

# What a class without a class object of its own is made of.
CLASS_ALIASES = {
    "XmBulletinBoardDialog": "xmBulletinBoardWidgetClass",
    "XmErrorDialog": "xmMessageBoxWidgetClass",
    "XmFileSelectionDialog": "xmFileSelectionBoxWidgetClass",
    "XmFormDialog": "xmFormWidgetClass",
    "XmInformationDialog": "xmMessageBoxWidgetClass",
    "XmMenuBar": "xmRowColumnWidgetClass",
    "XmMessageDialog": "xmMessageBoxWidgetClass",
    "XmOptionMenu": "xmRowColumnWidgetClass",
    "XmPopupMenu": "xmRowColumnWidgetClass",
    "XmPromptDialog": "xmSelectionBoxWidgetClass",
    "XmPulldownMenu": "xmRowColumnWidgetClass",
    "XmQuestionDialog": "xmMessageBoxWidgetClass",
    "XmRadioBox": "xmRowColumnWidgetClass",
    "XmScrolledList": "xmListWidgetClass",
    "XmScrolledText": "xmTextWidgetClass",
    "XmSelectionDialog": "xmSelectionBoxWidgetClass",
    "XmTemplateDialog": "xmMessageBoxWidgetClass",
    "XmWarningDialog": "xmMessageBoxWidgetClass",
    "XmWorkArea": "xmRowColumnWidgetClass",
    "XmWorkingDialog": "xmMessageBoxWidgetClass",
    "RectObj": "rectObjClass",
}

TYPES = """\
   --  Types, strings, font lists and pixmaps, which are those of package Xm

   subtype XmString is Xm.XmString;
   subtype XmStringList is Xm.XmStringList;
   subtype FontList is Xm.FontList;
   subtype FontListEntry is Xm.FontListEntry;
   subtype AnyCallbackStruct is Xm.AnyCallbackStruct;

   function StringSegmentCreate
     (Text      : Standard.String;
      Tag       : Standard.String;
      Direction : Integer;
      Separator : Boolean) return XmString
     renames Xm.StringSegmentCreate;
   function StringCopy (Text : XmString) return XmString
     renames Xm.StringCopy;
   function StringConcat (Left, Right : XmString) return XmString
     renames Xm.StringConcat;
   procedure StringFree (Text : XmString)
     renames Xm.StringFree;

   function FontListEntryCreate
     (Tag  : Standard.String;
      Kind : Xm.FontType;
      Font : XtR5.Pointer) return FontListEntry
     renames Xm.FontListEntryCreate;
   function FontListAppendEntry
     (List : FontList;
      Item : FontListEntry) return FontList
     renames Xm.FontListAppendEntry;

   function GetPixmapByDepth
     (Screen     : XlibR5.Screen_Ptr;
      Name       : Standard.String;
      Foreground : XlibR5.Pixel;
      Background : XlibR5.Pixel;
      Depth      : Integer) return XlibR5.Pixmap
     renames Xm.GetPixmapByDepth;
"""

BODY_START = """\
with Interfaces.C;
with System;

package body Xm1_2_2 is

   --  The signature that the toolkit's creation functions share

   type Creator is access function
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Convention => C;

   function Created
     (By     : Creator;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is
      Text : constant Standard.String := XlibR5.C_Text (Name);
   begin
      return By (Parent, Text'Address, Args'Address, Interfaces.C.unsigned (Nargs));
   end Created;

   function Child_Created
     (Class  : XtR5.WidgetClass;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (XtR5.CreateWidget (Name, Class, Parent, Args, Nargs));

   --  A shell is no child in the toolkit's sense: any widget can have it as a popup

   function Shell_Created
     (Class  : XtR5.WidgetClass;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (XtR5.CreatePopupShell
         (Name, Class, Parent, Args (Args'First .. Args'First + Nargs - 1)));
"""

CREATE_PARAMETERS = """\
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget"""


def comment(text):
    """The text as Ada comment lines of the package's indentation."""
    words, lines = text.split(), []
    for word in words:
        if lines and len(lines[-1]) + len(word) < 78:
            lines[-1] += " " + word
        else:
            lines.append("   --  " + word)
    return "".join(line + "\n" for line in lines)


def ada_constant(name):
    """The name of a C constant in Ada: without "Xm", unless that leaves no identifier."""
    bare = name[2:]
    legal = bare[0].isalpha() and bare.lower() not in RESERVED
    return bare if legal else name


def ada_class_name(c_name):
    bare = c_name[2:] if c_name.startswith("xm") else c_name
    return bare[0].upper() + bare[1:]


def create_calls(vocabulary, headers):
    """Each function that a unit can call to create a widget, with what does it: a function of the
    toolkit, or one of the body's own and the class object that it needs."""
    calls = {}
    for name in vocabulary.classes:
        c_name = "XmCreate" + name[2:]
        if name in SHELL_OBJECTS:
            calls[create_function(name)] = ("Shell_Created", SHELL_OBJECTS[name])
        elif name in CHILD_OBJECTS:
            calls[create_function(name)] = ("Child_Created", CHILD_OBJECTS[name])
        elif headers.has_function(c_name):
            calls[create_function(name)] = (c_name, None)
        else:
            raise ValueError(f"nothing creates {name}")
    for name in GADGETS:
        c_name = f"XmCreate{name[2:]}Gadget"
        calls[create_function(name, "Gadget")] = (c_name, None)
        calls[create_function(name + "Gadget", "Gadget")] = (c_name, None)
    return calls


def class_objects(vocabulary, headers):
    """Each class object that a unit can name in Xm1_2_2, with its C name."""
    objects = {}
    for c_name in headers.class_objects:
        objects[ada_class_name(c_name)] = c_name
    known = {name.lower() for name in objects}
    aliases = {**SHELL_OBJECTS, **CLASS_ALIASES}
    for name in [*vocabulary.classes, *CLASS_ALIASES]:
        package, ada_name = class_object(name, vocabulary.odd_classes)
        if package == "xm1_2_2" and ada_name.lower() not in known:
            objects[ada_name[0].upper() + ada_name[1:]] = aliases[name]
            known.add(ada_name.lower())
    missing = [ada_name for _, ada_name, package in vocabulary.odd_classes
               if package == "xm1_2_2" and ada_name not in known]
    if missing:
        raise ValueError(f"no class objects {missing}")
    return objects


class Toolkit:
    """All that the packages hold, with the values of the headers."""

    def __init__(self):
        self.vocabulary = Vocabulary(ROOT / "src")
        self.headers = Headers()
        vocabulary = self.vocabulary
        self.resources = [name for name, _ in vocabulary.arguments]
        self.reasons = [name for name in vocabulary.reasons if name.startswith("XmN")]
        self.children = sorted({name for name in vocabulary.child_constants.values() if name})
        self.callback_reasons = sorted(
            name for name in self.headers.names if name.startswith("XmCR_"))
        self.enumerated = [name for name, _ in vocabulary.constants]
        self.strings, self.integers = self.headers.values(
            [*self.resources, *self.reasons, "XmFONTLIST_DEFAULT_TAG"],
            [*self.enumerated, *self.children, *self.callback_reasons])


# -- Xm1_2_2 --------------------------------------------------------------------------------------


def constant_lines(toolkit):
    """The named numbers: what the vocabulary knows, the children's names and the reasons."""
    written = dict(toolkit.vocabulary.constants)
    names = sorted({*toolkit.enumerated, *toolkit.children, *toolkit.callback_reasons})
    absent = [name for name in names if name not in toolkit.integers]
    differing = [name for name in toolkit.enumerated
                 if toolkit.integers.get(name, written[name]) != written[name]]
    lines = ["   --  Constants, with the values of the headers\n"]
    if differing:
        lines.append(comment(
            "The translator writes other values for: " +
            ", ".join(f"{name[2:]} ({written[name]})" for name in differing)))
    if absent:
        lines.append(comment("Unknown to the headers: " + ", ".join(absent)))
    lines.append("\n")
    for name in names:
        if name in toolkit.integers or name in written:
            value = toolkit.integers.get(name, written.get(name))
            lines.append(f"   {ada_constant(name)} : constant := {value};\n")
    return lines


def class_lines(toolkit):
    lines = ["   --  Class objects, also of classes that share one\n"]
    for name, c_name in sorted(class_objects(toolkit.vocabulary, toolkit.headers).items()):
        lines.append(f"   {name} : constant XtR5.WidgetClass\n"
                     f"     with Import, Convention => C,\n"
                     f'          External_Name => "{c_name}";\n')
    return lines


def child_functions(toolkit):
    return sorted({name for name in toolkit.vocabulary.child_functions.values() if name})


def child_lines(toolkit):
    lines = ["   --  Children that widgets create by themselves\n\n"]
    for name in child_functions(toolkit):
        lines.append(f"   function {name[2:]}\n"
                     f"     (Parent : XtR5.Widget;\n"
                     f"      Child  : Integer) return XtR5.Widget;\n")
    return lines


def create_lines(calls):
    return ["   --  Creation of widgets, under all names that the units know\n\n"] + [
        f"   function {name}\n{CREATE_PARAMETERS};\n" for name in sorted(calls)]


def check_identifiers(spec):
    """No identifier is declared twice."""
    seen = {}
    for line in spec.splitlines():
        words = line.split()
        name = None
        if len(words) > 2 and words[1] == ":":
            name = words[0]
        elif len(words) > 1 and words[0] in ("function", "procedure", "type", "subtype"):
            name = words[1]
        if name is None or not line.startswith("   ") or line.startswith("    "):
            continue
        if seen.setdefault(name.lower(), line) is not line:
            raise ValueError(f"declared twice: {line}")


def xm_spec(toolkit, calls):
    parts = [HEAD, comment("The toolkit's functions, class objects and constants that the "
                           "translator's units name.").replace("   --", "--"),
             "\n", PRAGMA, "with XlibR5;\nwith Xm;\nwith XtR5;\n\n",
             "package Xm1_2_2 is\n\n", TYPES, "\n",
             *constant_lines(toolkit), "\n", *class_lines(toolkit), "\n",
             *child_lines(toolkit), "\n", *create_lines(calls), "\nend Xm1_2_2;\n"]
    spec = "".join(parts)
    check_identifiers(spec)
    return spec


def xm_child_body(name):
    return (f"   function {name[2:]}\n"
            f"     (Parent : XtR5.Widget;\n"
            f"      Child  : Integer) return XtR5.Widget\n"
            f"   is\n"
            f"      function C_Get\n"
            f"        (Parent : XtR5.Widget;\n"
            f"         Child  : Interfaces.C.unsigned_char) return XtR5.Widget\n"
            f'        with Import, Convention => C, External_Name => "{name}";\n'
            f"   begin\n"
            f"      return C_Get (Parent, Interfaces.C.unsigned_char (Child));\n"
            f"   end {name[2:]};\n\n")


def xm_create_body(name, function, class_name):
    if class_name is None:
        call = f"Created ({function}'Access"
    else:
        call = f"{function} ({ada_class_name(class_name)}"
    return (f"   function {name}\n{CREATE_PARAMETERS}\n"
            f"   is ({call}, Parent, Name, Args, Nargs));\n\n")


def xm_body(toolkit, calls):
    imports = sorted({function for function, class_name in calls.values() if class_name is None})
    parts = [HEAD, "\n", PRAGMA, BODY_START, "\n"]
    for name in imports:
        parts.append(f"   function {name}\n"
                     f"     (Parent : XtR5.Widget;\n"
                     f"      Name   : System.Address;\n"
                     f"      Args   : System.Address;\n"
                     f"      Nargs  : Interfaces.C.unsigned) return XtR5.Widget\n"
                     f'     with Import, Convention => C, External_Name => "{name}";\n\n')
    parts += ["   --  Children that widgets create by themselves\n\n"]
    parts += [xm_child_body(name) for name in child_functions(toolkit)]
    parts.append("   --  Creation of widgets\n\n")
    parts += [xm_create_body(name, *calls[name]) for name in sorted(calls)]
    parts.append("end Xm1_2_2;\n")
    return "".join(parts)


# -- Xmdef ----------------------------------------------------------------------------------------


def xmdef_spec(toolkit):
    resources = sorted({*toolkit.resources, *toolkit.reasons})
    absent = [name for name in resources if name not in toolkit.strings]
    parts = [HEAD, "--  The names of the toolkit's resources and callback reasons.\n\n", PRAGMA,
             "package Xmdef is\n\n   subtype ArgName is String;\n\n"]
    if absent:
        parts.append(comment("Unknown to the headers, hence by their documented text: " +
                             ", ".join(absent)) + "\n")
    default_tag = toolkit.strings["XmFONTLIST_DEFAULT_TAG"]
    parts.append(f"   FONTLIST_DEFAULT_TAG : constant String :=\n"
                 f'     "{default_tag}" & ASCII.NUL;\n\n')
    for name in resources:
        parts.append(f"   {name[2:]} : constant ArgName :=\n"
                     f'     "{toolkit.strings.get(name, name[3:])}" & ASCII.NUL;\n')
    parts.append("\nend Xmdef;\n")
    spec = "".join(parts)
    check_identifiers(spec)
    return spec


# -- XK -------------------------------------------------------------------------------------------


def keysym_constants(keysyms):
    """Ada name and value of each keysym.  Of names that differ by case only, one can have the
    plain name: the one with most small letters, which is the key as it is without Shift.  The
    others get theirs from the value."""
    groups = {}
    for name in keysyms:
        groups.setdefault(name.lower(), []).append(name)
    constants = []
    for group in groups.values():
        ranked = sorted(group, key=lambda name: sum(map(str.isupper, name)))
        constants.append((f"K_{ranked[0]}", keysyms[ranked[0]], ranked[0]))
        others = {keysyms[name]: name for name in reversed(ranked[1:])
                  if keysyms[name] != keysyms[ranked[0]]}
        for value, name in sorted(others.items()):
            prefix = "K_Capital_" if len(others) == 1 else f"K_Capital_{value:X}_"
            constants.append((prefix + name, value, name))
    return constants


def xk_spec(keysyms):
    parts = [HEAD, "--  The keysyms of X11/keysymdef.h, all groups.\n", "\n", PRAGMA,
             "package XK is\n\n",
             comment("Ada does not tell K_A from K_a.  Of keysyms whose names differ by case only "
                     "the plain name means the one in small letters; the other has Capital_ before "
                     "its name (and its value, if there are more than two)."), "\n"]
    for ada_name, value, _ in keysym_constants(keysyms):
        parts.append(f"   {ada_name} : constant := 16#{value:04X}#;\n")
    parts.append("\nend XK;\n")
    spec = "".join(parts)
    check_identifiers(spec)
    return spec


# -- Files ----------------------------------------------------------------------------------------


def all_files():
    """The text of each file by its path."""
    toolkit = Toolkit()
    calls = create_calls(toolkit.vocabulary, toolkit.headers)
    keysyms = read_keysyms()
    files = {
        "ada/xm1_2_2.ads": xm_spec(toolkit, calls),
        "ada/xm1_2_2.adb": xm_body(toolkit, calls),
        "ada/xmdef.ads": xmdef_spec(toolkit),
        "ada/xk.ads": xk_spec(keysyms),
    }
    tests = modules.all_modules(toolkit.vocabulary, GADGETS, CLASS_ALIASES, calls)
    files.update((f"tests/ada/{name}", text) for name, text in tests.items())
    return files


def differs(name, text):
    """Says how a file differs from what it should be; whether it does."""
    path = ROOT / name
    found = path.read_text(encoding="ascii") if path.is_file() else ""
    lines = list(difflib.unified_diff(found.splitlines(), text.splitlines(), name,
                                      f"{name} as generated", lineterm="", n=1))
    print("\n".join(lines[:MOST_LINES]), end="\n" if lines else "")
    if len(lines) > MOST_LINES:
        print(f"({len(lines) - MOST_LINES} lines more)")
    return bool(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare instead of writing")
    options = parser.parse_args()
    files = all_files()
    if options.check:
        return 1 if any([differs(name, text) for name, text in files.items()]) else 0
    for name, text in files.items():
        (ROOT / name).write_text(text, encoding="ascii")
    return 0


if __name__ == "__main__":
    sys.exit(main())
