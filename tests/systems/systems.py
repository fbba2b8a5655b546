"""Runs the program for Windows, by Wine, and the one for this system."""

import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
WINDOWS_PROGRAMS = pathlib.Path(os.environ["ORVANE_BINARY_DIR"]) / "bin"
NATIVE_PROGRAM = ROOT / "build/bin/orvane"
WINE = os.environ["ORVANE_WINE"]
EXAMPLES = ("walk.htr", "walk.trc", "walk.mnm")


class SystemsTest(unittest.TestCase):
    """A folder for each test, with the examples in a folder within."""

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        (self.folder / "examples").mkdir()
        for name in EXAMPLES:
            shutil.copy(ROOT / "examples" / name, self.folder / "examples" / name)

    def run_command(self, *command, status=0):
        """What the command prints, with line ends as on this system. Its clock stands still."""
        environment = dict(os.environ, SOURCE_DATE_EPOCH="741476948")
        result = subprocess.run(command, cwd=self.folder, env=environment, capture_output=True,
                                check=False)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        return result.stdout.decode().replace("\r\n", "\n")

    def on_windows(self, *arguments, status=0, program=WINDOWS_PROGRAMS / "orvane.exe"):
        return self.run_command(WINE, program, *arguments, status=status)

    def here(self, *arguments, status=0):
        return self.run_command(NATIVE_PROGRAM, *arguments, status=status)

    def read(self, name):
        return (self.folder / name).read_bytes()

    def scene(self, name):
        return json.loads(self.here("scene", name, "--json"))
