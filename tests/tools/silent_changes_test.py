"""No action passes over a damage that changes what comes out of it."""

import os
import pathlib
import subprocess
import sys
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
PROGRAM = pathlib.Path(os.environ["ORVANE_BINARY_DIR"]) / "bin/orvane"
sys.path.insert(0, str(ROOT / "tools"))

import further_damages  # noqa: E402
import silent_changes  # noqa: E402
from silent_changes import Action, Outcome  # noqa: E402

IMPORT = Action("import", (".trc",), ())
PLANNED = Action("plan", (".trc",), (), shown_by="import")
WHOLE = {"import": Outcome(0, b"scene", ()), "plan": Outcome(0, "", ())}


def judged(status, made, said, action=IMPORT):
    damaged = {"import": Outcome(status, made, said), "plan": Outcome(status, "", said)}
    return silent_changes.judge(action, WHOLE, damaged, said)


class JudgeTest(unittest.TestCase):
    def test_a_change_that_nobody_tells_of_is_silent(self):
        self.assertEqual(judged(0, b"other", []), "SILENT")
        self.assertEqual(judged(0, None, []), "SILENT")

    def test_a_plan_is_silent_when_what_it_announces_changes(self):
        self.assertEqual(judged(0, b"other", [], PLANNED), "SILENT")
        self.assertEqual(judged(0, b"scene", [], PLANNED), "the same")

    def test_what_is_told_is_a_note_or_more(self):
        note, warning = "orvane: a.trc: note: It is odd.", "orvane: a.trc: warning: It is lost."
        self.assertEqual(judged(0, b"other", [note]), "a note")
        self.assertEqual(judged(0, b"other", [note, warning]), "told")

    def test_what_stays_and_what_is_refused_is_not_silent(self):
        self.assertEqual(judged(0, b"scene", []), "the same")
        self.assertEqual(judged(1, None, []), "refused")

    def test_a_crash_is_no_refusal(self):
        self.assertEqual(judged(-11, None, []), "CRASHED")


class DamagesTest(unittest.TestCase):
    def test_are_many_and_each_changes_its_example(self):
        for kind, own in further_damages.BY_KIND.items():
            data = (ROOT / "examples/walk").with_suffix(kind).read_bytes()
            damages = further_damages.damages_of(kind)
            changed = [name for name in damages if damages[name](data) not in (None, data)]
            self.assertEqual([name for name in own if name not in changed], [])
            self.assertGreaterEqual(len(changed), 20)


class ExamplesTest(unittest.TestCase):
    def test_none_of_their_changes_is_silent(self):
        done = subprocess.run([sys.executable, "-B", ROOT / "tools/silent_changes.py", "--quick",
                               "--program", PROGRAM], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        self.assertRegex(done.stdout, r"\n[4-9]\d\d done, 0 silent\n$")


if __name__ == "__main__":
    unittest.main()
