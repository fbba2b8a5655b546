"""How far takes are apart."""

from __future__ import annotations

import threading

import numpy as np
import orvane
import pytest
from conftest import htr_text

ROWS = [[1, 2, 3, 0, 0, 0, 1]] * 4


def moved(points, distance):
    changed = points.copy()
    changed[3, 1, 0] += distance
    return changed


def take_of(points, names=("A", "B"), **options):
    return orvane.Take.from_points(points, names, rate=60, **options)


def test_a_file_is_the_same_as_itself(folder):
    for name in ("walk.trc", "walk.htr"):
        comparison = orvane.compare(name, orvane.read(name))
        assert comparison and comparison.hold_the_same
        assert comparison.frames == (1, 120)


def test_a_marker_that_moved_is_told():
    points = np.ones((5, 2, 3))
    comparison = orvane.compare(take_of(points), take_of(moved(points, 2.5)))
    assert not comparison and comparison.hold_the_same
    assert comparison.by_name["A"].distance_mm.largest == 0
    difference = comparison.by_name["B"]
    assert (difference.distance_mm.largest, difference.distance_mm.frame) == (2.5, 4)
    assert difference.distance_mm.mean == 0.5
    assert difference.first_beyond == 4
    assert orvane.compare(take_of(points), take_of(moved(points, 2.5)), tolerance_mm=3)


def test_units_do_not_differ():
    assert orvane.compare(take_of(np.ones((5, 2, 3))), take_of(np.full((5, 2, 3), 0.001), unit="m"))


def test_what_one_alone_holds_is_told():
    a = take_of(np.ones((5, 2, 3)))
    b = take_of(np.ones((6, 2, 3)), names=("A", "C"))
    comparison = orvane.compare(a, b)
    assert comparison.only_names == (("a", "B"), ("b", "C"))
    assert comparison.only_frames == (("b", "", (6, 6)),)
    assert not comparison


def test_a_gap_of_one_alone_is_told():
    points = np.ones((5, 2, 3))
    points[2, 0] = np.nan
    difference = orvane.compare(take_of(points), take_of(np.ones((5, 2, 3)))).by_name["A"]
    assert (difference.only_in_a, difference.only_in_b, difference.first_beyond) == (0, 1, 3)


def test_a_segment_that_turned_is_told():
    turned = [[1, 2, 3, 0, 0, 0, 1]] * 3 + [[1, 2, 3, 0, 0, 90, 1]]
    a = orvane.read(htr_text([ROWS, ROWS]).encode(), format="htr", warn=False)
    b = orvane.read(htr_text([turned, ROWS]).encode(), format="htr", warn=False)
    root = orvane.compare(a, b).by_name["Root"]
    assert root.angle_deg.largest == pytest.approx(90)
    assert root.angle_deg.frame == 4


def test_markers_and_motion_are_not_compared(folder):
    with pytest.raises(TypeError, match="markers"):
        orvane.compare("walk.trc", "walk.htr")


def test_a_negative_tolerance_is_an_error(folder):
    with pytest.raises(ValueError, match="tolerance"):
        orvane.compare("walk.trc", "walk.trc", tolerance_mm=-1)


def test_threads_compare_the_same_motion_at_once(folder):
    motion = orvane.read("walk.htr")
    results = []
    threads = [threading.Thread(target=lambda: results.append(orvane.compare(motion, motion)))
               for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(results) == 4 and all(results)
