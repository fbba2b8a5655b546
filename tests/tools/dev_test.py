"""./dev says what it can do, refuses what it cannot, and installs only what is missing."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])


def run(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True, check=False)


def with_setup(script):
    """Runs a script that has the functions of tools/setup.sh, with installing replaced."""
    replaced = 'as_root() { echo "ran $*" >&2; }'
    return run("bash", "-euo", "pipefail", "-c", f"source tools/setup.sh; {replaced}; {script}")


class CommandsTest(unittest.TestCase):
    def test_help_lists_every_command(self):
        listed = set(re.findall(r"^  (\w+) ", run("./dev", "help").stdout, re.MULTILINE))
        self.assertEqual(listed,
                         {"help", "setup", "build", "test", "windows", "web", "emscripten", "check", "sanitize", "package", "wheel", "bench",
                          "demo", "fuzz"})

    def test_no_command_gives_the_help(self):
        self.assertEqual(run("./dev").stdout, run("./dev", "help").stdout)

    def test_an_unknown_command_is_wrong_usage(self):
        result = run("./dev", "tset")
        self.assertEqual(result.returncode, 2)
        self.assertEqual(result.stdout, "")
        self.assertIn("dev: unknown command 'tset'", result.stderr)

    def test_fuzzing_without_a_number_of_seconds_is_wrong_usage(self):
        for arguments in ([], ["0"], ["-5"], ["a"], ["1.5"]):
            result = run("./dev", "fuzz", *arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertIn("dev: fuzz needs a number of seconds", result.stderr)


# In place of CMake: each target that it is asked to build becomes a program that succeeds, and writes
# the file that it is given when it is there to write one.
BUILDER = """#!/bin/sh
while [ $# -gt 0 ] && [ "$1" != --target ]; do shift; done
for target; do
  for folder in bin bench; do
    mkdir -p build/$folder
    printf '#!/bin/sh\ncase $0 in */write_*) echo made >"$1" ;; *_bench) cat benchmarks ;; esac\n' >"build/$folder/$target"
    chmod +x "build/$folder/$target"
  done
done
"""


class BenchTest(unittest.TestCase):
    def test_it_builds_whatever_it_starts(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        shutil.copy(ROOT / "dev", folder)
        shutil.copytree(ROOT / "tools", folder / "tools")
        shutil.copytree(ROOT / "bench", folder / "bench")
        (folder / "benchmarks").write_text('{"benchmarks": [{"cpu_time": 1}]}')
        (folder / "cmake").write_text(BUILDER)
        (folder / "cmake").chmod(0o755)
        environment = dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}")
        result = subprocess.run(["./dev", "bench"], cwd=folder, env=environment, capture_output=True,
                                text=True, check=False)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn("convert T", result.stdout)


class ContinuousIntegrationTest(unittest.TestCase):
    def test_it_installs_before_anything_else(self):
        commands = re.findall(r"(?m)^\./dev (.*)$", (ROOT / ".ci/run").read_text())
        self.assertEqual(commands[0], "setup")
        self.assertGreater(len(commands), 5)


class SetupTest(unittest.TestCase):
    NEEDS = "$'command bash bash\\ncommand no-such-command one\\nheader no/such.h two\\npath /* x'"

    def test_missing_packages_are_those_whose_command_header_or_path_is_absent(self):
        self.assertEqual(with_setup(f"missing_packages {self.NEEDS}").stdout, "one\ntwo\n")

    def test_nothing_is_done_when_nothing_is_missing(self):
        result = with_setup("need $'command bash bash\\npath /* x'")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def test_what_is_missing_is_named_then_installed_after_one_update(self):
        result = with_setup(f"can_install() {{ true; }}; need {self.NEEDS}")
        self.assertEqual(result.stdout, "dev: installing one two\n")
        update, install = result.stderr.splitlines()
        self.assertTrue(update.endswith(" update"), update)
        self.assertTrue(install.endswith(" one two"), install)

    def test_everything_that_any_command_needs_is_installed_at_once(self):
        nothing_is_there = "has_command() { false; }; has_path() { false; }; can_install() { true; }"
        result = with_setup(f"{nothing_is_there}; need_everything")
        listed = re.findall(r"(?m)^(?:command|header|path) +\S+ +(\S+)$", (ROOT / "tools/setup.sh").read_text())
        self.assertGreater(len(listed), 20)
        self.assertEqual(result.stdout, f"dev: installing {' '.join(sorted(set(listed)))}\n")
        self.assertEqual(len(result.stderr.splitlines()), 2)

    def test_another_system_gets_the_names_and_a_stop(self):
        result = with_setup(f"can_install() {{ false; }}; need {self.NEEDS}; echo went on")
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn("one two", result.stderr)


if __name__ == "__main__":
    unittest.main()
