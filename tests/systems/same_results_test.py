"""Both systems make the same of the same files, but for the last bit of a sine."""

import json
import re

import systems

# Scenes hold numbers of single precision: neighbours are so far apart, as a share of their size.
# What is zero but for the last bit of a sine is as small as that bit makes a length.
NEIGHBOURS = 2.0**-23
NOTHING_MM = 1e-12


def differences(ours, theirs, place=""):
    """Where two JSON values differ, each place as a text. Numbers may be neighbours."""
    if type(ours) is not type(theirs) and not {type(ours), type(theirs)} <= {int, float}:
        return [f"{place}: {ours} and {theirs}"]
    if isinstance(ours, dict):
        if ours.keys() != theirs.keys():
            return [f"{place}: {sorted(ours)} and {sorted(theirs)}"]
        return [found for key in ours for found in differences(ours[key], theirs[key], f"{place}.{key}")]
    if isinstance(ours, list):
        if len(ours) != len(theirs):
            return [f"{place}: {len(ours)} and {len(theirs)} values"]
        return [found for index, pair in enumerate(zip(ours, theirs))
                for found in differences(*pair, f"{place}[{index}]")]
    if isinstance(ours, float) or isinstance(theirs, float):
        allowed = max(NOTHING_MM, NEIGHBOURS * max(abs(ours), abs(theirs)))
        return [] if abs(ours - theirs) <= allowed else [f"{place}: {ours} and {theirs}"]
    return [] if ours == theirs else [f"{place}: {ours} and {theirs}"]


def without_sign_of_zero(text):
    return re.sub(r"-(0\.0+)\b", r"\1", text)


class ComparisonTest(systems.unittest.TestCase):
    """The comparison itself finds what it is there for."""

    def test_numbers_may_be_neighbours_but_no_more(self):
        self.assertEqual(differences([1.0, 900.0, 0.0], [1.0 + 2.0**-23, 900.0, 6e-14]), [])
        self.assertEqual(len(differences([1.0, 900.0, 0.0], [1.0 + 2.0**-21, 901.0, 1e-9])), 3)

    def test_everything_else_is_equal(self):
        for ours, theirs in (({"a": 1}, {"b": 1}), ([1], [1, 2]), (80, 81), ("x", "y"), (None, 0),
                             (True, False)):
            self.assertEqual(len(differences(ours, theirs)), 1, ours)

    def test_a_zero_has_no_sign_and_other_numbers_have(self):
        self.assertEqual(without_sign_of_zero("-0.000000\t-0.100000\t-10.000000"),
                         "0.000000\t-0.100000\t-10.000000")


class SameResultsTest(systems.SystemsTest):
    def expect_same_scene(self, file, *flags):
        self.on_windows("import", f"examples\\{file}", "-o", "windows.glb", *flags)
        self.here("import", f"examples/{file}", "-o", "here.glb", *flags)
        ours, theirs = self.scene("here.glb"), self.scene("windows.glb")
        self.assertEqual((ours.pop("file"), theirs.pop("file")), ("here.glb", "windows.glb"))
        self.assertGreater(len(ours["nodes"]), 20)
        self.assertEqual(differences(ours, theirs)[:20], [])

    def test_an_imported_motion_is_the_same_scene(self):
        self.expect_same_scene("walk.htr")

    def test_so_it_is_with_other_choices(self):
        self.expect_same_scene("walk.htr", "--tcb", "--end-effectors", "--base-position",
                               "--scale", "0.1", "--range", "3:50", "--system-unit", "cm")

    def test_imported_markers_are_the_same_scene(self):
        self.expect_same_scene("walk.trc")

    def test_an_exported_motion_is_the_same_text(self):
        self.here("import", "examples/walk.htr", "-o", "walk.glb")
        self.on_windows("export", "walk.glb", "--select", "Hips", "-o", "windows.htr")
        self.here("export", "walk.glb", "--select", "Hips", "-o", "here.htr")
        ours, theirs = (without_sign_of_zero(self.read(name).decode())
                        for name in ("here.htr", "windows.htr"))
        self.assertGreater(len(ours.splitlines()), 2000)
        self.assertEqual(ours.splitlines(), theirs.splitlines())
        self.assertEqual(ours.count("\r\n"), theirs.count("\r\n"))

    def test_a_motion_that_went_in_and_out_differs_by_no_more_than_a_millionth(self):
        self.on_windows("import", "examples\\walk.htr", "-o", "windows.glb")
        self.on_windows("export", "windows.glb", "--select", "Hips", "-o", "windows.htr")
        self.here("import", "examples/walk.htr", "-o", "here.glb")
        self.here("export", "here.glb", "--select", "Hips", "-o", "here.htr")
        found = json.loads(self.on_windows("compare", "here.htr", "windows.htr", "--json"))
        self.assertEqual(found["frames"], [1, 120])
        self.assertLessEqual(found["position_mm"]["largest"], 1e-6)
        self.assertLessEqual(found["orientation_deg"]["largest"], 1e-6)

    def test_converted_markers_are_the_same_bytes_but_for_line_ends(self):
        flags = ("--mapping", "examples/walk.mnm", "--offset", "10,-20.5,3")
        self.on_windows("convert", "examples\\walk.trc", "-o", "windows.bvk", *flags)
        self.here("convert", "examples/walk.trc", "-o", "here.bvk", *flags)
        ours, theirs = self.read("here.bvk").decode(), self.read("windows.bvk").decode()
        self.assertEqual(theirs.count("\n"), theirs.count("\r\n"))
        theirs = theirs.replace("\r\n", "\n").replace("windows", "here")
        self.assertEqual(ours.splitlines(), theirs.splitlines())
        self.assertIn("$DateTime   Wed Jun 30 21:49:08 1993\n", ours)

    def test_a_created_mapping_is_the_same_but_for_line_ends(self):
        picks = "examples/walk.mnm"
        self.on_windows("map", "create", "examples\\walk.trc", "-o", "windows.mnm", "--picks", picks)
        self.here("map", "create", "examples/walk.trc", "-o", "here.mnm", "--picks", picks)
        self.assertGreater(len(self.read("here.mnm")), 300)
        self.assertEqual(self.read("here.mnm").replace(b"\n", b"\r\n"), self.read("windows.mnm"))

    def test_what_is_told_of_a_file_is_the_same(self):
        for arguments in (("info", "examples/walk.htr", "--json", "--frames"),
                          ("info", "examples/walk.trc", "--json", "--frames"),
                          ("check", "examples/walk.htr", "examples/walk.trc", "--json")):
            self.assertEqual(differences(json.loads(self.here(*arguments)),
                                         json.loads(self.on_windows(*arguments)))[:20], [])


if __name__ == "__main__":
    systems.unittest.main()
