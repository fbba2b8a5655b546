"""Motion files as arrays."""

from __future__ import annotations

import gc
import math
from fractions import Fraction

import numpy as np
import orvane
import pytest
from conftest import htr_text

ROOT = [[1, 2, 3, 90, 0, 0, 1], [4, 5, 6, 0, 90, 0, 2]]
CHILD = [[0, 0, 0, 0, 0, 45, 0.5]]


def read_text(text, **options):
    return orvane.read(text.encode(), format="htr", warn=False, **options)


def test_the_arrays_have_frames_and_segments():
    motion = read_text(htr_text([ROOT, CHILD]))
    assert motion.names == ("Root", "Child")
    assert motion.parents.tolist() == [-1, 0]
    np.testing.assert_array_equal(motion.translations[:, 0], [[1, 2, 3], [4, 5, 6]])
    np.testing.assert_allclose(motion.rotations[0], [[math.pi / 2, 0, 0], [0, 0, math.pi / 4]])
    np.testing.assert_array_equal(motion.scales[:, 0], [1, 2])


def test_frames_that_a_segment_lacks_are_nan():
    motion = read_text(htr_text([ROOT, CHILD]))
    assert motion.frame_counts.tolist() == [2, 1]
    assert np.isnan(motion.translations[1, 1]).all()
    assert np.isnan(motion.rotations[1, 1]).all()
    assert np.isnan(motion.scales[1, 1])


def test_the_base_is_told():
    base = read_text(htr_text([ROOT, CHILD])).base
    np.testing.assert_array_equal(base.translations, [[0, 0, 0], [10, 0, 0]])
    np.testing.assert_array_equal(base.bone_lengths, [100, 100])
    assert base.rotations.shape == (2, 3)


def test_a_unit_that_is_asked_for_converts_all_lengths_and_no_angle():
    text = htr_text([ROOT, CHILD], frames=1)  # of which the reader takes two
    motion = read_text(text, unit="cm")
    np.testing.assert_allclose(motion.translations[:, 0], [[0.1, 0.2, 0.3], [0.4, 0.5, 0.6]])
    np.testing.assert_allclose(motion.base.translations[1], [1, 0, 0])
    np.testing.assert_allclose(motion.base.bone_lengths, [10, 10])
    np.testing.assert_allclose(motion.rotations[0, 0], [math.pi / 2, 0, 0])


def test_the_rate_is_the_text_s():
    motion = read_text(htr_text([ROOT, CHILD], rate="59.94"))
    assert (motion.rate, motion.rate_taken) == (Fraction(2997, 50), 59)


def test_the_arrays_keep_their_motion_alive():
    scales = read_text(htr_text([ROOT, CHILD])).scales
    gc.collect()
    assert scales[0, 0] == 1
    with pytest.raises(ValueError, match="read-only"):
        scales[0, 0] = 2


def test_a_motion_tells_of_itself_in_one_line():
    motion = read_text(htr_text([ROOT, CHILD]))
    assert repr(motion) == "<Motion '<bytes>': 2 segments, 2 frames at 60 per second, mm>"
    assert "50 %" in motion._repr_html_()


def test_a_motion_without_frames_has_empty_arrays():
    motion = read_text(htr_text([[], []]))
    assert motion.translations.shape == (0, 2, 3)
    assert motion.scales.shape == (0, 2)
    assert motion.world_positions().shape == (0, 2, 3)
    assert motion.times.shape == (0,)
