"""The program beside the barest programs that do the same."""

import functools
import os

from runs import Pairs, ratio_cells, run, run_benchmark


def print_row(name, pairs, size=None):
    peak = f"{pairs.peak(0) / size:7.2f}" if size else f"{'':7}"
    print(f"{name:14} {pairs.processor(0) * 1e3:9.1f} {pairs.processor(1) * 1e3:9.1f} "
          f"{ratio_cells(pairs.ratios())} {peak}".rstrip(), flush=True)


def whole_programs(files, motion, markers):
    """Of each row its name, the program's command, the floor's and the file that is read."""
    points, keys = files.path("floor.bvk"), files.path("floor.keys")
    return [
        ("info H", files.info(motion), files.floor("htr", motion), motion),
        ("info T", files.info(markers), files.floor("trc", markers), markers),
        ("convert T", files.convert(markers), files.floor("bvk", markers, points), markers),
        ("import H", files.import_at_30(motion), files.floor("import", motion), motion),
        ("export H", files.export(), files.floor("export", keys, files.path("floor.htr")), motion),
    ]


def print_floor_rows(files, motion_size, marker_size, count):
    """Sizes: segments or markers, and frames; the benchmarks in process know the same."""
    motion, markers = files.motion(*motion_size), files.markers(*marker_size)
    run(files.import_at_30(motion))  # the scene and the keys that the exports start from
    run(files.floor("import", motion, files.path("floor.keys")))
    print(f"{'over floor':14} {'ms':>9} {'floor ms':>9} {'median':>7} {'min':>7} {'max':>7} {'x file':>7}   "
          f"H: {motion_size[0]} segments x {motion_size[1]} frames, "
          f"T: {marker_size[0]} markers x {marker_size[1]} frames, {count} pairs")
    for name, ours, floor, path in whole_programs(files, motion, markers):
        pairs = Pairs(functools.partial(run, ours), functools.partial(run, floor), count)
        print_row(name, pairs, os.path.getsize(path))
    program = str(files.programs / "orvane_bench")
    for name, benchmark, unit, size in (("reading H", "ReadMotion", "segments", motion_size),
                                        ("reading T", "ReadMarkers", "markers", marker_size)):
        row = f"/{unit}:{size[0]}/frames:{size[1]}"
        print_row(name, Pairs(functools.partial(run_benchmark, program, benchmark + row),
                              functools.partial(run_benchmark, program, f"{benchmark}Barely{row}"), count))
