"""The validator's run tells good files from bad ones, and never passes without a file."""

import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])

GOOD = '{"asset": {"version": "2.0"}}'
WARNED = """{"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
             "extensionsUsed": ["KHR_lights_punctual"], "nodes": [{"name": "a", "unknown": 1}]}"""
WRONG = '{"asset": {"version": "2.0"}, "nodes": [{"children": [5]}]}'


class ValidateTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def validate(self, *names):
        paths = [str(self.folder / name) for name in names]
        return subprocess.run(["node", str(ROOT / "tools/validate_gltf.mjs"), *paths],
                              capture_output=True, text=True, check=False)

    def write(self, name, text):
        (self.folder / name).write_text(text)

    def test_a_good_file_passes(self):
        self.write("good.gltf", GOOD)
        result = self.validate("good.gltf")
        self.assertEqual(result.stdout, "1 files, 0 errors and warnings\n")
        self.assertEqual(result.returncode, 0)

    def test_errors_are_told_with_file_place_and_code(self):
        self.write("wrong.gltf", WRONG)
        result = self.validate("wrong.gltf")
        self.assertIn("wrong.gltf: error: UNRESOLVED_REFERENCE at /nodes/0/children/0:",
                      result.stdout)
        self.assertEqual(result.returncode, 1)

    def test_warnings_fail_too(self):
        self.write("warned.gltf", WARNED)
        result = self.validate("warned.gltf")
        self.assertIn("warned.gltf: warning: UNEXPECTED_PROPERTY", result.stdout)
        self.assertEqual(result.returncode, 1)

    def test_what_is_no_gltf_fails(self):
        self.write("noise.glb", "noise")
        self.assertEqual(self.validate("noise.glb").returncode, 1)

    def test_all_files_of_a_folder_are_looked_at(self):
        self.write("good.gltf", GOOD)
        self.write("wrong.gltf", WRONG)
        self.write("other.txt", "not looked at")
        result = self.validate(".")
        self.assertIn("wrong.gltf", result.stdout)
        self.assertIn("2 files,", result.stdout)

    def test_an_empty_folder_does_not_pass(self):
        self.assertEqual(self.validate(".").returncode, 2)

    def test_no_argument_is_wrong_usage(self):
        self.assertEqual(self.validate().returncode, 2)


if __name__ == "__main__":
    unittest.main()
