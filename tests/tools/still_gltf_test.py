"""A still shows an animated file's shapes where the animation has them."""

import json
import os
import pathlib
import struct
import subprocess
import tempfile
import unittest

from animated_gltf import BLOCKS, HALF, animated, glb

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
def corners(data, mesh, attribute="POSITION"):
    """What a still's mesh has at its corners, and the still's JSON."""
    length = struct.unpack_from("<I", data, 12)[0]
    gltf = json.loads(data[20:20 + length])
    accessor = gltf["accessors"][gltf["meshes"][mesh]["primitives"][0]["attributes"][attribute]]
    view = gltf["bufferViews"][accessor["bufferView"]]
    start = 28 + length + view["byteOffset"]
    places = list(struct.iter_unpack("<3f", data[start:start + view["byteLength"]]))
    return places, gltf


class StillTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "in.glb").write_bytes(glb(animated(), b"".join(BLOCKS.values())))

    def run_tool(self, name, *arguments):
        return subprocess.run(["node", str(ROOT / "tools" / name), *arguments], cwd=self.folder,
                              capture_output=True, text=True, check=False)

    def still(self, *seconds):
        result = self.run_tool("still_gltf.mjs", "in.glb", "out.glb", *seconds)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return (self.folder / "out.glb").read_bytes()

    def assert_corners(self, actual, expected):
        for actual_corner, expected_corner in zip(actual, expected, strict=True):
            for a, b in zip(actual_corner, expected_corner, strict=True):
                self.assertAlmostEqual(a, b, places=5)

    def test_shapes_stand_where_their_nodes_are(self):
        for second, place in (("-1", 0), ("0", 0)):
            self.assert_corners(corners(self.still(second), 0)[0],
                                [(place, 0, 5), (place + 1, 0, 5), (place, 1, 5)])
        for second in ("1", "7"):
            self.assert_corners(corners(self.still(second), 0)[0],
                                [(10, 0, 5), (10, 1, 5), (9, 0, 5)])
        self.assert_corners(corners(self.still("0.5"), 0)[0],
                            [(5, 0, 5), (5 + HALF, HALF, 5), (5 - HALF, HALF, 5)])

    def test_skinned_shapes_stand_where_their_joints_are(self):
        self.assert_corners(corners(self.still("1"), 1)[0], [(10, 0, 6), (10, 1, 6), (9, 0, 6)])

    def test_every_second_has_its_own_shapes(self):
        data = self.still("0", "1")
        self.assert_corners(corners(data, 0)[0][:1], [(0, 0, 5)])
        self.assert_corners(corners(data, 3)[0][:1], [(10, 0, 5)])

    def test_what_is_hidden_is_left_out(self):
        for second, meshes in (("0.49", 3), ("0.5", 2), ("0.74", 2), ("0.75", 3)):
            self.assertEqual(len(corners(self.still(second), 0)[1]["meshes"]), meshes, second)

    def test_normals_turn_with_their_shapes(self):
        self.assert_corners(corners(self.still("1"), 0, "NORMAL")[0], [(-1, 0, 0)] * 3)
        self.assertNotIn("NORMAL", corners(self.still("1"), 0)[1]["meshes"][1]["primitives"][0]
                         ["attributes"])

    def test_nothing_moves_any_more(self):
        gltf = corners(self.still("0"), 0)[1]
        self.assertNotIn("animations", gltf)
        self.assertNotIn("skins", gltf)

    def test_the_validator_finds_nothing(self):
        self.still("0", "0.3")
        result = self.run_tool("validate_gltf.mjs", "out.glb")
        self.assertEqual(result.stdout, "1 files, 0 errors and warnings\n")

    def test_no_second_is_wrong_usage(self):
        self.assertEqual(self.run_tool("still_gltf.mjs", "in.glb", "out.glb").returncode, 2)


class RenderTest(unittest.TestCase):
    def test_too_few_arguments_are_wrong_usage(self):
        result = subprocess.run([str(ROOT / "tools/render_scene.sh"), "scene.glb"],
                                capture_output=True, text=True, check=False)
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage: tools/render_scene.sh SCENE.glb PICTURE.png", result.stderr)


if __name__ == "__main__":
    unittest.main()
