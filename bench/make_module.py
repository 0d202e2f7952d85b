#!/usr/bin/env python3
"""Writes a UIL module of a given number of widgets to standard output.

usage: bench/make_module.py widgets

The module looks like a large application written by hand: windows (forms) that hold panels (row
columns), which hold buttons, labels, toggles, texts and separators, with values of all common kinds,
named lists, colours, fonts, and callbacks with and without client data. It keeps to what Motif's own
compiler takes: names of at most 31 characters, lines of at most 132 columns, fewer than 500 children
of one parent and fewer than 500 top-level objects up to 100,000 widgets. The same number of widgets
always gives the same bytes.
"""
import sys

WINDOW = 250  # widgets of a full window, the form included
PANEL = 10    # widgets of a full panel, the row column included

HEAD = """! Application windows, generated: {count} widgets.

module bench_{count}
    version = 'v1.0'
    names = case_sensitive
    objects = {{ XmSeparator = gadget; }}

value
    panel_back    : color('light steel blue', background);
    alarm_text    : color('red', foreground);
    field_back    : rgb(65535, 65535, 57343);
    title_font    : font('-*-helvetica-bold-r-normal--14-*-*-*-*-*-iso8859-1');
    field_fonts   : font_table(font('-*-courier-medium-r-normal--12-*-*-*-*-*-iso8859-1'));
    gap           : 4;
    wide_gap      : gap * 3;
    common_width  : 120;

procedure
    close_cb ();
    apply_cb ();
    command_cb (integer);
    text_cb (string);
    toggle_cb (boolean);
    focus_cb (any);

list
    attachments : arguments {{
        XmNtopAttachment = XmATTACH_FORM;
        XmNleftAttachment = XmATTACH_FORM;
        XmNrightAttachment = XmATTACH_FORM;
    }};
    field_look : arguments {{
        XmNbackground = field_back;
        XmNfontList = field_fonts;
    }};
    focus_callbacks : callbacks {{
        XmNfocusCallback = procedure focus_cb(gap);
        XmNlosingFocusCallback = procedure focus_cb('left');
    }};
"""

WINDOW_TEXT = """
! Window {window}.

value
    {name}_title : compound_string('Window {window}', separate = true) & compound_string('Details');

object
    {name} : XmForm {{
        arguments {{
            XmNwidth = {width};
            XmNheight = 480;
            XmNhorizontalSpacing = gap;
            XmNdialogTitle = {name}_title;
            XmNautoUnmanage = false;
            XmNbackground = panel_back;
        }};
        controls {{
{controls}        }};
    }};
"""

PANEL_TEXT = """
    {name} : XmRowColumn {{
        arguments {{
            arguments attachments;
            XmNorientation = {orientation};
            XmNpacking = XmPACK_TIGHT;
            XmNspacing = wide_gap;
            XmNtopOffset = {n};
        }};
        controls {{
{controls}        }};
    }};
"""

# The items of a panel, in turn: the beginning of the name, the class and the definition.
ITEMS = [
    ("caption", "XmLabel", """
        arguments {{
            XmNlabelString = compound_string('Settings of part {n}');
            XmNfontList = title_font;
            XmNalignment = XmALIGNMENT_BEGINNING;
        }};
"""),
    ("apply_button", "XmPushButton", """
        arguments {{
            XmNlabelString = 'Apply {n}';
            XmNwidth = common_width;
            XmNmnemonic = keysym('A');
            XmNacceleratorText = compound_string('Ctrl+A');
        }};
        callbacks {{
            XmNactivateCallback = procedure apply_cb();
        }};
"""),
    ("field", "XmText", """
        arguments {{
            arguments field_look;
            XmNvalue = 'initial text {n}';
            XmNcolumns = 24 + {n} / 1000;
            XmNeditMode = XmSINGLE_LINE_EDIT;
            XmNmaxLength = 200;
        }};
        callbacks {{
            XmNvalueChangedCallback = procedure text_cb('field {n}');
            callbacks focus_callbacks;
        }};
"""),
    ("verbose_toggle", "XmToggleButton", """
        arguments {{
            XmNlabelString = compound_string('Tell more about {n}');
            XmNset = true;
            XmNindicatorType = XmN_OF_MANY;
            XmNselectColor = alarm_text;
        }};
        callbacks {{
            XmNvalueChangedCallback = procedure toggle_cb(true);
        }};
"""),
    ("command_button", "XmPushButton", """
        arguments {{
            XmNlabelString = compound_string('Run command {n}');
            XmNwidth = 160;
            XmNheight = 32;
            XmNforeground = alarm_text;
            XmNuserData = {n};
        }};
        callbacks {{
            XmNactivateCallback = procedures {{
                command_cb({n});
                apply_cb();
            }};
            XmNarmCallback = procedure text_cb('armed');
        }};
"""),
    ("note", "XmLabel", """
        arguments {{
            XmNlabelString = compound_string('Result:', separate = true) & compound_string('{n}');
            XmNrecomputeSize = false;
            XmNmarginWidth = gap;
        }};
"""),
    ("rule", "XmSeparator", """
        arguments {{
            XmNorientation = XmHORIZONTAL;
            XmNseparatorType = XmSHADOW_ETCHED_IN;
        }};
"""),
    ("close_button", "XmPushButton", """
        arguments {{
            XmNlabelString = 'Close';
            XmNtraversalOn = true;
        }};
        callbacks {{
            XmNactivateCallback = procedure close_cb();
        }};
"""),
    ("auto_toggle", "XmToggleButton", """
        arguments {{
            XmNlabelString = 'Automatic';
            XmNspacing = gap + 2;
            XmNfillOnSelect = true;
        }};
        callbacks {{
            XmNvalueChangedCallback = procedure toggle_cb(false);
        }};
"""),
]


def control_lines(controls):
    return "".join(f"            {kind} {name};\n" for kind, name in controls)


def panel_text(first, count):
    """A panel numbered `first` and its count - 1 items, each with its own number."""
    items = []
    for n in range(first + 1, first + count):
        name, kind, text = ITEMS[(n - first - 1) % len(ITEMS)]
        items.append((kind, f"{name}_{n}", text.format(n=n)))
    orientation = "XmVERTICAL" if first // PANEL % 2 else "XmHORIZONTAL"
    panel = PANEL_TEXT.format(name=f"panel_{first}", n=first, orientation=orientation,
                              controls=control_lines(item[:2] for item in items))
    return panel + "".join(f"\n    {name} : {kind} {{{text}    }};\n" for kind, name, text in items)


def window_text(first, count):
    """A window numbered `first` and the panels that share its other count - 1 widgets."""
    panels = [(n, min(PANEL, first + count - n)) for n in range(first + 1, first + count, PANEL)]
    head = WINDOW_TEXT.format(name=f"window_{first}", window=first // WINDOW + 1,
                              width=600 + first % 7 * 10,
                              controls=control_lines(("XmRowColumn", f"panel_{n}")
                                                     for n, _ in panels))
    return head + "".join(panel_text(n, size) for n, size in panels)


def main():
    if len(sys.argv) != 2 or not sys.argv[1].isdecimal():
        sys.exit(__doc__.split("\n\n")[1])
    count = int(sys.argv[1])
    sys.stdout.write(HEAD.format(count=count))
    for first in range(0, count, WINDOW):
        sys.stdout.write(window_text(first, min(WINDOW, count - first)))
    sys.stdout.write("\nend module;\n")


main()
