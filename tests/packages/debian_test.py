"""Every package of Debian's kind is as Debian wants one, and they go onto a system together."""

import gzip
import unittest

from packages import FOLDERS, PackageTest

PACKAGES = [path for folder in FOLDERS for path in folder.glob("*.deb")]


class DebianTest(PackageTest):
    def test_lintian_finds_nothing(self):
        self.assertEqual(self.run_in_folder("lintian", "--allow-root", *map(str, PACKAGES)), "")

    def test_no_file_is_in_two_of_them(self):
        owners = {}
        for path in PACKAGES:
            for line in self.run_in_folder("dpkg-deb", "--contents", str(path)).splitlines():
                if not line.startswith("d"):
                    owners.setdefault(line.split()[5], []).append(path.name)
        self.assertEqual({file: names for file, names in owners.items() if len(names) > 1}, {})

    def test_each_brings_its_licence_and_the_changes_up_to_its_version(self):
        for path in PACKAGES:
            name, version, _ = path.name.split("_")
            self.run_in_folder("dpkg-deb", "--extract", str(path), name)
            documents = self.folder / name / "usr/share/doc" / name
            self.assertIn("Permission is hereby granted", (documents / "copyright").read_text())
            changes = gzip.decompress((documents / "changelog.gz").read_bytes()).decode()
            self.assertTrue(changes.startswith(f"orvane ({version}) "), changes)


if __name__ == "__main__":
    unittest.main()
