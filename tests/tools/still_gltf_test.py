"""A still shows an animated file's shapes where the animation has them."""

import json
import math
import os
import pathlib
import struct
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
HALF = math.sqrt(0.5)

# One triangle that two meshes show: as it is, below a node that moves from x = 0 to x = 10 within a
# second and turns by 90 degrees about z; and bound to that node, one unit away from it.
BLOCKS = {
    "corners": struct.pack("<9f", 0, 0, 0, 1, 0, 0, 0, 1, 0),
    "triangle": struct.pack("<3I", 0, 1, 2),
    "joints": struct.pack("<12H", *[0] * 12),
    "weights": struct.pack("<12f", *[1, 0, 0, 0] * 3),
    "inverse": struct.pack("<16f", 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1),
    "seconds": struct.pack("<2f", 0, 1),
    "moves": struct.pack("<6f", 0, 0, 0, 10, 0, 0),
    "turns": struct.pack("<8f", 0, 0, 0, 1, 0, 0, HALF, HALF),
}
KINDS = {"corners": ("VEC3", 5126, 3), "triangle": ("SCALAR", 5125, 3), "joints": ("VEC4", 5123, 3),
         "weights": ("VEC4", 5126, 3), "inverse": ("MAT4", 5126, 1), "seconds": ("SCALAR", 5126, 2),
         "moves": ("VEC3", 5126, 2), "turns": ("VEC4", 5126, 2)}
INDEX = {name: i for i, name in enumerate(BLOCKS)}


def channel(sampler, path):
    return {"sampler": sampler, "target": {"node": 1, "path": path}}


def animated():
    views = []
    for name, block in BLOCKS.items():
        start = sum(view["byteLength"] for view in views)
        views.append({"buffer": 0, "byteOffset": start, "byteLength": len(block)})
    plain = {"POSITION": INDEX["corners"]}
    skinned = {**plain, "JOINTS_0": INDEX["joints"], "WEIGHTS_0": INDEX["weights"]}
    return {
        "asset": {"version": "2.0"},
        "scene": 0,
        "scenes": [{"nodes": [0, 2]}],
        "nodes": [{"children": [1], "translation": [0, 0, 5]}, {"mesh": 0}, {"mesh": 1, "skin": 0}],
        "meshes": [{"primitives": [{"attributes": attributes, "indices": INDEX["triangle"]}]}
                   for attributes in (plain, skinned)],
        "skins": [{"joints": [1], "inverseBindMatrices": INDEX["inverse"]}],
        "animations": [{
            "channels": [channel(0, "translation"), channel(1, "rotation")],
            "samplers": [{"input": INDEX["seconds"], "output": INDEX[values]}
                         for values in ("moves", "turns")],
        }],
        "accessors": [{"bufferView": i, "type": KINDS[name][0], "componentType": KINDS[name][1],
                       "count": KINDS[name][2]} for name, i in INDEX.items()],
        "bufferViews": views,
        "buffers": [{"byteLength": sum(len(block) for block in BLOCKS.values())}],
    }


def glb(gltf, binary):
    text = json.dumps(gltf).encode()
    text += b" " * (-len(text) % 4)
    chunks = (struct.pack("<II", len(text), 0x4E4F534A) + text +
              struct.pack("<II", len(binary), 0x004E4942) + binary)
    return struct.pack("<4sII", b"glTF", 2, 12 + len(chunks)) + chunks


def corners(data, mesh):
    """The corners of a still's mesh, and its JSON."""
    length = struct.unpack_from("<I", data, 12)[0]
    gltf = json.loads(data[20:20 + length])
    accessor = gltf["accessors"][gltf["meshes"][mesh]["primitives"][0]["attributes"]["POSITION"]]
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
        self.assert_corners(corners(data, 2)[0][:1], [(10, 0, 5)])

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
