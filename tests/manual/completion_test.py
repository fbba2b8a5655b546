"""Bash completes command lines of the program: its verbs, flags, what they take, and files.

ORVANE_BINARY_DIR is the build's folder.
"""

import contextlib
import os
import pathlib
import pty
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(os.environ["ORVANE_BINARY_DIR"],
                      "manual/made/bash-completion/completions/orvane")
FILES = ("walk.htr", "WALK2.HTR", "walk.trc", "walk.mnm", "walk.glb", "walk.gltf", "walk.bvk",
         "picks.txt", "a take.trc")
# What bash does when the key is pressed, with the words of the line as it has taken them apart.
PRESS_THE_KEY = """
source "$1"
shift
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
_orvane
printf '%s\\n' "${COMPREPLY[@]}"
"""


class CompletionTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        (self.folder / "takes").mkdir()
        for name in FILES:
            (self.folder / name).touch()

    def complete(self, *words):
        """What the last of the words may become."""
        run = subprocess.run(["bash", "--norc", "-c", PRESS_THE_KEY, "bash", SCRIPT, "orvane", *words],
                             cwd=self.folder, capture_output=True, text=True, check=True)
        self.assertEqual(run.stderr, "")
        return sorted(line for line in run.stdout.split("\n") if line)

    def test_it_is_registered_for_the_program(self):
        run = subprocess.run(["bash", "--norc", "-c", 'source "$1"; complete -p orvane', "bash", SCRIPT],
                             capture_output=True, text=True, check=True)
        self.assertIn("-F _orvane orvane", run.stdout)

    def test_verbs(self):
        self.assertEqual(self.complete("co"), ["compare", "convert"])
        self.assertEqual(self.complete("map", ""), ["create", "lint", "show", "suggest"])
        self.assertIn("import", self.complete(""))

    def test_verbs_behind_the_verb_help(self):
        self.assertEqual(self.complete("help", "im"), ["import"])
        self.assertEqual(self.complete("help", "map", "cr"), ["create"])

    def test_behind_the_verb_help_a_verb_stands_behind_its_own(self):
        self.assertEqual(self.complete("help", "map", ""), ["create", "lint", "show", "suggest"])
        self.assertEqual(self.complete("help", "s"), ["scene"])

    def test_flags_are_those_of_the_verb(self):
        self.assertEqual(self.complete("--v"), ["--version"])
        self.assertEqual(self.complete("import", "walk.htr", "--no-a"), ["--no-animation"])
        self.assertEqual(self.complete("map", "create", "--p"), ["--picks"])
        self.assertEqual(self.complete("scene", "--"), ["--help", "--json"])

    def test_what_a_flag_takes(self):
        self.assertEqual(self.complete("import", "--as", ""), ["htr", "trc"])
        self.assertEqual(self.complete("import", "--system-unit", "m"), ["m", "mm"])
        self.assertEqual(self.complete("import", "--as", "=", "h"), ["htr"])
        self.assertEqual(self.complete("import", "--as", "="), ["htr", "trc"])

    def test_numbers_and_names_are_left_to_the_user(self):
        self.assertEqual(self.complete("import", "--range", ""), [])
        self.assertEqual(self.complete("export", "--select", ""), [])

    def test_files_that_a_verb_takes(self):
        cases = (
            (["import", ""], ["WALK2.HTR", "a take.trc", "takes", "walk.htr", "walk.trc"]),
            (["convert", "w"], ["walk.trc"]),
            (["convert", "walk.trc", "a"], ["a take.trc"]),
            (["scene", "w"], ["walk.glb", "walk.gltf"]),
            (["check", "walk"], ["walk.htr", "walk.mnm", "walk.trc"]),
            (["compare", "walk.htr", "walk"], ["walk.htr", "walk.trc"]),
            (["map", "lint", "walk"], ["walk.mnm", "walk.trc"]),
            (["map", "show", "walk"], ["walk.mnm", "walk.trc"]),
        )
        for words, files in cases:
            with self.subTest(words=words):
                self.assertEqual(self.complete(*words), files)

    def test_files_that_a_flag_takes(self):
        cases = (
            (["import", "-o", "w"], ["walk.glb", "walk.gltf"]),
            (["export", "--output", "w"], ["walk.htr"]),
            (["convert", "--mapping", ""], ["takes", "walk.mnm"]),
            (["convert", "--output-dir", ""], ["takes"]),
            (["convert", "-o", "w"], ["walk.bvk"]),
            (["map", "create", "--picks", "p"], ["picks.txt"]),
        )
        for words, files in cases:
            with self.subTest(words=words):
                self.assertEqual(self.complete(*words), files)

    def test_the_key_itself_does_it(self):
        """On a terminal, with blanks in names."""
        terminal, end = pty.openpty()
        shell = subprocess.Popen(["bash", "--norc", "-i"], cwd=self.folder, stdin=end, stdout=end,
                                 stderr=end, start_new_session=True,
                                 env={**os.environ, "INPUTRC": "/dev/null", "TERM": "dumb"})
        os.close(end)
        os.write(terminal, f'source "{SCRIPT}"; orvane() {{ printf "%s\\n" "$@" >typed; }}\n'.encode())
        os.write(terminal, b"orvane conv\ta\t--mapp\twa\t\nexit\n")
        with contextlib.suppress(OSError):  # that is how a terminal ends
            while os.read(terminal, 4096):
                pass
        os.close(terminal)
        self.assertEqual(shell.wait(), 0)
        self.assertEqual((self.folder / "typed").read_text().split("\n"),
                         ["convert", "a take.trc", "--mapping", "walk.mnm", ""])


if __name__ == "__main__":
    unittest.main()
