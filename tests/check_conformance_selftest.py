#!/usr/bin/env python3
"""Proves that check_conformance.py passes a good tree and notices each kind of bad one."""

import contextlib
import io
import os
import pathlib
import sys
import tempfile
import unittest
from unittest import mock

import check_conformance

# A tree in which everything is shown and recorded.
GOOD = {
    "src/Ada.cpp": 'Emit(file,\n     "  begin %s is\\n"\n     "    null;\\n", name); // "not me"\n'
                   'ErrorFormat(kError, "Bad | %s\\\\", name);\n',
    "src/Options.cpp": 'static constexpr OptionRow kOptions[] = {Flag("-stub", &emit_stubs)};\n',
    "tests/CMakeLists.txt": "add_test(NAME readme\n",
    "tests/unit/OptionsTest.cpp": 'TEST(Options, Stub) { EXPECT_TRUE(Read("-stub")); }\n',
    "tests/unit/AdaTest.cpp": 'TEST_F(Ada, Begins) {\n  Put("m", "Bad | end");\n'
                              '  EXPECT_EQ(Text(), R"(  begin x is\n    null;\n)");\n}\n\n'
                              'TEST_F(Ada, Other) {\n  EXPECT_EQ(Text(), "other");\n}\n',
    "tests/cases/begin/command": "kivuxl -stub m.uil\n",
    "tests/cases/begin/stderr": "   error: Bad | m\\\n",
    "tests/cases/begin/expected/m.ads": "  begin m is\n    null;\n",
    "doc/conformance.md":
        "# Record\n\n| text | what | shown by |\n|---|---|---|\n"
        "| `begin %s is\\n    null;\\n` | a unit | unit: Ada.Begins, case: begin |\n"
        "\n| message | when | shown by |\n|---|---|---|\n"
        "| `Bad \\| %s\\\\` | always | case: begin |\n"
        "\n| option | effect | shown by |\n|---|---|---|\n"
        "| `-stub` | stubs | unit: Options.Stub, case: begin |\n"
        "\n| behaviour | shown by |\n|---|---|\n| is | test: readme |\n",
}

LOG = """Start testing: now
----------------------------------------------------------
1/3 Testing: unit.Ada
1/3 Test: unit.Ada
Output:
[       OK ] Ada.Begins (0 ms)
[       OK ] Options.Stub (0 ms)
Test Passed.
----------------------------------------------------------

2/3 Testing: case.begin
2/3 Test: case.begin
Test Passed.
----------------------------------------------------------

3/3 Testing: readme
Test Passed.
"""


