"""The include checker finds what the table does not allow, and fails when it finds nothing."""

import os
import pathlib
import subprocess
import tempfile
import unittest

CHECKER = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"]) / "tools" / "check_includes.py"

RULES = """
# a comment
core/*:  base/*
base/*:
outer/**: !outer/secret* core/* <library/*>
"""


class CheckIncludesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "rules.txt").write_text(RULES, encoding="utf-8")

    def check(self, files):
        """Exit status and output for files given as {name: text}."""
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        run = subprocess.run([CHECKER, "rules.txt"], cwd=self.root, input="\n".join(files),
                             capture_output=True, text=True, check=False)
        return run.returncode, run.stdout

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

    def test_one_star_does_not_reach_into_folders_below(self):
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

    def test_a_rule_can_refuse_headers_even_of_the_own_folder(self):
        status, output = self.check({"outer/a.h": '#include "outer/secret.h"\n'})
        self.assertEqual((status, output), (1, "outer/a.h:1: may not include outer/secret.h\n"))

    def test_a_file_without_a_rule_is_an_error(self):
        status, output = self.check({"elsewhere/a.h": "#include <vector>\n"})
        self.assertEqual(status, 1)
        self.assertEqual(output, "elsewhere/a.h: no rule says what this file may include\n")

    def test_a_source_file_includes_its_own_header_first(self):
        own = '#pragma once\n#include <vector>\n'
        for text in ('#include <vector>\n#include "core/a.h"\n', '#include <vector>\n'):
            status, output = self.check({"core/a.h": own, "core/a.cpp": text})
            self.assertEqual((status, output),
                             (1, "core/a.cpp:1: has to include core/a.h first\n"))
        status, output = self.check({"core/a.cpp": '// Why.\n\n#include "core/a.h"\n'})
        self.assertEqual((status, output), (0, ""))

    def test_finding_no_include_at_all_is_an_error(self):
        for files in ({}, {"core/a.h": "#pragma once\n"}):
            status, output = self.check(files)
            self.assertEqual((status, output),
                             (1, "check_includes: there was no include to check\n"))


if __name__ == "__main__":
    unittest.main()
