#!/usr/bin/env python3
"""Proves that check_units.py notices a new failure, a stale entry and a template that has moved.

The translator is a shell script of a few lines that writes what each test wants.
"""

import os
import pathlib
import re
import tempfile
import types
import unittest

import check_units
import exceptions
import units as ada

# Writes the file `text` of the case as a unit.
PROGRAM = """#!/bin/sh
cp text unit.ada
"""
GOOD = "with XtR5;\npackage m is\n  w : XtR5.Widget;\nend m;\n"
SINGLE = "package m is\n  f : xlib5.real;\nend m;\n"
KNOWN = next(fault for fault in exceptions.FAULTS if fault.name == "single-float")


class CheckUnits(unittest.TestCase):
    def setUp(self):
        top = tempfile.TemporaryDirectory(prefix="kivuxl-selftest-")
        self.addCleanup(top.cleanup)
        self.top = pathlib.Path(top.name)
        self.program = self.top / "program"
        self.program.write_text(PROGRAM, encoding="ascii")
        self.program.chmod(0o755)

    def check(self, *texts, known=(), command="kivuxl m.uil"):
        """The complaints about runs that write these texts, and the lines of the summary."""
        runs = []
        for number, text in enumerate(texts):
            folder = self.top / f"case-{number}"
            os.makedirs(folder / "input", exist_ok=True)
            (folder / "input" / "text").write_text(text, encoding="ascii")
            runs.append(types.SimpleNamespace(name=folder.name, folder=str(folder), environment=[],
                                              command=command))
        return check_units.check(runs, str(self.program), self.top / "cache", known)

    def test_a_good_unit_passes(self):
        complaints, lines = self.check(GOOD)
        self.assertEqual(complaints, [])
        self.assertEqual(lines[1], "1 compile, 0 compile when mended, 0 do not")

    def test_a_new_failure_is_noticed(self):
        complaints, lines = self.check(GOOD.replace("XtR5.Widget", "XtR5.Gadget"))
        self.assertEqual(complaints, ['case-0: m.ads (-gnat83)\n'
                                      '  m.ads:3: "Gadget" not declared in "XtR5"\n'
                                      '    w : XtR5.Gadget;'])
        self.assertEqual(lines[1], "0 compile, 0 compile when mended, 1 do not")

    def test_a_known_failure_is_mended(self):
        complaints, lines = self.check(SINGLE, known=[KNOWN])
        self.assertEqual(complaints, [])
        self.assertEqual(lines[1:], ["0 compile, 1 compile when mended, 0 do not",
                                     "     1 single-float"])

    def test_a_failure_beside_a_known_one_is_noticed(self):
        complaints, _ = self.check(SINGLE.replace("end m", "  w : Widget;\nend m"), known=[KNOWN])
        self.assertEqual(complaints, ['case-0: m.ads (-gnat83), beside single-float\n'
                                      '  m.ads:3: "Widget" is undefined\n    w : Widget;'])

    def test_a_failure_behind_a_known_one_is_noticed(self):
        hidden = ("package m is\n  t : constant string := \"a\" & ASCII.LF );\n"
                  "  w : Widget;\nend m;\n")
        known = next(fault for fault in exceptions.FAULTS if fault.name == "translation-table")
        complaints, _ = self.check(hidden, known=[known])
        self.assertEqual(complaints, ['case-0: m.ads (-gnat83), beside translation-table\n'
                                      '  m.ads:3: "Widget" is undefined\n    w : Widget;'])

    def test_a_failure_of_a_named_unit_is_known_there_too(self):
        complaints, lines = self.check(SINGLE + "with m;\nprocedure p is\nbegin\n"
                                       "  m.f := 1.0;\nend p;\n", known=[KNOWN])
        self.assertEqual(complaints, [])
        self.assertEqual(lines[1], "0 compile, 2 compile when mended, 0 do not")

    def test_a_stale_entry_is_noticed(self):
        complaints, _ = self.check(GOOD, known=[KNOWN])
        self.assertEqual(complaints, ["exceptions.py: single-float explains no error any more"])

    def test_a_template_that_has_moved_is_noticed(self):
        moved = exceptions.Fault("moved", '"xlib5" is undefined.*', ("AdaValues.cpp", "xlib6.real"))
        complaints, _ = self.check(SINGLE, known=[moved])
        self.assertEqual(complaints, ["moved: no template 'xlib6.real' in src/AdaValues.cpp"])

    def test_the_language_follows_the_options(self):
        unit = "package m is\n  type t is access all integer;\nend m;\n"
        complaints, _ = self.check(unit, command="kivuxl -gnat m.uil")
        self.assertEqual(complaints, [])
        complaints, _ = self.check(unit)
        self.assertTrue(re.match(r"case-0: m\.ads \(-gnat83\)\n", complaints[0]), complaints)

    def test_answers_are_kept(self):
        _, lines = self.check(GOOD)
        self.assertTrue(lines[0].endswith("1 different compilations, 1 of them now"), lines)
        _, lines = self.check(GOOD)
        self.assertTrue(lines[0].endswith("1 different compilations, 0 of them now"), lines)

    def test_a_text_is_divided_into_its_units(self):
        text = ("with a;\ngeneric\n  with procedure b( c : in d );\nprocedure p( e : in f );\n"
                "procedure p( e : in f ) is\nbegin\n  null;\nend p;\n"
                "package q is new r(\n  b => s );\npackage body t is\nend t;\n")
        self.assertEqual(list(ada.divide(text)), ["p.ads", "p.adb", "q.ads", "t.adb"])
        self.assertEqual("".join(ada.divide(text).values()), text)


if __name__ == "__main__":
    unittest.main()
