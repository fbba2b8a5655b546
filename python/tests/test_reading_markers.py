"""Marker files as arrays."""

from __future__ import annotations

import gc
import io
import pathlib
from fractions import Fraction

import numpy as np
import orvane
import pytest
from conftest import trc_text

ROWS = [["1", "2", "3", "4", "5", "6"], ["", "", "", "7", "8", "9"], ["10", "11", "12", "", "", ""]]


def read_text(text, **options):
    return orvane.read(text.encode(), format="trc", warn=False, **options)


def test_the_array_has_frames_markers_and_axes():
    take = read_text(trc_text(ROWS))
    gap = [np.nan] * 3
    expected = [[[1, 2, 3], [4, 5, 6]], [gap, [7, 8, 9]], [[10, 11, 12], gap]]
    assert take.points.dtype == np.float64
    np.testing.assert_array_equal(take.points, expected)


def test_the_header_is_told():
    take = read_text(trc_text(ROWS, rate="59.94", unit="cm"))
    assert (take.names, take.unit) == (("A", "B"), "cm")
    assert (take.rate, take.rate_taken) == (Fraction("59.94"), 59)
    assert (take.first_frame, take.last_frame, take.frame_count) == (1, 3, 3)
    np.testing.assert_allclose(take.times, [0, 1 / 59.94, 2 / 59.94])
    np.testing.assert_allclose(take.cut(take.last_frame, take.last_frame).times, [2 / 59.94])


def test_gaps_are_told_by_the_numbers_of_their_frames():
    take = read_text(trc_text(ROWS))
    assert dict(take.gaps) == {"A": ((2, 2),), "B": ((3, 3),)}
    assert take.coverage["A"] == pytest.approx(2 / 3)


def test_a_unit_that_is_asked_for_converts_positions_and_keeps_gaps():
    take = read_text(trc_text(ROWS), unit="m")
    assert take.unit == "m"
    np.testing.assert_allclose(take.points[0, 1], [0.004, 0.005, 0.006])
    assert np.isnan(take.points[1, 0]).all()
    assert take.gaps["A"] == ((2, 2),)


def test_an_unknown_unit_is_an_error():
    with pytest.raises(ValueError, match="furlong"):
        read_text(trc_text(ROWS), unit="furlong")


def test_the_array_cannot_be_written_and_its_copy_can():
    points = read_text(trc_text(ROWS)).points
    with pytest.raises(ValueError, match="read-only"):
        points[0, 0, 0] = 1
    copy = points.copy()
    copy[0, 0, 0] = 1
    assert points[0, 0, 0] == 1.0 or copy[0, 0, 0] == 1.0


def test_the_array_is_a_view_that_keeps_its_take_alive():
    take = read_text(trc_text(ROWS))
    points = take.points
    assert np.shares_memory(points, take.points)
    del take
    gc.collect()
    assert points[0, 0, 0] == 1.0


def test_path_bytes_and_open_file_give_the_same(folder):
    by_path = orvane.read("walk.trc").points
    data = pathlib.Path("walk.trc").read_bytes()
    with open("walk.trc", "rb") as file:
        sources = [pathlib.Path("walk.trc"), data, bytearray(data), memoryview(data), file,
                   io.BytesIO(data)]
        for source in sources:
            np.testing.assert_array_equal(orvane.read(source).points, by_path)


def test_a_file_open_for_text_is_an_error(folder):
    with open("walk.trc", encoding="utf-8") as file, pytest.raises(TypeError, match="binary"):
        orvane.read(file)


def test_a_name_that_is_no_utf8_is_kept():
    data = trc_text(ROWS).encode().replace(b"\tA\t", b"\t\xc4\t")
    assert orvane.read(data, format="trc", warn=False).names[0] == "\udcc4"


def test_an_index_is_found_by_name():
    take = read_text(trc_text(ROWS))
    np.testing.assert_array_equal(take["B"], take.points[:, 1])
    with pytest.raises(KeyError, match="no marker 'C'"):
        take["C"]


def test_a_take_is_made_of_an_array():
    points = np.array([[[1.0, 2.0, 3.0]], [[np.nan] * 3]])
    take = orvane.Take.from_points(points, ["A"], rate=59.94, unit="m", first_frame=7)
    np.testing.assert_array_equal(take.points, points)
    assert (take.rate, take.unit, take.first_frame) == (Fraction("59.94"), "m", 7)
    assert take.gaps["A"] == ((8, 8),)


@pytest.mark.parametrize(("points", "names", "rate", "what"), [
    (np.zeros((1, 2)), ["A"], 60, "shape"),
    (np.zeros((1, 1, 3)), ["A", "B"], 60, "names"),
    (np.zeros((1, 2, 3)), ["A", "A"], 60, "name"),
    (np.full((1, 1, 3), np.inf), ["A"], 60, "finite"),
    (np.array([[[1.0, np.nan, 3.0]]]), ["A"], 60, "NaN"),
    (np.zeros((1, 1, 3)), ["A"], 0, "rate"),
])
def test_what_is_no_take_is_an_error(points, names, rate, what):
    with pytest.raises(ValueError, match=what):
        orvane.Take.from_points(points, names, rate=rate)


def test_a_take_tells_of_itself_in_one_line():
    take = read_text(trc_text(ROWS))
    assert repr(take) == "<Take '<bytes>': 2 markers, 3 frames at 60 per second, mm>"


def test_a_notebook_gets_a_table_with_bars():
    html = read_text(trc_text(ROWS, names=("<A>", "B")))._repr_html_()
    assert html.count("<progress") == 2
    assert "&lt;A&gt;" in html and "66.7 %" in html


def test_frames_of_lines_that_end_early_are_gaps():
    take = read_text(trc_text([["1", "2", "3"], [], ["1", "2", "3", "4", "5", "6"]]))
    assert np.isnan(take.points[0, 1]).all() and np.isnan(take.points[1]).all()
    np.testing.assert_array_equal(take.points[2], [[1, 2, 3], [4, 5, 6]])
    assert take.gaps["B"] == ((1, 2),)


def test_a_take_holds_its_names():
    take = read_text(trc_text(ROWS))
    assert "A" in take
    assert "C" not in take
    assert list(take) == ["A", "B"]
    assert take.select("A").names == ("A",)


def test_frames_that_are_none_are_an_error():
    with pytest.raises(ValueError, match="3 to 1 are none"):
        read_text(trc_text(ROWS)).cut(3, 1)
