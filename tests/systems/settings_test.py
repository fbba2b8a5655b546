"""What the dialogs store in the registry, read and written by the system's own tool."""

import re
import struct

import systems

ROOT_KEY = r"HKCU\Software\Orvane"


def key_of(owner):
    return rf"{ROOT_KEY}\OrvaneFileIO\Skelder\{owner}"


def flag(value):
    return "hex:01" if value else "hex:00"


def double_word(packed):
    return f"dword:{struct.unpack('<I', packed)[0]:08x}"


def quad_word(number):
    return "hex(b):" + ",".join(f"{byte:02x}" for byte in struct.pack("<d", number))


class SettingsTest(systems.SystemsTest):
    def setUp(self):
        super().setUp()
        self.forget_all()
        self.addCleanup(self.forget_all)

    def reg(self, *arguments, status=0):
        return self.run_command(systems.WINE, "reg", *arguments, status=status)

    def is_there(self, key):
        return systems.subprocess.run([systems.WINE, "reg", "query", key], capture_output=True,
                                      check=False).returncode == 0

    def forget_all(self):
        if self.is_there(ROOT_KEY):
            self.reg("delete", ROOT_KEY, "/f")

    def stored(self, owner):
        """The values of a class by their names, in the form that tells their types and all their bytes."""
        self.reg("export", key_of(owner), "stored.reg", "/y")
        return dict(re.findall(r'(?m)^"(\w+)"=(.*?)\r?$', self.read("stored.reg").decode("utf-16")))

    def run_as_user(self, verb, file, output, *flags):
        self.on_windows(verb, file, "-o", output, "--force", "--quiet", "--settings", "user", *flags)

    def test_the_choices_for_a_motion_are_stored_in_their_types_and_sizes(self):
        self.run_as_user("import", "examples\\walk.htr", "walk.glb", "--tcb", "--end-effectors",
                         "--segment-size", "2.5", "--scale", "0.1", "--range", "2:3")
        self.assertEqual(self.stored("ImportHTR"), {
            "Apply": flag(False), "Animate": flag(True), "KeyBasePosition": flag(False),
            "EndEffectors": flag(True), "Range": flag(True), "FPS": flag(False),
            "RotationController": double_word(struct.pack("<i", 1)),
            "Size": double_word(struct.pack("<f", 2.5)), "ScaleFactor": quad_word(0.1)})

    def test_so_are_those_for_markers(self):
        self.run_as_user("import", "examples\\walk.trc", "walk.glb", "--point", "--root-node",
                         "--size", "40", "--scale", "2")
        self.assertEqual(self.stored("ImportTRC"), {
            "Apply": flag(False), "Geometry": flag(False), "SelectedOnly": flag(False),
            "RootNode": flag(True), "Range": flag(False), "FPS": flag(False),
            "Size": double_word(struct.pack("<f", 40)), "ScaleFactor": quad_word(2)})

    def test_so_are_those_of_an_export_whose_scale_is_cut_to_four_bytes(self):
        self.here("import", "examples/walk.htr", "-o", "walk.glb")
        self.run_as_user("export", "walk.glb", "walk.htr", "--select", "Hips", "--current-pose",
                         "--offset", "7", "--scale", "0.1")
        self.assertEqual(self.stored("ExportHTR"), {
            "Pose": flag(False), "Animate": flag(True), "ParentTransforms": flag(True),
            "Range": flag(False), "Offset": double_word(struct.pack("<i", 7)),
            "ScaleFactor": double_word(struct.pack("<f", 0.1))})

    def test_numbers_can_be_read_by_anybody(self):
        self.run_as_user("import", "examples\\walk.htr", "walk.glb", "--segment-size", "2.5")
        lines = self.reg("query", key_of("ImportHTR")).split("\n")
        told = {line.split()[0]: line.split()[1:] for line in lines if line.startswith("    ")}
        self.assertEqual(told["Size"], ["REG_DWORD", "0x40200000"])
        self.assertEqual(told["ScaleFactor"][0], "REG_QWORD")
        self.assertEqual(told["Animate"], ["REG_BINARY", "01"])

    def test_flags_of_one_and_of_four_bytes_are_read_as_told(self):
        for stored, effectors in (("01", 5), ("00", 0), ("01000000", 5), ("00000000", 0)):
            self.reg("add", key_of("ImportHTR"), "/v", "EndEffectors", "/t", "REG_BINARY", "/d", stored, "/f")
            self.run_as_user("import", "examples\\walk.htr", "walk.glb")
            names = [node["name"] for node in self.scene("walk.glb")["nodes"]]
            self.assertEqual(sum("Effector" in name for name in names), effectors, stored)

    def test_numbers_that_somebody_else_has_stored_are_taken(self):
        self.reg("add", key_of("ImportHTR"), "/v", "RotationController", "/t", "REG_DWORD", "/d", "1", "/f")
        self.run_as_user("import", "examples\\walk.htr", "walk.glb")
        self.assertEqual(self.scene("walk.glb")["nodes"][1]["rotation"]["kind"], "tcb")

    def test_fresh_settings_neither_read_nor_store_any(self):
        self.reg("add", key_of("ImportHTR"), "/v", "RotationController", "/t", "REG_DWORD", "/d", "1", "/f")
        self.on_windows("import", "examples\\walk.htr", "-o", "walk.glb", "--end-effectors")
        self.assertEqual(self.scene("walk.glb")["nodes"][1]["rotation"]["kind"], "euler")
        self.assertEqual(self.stored("ImportHTR"), {"RotationController": "dword:00000001"})
        self.forget_all()
        self.on_windows("import", "examples\\walk.htr", "-o", "walk.glb", "--force")
        self.assertFalse(self.is_there(ROOT_KEY))


if __name__ == "__main__":
    systems.unittest.main()
