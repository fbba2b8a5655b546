"""Runs the recipes of docs/cookbook as they stand."""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["ORVANE_SOURCE_DIR"])
BINARY = pathlib.Path(os.environ["ORVANE_BINARY_DIR"])
BLOCK = re.compile(r"^```(\w+) ?(\S*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def blocks_of(page):
    """The kind, the file's name and the text of every block of a page."""
    return BLOCK.findall((SOURCE / "docs/cookbook" / page).read_text(encoding="utf-8"))


def examples_in(text):
    """The commands of a console, each with what it prints."""
    examples = []
    for line in text.splitlines(keepends=True):
        if line.startswith("$ "):
            examples.append((line[2:], ""))
        else:
            command, output = examples[-1]
            examples[-1] = (command, output + line)
    return examples


def pattern_of(output):
    """"..." stands for any text, and on a line of its own for whole lines."""
    parts = re.split(r"^\.\.\.\n|\.\.\.", output, flags=re.MULTILINE)
    return ".*".join(re.escape(part) for part in parts)


def hips_in_frame(frame):
    """Where the walk's root is, in metres, as the motion file has it."""
    text = (SOURCE / "examples/walk.htr").read_text(encoding="ascii")
    base = re.search(r"\[BasePosition\].*?\nHips\t(\S+)\t(\S+)\t(\S+)", text, re.DOTALL)
    moved = re.search(rf"\[Hips\].*?\n{frame}\t(\S+)\t(\S+)\t(\S+)", text, re.DOTALL)
    return [(float(base[i]) + float(moved[i])) / 1000 for i in (1, 2, 3)]


class RecipeTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "build").symlink_to(BINARY)
        (self.folder / "examples").symlink_to(SOURCE / "examples")

    def run_page(self, page):
        """Makes the files of a page, runs its commands in their order, and holds them to what the
        page says that they print."""
        # Blender takes the Python that it finds first for its own.
        environment = dict(os.environ, PATH=f"{BINARY / 'bin'}:/usr/local/bin:/usr/bin:/bin",
                           HOME=str(self.folder), LC_ALL="C.UTF-8")
        for kind, name, text in blocks_of(page):
            if name:
                (self.folder / name).write_text(text, encoding="utf-8")
            if kind != "console":
                continue
            for command, output in examples_in(text):
                result = subprocess.run(["/bin/bash", "-c", command], cwd=self.folder,
                                        env=environment, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                        text=True, timeout=300, check=False)
                fits = re.fullmatch(pattern_of(output), result.stdout, re.DOTALL)
                self.assertTrue(fits, f"$ {command}{result.stdout}is not\n{output}")

    def need(self, program):
        if shutil.which(program) is None:
            self.skipTest(f"{program} is not installed")


class ThreeTest(RecipeTest):
    def test_page_plays_the_walk(self):
        three = SOURCE / "node_modules/three"
        if not three.is_dir():
            self.skipTest("three of npm is not installed")
        self.run_page("three.md")
        (self.folder / "node_modules").symlink_to(SOURCE / "node_modules")
        shown = subprocess.run(["node", SOURCE / "tests/cookbook/three_shown.mjs", "walk.html",
                                "Hips", "1"], cwd=self.folder, capture_output=True, text=True,
                               check=True).stdout
        for number, expected in zip(shown.split(), hips_in_frame(61), strict=True):
            self.assertAlmostEqual(float(number), expected, delta=1e-4)


class FolderTest(RecipeTest):
    def test_takes_are_worked_on_side_by_side(self):
        self.need("parallel")
        (self.folder / ".parallel").mkdir()
        (self.folder / ".parallel/will-cite").touch()
        self.run_page("folder.md")


class BlenderTest(RecipeTest):
    def test_walk_goes_to_fbx_and_comes_back(self):
        self.need("blender")
        self.run_page("blender.md")


class RTest(RecipeTest):
    def test_gaps_and_speed_of_the_markers_come_out(self):
        self.need("Rscript")
        if subprocess.run(["Rscript", "-e", "library(data.table)"], capture_output=True,
                          check=False).returncode != 0:
            self.skipTest("data.table of R is not installed")
        self.run_page("r.md")


class PagesTest(unittest.TestCase):
    def test_every_page_is_listed_and_run(self):
        pages = {path.name for path in (SOURCE / "docs/cookbook").glob("*.md")} - {"README.md"}
        listed = set(re.findall(r"\]\((\w+\.md)\)",
                                (SOURCE / "docs/cookbook/README.md").read_text(encoding="utf-8")))
        run = set(re.findall(r'run_page\("(\w+\.md)"\)',
                             pathlib.Path(__file__).read_text(encoding="utf-8")))
        python = (SOURCE / "python/try_package.py").read_text(encoding="utf-8")
        tried = pages & set(re.findall(r'"(\w+\.md)"', python))
        self.assertEqual(pages, listed)
        self.assertEqual(pages, run | tried)


if __name__ == "__main__":
    unittest.main()
