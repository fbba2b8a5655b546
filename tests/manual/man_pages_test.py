"""There is a page of the manual for each verb, which the readers of such pages take without a warning.

ORVANE_BINARY_DIR is the build's folder.
"""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["ORVANE_BINARY_DIR"])
PAGES = BUILD / "manual/made/man/man1"
ENVIRONMENT = {**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"}


def read(page):
    """The page as it is shown, and what was wrong with it."""
    run = subprocess.run(["man", "--warnings=w", "--local-file", page], env=ENVIRONMENT,
                         capture_output=True, text=True, check=True)
    return run.stdout, run.stderr


def help_of(*verb):
    return subprocess.run([BUILD / "bin/orvane", "help", *verb], capture_output=True, text=True,
                          check=True).stdout


def verbs_in(help_text):
    listed = re.search(r"\nVerbs:\n((?:  .*\n)+)", help_text)
    return re.findall(r"(?m)^  (\S+)", listed[1]) if listed else []


def all_verbs(*verb):
    """The program, which is no word, and its verbs, each a tuple of words."""
    yield verb
    for name in verbs_in(help_of(*verb)):
        yield from all_verbs(*verb, name)


class ManPagesTest(unittest.TestCase):
    def test_a_mistake_in_a_page_is_told(self):
        wrong = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()), "wrong.1")
        wrong.write_text(".TH WRONG 1\n.SH NAME\nwrong \\- a word\n.XX of no language\n")
        self.assertIn("warning", read(wrong)[1])

    def test_there_is_one_for_every_verb(self):
        pages = {"-".join(("orvane", *verb)) + ".1" for verb in all_verbs()}
        self.assertGreater(len(pages), 10)
        self.assertEqual({path.name for path in PAGES.iterdir()}, pages)

    def test_they_are_shown_without_a_warning(self):
        for page in sorted(PAGES.iterdir()):
            with self.subTest(page=page.name):
                text, warnings = read(page)
                self.assertEqual(warnings, "")
                self.assertIn("\nEXAMPLES\n", text)

    def test_they_tell_every_flag_of_the_help(self):
        for verb in all_verbs():
            with self.subTest(verb=verb):
                text = read(PAGES / ("-".join(("orvane", *verb)) + ".1"))[0]
                options = help_of(*verb).split("\nOptions:\n")[1]
                flags = re.findall(r"(?m)^  (-\S.*?)(?:  |$)", options)
                self.assertIn("-h, --help", flags)
                for flag in flags:
                    self.assertRegex(text, rf"(?m)^ +{re.escape(flag)}(?: |$)")

    def test_a_page_begins_as_pages_do(self):
        text = read(PAGES / "orvane-map-create.1")[0]
        self.assertIn("NAME\n       orvane-map-create - make a mapping file by the plug-in's creator\n",
                      text)
        self.assertIn("orvane map create [OPTIONS] FILE -o MAPPING --picks TABLE\n", text)

    def test_the_program_s_page_tells_its_status_and_its_files(self):
        text = read(PAGES / "orvane.1")[0]
        for words in ("EXIT STATUS", "130    Interrupted", "~/.config/orvane/settings.sqlite",
                      "NO_COLOR", "orvane-import(1)"):
            self.assertIn(words, text)


if __name__ == "__main__":
    unittest.main()
