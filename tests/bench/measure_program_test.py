"""The measurements of the program run, every row of them, and the floors do what the program does."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
BUILD = pathlib.Path(os.environ["ORVANE_BINARY_DIR"])
NUMBER = r" +\d+\.\d+"
RATIOS = 3 * NUMBER
WHOLE_PROGRAMS = ("info H", "info T", "convert T", "import H", "export H")


def measure(*flags):
    return subprocess.run([ROOT / "bench/measure_program.py", BUILD, "--quick", "--pairs", "1", *flags],
                          capture_output=True, text=True, check=False)


def program(name, *arguments):
    subprocess.run([BUILD / name, *map(str, arguments)], capture_output=True, check=True)


class RowsTest(unittest.TestCase):
    def rows_of(self, part):
        result = measure("--part", part)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout.splitlines()[1:]

    def test_floors_have_a_ratio_for_each_job_and_a_peak_for_whole_programs(self):
        rows = self.rows_of("floors")
        forms = [f"{name}{2 * NUMBER}{RATIOS}{NUMBER}" for name in WHOLE_PROGRAMS]
        forms += [f"reading {name}{2 * NUMBER}{RATIOS}" for name in "HT"]
        self.assertEqual(len(rows), len(forms))
        for row, form in zip(rows, forms):
            self.assertRegex(row, f"^{form}$")

    def test_growth_is_told_by_bytes_segments_markers_and_frames(self):
        rows = self.rows_of("growth")
        for row in rows:
            self.assertRegex(row, rf"(byte|segment|marker|frame) +\d+ +\d+{2 * NUMBER}{RATIOS}{NUMBER}$")
        units = [re.search("byte|segment|marker|frame", row)[0] for row in rows]
        self.assertEqual({unit: units.count(unit) for unit in units},
                         {"byte": 4, "segment": 4, "marker": 2, "frame": 3})

    def test_jobs_without_a_floor_are_told_alone(self):
        for row in self.rows_of("alone"):
            self.assertRegex(row, rf"^(import|convert) .*\w{2 * NUMBER}$")

    def test_no_pairs_are_wrong_usage(self):
        result = measure("--pairs", "0")
        self.assertEqual(result.returncode, 2)
        self.assertIn("--pairs", result.stderr)


class FloorTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def points(self, name):
        return (self.folder / name).read_bytes().partition(b"\n$Points\n")[2]

    def test_converting_barely_gives_the_points_of_the_program(self):
        markers = self.folder / "markers.trc"
        program("bench/write_markers", markers, 7, 40)
        text = markers.read_text().splitlines(keepends=True)
        text[20] = re.sub(r"(\t[^\t]+){3}\n", "\t\t\t\n", text[20])
        text[21] = re.sub(r"\t[^\t]+\n", "\t-0.00000049\n", text[21])
        text[22] = re.sub(r"\t[^\t]+\n", "\t12345678901234567.125\n", text[22])
        text[23] = re.sub(r"\t[^\t]+\n", "\t0.0000125\n", text[23])
        markers.write_text("".join(text))
        program("bench/floor", "bvk", markers, self.folder / "floor.bvk")
        program("bin/orvane", "convert", markers, "-o", self.folder / "program.bvk", "--quiet")
        self.assertIn(b"DROPOUT", self.points("program.bvk"))
        self.assertEqual(self.points("floor.bvk"), self.points("program.bvk"))

    def test_what_is_imported_and_exported_barely_is_the_motion_that_was_read(self):
        motion, keys, back = (self.folder / name for name in ("motion.htr", "floor.keys", "back.htr"))
        program("bench/write_motion", motion, 3, 20, "tree")
        program("bench/floor", "import", motion, keys)
        program("bench/floor", "export", keys, back)
        rows = [[float(cell) for cell in line.split("\t")] for line in back.read_text().splitlines() if line[0] != "["]
        read = [[float(cell) for cell in line.split("\t")]
                for line in motion.read_text().splitlines() if line[0].isdigit()]
        self.assertEqual(len(rows), 60)
        for row, expected in zip(rows, read):
            for cell, value in zip(row, expected):
                self.assertAlmostEqual(cell, value, delta=1e-4)


if __name__ == "__main__":
    unittest.main()
