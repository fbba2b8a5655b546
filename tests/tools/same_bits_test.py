"""Two builds are the same when no file has any verb tell them apart."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
sys.path.insert(0, str(ROOT / "tools"))

import same_bits  # noqa: E402

PROGRAM = """#!/bin/sh
if [ "$1" = "{verb}" ]; then {action}; fi
case "$1" in import) cp "$2" new.glb;; convert) cp "$2" new.bvk;; esac
"""


def program_in(folder, verb="none", action=":"):
    """A program that does `action` when it is asked for `verb`."""
    folder.mkdir()
    (folder / "orvane").write_text(PROGRAM.format(verb=verb, action=action))
    (folder / "orvane").chmod(0o755)
    return folder


class SameBitsTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.place = pathlib.Path(self.folder.name)
        self.before = program_in(self.place / "before")

    def compared(self, verb="none", action=":"):
        after = program_in(self.place / "after", verb, action)
        return subprocess.run([sys.executable, "-B", ROOT / "tools/same_bits.py", self.before,
                               after, "--random", "3", "--keep", self.place / "kept"],
                              capture_output=True, text=True, check=False)

    def test_programs_that_do_the_same_are_the_same(self):
        done = self.compared()
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        self.assertRegex(done.stdout, r"\nconvert +\d\d+ +\d\d+ +0 +0\n")
        self.assertFalse((self.place / "kept").exists())

    def test_each_difference_is_told_and_its_file_kept(self):
        for action, what in (("exit 1", "status"), ("echo new", "shown"), ("echo new >&2", "said"),
                             ("echo new > new.bvk; exit 0", "made")):
            with self.subTest(action):
                after = program_in(self.place / what, "convert", action)
                sound = same_bits.File("a.trc", ".trc", b"1\t2\n")
                before, now = (same_bits.outcomes_of(folder / "orvane", sound)["convert"]
                               for folder in (self.before, after))
                self.assertIn(what, same_bits.difference(before, now).split(", "))
        done = self.compared("convert", "echo new")
        self.assertEqual(done.returncode, 1)
        self.assertIn("examples/walk.trc\tconvert\tshown\n", done.stdout)
        self.assertTrue((self.place / "kept/examples-walk.trc").is_file())

    def test_what_one_program_alone_makes_is_a_difference(self):
        self.assertEqual(same_bits.difference(None, same_bits.Outcome(0, b"", b"", b"scene")),
                         "done by one only")


class RandomFileTest(unittest.TestCase):
    def test_the_seed_and_the_number_alone_determine_it(self):
        sources = same_bits.sources_of_random()
        first, again = ([same_bits.random_file(7, index, sources) for index in range(20)]
                        for _ in range(2))
        self.assertEqual(first, again)
        self.assertGreater(len({file.data for file in first}), 10)
        self.assertNotEqual(first, [same_bits.random_file(8, index, sources) for index in range(20)])


if __name__ == "__main__":
    unittest.main()
