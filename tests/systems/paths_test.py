"""Blanks and letters of any alphabet in the names of files and folders, the program's own among them."""

import shutil

import systems

FOLDERS = ("two words", "Läufe", "прогулки", "歩行", "a b ä 歩")
PROGRAM_FILES = ("orvane.exe", "skelder.dll", "OrvaneFileIO.dll")


class PathsTest(systems.SystemsTest):
    def walk(self, program, folder):
        """Every kind of file into and out of a folder of that name."""
        (self.folder / folder).mkdir()
        for name in systems.EXAMPLES:
            shutil.copy(self.folder / "examples" / name, self.folder / folder / f"{folder}.{name[-3:]}")
        name = f"{folder}\\{folder}"
        scene, back = f"{folder}\\scene {folder}.glb", f"{folder}\\back {folder}.htr"

        def run(*arguments):
            return self.on_windows(*arguments, program=program)

        self.assertIn(f"Imported {name}.htr\n", run("import", f"{name}.htr", "-o", scene))
        self.assertEqual(self.scene(scene.replace("\\", "/"))["nodes"][0]["name"], folder)
        self.assertIn("Segments  21\n", run("export", scene, "--select", "Hips", "-o", back))
        run("compare", f"{name}.htr", back)
        self.assertIn("clean", run("check", f"{name}.htr", f"{name}.mnm"))
        self.assertIn(f"{name}.mnm: clean", run("check", folder, "--max-severity", "error"))
        run("import", f"{name}.trc", "-o", scene, "--force")
        self.assertIn("1 of 1 converted\n", run("convert", f"{name}.trc", "--mapping", f"{name}.mnm"))
        run("map", "create", f"{name}.trc", "-o", f"{folder}\\made.mnm", "--picks", f"{name}.mnm")
        self.assertEqual(sorted(path.name for path in (self.folder / folder).iterdir()), sorted([
            f"{folder}.htr", f"{folder}.trc", f"{folder}.mnm", f"{folder}.bvk", "made.mnm",
            f"scene {folder}.glb", f"back {folder}.htr"]))

    def test_files_may_have_names_in_any_alphabet(self):
        for folder in FOLDERS:
            with self.subTest(folder=folder):
                self.walk(systems.WINDOWS_PROGRAMS / "orvane.exe", folder)

    def test_so_may_the_folder_of_the_program(self):
        programs = self.folder / "Prögramme 歩 x"
        programs.mkdir()
        for name in PROGRAM_FILES:
            shutil.copy(systems.WINDOWS_PROGRAMS / name, programs)
        self.walk(programs / "orvane.exe", "Läufe 2")

    def test_several_files_of_one_folder_may_too(self):
        (self.folder / "Läufe und 歩行").mkdir()
        names = [f"Läufe und 歩行\\{name}.trc" for name in ("eins ä", "zwei é", "три")]
        for name in names:
            shutil.copy(self.folder / "examples/walk.trc", self.folder / name.replace("\\", "/"))
        self.assertIn("3 of 3 converted\n", self.on_windows("convert", *names))

    def test_messages_spell_them_as_they_are(self):
        self.assertEqual(self.complaint("info", "Läufe\\歩.htr"),
                         "orvane: Läufe\\歩.htr: No such file or directory\n")

    def complaint(self, *arguments):
        result = systems.subprocess.run(
            [systems.WINE, systems.WINDOWS_PROGRAMS / "orvane.exe", *arguments], cwd=self.folder,
            capture_output=True, check=False)
        self.assertEqual(result.returncode, 3)
        return result.stderr.decode().replace("\r\n", "\n")


if __name__ == "__main__":
    systems.unittest.main()
