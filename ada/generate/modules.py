"""UIL modules that use every name of the vocabulary once, as input of the tests, and a program
that calls every creation function.

Their objects make no sense as user interfaces; the units that they give name everything that the
Ada packages have to have.
"""

from vocabulary import class_object

# A value for each type of argument, as the vocabulary writes the types.
VALUES = {
    "ANY": "1",
    "BOOLEAN_NUMBER": "true",
    "CLASS_REC_NAME": "class_rec_name('XmPushButton')",
    "COLOR": "color('red')",
    "COMPOUND_STRING": "compound_string('text')",
    "COMPOUND_STRING_TABLE": "string_table('one', 'two')",
    "FONT_TABLE": "font_table(font('fixed'))",
    "INTEGER_NUMBER": "1",
    "KEYSYM": "keysym('F1')",
    "PIXMAP": "icon('* ', ' *')",
    "SIMPLE_STRING": "'text'",
    "TRANSLATION_TABLE": "translation_table('<Key>F1: help()')",
    "WIDE_CHARACTER": "wide_character('text')",
    "WIDGET": "the_other",
}

# No value of any type is accepted for an argument that takes an identifier.
NEVER_SET = ("IDENTIFIER",)

BASE_CLASSES = ("Core", "Composite", "Constraint", "XmManager", "XmPrimitive", "XmGadget",
                "XmDialogShell", "XmMenuShell", "XmSash")

# One of each sort: the ends of the alphabet of names, digits, and pairs that only case tells apart.
KEYSYMS = ("a", "Z", "5", "space", "Return", "Tab", "BackSpace", "Escape", "F1", "F35", "Prior",
           "Page_Up", "KP_Enter", "Agrave", "agrave", "Capital_Agrave", "ETH", "c_h", "3270_Enter",
           "Greek_alpha", "Greek_ALPHA", "Cyrillic_yu", "dead_acute", "EuroSign")


def _module(name, note, body):
    return (f"! Made by ada/generate/generate.py; not to be changed by hand.\n"
            f"! {note}\n\n"
            f"module {name}\n    version = 1\n    names = case_sensitive\n\n{body}\nend module;\n")


def _lines(section, rows):
    return (f"        {section} {{\n" + "".join(f"            {row};\n" for row in rows) +
            "        };\n")


def _object(name, class_name, body="", gadget=""):
    return f"    {name} : {class_name}{gadget} {{\n{body}    }};\n"


def _root(children):
    return "object\n" + _object("root", "XmBulletinBoard", _lines("controls", children))


def every_class(vocabulary, gadgets):
    """Every class, every gadget, and every child that a class creates by itself."""
    objects, children = [], []

    def add(name, class_name, body="", gadget=""):
        objects.append(_object(name, class_name, body, gadget))
        children.append(f"{class_name} {name}")

    for name in vocabulary.classes:
        own = [child for child, parents in vocabulary.auto_children if name in parents]
        rows = [f"{child} {{ arguments {{ XmNwidth = 10; }}; }}" for child in own]
        add(f"an_{name}", name, _lines("controls", rows) if rows else "")
    for name in gadgets:
        add(f"one_{name}_gadget", name, gadget=" gadget")
        add(f"one_{name}_gadget_gadget", f"{name}Gadget", gadget=" gadget")
    return _module("every_class", "Every widget class.", _root(children) + "".join(objects))


def every_class_object(vocabulary, aliases):
    """Every class record name."""
    names = list(dict.fromkeys([*vocabulary.classes, *BASE_CLASSES, *aliases,
                                *(row[0] for row in vocabulary.odd_classes)]))
    rows = [f"XmNentryClass = class_rec_name('{name}')" for name in names
            if class_object(name, vocabulary.odd_classes)]
    body = "object\n" + _object("root", "XmRowColumn", _lines("arguments", rows))
    return _module("every_class_object", "Every class record name.", body)


