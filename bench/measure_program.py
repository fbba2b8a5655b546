#!/usr/bin/env python3
"""Measures the program as a whole: seconds, time for each frame of a segment or marker, and peak memory,
also in times of the file's size.

Usage: measure_program.py BUILD_FOLDER

First on a long motion and on a marker file; then on files of rising size, where the time for each frame of a segment
should not rise. Of several runs the fastest is shown, with the seconds of the processor that it
took beside those of the clock, because other work on the machine makes a run slower, never faster.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

RUNS = 3
LONG = (60, 10_000, "tree")
MARKERS = (60, 36_000, "trc")
BATCH = 8  # marker files
BY_SEGMENTS = [(count, 2, shape) for shape in ("chain", "fan") for count in (1000, 10_000, 100_000)]
BY_FRAMES = [(10, count, "tree") for count in (1000, 10_000, 100_000)]


def run(command):
    """Seconds, seconds of the processor and peak bytes of one run, which has to succeed."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"measure_program: {' '.join(command)} ended with {process.returncode}")
    return seconds, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024


class Bench:
    """The program, and a folder for its files."""

    def __init__(self, build, folder):
        self.build = build
        self.program = str(build / "bin" / "orvane")
        self.folder = folder
        self.motion = os.path.join(folder, "motion.htr")
        self.scene = os.path.join(folder, "scene.glb")
        self.back = os.path.join(folder, "back.htr")

    def write_motion(self, size):
        writer = str(self.build / "bench" / "write_motion")
        self.motion = os.path.join(self.folder, "motion.htr")
        subprocess.run([writer, self.motion, *map(str, size)], check=True)

    def write_markers(self):
        self.motion = os.path.join(self.folder, "markers.trc")
        subprocess.run([str(self.build / "bench" / "write_markers"), self.motion], check=True)

    def measure(self, name, size, command):
        """Prints one row."""
        results = [run(command) for _ in range(RUNS)]
        seconds = min(result[0] for result in results)
        processor = min(result[1] for result in results)
        peak = max(result[2] for result in results)
        segments, frames, shape = size
        print(f"{name:12} {shape:6} {segments:7} x {frames:6} {seconds:8.2f} {processor:9.2f} "
              f"{processor / (segments * frames) * 1e6:9.2f} {peak / 1e6:8.1f} "
              f"{peak / os.path.getsize(self.motion):7.1f}", flush=True)

    def info(self, size):
        self.measure("info", size, [self.program, "info", self.motion])

    def convert(self, name, size, inputs, *flags):
        self.measure(name, size, [self.program, "convert", *inputs, "--output-dir", self.folder,
                                  "--force", "--quiet", *flags])

    def copies_of_motion(self, count):
        copies = [os.path.join(self.folder, f"copy{number}.trc") for number in range(count)]
        for copy in copies:
            os.link(self.motion, copy)
        return copies

    def make_import(self, name, size, *flags):
        self.measure(name, size, [self.program, "import", self.motion, "-o", self.scene,
                                  "--force", "--quiet", *flags])

    def export(self, size):
        """Exports the scene that was imported last."""
        self.measure("export", size, [self.program, "export", self.scene, "--select", "Segment0",
                                      "-o", self.back, "--force", "--quiet"])


def main(build):
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(build, folder)
        print(f"{'':12} {'':6} {'segments x frames':>16} {'seconds':>8} {'processor':>9} "
              f"{'us/frame':>9} {'peak MB':>8} {'x file':>7}")
        bench.write_motion(LONG)
        bench.info(LONG)
        bench.make_import("import", LONG)
        bench.export(LONG)
        bench.make_import("at 30 fps", LONG, "--frame-rate", "keep")  # 160 ticks are cleared a frame
        bench.write_markers()
        bench.info(MARKERS)
        bench.make_import("import", MARKERS)
        bench.convert("convert", MARKERS, [bench.motion])
        copies = bench.copies_of_motion(BATCH)
        for jobs in ("1", "2"):
            bench.convert(f"{BATCH} by {jobs}", (60 * BATCH, 36_000, "trc"), copies, "--jobs", jobs)
        for size in BY_SEGMENTS + BY_FRAMES:
            bench.write_motion(size)
            bench.make_import("import", size)
            bench.export(size)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
