"""What GNAT refuses in generated text.

The text is fixed: it is what users of the translator correct, or avoid, as doc/limits.md says. Each
entry is one fault. The tests fail when a unit has an error that no entry explains, and when an
entry explains none any more.
"""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = ROOT / "src"
KIT = ROOT / "ada"


class Fault:
    """One entry.

    name      what it is called in messages and below tests/ada/limits/
    message   the compiler's message, a pattern for the whole of it
    line      a pattern for something in the line at fault
    template  the source file and the opening words of the template that cause it
    mend      what makes it right, a function from text to text; None where only the user can
    in_cases  whether a case or an example has it; otherwise only limits/ does
    """

    def __init__(self, name, message, template, line="", mend=None, in_cases=True):
        self.name = name
        self.message = re.compile(message)
        self.line = re.compile(line, re.I)
        self.template = template
        self.mend = mend
        self.in_cases = in_cases

    def explains(self, error):
        return bool(self.message.fullmatch(error.message) and self.line.search(error.text))

    def lost_template(self):
        """A complaint when the template no longer stands where the entry says."""
        file, words = self.template
        if words in (SOURCES / file).read_text(encoding="utf-8"):
            return ""
        return f"{self.name}: no template {words!r} in src/{file}"


def _replace(pattern, replacement):
    return lambda text: re.sub(pattern, replacement, text)


# A creation or post procedure, whole.
_POST = re.compile(r"(?s)  procedure (kivu_post_\w*)\([^)]*\) is\n.*?  end \1;\n")


def _self_in_post(text):
    return _POST.sub(lambda match: re.sub(r"\bself\b", "widgets( index )", match.group()), text)


def _without_missing(text):
    """Leaves out the calls of subprograms that the unit lacks."""
    written = set(re.findall(r"(?:procedure|function) (kivu_\w+)\(", text))
    return re.sub(r"(?m)^( *)(?:widgets := )?(kivu_(?:post|create)_\w+)\(.*\);\n",
                  lambda call: call.group() if call.group(2) in written
                  else call.group(1) + "null;\n", text)


def _kit_names(package):
    text = (KIT / package).read_text(encoding="ascii").lower()
    return frozenset(re.findall(r"^\s+(\w+)\s*:", text, re.M))


def _known_to(package, pattern, replacement):
    """Replaces the names after a package's name that the package does not have."""
    names = _kit_names(package)
    return lambda text: re.sub(pattern, lambda match: match.group()
                               if match.group(1).lower() in names else replacement, text)


def _legal_name(match):
    """A legal name, another for each illegal one; texts stay as they are."""
    word = match.group()
    if word[0] in "\"'":
        return word
    word = word.replace("__", "_u_").replace("__", "_u_")
    return ("u" if word[0] == "_" else "") + word + ("u" if word[-1] == "_" else "")


def _legal_names(text):
    return re.sub(r"\"(?:[^\"\n]|\"\")*\"|'.'|\w+", _legal_name, text)


def _addresses_in_list(text):
    """The table of addresses gets the type whose elements are addresses."""
    return re.sub(r"(asciz_string_table_\d+ : constant |client_data : in )xlibr5\.stringlist",
                  r"\1xm1_2_2.xmstringlist", text)


def _end_if(text):
    return re.sub(r"(    else\n      return chr;\n)(  end uppercase_char;)",
                  r"\1    end if;\n\2", text)


