"""The walk by way of Blender, which has to be installed: not a part of the automatic builds."""
import json
import math
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
ORVANE = pathlib.Path(os.environ["ORVANE_BINARY_DIR"]) / "bin/orvane"
SAVE = SOURCE / "tests/blender/save.py"
WALK = SOURCE / "examples/walk.htr"

# Blender takes the Python that it finds first for its own.
ENVIRONMENT = dict(os.environ, PATH="/usr/local/bin:/usr/bin:/bin")


def product(left, right):
    return [[sum(left[i][k] * right[k][j] for k in range(3)) for j in range(3)] for i in range(3)]


def transposed(matrix):
    return [list(column) for column in zip(*matrix)]


def turn(angles):
    """Rz(z) Ry(y) Rx(x), for columns."""
    (cx, sx), (cy, sy), (cz, sz) = ((math.cos(angle), math.sin(angle)) for angle in angles)
    about_x = [[1, 0, 0], [0, cx, -sx], [0, sx, cx]]
    about_y = [[cy, 0, sy], [0, 1, 0], [-sy, 0, cy]]
    about_z = [[cz, -sz, 0], [sz, cz, 0], [0, 0, 1]]
    return product(about_z, product(about_y, about_x))


def degrees_between(left, right):
    difference = product(transposed(left), right)
    sine = math.hypot(difference[2][1] - difference[1][2], difference[0][2] - difference[2][0],
                      difference[1][0] - difference[0][1]) / 2
    return math.degrees(math.atan2(sine, (sum(difference[i][i] for i in range(3)) - 1) / 2))


def turns_from_rest(file):
    """By name and frame: how a segment is turned in the world from how it rests there."""
    command = [ORVANE, "info", file, "--json", "--frames", "--no-report"]
    motion = json.loads(subprocess.run(command, capture_output=True, check=True).stdout)
    identity = [[1, 0, 0], [0, 1, 0], [0, 0, 1]]
    rests, moved, turns = {}, {}, {}
    for segment in motion["segments"]:
        name, parent = segment["name"], segment["parent"]
        base = turn(segment["base_rotation_rad"])
        rests[name] = product(rests.get(parent, identity), base)
        for frame, values in enumerate(segment["frames"]):
            local = product(base, turn(values[3:6]))
            world = product(moved.get((parent, frame), identity), local)
            moved[name, frame] = world
            turns[name, frame] = product(world, transposed(rests[name]))
    return turns


@unittest.skipIf(shutil.which("blender") is None, "Blender is not installed")
class BlenderTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.run_program(ORVANE, "import", WALK, "-o", "walk.glb", "--quiet")

    def run_program(self, *command):
        result = subprocess.run(command, cwd=self.folder, env=ENVIRONMENT, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout

    def by_way_of_blender(self, heuristic):
        """The walk as it comes back."""
        log = self.run_program("blender", "-b", "--factory-startup", "--python", SAVE, "--",
                               "walk.glb", f"{heuristic}.glb", heuristic, "60")
        self.assertTrue((self.folder / f"{heuristic}.glb").exists(), log)
        self.run_program(ORVANE, "export", f"{heuristic}.glb", "-o", f"{heuristic}.htr", "--quiet")
        return self.folder / f"{heuristic}.htr"

    def expect_same(self, back, degrees):
        print(self.run_program(ORVANE, "compare", WALK, back, "--tolerance-mm", "0.01",
                               "--tolerance-deg", degrees))

    def test_bones_that_are_kept_come_back(self):
        self.expect_same(self.by_way_of_blender("BLENDER"), "0.01")

    def test_bones_that_are_turned_come_back_and_move_alike(self):
        turned = self.by_way_of_blender("TEMPERANCE")
        self.expect_same(turned, "180")
        kept = turns_from_rest(self.by_way_of_blender("BLENDER"))
        back = turns_from_rest(turned)
        self.assertEqual(kept.keys(), back.keys())
        self.assertEqual(len(back), 21 * 120)
        worst = max(degrees_between(kept[place], back[place]) for place in kept)
        print(f"turned from rest: {worst:.6f} degrees apart at the most")
        self.assertLess(worst, 0.01)


if __name__ == "__main__":
    unittest.main()
