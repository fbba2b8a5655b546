"""The program shows nothing to whoever sits before the screen."""

import os

import systems


class DesktopTest(systems.SystemsTest):
    def test_the_program_works_on_a_desktop_of_its_own(self):
        environment = {name: value for name, value in os.environ.items() if name != "ORVANE_VISIBLE"}
        # Wine's process for a desktop lives on for a while, and holds what it could print to.
        with open(self.folder / "output", "wb") as output:
            result = systems.subprocess.run(
                [systems.WINE, systems.WINDOWS_PROGRAMS / "orvane.exe", "import", "examples\\walk.htr",
                 "-o", "unseen.glb", "--quiet"],
                cwd=self.folder, env=environment, stdin=systems.subprocess.DEVNULL, stdout=output,
                stderr=output, check=False, timeout=120)
        self.assertEqual((result.returncode, self.read("output")), (0, b""))
        self.on_windows("import", "examples\\walk.htr", "-o", "seen.glb", "--quiet")
        self.assertEqual(self.scene("unseen.glb")["nodes"], self.scene("seen.glb")["nodes"])


if __name__ == "__main__":
    systems.unittest.main()
