"""Where segments are in the world, and how they are turned."""

from __future__ import annotations

import math

import numpy as np
import orvane
import pytest
from conftest import htr_text


def read_text(sections, **options):
    return orvane.read(htr_text(sections, **options).encode(), format="htr", warn=False)


def test_a_child_is_where_its_parent_takes_it():
    motion = read_text([[[1, 2, 3, 0, 0, 90, 1]], [[5, 0, 0, 0, 0, 0, 1]]])
    # The child is 10 + 5 along the parent's x, which points up.
    np.testing.assert_allclose(motion.world_positions()[0], [[1, 2, 3], [1, 17, 3]], atol=1e-12)


def test_rotations_have_three_forms():
    motion = read_text([[[0, 0, 0, 0, 0, 90, 1]], [[0, 0, 0, 90, 0, 0, 1]]])
    matrices = motion.world_rotations()
    assert matrices.shape == (1, 2, 3, 3)
    np.testing.assert_allclose(matrices[0, 0] @ [1, 0, 0], [0, 1, 0], atol=1e-12)
    np.testing.assert_allclose(matrices[0, 1] @ [0, 1, 0], [0, 0, 1], atol=1e-12)
    half = math.sqrt(0.5)
    np.testing.assert_allclose(motion.world_rotations("quaternion")[0, 0], [0, 0, half, half])
    np.testing.assert_allclose(motion.world_rotations("euler")[0, 0], [0, 0, math.pi / 2])
    with pytest.raises(ValueError, match="axis"):
        motion.world_rotations("axis")


def test_what_a_segment_lacks_is_nan():
    rows = [[0, 0, 0, 0, 0, 0, 1]]
    motion = read_text([rows * 2, rows])
    assert np.isnan(motion.world_positions()[1, 1]).all()
    assert np.isnan(motion.world_rotations()[1, 1]).all()
    assert np.isfinite(motion.world_positions()[1, 0]).all()


def test_a_segment_that_hangs_from_nothing_is_nan():
    rows = [[0, 0, 0, 0, 0, 0, 1]]
    motion = read_text([rows, rows], parents=("GLOBAL", "Nobody"))
    assert motion.parents.tolist() == [-1, -1]
    assert np.isnan(motion.world_positions()[0, 1]).all()


def test_the_array_is_the_caller_s():
    motion = read_text([[[1, 2, 3, 0, 0, 0, 1]], [[0, 0, 0, 0, 0, 0, 1]]])
    positions = motion.world_positions()
    positions += 1
    assert motion.world_positions()[0, 0].tolist() == [1, 2, 3]
