"""The files that are measured with, and the commands that work on them."""

import os
import subprocess


class Files:
    """Makes files in a folder, and the commands that read them."""

    def __init__(self, build, folder):
        self.programs = build / "bench"
        self.orvane = str(build / "bin" / "orvane")
        self.folder = folder

    def path(self, name):
        return os.path.join(self.folder, name)

    def make(self, writer, name, *size):
        """Path of a new file, by write_motion or write_markers."""
        subprocess.run([str(self.programs / writer), self.path(name), *map(str, size)], check=True)
        return self.path(name)

    def motion(self, segments, frames, shape="tree"):
        return self.make("write_motion", f"{shape}-{segments}-{frames}.htr", segments, frames, shape)

    def markers(self, markers, frames):
        return self.make("write_markers", f"markers-{markers}-{frames}.trc", markers, frames)

    def floor(self, job, *paths):
        return [str(self.programs / "floor"), job, *paths]

    def info(self, path):
        return [self.orvane, "info", path]

    def convert(self, path):
        return [self.orvane, "convert", path, "-o", self.path("points.bvk"), "--force", "--quiet"]

    def import_at_30(self, path):
        """With 160 ticks a frame, of which each is cleared of keys."""
        return [self.orvane, "import", path, "-o", self.path("scene.glb"), "--force", "--quiet",
                "--frame-rate", "keep"]

    def export(self):
        """Of the scene that was imported last."""
        return [self.orvane, "export", self.path("scene.glb"), "--select", "Segment0",
                "-o", self.path("back.htr"), "--force", "--quiet"]
