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

    def test_our_own_scenes_are_told_by_what_was_measured(self):
        scene = ROOT / "tests/data/scenes/version-3-recorded.glb"
        result = self.run_tool(str(scene), "0", "0.06", "0.1")
        self.assertEqual(result.stderr, "")
        first, later, measured = json.loads(result.stdout)
        self.assertEqual(first["hidden"], ["hidden", "never"])
        self.assertEqual(first["nearest"], 0)  # of the one that is left at the origin
        self.assertEqual(later["hidden"], ["hidden", "never"])
        self.assertEqual(measured["hidden"], ["never"])
        self.assertEqual(measured["seen"], ["whole", "hidden", "held", "at the origin", "parent"])
        self.assertGreater(measured["nearest"], 0.1)

    def test_no_second_is_wrong_usage(self):
        result = self.run_tool("in.glb")
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage: node tools/seen_gltf.mjs ANIMATED.glb SECOND...", result.stderr)


if __name__ == "__main__":
    unittest.main()