class Conformance(unittest.TestCase):
    def setUp(self):
        top = tempfile.TemporaryDirectory(prefix="kivuxl-selftest-")
        self.addCleanup(top.cleanup)
        self.root = pathlib.Path(top.name)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def faults(self, changed=None, exceptions=None):
        """The faults of the good tree in which the texts of some files are replaced."""
        for name, text in GOOD.items():
            for old, new in (changed or {}).get(name, {}).items():
                self.assertIn(old, text)
                text = text.replace(old, new)
            self.write(name, text)
        output = io.StringIO()
        arguments = ["check_conformance.py", "--root", str(self.root)]
        with mock.patch.object(check_conformance, "UNSHOWN", exceptions or {}), \
                mock.patch.object(sys, "argv", arguments), contextlib.redirect_stdout(output):
            status = check_conformance.main()
        *faults, count = output.getvalue().splitlines()
        self.assertTrue(count.endswith(f" {len(faults)} faults"), count)
        self.assertEqual(status, 1 if faults else 0)
        return faults

    def test_good_tree(self):
        self.assertEqual(self.faults(), [])

    def test_text_that_no_test_shows(self):
        faults = self.faults({"src/Ada.cpp": {"// ": "x(\"Nowhere at all\"); // "}})
        self.assertEqual(faults, ["Ada.cpp: no test shows 'Nowhere at all'"])

    def test_line_that_no_test_shows(self):
        faults = self.faults({"src/Ada.cpp": {"    null;": "   null;"}})
        self.assertEqual(faults, ["Ada.cpp: no test shows ' is\\n   null;\\n'"])

    def test_line_that_is_shown_in_pieces(self):
        faults = self.faults({"src/Ada.cpp": {"// ": "x(\"  begin %d is\"); // "}})
        self.assertEqual(faults, ["Ada.cpp: no line shows '  begin %d is' whole"])

    def test_input_of_a_test_shows_nothing(self):
        faults = self.faults({"src/Ada.cpp": {"// ": "x(\" | end\"); // "}})
        self.assertEqual(faults, ["Ada.cpp: no test shows ' | end'"])

    def test_exception(self):
        changed = {"src/Ada.cpp": {"// ": "x(\"Nowhere at all\"); // "}}
        self.assertEqual(self.faults(changed, {"Nowhere at all": "reason"}), [])

    def test_needless_exception(self):
        self.assertEqual(self.faults(exceptions={"begin ": "reason"}),
                         ["listed as not shown, but shown or gone: 'begin '"])

    def test_row_that_names_a_missing_test(self):
        for old, new, fault in (
                ("unit: Ada.Begins", "unit: Ada.Ends", "there is no unit Ada.Ends"),
                ("unit: Ada.Begins, case: begin", "case: end", "there is no case end"),
                ("test: readme", "test: other", "there is no test other")):
            faults = self.faults({"doc/conformance.md": {old: new}})
            self.assertEqual([each.split(": ", 1)[1] for each in faults], [fault])

    def test_row_without_a_proof(self):
        for new in ("by hand", "", "test: readme and so on"):
            faults = self.faults({"doc/conformance.md": {"test: readme": new}})
            self.assertEqual(faults, ["doc/conformance.md:17: no proof, or something else beside "
                                      "it: is"])

    def test_row_of_what_cannot_be_reached(self):
        changed = {"doc/conformance.md": {"test: readme": "unreachable: for a reason"}}
        self.assertEqual(self.faults(changed), [])

    def test_proof_that_does_not_show_the_text(self):
        faults = self.faults({"doc/conformance.md": {"unit: Ada.Begins, ": "unit: Ada.Other, "}})
        self.assertEqual(faults, ["doc/conformance.md:5: unit Ada.Other does not show "
                                  "begin %s is\\n    null;\\n"])

    def test_proof_that_does_not_use_the_option(self):
        faults = self.faults({"tests/cases/begin/command": {"-stub": "-stubs"}})
        self.assertEqual(faults, ["doc/conformance.md:13: case begin does not use -stub"])

    def test_message_without_a_row(self):
        faults = self.faults({"doc/conformance.md": {"Bad \\| %s\\\\": "Bad"}})
        self.assertEqual(faults, ["Ada.cpp: no row for the message `Bad | %s\\\\`"])

    def test_option_without_a_row(self):
        faults = self.faults({"doc/conformance.md": {"| `-stub` |": "| stub |"}})
        self.assertEqual(faults, ["Options.cpp: no row for the option -stub"])

    def rows(self):
        return check_conformance.record_rows(GOOD["doc/conformance.md"])

    def run_faults(self, log):
        return check_conformance.run_faults(self.rows(), check_conformance.run_results(log))

    def test_everything_has_run(self):
        self.assertEqual(self.run_faults(LOG), [])

    def test_test_that_did_not_run(self):
        self.assertEqual(self.run_faults(LOG.replace("[       OK ] Ada.Begins (0 ms)\n", "")),
                         ["did not run in the last run: Ada.Begins"])
        self.assertEqual(self.run_faults(LOG.replace("case.begin", "case.end")),
                         ["did not run in the last run: case.begin"])

    def test_test_that_failed(self):
        self.assertEqual(self.run_faults(LOG.replace("OK ] Ada.B", "FAILED ] Ada.B")
                                         .replace("[       F", "[  F")),
                         ["failed in the last run: Ada.Begins"])
        self.assertEqual(self.run_faults(LOG.replace("case.begin\nTest Passed.",
                                                     "case.begin\nTest Failed.")),
                         ["failed in the last run: case.begin"])

    def test_skipped_test_did_not_run(self):
        self.assertEqual(self.run_faults(LOG.replace("[       OK ] Ada.B", "[  SKIPPED ] Ada.B")),
                         ["did not run in the last run: Ada.Begins"])
        self.assertEqual(self.run_faults(LOG.replace("Testing: readme",
                                                     "Testing: readme\n[  SKIPPED ] readme")),
                         ["did not run in the last run: readme"])

    def test_run_of_few_tests(self):
        with mock.patch.object(check_conformance, "MANY", 1):
            self.assertEqual(self.run_faults(""), ["did not run in the last run: Ada.Begins",
                                                   "nor did 3 others"])

    def test_run_that_is_missing_or_too_old(self):
        self.assertEqual(check_conformance.last_run_faults(self.root, []),
                         [f"no test has run in {self.root}"])
        self.write("Testing/Temporary/LastTest.log", LOG)
        self.write("kivuxl", "")
        os.utime(self.root / "Testing/Temporary/LastTest.log", (1, 1))
        self.assertEqual(check_conformance.last_run_faults(self.root, []),
                         [f"{self.root}/kivuxl is newer than the last run of the tests"])


if __name__ == "__main__":
    unittest.main()
