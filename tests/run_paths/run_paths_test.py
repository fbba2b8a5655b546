"""What is built finds its libraries from where it lies, and nowhere else.

ORVANE_BINARY_DIR is the build's folder, ORVANE_SOURCE_DIR the repository's.
"""

import os
import pathlib
import subprocess
import tempfile
import unittest

import run_paths

EXAMPLE = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"]) / "examples/walk.htr"
BUILD = pathlib.Path(os.environ["ORVANE_BINARY_DIR"])


class ReadingTest(unittest.TestCase):
    """The reading itself finds what it is there for."""

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        (self.folder / "empty.c").touch()

    def library(self, *flags):
        path = self.folder / "made.so"
        subprocess.run(["gcc", "-shared", "-o", path, self.folder / "empty.c", *flags], check=True)
        return path

    def test_entries_are_all_told(self):
        cases = (
            ([], [], []),
            (["-Wl,-rpath,$ORIGIN"], ["$ORIGIN"], []),
            (["-Wl,-rpath,$ORIGIN/../bin"], ["$ORIGIN/../bin"], []),
            (["-Wl,-rpath,$ORIGIN:"], ["$ORIGIN", ""], [""]),
            (["-Wl,-rpath,:::"], ["", "", "", ""], ["", "", "", ""]),
            (["-Wl,-rpath,/tmp/build:$ORIGIN"], ["/tmp/build", "$ORIGIN"], ["/tmp/build"]),
            (["-Wl,-rpath,lib"], ["lib"], ["lib"]),
            (["-Wl,-rpath,$ORIGINAL"], ["$ORIGINAL"], ["$ORIGINAL"]),
            (["-Wl,-rpath,x,--disable-new-dtags"], ["x"], ["x"]),
        )
        for flags, entries, strange in cases:
            with self.subTest(flags=flags):
                library = self.library(*flags)
                self.assertEqual(run_paths.entries(library), entries)
                self.assertEqual(run_paths.strange(library), strange)

    def test_programs_and_libraries_are_found_and_objects_are_not(self):
        self.library()
        subprocess.run(["gcc", "-c", "-o", self.folder / "empty.o", self.folder / "empty.c"], check=True)
        self.assertEqual(run_paths.binaries(self.folder), [self.folder / "made.so"])


class BuildTest(unittest.TestCase):
    def test_the_product_is_among_what_is_looked_at(self):
        names = {path.name for path in run_paths.binaries(BUILD)}
        self.assertLessEqual({"orvane", "libskelder.so", "OrvaneFileIO.so", "module_test"}, names)

    def test_run_paths_start_from_the_folder_of_the_file(self):
        for path in run_paths.binaries(BUILD):
            with self.subTest(file=str(path.relative_to(BUILD))):
                self.assertEqual(run_paths.strange(path), [])

    def test_only_libraries_of_our_own_are_looked_for(self):
        self.assertEqual(run_paths.entries(BUILD / "bin/orvane"), ["$ORIGIN"])
        self.assertEqual(run_paths.entries(BUILD / "bin/OrvaneFileIO.so"), ["$ORIGIN"])
        self.assertEqual(run_paths.entries(BUILD / "bin/libskelder.so"), [])

    def test_what_lies_in_the_current_folder_is_no_library(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("libsqlite3.so.0", "libstdc++.so.6", "libskelder.so", "OrvaneFileIO.so"):
                (pathlib.Path(folder) / name).touch()
            for arguments in (["import", EXAMPLE, "-o", "walk.glb"], ["info", EXAMPLE]):
                run = subprocess.run([BUILD / "bin/orvane", *arguments], cwd=folder, capture_output=True,
                                     text=True, check=False)
                self.assertEqual((run.returncode, run.stderr), (0, ""))


if __name__ == "__main__":
    unittest.main()
