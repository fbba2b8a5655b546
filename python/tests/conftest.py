"""What the tests share: the walk of the examples, and texts of small files."""

from __future__ import annotations

import pathlib
import shutil

import pytest

HERE = pathlib.Path(__file__).resolve().parent
# Beside the tests where the package is tried; in the repository, and in an archive of sources.
WALKS = (HERE.parent, HERE.parents[1] / "examples", HERE.parent / "sources" / "examples")
WALK = next(folder for folder in WALKS if (folder / "walk.trc").exists())


@pytest.fixture
def folder(tmp_path, monkeypatch):
    """A current folder with the walk in it."""
    for name in ("walk.trc", "walk.htr", "walk.mnm"):
        shutil.copy(WALK / name, tmp_path)
    monkeypatch.chdir(tmp_path)
    return tmp_path


def trc_text(rows, *, names=("A", "B"), unit="mm", rate="60", frames=None):
    """A marker file of ``rows``, each the cells of one frame behind its time."""
    count = len(rows) if frames is None else frames
    heads = "".join(f"{name}\t\t\t" for name in names)
    axes = "".join(f"X{at}\tY{at}\tZ{at}\t" for at in range(1, len(names) + 1))
    lines = [
        "PathFileType\t4\t(X/Y/Z)\tsmall.trc",
        "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame"
        "\tOrigNumFrames",
        f"{rate}\t{rate}\t{count}\t{len(names)}\t{unit}\t{rate}\t1\t{count}",
        f"Frame#\tTime\t{heads}",
        f"\t\t{axes}",
        "",
        *(f"{at}\t{(at - 1) / 60:.6f}\t" + "\t".join(cells) for at, cells in enumerate(rows, 1)),
    ]
    return "\n".join(lines) + "\n"


def htr_text(sections, *, names=("Root", "Child"), parents=("GLOBAL", "Root"), rate="60",
             unit="mm", rotations="Degrees", frames=None):
    """A motion file; ``sections`` are the rows of each segment, without frame numbers."""
    count = max(map(len, sections)) if frames is None else frames
    lines = [
        "[Header]", "FileType htr", "DataType HTRS", "FileVersion 1",
        f"NumSegments {len(names)}", f"NumFrames {count}", f"DataFrameRate {rate}",
        "EulerRotationOrder ZYX", f"CalibrationUnits {unit}", f"RotationUnits {rotations}",
        "GlobalAxisofGravity Y", "BoneLengthAxis Y", "ScaleFactor 1.0",
        "[SegmentNames&Hierarchy]",
        *(f"{name}\t{parent}" for name, parent in zip(names, parents)),
        "[BasePosition]",
        *(f"{name}\t{at * 10}\t0\t0\t0\t0\t0\t100" for at, name in enumerate(names)),
    ]
    for name, rows in zip(names, sections):
        lines += [f"[{name}]", *(f"{at}\t" + "\t".join(map(str, row))
                                 for at, row in enumerate(rows, 1))]
    return "\n".join([*lines, "[EndOfFile]", ""])
