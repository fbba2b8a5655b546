"""The packages hold what they should, and what is in them works where it was unpacked.

ORVANE_PACKAGES names the folders that they lie in, separated by colons; ORVANE_WINDOWS_PROGRAMS the
folder of the program for Windows, which the module is tried with, and ORVANE_WINE what runs it.
"""

import os
import pathlib
import shutil
import subprocess
import tarfile
import tempfile
import unittest
import zipfile

import run_paths

FOLDERS = [pathlib.Path(folder) for folder in os.environ["ORVANE_PACKAGES"].split(":")]
SOURCES = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])


def package(pattern):
    """The one package whose name matches."""
    found = [path for folder in FOLDERS for path in folder.glob(pattern)]
    if len(found) != 1:
        raise AssertionError(f"{pattern}: {found}")
    return found[0]


class PackageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="orvane package ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_in_folder(self, *command):
        result = subprocess.run(command, cwd=self.folder, capture_output=True, text=True,
                                check=False)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return result.stdout

    def files(self):
        return sorted(str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                      if not path.is_dir())

    def check_no_foreign_folder(self, root):
        """Nothing tells where the package was built."""
        for path in root.rglob("*"):
            if path.is_file():
                self.assertNotIn(os.fsencode(SOURCES), path.read_bytes(), path)

    def check_round_trip(self, orvane, examples):
        """Files come in, go out and are converted, by what lies in the package alone."""
        imported = self.run_in_folder(*orvane, "import", f"{examples}/walk.htr", "-o", "walk.glb")
        self.assertIn("Frames  1 to 120 at 60 frames per second", imported)
        self.run_in_folder(*orvane, "export", "walk.glb", "--select", "Hips", "-o", "back.htr")
        compared = self.run_in_folder(*orvane, "compare", f"{examples}/walk.htr", "back.htr",
                                      "--tolerance-mm", "0.01", "--tolerance-deg", "0.001")
        self.assertIn("21", compared)
        self.run_in_folder(*orvane, "convert", f"{examples}/walk.trc", "--mapping",
                           f"{examples}/walk.mnm", "-o", "walk.bvk")
        self.assertGreater((self.folder / "walk.bvk").stat().st_size, 100_000)


class LinuxTest(PackageTest):
    def check_linux_tree(self, root):
        orvane = str(root / "bin/orvane")
        documents = root / "share/doc/orvane"
        self.assertEqual(self.run_in_folder(orvane, "--version").split()[-1], self.version())
        self.check_round_trip([orvane], documents / "examples")
        for name in ("copyright", "linux.md", "CHANGELOG.md", "docs/command-line.md",
                     "docs/formats/htr.md"):
            self.assertTrue((documents / name).is_file(), name)
        self.check_no_foreign_folder(root)
        self.assertEqual({path.name: run_paths.entries(path) for path in run_paths.binaries(root)},
                         {"orvane": ["$ORIGIN"], "OrvaneFileIO.so": ["$ORIGIN"], "libskelder.so": []})

    @staticmethod
    def version():
        return package("*.deb").name.split("_")[1]

    def test_the_archive_works_where_it_was_unpacked(self):
        with tarfile.open(package("*.tar.gz")) as archive:
            archive.extractall(self.folder)
        (root,) = self.folder.iterdir()
        self.check_linux_tree(root)

    def test_the_debian_package_works_from_its_tree(self):
        self.run_in_folder("dpkg-deb", "--extract", str(package("*.deb")), "root")
        self.check_linux_tree(self.folder / "root/usr")

    def test_the_debian_package_names_what_it_needs(self):
        def field(name):
            return self.run_in_folder("dpkg-deb", "--field", str(package("*.deb")), name).strip()

        self.assertEqual(field("Package"), "orvane")
        needed = {entry.split()[0] for entry in field("Depends").split(", ")}
        self.assertLessEqual({"libc6", "libsqlite3-0", "libstdc++6"}, needed)

    def test_the_three_binaries_lie_side_by_side(self):
        self.run_in_folder("dpkg-deb", "--extract", str(package("*.deb")), ".")
        binaries = [path for path in self.files() if "/orvane/" in path and "/doc/" not in path]
        self.assertEqual([pathlib.Path(path).name for path in binaries],
                         ["OrvaneFileIO.so", "libskelder.so", "orvane"])


class WindowsTest(PackageTest):
    def unpack(self):
        with zipfile.ZipFile(package("*.zip")) as archive:
            archive.extractall(self.folder)
        (root,) = self.folder.iterdir()
        return root

    def test_it_holds_the_module_its_licence_and_a_page(self):
        root = self.unpack()
        self.assertEqual(sorted(path.name for path in root.iterdir()),
                         ["LICENSE.txt", "OrvaneFileIO.dll", "README.txt"])
        page = (root / "README.txt").read_bytes()
        self.assertIn(b"folder of Skelder's plug-ins", page)
        self.assertEqual(page.count(b"\n"), page.count(b"\r\n"))

    def test_the_module_works_in_a_host(self):
        root = self.unpack()
        programs = pathlib.Path(os.environ["ORVANE_WINDOWS_PROGRAMS"])
        for name in ("orvane.exe", "skelder.dll"):
            shutil.copy(programs / name, root / name)
        self.check_round_trip([os.environ["ORVANE_WINE"], str(root / "orvane.exe")],
                              SOURCES / "examples")


if __name__ == "__main__":
    unittest.main()
