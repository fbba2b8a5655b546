"""What is told to be seen is what the animation shows."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

from animated_gltf import BLOCKS, animated, glb

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])


class SeenTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.scene = pathlib.Path(folder.name) / "in.glb"

    def run_tool(self, *arguments):
        return subprocess.run(["node", str(ROOT / "tools/seen_gltf.mjs"), *arguments],
                              capture_output=True, text=True, check=False)

    def seen(self, gltf, *seconds):
        self.scene.write_bytes(glb(gltf, b"".join(BLOCKS.values())))
        result = self.run_tool(str(self.scene), *seconds)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return json.loads(result.stdout)

    def test_shapes_and_joints_are_seen_unless_they_are_hidden(self):
        everything = ["moving", "moving", "hiding"]
        for second, hidden in (("-1", []), ("0.49", []), ("0.5", ["hiding"]), ("0.7", ["hiding"]),
                               ("0.75", []), ("9", [])):
            told = self.seen(animated(), second)[0]
            self.assertEqual(told["hidden"], hidden, second)
            self.assertEqual(told["seen"], everything[:3 - len(hidden)], second)

    def test_the_nearest_is_the_nearest_of_those_that_are_seen(self):
        at_start, hidden = self.seen(animated(), "0", "0.6")
        self.assertAlmostEqual(at_start["nearest"], 3)
        self.assertAlmostEqual(hidden["nearest"], (6 ** 2 + 5 ** 2) ** 0.5, places=5)

    def test_seconds_are_told_with_what_is_seen(self):
        self.assertEqual([told["second"] for told in self.seen(animated(), "0", "0.5")], [0, 0.5])

    def test_nothing_is_nowhere(self):
        gltf = animated()
        gltf["scenes"][0]["nodes"] = [3]
        gltf["nodes"] = [{}, {}, {}, {"mesh": 0, "name": "hiding", "scale": [0, 0, 0]}]
        del gltf["animations"]
        self.assertEqual(self.seen(gltf, "0"),
                         [{"second": 0, "seen": [], "hidden": ["hiding"], "nearest": None}])

    def test_no_second_is_wrong_usage(self):
        result = self.run_tool("in.glb")
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage: node tools/seen_gltf.mjs ANIMATED.glb SECOND...", result.stderr)


if __name__ == "__main__":
    unittest.main()
