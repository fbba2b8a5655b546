"""The include checker finds what the table does not allow, and fails when it finds nothing."""

import os
import pathlib
import subprocess
import tempfile
import unittest

CHECKER = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"]) / "tools" / "check_includes.py"

PAGE = """
# Which page this is

| Folder | May use |
|---|---|
| `core` | `base` |
| `base` | the standard library |

| Folder | Meaning |
|---|---|
| `elsewhere` | in a table that is none of ours |

| Folder | What is in it | May use |
|---|---|---|
| `outer/entry.cpp`, `outer/entry.h` | one file and another | `**`; not `outer/secret.h` |
| `outer/**` | the rest | `core`, `kinds/*`, `whole/**`, `<library/*>` |
| `kinds/*` | folders of one kind | the standard library |
| `whole/**` | all below | the standard library |
"""

# A file for each row and each name.
TREE = {name: "" for name in ("core/0.h", "base/0.h", "outer/entry.cpp", "outer/entry.h",
                              "outer/secret.h", "kinds/one/0.h", "whole/0.h")}
TREE["outer/entry.cpp"] = '#include "outer/entry.h"\n'


class CheckIncludesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def check(self, files, page=PAGE, tree=None):
        """Exit status and output for files given as {name: text}, beside those of the tree."""
        files = (TREE if tree is None else tree) | files
        (self.root / "page.md").write_text(page, encoding="utf-8")
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        run = subprocess.run([CHECKER, "page.md"], cwd=self.root, input="\n".join(files),
                             capture_output=True, text=True, check=False)
        return run.returncode, run.stdout + run.stderr

    def test_accepts_the_standard_library_own_folder_and_what_the_rule_names(self):
        status, output = self.check({
            "core/a.h": '#pragma once\n#include <vector>\n#include "core/b.h"\n#include "base/c.h"\n',
            "outer/deep/d.cpp": '#include <library/x.h>\n#include "core/a.h"\n',
        })
        self.assertEqual((status, output), (0, ""))

    def test_reports_file_line_and_header_of_every_wrong_include(self):
        status, output = self.check({
            "base/a.cpp": '#include "base/a.h"\n\n  #  include "core/b.h"\n#include <unistd.h>\n',
        })
        self.assertEqual(status, 1)
        self.assertEqual(output, "base/a.cpp:3: may not include core/b.h\n"
                                 "base/a.cpp:4: may not include unistd.h\n")

    def test_a_folder_does_not_stand_for_those_below_it(self):
        status, output = self.check({"core/a.h": '#include "base/deep/b.h"\n'})
        self.assertEqual((status, output), (1, "core/a.h:1: may not include base/deep/b.h\n"))

    def test_another_library_is_allowed_only_in_angle_brackets_and_where_named(self):
        status, output = self.check({
            "core/a.h": "#include <library/x.h>\n",
            "outer/b.h": '#include "library/x.h"\n',
        })
        self.assertEqual(status, 1)
        self.assertEqual(output, "core/a.h:1: may not include library/x.h\n"
                                 "outer/b.h:1: may not include library/x.h\n")

    def test_stars_stand_for_folders_beside_one_another_and_for_all_below(self):
        allowed = ("kinds/one/a.h", "whole/a.h", "whole/deep/a.h")
        refused = ("kinds/a.h", "kinds/one/deep/a.h", "other/a.h")
        status, output = self.check(
            {"outer/a.h": "".join(f'#include "{name}"\n' for name in allowed + refused)})
        self.assertEqual((status, output), (1, "".join(
            f"outer/a.h:{line}: may not include {name}\n" for line, name in enumerate(refused, 4))))

    def test_a_row_can_take_headers_away_even_of_the_own_folder(self):
        status, output = self.check(
            {"outer/entry.h": '#include "whole/0.h"\n#include "outer/secret.h"\n'})
        self.assertEqual((status, output),
                         (1, "outer/entry.h:2: may not include outer/secret.h\n"))

    def test_the_first_row_that_fits_is_the_row_of_a_file(self):
        status, output = self.check({"outer/entry.h": '#include "base/0.h"\n',
                                     "outer/other.h": '#include "base/0.h"\n'})
        self.assertEqual((status, output), (1, "outer/other.h:1: may not include base/0.h\n"))

    def test_a_file_without_a_row_is_an_error(self):
        for name in ("elsewhere/a.h", "core/deep/a.h"):
            status, output = self.check({name: "#include <vector>\n"})
            self.assertEqual(status, 1)
            self.assertIn(f"{name}: no row says what this file may include\n", output)
            (self.root / name).unlink()

    def test_a_row_and_a_name_that_no_file_fits_are_errors(self):
        tree = {name: text for name, text in TREE.items() if not name.startswith("kinds")}
        self.assertEqual(self.check({}, tree=tree), (1, (
            "page.md:17: no file has this row\n"
            "page.md:16: there is no file in kinds/*\n"
            "page.md:17: there is no file in kinds/*\n")))

    def test_a_row_that_those_above_leave_nothing_is_an_error(self):
        page = PAGE + "| `base` | once more | the standard library |\n"
        self.assertEqual(self.check({}, page), (1, "page.md:19: no file has this row\n"))

    def test_what_is_no_list_of_names_is_an_error(self):
        for cell in ("base", "`base` and `core`", "everything", "", "`base`; not core"):
            with self.subTest(cell):
                page = PAGE.replace("| `core` | `base` |", f"| `core` | {cell} |")
                status, output = self.check({}, page)
                self.assertEqual(status, 1)
                self.assertIn("page.md:6: not a list of names between backticks: ", output)

    def test_a_source_file_includes_its_own_header_first(self):
        own = '#pragma once\n#include <vector>\n'
        for text in ('#include <vector>\n#include "core/a.h"\n', '#include <vector>\n'):
            status, output = self.check({"core/a.h": own, "core/a.cpp": text})
            self.assertEqual((status, output),
                             (1, "core/a.cpp:1: has to include core/a.h first\n"))
        status, output = self.check({"core/a.cpp": '// Why.\n\n#include "core/a.h"\n'})
        self.assertEqual((status, output), (0, ""))

    def test_finding_no_include_at_all_is_an_error(self):
        for page, files in (("", {}), ("| Folder | May use |\n| `core` | `core` |\n",
                                       {"core/a.h": "#pragma once\n"})):
            self.assertEqual(self.check(files, page, tree={}),
                             (1, "check_includes: there was no include to check\n"))


if __name__ == "__main__":
    unittest.main()
