"""Motion of arrays."""

from __future__ import annotations

import dataclasses
from fractions import Fraction

import numpy as np
import orvane
import pytest

BASE = orvane.BasePose(translations=np.array([[0.0, 900, 0], [0, 300, 0]]),
                       rotations=np.array([[0.0, 0, 0], [0, 0, np.pi / 2]]),
                       bone_lengths=np.array([300.0, 100]))
MOVED = np.arange(18, dtype=np.float64).reshape(3, 2, 3)
TURNED = MOVED / 10


def made(**changes):
    values = {"names": ["Hips", "Neck"], "parents": [-1, 0], "base": BASE, "translations": MOVED,
              "rotations": TURNED, "rate": "59.94", **changes}
    return orvane.Motion.from_arrays(**values)


def test_it_holds_what_it_is_made_of():
    motion = made(scales=[[1, 2], [3, 4], [5, 6]], unit="cm", first_frame=-7)
    assert motion.names == ("Hips", "Neck")
    assert motion.parents.tolist() == [-1, 0]
    assert (motion.rate, motion.rate_taken, motion.unit) == (Fraction("59.94"), 59, "cm")
    assert (motion.first_frame, motion.last_frame) == (-7, -5)
    np.testing.assert_array_equal(motion.translations, MOVED)
    np.testing.assert_array_equal(motion.rotations, TURNED)
    np.testing.assert_array_equal(motion.scales, [[1, 2], [3, 4], [5, 6]])
    for part in dataclasses.fields(orvane.BasePose):
        np.testing.assert_array_equal(getattr(motion.base, part.name), getattr(BASE, part.name))


def test_scales_are_one_unless_they_are_given():
    np.testing.assert_array_equal(made().scales, np.ones((3, 2)))


def test_a_file_of_it_reads_back_to_the_same():
    motion = made()
    back = orvane.read(motion.to_bytes(), format="htr", warn=False)
    np.testing.assert_array_equal(back.translations, motion.translations)
    np.testing.assert_allclose(back.rotations, motion.rotations, rtol=1e-15)
    assert (back.names, back.rate, back.parents.tolist()) == (motion.names, motion.rate, [-1, 0])
    assert [finding.code for finding in back.findings] == ["htr-rate-cut"]


def test_a_motion_that_was_read_can_be_made_again(folder):
    walk = orvane.read("walk.htr")
    again = orvane.Motion.from_arrays(walk.names, walk.parents, base=walk.base,
                                      translations=walk.translations, rotations=walk.rotations,
                                      scales=walk.scales, rate=walk.rate, unit=walk.unit)
    np.testing.assert_array_equal(again.world_positions(), walk.world_positions())
    assert again.to_bytes() == walk.to_bytes()


def test_a_parent_may_stand_behind_its_child():
    motion = made(parents=[1, -1])
    np.testing.assert_allclose(motion.world_positions()[0, 1], [3, 304, 5])


@pytest.mark.parametrize("changes, words", [
    ({"rotations": TURNED[:, :, 0]}, r"rotations .* \(3, 2\), not \(frames, 2, 3\)"),
    ({"translations": MOVED[:2]}, r"translations .* not \(3, 2, 3\)"),
    ({"scales": np.ones((3, 1))}, r"scales .* not \(3, 2\)"),
    ({"base": dataclasses.replace(BASE, bone_lengths=np.ones(3))}, r"bone_lengths .* not \(2,\)"),
    ({"base": dataclasses.replace(BASE, rotations=np.full((2, 3), np.nan))}, "base are finite"),
    ({"translations": np.where(MOVED == 4, np.nan, MOVED)}, "frames are finite"),
    ({"scales": [[1, 1], [1, 1], [1, np.inf]]}, "frames are finite"),
    ({"parents": [-1]}, "parents are 2 whole numbers"),
    ({"parents": [-1.0, 0.0]}, "parents are 2 whole numbers"),
    ({"parents": [-1, 2]}, "indices of segments"),
    ({"parents": [-2, 0]}, "indices of segments"),
    ({"parents": [1, 0]}, "circle"),
    ({"names": ["Hips", "Hips"]}, "two segments"),
    ({"names": ["Hips", "Left Arm"]}, '"Left Arm", for a segment, holds a blank'),
    ({"names": ["Hips", "GLOBAL"]}, "means something else"),
    ({"names": ["Hips", ""]}, "needs a name"),
    ({"translations": MOVED[:0], "rotations": TURNED[:0]}, "a frame at least"),
    ({"rate": 0}, "rate"),
    ({"unit": "km"}, "unit"),
])
def test_what_is_no_motion_is_a_value_error(changes, words):
    with pytest.raises(ValueError, match=words):
        made(**changes)
