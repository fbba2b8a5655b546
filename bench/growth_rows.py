"""Whether the time for a byte, a segment, a marker or a frame stays the same as files grow."""

import functools
import os

from runs import Pairs, ratio_cells, run


def print_row(name, unit, large, small, count):
    """Both: a command, and how many of the unit it works on."""
    pairs = Pairs(functools.partial(run, large[0]), functools.partial(run, small[0]), count)
    each = [pairs.processor(side) / amount * 1e9 for side, (_, amount) in enumerate((large, small))]
    print(f"{name:20} {unit:8} {small[1]:10} {large[1]:11} {each[1]:11.1f} {each[0]:11.1f} "
          f"{ratio_cells(pairs.ratios(small[1] / large[1]))} "
          f"{pairs.peak(0) / large[1]:9.1f}", flush=True)


def print_byte_rows(files, segments, markers, small, large, count):
    """Files of so many bytes, about: by more frames. Exports start from a scene."""
    motions = [files.motion(segments, size // (79 * segments)) for size in (large, small)]
    points = [files.markers(markers, size // (28 * markers)) for size in (large, small)]
    for name, command, paths in (("info H", files.info, motions), ("info T", files.info, points),
                                 ("convert T", files.convert, points), ("import H", files.import_at_30, motions)):
        print_row(name, "byte", *((command(path), os.path.getsize(path)) for path in paths), count)
    for path in motions + points:
        os.remove(path)


def print_segment_rows(files, small, large, count):
    """Segments of two frames."""
    for shape in ("chain", "fan"):
        motions = [(files.motion(number, 2, shape), number) for number in (large, small)]
        for name, command in (("info", files.info), ("import", files.import_at_30)):
            print_row(f"{name}, {shape}", "segment", *((command(path), number) for path, number in motions), count)


def print_marker_rows(files, small, large, count):
    points = [(files.markers(number, 1000), number) for number in (large, small)]
    for name, command in (("info T", files.info), ("convert T", files.convert)):
        print_row(name, "marker", *((command(path), number) for path, number in points), count)


def print_frame_rows(files, small, large, count):
    frames = [(files.motion(10, number), number) for number in (large, small)]
    samples = [(files.markers(10, number), number) for number in (large, small)]
    for name, command, paths in (("info H, 10 wide", files.info, frames),
                                 ("import H, 10 wide", files.import_at_30, frames),
                                 ("convert T, 10 wide", files.convert, samples)):
        print_row(name, "frame", *((command(path), number) for path, number in paths), count)


def print_growth_rows(files, sizes, counts, markers, count):
    """Sizes in bytes and counts of segments, the smallest first, to which all others are compared; the first two of
    those are counts of frames too. Two counts of markers."""
    print(f"{'growth':20} {'by':8} {'small':>10} {'large':>11} {'ns each':>11} {'ns each':>11} "
          f"{'median':>7} {'min':>7} {'max':>7} {'peak each':>9}   {count} pairs")
    for large in sizes[1:]:
        print_byte_rows(files, 60, 60, sizes[0], large, count)
    for large in counts[1:]:
        print_segment_rows(files, counts[0], large, count)
    print_marker_rows(files, *markers, count)
    print_frame_rows(files, *counts[:2], count)
