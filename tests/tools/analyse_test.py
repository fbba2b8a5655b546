"""Files are analysed together, and what is wrong with one is still found and told."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

TOOL = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"]) / "tools" / "analyse.py"

# Knows what to say of a file that holds BAD, and of two that are together and must not be.
FAKE_TIDY = """#!/usr/bin/env python3
import re, sys
file = next(word for word in sys.argv[1:] if word.endswith(".cpp"))
text = open(file).read()
parts = [open(name).read() for name in re.findall('#include "(/.*)"', text)] or [text]
with open("runs.txt", "a") as runs:
    runs.write(f"{len(parts)}\\n")
if any("BAD" in part for part in parts):
    print(f"{file}: bad")
    sys.exit(1)
if sum("LONER" in part for part in parts) and len(parts) > 1:
    sys.exit(1)
"""


class AnalyseTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()
        tidy = self.root / "clang-tidy"
        tidy.write_text(FAKE_TIDY, encoding="utf-8")
        tidy.chmod(0o755)

    def analyse(self, files):
        """Exit status, output, and the numbers of files in each run, for {name: text}."""
        entries = []
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(exist_ok=True)
            path.write_text(text, encoding="utf-8")
            entries.append({"file": str(path), "command": f"g++ -O2 -o {path}.o -c {path}"})
        (self.root / "compile_commands.json").write_text(json.dumps(entries), encoding="utf-8")
        environment = os.environ | {"PATH": f"{self.root}:{os.environ['PATH']}"}
        run = subprocess.run([TOOL, self.root], input="\n".join(entry["file"] for entry in entries),
                             cwd=self.root, env=environment, capture_output=True, text=True,
                             check=False)
        runs = self.root / "runs.txt"
        counts = sorted(map(int, runs.read_text().split())) if runs.exists() else []
        return run.returncode, run.stdout, counts

    def test_files_of_a_folder_are_analysed_as_one(self):
        status, output, runs = self.analyse({"a/1.cpp": "", "a/2.cpp": "", "b/3.cpp": ""})
        self.assertEqual((status, output, runs), (0, "", [1, 2]))

    def test_files_that_declare_the_same_name_for_themselves_are_not(self):
        first = "namespace {\nint Same(int a) { return a; }\n}  // namespace\n"
        for second in (first, "namespace {\nstruct Same {};\n}  // namespace\n",
                       "using x::Same;\n", "#define Same 1\n"):
            with self.subTest(second):
                (self.root / "runs.txt").unlink(missing_ok=True)
                status, _, runs = self.analyse({"a/1.cpp": first, "a/2.cpp": second})
                self.assertEqual((status, runs), (0, [1, 1]))

    def test_a_finding_is_told_of_the_file_that_has_it(self):
        files = {f"a/{number}.cpp": "" for number in range(5)} | {"a/3.cpp": "BAD"}
        status, output, _ = self.analyse(files)
        self.assertEqual((status, output), (1, f"{self.root}/a/3.cpp: bad\n"))

    def test_what_comes_of_the_grouping_alone_is_no_finding(self):
        status, output, runs = self.analyse({"a/1.cpp": "LONER", "a/2.cpp": ""})
        self.assertEqual((status, output, runs), (0, "", [1, 1, 2]))

    def test_finding_no_file_at_all_is_an_error(self):
        status, _, _ = self.analyse({})
        self.assertEqual(status, 1)


if __name__ == "__main__":
    unittest.main()
