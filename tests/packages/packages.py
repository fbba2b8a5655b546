"""The packages that are tested, and what all of their tests do.

ORVANE_PACKAGES names the folders that they lie in, separated by colons.
"""

import os
import pathlib
import subprocess
import tempfile
import unittest

FOLDERS = [pathlib.Path(folder) for folder in os.environ["ORVANE_PACKAGES"].split(":")]
SOURCES = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])


def package(pattern):
    """The one package whose name matches."""
    found = [path for folder in FOLDERS for path in folder.glob(pattern)]
    if len(found) != 1:
        raise AssertionError(f"{pattern}: {found}")
    return found[0]


class PackageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="orvane package ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_in_folder(self, *command):
        result = subprocess.run(command, cwd=self.folder, capture_output=True, text=True,
                                check=False)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return result.stdout

    def files(self):
        return sorted(str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                      if not path.is_dir())

    def check_no_foreign_folder(self, root):
        """Nothing tells where the package was built."""
        for path in root.rglob("*"):
            if path.is_file():
                self.assertNotIn(os.fsencode(SOURCES), path.read_bytes(), path)
