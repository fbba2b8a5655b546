"""Takes as tables of pandas, and pictures."""

from __future__ import annotations

import numpy as np
import orvane
import pytest

pandas = pytest.importorskip("pandas")


@pytest.mark.parametrize("layout", ["wide", "long"])
def test_a_table_comes_back_as_the_same_take(folder, layout):
    take = orvane.read("walk.trc")
    back = orvane.from_pandas(take.to_pandas(layout), rate=take.rate, unit=take.unit)
    assert back.names == take.names
    np.testing.assert_array_equal(back.points, take.points)
    assert back.gaps == take.gaps


def test_frames_without_a_row_are_gaps():
    take = orvane.Take.from_points(np.ones((5, 1, 3)), ["A"], rate=60, first_frame=11)
    table = take.to_pandas().drop(index=12)
    back = orvane.from_pandas(table, rate=60)
    assert (back.first_frame, back.frame_count) == (11, 5)
    assert back.gaps["A"] == ((12, 12),)


def test_a_table_of_motion_has_all_values(folder):
    motion = orvane.read("walk.htr")
    table = motion.to_pandas("long")
    assert list(table) == ["frame", "time", "segment", "tx", "ty", "tz", "rx", "ry", "rz", "scale"]
    assert len(table) == 120 * 21
    np.testing.assert_array_equal(motion.to_pandas()["Hips"]["ty"], motion.translations[:, 0, 1])


def test_what_is_no_table_of_markers_is_an_error():
    with pytest.raises(ValueError, match="no column 'frame'"):
        orvane.from_pandas(pandas.DataFrame({"marker": ["A"], "x": [1], "y": [1], "z": [1]}), rate=60)


def test_gaps_and_positions_are_drawn(folder):
    pytest.importorskip("matplotlib")
    axes = orvane.read("walk.trc").plot_gaps()
    assert len(axes.get_yticklabels()) == 41
    lines = orvane.read("walk.htr").plot_positions("Hips").get_lines()
    assert [line.get_label() for line in lines] == ["x", "y", "z"]


def test_what_is_drawn_of_a_cut_begins_at_its_time(folder):
    pytest.importorskip("matplotlib")
    axes = orvane.read("walk.trc").cut(31, 60).plot_gaps()
    boxes = [each.get_datalim(axes.transData) for each in axes.collections]
    assert min(box.x0 for box in boxes if box.width > 0) == pytest.approx(0.5)
    assert max(box.x1 for box in boxes if box.width > 0) == pytest.approx(1.0)
