"""The figures of the tree are right, and circles and long files are found in any state of it."""

import os
import pathlib
import subprocess
import tempfile
import unittest

TOOL = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"]) / "tools" / "structure.py"
GIT = ("git", "-c", "user.name=A", "-c", "user.email=a@b.c", "-c", "commit.gpgsign=false", "-c",
       "maintenance.auto=false")


def including(*headers):
    return "".join(f'#include "{header}"\n' for header in headers)


class StructureTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.git("init", "--quiet", "--template=")

    def git(self, *arguments):
        subprocess.run([*GIT, *arguments], cwd=self.root, check=True)

    def write(self, files):
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")

    def run_tool(self, *arguments, folder=None):
        run = subprocess.run([TOOL, *arguments], cwd=folder or self.root, capture_output=True,
                             text=True, check=False)
        return run.returncode, run.stdout, run.stderr

    def row(self, area, *arguments):
        """The figures of one area: files, lines, median, small ones, share, headers, one user."""
        _, output, _ = self.run_tool(*arguments)
        return next(line.replace(" %", "").split()[1:] for line in output.splitlines()
                    if line.startswith(area + " "))

    def circles(self, files):
        self.write(files)
        status, output, _ = self.run_tool("--check")
        self.assertEqual(status, 1 if output else 0)
        return output.splitlines()

    def test_each_area_and_the_whole_have_their_figures(self):
        self.write({
            "a/x.h": "#pragma once\n#include <vector>\nnamespace a {\n\n}  // namespace a\n",
            "a/x.cpp": including("a/x.h") + "\n" * 49,
            "b/y.cpp": including("a/x.h") + "\n" * 9,
        })
        self.assertEqual(self.row("a"), ["2", "55", "27.5", "1", "7.3", "1", "1"])
        self.assertEqual(self.row("b"), ["1", "10", "10", "1", "10.0", "0", "0"])
        self.assertEqual(self.row("total"), ["3", "65", "10", "2", "7.7", "1", "1"])

    def test_users_of_a_header_are_other_files_than_its_own_source_file(self):
        own = {"a/x.h": "\n", "a/x.cpp": including("a/x.h")}
        for users, with_one in ((0, "0"), (1, "1"), (2, "0")):
            others = {f"b/{number}.cpp": including("a/x.h", "a/x.h") for number in range(users)}
            self.write(own | others)
            with self.subTest(users=users):
                self.assertEqual(self.row("a")[-1], with_one)

    def test_tests_count_only_when_they_are_asked_for(self):
        self.write({"a/x.h": "\n", "a/x.cpp": including("a/x.h"),
                    "tests/a/x_test.cpp": including("a/x.h")})
        self.assertEqual(self.row("total")[0], "2")
        self.assertEqual(self.row("total", "--tests")[0], "3")
        self.assertEqual(self.row("a", "--tests")[-1], "1")

    def test_what_git_ignores_does_not_count(self):
        self.write({".gitignore": "/build/\n", "build/made.cpp": "\n", "a/x.cpp": "\n"})
        self.assertEqual(self.row("total")[0], "1")

    def test_a_circle_of_files_is_found_through_the_source_files_too(self):
        self.assertEqual(self.circles({
            "a/x.h": "\n", "a/x.cpp": including("a/x.h", "a/y.h"),
            "a/y.h": including("a/z.h"),
            "a/z.h": including("a/x.h"),
            "a/user.cpp": including("a/x.h"),
        }), ["circle of files: a/x a/y a/z"])

    def test_a_header_and_its_source_file_are_no_circle(self):
        self.assertEqual(self.circles({
            "a/x.h": "\n", "a/x.cpp": including("a/x.h"), "a/y.cpp": including("a/x.h"),
        }), [])

    def test_a_circle_of_folders_is_found_where_no_files_are_one(self):
        self.assertEqual(self.circles({
            "a/x.h": including("b/y.h"), "b/y.h": "\n",
            "b/deep/z.h": including("a/other.h"), "a/other.h": "\n",
        }), [])
        self.assertEqual(self.circles({"b/w.h": including("a/other.h")}),
                         ["circle of folders: a b"])

    def test_circles_that_touch_one_another_are_one(self):
        self.assertEqual(self.circles({
            "a/1.h": including("a/2.h"), "a/2.h": including("a/1.h", "a/3.h"),
            "a/3.h": including("a/2.h"),
            "a/8.h": including("a/9.h", "a/1.h"), "a/9.h": including("a/8.h"),
        }), ["circle of files: a/1 a/2 a/3", "circle of files: a/8 a/9"])

    def test_a_file_may_have_four_hundred_lines(self):
        self.write({"a/x.cpp": "\n" * 400})
        self.assertEqual(self.run_tool("--check")[:2], (0, ""))
        self.write({"a/x.cpp": "\n" * 401})
        self.assertEqual(self.run_tool("--check")[:2],
                         (1, "a/x.cpp: 401 lines, 400 at most\n"))

    def test_without_check_the_same_is_told_and_is_no_failure(self):
        self.write({"a/x.h": including("a/y.h"), "a/y.h": including("a/x.h")})
        status, output, _ = self.run_tool()
        self.assertEqual(status, 0)
        self.assertEqual(output.splitlines()[-1], "circle of files: a/x a/y")

    def test_a_revision_is_looked_at_as_it_was(self):
        self.write({"a/x.h": including("a/y.h"), "a/y.h": including("a/x.h")})
        self.git("add", ".")
        self.git("commit", "--quiet", "--message", "first")
        self.write({"a/y.h": "\n"})
        self.assertEqual(self.run_tool("--check")[:2], (0, ""))
        self.assertEqual(self.run_tool("--check", "HEAD")[:2], (1, "circle of files: a/x a/y\n"))

    def test_another_checkout_can_be_looked_at(self):
        self.write({"a/x.h": including("a/y.h"), "a/y.h": including("a/x.h")})
        elsewhere = self.enterContext(tempfile.TemporaryDirectory())
        self.assertEqual(self.run_tool("--check", str(self.root), folder=elsewhere)[:2],
                         (1, "circle of files: a/x a/y\n"))

    def test_finding_nothing_to_look_at_is_an_error(self):
        for arguments in ((), ("--check",)):
            self.assertEqual(self.run_tool(*arguments),
                             (1, "", "structure: there was no file to look at\n"))

    def test_a_revision_that_is_none_is_an_error(self):
        status, output, errors = self.run_tool("nowhere")
        self.assertEqual((status, output), (1, ""))
        self.assertIn("nowhere", errors)


if __name__ == "__main__":
    unittest.main()
