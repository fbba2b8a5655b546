"""The packages hold what they should, and what is in them works where it was unpacked.

ORVANE_WINE is what runs programs for Windows.
"""

import base64
import gzip
import json
import os
import pathlib
import re
import tarfile
import unittest
import zipfile

import run_paths
from packages import SOURCES, PackageTest, package

class ProgramTest(PackageTest):
    def check_notices(self, text, others=()):
        for words in ("Niels Lohmann", "University of Cincinnati", *others):
            self.assertIn(words, text)

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
        self.check_view(orvane, examples)

    def check_view(self, orvane, examples):
        """The page that lies in the package has the takes in it."""
        self.run_in_folder(*orvane, "view", f"{examples}/walk.htr", "-o", "walk.html", "--no-open")
        page = (self.folder / "walk.html").read_text(encoding="utf-8")
        (takes,) = re.findall(r'id="embedded-takes">(.*?)</script>', page, re.DOTALL)
        (take,) = json.loads(takes)
        self.assertEqual(take["name"], "walk.htr")
        self.assertEqual(gzip.decompress(base64.b64decode(take["gzip"])),
                         (SOURCES / "examples/walk.htr").read_bytes())
        self.assertIn('id="core-gzip"', page)


class LinuxTest(ProgramTest):
    def check_linux_tree(self, root):
        orvane = str(root / "bin/orvane")
        documents = root / "share/doc/orvane"
        self.assertEqual(self.run_in_folder(orvane, "--version").split()[-1], self.version())
        self.check_round_trip([orvane], documents / "examples")
        for name in ("copyright", "linux.md", "CHANGELOG.md", "docs/command-line.md",
                     "docs/formats/htr.md"):
            self.assertTrue((documents / name).is_file(), name)
        self.check_notices((documents / "THIRD-PARTY-NOTICES").read_text())
        self.check_manual(root / "share")
        self.check_no_foreign_folder(root)
        self.assertEqual({path.name: run_paths.entries(path) for path in run_paths.binaries(root)},
                         {"orvane": ["$ORIGIN"], "OrvaneFileIO.so": ["$ORIGIN"], "libskelder.so": []})

    def check_manual(self, share):
        """Pages compressed as well as can be, without a name and a moment, and the completion."""
        pages = {path.name: path.read_bytes() for path in (share / "man/man1").iterdir()}
        self.assertLessEqual({"orvane.1.gz", "orvane-import.1.gz", "orvane-map-create.1.gz"}, set(pages))
        for name, page in pages.items():
            self.assertEqual(page[:9], b"\x1f\x8b\x08" + bytes(5) + b"\x02", name)
            self.assertIn(f"orvane {self.version()}".encode(), gzip.decompress(page), name)
        completion = (share / "bash-completion/completions/orvane").read_text()
        self.assertIn("complete -o bashdefault -o default -F _orvane orvane", completion)

    @staticmethod
    def version():
        return package("orvane_*.deb").name.split("_")[1]

    def test_the_archive_works_where_it_was_unpacked(self):
        with tarfile.open(package("*.tar.gz")) as archive:
            archive.extractall(self.folder)
        (root,) = self.folder.iterdir()
        self.check_linux_tree(root)

    def test_the_page_of_the_archive_tells_what_it_needs(self):
        with tarfile.open(package("*.tar.gz")) as archive:
            archive.extractall(self.folder)
        (page,) = self.folder.rglob("linux.md")
        libraries, versions = set(), {}
        for path in run_paths.binaries(self.folder):
            told = self.run_in_folder("objdump", "--private-headers", str(path))
            libraries.update(re.findall(r"NEEDED +(\S+)", told))
            for kind, number in re.findall(r"\b(GLIBC|GLIBCXX|CXXABI|GCC)_([0-9.]+)\b", told):
                versions[kind] = max(versions.get(kind, []), [int(part) for part in number.split(".")])
        needed = (libraries - {"libskelder.so"}) | {
            f"{kind}_{'.'.join(map(str, number))}" for kind, number in versions.items()}
        stated = re.findall(r"`(lib\S+\.so\.\d+|[A-Z]+_[0-9.]+)`", page.read_text())
        self.assertEqual(sorted(stated), sorted(needed))

    def test_the_debian_package_works_from_its_tree(self):
        self.run_in_folder("dpkg-deb", "--extract", str(package("orvane_*.deb")), "root")
        self.check_linux_tree(self.folder / "root/usr")

    def test_the_debian_package_names_what_it_needs(self):
        def field(name):
            return self.run_in_folder("dpkg-deb", "--field", str(package("orvane_*.deb")), name).strip()

        self.assertEqual(field("Package"), "orvane")
        needed = {entry.split()[0] for entry in field("Depends").split(", ")}
        self.assertLessEqual({"libc6", "libsqlite3-0", "libstdc++6", "zlib1g"}, needed)

    def test_the_three_binaries_lie_side_by_side(self):
        self.run_in_folder("dpkg-deb", "--extract", str(package("orvane_*.deb")), ".")
        binaries = [path for path in self.files() if "/lib/orvane/" in path]
        self.assertEqual([pathlib.Path(path).name for path in binaries],
                         ["OrvaneFileIO.so", "libskelder.so", "orvane"])


class WindowsTest(ProgramTest):
    def unpack(self):
        with zipfile.ZipFile(package("*.zip")) as archive:
            archive.extractall(self.folder)
        (root,) = self.folder.iterdir()
        return root

    def test_it_holds_the_program_the_module_pages_and_examples(self):
        root = self.unpack()
        self.assertEqual(sorted(path.name for path in root.iterdir()),
                         ["CHANGELOG.md", "LICENSE.txt", "OrvaneFileIO.dll", "README.txt",
                          "THIRD-PARTY-NOTICES.txt", "docs", "examples", "orvane-workbench.html", "orvane.exe",
                          "skelder.dll"])
        self.assertEqual(sorted(path.name for path in (root / "examples").iterdir()),
                         ["walk.htr", "walk.mnm", "walk.trc"])
        self.check_no_foreign_folder(root)

    def test_its_page_tells_what_everything_is(self):
        root = self.unpack()
        page = (root / "README.txt").read_text()
        self.assertIn("folder of Skelder's plug-ins", page)
        for path in root.iterdir():
            self.assertRegex(page, rf"(?m)^  {re.escape(path.name)}\\?  +\w", path.name)

    def test_its_texts_have_the_line_ends_of_windows(self):
        for path in self.unpack().glob("*.txt"):
            text = path.read_bytes()
            self.assertGreater(text.count(b"\n"), 10, path)
            self.assertEqual(text.count(b"\n"), text.count(b"\r\n"), path)

    def test_it_brings_the_notices_of_what_is_linked_in(self):
        notices = (self.unpack() / "THIRD-PARTY-NOTICES.txt").read_text()
        self.check_notices(notices, ("GCC RUNTIME LIBRARY EXCEPTION", "winpthreads", "Jean-loup Gailly"))

    def test_the_program_in_it_works_with_nothing_else(self):
        root = self.unpack()
        orvane = [os.environ["ORVANE_WINE"], str(root / "orvane.exe")]
        self.assertEqual(self.run_in_folder(*orvane, "--version").split()[-1],
                         root.name.split("-")[1])
        self.check_round_trip(orvane, root / "examples")


if __name__ == "__main__":
    unittest.main()