FAULTS = (
    Fault("single-float", '"xlib5" is undefined.*', ("AdaValues.cpp", "xlib5.real"),
          line=r"\bxlib5\.real\b", mend=_replace(r"(?i)\bxlib5\.real\b", "float")),
    Fault("keysym-name", '"XK" is undefined.*', ("AdaKeysym.cpp", ":= XK.K_%s;"),
          line=r"\bXK\.K_", mend=_replace(r"\A(?=(?s:.*)\bXK\.K_)", "with XK;\n")),
    Fault("asciz-table", 'expected type "String_Ptr" defined at xlibr5.ads:.*',
          ("AdaAscizStringTable.cpp", "%d => string_%d_%d( string_%d_%d'first )'address,"), line=r"=> (string_\d|xtr5\.xtnull)",
          mend=_addresses_in_list),
    Fault("translation-table", 'extra "\\)" ignored', ("AdaTranslationTable.cpp", '? ");" : "&"'),
          line=r"& ASCII\.LF \);$", mend=_replace(r"& ASCII\.LF \);", "& ASCII.LF;")),
    Fault("case-insensitive", 'missing "end if;" for "if" at line \\d+',
          ("AdaWidgets.cpp", "  function uppercase_char"), line=r"end uppercase_char;",
          mend=_end_if),
    Fault("automatic-child", '"self" is undefined.*',
          ("AdaWidgetProcs.cpp", "Xm1_2_2.%s( self, Xm1_2_2.%s );"),
          line=r"\bself\b", mend=_self_in_post),
    Fault("automatic-child-controls", '"kivu_(create|post)_.*" is undefined.*',
          ("AdaWidgetProcs.cpp", '"    kivu_post_%s( widgets( index ), widgets, index + %d );'),
          mend=_without_missing),
    Fault("names-with-underscores",
          "two consecutive underlines not permitted|identifier cannot (start|end) with underline",
          ("WidgetUtils.cpp", "std::string LegalName("), mend=_legal_names),
    # Everything after such a name is read as something else.
    Fault("names-that-are-empty",
          'reserved word ".*" cannot be used as identifier|missing ".*|selector expected|'
          'no "record" for this "end record"',
          ("WidgetUtils.cpp", "std::string LegalName("),
          line=r"package  is|renames u?_uil|^ *: XtR5\.Widget|^  end record|\. := self"),
    Fault("names-from-options",
          '(identifier|digit|statement) expected.*|missing .*|".*" expected.*|file ".*" not found|'
          r"\(Ada 83\) child units not allowed|binary operator expected", ("AdaWidgets.cpp", '"package %s is\\n"'),
          line=r"(^|\s)(?=\S*[-/%\"]|\d)[\w/%\"-]+($|[.;]| is\b)|^with \w+\.\w"),
    Fault("unknown-class", '".*class" not declared in "Xm1_2_2"',
          ("AdaClassRecName.cpp", '? "class" : "widgetclass"'),
          mend=_known_to("xm1_2_2.ads", r"(?i)\bxm1_2_2\.(\w+class)\b", "xtr5.xtnull")),
    Fault("unknown-keysym", '"K_.*" not declared in "XK"', ("AdaKeysym.cpp", ":= XK.K_%s;"),
          mend=_known_to("xk.ads", r"\bXK\.(K_\w+)\b", "0")),
    Fault("raw-text",
          "binary operator expected|missing string quote|horizontal tab not allowed in string|"
          "quote not allowed in percent delimited string|illegal character",
          ("AdaTranslationTable.cpp", r'\"%s\" & ASCII.LF %s\n'),
          line=r"\"|XK\.K_|character'pos\( '|class_rec_name_"),
    Fault("raw-text-beyond-ascii", r"\(Ada 83\) upper half character not allowed",
          ("AdaTranslationTable.cpp", r'\"%s\" & ASCII.LF %s\n'), line="[\x80-\xff]"),
    # A procedure gets the declaration of its last usage only, and the other one lacks it.
    Fault("procedure-of-two-usages", '"\\w+" is undefined',
          ("AdaCallbacks.cpp", "if (procedure->usage == usage) {"),
          line=r"^\s+(\w+\(w, |self := )"),
    Fault("tag-without-ada-form", 'missing argument for parameter "call_data" in call .*|'
          'extra "," ignored', ("AdaCallbacks.cpp", "(w, "), line=r"\(w, , call_data\);"),
    Fault("names-with-digit-first",
          "identifier may not start with digit|numeric literal cannot start with point",
          ("WidgetUtils.cpp", "std::string LegalName("), line=r"^ *\d\w* : XtR5|\.\d\w* := "),
    Fault("long-line", "this line is (longer than 32766 characters|too long)",
          ("AdaString.cpp", "std::string string_value_expr("), line=r".{32766}"),
    # Apex's pragma; GNAT has one of the same name that takes other words.
    Fault("apex-pragma", '"c" is not visible', ("AdaWidgets.cpp", '"export_procedure"'),
          line=r"pragma export_procedure\(c, ", mend=_replace("export_procedure", "export")),
    Fault("verbose-to-standard-output", 'compilation unit expected|misplaced "with"',
          ("Driver.cpp", '"Kivu UIL Translator version %s.'), line="^Kivu UIL|^with ",
          mend=_replace(r"(?m)^Kivu UIL.*\n", "")),
    Fault("names-that-are-ada-words",
          'reserved word ".*" cannot be used as identifier|"end .*;" expected',
          ("AdaCallbacks.cpp", '"package body %s is\\n"'), line=r"\baccept\b", in_cases=False),
)
