#!/usr/bin/env python3
"""Proves that run_case.py passes a good case and fails each kind of bad one, for the right reason.

The program under test is a shell script of a few lines, so that each fault can be made at will.
"""

import os
import subprocess
import sys
import tempfile
import unittest

DRIVER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "run_case.py")

# Writes its first argument to standard output, its second to standard error and the third into the
# file `made`; the rest is a command to run.
PROGRAM = """#!/bin/sh
printf '%s\\n' "$1"
printf '%s\\n' "$2" >&2
printf '%s\\n' "$3" > made
shift 3
eval "$@"
"""

# A case that passes.
GOOD = {
    "command": "kivuxl out err text\n",
    "status": "0\n",
    "stdout": "out\n",
    "stderr": "err\n",
    "files": "made\n",
    "expected/made": "text\n",
}


class LinkTo(str):
    """The content of a part that is a symbolic link."""


def write(path, content):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if isinstance(content, LinkTo):
        os.symlink(content, path)
        return
    with open(path, "wb") as file:
        file.write(content if isinstance(content, bytes) else content.encode())


class RunCase(unittest.TestCase):
    def setUp(self):
        self.top = tempfile.TemporaryDirectory(prefix="kivuxl-selftest-")
        self.addCleanup(self.top.cleanup)
        self.program = os.path.join(self.top.name, "bin", "any-name")
        write(self.program, PROGRAM)
        os.chmod(self.program, 0o755)
        self.environment = dict(os.environ, TMPDIR=os.path.join(self.top.name, "tmp"))
        self.environment.pop("KIVUXL_LOCALES", None)
        os.mkdir(self.environment["TMPDIR"])

    def run_driver(self, parts, *options):
        """Runs the good case with some of its parts replaced, or left out where they are None."""
        folder = tempfile.mkdtemp(prefix="case-", dir=self.top.name)
        for name, content in {**GOOD, **parts}.items():
            if content is not None:
                write(os.path.join(folder, name), content)
        result = subprocess.run(
            [sys.executable, DRIVER, "--program", self.program, *options, folder],
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, check=False)
        self.assertEqual(os.listdir(self.environment["TMPDIR"]), [], "the driver cleans up")
        return result

    def assert_passes(self, parts):
        result = self.run_driver(parts)
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertRegex(result.stdout, r"\Aok case-\S+\n\Z")

    def assert_fails(self, parts, *reasons, options=()):
        result = self.run_driver(parts, *options)
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertRegex(result.stdout, r"\AFAILED case-")
        for reason in reasons:
            self.assertIn(reason, result.stdout)

    # -- What passes

    def test_good_case(self):
        self.assert_passes({})

    def test_absent_parts_mean_empty(self):
        self.assert_passes({"command": "kivuxl '' '' '' 'rm made' | tr -d '\\n' 2>&1",
                            "stdout": None, "stderr": "\n", "files": None, "expected/made": None})

    def test_environment_of_the_run(self):
        self.assert_passes({
            "command": "kivuxl out err text 'echo $LC_ALL $TZ ${HOME-none} $SET ${TERM-unset}; "
                       "basename $(dirname $PWD) | cut -c1-12; umask; test -d \"$TMPDIR\"; cat'",
            "environment": "SET=a = b\nTERM\n",
            "stdout": "out\nC UTC none a = b unset\nkivuxl-case-\n0022\n"})

    def test_name_that_the_program_sees(self):
        write(self.program, "#!/bin/sh\nbasename \"$0\"\n")
        self.assert_passes({"stdout": "kivuxl\n", "stderr": None, "files": None,
                            "expected/made": None})

    def test_input_is_copied_and_setup_runs_in_it(self):
        self.assert_passes({
            "input/folder/one": "1\n",
            "setup": "test -f folder/one\nmkdir empty\nln -s folder/one link\nmkfifo fifo\n",
            "command": "kivuxl out err text 'test -d empty && test -p fifo && cat link'",
            "stdout": "out\n1\n"})

    def test_a_link_in_the_input_stays_one(self):
        self.assert_passes({"input/one": "1\n", "input/link": LinkTo("one"),
                            "command": "kivuxl out err text 'readlink link'",
                            "stdout": "out\none\n"})

    def test_a_background_job_of_the_setup_does_not_hold_the_run(self):
        self.assert_passes({"setup": "mkfifo fifo\ncat fifo &\n"})

    def test_changed_and_removed_input_new_folder_and_link(self):
        self.assert_passes({
            "input/changed": "old\n", "input/same": "same\n", "input/gone": "gone\n",
            "command": "kivuxl out err text 'echo new >changed; echo same >same; rm gone; "
                       "mkdir new; touch new/file; ln -s same link'",
            "files": "-gone\nchanged\nlink\nmade\nnew/\nnew/file\n",
            "expected/changed": "new\n"})

    def test_bytes_that_are_no_text(self):
        self.assert_passes({"command": "kivuxl out err text \"printf '\\\\377\\\\000'\"",
                            "stdout": b"out\n\xff\x00"})

    # -- What fails

    def test_wrong_status(self):
        self.assert_fails({"status": "1\n"}, "status 0, expected 1\n")
        self.assert_fails({"command": "kivuxl out err text 'exit 3'"}, "status 3, expected 0\n")

    def test_a_signal_has_its_status_as_in_a_shell(self):
        self.assert_fails({"command": "kivuxl out err text 'kill -TERM $$'"},
                          "status 143, expected 0\n")

    def test_wrong_stdout(self):
        self.assert_fails({"stdout": "other\n"}, "--- stdout (expected)", "-other\n+out\n")
        self.assert_fails({"stdout": None}, "--- stdout (expected)", "+out\n")
        self.assert_fails({"stdout": "out"}, "-out\n\\ No newline at end of file\n+out\n")

    def test_wrong_stderr(self):
        self.assert_fails({"stderr": "other\n"}, "--- stderr (expected)", "-other\n+err\n")
        self.assert_fails({"stderr": None}, "--- stderr (expected)", "+err\n")

    def test_bytes_are_compared(self):
        self.assert_fails({"command": "kivuxl out err text \"printf '\\\\377'\"",
                           "stdout": b"out\n\xfe"}, "-\\xfe\n", "+\\xff\n")
        self.assert_fails({"stdout": "out\r\n"}, "--- stdout (expected)")

    def test_extra_file(self):
        self.assert_fails({"command": "kivuxl out err text 'touch extra'"},
                          "--- files (expected)", "+extra\n")
        self.assert_fails({"files": None, "expected/made": None}, "+made\n")

    def test_missing_file(self):
        self.assert_fails({"files": "absent\nmade\n"}, "--- files (expected)", "-absent\n")
        self.assert_fails({"command": "kivuxl out err text 'rm made'"},
                          "-made\n", "made: not written\n")

    def test_unchanged_input_is_not_written(self):
        self.assert_fails({"input/same": "same\n", "files": "made\nsame\n"}, "-same\n")

    def test_changed_and_removed_input(self):
        self.assert_fails({"input/changed": "old\n",
                           "command": "kivuxl out err text 'echo new >changed'"}, "+changed\n")
        self.assert_fails({"input/gone": "gone\n", "command": "kivuxl out err text 'rm gone'"},
                          "+-gone\n")

    def test_file_that_became_a_link(self):
        self.assert_fails({"input/one": "1\n", "input/two": "1\n",
                           "command": "kivuxl out err text 'ln -sf two one'"}, "+one\n")

    def test_link_that_points_elsewhere(self):
        self.assert_fails({"input/one": "1\n", "input/two": "1\n", "input/link": LinkTo("one"),
                           "command": "kivuxl out err text 'ln -sf two link'"}, "+link\n")

    def test_wrong_contents(self):
        self.assert_fails({"expected/made": "other\n"}, "--- made (expected)", "-other\n+text\n")

    def test_left_behind_temporary_file(self):
        self.assert_fails({"command": "kivuxl out err text 'touch $TMPDIR/kivut1'"},
                          "left behind: kivut1\n")
        self.assert_fails({"command": "kivuxl out err text 'mkdir $TMPDIR/d; chmod 0 $TMPDIR/d'"},
                          "left behind: d\n")

    def test_limit(self):
        self.assert_fails({"setup": "mkfifo fifo\n", "command": "kivuxl out err text 'cat fifo'"},
                          "still running after 0.5 seconds\n", options=("--limit", "0.5"))

    def test_stack(self):
        parts = {"command": "kivuxl out err text 'ulimit -s'", "stdout": "out\n256\n"}
        result = self.run_driver(parts, "--stack", "256")
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assert_fails(parts, "-256\n", options=("--stack", "512"))

    def test_locale(self):
        parts = {"command": "kivuxl out err text 'echo $LC_ALL'", "stdout": "out\nx_X\n"}
        result = self.run_driver(parts, "--locale", "C")
        self.assertEqual((result.returncode, result.stdout),
                         (77, "skipped: KIVUXL_LOCALES is not set\n"))
        self.environment["KIVUXL_LOCALES"] = self.top.name
        result = self.run_driver(parts, "--locale", "x_X")
        self.assertEqual(result.returncode, 2)
        self.assertIn("no such locale: x_X", result.stdout)
        result = self.run_driver({**parts, "stdout": "out\nC\n"}, "--locale", "C")
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_a_driver_that_is_stopped_leaves_nothing_running(self):
        fifo = os.path.join(self.top.name, "fifo")
        os.mkfifo(fifo)
        folder = os.path.join(self.top.name, "hangs")
        for part, content in {**GOOD, "setup": "mkfifo none\n", "environment": "FIFO=" + fifo,
                              "command": "kivuxl out err text "
                                         "'echo up; cat none' >$FIFO"}.items():
            write(os.path.join(folder, part), content)
        with subprocess.Popen([sys.executable, DRIVER, "--program", self.program, folder],
                              env=self.environment) as driver:
            with open(fifo, encoding="utf-8") as stream:  # waits until the command has opened it
                self.assertEqual([stream.readline(), stream.readline()], ["out\n", "up\n"])
                driver.terminate()
                self.assertEqual(stream.read(), "")  # ends when the command has
        self.assertEqual(driver.returncode, 143)
        self.assertEqual(os.listdir(self.environment["TMPDIR"]), [])

    def test_sanitizer_status_reaches_the_run(self):
        self.environment["ASAN_OPTIONS"] = "exitcode=99"
        self.assert_passes({"command": "kivuxl out err text 'echo $ASAN_OPTIONS'",
                            "stdout": "out\nexitcode=99\n"})

    # -- Cases that are none

    def test_missing_command_or_status(self):
        self.assert_fails({"command": None}, "bad case: has no file `command`\n")
        self.assert_fails({"status": None}, "bad case: has no file `status`\n")

    def test_bad_command_or_status(self):
        self.assert_fails({"command": "kivuxl\nkivuxl\n"}, "`command` is more than one line")
        self.assert_fails({"command": "true; kivuxl\n"}, "`command` does not begin with kivuxl")
        self.assert_fails({"status": "one\n"}, "`status` is not a number")
        self.assert_fails({"status": ""}, "`status` is not a number")

    def test_expected_file_that_is_not_in_files(self):
        self.assert_fails({"expected/other": "x\n"}, "in expected/ but not in `files`: other\n")
        self.assert_fails({"files": None}, "in expected/ but not in `files`: made\n")

    def test_files_out_of_order(self):
        self.assert_fails({"files": "made\na\n"}, "`files` is not sorted")
        self.assert_fails({"files": "made\nmade\n"}, "`files` is not sorted, or names a file twice")

    def test_unknown_part(self):
        self.assert_fails({"stdour": "out\n"}, "bad case: no part of a case: stdour\n")

    def test_failing_setup(self):
        self.assert_fails({"setup": "echo why >&2\nfalse\n"}, "`setup` failed with status 1\nwhy\n")

    def test_no_folder_and_no_program(self):
        words = [sys.executable, DRIVER, "--program"]
        missing = os.path.join(self.top.name, "missing")
        result = subprocess.run(words + [self.program, missing], capture_output=True, text=True,
                                check=False)
        self.assertEqual((result.returncode, result.stdout),
                         (1, "FAILED missing\nbad case: not a folder\n"))
        result = subprocess.run(words + [missing, self.top.name], capture_output=True, text=True,
                                check=False)
        self.assertEqual(result.returncode, 2)
        self.assertIn("not a program: " + missing, result.stderr)

    def test_one_bad_case_among_good_ones_fails(self):
        folders = []
        for name, status in (("good", "0\n"), ("bad", "1\n"), ("last", "0\n")):
            folders.append(os.path.join(self.top.name, name))
            for part, content in {**GOOD, "status": status}.items():
                write(os.path.join(folders[-1], part), content)
        result = subprocess.run([sys.executable, DRIVER, "--program", self.program] + folders,
                                capture_output=True, text=True, check=False)
        self.assertEqual((result.returncode, result.stdout),
                         (1, "ok good\nFAILED bad\nstatus 0, expected 1\nok last\n"
                             "1 of 3 cases failed\n"))


if __name__ == "__main__":
    unittest.main()
