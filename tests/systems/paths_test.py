"""Blanks and letters of any alphabet in the names of files and folders, the program's own among them."""

import shutil

import systems

FOLDERS = ("two words", "Läufe", "прогулки", "歩行", "a b ä 歩")
PROGRAM_FILES = ("orvane.exe", "skelder.dll", "OrvaneFileIO.dll")


class PathsTest(systems.SystemsTest):
    def make_folder(self, folder):
        """A folder with the examples, all named like it. Returns a file's name without extension."""
        (self.folder / folder).mkdir()
        for name in systems.EXAMPLES:
            shutil.copy(self.folder / "examples" / name, self.folder / folder / f"{folder}.{name[-3:]}")
        return f"{folder}\\{folder}"

    def walk(self, program, folder):
        """Motions and markers into and out of a folder of that name."""
        name = self.make_folder(folder)
        scene, back = f"{folder}\\scene {folder}.glb", f"{folder}\\back {folder}.htr"

        def run(*arguments):
            return self.on_windows(*arguments, program=program)

        self.assertIn(f"Imported {name}.htr\n", run("import", f"{name}.htr", "-o", scene))
        self.assertEqual(self.scene(scene.replace("\\", "/"))["nodes"][0]["name"], folder)
        self.assertIn("Segments  21\n", run("export", scene, "--select", "Hips", "-o", back))
        run("compare", f"{name}.htr", back)
        self.assertIn("clean", run("check", f"{name}.htr", f"{name}.mnm"))
        self.assertIn(f"{name}.mnm: clean", run("check", folder, "--verbose", "--max-severity", "error"))
        run("import", f"{name}.trc", "-o", scene, "--force")
        self.assertEqual(sorted(path.name for path in (self.folder / folder).iterdir()), sorted([
            f"{folder}.htr", f"{folder}.trc", f"{folder}.mnm", f"scene {folder}.glb", f"back {folder}.htr"]))

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

    def test_names_with_blanks_go_through_the_dialogs_of_the_system(self):
        # Letters beyond ASCII do not, in Wine: between narrow and wide texts its windows do not
        # take the code page that a program asks for.
        name = self.make_folder("two words")
        self.assertIn("1 of 1 converted\n",
                      self.on_windows("convert", f"{name}.trc", "--mapping", f"{name}.mnm"))
        self.on_windows("map", "create", f"{name}.trc", "-o", "two words\\made it.mnm",
                        "--picks", f"{name}.mnm")
        for copy in ("take 2.trc", "take 3.trc"):
            shutil.copy(self.folder / "examples/walk.trc", self.folder / "two words" / copy)
        self.assertIn("2 of 2 converted\n",
                      self.on_windows("convert", "two words\\take 2.trc", "two words\\take 3.trc"))
        self.assertEqual(sorted(path.name for path in (self.folder / "two words").iterdir()), [
            "ConvertBVKLog.txt", "made it.mnm", "take 2.bvk", "take 2.trc", "take 3.bvk", "take 3.trc",
            "two words.bvk", "two words.htr", "two words.mnm", "two words.trc"])

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