def _argument_objects(arguments):
    """One object for the arguments of each type, so that a complaint shows the type."""
    by_type = {}
    for name, value_type in arguments:
        by_type.setdefault(value_type, []).append(name)
    objects, children = [], []
    for value_type, names in sorted(by_type.items()):
        rows = [f"{name} = {VALUES[value_type]}" for name in names]
        objects.append(_object(f"the_{value_type}", "XmLabel", _lines("arguments", rows)))
        children.append(f"XmLabel the_{value_type}")
    return children, objects


def every_argument(vocabulary):
    arguments = [row for row in vocabulary.arguments if row[1] not in NEVER_SET]
    children, objects = _argument_objects(arguments)
    children.append("XmLabel the_other")
    objects.append(_object("the_other", "XmLabel"))
    return _module("every_argument", "Every argument with a value of its type.",
                   _root(children) + "".join(objects))


def every_constant(vocabulary):
    rows = [f"XmNuserData = {name}" for name, _ in vocabulary.constants]
    body = "object\n" + _object("root", "XmLabel", _lines("arguments", rows))
    return _module("every_constant", "Every named constant.", body)


def every_reason(vocabulary):
    rows = [f"{name} = procedure done()" for name in vocabulary.reasons]
    body = ("procedure\n    done();\n\nobject\n" +
            _object("root", "XmBulletinBoard", _lines("callbacks", rows)))
    return _module("every_reason", "Every callback reason.", body)


def every_keysym():
    rows = [f"XmNmnemonic = keysym('{name}')" for name in KEYSYMS]
    body = "object\n" + _object("root", "XmLabel", _lines("arguments", rows))
    return _module("every_keysym", "Keysyms of every sort.", body)


CREATION_START = """\
--  Made by ada/generate/generate.py; not to be changed by hand.
--  Calls every creation function and prints the class of what it gives.

pragma Ada_2012;

with Ada.Text_IO;
with Interfaces.C.Strings;
with XlibR5;
with Xm1_2_2;
with XrmR5;
with XtR5;

procedure Every_Creation is

   --  The head of the record that a class is in C
   type Class_Record is record
      Superclass : XtR5.WidgetClass;
      Name       : Interfaces.C.Strings.chars_ptr;
   end record
     with Convention => C;

   function XtClass (Item : XtR5.Widget) return not null access Class_Record
     with Import, Convention => C, External_Name => "XtClass";

   procedure Report (Name : String; Item : XtR5.Widget) is
   begin
      Ada.Text_IO.Put_Line
        (Name & " " & XtR5.Name (Item) & " " &
         Interfaces.C.Strings.Value (XtClass (Item).Name));
   end Report;

   Argv     : XlibR5.StringList_Ptr := XlibR5.GetArguments;
   Context  : XtR5.AppContext;
   Options  : XrmR5.OptionDescList (1 .. 0);
   Fallback : XlibR5.StringList (1 .. 0);
   Args     : XtR5.ArgList (1 .. 0);
   Shell    : XtR5.Widget;
   Board    : XtR5.Widget;
   Menu     : XtR5.Widget;
begin
   XtR5.AppInitialize
     (Context, "Every_creation", Options, Argv, Fallback, Args, Shell);
   Board := Xm1_2_2.CreateBulletinBoard (Shell, "board", Args, 0);
   Menu := Xm1_2_2.CreatePulldownMenu (Board, "menu", Args, 0);
"""


def every_creation(calls):
    """A program that creates one widget by each function; some belong into menus."""
    text = CREATION_START
    for name in sorted(calls):
        parent = "Menu" if "Cascade" in name or "TearOff" in name else "Board"
        text += (f'   Report\n     ("{name}",\n'
                 f'      Xm1_2_2.{name} ({parent}, "it", Args, 0));\n')
    return text + "end Every_Creation;\n"


def all_modules(vocabulary, gadgets, aliases, calls):
    """The text of each module, and of the program, by its file name."""
    return {
        "every_creation.adb": every_creation(calls),
        "every_class.uil": every_class(vocabulary, gadgets),
        "every_class_object.uil": every_class_object(vocabulary, aliases),
        "every_argument.uil": every_argument(vocabulary),
        "every_constant.uil": every_constant(vocabulary),
        "every_reason.uil": every_reason(vocabulary),
        "every_keysym.uil": every_keysym(),
    }
