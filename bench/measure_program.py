#!/usr/bin/env python3
"""Measures the program as a whole, by the seconds of the processor that it takes.

First beside the barest programs that do the same ("floors"), on a motion file H and a marker file T, whole programs and
reading in process: the ratio of run and run in turn, and the program's peak memory over the size of the file. Then what
jobs take that have no floor. Then whether the time for a byte, segment, marker and frame stays the same as files grow.
Other work on the machine makes runs slower: ratios bear that, seconds do not.
"""

import argparse
import os
import pathlib
import tempfile

from floor_rows import print_floor_rows
from growth_rows import print_growth_rows
from jobs import Files
from runs import run
from windows_rows import print_windows_rows

RUNS = 3
BATCH = 8  # marker files
BYTES = (20_000_000, 200_000_000)
LARGE_BYTES = 1_000_000_000
COUNTS = (10_000, 100_000)
LARGE_COUNT = 1_000_000
MARKERS = (75, 750)  # names of more are a line of more than 10,239 bytes, which is read in pieces
# Sizes of motion and markers that the benchmarks in process know too.
WHOLE = ((60, 10_000), (60, 36_000))
QUICK = ((10, 1000), (15, 900))
QUICK_BYTES = (20_000, 40_000)
QUICK_COUNTS = (10, 20)
QUICK_MARKERS = (3, 6)


def print_figure(name, command):
    """The fastest of several runs, and the largest memory."""
    results = [run(command) for _ in range(RUNS)]
    print(f"{name:26} {min(result.processor for result in results):9.3f} "
          f"{max(result.peak for result in results) / 1e6:8.1f}", flush=True)


def print_figures(files, motion_size, marker_size):
    motion, markers = files.motion(*motion_size), files.markers(*marker_size)
    print(f"{'alone':26} {'seconds':>9} {'peak MB':>8}")
    scene = ["-o", files.path("alone.glb"), "--force", "--quiet"]
    print_figure("import H", [files.orvane, "import", motion, *scene])
    print_figure("import T", [files.orvane, "import", markers, *scene])
    copies = [files.path(f"copy{number}.trc") for number in range(BATCH)]
    for copy in copies:
        os.link(markers, copy)
    for jobs in ("1", "2"):
        print_figure(f"convert {BATCH} of T, {jobs} at once", [
            files.orvane, "convert", *copies, "--output-dir", files.folder, "--force", "--quiet", "--jobs", jobs])


def one_or_more(text):
    count = int(text)
    if count < 1:
        raise argparse.ArgumentTypeError("takes 1 or more")
    return count


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path, help="the folder of a build")
    parser.add_argument("--pairs", type=one_or_more, default=5, help="pairs of runs for a ratio (5)")
    parser.add_argument("--part", choices=("floors", "alone", "growth", "windows"), action="append",
                        help="this part alone; may be repeated (all but windows)")
    parser.add_argument("--windows-build", type=pathlib.Path, default=pathlib.Path("build-windows"),
                        help="the folder of a build for Windows, for the part of that name (build-windows)")
    size = parser.add_mutually_exclusive_group()
    size.add_argument("--quick", action="store_true", help="with tiny files, to see that all of it runs")
    size.add_argument("--large", action="store_true", help="growth to files of 1 GB and 1,000,000 segments too")
    return parser.parse_args()


def main(arguments):
    motion_size, marker_size = QUICK if arguments.quick else WHOLE
    sizes = QUICK_BYTES if arguments.quick else BYTES + ((LARGE_BYTES,) if arguments.large else ())
    counts = QUICK_COUNTS if arguments.quick else COUNTS + ((LARGE_COUNT,) if arguments.large else ())
    markers = QUICK_MARKERS if arguments.quick else MARKERS
    parts = arguments.part or ("floors", "alone", "growth")
    with tempfile.TemporaryDirectory() as folder:
        files = Files(arguments.build, folder)
        if "floors" in parts:
            print_floor_rows(files, motion_size, marker_size, arguments.pairs)
        if "alone" in parts:
            print_figures(files, motion_size, marker_size)
        if "growth" in parts:
            print_growth_rows(files, sizes, counts, markers, arguments.pairs)
        if "windows" in parts:
            print_windows_rows(files, arguments.windows_build, motion_size, marker_size, arguments.pairs)


if __name__ == "__main__":
    main(parse_arguments())
