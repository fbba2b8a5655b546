#!/usr/bin/env python3
"""Reads the C3D files of a folder with ezc3d and compares every value with what the files beside
them say, which write_c3d_samples wrote:

    read_c3d.py FOLDER

Exit status 0: all values are there; 1: some are not; 2: there was no file; 77: ezc3d is not
installed.
"""

import json
import os
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
INTERPRETER = ROOT / "build-readers/bin/python3"

try:
    import ezc3d
    import numpy
except ImportError:
    if INTERPRETER.exists() and pathlib.Path(sys.prefix) != INTERPRETER.parents[1]:
        os.execv(INTERPRETER, [str(INTERPRETER), *sys.argv])
    print("skipped: there is no ezc3d; ./dev setup installs it below build-readers/")
    sys.exit(77)


def texts(group, name):
    """The texts of a parameter and of those that it goes on in: LABELS, LABELS2 and so on."""
    found, number = [], 1
    while (key := name if number == 1 else f"{name}{number}") in group:
        found += group[key]["value"]
        number += 1
    return found


def from_words(parameter):
    low, high = parameter["value"]
    return int(low) % 65536 + 65536 * int(high)


def faults(path):
    """What is not as it has to be, one text each."""
    said = json.loads(path.with_suffix(".json").read_text(encoding="utf-8"))
    c3d = ezc3d.c3d(str(path))
    parameters, frames = c3d["parameters"], len(said["positions"])
    names = [name.rstrip(" ") for name in said["names"]]
    expected = {
        "names": (texts(parameters["POINT"], "LABELS"), names),
        "descriptions": (len(texts(parameters["POINT"], "DESCRIPTIONS")), len(names)),
        "markers": (c3d["header"]["points"]["size"], len(names)),
        "unit": (parameters["POINT"]["UNITS"]["value"], [said["unit"]]),
        "rate": (c3d["header"]["points"]["frame_rate"], float(numpy.float32(said["rate"]))),
        "exact rate": (parameters["ORVANE"]["RATE"]["value"], [said["rate"]]),
        "first frame": (from_words(parameters["TRIAL"]["ACTUAL_START_FIELD"]), said["first_frame"]),
        "last frame": (from_words(parameters["TRIAL"]["ACTUAL_END_FIELD"]),
                       said["first_frame"] + frames - 1),
    }
    for what, (found, wanted) in expected.items():
        if found != wanted:
            yield f"{what}: {found} instead of {wanted}"
    yield from wrong_values(c3d["data"], said["positions"], len(names))


def wrong_values(data, positions, markers):
    gap = [float("nan")] * 3
    wanted = numpy.array([[gap if place is None else place for place in row] for row in positions],
                         dtype=numpy.float32).reshape(len(positions), markers, 3)
    found = data["points"][:3].transpose(2, 1, 0)
    if found.shape != wanted.shape:
        yield f"it is {found.shape} instead of {wanted.shape}"
    elif not numpy.array_equal(found, wanted.astype(float), equal_nan=True):
        yield "positions differ"
    elif found.size:
        residuals = data["meta_points"]["residuals"][0].T
        if not numpy.array_equal(residuals, numpy.where(numpy.isnan(wanted[:, :, 0]), -1.0, 0.0)):
            yield "residuals differ"


def main():
    files = sorted(pathlib.Path(sys.argv[1]).glob("*.c3d")) if len(sys.argv) == 2 else []
    count = 0
    for path in files:
        for fault in faults(path):
            print(f"{path.name}: {fault}")
            count += 1
    print(f"{len(files)} files, {count} values that differ")
    return 2 if not files else 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
