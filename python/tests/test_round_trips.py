"""What Hypothesis thinks of comes back."""

from __future__ import annotations

import os

import numpy as np
import orvane
from conftest import htr_text
from hypothesis import given, settings
from hypothesis import strategies as st
from hypothesis.extra import numpy as arrays

# The same ones each time; ORVANE_EXAMPLES asks for more.
MANY = settings(max_examples=int(os.environ.get("ORVANE_EXAMPLES", "200")), deadline=None,
                derandomize=True, database=None)

FINITE = st.floats(allow_nan=False, allow_infinity=False)
NAMES = st.text(st.characters(codec="utf-8", exclude_categories=("Cc", "Cs", "Z")), min_size=1,
                max_size=12).filter(lambda name: not name.startswith("Unnamed"))


@st.composite
def takes(draw):
    names = draw(st.lists(NAMES, min_size=1, max_size=4, unique=True))
    frames = draw(st.integers(1, 6))
    points = draw(arrays.arrays(np.float64, (frames, len(names), 3), elements=FINITE))
    points[draw(arrays.arrays(np.bool_, points.shape[:2]))] = np.nan
    rate = draw(st.decimals("1", "1000", places=3))
    unit = draw(st.sampled_from(["mm", "cm", "m", "in", "ft", "yd"]))
    return orvane.Take.from_points(points, names, rate=str(rate), unit=unit,
                                   first_frame=draw(st.integers(0, 10**6)))


@MANY
@given(takes())
def test_markers_come_back_to_the_bit(take):
    back = orvane.read(take.to_bytes(), format="trc", warn=False)
    assert (back.names, back.rate, back.unit) == (take.names, take.rate, take.unit)
    assert back.first_frame == take.first_frame
    assert back.points.tobytes() == take.points.tobytes()
    assert back.gaps == take.gaps


ROWS = st.lists(st.tuples(*[st.floats(-1e6, 1e6)] * 3, *[st.floats(-720, 720)] * 3,
                          st.floats(0.01, 100)), min_size=1, max_size=4)


@MANY
@given(ROWS, ROWS, st.sampled_from(["Degrees", "Radians"]))
def test_motion_comes_back(root, child, rotations):
    frames = min(len(root), len(child))
    text = htr_text([root[:frames], child[:frames]], rotations=rotations)
    motion = orvane.read(text.encode(), format="htr", warn=False)
    back = orvane.read(motion.to_bytes(), format="htr", warn=False)
    assert back.translations.tobytes() == motion.translations.tobytes()
    assert back.scales.tobytes() == motion.scales.tobytes()
    np.testing.assert_allclose(back.rotations, motion.rotations, rtol=1e-15, atol=1e-300)


@st.composite
def motions(draw):
    count, frames = draw(st.integers(1, 5)), draw(st.integers(1, 5))
    parents = [-1] + [draw(st.integers(-1, index)) for index in range(count - 1)]
    vectors = arrays.arrays(np.float64, (frames, count, 3), elements=st.floats(-1e6, 1e6))
    places = arrays.arrays(np.float64, (count, 3), elements=st.floats(-1e3, 1e3))
    base = orvane.BasePose(draw(places), draw(places), draw(places)[:, 0])
    return orvane.Motion.from_arrays([f"Bone{index}" for index in range(count)], parents, base=base,
                                     translations=draw(vectors), rotations=draw(vectors) / 1e4,
                                     rate=draw(st.integers(1, 1000)),
                                     first_frame=draw(st.integers(-10**6, 10**6)))


@MANY
@given(motions())
def test_motion_of_arrays_comes_back(motion):
    back = orvane.read(motion.to_bytes(), format="htr", warn=False)
    assert (back.names, back.rate, back.first_frame) == (motion.names, motion.rate,
                                                         motion.first_frame)
    assert back.parents.tolist() == motion.parents.tolist()
    assert back.translations.tobytes() == motion.translations.tobytes()
    assert back.base.translations.tobytes() == motion.base.translations.tobytes()
    np.testing.assert_allclose(back.rotations, motion.rotations, rtol=1e-15, atol=1e-300)
    np.testing.assert_allclose(back.base.rotations, motion.base.rotations, rtol=1e-15, atol=1e-300)
