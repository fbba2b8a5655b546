"""Debian's Python and NumPy read files with the package for them, and with nothing else of ours."""

import unittest

from packages import PackageTest, package

README = """
import orvane
take = orvane.read("walk.trc", warn=False)
print(take.points.shape)
orvane.to_scene("walk.htr", segment_size=2).save("walk.glb")
print(orvane.convert("walk.trc", "walk.bvk", mapping="walk.mnm").markers_kept)
"""


class PythonTest(PackageTest):
    """Both packages are unpacked over one another."""

    def setUp(self):
        super().setUp()
        for name in ("python3-orvane", "orvane"):
            self.run_in_folder("dpkg-deb", "--extract", str(package(f"{name}_*.deb")), "root")
        self.usr = self.folder / "root/usr"

    def run_python(self, code):
        examples = self.usr / "share/doc/orvane/examples"
        for path in examples.iterdir():
            (self.folder / path.name).write_bytes(path.read_bytes())
        modules = f"PYTHONPATH={self.usr}/lib/python3/dist-packages"
        return self.run_in_folder("env", modules, "/usr/bin/python3", "-P", "-c", code)

    def test_files_become_arrays_scenes_and_files(self):
        self.assertEqual(self.run_python(README), "(120, 41, 3)\n39\n")
        self.assertTrue((self.folder / "walk.glb").read_bytes().startswith(b"glTF"))

    def test_the_version_is_that_of_the_package(self):
        code = "import importlib.metadata as m, orvane; print(m.version('orvane'), orvane.__version__)"
        version = package("python3-orvane_*.deb").name.split("_")[1]
        self.assertEqual(self.run_python(code), f"{version} {version}\n")

    def test_the_licences_of_what_is_linked_in_come_with_it(self):
        notices = (self.usr / "share/doc/python3-orvane/THIRD-PARTY-NOTICES").read_text()
        for words in ("Niels Lohmann", "University of Cincinnati", "Wenzel Jakob"):
            self.assertIn(words, notices)


if __name__ == "__main__":
    unittest.main()
